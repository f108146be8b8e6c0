#include "model/CElement.h"

#include "common/Blanks.h"

namespace schedules {

void CElement::SetName(const QString& name)
{
    m_name = TrimmedOfBlanks(name);
}

} // namespace schedules
