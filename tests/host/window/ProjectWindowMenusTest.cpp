// What the menus of a project's window ask for, and do with the answer.

#include "ShownProject.h"
#include "framework/IComponentFactory.h"
#include "support/ModalDialog.h"

#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>

namespace schedules::host::testing {

using schedules::testing::OnceModal;

namespace {

const std::string kSmallProject = "Pumps (2)\n  Both *\n  Flow\nFans (1)";

struct ProjectWindowMenus : ShownProject
{
    /// Chooses from a menu and answers the dialog for a file.
    void ChooseFile(const char* entry, const QString& fileName)
    {
        OnceModal<QFileDialog>([fileName](QFileDialog& dialog) {
            auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            name->setText(fileName);
            QTest::keyClick(name, Qt::Key_Return);
        });
        Trigger(entry);
    }

    template <class Dialog>
    void ChooseAndRefuse(const char* entry)
    {
        bool refused = false;
        OnceModal<Dialog>([&](Dialog& dialog) {
            refused = true;
            dialog.reject();
        });
        Trigger(entry);
        EXPECT_TRUE(refused) << entry;
    }

    void Trigger(const char* entry)
    {
        Menu(QLatin1String(entry))->trigger();
        QCoreApplication::processEvents();
    }

    /// Takes the next warning, which follows a file dialog that is still closing.
    void ExpectWarning()
    {
        OnceModal<QMessageBox>([this](QMessageBox& box) {
            warned = box.text();
            box.accept();
        });
    }

    QString Written(const QString& name, const QByteArray& content) const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QFile::WriteOnly) && file.write(content) == content.size());
        return file.fileName();
    }

    QByteArray Content(const QString& fileName) const
    {
        QFile file(fileName);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    QString Title() const { return window->windowTitle().section(QStringLiteral(" - "), 0, 0); }

    QString warned;
};

} // namespace

TEST_F(ProjectWindowMenus, ANewProjectGetsTheEndOfItsNameAndIsShown)
{
    ChooseFile("&New Project...", Path("plant"));
    EXPECT_TRUE(QFile::exists(Path("plant.schedules")));
    EXPECT_EQ(Title(), "plant.schedules");
    EXPECT_TRUE(Categories().find("\nPumps (0)\n  PumpSchedule *\n") != std::string::npos) << Categories();
    EXPECT_TRUE(Categories().find("  Both *") == std::string::npos) << Categories();
}

TEST_F(ProjectWindowMenus, ANewProjectTakesNoOtherOnesPlace)
{
    const QByteArray before = Content(Address());
    ExpectWarning();
    ChooseFile("&New Project...", Address());
    EXPECT_TRUE(warned.contains("small.schedules")) << warned.toStdString();
    EXPECT_EQ(Content(Address()), before);
    EXPECT_EQ(Categories(), kSmallProject);
}

TEST_F(ProjectWindowMenus, ANewProjectIsAskedForUnsavedValuesFirst)
{
    Pick({"P-1"});
    Edit(1, 1, "12.5");
    unsaved = {UnsavedValues::Keep};
    ChooseFile("&New Project...", Path("plant"));
    EXPECT_EQ(asked.size(), 1);
    EXPECT_FALSE(QFile::exists(Path("plant.schedules")));
    EXPECT_EQ(TextAt(1, 1), "12.5");
    EXPECT_EQ(Title(), "small.schedules");
    unsaved = {UnsavedValues::Discard};
    window->close();
}

TEST_F(ProjectWindowMenus, AnotherProjectIsOpened)
{
    Project::Create(Path("other.schedules"))->Put({.categories = {{"VALVES", "Valves", "V"}}});
    ChooseFile("&Open Project...", Path("other.schedules"));
    EXPECT_EQ(Title(), "other.schedules");
    EXPECT_EQ(Categories(), "Valves (0)");
}

TEST_F(ProjectWindowMenus, AFileThatIsNoProjectIsToldAndTheProjectStays)
{
    const QString file = Written("notes.schedules", "notes");
    ExpectWarning();
    ChooseFile("&Open Project...", file);
    EXPECT_TRUE(warned.contains("notes.schedules")) << warned.toStdString();
    EXPECT_EQ(Content(file), "notes");
    EXPECT_EQ(Categories(), kSmallProject);
}

TEST_F(ProjectWindowMenus, AnImportedTableIsShownAndItsNumbersAreTold)
{
    const QString table = Written("tags.csv", "tag,category,PUMPS/Design/Flow\nP-2,PUMPS,99\nP-3,PUMPS,7\n");
    ChooseFile("&Import Table...", table);
    EXPECT_EQ(Status(), "Imported 2 tags and 2 values");
    EXPECT_EQ(Categories(), "Pumps (3)\n  Both *\n  Flow\nFans (1)");
    EXPECT_EQ(Shown(), "No. | 1 | 2 | 3\nTag | P-1 | P-2 | P-3\nSelect | 0 | 0 | 0\nFlow (m³/h) | 12 | 99 | 7\n"
                       "Head (m) | 48 | 49 | ");
}

TEST_F(ProjectWindowMenus, ATableWithAnErrorIsToldAndNothingIsImported)
{
    const QString table = Written("tags.csv", "tag,category,PUMPS/Design/Flow\nP-2,PUMPS,99\nP-3,NONE,7\n");
    ExpectWarning();
    ChooseFile("&Import Table...", table);
    EXPECT_TRUE(warned.contains("tags.csv")) << warned.toStdString();
    EXPECT_EQ(Stored("P-2", kFlow), "13 v1");
    EXPECT_EQ(Categories(), kSmallProject);
}

TEST_F(ProjectWindowMenus, NoImportComesOverUnsavedValues)
{
    Pick({"P-1"});
    Edit(1, 1, "12.5");
    unsaved = {UnsavedValues::Keep};
    ChooseFile("&Import Table...", Written("tags.csv", "tag,category,PUMPS/Design/Flow\nP-1,PUMPS,99\n"));
    EXPECT_EQ(Stored("P-1", kFlow), "12 v1");
    EXPECT_EQ(TextAt(1, 1), "12.5");
    unsaved = {UnsavedValues::Discard};
    window->close();
}

TEST_F(ProjectWindowMenus, ADialogThatIsRefusedChangesNothing)
{
    for (const char* entry : {"&New Project...", "&Open Project...", "&Import Table..."})
        ChooseAndRefuse<QFileDialog>(entry);
    ChooseAndRefuse<QInputDialog>("Open from &Server...");
    EXPECT_EQ(Title(), "small.schedules");
    EXPECT_EQ(Categories(), kSmallProject);
    EXPECT_EQ(warned, "");
}

TEST_F(ProjectWindowMenus, AServerThatCannotBeReachedIsToldAndTheProjectStays)
{
    OnceModal<QInputDialog>([this](QInputDialog& dialog) {
        dialog.setTextValue("postgresql://nobody@127.0.0.1:1/plant");
        ExpectWarning();
        dialog.accept();
    });
    Trigger("Open from &Server...");
    EXPECT_TRUE(warned.contains("127.0.0.1")) << warned.toStdString();
    EXPECT_EQ(Categories(), kSmallProject);
}

TEST_F(ProjectWindowMenus, AProjectOfBeforeIsOpenedAgain)
{
    Project::Create(Path("other.schedules"))->Put({.categories = {{"VALVES", "Valves", "V"}}});
    ASSERT_TRUE(window->Open(Path("other.schedules")));
    Trigger(Address().toUtf8().constData());
    QCoreApplication::processEvents();
    EXPECT_EQ(Title(), "small.schedules");
    EXPECT_EQ(Categories(), kSmallProject);
}

TEST_F(ProjectWindowMenus, AboutTellsTheComponentsVersion)
{
    QString told;
    OnceModal<QMessageBox>([&](QMessageBox& box) {
        told = box.text();
        box.accept();
    });
    Trigger("&About");
    EXPECT_TRUE(told.contains(ComponentFactory().Version())) << told.toStdString();
}

} // namespace schedules::host::testing
