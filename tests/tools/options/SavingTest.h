#pragma once

#include "OptionsTest.h"
#include "common/StringNumbers.h"
#include "common/XmlDocument.h"
#include "model/CTemplate.h"
#include "support/ModalDialog.h"
#include "tools/options/saveas/frmSaveAs.h"

#include <QDir>
#include <QPointer>
#include <QScrollBar>

#include <deque>
#include <functional>

namespace schedules::testing {

/// Passes on to a user who answers from a script, and lets something happen while he reads a box.
class WatchedUser : public UserInterface
{
public:
    explicit WatchedUser(UserInterface& user) : m_user(user) {}

    Answer Show(const MessageBox& box) override
    {
        if (whileOpen)
            whileOpen();
        return m_user.Show(box);
    }
    void SetPointer(Pointer pointer) override { m_user.SetPointer(pointer); }
    void Beep() override { m_user.Beep(); }
    QString AskSaveFileName(const FileQuestion& question) override { return m_user.AskSaveFileName(question); }

    std::function<void()> whileOpen;

private:
    UserInterface& m_user;
};

/// A host that keeps its list of templates as the editor tells it to, with "pumps.xml" in use.
class SavingTest : public OptionsTest
{
protected:
    SavingTest()
    {
        editor = std::make_unique<ctlSchedOptions>(&watched);
        host.onSend = [this](const QString& name) {
            Follow(name);
            if (inside)
                inside(name);
        };
    }
    ~SavingTest() override
    {
        editor.reset();
        EXPECT_EQ(AskNoMore(), 0) << "the dialog was not shown";
    }

    // The host.

    void Follow(const QString& name)
    {
        const auto& parameters = host.sent.back().message->parameters.Items();
        if (name == "UPDATESCHEDCONFIG")
            host.replies["GETTEMPLATELIST"] = parameters[0].value.toString();
        else if (name == "REMOVECONFIGENTRY")
            Unlist(parameters[0].value.toString());
        else if (name == "SETCURRENTSCHEDTEMPLATE")
            host.replies["GETCURRENTSCHEDTEMPLATE"] = parameters[1].value.toString();
    }

    void Unlist(const QString& fileName)
    {
        QStringList kept;
        const auto list = XmlDocument::FromText(HostList());
        for (const XmlNode& entry : list.Select("//Template")) {
            if (entry.Attribute("filename") != fileName)
                kept += entry.ToText();
        }
        host.replies["GETTEMPLATELIST"] = "<Templates>" + kept.join("") + "</Templates>";
    }

    QString HostList() const { return host.replies["GETTEMPLATELIST"]; }

    /// The entries of the host's list: "Pumps=pumps.xml Fans=fans.xml".
    std::string Listed() const
    {
        QStringList listed;
        const auto list = XmlDocument::FromText(HostList());
        for (const XmlNode& entry : list.Select("//Template"))
            listed += entry.Attribute("name") + '=' + entry.Attribute("filename");
        return listed.join(' ').toStdString();
    }

    /// "pumps.xml" with these groups and root attributes, in a list of its own beside nothing.
    void StartWith(const QString& rootAttributes, const QString& listed = "name='Pumps' filename='pumps.xml'")
    {
        Write("pumps.xml", rootAttributes, kPumps);
        List({listed});
        Start();
    }

    // What was sent.

    /// Requests of the editor, a line each.
    static std::string Requests(const QStringList& requests)
    {
        const QString start = "request ctlSchedOptions -> Host: ";
        return requests.isEmpty() ? std::string() : (start + requests.join('\n' + start)).toStdString();
    }

    static inline const QString kAskList = "GETTEMPLATELIST 0 0 [2 Caller=]";
    static inline const QString kAskCategories = "GETTEMPLATECATEGORIES 0 0";
    static inline const QStringList kReload{kAskList, "GETBUILDERPATH 0 0 [2 Caller=]", kAskCategories,
                                            "GETCURRENTSCHEDTEMPLATE 0 0"};
    static constexpr auto kUnload = "event ctlSchedOptions -> Host: UnloadScheduleOptions 8 9 [8 Cancel=True]";

    /// What a save sends once the file is known to be free: the list, and everything anew.
    static QStringList Saving(const QString& list)
    {
        return QStringList{kAskList, kAskList, "UPDATESCHEDCONFIG 0 0 [4 ConfigXML=" + list + ']'} + kReload;
    }

    static QString SetCurrent(const std::string& xml, const QString& fileName)
    {
        return "SETCURRENTSCHEDTEMPLATE 0 0 [4 TemplateXML=" + QString::fromStdString(xml) +
               "] [2 TemplateFile=" + fileName + ']';
    }

    static std::string ErrorOf(const QString& description, const char* procedure,
                               const char* source = "Schedules.ctlSchedOptions.SaveTemplateEx")
    {
        return QString("event ctlSchedOptions -> Framework: ErrorMessage 20 9 [2 ErrorDescription=%1] "
                       "[2 ErrorSource=%2] [3 ErrorNumber=%3] [2 ProcName=Schedules.ctlSchedOptions.%4]")
            .arg(description, source, QString::number(static_cast<int>(0x80047FFFU)), procedure)
            .toStdString();
    }

    static std::string MissingError(int number, const char* procedure)
    {
        return ErrorOf(QString("Missing: %1").arg(number), procedure);
    }

    // The folder.

    std::string FolderFiles() const
    {
        const auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
        QStringList names = QDir(folder.path()).entryList(all);
        names.sort();
        return names.join(' ').toStdString();
    }

    /// A file read into a new template, its groups drawn.
    std::string ReadBack(const QString& fileName)
    {
        CTemplate read(user);
        read.SetFilePath(folder.path());
        read.SetFilename(fileName);
        EXPECT_TRUE(read.XMLToObject()) << fileName.toStdString();
        return DrawnGroups(read.ObjectToXML());
    }

    std::string RootAttribute(const QString& fileName, const QString& name) const
    {
        const auto document = XmlDocument::FromText(QString::fromStdString(Content(fileName)));
        return document.Root().Attribute(name).toStdString();
    }

    // The user.

    /// Makes the current template differ from its file.
    void Edit() const { MarkGroup(Groups().Text(0)); }

    void Apply() const { Click("cmdApply"); }
    bool IsDirty() const { return editor->HasUnsavedEdits(); }
    std::string Current() const { return Find<QGroupBox>("fraTemplate")->title().toStdString(); }

    using InDialog = std::function<void(frmSaveAs&)>;

    /// What the user does in the dialog, one after the other for each time that it is shown. It must close then.
    static void WhenAsked(std::deque<InDialog> actions)
    {
        if (actions.empty())
            return;
        const InDialog next = actions.front();
        actions.pop_front();
        OnceModal<frmSaveAs>([next, actions](frmSaveAs& dialog) {
            const QPointer alive(&dialog);
            WhenAsked(actions);
            next(dialog);
            if (alive && alive->isVisible()) {
                ADD_FAILURE() << "the dialog is still open";
                alive->reject();
            }
        });
    }

    /// Forgets what was to be done in dialogs; how much that was.
    static int AskNoMore()
    {
        int waiting = 0;
        for (QTimer* const each : qApp->findChildren<QTimer*>(Qt::FindDirectChildrenOnly)) {
            waiting += each->isActive() ? 1 : 0;
            delete each;
        }
        return waiting;
    }

    /// As an input method types it: a name may have characters without a key.
    static void TypeInto(frmSaveAs& dialog, const char* box, const QString& text)
    {
        auto* const field = dialog.findChild<QLineEdit*>(box);
        field->setFocus();
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, text);
        QApplication::sendEvent(field, &press);
    }

    static void PressIn(frmSaveAs& dialog, const char* button)
    {
        QTest::mouseClick(dialog.findChild<QPushButton*>(button), Qt::LeftButton);
    }

    static void ChooseCategory(frmSaveAs& dialog, int index)
    {
        auto* const categories = dialog.findChild<QComboBox*>("cboCategory");
        QTest::keyClick(categories, Qt::Key_Home);
        for (int step = 0; step < index; ++step)
            QTest::keyClick(categories, Qt::Key_Down);
    }

    /// Enters a name, and the first category where the template has none.
    static InDialog Enter(const QString& name)
    {
        return [name](frmSaveAs& dialog) {
            TypeInto(dialog, "Text1", name);
            if (!dialog.HasCategory())
                ChooseCategory(dialog, 0);
            QTest::keyClick(dialog.findChild<QLineEdit*>("Text1"), Qt::Key_Return);
        };
    }
    static void Cancel(frmSaveAs& dialog) { PressIn(dialog, "cmdCancel"); }

    /// "title|name|file name|caption|category|entry, entry" as the dialog shows them.
    static std::string Fields(const frmSaveAs& dialog)
    {
        const auto* const categories = dialog.findChild<QComboBox*>("cboCategory");
        QStringList entries;
        for (int index = 0; index < categories->count(); ++index)
            entries += categories->itemText(index);
        QStringList fields{dialog.windowTitle()};
        for (const char* box : {"Text1", "Text2", "txtTemplCaption"})
            fields += dialog.findChild<QLineEdit*>(box)->text();
        fields += categories->currentText();
        return (fields.join('|') + '|' + entries.join(", ")).toStdString();
    }

    void SaveAs(const QString& name) const
    {
        WhenAsked({Enter(name)});
        Click("cmdSaveAs");
    }

    WatchedUser watched{user};
    std::function<void(const QString& name)> inside; ///< what the host does before it answers
};

} // namespace schedules::testing
