#include "common/Blanks.h"

namespace schedules {

QString TrimmedOfBlanks(const QString& text)
{
    constexpr QChar kBlank = u' ';
    qsizetype start = 0;
    qsizetype end = text.size();
    while (end > start && text.at(end - 1) == kBlank)
        --end;
    while (start < end && text.at(start) == kBlank)
        ++start;
    return end - start == text.size() ? text : text.mid(start, end - start);
}

} // namespace schedules
