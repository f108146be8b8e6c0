#include "model/CGroup.h"

#include "common/Blanks.h"
#include "model/Inside.h"

namespace schedules {

void CGroup::SetName(const QString& name)
{
    m_name = TrimmedOfBlanks(name);
}

void CGroup::SetID(int id, Inside)
{
    m_id.Set(id);
}

} // namespace schedules
