#pragma once

#include "common/Error.h"

#include <limits>

namespace schedules {

/// Issues the identifiers 1001, 1002 and so on.
class ToolIdentifiers
{
public:
    explicit ToolIdentifiers(int lastIssued = 0) : m_last(lastIssued) {}

    /// Throws an overflow error when 32 bits are used up.
    int Next()
    {
        if (m_last == std::numeric_limits<int>::max())
            throw Error(kOverflowError, QStringLiteral("There are no more tool identifiers"));
        if (m_last == 0)
            m_last = kBase;
        return ++m_last;
    }

private:
    static constexpr int kBase = 1000;

    int m_last;
};

} // namespace schedules
