#pragma once

#include "tools/schedule/ViewLink.h"

#include <QPoint>

class QMenu;

namespace schedules {

class ViewCommands;
class RowSorting;
class ShownTable;
class TagPicking;
struct ViewSettings;

/// The menu of the grid (`mnuGrid`).
class GridMenu
{
public:
    /// All must outlive the menu.
    GridMenu(const ViewLink& link, const ViewSettings& settings, ShownTable& table, TagPicking& picking,
             RowSorting& sorting, ViewCommands& commands);

    /// Opens at a point of the grid's viewport; over a column's header the column is selected first.
    void Open(QPoint point);

private:
    void AddTicking(QMenu& menu);
    void AddSorting(QMenu& menu);

    const ViewLink& m_link;
    const ViewSettings& m_settings;
    ShownTable& m_table;
    TagPicking& m_picking;
    RowSorting& m_sorting;
    ViewCommands& m_commands;
};

} // namespace schedules
