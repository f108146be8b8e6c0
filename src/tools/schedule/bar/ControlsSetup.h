#pragma once

#include "tools/schedule/ViewLink.h"

namespace schedules {

struct ViewLayout;
struct ViewSettings;

/// Sets up the controls around the grid with the first table that is shown: the view's tools, Export's menu and the
/// host's message.
class ControlsSetup
{
public:
    /// All must outlive the setup.
    ControlsSetup(const ViewLink& link, const ViewSettings& settings, const ViewLayout& layout);

    /// Does it once.
    void InitializeControls();

    bool IsInitialised() const { return m_initialised; }

private:
    void AddToolbarButton(const char* key, int image, const char* caption, int tooltip);
    void BuildExportMenu();

    const ViewLink& m_link;
    const ViewSettings& m_settings;
    const ViewLayout& m_layout;
    bool m_initialised = false;
};

} // namespace schedules
