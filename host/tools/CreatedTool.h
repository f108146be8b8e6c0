#pragma once

#include "host/base/HostError.h"

#include <QWidget>

#include <memory>

namespace schedules {
class UserInterface;
} // namespace schedules

namespace schedules::host {

/// A visual tool of the component: a widget that is an `IToolUI`. With no `userInterface` message boxes are the
/// desktop's. Throws `HostError` when the component has no such tool.
std::unique_ptr<QWidget> CreatedTool(const QString& name, UserInterface* userInterface);

/// An interface of a tool. Throws `HostError` when it has none such.
template <class Interface>
Interface& InterfaceOf(QWidget& tool)
{
    if (auto* found = qobject_cast<Interface*>(&tool))
        return *found;
    throw HostError(QStringLiteral("a tool lacks %1").arg(QLatin1String(qobject_interface_iid<Interface*>())));
}

} // namespace schedules::host
