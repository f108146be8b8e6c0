#pragma once

#include "common/MemberId.h"
#include "model/CProperties.h"

namespace schedules {

/// A data item of a group.
class CElement
{
public:
    explicit CElement(UserInterface& userInterface) : m_properties(userInterface) {}
    Q_DISABLE_COPY_MOVE(CElement)

    /// What `CElements::AddNew` gave it; 0 otherwise.
    int ID() const { return m_id.Value(); }
    void SetID(int id) { m_id.Set(id); }
    const MemberId& Identity() const { return m_id; }

    /// Blanks at the ends are dropped. A collection goes on finding the item by the name that it had when it was added.
    const QString& Name() const { return m_name; }
    void SetName(const QString& name);

    /// Where the host finds the item's values; kept as it is given.
    const QString& Location() const { return m_location; }
    void SetLocation(const QString& location) { m_location = location; }

    CProperties& Properties() { return m_properties; }
    const CProperties& Properties() const { return m_properties; }

private:
    MemberId m_id;
    QString m_name;
    QString m_location;
    CProperties m_properties;
};

} // namespace schedules
