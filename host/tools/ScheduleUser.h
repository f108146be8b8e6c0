#pragma once

#include "host/tools/UserActions.h"
#include "spread/Sheet.h"

class QWidget;

namespace schedules::host {

class HostedSchedule;

/// Does with a schedule view what a user does, by keys and clicks on its widgets. What the view does not let a user do
/// throws `HostError`.
class ScheduleUser
{
public:
    /// Lays the view out, without a window on the screen. It must outlive this object.
    explicit ScheduleUser(HostedSchedule& tool);

    /// Types a text into a cell; an editable check box is ticked for 1 and not for 0.
    void Edit(const CellText& edit);

    /// Ticks a tag, unless it is ticked.
    void Tick(const QString& tag);

    void Sort(const SortColumn& sort);
    void PressContinue();
    void PressSave();

private:
    void GoTo(Cell cell);
    void Type(Cell cell, const QString& text);
    void SetTicked(Cell cell, bool ticked);
    bool IsCheckBox(Cell cell) const;

    HostedSchedule& m_tool;
    Sheet& m_sheet;
    QWidget& m_grid;
};

} // namespace schedules::host
