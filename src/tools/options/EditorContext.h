#pragma once

#include "tools/HostLink.h"
#include "tools/options/EditorState.h"
#include "tools/options/OptionsForm.h"

namespace schedules {

/// What everybody in the options editor works with. It is as old as the editor.
struct EditorContext
{
    HostLink& host;
    OptionsForm& form;
    EditorState& state;
};

} // namespace schedules
