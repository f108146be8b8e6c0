// What a host may do while a tool shows a box or a dialog of its own: take the tool away, or the window that it is in,
// or show something else. The tool has the desktop's dialogs.

#include "DialogUser.h"
#include "TemplateHost.h"

#include <QDir>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QToolButton>

#include <optional>

namespace schedules::testing {

namespace {

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

    QString NewFile() { return host.folder.filePath(QStringLiteral("out%1").arg(++files)); }

    /// Goes on at each dialog as far as it goes: Yes, a name for a file, the PDF file of a print.
    void Accept(QDialog& dialog)
    {
        if (auto* const box = qobject_cast<QMessageBox*>(&dialog))
            return box->defaultButton() ? box->defaultButton()->click() : box->buttons().constFirst()->click();
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
};

using ViewDesk = Desk<HostedView>;
using EditorDesk = Desk<HostedEditor>;

enum class Happens
{
    ToolDeleted,
    WindowDeleted,
    ToolDeletedLater,
    WindowClosed,
    Deactivated,
    Activated,
    OtherTextShown,
    BrokenTextShown,
    Cleaned,
    Hidden
};

constexpr std::array kHappens{
    Happens::ToolDeleted, Happens::WindowDeleted, Happens::ToolDeletedLater, Happens::WindowClosed,
    Happens::Deactivated, Happens::Activated,     Happens::OtherTextShown,   Happens::BrokenTextShown,
    Happens::Cleaned,     Happens::Hidden,
};

template <class Tool>
void Do(Happens happens, Desk<Tool>& desk)
{
    if (!desk.tool.Lives())
        return;
    IToolUI& ui = desk.tool.Ui();
    switch (happens) {
    case Happens::ToolDeleted:
        return desk.tool.Delete();
    case Happens::WindowDeleted:
        delete desk.window;
        return;
    case Happens::ToolDeletedLater:
        desk.tool.Widget().deleteLater();
        return QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    case Happens::WindowClosed:
        desk.window->close();
        return;
    case Happens::Deactivated:
        return ui.IToolUI_Deactivate(true);
    case Happens::Activated:
        return ui.IToolUI_Activate();
    case Happens::OtherTextShown:
        ui.IToolUI_XML(kOtherSchedule);
        return ui.IToolUI_Activate();
    case Happens::BrokenTextShown:
        ui.IToolUI_XML(kBroken);
        return ui.IToolUI_Activate();
    case Happens::Cleaned:
        QMetaObject::invokeMethod(&desk.tool.Widget(), "CleanUP");
        return;
    case Happens::Hidden:
        return desk.tool.Widget().hide();
    }
}

template <class Tool>
struct Life
{
    const char* name;
    int dialogs; ///< how many there are when nothing else happens and all is accepted
    void (*live)(Desk<Tool>& desk);
};

void Start(ViewDesk& desk, int viewType, const QString& xml)
{
    desk.tool.Widget().setProperty("ViewType", viewType);
    desk.tool.Widget().setProperty("ShowPrintButtonOnUnitSelector", true);
    desk.tool.Ui().IToolUI_Initialize(&desk.host, "Host");
    desk.tool.Ui().IToolUI_XML(xml);
    desk.tool.Ui().IToolUI_Activate();
}

void StartEdited(ViewDesk& desk)
{
    Start(desk, kScheduleView, kSchedule);
    desk.tool.Edit(1, 1, "20");
}

void Load(ViewDesk& desk, const char* method)
{
    Start(desk, kScheduleView, kSchedule);
    QMetaObject::invokeMethod(&desk.tool.Widget(), method, Q_ARG(QString, kBroken));
}

void ChooseExport(ViewDesk& desk, const char* entry)
{
    Start(desk, kScheduleView, kSchedule);
    auto& menu = desk.tool.Find<QMenu>("mnuExport");
    menu.popup(desk.window->mapToGlobal(QPoint(10, 10)));
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&desk.tool.Find<QAction>(entry)).center());
    QCoreApplication::processEvents();
}

/// From the menu of a bar that is too narrow for its tools.
void PrintFromNarrowBar(ViewDesk& desk)
{
    Start(desk, kScheduleView, kSchedule);
    desk.tool.Widget().resize(150, 400);
    QCoreApplication::processEvents();
    auto& more = desk.tool.Find<QToolButton>("qt_toolbar_ext_button");
    QTimer::singleShot(0, &more, [&more, print = &desk.tool.Find<QAction>("btnPrint")] {
        QMenu& menu = *more.menu();
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(print).center());
    });
    QTest::keyClick(&more, Qt::Key_Return);
    QCoreApplication::processEvents();
}

const Life<HostedView> kViewLives[] = {
    {"a schedule that cannot be loaded", 2, [](ViewDesk& desk) { Start(desk, kScheduleView, kBroken); }},
    {"an empty schedule", 2, [](ViewDesk& desk) { Start(desk, kScheduleView, "<TABLE/>"); }},
    {"a selection that cannot be loaded", 2, [](ViewDesk& desk) { Start(desk, kSelectorView, kBroken); }},
    {"LoadScheduleData", 2, [](ViewDesk& desk) { Load(desk, "LoadScheduleData"); }},
    {"LoadSelectionData", 2, [](ViewDesk& desk) { Load(desk, "LoadSelectionData"); }},
    {"a broken text transposed", 2,
     [](ViewDesk& desk) {
         Start(desk, kScheduleView, kSchedule);
         desk.tool.Ui().IToolUI_XML(kBroken);
         desk.tool.ClickTool("btnTranspose");
     }},
    {"a save that the host refuses", 1,
     [](ViewDesk& desk) {
         StartEdited(desk);
         desk.host.failing = {"UpdateTagScheduleData"};
         desk.tool.ClickTool("btnSaveTag");
     }},
    {"the question before closing", 1,
     [](ViewDesk& desk) {
         StartEdited(desk);
         desk.tool.Press("cmdCancel");
     }},
    {"the question before the view is closed", 1,
     [](ViewDesk& desk) {
         StartEdited(desk);
         desk.tool.Widget().close();
     }},
    {"Continue without a tag", 1,
     [](ViewDesk& desk) {
         Start(desk, kSelectorView, kSelection);
         desk.tool.Press("cmdContinue");
     }},
    {"Print without a tag", 1,
     [](ViewDesk& desk) {
         Start(desk, kSelectorView, kSelection);
         desk.tool.ClickTool("btnPrint");
     }},
    {"a print", 2,
     [](ViewDesk& desk) {
         Start(desk, kScheduleView, kSchedule);
         desk.tool.ClickTool("btnPrint");
     }},
    {"a print from a narrow bar", 2, PrintFromNarrowBar},
    {"a workbook", 1, [](ViewDesk& desk) { ChooseExport(desk, "mnuExportExcel"); }},
    {"a web page", 2, [](ViewDesk& desk) { ChooseExport(desk, "mnuExportHtml"); }},
};

void StartOn(EditorDesk& desk, const char* fileName)
{
    desk.host.replies["GETCURRENTSCHEDTEMPLATE"] = fileName;
    desk.tool.Start(desk.host);
}

const Life<HostedEditor> kEditorLives[] = {
    {"a list that cannot be read", 1,
     [](EditorDesk& desk) {
         desk.host.replies["GETTEMPLATELIST"] = kBroken;
         desk.tool.Start(desk.host);
     }},
    {"templates that are read in part", 1,
     [](EditorDesk& desk) {
         desk.host.Write("fans.xml", "<Template><Group/></Template>");
         desk.tool.Start(desk.host);
     }},
    {"the question before deleting", 1,
     [](EditorDesk& desk) {
         StartOn(desk, "pumps.xml");
         desk.tool.Press("cmdDelete");
     }},
    {"the question before overwriting", 1,
     [](EditorDesk& desk) {
         StartOn(desk, "pumps.xml");
         desk.tool.Mark();
         desk.host.Write("pumps.xml", "<Template/>");
         desk.tool.Press("cmdOK");
     }},
    {"the name of a new template", 1,
     [](EditorDesk& desk) {
         StartOn(desk, "pumps.xml");
         desk.tool.Press("cmdSaveAs");
     }},
    {"the name of a protected template's edits", 1,
     [](EditorDesk& desk) {
         StartOn(desk, "rooms.xml");
         desk.tool.Mark();
         desk.tool.Press("cmdApply");
     }},
};

void ExpectWorking(ViewDesk& desk)
{
    desk.host.failing.clear();
    Start(desk, kScheduleView, kSchedule);
    EXPECT_EQ(desk.tool.Drawn(), kDrawnSchedule);
    desk.tool.Widget().show();
    desk.tool.Edit(2, 2, "50");
    EXPECT_TRUE(desk.tool.HasUnsavedEdits());
}

void ExpectWorking(EditorDesk& desk)
{
    desk.tool.ExpectLeft(desk.host);
}

/// Lets it happen at the dialog of that number, all of which are answered in one way. How many dialogs there were.
template <class Tool>
int LiveWith(const Life<Tool>& life, std::optional<Happens> happens, int at, bool accepts)
{
    Desk<Tool> desk;
    int dialogs = 0;
    {
        const DialogUser user(
            at, [&] { Do(*happens, desk); }, [&](QDialog& dialog) { accepts ? desk.Accept(dialog) : dialog.reject(); });
        life.live(desk);
        dialogs = user.Count();
    }
    EXPECT_FALSE(QApplication::overrideCursor());
    if (desk.window && desk.tool.Lives()) {
        desk.window->show();
        desk.tool.Widget().show();
        ExpectWorking(desk);
    }
    return dialogs;
}

template <class Tool>
void InEachDialogOf(std::span<const Life<Tool>> lives, Happens happens)
{
    for (const Life<Tool>& life : lives) {
        for (int at = 1; at <= life.dialogs; ++at) {
            for (const bool accepts : {true, false}) {
                SCOPED_TRACE(std::string(life.name) + (accepts ? ", accepted at " : ", refused at ") +
                             std::to_string(at));
                LiveWith(life, happens, at, accepts);
            }
        }
    }
}

std::string NameOf(Happens happens)
{
    constexpr std::array kNames{"ToolDeleted", "WindowDeleted",  "ToolDeletedLater", "WindowClosed", "Deactivated",
                                "Activated",   "OtherTextShown", "BrokenTextShown",  "Cleaned",      "Hidden"};
    return kNames[static_cast<std::size_t>(happens)];
}

class HostileDialogs : public ::testing::TestWithParam<Happens>
{
};

} // namespace

TEST_P(HostileDialogs, OfTheView)
{
    InEachDialogOf<HostedView>(kViewLives, GetParam());
}

TEST_P(HostileDialogs, OfTheEditor)
{
    InEachDialogOf<HostedEditor>(kEditorLives, GetParam());
}

INSTANTIATE_TEST_SUITE_P(While, HostileDialogs, ::testing::ValuesIn(kHappens),
                         [](const auto& happens) { return NameOf(happens.param); });

/// A menu is no dialog, but it waits for the user as well.
TEST(HostileMenus, ViewsMayBeDeletedWhileOneIsOpen)
{
    for (const bool isWhole : {true, false}) {
        ViewDesk desk;
        Start(desk, kScheduleView, kSchedule);
        desk.tool.Widget().resize(isWhole ? 800 : 150, 400);
        QCoreApplication::processEvents();
        QWidget* const button =
            isWhole ? desk.tool.Find<QToolBar>("tbTasks").widgetForAction(&desk.tool.Find<QAction>("btnExport"))
                    : &desk.tool.Find("qt_toolbar_ext_button");
        bool wasOpen = false;
        QTimer::singleShot(0, button, [&] {
            wasOpen = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            desk.tool.Delete();
        });
        QTest::keyClick(button, isWhole ? Qt::Key_Down : Qt::Key_Return);
        EXPECT_TRUE(wasOpen);
        EXPECT_FALSE(desk.tool.Lives());
    }
}

/// So the dialogs above are those that there are.
TEST(HostileDialogsLives, ShowAsManyDialogsAsTheyTell)
{
    for (const auto& life : kViewLives)
        EXPECT_EQ(LiveWith(life, std::nullopt, 0, true), life.dialogs) << life.name;
    for (const auto& life : kEditorLives)
        EXPECT_EQ(LiveWith(life, std::nullopt, 0, true), life.dialogs) << life.name;
}

} // namespace schedules::testing
