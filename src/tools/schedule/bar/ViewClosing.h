#pragma once

#include "tools/schedule/ViewLink.h"

#include <functional>

namespace schedules {

class EditSession;
struct ViewSettings;

/// Closing the view: asks about edits that are not saved, then tells the host to unload it.
class ViewClosing
{
public:
    /// `save` hands the edits to the host.
    ViewClosing(const ViewLink& link, const ViewSettings& settings, EditSession& edits, std::function<void()> save);

    /// What the last button does; nothing while it is under way already.
    void Close();

    bool IsUnderWay() const { return m_leaving; }

    /// Whether the host has been told, and nothing has been done with the view since.
    bool IsUnloaded() const { return m_unloaded; }
    void SetInUse() { m_unloaded = false; }

private:
    bool MayUnload();
    void Unload();

    const ViewLink& m_link;
    const ViewSettings& m_settings;
    EditSession& m_edits;
    std::function<void()> m_save;
    bool m_leaving = false; ///< the user has been asked, or the host is being told
    bool m_unloaded = false;
};

} // namespace schedules
