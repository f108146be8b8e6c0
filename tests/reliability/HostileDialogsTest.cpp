// What a host may do while a tool shows a box or a dialog of its own: take the tool away, or the window that it is in,
// show something else, or set properties. The tool has the desktop's dialogs.

#include "HostileDesk.h"

#include <QMenu>
#include <QToolButton>

namespace schedules::testing {

namespace {

/// What becomes of the edit of a life, whatever happens meanwhile that does not take it.
enum class Edit
{
    None,
    IsKept,         ///< not saved, if it was not
    IsSavedByAccept ///< kept by a refusal
};

template <class Tool>
struct Life
{
    const char* name;
    int dialogs; ///< how many there are when nothing else happens and all is accepted
    void (*live)(Desk<Tool>& desk);
    Edit edit = Edit::None;
};

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
    {"a broken text transposed", 4,
     [](ViewDesk& desk) {
         Load(desk, "LoadScheduleData");
         if (desk.tool.Lives())
             desk.tool.ClickTool("btnTranspose");
     }},
    {"a save that the host refuses", 1,
     [](ViewDesk& desk) {
         StartEdited(desk);
         desk.host.failing = {"UpdateTagScheduleData"};
         desk.tool.ClickTool("btnSaveTag");
     },
     Edit::IsKept},
    {"the question before closing", 1,
     [](ViewDesk& desk) {
         StartEdited(desk);
         desk.tool.Press("cmdCancel");
     },
     Edit::IsSavedByAccept},
    {"the question before the view is closed", 1,
     [](ViewDesk& desk) {
         StartEdited(desk);
         desk.tool.Widget().close();
     },
     Edit::IsSavedByAccept},
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
         desk.isEmpty = true;
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
     },
     Edit::IsSavedByAccept},
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
     },
     Edit::IsSavedByAccept},
};

bool IsSaved(const ViewDesk& desk)
{
    return desk.host.Handed("20");
}

bool IsSaved(const EditorDesk& desk)
{
    return desk.host.HasSavedMark();
}

bool TakesEdit(const ViewDesk&, const Happening& happening)
{
    return happening.takesEdits;
}

bool TakesEdit(const EditorDesk&, const Happening& happening)
{
    return happening.after == ToolAfter::MayBeDeactivated;
}

template <class Tool>
void ExpectEdit(Edit edit, const Happening* happening, const Desk<Tool>& desk, bool isAccepted)
{
    if (edit == Edit::None || !desk.tool.Lives() || (happening && TakesEdit(desk, *happening)))
        return;
    const bool mustBeSaved = edit == Edit::IsSavedByAccept && isAccepted;
    EXPECT_TRUE(IsSaved(desk) || (!mustBeSaved && desk.tool.HasUnsavedEdits()));
}

/// Lets it happen at the dialog of that number. The ones before that are accepted, that one and the others are answered
/// in one way. How many dialogs there were.
template <class Tool>
int LiveWith(const Life<Tool>& life, const Happening* happening, int at, bool accepts)
{
    Desk<Tool> desk;
    int dialogs = 0;
    {
        const auto answer = [&](QDialog& dialog, int number) {
            number < at || accepts ? desk.Accept(dialog) : dialog.reject();
        };
        const DialogUser user(
            at, [&] { desk.Do(*happening); }, answer);
        life.live(desk);
        dialogs = user.Count();
    }
    EXPECT_FALSE(QApplication::overrideCursor());
    ExpectEdit(life.edit, happening, desk, accepts);
    ExpectWorkingAfter(happening, desk);
    return dialogs;
}

template <class Tool>
void InEachDialogOf(std::span<const Life<Tool>> lives, const Happening& happening)
{
    for (const Life<Tool>& life : lives) {
        for (int at = 1; at <= life.dialogs; ++at) {
            for (const bool accepts : {true, false}) {
                SCOPED_TRACE(std::string(life.name) + (accepts ? ", accepted at " : ", refused at ") +
                             std::to_string(at));
                EXPECT_GE(LiveWith(life, &happening, at, accepts), at) << "it did not happen";
            }
        }
    }
}

class HostileViewDialogs : public ::testing::TestWithParam<Happening>
{
};

class HostileEditorDialogs : public ::testing::TestWithParam<Happening>
{
};

} // namespace

TEST_P(HostileViewDialogs, OfEveryLife)
{
    InEachDialogOf<HostedView>(kViewLives, GetParam());
}

TEST_P(HostileEditorDialogs, OfEveryLife)
{
    InEachDialogOf<HostedEditor>(kEditorLives, GetParam());
}

INSTANTIATE_TEST_SUITE_P(While, HostileViewDialogs, ::testing::ValuesIn(kHappenings), NameOf);
INSTANTIATE_TEST_SUITE_P(WhileIt, HostileViewDialogs, ::testing::Values(kCleaned), NameOf);
INSTANTIATE_TEST_SUITE_P(While, HostileEditorDialogs, ::testing::ValuesIn(kHappenings), NameOf);

/// So the dialogs above are those that there are.
TEST(HostileDialogsLives, ShowAsManyDialogsAsTheyTell)
{
    for (const auto& life : kViewLives)
        EXPECT_EQ(LiveWith(life, nullptr, 0, true), life.dialogs) << life.name;
    for (const auto& life : kEditorLives)
        EXPECT_EQ(LiveWith(life, nullptr, 0, true), life.dialogs) << life.name;
}

} // namespace schedules::testing
