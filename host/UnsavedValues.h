#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace schedules::host {

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

} // namespace schedules::host
