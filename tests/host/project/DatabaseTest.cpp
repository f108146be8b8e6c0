#include "StoredProject.h"
#include "host/project/Transaction.h"

namespace schedules::host::testing {

namespace {

struct DatabaseOf : StoredProject
{
    DatabaseOf()
    {
        Project::Create(Address());
        database.emplace(ProjectAddress(Address()));
        database->Run("CREATE TABLE note (number INTEGER PRIMARY KEY, text TEXT NOT NULL)");
    }

    /// Their texts, as another connection sees them.
    std::string Notes() const
    {
        QStringList texts;
        Raw().Run("SELECT text FROM note ORDER BY number", {},
                  [&](const QSqlQuery& row) { texts.append(row.value(0).toString()); });
        return texts.join(' ').toStdString();
    }

    void Add(int number, const QString& text)
    {
        database->Run("INSERT INTO note (number, text) VALUES (?, ?)", {number, text});
    }

    std::optional<Database> database;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(In, DatabaseOf, ::testing::ValuesIn(Places()), PlaceName);

TEST_P(DatabaseOf, CommitsAsAWhole)
{
    Transaction transaction(*database, Transaction::Purpose::Writing);
    Add(1, "a");
    Add(2, "b");
    EXPECT_EQ(Notes(), "");
    transaction.Commit();
    EXPECT_EQ(Notes(), "a b");
}

TEST_P(DatabaseOf, RollsBackWhatIsNotCommitted)
{
    {
        const Transaction transaction(*database, Transaction::Purpose::Writing);
        Add(1, "a");
    }
    EXPECT_EQ(Notes(), "");
    Writing(*database, [&] { Add(2, "b"); });
    EXPECT_EQ(Notes(), "b");
}

TEST_P(DatabaseOf, RollsBackWhenAStatementFailsAndGoesOn)
{
    Add(1, "a");
    const std::string line = Failure([&] {
        Writing(*database, [&] {
            Add(2, "b");
            Add(1, "again");
        });
    });
    EXPECT_TRUE(line.starts_with(Address().toStdString() + ": ")) << line;
    EXPECT_EQ(Notes(), "a");
    Writing(*database, [&] { Add(3, "c"); });
    EXPECT_EQ(Notes(), "a c");
}

TEST_P(DatabaseOf, NullTextsAreEmptyOnes)
{
    Add(1, QString());
    EXPECT_EQ(database->Text("SELECT text FROM note WHERE text = ''"), "");
    EXPECT_EQ(database->Text("SELECT COUNT(*) FROM note WHERE text = ?", {QString()}), "1");
}

TEST_P(DatabaseOf, AReaderSeesOneStateThroughout)
{
    Add(1, "a");
    const Transaction reading(*database, Transaction::Purpose::Reading);
    EXPECT_EQ(database->Text("SELECT COUNT(*) FROM note"), "1");
    Raw().Run("INSERT INTO note (number, text) VALUES (2, 'b')");
    EXPECT_EQ(database->Text("SELECT COUNT(*) FROM note"), "1");
}

TEST_P(DatabaseOf, ReferencesAreKept)
{
    EXPECT_NE(Failure([&] { database->Run("INSERT INTO tag (id, key, name, category_id) VALUES (1, 'p', 'P', 9)"); }),
              "no failure");
}

TEST_P(DatabaseOf, AWriterThatWaitsTooLongIsToldThatItIsLocked)
{
    const auto project = Opened();
    const Transaction other(*database, Transaction::Purpose::Writing);
    EXPECT_EQ(Failure([&] { project->SetLanguage("de"); }),
              Address().toStdString() + " is locked by another program; try again");
    EXPECT_EQ(project->Language(), "en");
}

TEST_P(DatabaseOf, OpensAndIsReadWhileAnotherProgramWrites)
{
    const Transaction other(*database, Transaction::Purpose::Writing);
    EXPECT_EQ(Opened()->Language(), "en");
}

TEST(DatabaseFile, HeldByAnotherProgramDoesNotOpen)
{
    QTemporaryDir folder;
    const QString file = folder.filePath("plant.schedules");
    Project::Create(file);
    {
        auto holder = QSqlDatabase::addDatabase("QSQLITE", "holder");
        holder.setDatabaseName(file);
        ASSERT_TRUE(holder.open());
        for (const char* statement : {"PRAGMA locking_mode = EXCLUSIVE", "BEGIN EXCLUSIVE"})
            ASSERT_TRUE(QSqlQuery(holder).exec(QLatin1String(statement)));
        EXPECT_EQ(Failure([&] { Project::Open(file); }),
                  file.toStdString() + " is locked by another program; try again");
    }
    QSqlDatabase::removeDatabase("holder");
}

} // namespace schedules::host::testing
