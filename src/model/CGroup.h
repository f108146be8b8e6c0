#pragma once

#include "common/MemberId.h"
#include "model/CElements.h"
#include "model/CProperties.h"

namespace schedules {

class Inside;

/// A group of data items of a template.
class CGroup
{
public:
    explicit CGroup(UserInterface& userInterface) : m_properties(userInterface), m_elements(userInterface) {}
    Q_DISABLE_COPY_MOVE(CGroup)

    /// Blanks at the ends are dropped. A collection goes on finding the group by the name that it had when it was
    /// added.
    const QString& Name() const { return m_name; }
    void SetName(const QString& name);

    /// What `CGroups::AddNew` gave it; 0 otherwise.
    int ID() const { return m_id.Value(); }
    void SetID(int id, Inside);
    const MemberId& Identity() const { return m_id; }

    CProperties& Properties() { return m_properties; }
    const CProperties& Properties() const { return m_properties; }

    CElements& Elements() { return m_elements; }
    const CElements& Elements() const { return m_elements; }

private:
    QString m_name;
    MemberId m_id;
    CProperties m_properties;
    CElements m_elements; // gone before the properties
};

} // namespace schedules
