// How the dialog is left, refused and shown again.

#include "support/ModalDialog.h"
#include "tools/options/frmSaveAsTest.h"

#include <functional>

namespace schedules::testing {

namespace {

/// A user interface that does something while its box is open.
class ActingUserInterface : public ScriptedUserInterface
{
public:
    Answer Show(const MessageBox& box) override
    {
        const Answer answer = ScriptedUserInterface::Show(box);
        act();
        return answer;
    }

    std::function<void()> act = [] {};
};

} // namespace

TEST_F(SaveAsTest, OkClosesAndTellsSo)
{
    ShowNew();
    TypeName("New pumps");
    Click("cmdOK");
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_TRUE(dialog->OK());
    EXPECT_EQ(dialog->property("OK"), -1);
    EXPECT_EQ(Result(), "New pumps|New pumps|PUMP|New pumps.xml");
    EXPECT_TRUE(user.boxes.empty());
    EXPECT_TRUE(QDir(folder.path()).isEmpty()) << "it writes nothing";
}

TEST_F(SaveAsTest, EnterInAnyFieldIsOk)
{
    for (const char* field :
         {"Text1", "Text2", "lblFullFileName", "txtTemplCaption", "cboCategory", "chkUseNameAsCaption"}) {
        ShowNew();
        QTest::keyClick(Find<QWidget>(field), Qt::Key_Return);
        EXPECT_TRUE(dialog->OK()) << field;
        EXPECT_FALSE(dialog->isVisible()) << field;
    }
}

TEST_F(SaveAsTest, EnterDoesNothingWhileOkIsDisabled)
{
    ShowNew("");
    QTest::keyClick(Box("Text1"), Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_FALSE(dialog->OK());
}

TEST_F(SaveAsTest, CancelClosesWithoutOk)
{
    ShowNew();
    TypeName("New pumps");
    Click("cmdCancel");
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_FALSE(dialog->OK());
    EXPECT_EQ(dialog->property("OK"), 0);
    EXPECT_EQ(dialog->result(), QDialog::Rejected);
}

TEST_F(SaveAsTest, EscapeIsCancel)
{
    ShowNew();
    QTest::keyClick(Box("Text1"), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_FALSE(dialog->OK());
}

TEST_F(SaveAsTest, ClosingTheWindowIsCancel)
{
    ShowNew();
    EXPECT_TRUE(dialog->close());
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_FALSE(dialog->OK());
    EXPECT_EQ(dialog->result(), QDialog::Rejected);
}

TEST_F(SaveAsTest, AnExistingFileIsRefusedInFourLines)
{
    Put("Fans.xml");
    const CompiledTable table({{1067, "Exists"}, {1068, "Not saved"}, {1069, "Not overwritten"}, {1070, "Other name"}});
    const ModuleInUse module(table);
    ShowNew();
    TypeName(" Fans ");
    Click("cmdOK");
    ASSERT_EQ(user.boxes.size(), 1U);
    EXPECT_EQ(user.boxes[0].text, "Exists\r\nNot saved\r\nNot overwritten\r\nOther name");
    EXPECT_EQ(user.boxes[0].style, kCritical);
    EXPECT_EQ(user.boxes[0].number, 1067);
    EXPECT_EQ(user.boxes[0].subject, "Fans.xml");
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_FALSE(dialog->OK());
}

TEST_F(SaveAsTest, AfterARefusalTheNextNameCanBeTypedAtOnce)
{
    Put("Pumps.xml");
    ShowNew();
    Click("cmdOK");
    ASSERT_TRUE(Box("Text1")->hasFocus());
    QTest::keyClicks(Box("Text1"), "Fans");
    EXPECT_EQ(dialog->NewName(), "Fans");
    Click("cmdOK");
    EXPECT_TRUE(dialog->OK());
    EXPECT_EQ(user.boxes.size(), 1U);
}

TEST_F(SaveAsTest, AfterARefusalCancelStillCancels)
{
    Put("Pumps.xml");
    ShowNew();
    Click("cmdOK");
    Click("cmdCancel");
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_FALSE(dialog->OK());
}

TEST_F(SaveAsTest, ACancelOrARefusalTakesBackAnEarlierOk)
{
    ShowNew();
    for (const char* button : {"cmdCancel", "cmdOK"}) {
        Click("cmdOK");
        EXPECT_TRUE(dialog->OK());
        Put("Pumps.xml");
        Button(button)->click();
        EXPECT_FALSE(dialog->OK()) << button;
        QFile::remove(folder.filePath("Pumps.xml"));
    }
}

TEST_F(SaveAsTest, AFileThatAppearsWhileTheDialogIsOpenIsRefused)
{
    ShowNew();
    EXPECT_EQ(Warning(), "");
    Put("Pumps.xml");
    Click("cmdOK");
    EXPECT_EQ(user.boxes.size(), 1U);
    EXPECT_EQ(Warning(), "Pumps.xml exists already.");
}

TEST_F(SaveAsTest, AFileThatIsGoneIsNoReasonToRefuse)
{
    Put("Pumps.xml");
    ShowNew();
    EXPECT_EQ(Warning(), "Pumps.xml exists already.");
    QFile::remove(folder.filePath("Pumps.xml"));
    Click("cmdOK");
    EXPECT_TRUE(dialog->OK());
}

TEST_F(SaveAsTest, TheFileSystemDecidesAboutLetterCase)
{
    Put("PUMPS.xml");
    const bool isSame = QFile::exists(folder.filePath("Pumps.xml"));
    ShowNew("Pumps");
    Click("cmdOK");
    EXPECT_EQ(dialog->OK(), !isSame);
}

TEST_F(SaveAsTest, AWildcardInTheNameMeetsWhatItMatches)
{
    Put("Pumps.xml");
    ShowNew();
    TypeName("P?mp*");
    Click("cmdOK");
    EXPECT_FALSE(dialog->OK());
    TypeName("V?*");
    Click("cmdOK");
    EXPECT_TRUE(dialog->OK());
}

TEST_F(SaveAsTest, AFolderThatIsMissingHoldsNoFile)
{
    Prepare();
    dialog->SetFilePath(folder.filePath("absent/"));
    Show();
    Click("cmdOK");
    EXPECT_TRUE(dialog->OK());
}

TEST_F(SaveAsTest, EachShowingStartsAnew)
{
    ShowNew();
    Tick();
    Type("txtTemplCaption", "Own");
    TypeName("Fans");
    Choose(0);
    Click("cmdOK");
    dialog->SetCategory("GENSET");
    dialog->SetDefaultName("Compressors");
    dialog->SetTitleBarCaption("Again");
    Show();
    EXPECT_EQ(Shown(), "Compressors|Compressors.xml|Compressors.xml|Compressors|GENSET (Generators)");
    EXPECT_EQ(Result(), "Compressors|Compressors|GENSET|Compressors.xml");
    EXPECT_TRUE(Check()->isChecked());
    EXPECT_TRUE(Box("txtTemplCaption")->isReadOnly());
    EXPECT_FALSE(dialog->OK()) << "it is open";
    EXPECT_EQ(dialog->windowTitle(), "Again");
}

TEST_F(SaveAsTest, TheSameCategoryTakesTheEntrysNameInEachShowing)
{
    ShowNew();
    Click("cmdCancel");
    dialog->SetCategory("pumps");
    Show();
    EXPECT_EQ(dialog->Category(), "PUMP");
}

TEST_F(SaveAsTest, AnUnknownCategoryDeselectsTheFormerOne)
{
    ShowNew();
    Click("cmdCancel");
    dialog->SetCategory("FAN");
    Show();
    EXPECT_EQ(Categories()->currentIndex(), -1);
    EXPECT_EQ(dialog->Category(), "FAN");
}

TEST_F(SaveAsTest, BeingCoveredOrMinimisedIsNoNewShowing)
{
    ShowNew();
    TypeName("Fans");
    QEvent deactivated(QEvent::WindowDeactivate);
    QEvent activated(QEvent::WindowActivate);
    QApplication::sendEvent(dialog.get(), &deactivated);
    QApplication::sendEvent(dialog.get(), &activated);
    dialog->showMinimized();
    dialog->showNormal();
    EXPECT_EQ(Shown(), "Fans|Fans.xml|Fans.xml|Fans|PUMP (Pumps)");
}

TEST_F(SaveAsTest, AShowingCanKeepTheFieldsAndTellWhy)
{
    ShowNew();
    Tick();
    Type("txtTemplCaption", "Own");
    TypeName(" Fans ");
    Choose(0);
    Click("cmdOK");
    dialog->KeepFields("There is a template of this name.");
    Show();
    EXPECT_EQ(Shown(), " Fans |Fans.xml|Fans.xml|Own|VALVE (Valves)");
    EXPECT_EQ(Result(), " Fans |Own|VALVE|Fans.xml");
    EXPECT_FALSE(Check()->isChecked());
    EXPECT_FALSE(dialog->OK());
    EXPECT_EQ(Warning(), "There is a template of this name.");
    EXPECT_TRUE(Box("Text1")->hasFocus());
}

TEST_F(SaveAsTest, TheCallersWarningGoesWithTheNextChange)
{
    ShowNew();
    const std::function<void()> changes[] = {[this] { QTest::keyClicks(Box("Text1"), "x"); }, [this] { Choose(2); }};
    for (const auto& change : changes) {
        Click("cmdOK");
        dialog->KeepFields("Taken");
        Show();
        EXPECT_EQ(Warning(), "Taken");
        change();
        EXPECT_EQ(Warning(), "");
    }
}

TEST_F(SaveAsTest, WithoutTheCallersWarningKeptFieldsShowTheirOwn)
{
    ShowNew();
    Click("cmdOK");
    Put("Pumps.xml");
    dialog->KeepFields();
    Show();
    EXPECT_EQ(Warning(), "Pumps.xml exists already.");
}

TEST_F(SaveAsTest, FieldsAreKeptForOneShowing)
{
    ShowNew();
    TypeName("Fans");
    Click("cmdOK");
    dialog->KeepFields("Taken");
    Show();
    Click("cmdCancel");
    Show();
    EXPECT_EQ(Text("Text1"), "Pumps");
    EXPECT_EQ(Warning(), "");
}

TEST_F(SaveAsTest, RunsAsAModalDialog)
{
    Prepare();
    OnceModal<frmSaveAs>([this](frmSaveAs& shown) {
        EXPECT_EQ(&shown, dialog.get());
        Click("cmdOK");
    });
    EXPECT_EQ(dialog->exec(), QDialog::Accepted);
    EXPECT_TRUE(dialog->OK());
}

TEST_F(SaveAsTest, GoesWithItsParentWhileItIsOpen)
{
    auto* const window = new QWidget;
    const QPointer form = new frmSaveAs(user, window);
    OnceModal<frmSaveAs>([window](frmSaveAs&) { delete window; });
    EXPECT_EQ(form->exec(), QDialog::Rejected);
    EXPECT_TRUE(form.isNull());
}

TEST_F(SaveAsTest, GoesWithItsParentWhileItsBoxIsOpen)
{
    Put("Pumps.xml");
    auto* const window = new QWidget;
    ActingUserInterface acting;
    acting.act = [window] { delete window; };
    const QPointer form = new frmSaveAs(acting, window);
    form->SetFilePath(folder.path() + '/');
    form->SetDefaultName("Pumps");
    OnceModal<frmSaveAs>(
        [](frmSaveAs& shown) { QTest::keyClick(shown.findChild<QLineEdit*>("Text1"), Qt::Key_Return); });
    EXPECT_EQ(form->exec(), QDialog::Rejected);
    EXPECT_TRUE(form.isNull());
    EXPECT_EQ(acting.boxes.size(), 1U);
}

} // namespace schedules::testing
