#pragma once

#include "tools/HostLink.h"

class QWidget;

namespace schedules {

/// What the rooms of the view need of the view itself: its place on the screen, its host and its user.
struct ViewLink
{
    QWidget& view;
    HostLink& host;

    /// Tells the owner something. Throws when that fails.
    void Tell(QStringView name, std::initializer_list<QVariant> values) const
    {
        host.SendEventToOwner(HostLink::Event(name, values));
    }
};

} // namespace schedules
