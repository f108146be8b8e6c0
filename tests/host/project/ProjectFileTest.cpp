#include "host/project/ProjectFile.h"

#include "StoredProject.h"
#include "support/FileSizeLimit.h"
#include "support/OrdinaryUser.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

#include <sys/stat.h>

namespace schedules::host::testing {

using schedules::testing::FileSizeLimit;
using schedules::testing::OrdinaryUser;

namespace {

class ProjectFile : public ::testing::Test
{
protected:
    QString Path(const QString& name = "plant.schedules") const { return m_folder.filePath(name); }

    QString Written(const QString& name, const QByteArray& content) const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(content), content.size());
        return file.fileName();
    }

    static QByteArray Content(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QStringList Files() const { return QDir(m_folder.path()).entryList(QDir::Files, QDir::Name); }

    /// A small plant whose file is complete in itself, as after the last program has closed it.
    QString Plant() const
    {
        Project::Create(Path())->Put(SmallPlant());
        EXPECT_EQ(Files(), QStringList{"plant.schedules"});
        return Path();
    }

    /// The line that opening fails with, less the path it ends or begins with. Nothing must be changed.
    std::string Refusal(const QString& path) const
    {
        const QByteArray before = Content(path);
        const QStringList files = Files();
        const std::string line = Failure([&] { Project::Open(path); });
        EXPECT_EQ(Content(path), before);
        EXPECT_EQ(Files(), files);
        return QString::fromStdString(line).replace(path, "FILE").toStdString();
    }

    QTemporaryDir m_folder;
};

constexpr const char* kNoProject = "FILE is no project of equipment schedules";

} // namespace

TEST_F(ProjectFile, ThatIsNotThereIsNotMade)
{
    EXPECT_EQ(Failure([&] { Project::Open(Path()); }), "there is no project " + Path().toStdString());
    EXPECT_EQ(Files(), QStringList());
}

TEST_F(ProjectFile, MayHaveAnyName)
{
    for (const char* name : {"насос 水 😀.schedules", "a?b#c%41&mode=ro.x", " of blanks ", "'quoted\".db"}) {
        Project::Create(Path(name))->Put(SmallPlant());
        EXPECT_EQ(Shown(*Project::Open(Path(name))), kSmallPlantValues) << name;
    }
    EXPECT_EQ(Files().size(), 4);
}

TEST_F(ProjectFile, ThatIsNoDatabaseIsRefused)
{
    EXPECT_EQ(Refusal(Written("empty", "")), kNoProject);
    EXPECT_EQ(Refusal(Written("short", "x")), kNoProject);
    EXPECT_EQ(Refusal(Written("text", QByteArray(5000, 'x'))), kNoProject);
    EXPECT_EQ(Refusal(Written("xml", "<Template/>")), kNoProject);
}

TEST_F(ProjectFile, AFolderIsRefused)
{
    EXPECT_EQ(Failure([&] { Project::Open(m_folder.path()); }),
              m_folder.path().toStdString() + " is no project of equipment schedules");
}

TEST_F(ProjectFile, OfAnotherProgramIsRefusedAndLeftAsItIs)
{
    Written("other", "");
    {
        Database other{ProjectAddress(Path("other"))};
        other.Run("PRAGMA journal_mode = WAL");
        other.Run("CREATE TABLE meta (name TEXT, value TEXT)");
        EXPECT_EQ(Failure([&] { Project::Open(Path("other")); }),
                  Path("other").toStdString() + " is no project of equipment schedules");
    }
    EXPECT_EQ(Refusal(Path("other")), kNoProject);
}

TEST_F(ProjectFile, ThatIsCutOffAnywhereIsRefused)
{
    const QByteArray whole = Content(Plant());
    for (qsizetype size = 1; size < whole.size(); size += 1021) {
        const std::string line = Refusal(Written("cut", whole.first(size)));
        EXPECT_TRUE(line == "FILE is damaged" || line == kNoProject) << size << ": " << line;
    }
    EXPECT_EQ(Refusal(Written("cut", whole.chopped(1))), "FILE is damaged");
}

TEST_F(ProjectFile, OfWhichAnyPageIsOverwrittenIsDamaged)
{
    constexpr qsizetype kPage = 4096;
    const QByteArray whole = Content(Plant());
    for (qsizetype page = kPage; page < whole.size(); page += kPage) {
        QByteArray content = whole;
        content.replace(page, kPage, QByteArray(kPage, 'x'));
        EXPECT_EQ(Refusal(Written("bad", content)), "FILE is damaged") << page;
    }
}

TEST_F(ProjectFile, ThatIsReadOnlyIsRefused)
{
    const QString path = Plant();
    ::chmod(qPrintable(m_folder.path()), 0555);
    ::chmod(qPrintable(path), 0444);
    {
        const OrdinaryUser user;
        EXPECT_EQ(Refusal(path), "FILE cannot be changed: it is read-only");
    }
    ::chmod(qPrintable(m_folder.path()), 0755);
}

TEST_F(ProjectFile, ThatMayNotBeReadIsRefused)
{
    const QString path = Plant();
    ::chmod(qPrintable(m_folder.path()), 0755);
    ::chmod(qPrintable(path), 0);
    const OrdinaryUser user;
    EXPECT_EQ(Failure([&] { Project::Open(path); }),
              path.toStdString() + " cannot be opened, or no files can be made beside it");
}

TEST_F(ProjectFile, OnAFullDiskKeepsWhatWasSavedAndGoesOnLater)
{
    const auto project = Project::Open(Plant());
    const QString big(2'000'000, 'x');
    {
        const FileSizeLimit full(200'000);
        EXPECT_TRUE(Failure([&] {
                        project->Save({{"P-1", "Design/Flow", "13", 1}, {"P-2", "Design/Flow", big, 1}});
                    }).starts_with(Path().toStdString() + " cannot be "));
        EXPECT_EQ(Shown(*project), kSmallPlantValues);
    }
    EXPECT_EQ(Shown(*Project::Open(Path())), kSmallPlantValues);
    EXPECT_EQ(Drawn(project->Save({{"P-1", "Design/Flow", "13", 1}, {"P-2", "Design/Flow", big, 1}})), "2 stored");
}

TEST_F(ProjectFile, ThatCannotBeMadeLeavesNothing)
{
    EXPECT_TRUE(Failure([&] { Project::Create(Path("absent/plant.schedules")); }).starts_with("cannot make "));
    {
        const FileSizeLimit full(0);
        EXPECT_TRUE(Failure([&] { Project::Create(Path()); }).starts_with(Path().toStdString() + " cannot be "));
    }
    EXPECT_EQ(Files(), QStringList());
}

TEST_F(ProjectFile, IsNotMadeInPlaceOfAnyOtherFile)
{
    const QString path = Written("notes.txt", "mine");
    EXPECT_EQ(Failure([&] { Project::Create(path); }), "there is a file " + path.toStdString() + " already");
    EXPECT_EQ(Content(path), "mine");
}

TEST_F(ProjectFile, BearsTheMarkOfProjectsFromTheStart)
{
    const auto project = Project::Create(Path());
    EXPECT_EQ(Content(Path()).mid(68, 4), "EQSH");
}

TEST_F(ProjectFile, LookingAtAFileDoesNotEndTheLocksOfThisProgram)
{
    const auto project = Project::Open(Plant());
    project->SetLanguage("de");
    EXPECT_TRUE(NamesProject(Path()));
    Project::Open(Path());
    // Another program that closes the file last takes its journal away; it must see that this one is still there.
    EXPECT_EQ(std::system(qPrintable("sqlite3 '" + Path() + "' 'SELECT name FROM meta' >/dev/null")), 0);
    EXPECT_TRUE(Files().contains("plant.schedules-wal"));
    project->SetLanguage("fr");
    EXPECT_EQ(Project::Open(Path())->Language(), "fr");
}

TEST_F(ProjectFile, KeepsItsNameWhilePartOfItLiesBesideIt)
{
    {
        const auto open = Project::Open(Plant());
        open->SetLanguage("de");
        EXPECT_EQ(Failure([&] { RenameProjectFile(Path(), Path("other.schedules")); }),
                  "cannot make " + Path("other.schedules").toStdString());
    }
    RenameProjectFile(Path(), Path("other.schedules"));
    EXPECT_EQ(Files(), QStringList{"other.schedules"});
    EXPECT_EQ(Project::Open(Path("other.schedules"))->Language(), "de");
}

TEST_F(ProjectFile, GoesWithAllThatLiesBesideIt)
{
    const QString path = Plant();
    for (const char* ending : {"-journal", "-wal", "-shm"})
        Written("plant.schedules" + QString(ending), "left");
    Written("other.schedules", "mine");
    RemoveProjectFile(path);
    EXPECT_EQ(Files(), QStringList{"other.schedules"});
}

TEST_F(ProjectFile, WhatWasSavedIsWrittenToTheDiskBeforeTheCallReturns)
{
    Database database{ProjectAddress(Plant())};
    EXPECT_EQ(database.Text("PRAGMA journal_mode"), "wal");
    EXPECT_EQ(database.Text("PRAGMA synchronous"), "2");
    EXPECT_EQ(database.Text("PRAGMA foreign_keys"), "1");
}

} // namespace schedules::host::testing
