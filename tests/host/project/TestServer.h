#pragma once

#include "host/project/Database.h"

#include <QProcess>
#include <QUuid>

namespace schedules::host::testing {

/// "postgresql://schedules@127.0.0.1:port/" of the server that tests/support/on-server starts; empty without it.
inline QString TestServer()
{
    return qEnvironmentVariable("SCHEDULES_TEST_SERVER");
}

/// Stops the server at once, as a power cut does, or starts it.
inline bool TellTestServer(const QString& order)
{
    return QProcess::execute(qEnvironmentVariable("SCHEDULES_TEST_SERVER_CONTROL"), {order}) == 0;
}

/// An empty database on the server as long as it lives.
class ServerDatabase
{
public:
    ServerDatabase() : m_name("test" + QUuid::createUuid().toString(QUuid::Id128))
    {
        Admin().Run("CREATE DATABASE " + m_name);
    }
    ~ServerDatabase() { Admin().Run("DROP DATABASE " + m_name + " WITH (FORCE)"); }
    Q_DISABLE_COPY_MOVE(ServerDatabase)

    QString Address() const { return TestServer() + m_name; }

    /// Ends all connections to it, as a server does that is shut down.
    void EndConnections()
    {
        Admin().Run("SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE datname = ?", {m_name});
    }

private:
    static Database Admin() { return Database{ProjectAddress(TestServer() + "postgres")}; }

    QString m_name;
};

} // namespace schedules::host::testing
