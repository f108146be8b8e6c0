#include "StoredProject.h"
#include "host/project/Transaction.h"

namespace schedules::host::testing {

namespace {

/// What happens on a server alone. There are no such tests without one.
struct ProjectServer : StoredProject
{
    /// The address with another user, password or database.
    QString With(const QString& user, const QString& password, const QString& database = {}) const
    {
        QUrl url(Address());
        url.setUserName(user);
        url.setPassword(password);
        if (!database.isEmpty())
            url.setPath('/' + database);
        return url.toString();
    }

    /// From then on a value "end" ends the connection that stores it, in the midst of its statement.
    void EndAtTheValueEnd() const
    {
        Raw().Run("CREATE FUNCTION ending() RETURNS trigger LANGUAGE plpgsql AS "
                  "'BEGIN PERFORM pg_terminate_backend(pg_backend_pid()); RETURN NEW; END'");
        Raw().Run("CREATE TRIGGER ending AFTER UPDATE ON value FOR EACH ROW WHEN (NEW.text = 'end')"
                  " EXECUTE FUNCTION ending()");
    }
};

} // namespace

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(ProjectServer);
INSTANTIATE_TEST_SUITE_P(On, ProjectServer, ::testing::ValuesIn(Servers()), PlaceName);

TEST_P(ProjectServer, ThatRefusesTheLoginIsToldWithoutThePassword)
{
    const std::string line = Failure([&] { Project::Open(With("guarded", "wrong")); });
    EXPECT_NE(line.find("password authentication failed for user \"guarded\""), std::string::npos) << line;
    EXPECT_TRUE(line.starts_with(With("guarded", {}).toStdString() + ": ")) << line;
    EXPECT_EQ(line.find("wrong"), std::string::npos) << line;
}

TEST_P(ProjectServer, ThatAsksForAPasswordGetsIt)
{
    Plant();
    Raw().Run("GRANT ALL ON ALL TABLES IN SCHEMA public TO guarded");
    const auto project = Project::Open(With("guarded", "open"));
    EXPECT_EQ(Shown(*project), kSmallPlantValues);
    EXPECT_EQ(project->Address().Text(), With("guarded", {}));
    EXPECT_NE(Failure([&] { Project::Open(With("guarded", {})); }), "no failure");
}

TEST_P(ProjectServer, WithoutSuchADatabaseFails)
{
    const std::string line = Failure([&] { Project::Create(With("schedules", "", "absent")); });
    EXPECT_NE(line.find("database \"absent\" does not exist"), std::string::npos) << line;
}

TEST_P(ProjectServer, AnEmptyDatabaseIsNoProjectAndBecomesOne)
{
    EXPECT_EQ(Failure([&] { Opened(); }), "there is no project in " + Address().toStdString());
    Plant();
    EXPECT_EQ(Shown(*Opened()), kSmallPlantValues);
}

TEST_P(ProjectServer, ADatabaseOfOtherTablesIsRefused)
{
    Raw().Run("CREATE TABLE meta (number INTEGER)");
    EXPECT_EQ(Failure([&] { Project::Create(Address()); }),
              Address().toStdString() + " holds tables that are no project's");
    EXPECT_EQ(Failure([&] { Opened(); }), "there is no project in " + Address().toStdString());
    EXPECT_EQ(Raw().Text("SELECT COUNT(*) FROM pg_tables WHERE schemaname = 'public'"), "1");
}

TEST_P(ProjectServer, AUserWhoMayNotMakeTablesIsTold)
{
    const std::string line = Failure([&] { Project::Create(With("guarded", "open")); });
    EXPECT_NE(line.find("permission denied for schema public"), std::string::npos) << line;
}

TEST_P(ProjectServer, LostDuringASaveStoresNothingAndTheNextCallConnectsAgain)
{
    const auto project = Plant();
    EndAtTheValueEnd();
    EXPECT_EQ(Failure([&] {
                  project->Save({{"P-1", "Design/Flow", "13", 1}, {"P-2", "Design/Flow", "end", 1}});
              }),
              "the connection to " + Address().toStdString() + " was lost");
    EXPECT_EQ(Shown(*project), kSmallPlantValues);
    EXPECT_EQ(Drawn(project->Save({{"P-1", "Design/Flow", "13", 1}})), "1 stored");
}

TEST_P(ProjectServer, LostBetweenCallsIsConnectedAgain)
{
    const auto project = Plant();
    OfServer().EndConnections();
    EXPECT_EQ(Shown(*project), kSmallPlantValues);
    OfServer().EndConnections();
    EXPECT_EQ(Drawn(project->Save({{"P-1", "Design/Flow", "13", 1}})), "1 stored");
}

TEST_P(ProjectServer, LostWithinATransactionFailsUntilTheNextOne)
{
    Plant();
    Database database = Raw();
    {
        Transaction transaction(database, Transaction::Purpose::Writing);
        database.Run("UPDATE value SET text = 'half'");
        OfServer().EndConnections();
        EXPECT_EQ(Failure([&] { transaction.Commit(); }), "the connection to " + Address().toStdString() + " was lost");
    }
    EXPECT_EQ(Shown(*Opened()), kSmallPlantValues);
    EXPECT_EQ(Reading(database, [&] { return database.Text("SELECT COUNT(*) FROM value"); }), "3");
}

TEST_P(ProjectServer, IsToldWhoIsConnected)
{
    const auto project = Plant();
    EXPECT_EQ(Raw().Text("SELECT COUNT(*) FROM pg_stat_activity WHERE datname = current_database()"
                         " AND application_name = 'equipment-schedules'"),
              "2");
}

TEST(ProjectServerAway, IsToldInOneLineWithoutThePassword)
{
    const QString host = "127.0.0.1:1/plant"; // where nobody listens
    const std::string line = Failure([&] { Project::Open("postgresql://me:secret@" + host); });
    EXPECT_TRUE(line.starts_with("postgresql://me@" + host.toStdString() + ": ")) << line;
    EXPECT_NE(line.find("refused"), std::string::npos) << line;
    EXPECT_EQ(line.find("secret"), std::string::npos) << line;
}

} // namespace schedules::host::testing
