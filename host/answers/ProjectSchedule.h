#pragma once

#include "host/schedule/ScheduleBuilder.h"

namespace schedules::host {

class Project;

// Schedules and selections out of what a project knows now. Each function throws `HostError`, also for a category or a
// tag that the project does not have, and for a tag of another category.

/// The tags of a category.
QStringList TagNames(const Project& project, const QString& category);

/// The template that the schedule of a category uses. Throws as well when it has none.
TemplateLayout CurrentLayout(const Project& project, const QString& category);

/// The schedule of some tags in their order.
QString ScheduleOf(const Project& project, const QString& category, const QStringList& tags,
                   const TemplateLayout& layout);

/// All tags of a category to pick from, with the first few items of its template.
QString SelectionOf(const Project& project, const QString& category, const SelectionCaptions& captions);

} // namespace schedules::host
