#include "tools/options/lists/ItemTexts.h"

#include "common/BooleanText.h"

namespace schedules {

namespace {
const QString kDisplayName = QStringLiteral("DisplayName");
}

std::optional<bool> FlagIn(const CProperties& properties, const QString& name)
{
    const auto property = properties.Item(name);
    if (!property)
        return std::nullopt;
    bool flag = false;
    IgnoringErrors([&] { flag = FlagOf(property->Value()); });
    return flag;
}

bool TakeCheckMark(CProperties& properties, const QString& name, bool checked)
{
    const auto property = properties.Item(name);
    if (!property || FlagIn(properties, name) == checked)
        return false;
    property->SetValue(BooleanText(checked));
    return true;
}

void SetProperty(CProperties& properties, const QString& name, const QString& value)
{
    if (const auto property = properties.Item(name))
        property->SetValue(value);
    else
        properties.Add(name, value);
}

bool IsUserDefined(const CElement& element)
{
    return FlagIn(element.Properties(), QStringLiteral("UserDefined")).value_or(false);
}

QString DisplayNameOf(const CElement& element)
{
    const auto displayName = element.Properties().Item(kDisplayName);
    return displayName ? TextOf(displayName->Value()) : QString();
}

QString EntryText(const CElement& element)
{
    return EntryText(IsUserDefined(element), DisplayNameOf(element));
}

QString EntryText(bool isUserDefined, const QString& displayName)
{
    return isUserDefined ? u'*' + displayName : displayName;
}

} // namespace schedules
