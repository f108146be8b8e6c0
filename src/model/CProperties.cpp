#include "model/CProperties.h"

namespace schedules {

namespace {
constexpr SourceName kSource("CProperties");
}

std::shared_ptr<CProperty> CProperties::Add(const QString& name, PropertyValue value)
{
    return Reported(m_userInterface, kSource.In(__func__), std::shared_ptr<CProperty>(), [&] {
        auto property = std::make_shared<CProperty>();
        property->SetName(name);
        property->SetValue(std::move(value));
        if (property->Name().isEmpty() || !m_properties.Append(property->Name(), property))
            return std::shared_ptr<CProperty>();
        property->SetID(m_properties.Count());
        return property;
    });
}

void CProperties::Clear()
{
    IgnoringErrors([this] { m_properties.Clear(); });
}

void CProperties::Remove(const MemberKey& key)
{
    IgnoringErrors([&] {
        if (const auto property = Item(key))
            m_properties.Remove(property->Name());
    });
}

} // namespace schedules
