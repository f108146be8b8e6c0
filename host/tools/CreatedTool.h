#pragma once

#include <QWidget>

#include <memory>

namespace schedules {
class UserInterface;
} // namespace schedules

namespace schedules::host {

/// A visual tool of the component: a widget that is an `IToolUI`. With no `userInterface` message boxes are the
/// desktop's. Throws `HostError` when the component has no such tool.
std::unique_ptr<QWidget> CreatedTool(const QString& name, UserInterface* userInterface);

} // namespace schedules::host
