#include "spread/CellEdge.h"

#include "spread/NumberReader.h"

namespace schedules {

namespace {

bool StandsFar(DataType type, std::string_view utf8)
{
    return (IsNumeric(type) && type != DataType::Number) || ReadsAsNumber(utf8);
}

} // namespace

CellEdge EdgeOf(HorizontalAlignment alignment, CellStyle style, std::string_view utf8)
{
    if (const auto edge = KindOf(style).edge)
        return *edge;
    if (alignment == HorizontalAlignment::Center)
        return CellEdge::Center;
    const bool isFar = alignment == HorizontalAlignment::Data && StandsFar(style.dataType, utf8);
    return isFar ? CellEdge::Far : CellEdge::Near;
}

} // namespace schedules
