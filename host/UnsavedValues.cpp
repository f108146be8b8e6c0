#include "host/UnsavedValues.h"

#include "host/ScheduleTool.h"
#include "host/Warning.h"

#include <QCoreApplication>

namespace schedules::host {

UnsavedValues AskAboutUnsaved(QWidget& window, const QString& file)
{
    const QString text = QCoreApplication::translate("UnsavedValues", "%1 has edits that are not saved.");
    const auto answer =
        Warn(window, text.arg(file), QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    switch (answer) {
    case QMessageBox::Save:
        return UnsavedValues::Save;
    case QMessageBox::Discard:
        return UnsavedValues::Discard;
    default:
        return UnsavedValues::Keep;
    }
}

bool MayReplace(ScheduleTool& tool, QWidget& window, const QString& name, const UnsavedQuestion& question)
{
    tool.CommitEdit();
    if (!tool.Dirty())
        return true;
    switch (question(window, name)) {
    case UnsavedValues::Save:
        tool.Save();
        return !tool.Dirty();
    case UnsavedValues::Discard:
        return true;
    default:
        return false;
    }
}

} // namespace schedules::host
