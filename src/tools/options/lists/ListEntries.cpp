#include "tools/options/lists/ListEntries.h"

#include "controls/lists/CheckList.h"

#include <QPushButton>

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

void EnableMoves(const CheckList& list, const std::array<QPushButton*, 2>& buttons)
{
    const bool canMove = list.isEnabled() && !list.IsNarrowed() && list.CurrentRow() >= 0;
    buttons[0]->setEnabled(canMove && list.CurrentRow() > 0);
    buttons[1]->setEnabled(canMove && list.CurrentRow() < list.Count() - 1);
}

} // namespace schedules
