#pragma once

#include "host/project/ProjectTypes.h"
#include "host/schedule/TemplateLayout.h"

#include <QStringList>

namespace schedules::host {

/// What a schedule is filled with.
struct ScheduleContent
{
    QList<Tag> tags;       ///< those of the schedule, in its order
    QList<DataItem> items; ///< those that there are, in any order
    ValueTable values;     ///< a line for each item of `items`, in it a value for each tag of `tags`
};

/// The locations of the items that a template shows, each once: whose values are needed to build it.
QStringList LocationsShown(const TemplateLayout& layout);

/// The table of a schedule, as the schedule view loads it (docs/schedule-xml.md): a row for each group that shows its
/// name and for each item that is shown, a column for each tag; or the other way round, when the template says
/// SchedOrientation="1". A group that shows no item has no heading either.
///
/// Values are converted to the template's units and written in its formats. Where there is no way from the unit in
/// which an item is stored to that of the template, its values stay as they are, and its own unit stands beside its
/// caption. A value that is no number is shown as it is. An item that is not among `items` is shown without values.
///
/// Beyond what the view reads, each header cell says what it stands for (`tag`, or `item` with the location, `unit`
/// with what its values are shown in and `format`), and each cell that may be edited has the `version` of its value,
/// unless that is 0: so that the table tells what its edits mean when it comes back.
QString ScheduleXml(const TemplateLayout& layout, const ScheduleContent& content);

} // namespace schedules::host
