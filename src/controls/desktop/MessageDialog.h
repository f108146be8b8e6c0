#pragma once

#include "common/UserInterface.h"

class QWidget;

namespace schedules {

/// Shows a message box over a window until it is answered. Without a title of its own the box bears the application's
/// name. When it is closed without an answer, or the window is deleted meanwhile, the answer is Cancel.
Answer AskOver(QWidget* window, const MessageBox& box);

} // namespace schedules
