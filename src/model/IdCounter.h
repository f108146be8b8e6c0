#pragma once

namespace schedules {

/// Gives numbers that it never gave before: 1, 2 and so on behind the one that it starts with.
class IdCounter
{
public:
    explicit constexpr IdCounter(int last = 0) : m_last(last) {}

    /// Throws `Error` (overflow) behind the largest number.
    int Next();

private:
    int m_last;
};

} // namespace schedules
