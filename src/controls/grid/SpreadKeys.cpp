#include "controls/grid/SpreadKeys.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>

namespace schedules {

namespace {

int StepFrom(const Axis& axis, int position, int step)
{
    const int next = axis.VisibleFrom(position + step, step);
    return next >= 1 ? next : position;
}

/// The first visible position behind the header; 0 when there is none.
int FirstOf(const Axis& axis)
{
    return std::max(axis.VisibleFrom(1, 1), 0);
}

int LastOf(const Axis& axis)
{
    return std::max(axis.VisibleFrom(axis.Count(), -1), 0);
}

template <class Condition>
int GoWhile(const Axis& axis, int from, int step, Condition condition)
{
    for (int next = StepFrom(axis, from, step); next != from && condition(next); next = StepFrom(axis, from, step))
        from = next;
    return from;
}

/// To the end of a filled stretch, or over a gap to the next filled cell, as in any spreadsheet.
template <class Filled>
int EdgeFrom(const Axis& axis, int from, int step, Filled filled)
{
    if (filled(from) && filled(StepFrom(axis, from, step)))
        return GoWhile(axis, from, step, filled);
    const int gapEnd = GoWhile(axis, from, step, std::not_fn(filled));
    return StepFrom(axis, gapEnd, step);
}

ShownPlace ColumnStep(const Standpoint& from, int step)
{
    return {StepFrom(from.sheet.Columns(), from.place.column, step), from.place.row};
}

ShownPlace RowStep(const Standpoint& from, int step)
{
    return {from.place.column, StepFrom(from.sheet.Rows(), from.place.row, step)};
}

bool IsFilled(const Sheet& sheet, ShownPlace place)
{
    return !sheet.Utf8(CellOf(sheet, place)).empty();
}

ShownPlace ColumnEdge(const Standpoint& from, int step)
{
    const auto filled = [&](int column) { return IsFilled(from.sheet, {column, from.place.row}); };
    return {EdgeFrom(from.sheet.Columns(), from.place.column, step, filled), from.place.row};
}

ShownPlace RowEdge(const Standpoint& from, int step)
{
    const auto filled = [&](int row) { return IsFilled(from.sheet, {from.place.column, row}); };
    return {from.place.column, EdgeFrom(from.sheet.Rows(), from.place.row, step, filled)};
}

ShownPlace PageStep(const Standpoint& from, int step)
{
    const Axis& axis = from.sheet.Rows();
    const AxisLayout& rows = from.geometry.Rows();
    const int page = rows.Extent() - rows.FixedEnd();
    const auto withinPage = [&](int row) { return std::abs(rows.Distance(from.place.row, row)) <= page; };
    const int atLeast = StepFrom(axis, from.place.row, step);
    return {from.place.column, GoWhile(axis, atLeast, step, withinPage)};
}

ShownPlace Back(const Standpoint& from)
{
    return ColumnStep(from, -1);
}
ShownPlace Forward(const Standpoint& from)
{
    return ColumnStep(from, 1);
}
ShownPlace Up(const Standpoint& from)
{
    return RowStep(from, -1);
}
ShownPlace Down(const Standpoint& from)
{
    return RowStep(from, 1);
}
ShownPlace BackToEdge(const Standpoint& from)
{
    return ColumnEdge(from, -1);
}
ShownPlace ForwardToEdge(const Standpoint& from)
{
    return ColumnEdge(from, 1);
}
ShownPlace UpToEdge(const Standpoint& from)
{
    return RowEdge(from, -1);
}
ShownPlace DownToEdge(const Standpoint& from)
{
    return RowEdge(from, 1);
}
ShownPlace PageUp(const Standpoint& from)
{
    return PageStep(from, -1);
}
ShownPlace PageDown(const Standpoint& from)
{
    return PageStep(from, 1);
}
ShownPlace RowStart(const Standpoint& from)
{
    return {FirstPlace(from.sheet).column, from.place.row};
}
ShownPlace RowEnd(const Standpoint& from)
{
    return {LastPlace(from.sheet).column, from.place.row};
}
ShownPlace SheetStart(const Standpoint& from)
{
    return FirstPlace(from.sheet);
}
ShownPlace SheetEnd(const Standpoint& from)
{
    return LastPlace(from.sheet);
}

struct Binding
{
    Qt::Key key;
    Move alone;
    Move withControl;
};

constexpr std::array kBindings{
    Binding{Qt::Key_Left, Back, BackToEdge},     Binding{Qt::Key_Right, Forward, ForwardToEdge},
    Binding{Qt::Key_Up, Up, UpToEdge},           Binding{Qt::Key_Down, Down, DownToEdge},
    Binding{Qt::Key_PageUp, PageUp, nullptr},    Binding{Qt::Key_PageDown, PageDown, nullptr},
    Binding{Qt::Key_Home, RowStart, SheetStart}, Binding{Qt::Key_End, RowEnd, SheetEnd},
};

int Turned(int key, bool mirrored)
{
    if (!mirrored)
        return key;
    if (key == Qt::Key_Left)
        return Qt::Key_Right;
    return key == Qt::Key_Right ? static_cast<int>(Qt::Key_Left) : key;
}

} // namespace

Move MoveOf(const QKeyEvent& key, bool mirrored)
{
    const Qt::KeyboardModifiers modifiers = key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    const auto found = std::ranges::find(kBindings, Turned(key.key(), mirrored), &Binding::key);
    if (found == kBindings.end() || (modifiers & ~Qt::ControlModifier))
        return nullptr;
    return modifiers ? found->withControl : found->alone;
}

bool IsPageMove(Move move)
{
    return move == PageUp || move == PageDown;
}

ShownPlace FirstPlace(const Sheet& sheet)
{
    return {FirstOf(sheet.Columns()), FirstOf(sheet.Rows())};
}

ShownPlace LastPlace(const Sheet& sheet)
{
    return {LastOf(sheet.Columns()), LastOf(sheet.Rows())};
}

} // namespace schedules
