#pragma once

#include "host/base/HostError.h"

#include <QSqlError>

namespace schedules::host {

class ProjectAddress;

/// What a database says, in one line for the user, which names the project and never a password.
HostError DatabaseError(const ProjectAddress& address, const QSqlError& error);

/// Throws that of a connection that could not be opened: `LoginRefused` when another password might open it.
[[noreturn]] void ThrowOpeningError(const ProjectAddress& address, const QSqlError& error);

/// The same of a server that does not answer any more.
HostError LostConnection(const ProjectAddress& address);

} // namespace schedules::host
