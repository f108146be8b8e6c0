#include "spread/OneLine.h"

#include <algorithm>

namespace schedules {

namespace {

bool MovesOn(QChar character)
{
    return character < u' ' || character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
}

} // namespace

QString OnOneLine(QString text)
{
    // Nearly all texts have none of them, and are shared instead of copied.
    if (std::ranges::any_of(std::as_const(text), MovesOn))
        std::ranges::replace_if(text, MovesOn, QChar(u' '));
    return text;
}

} // namespace schedules
