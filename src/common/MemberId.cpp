#include "common/MemberId.h"

#include <utility>

namespace schedules {

void MemberId::Set(int value)
{
    m_value = value;
    for (const auto& knowledge : std::exchange(m_knowledge, {})) {
        if (const auto isKnown = knowledge.lock())
            *isKnown = false;
    }
}

void MemberId::ForgetOnWrite(const std::shared_ptr<bool>& isKnown) const
{
    std::erase_if(m_knowledge,
                  [&isKnown](const std::weak_ptr<bool>& known) { return known.expired() || known.lock() == isKnown; });
    m_knowledge.push_back(isKnown);
}

} // namespace schedules
