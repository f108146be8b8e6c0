#pragma once

#include "host/window/UnsavedValues.h"

namespace schedules {
class UserInterface;
} // namespace schedules

namespace schedules::host {

/// Who answers where a window waits for its user.
struct Answering
{
    UserInterface* tool = nullptr; ///< the message boxes of the tool; with none they are the desktop's
    UnsavedQuestion unsaved = AskAboutUnsaved;
};

} // namespace schedules::host
