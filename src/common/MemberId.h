#pragma once

#include <memory>
#include <vector>

namespace schedules {

/// A number that members of collections are found by, written at any time. Collections that remember where each number
/// is hear when one is written.
class MemberId
{
public:
    int Value() const { return m_value; }

    void Set(int value);

    /// From now on, writing sets `isKnown` to false.
    void ForgetOnWrite(const std::shared_ptr<bool>& isKnown) const;

private:
    int m_value = 0;
    mutable std::vector<std::weak_ptr<bool>> m_knowledge;
};

} // namespace schedules
