#pragma once

#include "host/schedule/SelectionTable.h"

namespace schedules::host {

class Project;

// Schedules and selections out of what a project knows now. Each function throws `HostError`, also for a category or a
// tag that the project does not have, and for a tag of another category.

/// The tags of a category.
QStringList TagNames(const Project& project, const QString& category);

/// The template that the schedule of a category uses. Throws as well when it has none.
TemplateLayout CurrentLayout(const Project& project, const QString& category);

/// The template of that file.
TemplateLayout LayoutOf(const Project& project, const QString& fileName);

/// What is known of some tags, in their order, for the items that a template shows.
ScheduleContent ContentOf(const Project& project, const QString& category, const QStringList& tags,
                          const TemplateLayout& layout);

/// How many values of a schedule somebody else has stored since it was shown: those that have another version now, but
/// for those that were edited in it. Tags and items that came or went count as well.
int ChangedElsewhere(const ScheduleContent& shown, const ScheduleContent& now, const QList<ValueEdit>& edited);

/// All tags of a category to pick from, with the first few items of its template that tell more than the tag.
QString SelectionOf(const Project& project, const QString& category, const SelectionCaptions& captions);

} // namespace schedules::host
