#pragma once

#include "TemplateDrawing.h"
#include "common/modResource.h"
#include "controls/lists/CheckList.h"
#include "support/FakeHost.h"
#include "support/ScriptedUserInterface.h"
#include "tools/options/ctlSchedOptions.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QStyleOptionViewItem>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>
#include <memory>

namespace schedules::testing {

inline const QString kPumps = "[x] Design {ShowGroupName=-1}\n"
                              "  [x] Flow\n"
                              "  [ ] Head\n"
                              "  [x] *Duty note (Note)\n"
                              "[x] Motor {ShowGroupName=0}\n"
                              "  [x] Power\n"
                              "[ ] Vendor {ShowGroupName=-1}\n"
                              "  [x] Price\n";

/// A list that can be clicked, other than a `CheckList` as the editor uses it.
class ClickableList : public CheckList
{
public:
    using CheckList::initViewItemOption;
};

/// The options editor in a window, between a host with a folder of template files and a user at the keyboard and the
/// mouse, both of which answer from a script. The host has no resource module, so that texts which have a number show
/// it: "Missing: 3077". It lists three templates: "pumps.xml" (drawn above, category Pumps), "fans.xml" (Fans) and
/// "rooms.xml", which is protected, has no category and no display name.
class OptionsTest : public ::testing::Test
{
protected:
    OptionsTest()
    {
        Write("pumps.xml", "Name='Pumps' DisplayName='Pump schedule' Category='PUMPS'", kPumps);
        Write("fans.xml", "Name='Fans' DisplayName='Fan schedule' Category='FANS'",
              "[x] Air\n  [x] Volume\n  [x] *Zone\n");
        Write("rooms.xml", "Name='Rooms'", "[x] Room\n  [x] Area\n");
        host.replies["GetResourceModule"] = "0";
        host.replies["GETBUILDERPATH"] = folder.path();
        host.replies["GETTEMPLATECATEGORIES"] = "<C><Category name='PUMPS' displayname='Pumps'/>"
                                                "<Category name='FANS' displayname='Fans'/></C>";
        host.replies["GETCURRENTSCHEDTEMPLATE"] = "pumps.xml";
        List({"name='Pumps' filename='pumps.xml' pdsg='p1' readonly='0' category='PUMPS' defaultforcategory='0'",
              "name='Fans' filename='fans.xml' pdsg='p2' readonly='0' category='FANS' defaultforcategory='0'",
              "name='Rooms' filename='rooms.xml' pdsg='p3' readonly='-1' category='' defaultforcategory='0'"});
    }
    ~OptionsTest() override { SetResourceModule(0); }

    // The files and the host's lists.

    QString PathOf(const QString& fileName) const { return folder.filePath(fileName); }

    void WriteFile(const QString& fileName, const QByteArray& content) const
    {
        QFile file(PathOf(fileName));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

    void Write(const QString& fileName, const QString& rootAttributes, const QString& drawing) const
    {
        WriteFile(fileName, TemplateText(rootAttributes, drawing).toUtf8());
    }

    std::string Content(const QString& fileName) const
    {
        QFile file(PathOf(fileName));
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "no file";
    }

    /// Makes the host list templates with these attributes.
    void List(const QStringList& templates)
    {
        host.replies["GETTEMPLATELIST"] =
            templates.isEmpty() ? "<Templates/>"
                                : "<Templates><Template " + templates.join("/><Template ") + "/></Templates>";
    }

    /// Makes the host list and use one template, of the drawn groups.
    void ListOne(const QString& drawing, const QString& rootAttributes = "Name='Pumps' DisplayName='Pump schedule'")
    {
        Write("pumps.xml", rootAttributes, drawing);
        List({"name='Pumps' filename='pumps.xml'"});
    }

    // The editor's life.

    void Initialize() { editor->IToolUI_Initialize(&host, "Host"); }

    void Show()
    {
        editor->resize(640, 480);
        editor->show();
        QApplication::setActiveWindow(editor.get());
        ASSERT_TRUE(QTest::qWaitForWindowActive(editor.get()));
    }

    /// Brings the editor up and forgets what was said on the way.
    void Start()
    {
        Initialize();
        editor->IToolUI_Activate();
        Show();
        Forget();
    }

    void Forget()
    {
        host.sent.clear();
        user.boxes.clear();
    }

    // What is on the screen.

    template <class Control>
    Control* Find(const char* name) const
    {
        auto* const control = editor->findChild<Control*>(QLatin1String(name));
        EXPECT_TRUE(control) << name;
        return control;
    }

    /// A member of a control array, such as `cmdGroupMove`.
    template <class Control>
    Control* Find(const char* name, int index) const
    {
        for (auto* const each : editor->findChildren<Control*>(QLatin1String(name))) {
            if (each->property("index") == index)
                return each;
        }
        ADD_FAILURE() << name << ' ' << index;
        return nullptr;
    }

    CheckList& Groups() const { return *Find<CheckList>("lstGroups"); }
    CheckList& Items() const { return *Find<CheckList>("lstItems"); }
    QComboBox& Templates() const { return *Find<QComboBox>("cboTemplates"); }
    QLineEdit& NameBox() const { return *Find<QLineEdit>("txtDisplayName"); }
    bool IsEnabled(const char* name) const { return Find<QWidget>(name)->isEnabled(); }

    /// "> [x] Design | [ ] Motor", the selected entry behind ">".
    static std::string Drawn(const CheckList& list)
    {
        QStringList entries;
        for (int row = 0; row < list.Count(); ++row)
            entries +=
                QString(row == list.CurrentRow() ? "> " : "") + (list.Checked(row) ? "[x] " : "[ ] ") + list.Text(row);
        return entries.join(" | ").toStdString();
    }
    std::string DrawnGroupList() const { return Drawn(Groups()); }
    std::string DrawnItemList() const { return Drawn(Items()); }

    /// Names of the controls that can be used, in the order of the lines of `Screen`.
    std::string Enabled() const
    {
        QStringList enabled;
        for (const char* name : {"cboTemplates", "lstGroups", "chkShowGroupName", "lstItems", "fraItem",
                                 "lblDisplayName", "txtDisplayName", "cmdUpdateUDItemName", "cmdResetUDItemName",
                                 "cmdSaveAs", "cmdDelete", "cmdOK", "cmdCancel", "cmdApply"})
            if (IsEnabled(name))
                enabled += name;
        for (const char* name : {"cmdGroupMove", "cmdItemMove"})
            for (const int index : {0, 1})
                if (Find<QPushButton>(name, index)->isEnabled())
                    enabled += QString("%1_%2").arg(name).arg(index);
        return enabled.join(' ').toStdString();
    }

    /// The whole of it:
    ///
    ///     Pump schedule - Pumps / Missing: 3077  Pumps
    ///     > [x] Design | [ ] Motor
    ///     Design Missing: 3070 / [x]
    ///     [x] Flow | > [x] *Duty note
    ///     Duty note
    ///     cboTemplates lstGroups ...
    std::string Screen() const
    {
        const QStringList lines{
            Templates().currentText() + " / " + Find<QGroupBox>("fraTemplate")->title(),
            QString::fromStdString(DrawnGroupList()),
            Find<QGroupBox>("fraGroup")->title() +
                (Find<QCheckBox>("chkShowGroupName")->isChecked() ? " / [x]" : " / [ ]"),
            QString::fromStdString(DrawnItemList()),
            NameBox().text(),
            QString::fromStdString(Enabled()),
        };
        return lines.join('\n').toStdString();
    }

    /// All that was sent: "request ctlSchedOptions -> Host: GETTEMPLATELIST 0 0 [2 Caller=]", a line each.
    std::string Log() const { return host.Log().join('\n').toStdString(); }
    std::string Names() const { return host.Names().join(' ').toStdString(); }

    /// What the user was shown: "text (style) title" for each box.
    std::string Boxes() const
    {
        QStringList boxes;
        for (const auto& box : user.boxes)
            boxes += QString("%1 (%2) %3").arg(box.text).arg(box.style).arg(box.title).trimmed();
        return boxes.join('\n').toStdString();
    }

    // What the user does.

    void Click(const char* button) const { QTest::mouseClick(Find<QAbstractButton>(button), Qt::LeftButton); }
    void Click(const char* button, int index) const
    {
        QTest::mouseClick(Find<QPushButton>(button, index), Qt::LeftButton);
    }

    static int RowOf(const CheckList& list, const QString& text)
    {
        for (int row = 0; row < list.Count(); ++row) {
            if (list.Text(row) == text)
                return row;
        }
        ADD_FAILURE() << text.toStdString();
        return -1;
    }

    static QRect EntryRect(CheckList& list, const QString& text)
    {
        const QModelIndex index = list.model()->index(RowOf(list, text), 0);
        list.scrollTo(index);
        return list.visualRect(index);
    }

    static void ClickEntry(CheckList& list, const QString& text)
    {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, EntryRect(list, text).center());
    }

    static void ClickMark(CheckList& list, const QString& text)
    {
        QStyleOptionViewItem option;
        (list.*(&ClickableList::initViewItemOption))(&option);
        option.rect = EntryRect(list, text);
        option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
        const QRect mark = list.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &list);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, mark.center());
    }

    void ClickGroup(const QString& text) const { ClickEntry(Groups(), text); }
    void ClickItem(const QString& text) const { ClickEntry(Items(), text); }
    void MarkGroup(const QString& text) const { ClickMark(Groups(), text); }
    void MarkItem(const QString& text) const { ClickMark(Items(), text); }

    /// Drags an entry to the place of another one.
    static void Drag(CheckList& list, const QString& text, const QString& to)
    {
        const QPoint start = EntryRect(list, text).center();
        const QPoint end = EntryRect(list, to).center();
        QTest::mousePress(list.viewport(), Qt::LeftButton, {}, start);
        for (const QPoint& point : {(start + end) / 2, end, end + QPoint(QApplication::startDragDistance(), 0)}) {
            QMouseEvent move(QEvent::MouseMove, point, list.viewport()->mapToGlobal(point), Qt::NoButton,
                             Qt::LeftButton, {});
            QApplication::sendEvent(list.viewport(), &move);
        }
        QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, end);
    }

    /// Chooses an entry of the template list by the keys Up and Down, and so all between it and the current one.
    void ChooseTemplate(int index) const
    {
        Templates().setFocus();
        while (Templates().currentIndex() < index)
            QTest::keyClick(&Templates(), Qt::Key_Down);
        while (Templates().currentIndex() > index)
            QTest::keyClick(&Templates(), Qt::Key_Up);
    }

    /// Opens the template list and chooses the entry that is chosen already, which drops the edits.
    void ChooseTemplateAgain() const
    {
        Templates().showPopup();
        QTest::keyClick(Templates().view(), Qt::Key_Return);
    }

    /// Replaces the text of the name editor by what the keyboard types.
    void TypeName(const QString& name) const
    {
        NameBox().setFocus(Qt::TabFocusReason);
        NameBox().selectAll();
        QTest::keyClick(&NameBox(), Qt::Key_Delete);
        QTest::keyClicks(&NameBox(), name);
    }

    /// The current template in the editor's memory, drawn. The edits are dropped and OK is pressed to see it, so that
    /// the log ends with what that sends.
    std::string Model()
    {
        ChooseTemplateAgain();
        Click("cmdOK");
        for (auto sent = host.sent.rbegin(); sent != host.sent.rend(); ++sent) {
            if (sent->message && sent->message->name == "SETCURRENTSCHEDTEMPLATE")
                return DrawnGroups(sent->message->parameters.Items().front().value.toString());
        }
        return "nothing was sent";
    }

    QTemporaryDir folder;
    FakeHost host;
    ScriptedUserInterface user;
    std::unique_ptr<ctlSchedOptions> editor = std::make_unique<ctlSchedOptions>(&user);
};

} // namespace schedules::testing
