#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace schedules::host {

class HostedEditor;
class HostedSchedule;

/// What becomes of edited values when something else is about to be shown.
enum class UnsavedValues
{
    Save,
    Discard,
    Keep ///< nothing else is shown
};

/// Asks the user about the edited values of a file, which is named without its folder.
using UnsavedQuestion = std::function<UnsavedValues(QWidget& window, const QString& file)>;

/// Asks in a message box over the window.
UnsavedValues AskAboutUnsaved(QWidget& window, const QString& file);

/// Whether something else may be shown in place of what a view shows: nothing is unsaved, or the user had it saved, or
/// does not want it.
bool MayReplace(HostedSchedule& tool, QWidget& window, const QString& name, const UnsavedQuestion& question);

/// The same for the template that an editor edits.
bool MayReplace(HostedEditor& editor, QWidget& window, const UnsavedQuestion& question);

} // namespace schedules::host
