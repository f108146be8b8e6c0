#pragma once

#include "host/project/ProjectTypes.h"

#include <QSet>

namespace schedules::host {

/// The list of templates as it is to be stored, out of what is stored, what somebody was shown, and what he wants. An
/// entry is known by its file name. `written` are the keys of the files whose texts he has written.
///
/// Those that are stored keep their order; new ones follow. An entry that he wrote or changed and that another one
/// removed since is there again. Throws `HostError` when two entries would have one name or one file name, so too when
/// another one has made a template of that file name since.
QList<TemplateEntry> MergedTemplates(const QList<TemplateEntry>& stored, const QList<TemplateEntry>& shown,
                                     const QList<TemplateEntry>& wanted, const QSet<QString>& written);

} // namespace schedules::host
