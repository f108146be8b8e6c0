#include "host/window/OptionsWindow.h"

#include "host/TemplateFolderFiles.h"
#include "host/base/HostError.h"
#include "host/tools/HostRouter.h"
#include "host/tools/LanguageModule.h"
#include "support/ScriptedUserInterface.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>
#include <QTreeView>

#include <deque>
#include <optional>

namespace schedules::host::testing {

namespace {

const QStringList kActivation{"GETTEMPLATELIST", "GETBUILDERPATH", "GETTEMPLATECATEGORIES", "GETCURRENTSCHEDTEMPLATE"};

/// The editor's window on files of its own, with a user who works in it, and who answers from scripts.
class OptionsWindowTest : public ::testing::Test
{
protected:
    OptionsWindowTest()
    {
        router.Answers(QStringLiteral("GetResourceModule"), [this](const Message&) { return language.Reply(); });
    }

    void Open(const char* current = "Pumps.xml")
    {
        host.emplace(router, files.Places(current));
        window.emplace(router, QStringLiteral("folder"), Answering{&user, [this](QWidget&, const QString& file) {
                                                                       asked.append(file);
                                                                       return NextAnswer();
                                                                   }});
        window->show();
        QApplication::setActiveWindow(&*window);
        window->Open();
    }

    UnsavedValues NextAnswer()
    {
        EXPECT_FALSE(unsaved.empty()) << "an answer is missing for " << qPrintable(asked.last());
        const UnsavedValues answer = unsaved.empty() ? UnsavedValues::Keep : unsaved.front();
        unsaved.pop_front();
        return answer;
    }

    template <class Child = QPushButton>
    Child& Find(const char* name) const
    {
        return *window->centralWidget()->findChild<Child*>(QLatin1String(name));
    }

    void Press(const char* button) { QTest::mouseClick(&Find(button), Qt::LeftButton); }

    /// Leaves out a group of the template that is shown.
    void Uncheck(const char* group)
    {
        window->Tool().SelectGroup(QLatin1String(group));
        QTest::keyClick(&Find<QAbstractItemView>("lstGroups"), Qt::Key_Space);
    }

    bool Closes()
    {
        window->close();
        QCoreApplication::processEvents();
        return !window->isVisible();
    }

    /// The names of the messages that have crossed since the start-up, or since the last call.
    QStringList Logged()
    {
        const auto* model = window->findChild<QTreeView*>(QStringLiteral("lstMessages"))->model();
        QStringList names;
        for (; seen < model->rowCount(); ++seen)
            names.append(model->index(seen, 3).data().toString());
        return names.mid(names.indexOf(QStringLiteral("INITIALIZESCHEDOPTIONS")) + 1);
    }

    std::string Status() const { return window->statusBar()->currentMessage().toStdString(); }
    std::string Shown() const { return window->Tool().TemplateFile().toStdString(); }
    bool Saved() const { return files.Content("templates/Pumps.xml") != kPumpTemplate; }

    HostedEditor& Tool() { return window->Tool(); }

    TemplateFolderFiles files;
    LanguageModule language{QStringLiteral("en")};
    HostRouter router;
    schedules::testing::ScriptedUserInterface user;
    std::deque<UnsavedValues> unsaved; ///< the answers to come
    QStringList asked;                 ///< the files that the window has asked about
    int seen = 0;
    std::optional<TemplateFileAnswers> host;
    mutable std::optional<OptionsWindow> window;
};

using OptionsWindowClosing = OptionsWindowTest;
using HostedEditorTest = OptionsWindowTest;

} // namespace

TEST_F(OptionsWindowTest, ShowsTheTemplateThatTheScheduleUses)
{
    Open("fans.XML");
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Schedule templates – folder"));
    EXPECT_EQ(Find<QComboBox>("cboTemplates").currentText(), "Fan schedule - Rotating");
    EXPECT_EQ(Find<QComboBox>("cboTemplates").count(), 2);
    EXPECT_EQ(Shown(), "Fans.xml");
    EXPECT_EQ(Logged(), kActivation);
    EXPECT_FALSE(Tool().HasUnsavedEdits());
    EXPECT_EQ(user.boxes.size(), 0U);
}

TEST_F(OptionsWindowTest, WithoutATemplateInUseNoneIsShown)
{
    Open("");
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(Find<QComboBox>("cboTemplates").count(), 2);
}

TEST_F(OptionsWindowTest, ApplySavesTheTemplateAndTheListAndTellsWhichIsUsed)
{
    Open();
    Uncheck("Design data");
    EXPECT_TRUE(Tool().HasUnsavedEdits());
    EXPECT_EQ(Logged(), kActivation) << "an edit tells the host nothing";
    Press("cmdApply");
    EXPECT_EQ(Logged(), (QStringList{"GETTEMPLATELIST", "GETTEMPLATELIST", "UPDATESCHEDCONFIG"} + kActivation +
                         QStringList{"SETCURRENTSCHEDTEMPLATE"}));
    EXPECT_FALSE(Tool().HasUnsavedEdits());
    EXPECT_NE(files.Content("templates/Pumps.xml").find("DisplayName=\"Design data\" ShowThisGroup=\"0\""),
              std::string::npos)
        << files.Content("templates/Pumps.xml");
    EXPECT_EQ(host->Current(), "Pumps.xml");
    EXPECT_EQ(Status(), "The schedule uses Pumps.xml");
}

TEST_F(OptionsWindowTest, ApplyLeavesTheEntriesOfTheListAsTheyAre)
{
    Open();
    Uncheck("Design data");
    Press("cmdApply");
    EXPECT_EQ(QString::fromStdString(files.Content("list.xml")).trimmed(), QString(kTemplateList).trimmed());
}

TEST_F(OptionsWindowTest, OkOnAnotherTemplateMakesItTheSchedulesAndCloses)
{
    Open();
    Tool().ChooseTemplate(QStringLiteral("Fans.xml"));
    Press("cmdOK");
    EXPECT_EQ(host->Current(), "Fans.xml");
    EXPECT_TRUE(window->isVisible()) << "the editor is still at work in its click";
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window->isVisible(); }));
    EXPECT_EQ(Logged(), kActivation + (QStringList{"SETCURRENTSCHEDTEMPLATE", "UnloadScheduleOptions"}));
    EXPECT_EQ(asked, QStringList());
}

TEST_F(OptionsWindowTest, DeleteTakesTheTemplateFromTheFolderAndTheList)
{
    Open("Fans.xml");
    user.answers = {Answer::Yes};
    Press("cmdDelete");
    EXPECT_FALSE(QFile::exists(files.Path("templates/Fans.xml")));
    EXPECT_EQ(files.Content("list.xml").find("Fans.xml"), std::string::npos);
    EXPECT_NE(files.Content("list.xml").find("<!-- rotating -->"), std::string::npos);
    EXPECT_EQ(Logged(), kActivation + QStringList{"REMOVECONFIGENTRY"} + kActivation);
    EXPECT_EQ(Find<QComboBox>("cboTemplates").count(), 1);
    EXPECT_EQ(Status(), "Took Fans.xml from the list of templates");
}

TEST_F(OptionsWindowTest, WhatTheHostCannotDoIsInTheDockAndTheStatusBar)
{
    Open();
    ASSERT_TRUE(QFile::remove(files.Path("list.xml")));
    Uncheck("Design data");
    Logged();
    Press("cmdApply");
    EXPECT_TRUE(Logged().contains(QStringLiteral("ErrorMessage")));
    EXPECT_NE(Status(), "");
    EXPECT_NE(Status(), "The schedule uses Pumps.xml");
}

TEST_F(OptionsWindowTest, TheDockOfMessagesCanBeHidden)
{
    Open();
    auto* dock = window->findChild<QWidget*>(QStringLiteral("dockMessages"));
    ASSERT_TRUE(dock->isVisible());
    window->menuBar()->actions().at(1)->menu()->actions().first()->trigger();
    EXPECT_FALSE(dock->isVisible());
}

TEST_F(OptionsWindowTest, AListThatCannotBeReadIsToldByTheEditor)
{
    files.Write("list.xml", "<Templates>");
    Open();
    ASSERT_EQ(user.boxes.size(), 1U);
    EXPECT_EQ(user.boxes[0].number, 1062);
    EXPECT_EQ(Find<QComboBox>("cboTemplates").count(), 0);
    EXPECT_TRUE(Closes());
}

TEST_F(OptionsWindowClosing, WithoutEditsPressesCancel)
{
    Open();
    Logged();
    EXPECT_TRUE(Closes());
    EXPECT_EQ(Logged(), QStringList{"UnloadScheduleOptions"}) << "once";
    EXPECT_EQ(asked, QStringList());
}

TEST_F(OptionsWindowClosing, QuitDoesTheSame)
{
    Open();
    window->menuBar()->actions().first()->menu()->actions().first()->trigger();
    EXPECT_FALSE(window->isVisible());
}

TEST_F(OptionsWindowClosing, TheEditorsOwnCancelDropsEditsWithoutAQuestion)
{
    Open();
    Uncheck("Design data");
    Press("cmdCancel");
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window->isVisible(); }));
    EXPECT_EQ(asked, QStringList());
    EXPECT_FALSE(Saved());
}

TEST_F(OptionsWindowClosing, KeepKeepsTheWindowAndTheEdits)
{
    Open();
    Uncheck("Design data");
    Logged();
    unsaved = {UnsavedValues::Keep};
    EXPECT_FALSE(Closes());
    EXPECT_EQ(asked, QStringList{"Pumps.xml"});
    EXPECT_TRUE(Tool().HasUnsavedEdits());
    EXPECT_EQ(Logged(), QStringList());
    unsaved = {UnsavedValues::Discard};
    EXPECT_TRUE(Closes());
}

TEST_F(OptionsWindowClosing, DiscardClosesWithoutSaving)
{
    Open();
    Uncheck("Design data");
    Logged();
    unsaved = {UnsavedValues::Discard};
    EXPECT_TRUE(Closes());
    EXPECT_FALSE(Saved());
    EXPECT_EQ(Logged(), QStringList{"UnloadScheduleOptions"});
}

TEST_F(OptionsWindowClosing, SaveAppliesFirst)
{
    Open();
    Uncheck("Design data");
    Logged();
    unsaved = {UnsavedValues::Save};
    EXPECT_TRUE(Closes());
    EXPECT_TRUE(Saved());
    const QStringList messages = Logged();
    EXPECT_EQ(messages.mid(messages.size() - 2), (QStringList{"SETCURRENTSCHEDTEMPLATE", "UnloadScheduleOptions"}));
}

TEST_F(OptionsWindowClosing, ASaveThatFailsKeepsTheWindowUntilTheUserGivesUp)
{
    Open();
    Uncheck("Design data");
    ASSERT_TRUE(QFile::remove(files.Path("list.xml")));
    unsaved = {UnsavedValues::Save};
    EXPECT_FALSE(Closes());
    EXPECT_TRUE(Tool().HasUnsavedEdits());
    EXPECT_FALSE(Saved());
    unsaved = {UnsavedValues::Discard};
    EXPECT_TRUE(Closes());
}

TEST_F(OptionsWindowClosing, AnEditorThatCannotBeAskedDoesNotKeepTheWindow)
{
    Open();
    Find("cmdCancel").setEnabled(false);
    EXPECT_TRUE(Closes());
}

TEST_F(HostedEditorTest, ChoosesATemplateByItsFileInAnyLetterCase)
{
    Open();
    HostedEditor& editorUser = Tool();
    editorUser.ChooseTemplate(QStringLiteral("FANS.xml"));
    EXPECT_EQ(Shown(), "Fans.xml");
    editorUser.ChooseTemplate(QStringLiteral("Pumps.xml"));
    EXPECT_EQ(Shown(), "Pumps.xml");
    EXPECT_EQ(host->Current(), "Pumps.xml");
    EXPECT_FALSE(Tool().HasUnsavedEdits());
}

TEST_F(HostedEditorTest, SelectsAGroupAndAnItemAsTheyAreListed)
{
    Open();
    HostedEditor& editorUser = Tool();
    editorUser.SelectGroup(QStringLiteral("Design data"));
    for (const char* name : {"Rated flow", "Duty note", "*Duty note"}) {
        editorUser.SelectItem(QLatin1String(name));
        const QString selected = Find<QAbstractItemView>("lstItems").currentIndex().data().toString();
        EXPECT_TRUE(selected.endsWith(QString::fromLatin1(name).remove(u'*'))) << name;
    }
    EXPECT_EQ(Find<QLineEdit>("txtDisplayName").text(), "Duty note");
    EXPECT_FALSE(Tool().HasUnsavedEdits());
}

TEST_F(HostedEditorTest, WhatIsNotThereOrCannotBeChosenThrows)
{
    Open();
    HostedEditor& editorUser = Tool();
    const auto failure = [](auto&& step) {
        try {
            step();
        } catch (const HostError& error) {
            return error.Line().toStdString();
        }
        return std::string("(done)");
    };
    EXPECT_EQ(failure([&] { editorUser.ChooseTemplate(QStringLiteral("Motors.xml")); }),
              "there is no template Motors.xml in the list");
    editorUser.ChooseTemplate(QStringLiteral("Pumps.xml"));
    EXPECT_EQ(failure([&] { editorUser.SelectGroup(QStringLiteral("Design")); }),
              "there is no group 'Design' in Pumps.xml");
    EXPECT_EQ(failure([&] { editorUser.SelectItem(QStringLiteral("Power")); }),
              "there is no data item 'Power' in Pumps.xml");
    editorUser.SelectGroup(QStringLiteral("Motor"));
    EXPECT_EQ(failure([&] { editorUser.SelectItem(QStringLiteral("Power")); }),
              "the group of the data item 'Power' is not shown");
}

} // namespace schedules::host::testing
