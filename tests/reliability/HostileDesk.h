#pragma once

#include "DialogUser.h"
#include "TemplateHost.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

namespace schedules::testing {

/// What a host does while a tool, in a window of the host, waits for the user.
struct Happening
{
    const char* name;
    void (*act)(HostedTool& tool, QWidget* window);
    ToolAfter after = ToolAfter::Lives;
    bool takesEdits = false; ///< of a view, by another text
};

inline void PrintTo(const Happening& happening, std::ostream* out)
{
    *out << happening.name;
}

inline void ShowText(const HostedTool& tool, const QString& text)
{
    tool.Ui().IToolUI_XML(text);
    tool.Ui().IToolUI_Activate();
}

inline const Happening kHappenings[] = {
    {"ToolDeleted", [](HostedTool& tool, QWidget*) { tool.Delete(); }, ToolAfter::IsGone},
    {"WindowDeleted", [](HostedTool&, QWidget* window) { delete window; }, ToolAfter::IsGone},
    {"ToolDeletedLater",
     [](HostedTool& tool, QWidget*) {
         tool.Widget().deleteLater();
         QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
     },
     ToolAfter::IsGone},
    {"WindowClosed", [](HostedTool&, QWidget* window) { window->close(); }},
    {"Hidden", [](HostedTool& tool, QWidget*) { tool.Widget().hide(); }},
    {"Deactivated", [](HostedTool& tool, QWidget*) { tool.Ui().IToolUI_Deactivate(true); },
     ToolAfter::MayBeDeactivated},
    {"Activated", [](HostedTool& tool, QWidget*) { tool.Ui().IToolUI_Activate(); }},
    {"OtherTextShown", [](HostedTool& tool, QWidget*) { ShowText(tool, kOtherSchedule); }, ToolAfter::Lives, true},
    {"BrokenTextShown", [](HostedTool& tool, QWidget*) { ShowText(tool, kBroken); }, ToolAfter::Lives, true},
    {"PropertiesEmpty", [](HostedTool& tool, QWidget*) { SetProperties(tool.Widget(), EmptyValues()); }},
    {"PropertiesNegative", [](HostedTool& tool, QWidget*) { SetProperties(tool.Widget(), NegativeValues()); }},
    {"PropertiesHuge", [](HostedTool& tool, QWidget*) { SetProperties(tool.Widget(), HugeValues()); }},
    {"PropertiesOfOtherKinds", [](HostedTool& tool, QWidget*) { SetProperties(tool.Widget(), ValuesOfOtherKinds()); }},
};

/// Only a view can be emptied.
inline const Happening kCleaned{
    "Cleaned", [](HostedTool& tool, QWidget*) { QMetaObject::invokeMethod(&tool.Widget(), "CleanUP"); }};

inline std::string NameOf(const ::testing::TestParamInfo<Happening>& happening)
{
    return happening.param.name;
}

/// A tool in a window of its host.
template <class Tool>
struct Desk
{
    Desk()
    {
        tool.Widget().setParent(window);
        window->resize(800, 500);
        window->show();
        tool.Widget().show();
    }
    ~Desk() { delete window; }
    Q_DISABLE_COPY_MOVE(Desk)

    void Do(const Happening& happening)
    {
        ASSERT_TRUE(tool.Lives());
        isEmpty = isEmpty || happening.after == ToolAfter::MayBeDeactivated;
        happening.act(tool, window);
    }

    QString NewFile() { return host.folder.filePath(QStringLiteral("out%1").arg(++files)); }

    /// Goes on at each dialog as far as it goes: Yes, a name for a file, the PDF file of a print.
    void Accept(QDialog& dialog)
    {
        if (auto* const box = qobject_cast<QMessageBox*>(&dialog)) {
            QAbstractButton* const yes = box->button(QMessageBox::Yes);
            return (yes ? yes : box->buttons().constFirst())->click();
        }
        if (auto* const chooser = qobject_cast<QFileDialog*>(&dialog)) {
            chooser->findChild<QLineEdit*>("fileNameEdit")->setText(NewFile());
            QMetaObject::invokeMethod(chooser, "accept");
            return;
        }
        for (auto* const button : dialog.findChildren<QPushButton*>()) {
            if (button->text() == "Save as PDF...")
                return button->click();
        }
        if (auto* const name = dialog.findChild<QLineEdit*>("Text1")) {
            name->setText("new");
            return QTest::keyClick(name, Qt::Key_Return);
        }
        dialog.accept();
    }

    TemplateHost host;
    QPointer<QWidget> window = new QWidget;
    Tool tool;
    int files = 0;
    bool isEmpty = false; ///< has nothing to be edited: no list of templates, or it was deactivated
};

using ViewDesk = Desk<HostedView>;
using EditorDesk = Desk<HostedEditor>;

inline void Start(ViewDesk& desk, int viewType, const QString& xml)
{
    desk.tool.Widget().setProperty("ViewType", viewType);
    desk.tool.Widget().setProperty("ShowPrintButtonOnUnitSelector", true);
    desk.tool.Ui().IToolUI_Initialize(&desk.host, "Host");
    ShowText(desk.tool, xml);
}

inline void ExpectWorking(ViewDesk& desk)
{
    desk.host.failing.clear();
    Start(desk, kScheduleView, kSchedule);
    EXPECT_EQ(desk.tool.Drawn(), kDrawnSchedule);
    desk.tool.Edit(2, 2, "50");
    EXPECT_TRUE(desk.tool.HasUnsavedEdits());
}

inline void ExpectWorking(EditorDesk& desk)
{
    EXPECT_TRUE(desk.tool.EditsAndApplies(desk.host) || desk.isEmpty);
    desk.tool.ExpectLeft(desk.host);
}

/// A tool that was not taken works for a user who accepts whatever he is asked.
template <class Tool>
void ExpectWorkingAfter(const Happening* happening, Desk<Tool>& desk)
{
    EXPECT_EQ(desk.tool.Lives(), !happening || happening->after != ToolAfter::IsGone);
    if (!desk.tool.Lives())
        return;
    const DialogUser user(0, {}, [&](QDialog& dialog, int) { desk.Accept(dialog); });
    desk.window->show();
    desk.tool.Widget().show();
    ExpectWorking(desk);
}

} // namespace schedules::testing
