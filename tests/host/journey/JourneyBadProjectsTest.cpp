// Projects that cannot be worked on: the program and its window tell why in one line, and leave everything as it was.

#include "JourneyFolder.h"
#include "OpenWindow.h"
#include "PumpProject.h"
#include "WindowClient.h"
#include "host/project/Database.h"
#include "host/tools/HostedSchedule.h"
#include "support/FileSizeLimit.h"
#include "support/ModalDialog.h"
#include "support/OrdinaryUser.h"

#include <QDir>
#include <QMessageBox>

#include <deque>

namespace schedules::host::testing {

using schedules::testing::BecomeOrdinaryUser;
using schedules::testing::FileSizeLimit;
using schedules::testing::kNobody;
using schedules::testing::OnceModal;

namespace {

QByteArray Content(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

void Write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
    EXPECT_EQ(file.write(content), content.size());
}

/// Lets everybody work in a folder on the files that are there, or nobody.
void Allow(const QString& folder, bool allowed)
{
    for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files))
        ::chmod(qPrintable(file.filePath()), allowed ? 0666 : 0444);
    ::chmod(qPrintable(folder), allowed ? 0777 : 0555);
}

/// Another program that has done something with a project and goes on with it as long as this lives. It has to be
/// another process: whoever looks at a file ends all locks that his own process has on it.
class Holder
{
public:
    Holder(const QString& path, const char* statements)
    {
        m_program.start("sqlite3", {path});
        m_program.write(statements + QByteArray(" SELECT 'done';\n"));
        QByteArray answer;
        while (!answer.endsWith("done\n") && m_program.waitForReadyRead())
            answer += m_program.readAll();
        EXPECT_TRUE(answer.endsWith("done\n")) << answer.constData() << m_program.readAllStandardError().constData();
    }
    ~Holder()
    {
        m_program.closeWriteChannel();
        EXPECT_TRUE(m_program.waitForFinished());
    }
    Q_DISABLE_COPY_MOVE(Holder)

private:
    QProcess m_program;
};

/// What has become of a project, and the line that tells it, with FILE in place of its path.
struct Harm
{
    const char* name;
    std::function<std::shared_ptr<Holder>(const QString& path)> come; ///< gives who is to be kept meanwhile
    const char* line;
};

void PrintTo(const Harm& harm, std::ostream* out)
{
    *out << harm.name;
}

std::shared_ptr<Holder> BecomeAnotherFile(const QString& path)
{
    Write(path, QByteArray(5000, 'x'));
    return {};
}

std::shared_ptr<Holder> ComeFromANewerProgram(const QString& path)
{
    Database{ProjectAddress(path)}.Run("UPDATE meta SET value = '1000' WHERE name = 'schema'");
    return {};
}

std::shared_ptr<Holder> BeCutOff(const QString& path)
{
    const QByteArray whole = Content(path);
    Write(path, whole.first(whole.size() / 2));
    return {};
}

std::shared_ptr<Holder> BeLocked(const QString& path)
{
    return std::make_shared<Holder>(path, "PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE;");
}

std::shared_ptr<Holder> BeReadOnly(const QString& path)
{
    Allow(QFileInfo(path).path(), false);
    return {};
}

const std::vector<Harm> kHarms{
    {"NoDatabase", BecomeAnotherFile, "FILE is no project of equipment schedules"},
    {"Newer", ComeFromANewerProgram, "FILE was made by a newer program"},
    {"CutOff", BeCutOff, "FILE is damaged"},
    {"Locked", BeLocked, "FILE is locked by another program; try again"},
    {"ReadOnly", BeReadOnly, "FILE cannot be changed: it is read-only"},
};

/// A project in a folder of its own, which everybody may change at first. Programs are those of an ordinary user.
class HarmedProject : public ::testing::TestWithParam<Harm>
{
protected:
    HarmedProject()
    {
        EXPECT_TRUE(QDir().mkpath(Folder()));
        FillWithPumps(*Project::Create(Address()));
        ::chown(qPrintable(files.Path("runtime")), kNobody, kNobody);
        Allow(files.Path("."), true);
        Allow(Folder(), true);
    }
    ~HarmedProject() override { Allow(Folder(), true); }

    QString Folder() const { return files.Path("plant"); }
    QString Address() const { return files.Path("plant/plant.schedules"); }

    QString Line() const { return QString(GetParam().line).replace("FILE", Address()); }

    /// Everything that a person can see of the folder.
    QByteArrayList Files() const
    {
        QByteArrayList contents;
        for (const QFileInfo& file : QDir(Folder()).entryInfoList(QDir::Files | QDir::Hidden, QDir::Name))
            contents << file.fileName().toUtf8() << Content(file.filePath());
        return contents;
    }

    UserFiles files;
};

using JourneyBadProjects = HarmedProject;

/// What a program is asked to do with a project.
QList<QStringList> Commands(const QString& project, const QString& table)
{
    return {{project},
            {"list", project},
            {"get", project, "P-1"},
            {"set", project, "P-1", "Flow", "1"},
            {"import", project, table},
            {"schedule", project, "--category", "PUMPS", "--csv", table + ".out"}};
}

} // namespace

INSTANTIATE_TEST_SUITE_P(On, JourneyBadProjects, ::testing::ValuesIn(kHarms),
                         [](const auto& harm) { return std::string(harm.param.name); });

TEST_P(JourneyBadProjects, AreToldByEachCommandInOneLineAndLeftAsTheyAre)
{
    const QString table = files.Path("tags.csv");
    Write(table, "tag,category\nP-3,PUMPS\n");
    const auto kept = GetParam().come(Address());
    const QByteArrayList before = Files();
    std::deque<QProcess> runs;
    for (const QStringList& command : Commands(Address(), table)) {
        QProcess& run = runs.emplace_back();
        run.setChildProcessModifier(BecomeOrdinaryUser);
        run.start(QStringLiteral(SCHEDULES_BIN_DIR "/schedhost"), command);
    }
    for (QProcess& run : runs) {
        SCOPED_TRACE(run.arguments().join(u' ').toStdString());
        EXPECT_TRUE(run.waitForFinished(120'000)) << qPrintable(run.errorString());
        EXPECT_EQ(run.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(run.exitCode(), 1);
        EXPECT_EQ(run.readAllStandardOutput().toStdString(), "");
        EXPECT_EQ(run.readAllStandardError().toStdString(), Line().toStdString() + '\n');
    }
    EXPECT_EQ(Files(), before);
}

TEST_P(JourneyBadProjects, AreToldInTheWindowAndTheFormerProjectStays)
{
    const QString other = files.Path("other.schedules");
    FillWithPumps(*Project::Create(other));
    Allow(files.Path("."), true);
    WindowClient client(files.Home("data"), BecomeOrdinaryUser);
    EXPECT_EQ(client.Done({"open", other}), "opened");
    EXPECT_EQ(client.Done({"pick", "P-1"}), "picked");
    const auto kept = GetParam().come(Address());
    const QByteArrayList before = Files();
    EXPECT_EQ(client.Done({"open file", Address()}), "done; box: " + Line().toStdString());
    EXPECT_EQ(Files(), before);
    EXPECT_EQ(client.Done({"edit", "P-1", "Flow", "21"}), "edited");
    EXPECT_EQ(client.Done({"save"}), "1 value saved");
    EXPECT_EQ(Stored(*Project::Open(other), "P-1", kFlow), "21 v2");
}

namespace {

/// Nothing can be stored any more when somebody has edited a value.
class JourneySaving : public JourneyFolder
{
protected:
    JourneySaving()
    {
        FillWithPumps(*Project::Create(Address()));
        open.emplace(Address());
        open->User().Pick({"P-1", "P-2"});
        open->User().Edit("P-1", "Flow", "21");
    }

    QString Address() const { return files.Path("plant.schedules"); }
    std::string Stored() const { return testing::Stored(*Project::Open(Address()), "P-1", kFlow); }

    /// Somebody who wants to save gets a box with a line, which the window goes on to tell; his value stays unsaved.
    void ExpectRefusal(const std::string& line)
    {
        QString told;
        OnceModal<QMessageBox>([&](QMessageBox& box) {
            told = box.text();
            Click(*box.button(QMessageBox::Ok));
        });
        open->User().Save();
        EXPECT_EQ(told.replace(Address(), "FILE").toStdString(), line);
        EXPECT_EQ(QString::fromStdString(open->User().Told()).replace(Address(), "FILE").toStdString(), line);
        EXPECT_EQ(open->User().Status(), "");
        EXPECT_TRUE(open->Window().View()->Dirty());
        EXPECT_EQ(open->User().Grid().Text("P-1", "Flow"), "21");
    }

    void ExpectSaves()
    {
        open->User().Save();
        EXPECT_EQ(open->User().Status(), "1 value saved");
        EXPECT_EQ(open->User().Told(), "");
        EXPECT_EQ(Stored(), "21 v2");
    }

    std::optional<OpenWindow> open;
};

} // namespace

TEST_F(JourneySaving, OnAFullDiskIsToldAndGoesOnWhenThereIsRoom)
{
    {
        const FileSizeLimit full(0);
        ExpectRefusal("FILE cannot be read or written: disk I/O error");
    }
    EXPECT_EQ(Stored(), "12 v1");
    ExpectSaves();
}

TEST_F(JourneySaving, WhileAnotherProgramWritesIsToldAndGoesOnWhenItHasDone)
{
    {
        const Holder other(Address(), "BEGIN IMMEDIATE;");
        ExpectRefusal("FILE is locked by another program; try again");
    }
    EXPECT_EQ(Stored(), "12 v1");
    ExpectSaves();
}

TEST_F(JourneySaving, OnAFullDiskIsToldByEachCommandInOneLineAndNothingIsChanged)
{
    open.reset();
    const QString table = Path("tags.csv");
    Write(table, "tag,category\nP-3,PUMPS\n");
    const QByteArray before = Content(Address());
    for (const QStringList& command : Commands(Address(), table)) {
        SCOPED_TRACE(command.join(u' ').toStdString());
        const FileSizeLimit full(1000);
        const Outcome run = Schedhost(command);
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err.toStdString(), Address().toStdString() + " cannot be written: the disk is full\n");
        EXPECT_EQ(Content(Address()), before);
    }
    EXPECT_EQ(Stored(), "12 v1");
}

} // namespace schedules::host::testing
