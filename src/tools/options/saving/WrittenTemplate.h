#pragma once

#include "tools/HostLink.h"

#include <QString>

#include <memory>

namespace schedules {

class CTemplate;

/// A template on its way into a file and the host's list.
struct WrittenTemplate
{
    QString xml;
    QString name;
    QString displayName;
    QString category;
    QString fileName;
};

/// What a save or an `ApplyChanges` comes to; any other number is passed on from a save.
enum SaveResult
{
    kNothingToApply = 0,
    kApplied = -1,
    kStopped = -2 ///< by the user, by a rule, or by a failure that has been reported
};

/// What is saved of a template as it is; without `xml` when that cannot be written, which has been told. A file that
/// lacks the texts gets none; the host's list knows them, too.
WrittenTemplate Written(const std::shared_ptr<CTemplate>& current, HostLink& host);

/// What stands in the file: the template as it is, or with its texts on the root and editable. Throws `Error`
/// (`kSaveError`) when nobody could read that.
QString FileText(const WrittenTemplate& written, bool asItIs);

} // namespace schedules
