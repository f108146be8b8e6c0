#pragma once

#include <QString>

namespace schedules {

/// A text as a cell of one line shows it: a blank in place of each tab, line end, paragraph end (U+2028 and U+2029) and
/// other control character below U+0020. Whoever measures and whoever paints such a cell takes it from here.
QString OnOneLine(QString text);

} // namespace schedules
