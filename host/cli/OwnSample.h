#pragma once

#include "host/answers/TemplateFileAnswers.h"

#include <QString>

namespace schedules::host {

// The user's own copies of the samples, which he may change: made in his data folder when they are not there yet, and
// left as they are later. `HostError` is thrown when one cannot be made.

/// The address of the sample project.
QString OwnProject();

/// The sample templates with their two lists, made together once: a template that the user has deleted stays deleted.
/// The schedule's template is the one that was kept last.
TemplatePlaces OwnTemplates();

/// Keeps which of the sample templates the schedule uses in the user's settings. Throws `HostError`.
void KeepOwnCurrentTemplate(const QString& fileName);

} // namespace schedules::host
