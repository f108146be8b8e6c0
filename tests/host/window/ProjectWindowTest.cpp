// Working on a project in its window.

#include "ShownProject.h"
#include "support/ModalDialog.h"

#include <QComboBox>
#include <QMessageBox>
#include <QTextBrowser>

namespace schedules::host::testing {

using schedules::testing::OnceModal;

namespace {

struct ProjectWindowTest : ShownProject
{
};

} // namespace

TEST_F(ProjectWindowTest, ListsCategoriesWithTheirTagsAndTemplates)
{
    EXPECT_EQ(Categories(), "Pumps (2)\n  Both *\n  Flow\nFans (1)");
    EXPECT_EQ(window->windowTitle(), "small.schedules - Equipment Schedules");
}

TEST_F(ProjectWindowTest, ShowsTheTagsOfTheFirstCategoryToPickFrom)
{
    ASSERT_TRUE(ShowsSelector());
    EXPECT_EQ(Shown(), "No. | 1 | 2\nTag | P-1 | P-2\nSelect | 0 | 0\nFlow (m³/h) | 12 | 13\nHead (m) | 48 | 49");
}

TEST_F(ProjectWindowTest, ContinueShowsTheScheduleOfThePickedTags)
{
    Pick({"P-2"});
    EXPECT_FALSE(ShowsSelector());
    EXPECT_EQ(Shown(), " | P-2\nFlow | 13\nHead | 49");
}

TEST_F(ProjectWindowTest, ACategoryChosenAtTheLeftShowsItsTags)
{
    Choose(1);
    EXPECT_EQ(Shown(), "No. | 1\nTag | F-1\nSelect | 0");
}

TEST_F(ProjectWindowTest, ACategoryWithoutATemplateSaysSoWhenItsScheduleIsWanted)
{
    Choose(1);
    Pick({"F-1"});
    EXPECT_EQ(Told(), "the category FANS has no template");
}

TEST_F(ProjectWindowTest, ATemplateChosenAtTheLeftShowsItsSchedule)
{
    Pick({"P-1"});
    Choose(0, 1);
    EXPECT_EQ(Shown(), " | P-1\nFlow | 12");
    EXPECT_EQ(Categories(), "Pumps (2)\n  Both\n  Flow *\nFans (1)");
    EXPECT_EQ(project->CurrentTemplate("PUMPS"), "Flow.xml");
}

TEST_F(ProjectWindowTest, SaveStoresTheEditedValuesAndSaysHowMany)
{
    Pick({"P-1", "P-2"});
    Edit(1, 1, "12.5");
    Edit(2, 2, "50");
    PressSave();
    EXPECT_EQ(Stored("P-1", kFlow), "12.5 v2");
    EXPECT_EQ(Stored("P-2", kHead), "50 v2");
    EXPECT_EQ(Status(), "2 values saved");
    EXPECT_FALSE(View().Dirty());
}

TEST_F(ProjectWindowTest, WhatIsEditedAfterSavingIsStoredAsWell)
{
    Pick({"P-1"});
    Edit(1, 1, "12.5");
    PressSave();
    Edit(1, 1, "12.6");
    PressSave();
    EXPECT_EQ(Stored("P-1", kFlow), "12.6 v3");
    EXPECT_EQ(Status(), "1 value saved");
    EXPECT_EQ(conflicts.size(), 0);
}

TEST_F(ProjectWindowTest, AValueStoredElsewhereIsAskedAboutAndShown)
{
    Pick({"P-1", "P-2"});
    StoredElsewhere("P-1", kFlow, "99");
    Edit(1, 1, "12.5");
    Edit(2, 1, "13.5");
    PressSave();
    QCoreApplication::processEvents();
    ASSERT_EQ(conflicts.size(), 1);
    EXPECT_EQ(Stored("P-1", kFlow), "99 v2");
    EXPECT_EQ(Stored("P-2", kFlow), "13.5 v2");
    EXPECT_EQ(TextAt(1, 1), "99");
    EXPECT_EQ(TextAt(2, 1), "13.5");
    EXPECT_FALSE(View().Dirty());
}

TEST_F(ProjectWindowTest, AUserWhoInsistsHasHisValueStored)
{
    Pick({"P-1"});
    StoredElsewhere("P-1", kFlow, "99");
    Edit(1, 1, "12.5");
    insists = true;
    PressSave();
    EXPECT_EQ(Stored("P-1", kFlow), "12.5 v3");
    EXPECT_EQ(TextAt(1, 1), "12.5");
}

TEST_F(ProjectWindowTest, AUserWhoCannotDecideKeepsHisValuesUnsaved)
{
    Pick({"P-1"});
    StoredElsewhere("P-1", kFlow, "99");
    Edit(1, 1, "12.5");
    Edit(1, 2, "50");
    decides = false;
    Trigger("btnSaveTag");
    EXPECT_EQ(Stored("P-1", kFlow), "99 v2");
    EXPECT_EQ(Stored("P-1", kHead), "50 v2") << "the others are saved";
    EXPECT_EQ(TextAt(1, 1), "12.5");
    EXPECT_TRUE(View().Dirty());
    EXPECT_EQ(Told(), "1 value changed by someone else was not saved.");

    decides = insists = true;
    Trigger("btnSaveTag");
    EXPECT_EQ(Stored("P-1", kFlow), "12.5 v3");
    EXPECT_FALSE(View().Dirty());
    EXPECT_EQ(Told(), "");
}

/// A save brings the versions of all values; whoever edits on top of them must have seen them.
TEST_F(ProjectWindowTest, ASaveShowsWhatOthersHaveStoredInFurtherCells)
{
    Pick({"P-1", "P-2"});
    StoredElsewhere("P-2", kHead, "77");
    Edit(1, 1, "12.5");
    PressSave();
    QCoreApplication::processEvents();
    EXPECT_EQ(TextAt(2, 2), "77");
    EXPECT_EQ(Told(), "1 value was changed by someone else and is shown now.");
    EXPECT_EQ(conflicts.size(), 0);
}

TEST_F(ProjectWindowTest, ComingBackToTheWindowShowsWhatOthersHaveStored)
{
    Pick({"P-1"});
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    QCoreApplication::processEvents();
    StoredElsewhere("P-1", kFlow, "99");
    QApplication::setActiveWindow(window.get());
    QCoreApplication::processEvents();
    EXPECT_EQ(TextAt(1, 1), "99");
    EXPECT_EQ(Told(), "1 value was changed by someone else and is shown now.");
}

TEST_F(ProjectWindowTest, ComingBackToTheWindowLeavesUnsavedValuesAlone)
{
    Pick({"P-1"});
    Edit(1, 2, "50");
    StoredElsewhere("P-1", kFlow, "99");
    QApplication::setActiveWindow(nullptr);
    QCoreApplication::processEvents();
    QApplication::setActiveWindow(window.get());
    QCoreApplication::processEvents();
    EXPECT_EQ(TextAt(1, 1), "12");
    EXPECT_EQ(TextAt(1, 2), "50");
}

TEST_F(ProjectWindowTest, ACategoryThatCannotBeShownLeavesTheFormerOne)
{
    Pick({"P-1"});
    project->MergeTemplates(
        {}, {{.name = "Broken", .fileName = "Broken.xml", .category = "FANS", .defaultForCategory = true}},
        {{"Broken.xml", "<Template"}});
    Choose(1);
    EXPECT_NE(Told(), "");
    EXPECT_FALSE(ShowsSelector());
    Edit(1, 1, "12.5");
    PressSave();
    EXPECT_EQ(Stored("P-1", kFlow), "12.5 v2");
    EXPECT_FALSE(View().Dirty());
}

TEST_F(ProjectWindowTest, RefreshShowsWhatOthersHaveStored)
{
    Pick({"P-1"});
    StoredElsewhere("P-1", kFlow, "99");
    EXPECT_EQ(TextAt(1, 1), "12");
    Menu(QStringLiteral("Re&fresh"))->trigger();
    EXPECT_EQ(TextAt(1, 1), "99");
}

TEST_F(ProjectWindowTest, CloseGoesBackToPicking)
{
    Pick({"P-1"});
    Press(View().Widget(), "cmdCancel");
    EXPECT_TRUE(ShowsSelector());
}

TEST_F(ProjectWindowTest, CancelWhilePickingClosesTheView)
{
    Press(View().Widget(), "cmdCancel");
    EXPECT_EQ(window->View(), nullptr);
    EXPECT_TRUE(window->isVisible());
    Choose(0);
    EXPECT_TRUE(ShowsSelector());
}

TEST_F(ProjectWindowTest, PrintWhilePickingPrintsTheSchedule)
{
    bool previewed = false;
    OnceModal<QDialog>([&](QDialog& dialog) {
        previewed = true;
        dialog.reject();
    });
    View().Tick("P-1");
    Trigger("btnPrint");
    EXPECT_TRUE(QTest::qWaitFor([&] { return previewed; }));
    EXPECT_FALSE(ShowsSelector());
}

TEST_F(ProjectWindowTest, HelpOpensThePageOfTheView)
{
    Trigger("btnHelp");
    const auto* page = window->findChild<QTextBrowser*>(QStringLiteral("helpPage"));
    ASSERT_TRUE(page && page->isVisible());
    EXPECT_TRUE(page->toPlainText().startsWith("Picking tags")) << page->toPlainText().left(60).toStdString();
    Pick({"P-1"});
    Trigger("btnHelp");
    EXPECT_TRUE(page->toPlainText().startsWith("The schedule")) << page->toPlainText().left(60).toStdString();
}

TEST_F(ProjectWindowTest, ErrorsAreToldInABarAndNoBox)
{
    Message error{.name = QStringLiteral("ErrorMessage")};
    error.parameters.Add(ParameterType::Text, QStringLiteral("ErrorDescription"), QStringLiteral("it broke"));
    session.Router().Send({"ctlSchedule", "Framework", MessageKind::Event, error.Text()});
    EXPECT_EQ(Told(), "it broke");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    Press(*window, "cmdCloseMessage");
    EXPECT_EQ(Told(), "");
}

TEST_F(ProjectWindowTest, ASaveThatFailsIsToldAndTheValuesStayUnsaved)
{
    Pick({"P-1"});
    Edit(1, 1, "12.5");
    project->Put({.items = {{kFlow, "Flow", "Design", "DOUBLE", "m³/h", false}}}); // by now nobody may edit it
    Trigger("btnSaveTag");
    EXPECT_NE(Told(), "");
    EXPECT_TRUE(View().Dirty());
    EXPECT_EQ(TextAt(1, 1), "12.5");
    EXPECT_EQ(Stored("P-1", kFlow), "12 v1");
}

TEST_F(ProjectWindowTest, UnsavedValuesAreAskedAboutBeforeSomethingElseIsShown)
{
    Pick({"P-1"});
    Edit(1, 1, "12.5");
    unsaved = {UnsavedValues::Keep, UnsavedValues::Keep, UnsavedValues::Keep, UnsavedValues::Keep};
    Choose(1);
    Choose(0, 1);
    Menu(QStringLiteral("Re&fresh"))->trigger();
    EXPECT_FALSE(window->Open(Address()));
    EXPECT_EQ(asked.size(), 4);
    EXPECT_TRUE(View().Dirty());
    EXPECT_EQ(Shown(), " | P-1\nFlow | 12.5\nHead | 48");
    unsaved = {UnsavedValues::Discard};
    Choose(1);
    EXPECT_TRUE(ShowsSelector());
    EXPECT_EQ(Stored("P-1", kFlow), "12 v1");
}

TEST_F(ProjectWindowTest, TheLanguageIsSwitchedAtRunTimeAndRemembered)
{
    Pick({"P-1"});
    Menu(QStringLiteral("Deutsch"))->trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(Shown(), " | P-1\nFlow | 12\nHead | 48");
    auto* close = View().Widget().findChild<QPushButton*>(QStringLiteral("cmdCancel"));
    EXPECT_EQ(close->text().remove(u'&'), "Schließen");
    EXPECT_EQ(project->Language(), "de");
    Start();
    EXPECT_EQ(window->windowTitle(), "small.schedules - Anlagenlisten");
    EXPECT_TRUE(Menu(QStringLiteral("Deutsch"))->isChecked());
    Menu(QStringLiteral("English"))->trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(project->Language(), "en");
}

TEST_F(ProjectWindowTest, ColoursAreSwitchedAtRunTime)
{
    Menu(QStringLiteral("Dark"))->trigger();
    QCoreApplication::processEvents();
    EXPECT_LT(window->palette().color(QPalette::Window).lightness(), 100);
    Menu(QStringLiteral("Light"))->trigger();
    QCoreApplication::processEvents();
    EXPECT_GT(window->palette().color(QPalette::Window).lightness(), 200);
}

TEST_F(ProjectWindowTest, ProjectsAreListedLatestFirst)
{
    const QString second = Path("second.schedules");
    Project::Create(second);
    ASSERT_TRUE(window->Open(second));
    Start();
    QStringList recent;
    for (const QAction* action : Menu(QStringLiteral("&Recent Projects"))->menu()->actions())
        recent << action->text();
    EXPECT_EQ(recent, (QStringList{Address(), second}));
}

TEST_F(ProjectWindowTest, TheLayoutIsRemembered)
{
    window->resize(900, 700);
    window->findChild<QDockWidget*>(QStringLiteral("dockMessages"))->hide();
    window->close();
    Start();
    EXPECT_EQ(window->size(), QSize(900, 700));
    EXPECT_FALSE(window->findChild<QDockWidget*>(QStringLiteral("dockMessages"))->isVisible());
}

TEST_F(ProjectWindowTest, AProjectThatCannotBeOpenedIsToldAndTheOtherStays)
{
    WriteXmlFile(Path("no.schedules"), "no database");
    QString told;
    OnceModal<QMessageBox>([&](QMessageBox& box) {
        told = box.text();
        box.accept();
    });
    EXPECT_FALSE(window->Open(Path("no.schedules")));
    EXPECT_TRUE(told.contains("no.schedules")) << told.toStdString();
    EXPECT_EQ(Categories(), "Pumps (2)\n  Both *\n  Flow\nFans (1)");
    EXPECT_TRUE(ShowsSelector());
}

TEST_F(ProjectWindowTest, TemplatesThatWereNeverListedAreOffered)
{
    const QString folder = OwnTemplateFolder(*project);
    WriteXmlFile(QDir(folder).filePath("Lost.xml"), TemplateWith("Lost", {kHead}));
    Start();
    EXPECT_EQ(Told(), "Templates that are in no list were found: Lost.xml");
    Press(*window, "cmdOffer");
    EXPECT_EQ(Categories(), "Pumps (2)\n  Both *\n  Flow\n  Lost\nFans (1)");
    EXPECT_EQ(Told(), "");
}

TEST_F(ProjectWindowTest, MessagesAreFilteredByKind)
{
    Pick({"P-1"});
    auto* list = window->findChild<QTreeView*>(QStringLiteral("lstMessages"));
    auto* kinds = window->findChild<QComboBox*>(QStringLiteral("cboMessageKinds"));
    const auto shown = [&] {
        QStringList names;
        for (int row = 0; row < list->model()->rowCount(); ++row)
            names << list->model()->index(row, 3).data().toString();
        return names;
    };
    kinds->setCurrentText("Events");
    EXPECT_EQ(shown(), QStringList{"ContinueButton"});
    kinds->setCurrentText("Requests");
    EXPECT_EQ(shown(), (QStringList{"GetResourceModule", "InitializeSchedule", "InitializeSchedule"}));
    kinds->setCurrentText("Errors");
    EXPECT_EQ(shown(), QStringList());
}

} // namespace schedules::host::testing
