// A host that does in each message of the options editor what no host should: no crash, no broken file, no edit lost,
// and an editor that still lives works.

#include "TemplateHost.h"
#include "framework/MessageTable.h"
#include "support/ModalDialog.h"
#include "support/ScriptedUserInterface.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDir>
#include <QXmlStreamReader>

namespace schedules::testing {

namespace {

/// A host, a user and an editor between them.
struct Stage
{
    /// On screen, with the mark of the first group taken away and not saved.
    void Open()
    {
        editor.Start(host);
        editor.Widget().show();
        editor.Mark();
    }

    void PressAnsweringYes(const char* button)
    {
        user.answers = {Answer::Yes, Answer::Yes};
        editor.Press(button);
    }

    /// Presses a button that brings up the dialog for a name, and enters one.
    void PressAndEnterName(const char* button)
    {
        OnceModal<QDialog>([](QDialog& dialog) {
            const QPointer alive(&dialog);
            dialog.findChild<QLineEdit*>("Text1")->setText("new");
            QTest::keyClick(dialog.findChild<QLineEdit*>("Text1"), Qt::Key_Return);
            if (alive)
                alive->reject();
        });
        editor.Press(button);
        for (QTimer* const waiting : qApp->findChildren<QTimer*>(Qt::FindDirectChildrenOnly))
            delete waiting; // the host kept the dialog from coming up
    }

    ScriptedUserInterface user;
    TemplateHost host;
    HostedEditor editor{&user};
};

struct Life
{
    const char* name;
    bool isOpen;    ///< and has an edit
    bool dropsEdit; ///< by the user's own wish
    void (*live)(Stage& stage);
};

const Life kLives[] = {
    {"start", false, true, [](Stage& stage) { stage.editor.Start(stage.host); }},
    {"apply", true, false, [](Stage& stage) { stage.editor.Press("cmdApply"); }},
    {"ok", true, false, [](Stage& stage) { stage.editor.Press("cmdOK"); }},
    {"cancel", true, true, [](Stage& stage) { stage.editor.Press("cmdCancel"); }},
    {"delete", true, true, [](Stage& stage) { stage.PressAnsweringYes("cmdDelete"); }},
    {"save as", true, false, [](Stage& stage) { stage.PressAndEnterName("cmdSaveAs"); }},
    {"apply that fails", true, false,
     [](Stage& stage) {
         stage.host.failing = {"GETTEMPLATELIST", "UPDATESCHEDCONFIG", "SETCURRENTSCHEDTEMPLATE"};
         stage.editor.Press("cmdApply");
         stage.host.failing.clear();
     }},
};

void ExpectWholeFiles(const TemplateHost& host)
{
    for (const QString& name : QDir(host.folder.path()).entryList(QDir::Files | QDir::Hidden)) {
        QXmlStreamReader reader(host.Content(name));
        while (!reader.atEnd())
            reader.readNext();
        EXPECT_FALSE(reader.hasError()) << name.toStdString();
    }
}

/// Whether the deed may have left an editor without any template: it was deactivated, not told which there are, or
/// initialised anew right after it had been told.
bool MayBeEmpty(const Deed& deed, const HostileHost& host)
{
    static const QStringList needed{"GETTEMPLATELIST", "GETBUILDERPATH", "GETTEMPLATECATEGORIES"};
    return deed.after == ToolAfter::MayBeDeactivated || (host.IsSpoiled() && needed.contains(host.DoneIn())) ||
           (deed.after == ToolAfter::LosesCatalogue && host.DoneIn() == "GETCURRENTSCHEDTEMPLATE");
}

void ExpectWorking(Stage& stage, bool mayBeEmpty)
{
    stage.editor.Widget().show();
    stage.user.answers = {Answer::Yes, Answer::Yes};
    const bool works = stage.editor.EditsAndApplies(stage.host);
    EXPECT_TRUE(works || mayBeEmpty);
    stage.editor.ExpectLeft(stage.host);
}

/// Whatever has happened, the next editor shows what there is.
void ExpectAnotherWorking(TemplateHost& host)
{
    ScriptedUserInterface user;
    const HostedEditor another(&user);
    another.Start(host);
    EXPECT_GE(another.Templates(), 2);
}

/// But for a host that deactivates the editor, and so takes it with the template.
void ExpectEditKept(const Stage& stage)
{
    EXPECT_TRUE(stage.host.HasSavedMark() || stage.editor.HasUnsavedEdits());
}

bool LiveWith(const Deed& deed, const Life& life, int at)
{
    SCOPED_TRACE(at);
    Stage stage;
    if (life.isOpen)
        stage.Open();
    stage.host.Arm(at, deed, stage.editor);
    life.live(stage);
    const bool wasDone = stage.host.Disarm();
    ExpectWholeFiles(stage.host);
    if (stage.editor.Lives() && !life.dropsEdit && deed.after != ToolAfter::MayBeDeactivated)
        ExpectEditKept(stage);
    if (stage.editor.Lives())
        ExpectWorking(stage, wasDone && MayBeEmpty(deed, stage.host));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(stage.editor.Lives(), !wasDone || deed.after != ToolAfter::IsGone);
    ExpectAnotherWorking(stage.host);
    return wasDone;
}

class HostileOptions : public ::testing::TestWithParam<Deed>
{
};

} // namespace

TEST_P(HostileOptions, MayInEachMessage)
{
    LiveWithEachMessage(kLives, [](const Life& life, int at) { return LiveWith(GetParam(), life, at); });
}

INSTANTIATE_TEST_SUITE_P(Host, HostileOptions, ::testing::ValuesIn(kDeeds),
                         [](const auto& deed) { return std::string(deed.param.name); });

TEST(HostileOptionsLives, MeetEveryMessageOfTheEditor)
{
    QSet<QString> met;
    for (const Life& life : kLives) {
        Stage stage;
        if (life.isOpen)
            stage.Open();
        life.live(stage);
        for (const QString& name : stage.host.Names())
            met.insert(name);
    }
    EXPECT_EQ(Sorted(met), Sorted(kMessagesOfEditor));
}

TEST(HostileHost, KnowsEveryMessageThatThereIs)
{
    QSet<QString> all;
    for (const MessageForm& form : MessageTable())
        all.insert(QLatin1String(form.name));
    EXPECT_EQ(Sorted(kMessagesOfView + kMessagesOfEditor), Sorted(all));
}

} // namespace schedules::testing
