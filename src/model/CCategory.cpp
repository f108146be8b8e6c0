#include "model/CCategory.h"

#include "common/Blanks.h"

namespace schedules {

void CCategory::SetName(const QString& name)
{
    m_name = TrimmedOfBlanks(name);
}

void CCategory::SetDisplayName(const QString& displayName)
{
    m_displayName = TrimmedOfBlanks(displayName);
}

void CCategory::SetPdsg(const QString& pdsg)
{
    m_pdsg = TrimmedOfBlanks(pdsg);
}

} // namespace schedules
