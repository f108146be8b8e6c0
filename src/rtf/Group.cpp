#include "rtf/Group.h"

namespace schedules::rtf {

void GroupStack::Open()
{
    if (m_groups.size() <= kMaxDepth)
        m_groups.push_back(Group(m_groups.back()));
    else
        ++m_sharing;
}

void GroupStack::Close()
{
    if (m_sharing > 0)
        --m_sharing;
    else if (m_groups.size() > 1)
        m_groups.pop_back();
}

} // namespace schedules::rtf
