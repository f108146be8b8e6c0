#pragma once

#include "tools/schedule/edits/CellEditing.h"
#include "tools/schedule/edits/EditSession.h"
#include "tools/schedule/output/Exports.h"
#include "tools/schedule/output/SchedulePrinting.h"
#include "tools/schedule/picking/TagPicking.h"
#include "tools/schedule/showing/DocumentShowing.h"
#include "tools/schedule/table/RowSorting.h"
#include "tools/schedule/table/ShownTable.h"

namespace schedules {

/// What works behind the widgets of a view. Later members know earlier ones.
struct ScheduleRooms
{
    ScheduleRooms(const ViewLink& link, const ViewSettings& settings, SpreadView& grid)
        : table(link.user, grid),
          edits(table),
          editing(table, edits, settings),
          sorting(grid),
          picking(table, editing, edits, settings),
          showing(link, settings, table, edits, editing, sorting),
          exports(link, table),
          printing(link, table)
    {
    }

    ShownTable table;
    EditSession edits;
    CellEditing editing;
    RowSorting sorting;
    TagPicking picking;
    DocumentShowing showing;
    Exports exports;
    SchedulePrinting printing;
};

} // namespace schedules
