#include "model/CProperty.h"

#include "common/Blanks.h"

namespace schedules {

void CProperty::SetName(const QString& name)
{
    m_name = TrimmedOfBlanks(name);
}

} // namespace schedules
