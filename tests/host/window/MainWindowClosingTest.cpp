// Closing the window, and what happens to edited values when something else is to be shown.

#include "ShownWindow.h"
#include "framework/IToolUI.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

namespace schedules::host::testing {

namespace {

class MainWindowClosing : public ShownWindow
{
protected:
    void OpenEdited()
    {
        Open(kPumps);
        Edit(1, 1, "12.5");
    }

    bool Closes()
    {
        window.close();
        QCoreApplication::processEvents(); // in which a view that is unloaded takes the window with it
        return !window.isVisible();
    }

    bool Saved() const { return Content("pumps.xml") != kPumps; }
};

using MainWindowReplacing = MainWindowClosing;

} // namespace

TEST_F(MainWindowClosing, PressesTheLastButtonOfTheViewAndWaitsForItsMessage)
{
    Open(kPumps);
    window.close();
    EXPECT_EQ(Logged(), QStringList{"UnloadSchedule"});
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window.isVisible(); }));
    EXPECT_EQ(Logged(), QStringList{"UnloadSchedule"}) << "once";
}

TEST_F(MainWindowClosing, QuitDoesTheSame)
{
    Open(kPumps);
    Menu(QStringLiteral("&Quit"))->trigger();
    EXPECT_EQ(Logged(), QStringList{"UnloadSchedule"});
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window.isVisible(); }));
}

TEST_F(MainWindowClosing, CancelKeepsTheWindowAndTheEdits)
{
    OpenEdited();
    user.answers = {Answer::Cancel};
    EXPECT_FALSE(Closes());
    ASSERT_EQ(user.boxes.size(), 1U);
    EXPECT_EQ(user.boxes[0].text, QStringLiteral("Save Tag data?"));
    EXPECT_EQ(Logged(), QStringList());
    EXPECT_TRUE(Dirty());
}

TEST_F(MainWindowClosing, NoClosesWithoutSaving)
{
    OpenEdited();
    user.answers = {Answer::No};
    EXPECT_TRUE(Closes());
    EXPECT_FALSE(Saved());
    EXPECT_EQ(Logged(), QStringList{"UnloadSchedule"});
}

TEST_F(MainWindowClosing, YesSavesFirst)
{
    OpenEdited();
    user.answers = {Answer::Yes};
    EXPECT_TRUE(Closes());
    EXPECT_TRUE(Saved());
    EXPECT_EQ(Logged(), (QStringList{"UpdateTagScheduleData", "UnloadSchedule"}));
}

TEST_F(MainWindowClosing, AnEditThatIsStillOpenIsAskedAboutToo)
{
    Open(kPumps);
    Type(1, 1, "99");
    user.answers = {Answer::Yes};
    EXPECT_TRUE(Closes());
    EXPECT_TRUE(Saved());
}

TEST_F(MainWindowClosing, ASaveThatFailsKeepsTheWindowUntilTheUserGivesUp)
{
    OpenEdited();
    ASSERT_TRUE(QFile::remove(Path("pumps.xml")) && QDir().rmdir(folder.path()));
    user.answers = {Answer::Yes, Answer::Ok};
    EXPECT_FALSE(Closes());
    EXPECT_TRUE(Dirty());
    user.answers = {Answer::No};
    EXPECT_TRUE(Closes());
}

TEST_F(MainWindowClosing, AWindowWithoutAViewCloses)
{
    window.close();
    EXPECT_FALSE(window.isVisible());
}

TEST_F(MainWindowClosing, AViewThatCannotBeAskedDoesNotKeepTheWindow)
{
    Open(kPumps);
    Find<QPushButton>("cmdCancel")->setEnabled(false);
    window.close();
    EXPECT_FALSE(window.isVisible());
}

TEST_F(MainWindowClosing, AViewThatDoesNothingDoesNotKeepTheWindow)
{
    Open(kPumps);
    qobject_cast<IToolUI*>(&View())->IToolUI_Initialize(nullptr, {}); // it can tell nobody
    window.close();
    EXPECT_FALSE(window.isVisible());
}

TEST_F(MainWindowClosing, ATableThatCouldNotBeLoadedDoesNotKeepTheWindow)
{
    Open("<TABLE>");
    EXPECT_TRUE(Closes());
}

TEST_F(MainWindowReplacing, WithoutEditedValuesNobodyIsAsked)
{
    Open(kPumps);
    Open(kFans, QStringLiteral("fans.xml"));
    Menu(QStringLiteral("&Reload"))->trigger();
    Menu(QStringLiteral("Se&lector"))->trigger();
    EXPECT_EQ(asked, QStringList());
}

TEST_F(MainWindowReplacing, OpenReloadAndTheOtherViewAskAboutEditedValues)
{
    OpenEdited();
    unsaved = {UnsavedValues::Keep, UnsavedValues::Keep, UnsavedValues::Keep};
    const QWidget* before = &View();
    Open(kFans, QStringLiteral("fans.xml"));
    Menu(QStringLiteral("&Reload"))->trigger();
    Menu(QStringLiteral("Se&lector"))->trigger();
    EXPECT_EQ(asked, (QStringList{"pumps.xml", "pumps.xml", "pumps.xml"}));
    EXPECT_EQ(&View(), before);
    EXPECT_EQ(TextAt(1, 1), "12.5");
    EXPECT_TRUE(Dirty());
    EXPECT_FALSE(Saved());
}

TEST_F(MainWindowReplacing, AViewThatWasNotLeftStaysTheCheckedOne)
{
    OpenEdited();
    unsaved = {UnsavedValues::Keep};
    Menu(QStringLiteral("Se&lector"))->trigger();
    EXPECT_TRUE(Menu(QStringLiteral("&Schedule"))->isChecked());
    EXPECT_FALSE(Menu(QStringLiteral("Se&lector"))->isChecked());
    unsaved = {UnsavedValues::Discard};
    Menu(QStringLiteral("&Reload"))->trigger();
    EXPECT_EQ(View().property("ViewType").toInt(), 1);
}

TEST_F(MainWindowReplacing, DiscardShowsTheOtherOneWithoutSaving)
{
    OpenEdited();
    unsaved = {UnsavedValues::Discard};
    Open(kFans, QStringLiteral("fans.xml"));
    EXPECT_EQ(TextAt(0, 1), "F-1");
    EXPECT_FALSE(Saved());
}

TEST_F(MainWindowReplacing, SaveSavesBeforeAnythingIsRead)
{
    OpenEdited();
    unsaved = {UnsavedValues::Save};
    Menu(QStringLiteral("&Reload"))->trigger();
    EXPECT_TRUE(Saved());
    EXPECT_EQ(TextAt(1, 1), "12.5");
    EXPECT_FALSE(Dirty());
}

TEST_F(MainWindowReplacing, WhatCouldNotBeSavedIsNotReplaced)
{
    OpenEdited();
    QTemporaryDir elsewhere;
    QFile fans(elsewhere.filePath(QStringLiteral("fans.xml")));
    ASSERT_TRUE(fans.open(QIODevice::WriteOnly) && fans.write(kFans) > 0 && fans.flush());
    ASSERT_TRUE(QFile::remove(Path("pumps.xml")) && QDir().rmdir(folder.path()));
    unsaved = {UnsavedValues::Save};
    window.Open(fans.fileName());
    EXPECT_EQ(TextAt(1, 1), "12.5");
    EXPECT_TRUE(Dirty());
    EXPECT_EQ(user.boxes.size(), 1U);
}

TEST_F(MainWindowReplacing, AnOpenEditIsCommittedAndAskedAbout)
{
    Open(kPumps);
    Type(1, 1, "99");
    unsaved = {UnsavedValues::Save};
    Menu(QStringLiteral("&Reload"))->trigger();
    EXPECT_EQ(TextAt(1, 1), "99");
}

TEST_F(MainWindowReplacing, AFileThatCannotBeReadLeavesTheEdits)
{
    OpenEdited();
    unsaved = {UnsavedValues::Discard};
    QTimer::singleShot(0, [] { qobject_cast<QMessageBox*>(QApplication::activeModalWidget())->accept(); });
    window.Open(Path("absent.xml"));
    EXPECT_EQ(TextAt(1, 1), "12.5");
    EXPECT_TRUE(Dirty());
    Edit(1, 2, "14");
    PressSave();
    EXPECT_EQ(Status(), "Saved 2 changed cells to pumps.xml") << "into the file that is still shown";
}

TEST(AskAboutUnsaved, AsksInABoxWithSaveDiscardAndCancel)
{
    QWidget window;
    const auto answered = [&window](QMessageBox::StandardButton button) {
        QTimer::singleShot(0, [button] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(box->text(), "pumps.xml has edits that are not saved.");
            EXPECT_EQ(box->standardButtons(), QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
            box->button(button)->click();
        });
        return AskAboutUnsaved(window, QStringLiteral("pumps.xml"));
    };
    EXPECT_EQ(answered(QMessageBox::Save), UnsavedValues::Save);
    EXPECT_EQ(answered(QMessageBox::Discard), UnsavedValues::Discard);
    EXPECT_EQ(answered(QMessageBox::Cancel), UnsavedValues::Keep);
}

} // namespace schedules::host::testing
