#pragma once

#include "model/CTemplate.h"

#include <memory>

namespace schedules {

/// What the options editor is at. A template's unsaved edits are with the template (`CTemplate::Dirty`).
struct EditorState
{
    bool loaded = false;        ///< the catalogue has been asked for, with success or not
    bool groupsLoaded = false;  ///< the list of groups is not being filled
    bool itemsLoaded = false;   ///< the list of data items is not being filled
    bool eventsEnabled = false; ///< what happens to the controls is the user's doing, not the editor's own

    std::shared_ptr<CTemplate> currentTemplate;
    std::shared_ptr<CGroup> currentGroup;
    std::shared_ptr<CElement> currentElement;

    /// No template, and so no group and no data item.
    void ForgetTemplate()
    {
        currentElement.reset();
        currentGroup.reset();
        currentTemplate.reset();
    }

    /// Whether the user's clicks into a list mean something.
    bool TakesGroupClicks() const { return eventsEnabled && groupsLoaded; }
    bool TakesItemClicks() const { return eventsEnabled && itemsLoaded; }

    bool IsDirty() const { return currentTemplate && currentTemplate->Dirty(); }
};

/// The editor itself changes its controls as long as this lives; what they tell of that is not the user's doing.
class EventsOff
{
public:
    explicit EventsOff(EditorState& state) : m_state(state), m_before(state.eventsEnabled)
    {
        m_state.eventsEnabled = false;
    }
    ~EventsOff() { m_state.eventsEnabled = m_before; }
    Q_DISABLE_COPY_MOVE(EventsOff)

private:
    EditorState& m_state;
    bool m_before;
};

} // namespace schedules
