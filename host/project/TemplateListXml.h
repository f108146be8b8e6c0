#pragma once

#include "host/project/ProjectTypes.h"

namespace schedules::host {

/// The list of templates as the options editor is answered with it: `<Templates>` of `<Template name filename pdsg
/// readonly category defaultforcategory/>`, all six there, flags as "-1" and "0", then the attributes that this host
/// does not know. Without a declaration; never empty.
QString TemplateListXml(const QList<TemplateEntry>& entries);

/// Reads such a list back as an editor may have changed it: flags in any form ("True", "-1", "1"), attributes missing.
/// Throws `HostError` for a text that is no XML, or an entry without a name or a file name.
QList<TemplateEntry> ReadTemplateList(const QString& xml);

/// `<Categories>` of `<Category name displayname pdsg/>`, without a declaration; never empty.
QString CategoryListXml(const QList<Category>& categories);

} // namespace schedules::host
