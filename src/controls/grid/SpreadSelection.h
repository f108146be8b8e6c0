#pragma once

#include "controls/grid/ShownPlace.h"

#include <optional>

namespace schedules {

/// The block of cells that a user has selected: it reaches from the sheet's active cell to a second corner, in the
/// order shown. Headers are never part of it.
class SpreadSelection
{
public:
    /// Back to the active cell alone.
    void Collapse() { m_corner.reset(); }

    void ExtendTo(Cell corner) { m_corner = corner; }

    /// The corner opposite to the active cell; the active cell itself when nothing more is selected.
    Cell Corner(const Sheet& sheet) const { return m_corner.value_or(sheet.ActiveCell()); }

    /// Nothing as long as no data cell is active.
    std::optional<ShownBlock> Block(const Sheet& sheet) const;

    /// What is selected as text: cells parted by tabs, rows ended by line feeds, hidden cells left out. A text that
    /// holds one of these, or a quotation mark, is quoted.
    QString Text(const Sheet& sheet) const;

private:
    std::optional<Cell> m_corner;
};

} // namespace schedules
