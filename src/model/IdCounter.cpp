#include "model/IdCounter.h"

#include "common/Error.h"

#include <limits>

namespace schedules {

int IdCounter::Next()
{
    if (m_last == std::numeric_limits<int>::max())
        throw Error(kOverflowError, QStringLiteral("Overflow"));
    return ++m_last;
}

} // namespace schedules
