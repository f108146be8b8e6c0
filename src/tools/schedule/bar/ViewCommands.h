#pragma once

#include "framework/IScheduleView.h"
#include "spread/RowSort.h"
#include "spread/Sheet.h"
#include "tools/schedule/ViewLink.h"
#include "tools/schedule/bar/ViewClosing.h"

namespace schedules {

struct ScheduleRooms;
struct ViewSettings;

/// What the tools and the command buttons do.
class ViewCommands
{
public:
    /// All must outlive the commands.
    ViewCommands(const ViewLink& link, const ViewSettings& settings, ScheduleRooms& rooms);

    /// To be called before any command, of the host's own tools too: whatever a command works with is what the user
    /// sees, an open edit included.
    void Begin();

    /// Whether the view has such a command.
    bool Has(ViewCommand command) const;
    void Do(ViewCommand command);

    ViewClosing& Closing() { return m_closing; }

    /// Whether rows can be sorted by the active column.
    bool Sortable() const;

    /// Goes on to the next order of the active column.
    void DoColSort();

    /// Enters a text as a user would, see `IScheduleView`.
    Entry EnterText(Cell cell, const QString& text);

    /// Makes a column the active one and sorts by it. False where that cannot be.
    bool SortBy(Column column, RowOrder order);

private:
    void Print();
    void Continue();
    void PrintSelections();
    void Save();
    void SendEdits();
    void Help();
    Entry EnterTick(Cell cell, const QString& text);
    void SortActiveColumn(RowOrder order);

    const ViewLink& m_link;
    const ViewSettings& m_settings;
    ScheduleRooms& m_rooms;
    ViewClosing m_closing;
};

} // namespace schedules
