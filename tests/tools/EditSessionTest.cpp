// One owner of edits: grid, marks, flag, Save tool and document say the same, whatever the host hands over meanwhile.

#include "tools/WorkflowTest.h"

#include <QSignalSpy>

namespace schedules {

namespace {

/// The rows of the editable schedule exchanged: other headers at the same places.
const QString kExchanged =
    QStringLiteral("<TABLE><TR><TH/><TH>Flow</TH><TH>Head</TH><TH>Note</TH></TR>"
                   "<TR><TH>P-2</TH><TD AllowEdit='-1'>13</TD><TD AllowEdit='-1'>49</TD><TD>fixed</TD></TR>"
                   "<TR><TH>P-1</TH><TD AllowEdit='-1'>12</TD><TD>48</TD><TD AllowEdit='-1'>spare</TD></TR></TABLE>");

std::string WithEdit(const QString& document, const char* from, const char* to)
{
    const QString before = QStringLiteral("AllowEdit='-1'>%1<").arg(QLatin1String(from));
    EXPECT_TRUE(document.contains(before));
    return QString(document)
        .replace(before, QStringLiteral("AllowEdit='-1' Dirty=\"-1\">%1<").arg(QLatin1String(to)))
        .toStdString();
}

} // namespace

class EditSessionTest : public WorkflowTest
{
protected:
    void ShowSchedule() { Show(kScheduleView, kEditable); }

    bool HasUnsavedEdits() const { return view.property("HasUnsavedEdits").toBool(); }
    bool CanSave() const { return Tool("btnSaveTag")->isEnabled(); }

    /// Flag, Save tool and marks in one line.
    std::string State() const
    {
        return std::string(Dirty() ? "dirty" : "clean") + (CanSave() ? ", save" : "") + ": " + Marked();
    }

    /// Opens a cell that holds only that text, and leaves it in every way that changes nothing.
    void VisitCellWith(const QString& text)
    {
        Show(kScheduleView, QStringLiteral("<TABLE><TR><TH/><TH>A</TH><TH>B</TH></TR><TR><TH>1</TH>"
                                           "<TD AllowEdit='-1'>%1</TD><TD>b</TD></TR></TABLE>")
                                .arg(text));
        for (const auto leave : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Tab}) {
            TheSheet()->SetActiveCell({});
            ClickCell(1, 1);
            ASSERT_EQ(Edit(), "1,1: " + text.toStdString());
            Key(leave);
            EXPECT_EQ(TheSheet()->Text({Column(1), Row(1)}), text);
        }
        ClickCell(1, 1);
        ClickCell(2, 1);
        EXPECT_EQ(TheSheet()->Text({Column(1), Row(1)}), text);
        EXPECT_EQ(State(), "clean: ");
    }
};

TEST_F(EditSessionTest, AnUntouchedTextOfHardBlanksChangesNothing)
{
    VisitCellWith(QChar(0x00A0));
    VisitCellWith(QChar(0x3000));
}

TEST_F(EditSessionTest, OnlyBlanksTabsAndLineEndsAreNoValue)
{
    ShowSchedule();
    ClickCell(1, 1);
    Box()->setText(QChar(0x00A0));
    Key(Qt::Key_Return);
    EXPECT_EQ(TheSheet()->Text({Column(1), Row(1)}), QChar(0x00A0));
    EditCell(1, 2, "  ");
    EXPECT_EQ(TextAt(1, 2), "");
}

TEST_F(EditSessionTest, AnEditThatIsOpenWhenAnotherTableIsActivatedStaysOutOfIt)
{
    for (const QString& other : {kOtherSchedule, kExchanged}) {
        ShowSchedule();
        ClickCell(1, 1);
        Type("20");
        view.IToolUI_XML(other);
        EXPECT_EQ(Edit(), "1,1: 20") << "new text changes nothing on screen";
        view.IToolUI_Activate();
        EXPECT_EQ(State(), "clean: ");
        Click("btnSaveTag");
        EXPECT_EQ(SavedXml(), other.toStdString());
    }
}

TEST_F(EditSessionTest, TextOfAnotherTableWaitsForItsActivation)
{
    for (const QString& other : {kOtherSchedule, kExchanged, kBroken}) {
        ShowSchedule();
        view.IToolUI_XML(other);
        EditCell(1, 1, "20");
        EXPECT_EQ(State(), "dirty, save: 1,1");
        Click("btnSaveTag");
        EXPECT_EQ(SavedXml(), WithEdit(kEditable, "12", "20")) << "the document that the grid shows";
    }
}

TEST_F(EditSessionTest, ClosingSavesTheDocumentThatTheGridShows)
{
    ShowSchedule();
    EditCell(1, 1, "20");
    view.IToolUI_XML(kOtherSchedule);
    user.answers = {Answer::Yes};
    Press("cmdCancel");
    EXPECT_EQ(SavedXml(), WithEdit(kEditable, "12", "20"));
}

TEST_F(EditSessionTest, FreshTextThatNoLongerAllowsAnOpenEditRefusesIt)
{
    ShowSchedule();
    ClickCell(1, 1);
    Type("20");
    const QString locked =
        QString(kEditable).replace(QStringLiteral("<TD AllowEdit='-1'>12"), QStringLiteral("<TD>12.0"));
    view.IToolUI_XML(locked);
    EXPECT_EQ(Edit(), "idle");
    EXPECT_EQ(user.beeps, 1);
    EXPECT_EQ(TextAt(1, 1), "12.0") << "what the text says";
    EXPECT_EQ(State(), "clean: ");
    EXPECT_FALSE(HasUnsavedEdits());
    ClickCell(2, 1);
    ClickCell(1, 1);
    EXPECT_EQ(Edit(), "idle");
    Click("btnSaveTag");
    EXPECT_EQ(SavedXml(), locked.toStdString());
}

TEST_F(EditSessionTest, FreshTextWithAnotherValueRefusesAnOpenEdit)
{
    ShowSchedule();
    ClickCell(1, 1);
    Type("20");
    view.IToolUI_XML(QString(kEditable).replace(QStringLiteral(">12<"), QStringLiteral(">11<")));
    EXPECT_EQ(Edit(), "idle");
    EXPECT_EQ(user.beeps, 1);
    EXPECT_EQ(TextAt(1, 1), "11");
}

TEST_F(EditSessionTest, FreshTextThatAllowsAnOpenEditLetsItGoOn)
{
    ShowSchedule();
    ClickCell(1, 1);
    Type("20");
    const QString fresh = QString(kEditable).replace(QStringLiteral(">13<"), QStringLiteral(">14<"));
    view.IToolUI_XML(fresh);
    EXPECT_EQ(Edit(), "1,1: 20");
    Key(Qt::Key_Return);
    EXPECT_EQ(user.beeps, 0);
    EXPECT_EQ(State(), "dirty, save: 1,1");
    Click("btnSaveTag");
    EXPECT_EQ(SavedXml(), WithEdit(fresh, "12", "20"));
}

TEST_F(EditSessionTest, FreshTextThatComesBesideAnUnsavedEditWaits)
{
    ShowSchedule();
    EditCell(1, 1, "20");
    view.IToolUI_XML(kEditable);
    EXPECT_EQ(State(), "dirty, save: 1,1");
    Click("btnSaveTag");
    EXPECT_EQ(SavedXml(), WithEdit(kEditable, "12", "20"));
    EditCell(1, 2, "21");
    Click("btnSaveTag");
    EXPECT_NE(SavedXml().find(">20<"), std::string::npos) << "older text does not take the place of a saved value";
}

TEST_F(EditSessionTest, ACommitReachesTheDocumentWhateverTheTypeOfTheViewIsMeanwhile)
{
    ShowSchedule();
    ClickCell(1, 1);
    Type("20");
    view.setProperty("ViewType", kSelectorView);
    view.setProperty("ViewType", kScheduleView);
    Key(Qt::Key_Return);
    ClickCell(1, 2);
    Type("21");
    view.setProperty("ViewType", kSelectorView);
    Key(Qt::Key_Return);
    view.setProperty("ViewType", kScheduleView);
    EXPECT_EQ(State(), "dirty, save: 1,1 1,2");
    Click("btnSaveTag");
    EXPECT_EQ(SavedXml(), WithEdit(QString::fromStdString(WithEdit(kEditable, "12", "20")), "13", "21"));
    EXPECT_EQ(State(), "clean: ");
}

TEST_F(EditSessionTest, FreshTextAfterASaveAndTransposeLeaveNothingUnsaved)
{
    ShowSchedule();
    EditCell(1, 1, "20");
    const QString fresh = QString(kEditable).replace(QStringLiteral(">12<"), QStringLiteral(">20<"));
    host.onSend = [&](const QString& name) {
        if (name == QLatin1String("UpdateTagScheduleData"))
            view.IToolUI_XML(fresh);
    };
    Click("btnSaveTag");
    host.onSend = nullptr;
    EXPECT_EQ(State(), "clean: ");
    Click("btnTranspose");
    EXPECT_EQ(State(), "clean: ");
    EXPECT_EQ(TextAt(1, 1), "20");
    EditCell(2, 1, "21");
    EXPECT_EQ(State(), "dirty, save: 2,1");
    Click("btnTranspose");
    EXPECT_EQ(State(), "dirty, save: 1,2");
    Click("btnSaveTag");
    EXPECT_EQ(SavedXml(), WithEdit(fresh, "13", "21"));
}

TEST_F(EditSessionTest, AFailedSaveDuringWhichFreshTextCameLosesNothing)
{
    ShowSchedule();
    EditCell(1, 1, "20");
    host.failing = {QStringLiteral("UpdateTagScheduleData")};
    host.onSend = [&](const QString& name) {
        if (name == QLatin1String("UpdateTagScheduleData"))
            view.IToolUI_XML(kEditable);
    };
    Click("btnSaveTag");
    host.onSend = nullptr;
    host.failing.clear();
    EXPECT_EQ(State(), "dirty, save: 1,1");
    Click("btnSaveTag");
    EXPECT_EQ(SavedXml(), WithEdit(kEditable, "12", "20"));
}

TEST_F(EditSessionTest, SaveIsReadyAsSoonAsTheBoxDiffersFromItsCell)
{
    ShowSchedule();
    QSignalSpy changes(&view, &ctlSchedule::HasUnsavedEditsChanged);
    ClickCell(1, 1);
    EXPECT_FALSE(CanSave());
    Type("2");
    EXPECT_TRUE(CanSave());
    EXPECT_TRUE(HasUnsavedEdits());
    EXPECT_FALSE(Dirty()) << "nothing has been committed";
    Key(Qt::Key_Escape);
    EXPECT_FALSE(CanSave());
    EXPECT_FALSE(HasUnsavedEdits());
    ClickCell(1, 1);
    Type("20");
    ClickTool("btnSaveTag");
    EXPECT_EQ(SavedXml(), WithEdit(kEditable, "12", "20"));
    EXPECT_FALSE(HasUnsavedEdits());
    EXPECT_EQ(changes.size(), 4);
}

TEST_F(EditSessionTest, AClickOnTheActiveClosedCellOpensIt)
{
    ShowSchedule();
    ClickCell(1, 1);
    Key(Qt::Key_Return);
    ASSERT_EQ(Edit(), "idle");
    ClickCell(1, 1);
    EXPECT_EQ(Edit(), "1,1: 12");
}

TEST_F(EditSessionTest, ALongerValueWidensItsColumnAndAShorterOneLeavesIt)
{
    ShowSchedule();
    const int before = TheSheet()->ColumnWidth(Column(1));
    EditCell(1, 1, "1234567.5");
    const int wide = TheSheet()->ColumnWidth(Column(1));
    EXPECT_GT(wide, before);
    EXPECT_GE(wide, TheSheet()->WidestText(Column(1))) << "all of it can be seen";
    EditCell(1, 1, "1");
    EXPECT_EQ(TheSheet()->ColumnWidth(Column(1)), wide);
    Click("btnTranspose");
    EditCell(1, 1, "1234567.5");
    EXPECT_GE(TheSheet()->ColumnWidth(Column(1)), TheSheet()->WidestText(Column(1)));
}

TEST_F(EditSessionTest, ANewDocumentStartsFromACleanSheet)
{
    Show(kScheduleView, QStringLiteral("<TABLE><TR><TH>No.</TH></TR><TR><TH bgColor='255'>1</TH></TR>"
                                       "<TR><TH hidden='-1'>Object id</TH></TR></TABLE>"));
    ASSERT_EQ(TheSheet()->DataRowCount(), 0);
    Activate(kEditable);
    EXPECT_EQ(Grid(), " | Flow | Head | Note\nP-1 | 12 | 48 | spare\nP-2 | 13 | 49 | fixed");
    EXPECT_EQ(TheSheet()->BackColor({Column(1), Row(1)}), std::nullopt);
}

TEST_F(EditSessionTest, TabVisitsTheToolBarOnItsWayIntoTheGrid)
{
    QWidget window;
    QLineEdit before(&window);
    view.setParent(&window);
    view.move(0, 40);
    Start(kScheduleView, kEditable);
    QWidget::setTabOrder(&before, Find<QToolBar>("tbTasks"));
    window.resize(900, 500);
    window.show();
    QApplication::setActiveWindow(&window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    before.setFocus();
    QStringList forward;
    for (int step = 0; step < 20 && !Spread()->hasFocus(); ++step) {
        Key(Qt::Key_Tab);
        forward += Focus()->objectName() + Focus()->accessibleName();
    }
    EXPECT_TRUE(Spread()->hasFocus());
    EXPECT_EQ(forward.size(), 6) << "five tools that are enabled, then the grid";
    Key(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(Focus()->parentWidget(), Find<QToolBar>("tbTasks"));
    view.setFocus();
    EXPECT_TRUE(Spread()->hasFocus()) << "the grid is what the view is for";
    view.setParent(nullptr);
}

TEST_F(EditSessionTest, TellsWhatHasChanged)
{
    Show(kScheduleView,
         QString(kEditable).replace(QStringLiteral("<TD AllowEdit='-1'>12"),
                                    QStringLiteral("<TD version='7' AllowEdit='-1' note='a &amp; b'>12")));
    QSignalSpy edited(&view, &ctlSchedule::ValueEdited);
    EditCell(1, 1, "20");
    EditCell(1, 1, "21");
    Click("btnTranspose");
    EditCell(2, 1, "22");
    const auto changed = view.ChangedCells();
    ASSERT_EQ(changed.size(), 2);
    EXPECT_EQ(changed[0],
              (ChangedCell{"Flow", "P-1", "12", "21", {{"version", "7"}, {"AllowEdit", "-1"}, {"note", "a & b"}}}));
    EXPECT_EQ(changed[1], (ChangedCell{"Flow", "P-2", "13", "22", {{"AllowEdit", "-1"}}}));
    EXPECT_EQ(edited.size(), 3);
    EXPECT_EQ(edited[1], (QVariantList{"Flow", "P-1", "20", "21"}));
    Click("btnSaveTag");
    EXPECT_TRUE(view.ChangedCells().isEmpty());
}

TEST_F(EditSessionTest, TheTypedContractWorksAsAUserDoes)
{
    ShowSchedule();
    auto* contract = qobject_cast<IScheduleView*>(static_cast<QObject*>(&view));
    ASSERT_TRUE(contract);
    EXPECT_FALSE(contract->CanDo(ViewCommand::Save));
    EXPECT_FALSE(contract->CanDo(ViewCommand::Continue));
    EXPECT_EQ(contract->EnterText({1, 1}, QStringLiteral("20")), Entry::Taken);
    EXPECT_EQ(contract->EnterText({2, 1}, QStringLiteral("20")), Entry::NotEditable);
    EXPECT_EQ(contract->EnterText({0, 1}, QStringLiteral("20")), Entry::NotEditable);
    EXPECT_EQ(contract->EnterText({9, 1}, QStringLiteral("20")), Entry::NoSuchCell);
    EXPECT_EQ(contract->EnterText({1, 2}, QString(31, u'x')), Entry::Refused);
    EXPECT_EQ(TextAt(1, 2), "13");
    EXPECT_TRUE(contract->CanDo(ViewCommand::Save));
    EXPECT_TRUE(contract->Do(ViewCommand::Save));
    EXPECT_EQ(SavedXml(), WithEdit(kEditable, "12", "20"));
    EXPECT_FALSE(contract->Do(ViewCommand::Continue));
    EXPECT_EQ(contract->FindCell(QStringLiteral("Head"), QStringLiteral("P-2")), (GridPlace{2, 2}));
    EXPECT_EQ(contract->FindCell(QStringLiteral("Head"), QStringLiteral("P-3")), std::nullopt);
    EXPECT_TRUE(contract->ShowCell(QStringLiteral("Head"), QStringLiteral("P-2")));
    EXPECT_EQ(Active(), "2,2");
    EXPECT_TRUE(contract->SortBy(1, false));
    EXPECT_EQ(TheSheet()->Rows().ItemAt(1), 2);
    EXPECT_TRUE(contract->Do(ViewCommand::Transpose));
    EXPECT_EQ(contract->FindCell(QStringLiteral("Head"), QStringLiteral("P-1")), (GridPlace{1, 2}));
    EXPECT_FALSE(contract->SortBy(1, true)) << "lines are columns";
}

TEST_F(EditSessionTest, EveryPropertyThatChangesByItselfTellsSo)
{
    ShowSchedule();
    view.setProperty("RowsFrozen", 1);
    QSignalSpy frozen(&view, &ctlSchedule::FrozenChanged);
    QSignalSpy orientation(&view, &ctlSchedule::OrientationChanged);
    QSignalSpy dirty(&view, &ctlSchedule::TagDataDirtyChanged);
    QSignalSpy sheet(&view, &ctlSchedule::SheetChanged);
    QSignalSpy active(&view, &ctlSchedule::ActiveCellChanged);
    EditCell(1, 1, "20");
    EXPECT_EQ(active.back(), (QVariantList{"Flow", "P-1"}));
    EXPECT_EQ(dirty.size(), 1);
    Click("btnTranspose");
    EXPECT_EQ(frozen.size(), 1);
    EXPECT_EQ(orientation.size(), 1);
    Click("btnSaveTag");
    EXPECT_EQ(dirty.size(), 2);
    view.CleanUP();
    EXPECT_EQ(sheet.size(), 1);
}

} // namespace schedules
