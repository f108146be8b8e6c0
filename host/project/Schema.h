#pragma once

namespace schedules::host {

class Database;

/// The version of the tables as this program makes and reads them.
constexpr int kSchemaVersion = 2;

/// Makes the tables of an empty project. Throws `HostError` when a server's database has tables already.
void MakeSchema(Database& database, int version = kSchemaVersion);

/// Brings the tables of a project up to date. Throws `HostError` when it is no project, damaged, of a newer program,
/// locked or read-only.
void UpdateSchema(Database& database);

} // namespace schedules::host
