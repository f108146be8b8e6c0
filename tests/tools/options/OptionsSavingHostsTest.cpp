// What a host and its user may do while something is saved under a new name, and while a box or the dialog is open.

#include "SavingTest.h"

#include <QMessageBox>

#include <map>
#include <stdexcept>

namespace schedules::testing {

namespace {

enum class Deed
{
    Delete,
    DeleteAndThrow,
    Deactivate,
    Activate,
    DeactivateAndActivate,
    Throw,
    ThrowAnything
};

constexpr std::array kDeeds{Deed::Delete,       Deed::DeleteAndThrow,        Deed::Deactivate,
                            Deed::Activate,     Deed::DeactivateAndActivate, Deed::Throw,
                            Deed::ThrowAnything};

/// What can be done where nobody catches anything.
constexpr std::array kQuietDeeds{Deed::Delete, Deed::Deactivate, Deed::Activate, Deed::DeactivateAndActivate};

/// An editor, a host and a folder of their own.
class Stage : public SavingTest
{
public:
    void TestBody() override {}

    /// Ends with the folder complete, and with an editor, if there is one, that can be used.
    ~Stage() override
    {
        AskNoMore();
        inside = nullptr;
        watched.whileOpen = nullptr;
        if (editor)
            UseFurther();
        for (const QString& file : QDir(folder.path()).entryList({"*.xml"}, QDir::Files))
            EXPECT_TRUE(XmlDocument::FromText(QString::fromStdString(Content(file)))) << file.toStdString();
    }

    void Do(Deed deed)
    {
        if (deed == Deed::Throw)
            throw std::runtime_error("no");
        if (deed == Deed::ThrowAnything)
            throw 1;
        if (!editor)
            return;
        if (deed == Deed::Deactivate || deed == Deed::DeactivateAndActivate)
            editor->IToolUI_Deactivate(true);
        if (deed == Deed::Activate || deed == Deed::DeactivateAndActivate)
            editor->IToolUI_Activate();
        if (deed == Deed::Delete || deed == Deed::DeleteAndThrow)
            editor.reset();
        if (deed == Deed::DeleteAndThrow)
            throw std::runtime_error("no");
    }

    void Begin(const char* current)
    {
        host.replies["GETCURRENTSCHEDTEMPLATE"] = current;
        Start();
        Edit();
        Forget();
    }

    /// Does the deed in the message of that number; how many messages there were.
    int Live(const char* current, const char* button, Deed deed, int at)
    {
        Begin(current);
        int sent = 0;
        inside = [&](const QString&) {
            if (++sent == at)
                Do(deed);
        };
        WhenAsked({Enter("New"), Cancel});
        Click(button);
        return sent;
    }

    void DoWhileABoxIsOpen(Deed deed)
    {
        watched.whileOpen = [this, deed] {
            watched.whileOpen = nullptr;
            Do(deed);
        };
    }

    static void Leave(frmSaveAs& dialog) { Cancel(dialog); }

    using SavingTest::Boxes;
    using SavingTest::Click;
    using SavingTest::editor;
    using SavingTest::Enter;
    using SavingTest::host;
    using SavingTest::Names;
    using SavingTest::PathOf;
    using SavingTest::PressIn;
    using SavingTest::user;
    using SavingTest::WhenAsked;
    using SavingTest::WriteFile;

private:
    void UseFurther()
    {
        editor->IToolUI_Activate();
        if (Groups().Count() > 0)
            MarkGroup(Groups().Text(0));
        Click("cmdCancel");
        EXPECT_FALSE(editor->findChild<frmSaveAs*>()) << "the dialog is unloaded";
    }
};

/// The deed in each message, one after the other.
void InEachMessage(const char* current, const char* button, int messages)
{
    for (const Deed deed : kDeeds) {
        for (int at = 1;; ++at) {
            SCOPED_TRACE(std::to_string(static_cast<int>(deed)) + " in message " + std::to_string(at));
            Stage stage;
            if (stage.Live(current, button, deed, at) < at) {
                EXPECT_GT(at, messages);
                break;
            }
        }
    }
}

/// The deed while the box is open that the user gets to see after `begin`.
void WhileTheBoxIsOpen(const std::function<void(Stage&)>& begin, const char* button)
{
    for (const Deed deed : kQuietDeeds) {
        SCOPED_TRACE(static_cast<int>(deed));
        Stage stage;
        begin(stage);
        stage.DoWhileABoxIsOpen(deed);
        stage.Click(button);
        EXPECT_FALSE(stage.user.boxes.empty());
        EXPECT_EQ(stage.editor == nullptr, deed == Deed::Delete);
    }
}

} // namespace

TEST(OptionsSavingHosts, MayDoAnythingInEachMessageOfSaveAs)
{
    InEachMessage("pumps.xml", "cmdSaveAs", 8);
}

TEST(OptionsSavingHosts, MayDoAnythingInEachMessageOfApplyingAProtectedTemplate)
{
    InEachMessage("rooms.xml", "cmdApply", 9);
}

TEST(OptionsSavingHosts, MayDoAnythingInEachMessageOfOkOnAProtectedTemplate)
{
    InEachMessage("rooms.xml", "cmdOK", 10);
}

TEST(OptionsSavingHosts, ADeactivationEndsTheSaveWhereverItComes)
{
    const std::map<QString, std::string> untilThere{
        {"GETTEMPLATECATEGORIES", "GETTEMPLATECATEGORIES"},
        {"GETTEMPLATELIST", "GETTEMPLATECATEGORIES GETTEMPLATELIST"},
        {"UPDATESCHEDCONFIG", "GETTEMPLATECATEGORIES GETTEMPLATELIST GETTEMPLATELIST UPDATESCHEDCONFIG"}};
    for (const auto& [message, sent] : untilThere) {
        Stage stage;
        stage.Begin("pumps.xml");
        stage.host.onSend = [&, wanted = message](const QString& name) {
            if (name == wanted)
                stage.editor->IToolUI_Deactivate(true);
        };
        if (message != "GETTEMPLATECATEGORIES")
            Stage::WhenAsked({Stage::Enter("New")});
        stage.Click("cmdSaveAs");
        EXPECT_EQ(stage.Names(), sent);
    }
}

TEST(OptionsSavingHosts, MayDoAnythingWhileTheDialogIsOpen)
{
    const std::vector<std::function<void(frmSaveAs&)>> ends{Stage::Enter("New"), Stage::Leave, Stage::Enter("../New"),
                                                            [](frmSaveAs& dialog) { dialog.close(); }};
    for (const Deed deed : kQuietDeeds) {
        for (const auto& end : ends) {
            SCOPED_TRACE(static_cast<int>(deed));
            Stage stage;
            stage.Begin("pumps.xml");
            Stage::WhenAsked({[&](frmSaveAs& dialog) {
                                  stage.Do(deed);
                                  if (stage.editor)
                                      end(dialog);
                              },
                              Stage::Leave});
            stage.Click("cmdSaveAs");
            EXPECT_TRUE(deed == Deed::Activate || !QFile::exists(stage.PathOf("New.xml")));
            EXPECT_TRUE(deed == Deed::Activate || stage.user.boxes.empty());
        }
    }
}

TEST(OptionsSavingHosts, MayDoAnythingWhileTheDialogRefusesAFile)
{
    WhileTheBoxIsOpen(
        [](Stage& stage) {
            stage.Begin("pumps.xml");
            Stage::WhenAsked({[](frmSaveAs& dialog) {
                const QPointer alive(&dialog);
                Stage::Enter("fans")(dialog);
                if (alive)
                    Stage::Leave(dialog);
            }});
        },
        "cmdSaveAs");
}

TEST(OptionsSavingHosts, MayDoAnythingWhileAnObjectionIsTold)
{
    for (const char* name : {"../New", "PUMPS "}) {
        WhileTheBoxIsOpen(
            [name](Stage& stage) {
                QFile::rename(stage.PathOf("pumps.xml"), stage.PathOf("other"));
                stage.host.replies["GETTEMPLATELIST"] = "<T><Template name='Pumps' filename='other'/></T>";
                stage.Begin("other");
                Stage::WhenAsked({Stage::Enter(name), Stage::Leave});
            },
            "cmdSaveAs");
    }
}

TEST(OptionsSavingHosts, MayDoAnythingWhileTheNameIsCalledTaken)
{
    WhileTheBoxIsOpen(
        [](Stage& stage) {
            stage.Begin("rooms.xml");
            stage.host.replies["GETTEMPLATELIST"] = "<T><Template name='x' filename='New.xml'/></T>";
            Stage::WhenAsked({Stage::Enter("New")});
        },
        "cmdApply");
}

TEST(OptionsSavingHosts, MayDoAnythingWhileItIsAskedWhetherToOverwrite)
{
    WhileTheBoxIsOpen(
        [](Stage& stage) {
            stage.Begin("pumps.xml");
            stage.WriteFile("pumps.xml", "<Template/>");
            stage.user.answers = {Answer::Yes};
        },
        "cmdOK");
}

TEST(OptionsSavingHosts, MayDoAnythingWhileItIsAskedWhetherToDelete)
{
    WhileTheBoxIsOpen(
        [](Stage& stage) {
            stage.Begin("pumps.xml");
            stage.user.answers = {Answer::Yes};
        },
        "cmdDelete");
}

TEST(OptionsSavingHosts, MayDoAnythingWhileTheUserIsWarnedOfADefault)
{
    WhileTheBoxIsOpen(
        [](Stage& stage) {
            stage.host.replies["GETTEMPLATELIST"].replace("defaultforcategory='0'", "defaultforcategory='1'");
            stage.Begin("pumps.xml");
            stage.user.answers = {Answer::Ok, Answer::Yes};
        },
        "cmdDelete");
}

/// The box is a real one then, and goes with the editor.
TEST(OptionsSavingHosts, MayDeleteAnEditorWithItsOwnUserInterfaceWhileItAsks)
{
    Stage stage;
    stage.editor = std::make_unique<ctlSchedOptions>();
    stage.Begin("pumps.xml");
    OnceModal<QMessageBox>([&](QMessageBox&) { stage.editor.reset(); });
    stage.Click("cmdDelete");
    EXPECT_FALSE(stage.editor);
    EXPECT_TRUE(QFile::exists(stage.PathOf("pumps.xml")));
    EXPECT_EQ(stage.Names(), "");
}

} // namespace schedules::testing
