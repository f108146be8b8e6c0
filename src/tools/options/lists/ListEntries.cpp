#include "tools/options/lists/ListEntries.h"

#include "controls/lists/CheckList.h"

#include <QPushButton>

#include <algorithm>
#include <ranges>

namespace schedules {

namespace {
constexpr int kUp = 0;
}

int NeighbourOf(const CheckList& list, int index)
{
    const int row = list.CurrentRow();
    const int neighbour = index == kUp ? row - 1 : row + 1;
    return neighbour >= 0 && neighbour < list.Count() ? neighbour : row;
}

int RowToSelect(const CheckList& list, const QString& text)
{
    const auto rows = std::views::iota(0, list.isEnabled() ? list.Count() : 0);
    const auto found =
        std::ranges::find_if(rows, [&](int row) { return list.Text(row) == text && !list.isRowHidden(row); });
    return found == rows.end() ? -1 : *found;
}

void EnableMoves(const CheckList& list, const std::array<QPushButton*, 2>& buttons)
{
    const bool canMove = list.isEnabled() && !list.IsNarrowed() && list.CurrentRow() >= 0;
    buttons[0]->setEnabled(canMove && list.CurrentRow() > 0);
    buttons[1]->setEnabled(canMove && list.CurrentRow() < list.Count() - 1);
}

} // namespace schedules
