#pragma once

#include "common/Error.h"

#include <QStringList>

namespace schedules {

/// An XML element as text. Each attribute text comes complete, with the blank that separates it; nothing is escaped,
/// so that elements can be built inside out. Empty content gives an element that closes itself.
QString ElementText(const QString& name, const QString& content, const QStringList& attributes = {});

/// A readable line for a system error code; empty for 0.
QString SystemErrorText(int code);

/// The path, trimmed, with a backslash at its end; empty for a path of blanks.
QString FolderPathWithSeparator(const QString& path);

/// Shows an error in a message box, below `leadingMessage` when there is one. Never throws.
void ShowError(UserInterface& userInterface, const Error& error, const QString& leadingMessage, int style,
               const QString& title) noexcept;

} // namespace schedules
