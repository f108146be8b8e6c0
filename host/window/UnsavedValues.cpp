#include "host/window/UnsavedValues.h"

#include "host/tools/HostedEditor.h"
#include "host/tools/HostedSchedule.h"
#include "host/window/Warning.h"

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

namespace {

/// `save` tells whether everything is saved afterwards.
template <class Save>
bool MayDrop(UnsavedValues answer, Save save)
{
    return answer == UnsavedValues::Discard || (answer == UnsavedValues::Save && save());
}

} // namespace

bool MayReplace(HostedSchedule& tool, QWidget& window, const QString& name, const UnsavedQuestion& question)
{
    tool.CommitEdit();
    return !tool.Dirty() || MayDrop(question(window, name), [&] { return tool.Save(), !tool.Dirty(); });
}

bool MayReplace(HostedEditor& editor, QWidget& window, const UnsavedQuestion& question)
{
    return !editor.HasUnsavedEdits() ||
           MayDrop(question(window, editor.TemplateFile()), [&] { return editor.Apply(), !editor.HasUnsavedEdits(); });
}

} // namespace schedules::host
