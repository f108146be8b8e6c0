#pragma once

#include "common/KeyedCollection.h"
#include "common/UserInterface.h"
#include "model/CProperty.h"

namespace schedules {

/// The properties of a template, a group or a data item in their order, found by name without regard to case. The first
/// value of a name wins: to change it, change the property.
class CProperties
{
public:
    /// Failures are reported to the user, who must outlive it.
    explicit CProperties(UserInterface& userInterface) : m_userInterface(userInterface) {}
    Q_DISABLE_COPY_MOVE(CProperties)

    /// Nothing when there is none.
    std::shared_ptr<CProperty> Item(const MemberKey& key) const noexcept { return m_properties.Item(key); }
    int Count() const { return m_properties.Count(); }

    /// All of them in order, as they are now.
    std::vector<std::shared_ptr<CProperty>> NewEnum() const { return m_properties.Members(); }

    /// Calls for each of them in order. Nothing may be added or removed on the way.
    template <class Call>
    void ForEach(Call&& call) const
    {
        m_properties.ForEach(call);
    }

    /// Adds a property behind the others; its `ID` is then the number of properties. Nothing for a blank name, and for
    /// one that is there already.
    std::shared_ptr<CProperty> Add(const QString& name, PropertyValue value);

    void Clear();

    /// Removes what has the name that `Item` finds for the key; nothing happens when there is none.
    void Remove(const MemberKey& key);

private:
    UserInterface& m_userInterface;
    KeyedCollection<CProperty> m_properties;
};

} // namespace schedules
