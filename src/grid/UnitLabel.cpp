#include "grid/UnitLabel.h"

namespace schedules {

QString UnitLabel(const QString& unit)
{
    return unit.isEmpty() ? QString() : u'(' + unit + u')';
}

} // namespace schedules
