// What a check list offers to its owner.

#include "controls/lists/CheckList.h"

#include "controls/ShownCheckList.h"
#include "controls/lists/CheckListModel.h"

#include <QAbstractItemModelTester>
#include <QHelpEvent>
#include <QTextDocumentFragment>
#include <QToolTip>

namespace schedules::testing {

namespace {

const QString kPump = QStringLiteral("[x] Design\n"
                                     "[ ] Motor\n"
                                     "[-] Vendor\n"
                                     "[x] *Duty note");

/// How many entries the list takes for visible.
int Shown(const ShownCheckList& shown)
{
    const int less = 60 * shown.list->logicalDpiY() / 1440;
    return (shown.list->height() - less) / shown.Place(shown.TopRow()).height();
}

QString ToolTipAt(const ShownCheckList& shown, QPoint point)
{
    QToolTip::hideText();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    QHelpEvent event(QEvent::ToolTip, point, shown.list->viewport()->mapToGlobal(point));
    QApplication::sendEvent(shown.list->viewport(), &event);
    return QTextDocumentFragment::fromHtml(QToolTip::isVisible() ? QToolTip::text() : QString()).toPlainText();
}

QImage Grabbed(const ShownCheckList& shown, int row)
{
    return shown.list->viewport()->grab(shown.Place(row)).toImage();
}

} // namespace

TEST(CheckList, ShowsEntriesInTheOrderAdded)
{
    const ShownCheckList shown(kPump);
    EXPECT_EQ(Drawn(*shown.list), QStringLiteral("  [x] Design\n"
                                                 "  [ ] Motor\n"
                                                 "  [-] Vendor\n"
                                                 "  [x] *Duty note"));
}

TEST(CheckList, KnowsWhatItsRowsHold)
{
    CheckList list;
    list.AddEntry(QStringLiteral("Design"), 7, true);
    list.AddEntry(QStringLiteral("Motor"), 3, false);
    EXPECT_EQ(list.Count(), 2);
    EXPECT_EQ(list.Id(0), 7);
    EXPECT_EQ(list.Id(1), 3);
    EXPECT_EQ(list.RowOf(3), 1);
    EXPECT_EQ(list.RowOf(7), 0);
    EXPECT_EQ(list.RowOf(8), -1);
    EXPECT_TRUE(list.Checked(0));
    EXPECT_FALSE(list.Checked(1));
}

TEST(CheckList, RowsThatAreNotThereAreEmptyAndCannotBeChanged)
{
    const ShownCheckList shown(kPump);
    const QString before = Drawn(*shown.list);
    for (const int row : {-1, 4}) {
        EXPECT_EQ(shown.list->Text(row), QString());
        EXPECT_EQ(shown.list->Id(row), 0);
        EXPECT_FALSE(shown.list->Checked(row));
        shown.list->SetText(row, QStringLiteral("x"));
        shown.list->SetChecked(row, true);
        shown.list->MoveEntry(row, 1);
        shown.list->MoveEntry(1, row);
        EXPECT_EQ(Drawn(*shown.list), before) << row;
    }
}

TEST(CheckList, WithoutAStateShowsAnUncheckedMark)
{
    const ShownCheckList shown(QStringLiteral("[-] Vendor"));
    EXPECT_EQ(shown.list->model()->index(0, 0).data(Qt::CheckStateRole), QVariant(Qt::Unchecked));
}

TEST(CheckList, AMarkThatCannotBeCheckedIsPaleAndTheRestOfTheEntryIsNot)
{
    const ShownCheckList shown(QStringLiteral("[ ] Vendor\n[-] Vendor\n[ ] Motor"));
    shown.list->SetCurrentRow(2);
    const QImage checkable = Grabbed(shown, 0);
    const QImage fixed = Grabbed(shown, 1);
    const int behindMark = 2 * shown.Mark(0).x();
    const QRect mark(0, 0, behindMark, checkable.height());
    const QRect rest(behindMark, 0, checkable.width() - behindMark, checkable.height());
    EXPECT_NE(checkable.copy(mark), fixed.copy(mark));
    EXPECT_EQ(checkable.copy(rest), fixed.copy(rest));
}

TEST(CheckList, AnEmptyMarkStandsOutOnADarkGround)
{
    ShownCheckList shown("[ ] Flow");
    QPalette dark = shown.list->palette();
    dark.setColor(QPalette::Base, QColor(0x1E, 0x1F, 0x22));
    dark.setColor(QPalette::Text, QColor(0xE6, 0xE6, 0xE6));
    shown.list->setPalette(dark);
    const QImage picture = shown.list->viewport()->grab().toImage();
    const QRect entry = shown.list->visualRect(shown.list->model()->index(0, 0));
    int brightest = 0; // of the left end, where there is nothing but the mark
    for (int x = 0; x < entry.height(); ++x)
        brightest = std::max(brightest, picture.pixelColor(x, entry.center().y()).lightness());
    EXPECT_GT(brightest, 100);
}

TEST(CheckList, ChangesTextsAndChecks)
{
    const ShownCheckList shown(kPump);
    shown.list->SetText(3, QStringLiteral("*"));
    shown.list->SetChecked(0, false);
    shown.list->SetChecked(1, std::nullopt);
    shown.list->SetChecked(2, true);
    EXPECT_EQ(Drawn(*shown.list), QStringLiteral("  [ ] Design\n"
                                                 "  [-] Motor\n"
                                                 "  [x] Vendor\n"
                                                 "  [x] *"));
}

TEST(CheckList, ClearLeavesNothing)
{
    ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(1);
    shown.list->Clear();
    EXPECT_EQ(shown.list->Count(), 0);
    EXPECT_EQ(shown.list->CurrentRow(), -1);
    EXPECT_EQ(shown.Told(), QString());
}

TEST(CheckList, NothingIsSelectedUntilSomebodySelects)
{
    const ShownCheckList shown(kPump);
    EXPECT_EQ(shown.list->CurrentRow(), -1) << "the focus selects nothing";
    shown.list->SetCurrentRow(2);
    EXPECT_EQ(shown.list->CurrentRow(), 2);
    shown.list->SetCurrentRow(-1);
    EXPECT_EQ(shown.list->CurrentRow(), -1);
}

TEST(CheckList, ARowThatIsNotThereSelectsNothing)
{
    const ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(2);
    shown.list->SetCurrentRow(4);
    EXPECT_EQ(shown.list->CurrentRow(), -1);
}

TEST(CheckList, SelectingByCodeScrollsThere)
{
    const ShownCheckList shown(NumberedEntries(50));
    shown.list->SetCurrentRow(40);
    EXPECT_TRUE(shown.list->viewport()->rect().contains(shown.Place(40)));
}

TEST(CheckList, TellsNothingOfWhatCodeDoes)
{
    ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(2);
    shown.list->SetText(2, QStringLiteral("Maker"));
    shown.list->SetChecked(1, true);
    shown.list->MoveEntry(2, 0);
    shown.list->HighlightLBItem(shown.Middle(1).x(), shown.Middle(1).y());
    shown.list->SetCurrentRow(-1);
    shown.list->AddEntry(QStringLiteral("Remarks"), 5, true);
    shown.list->Clear();
    EXPECT_EQ(shown.Told(), QString());
}

TEST(CheckList, MovesAnEntryDownWithItsIdAndItsMark)
{
    const ShownCheckList shown(kPump);
    shown.list->MoveEntry(0, 2);
    EXPECT_EQ(Drawn(*shown.list), QStringLiteral("  [ ] Motor\n"
                                                 "  [-] Vendor\n"
                                                 "  [x] Design\n"
                                                 "  [x] *Duty note"));
    EXPECT_EQ(shown.list->Id(2), 1);
    EXPECT_EQ(shown.list->RowOf(2), 0);
}

TEST(CheckList, MovesAnEntryUp)
{
    const ShownCheckList shown(kPump);
    shown.list->MoveEntry(3, 1);
    EXPECT_EQ(Drawn(*shown.list), QStringLiteral("  [x] Design\n"
                                                 "  [x] *Duty note\n"
                                                 "  [ ] Motor\n"
                                                 "  [-] Vendor"));
}

TEST(CheckList, TheMovedEntryStaysSelected)
{
    const ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(0);
    shown.list->MoveEntry(0, 3);
    EXPECT_EQ(shown.list->CurrentRow(), 3);
    EXPECT_EQ(shown.list->currentIndex().row(), 3);
}

TEST(CheckList, AnotherSelectedEntryStaysSelectedWhereverTheMovePutsIt)
{
    for (int selected = -1; selected < 4; ++selected) {
        for (int from = 0; from < 4; ++from) {
            for (int to = 0; to < 4; ++to) {
                const ShownCheckList shown(kPump);
                shown.list->SetCurrentRow(selected);
                const int id = shown.list->Id(shown.list->CurrentRow());
                shown.list->MoveEntry(from, to);
                EXPECT_EQ(shown.list->Id(shown.list->CurrentRow()), id) << selected << ": " << from << "->" << to;
            }
        }
    }
}

TEST(CheckList, AMoveNeitherRefillsNorLaysOutAnew)
{
    const ShownCheckList shown(NumberedEntries(50));
    int structural = 0;
    const auto count = [&] { ++structural; };
    const QAbstractItemModel& model = *shown.list->model();
    QObject::connect(&model, &QAbstractItemModel::modelReset, &shown.window, count);
    QObject::connect(&model, &QAbstractItemModel::rowsInserted, &shown.window, count);
    QObject::connect(&model, &QAbstractItemModel::rowsRemoved, &shown.window, count);
    QObject::connect(&model, &QAbstractItemModel::layoutChanged, &shown.window, count);
    shown.list->MoveEntry(3, 40);
    EXPECT_EQ(structural, 0);
}

TEST(CheckList, AMovedEntryIsPaintedAtItsNewPlace)
{
    const ShownCheckList shown(kPump);
    shown.list->SetCurrentRow(3);
    const QImage design = Grabbed(shown, 0);
    shown.list->MoveEntry(0, 1);
    EXPECT_EQ(Grabbed(shown, 1), design);
}

TEST(CheckList, AMoveToAVisibleRowDoesNotScroll)
{
    const ShownCheckList shown(NumberedEntries(50));
    shown.list->verticalScrollBar()->setValue(10);
    shown.list->MoveEntry(12, 10);
    EXPECT_EQ(shown.TopRow(), 10);
    shown.list->MoveEntry(10, 10 + Shown(shown) - 1);
    EXPECT_EQ(shown.TopRow(), 10);
}

TEST(CheckList, AMoveAboveTheTopMakesTheEntryTheTopOne)
{
    const ShownCheckList shown(NumberedEntries(50));
    shown.list->verticalScrollBar()->setValue(10);
    shown.list->MoveEntry(10, 9);
    EXPECT_EQ(shown.TopRow(), 9);
    shown.list->MoveEntry(9, 0);
    EXPECT_EQ(shown.TopRow(), 0);
}

TEST(CheckList, AMoveBelowScrollsAsFarAsTheHeightLess60TwipsRequires)
{
    const ShownCheckList shown(NumberedEntries(50));
    shown.list->MoveEntry(0, Shown(shown));
    EXPECT_EQ(shown.TopRow(), 1);
    shown.list->MoveEntry(1, 49);
    EXPECT_EQ(shown.TopRow(), 50 - Shown(shown));
}

TEST(CheckList, TheLast60TwipsDoNotCountAsVisible)
{
    ShownCheckList shown(NumberedEntries(50));
    const int less = shown.list->logicalDpiY() / 24;
    const int row = shown.Place(0).height();
    shown.list->setFrameShape(QFrame::NoFrame);
    shown.list->setFixedHeight(5 * row + less - 1);
    QApplication::processEvents();
    shown.list->MoveEntry(0, 4);
    EXPECT_EQ(shown.TopRow(), 1) << "one pixel is missing for the fifth";
    shown.list->verticalScrollBar()->setValue(0);
    shown.list->setFixedHeight(5 * row + less);
    QApplication::processEvents();
    shown.list->MoveEntry(0, 4);
    EXPECT_EQ(shown.TopRow(), 0);
}

TEST(CheckList, AListLowerThanAnEntryShowsTheMovedOneAtItsTop)
{
    ShownCheckList shown(NumberedEntries(50));
    shown.list->setFixedHeight(10);
    QApplication::processEvents();
    shown.list->MoveEntry(0, 30);
    EXPECT_EQ(shown.TopRow(), 30);
}

TEST(CheckList, MovesEntriesBeforeItIsEverShown)
{
    CheckList list;
    Fill(list, NumberedEntries(30));
    list.SetCurrentRow(0);
    list.MoveEntry(0, 29);
    EXPECT_EQ(list.CurrentRow(), 29);
    list.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&list));
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualRect(list.model()->index(29, 0))));
}

TEST(CheckList, HighlightsTheEntryUnderAPoint)
{
    const ShownCheckList shown(kPump);
    shown.list->HighlightLBItem(shown.Middle(2).x(), shown.Middle(2).y());
    EXPECT_EQ(shown.list->CurrentRow(), 2);
    const int belowAll = shown.Place(3).bottom() + 5;
    shown.list->HighlightLBItem(5, belowAll);
    EXPECT_EQ(shown.list->CurrentRow(), 2) << "no entry there";
}

TEST(CheckList, HighlightingAPartlyVisibleEntryDoesNotScroll)
{
    const ShownCheckList shown(NumberedEntries(50), {200, 155});
    shown.list->HighlightLBItem(20, shown.list->viewport()->height() - 1);
    EXPECT_GT(shown.list->CurrentRow(), 3);
    EXPECT_EQ(shown.TopRow(), 0);
}

TEST(CheckList, HasNoHorizontalScrollBarAndElidesWhatIsTooLong)
{
    const ShownCheckList shown(QStringLiteral("[ ] Flow\n[ ] ") + QString(200, u'W'));
    EXPECT_FALSE(shown.list->horizontalScrollBar()->isVisible());
    EXPECT_EQ(shown.Place(1).width(), shown.list->viewport()->width());
}

TEST(CheckList, TellsTheWholeTextOfAnElidedEntryAndOnlyThen)
{
    const ShownCheckList shown(QStringLiteral("[ ] Flow\n[ ] <b>") + QString(100, u'W'));
    EXPECT_EQ(ToolTipAt(shown, shown.Middle(0)), QString());
    EXPECT_EQ(ToolTipAt(shown, shown.Middle(1)), QStringLiteral("<b>") + QString(100, u'W'));
    EXPECT_EQ(ToolTipAt(shown, {5, shown.Place(1).bottom() + 10}), QString());
}

TEST(CheckList, ShowsATextOfSeveralLinesOnOne)
{
    CheckList list;
    list.AddEntry(QStringLiteral("Flow\nrate"), 1, true);
    const int height = list.sizeHintForRow(0);
    list.SetText(0, QStringLiteral("Flow rate"));
    EXPECT_EQ(list.sizeHintForRow(0), height);
    EXPECT_EQ(list.Text(0), QStringLiteral("Flow rate"));
}

TEST(CheckList, EntriesOfADisabledListLookDisabled)
{
    ShownCheckList shown(kPump);
    const QImage enabled = Grabbed(shown, 0);
    shown.list->setEnabled(false);
    EXPECT_NE(Grabbed(shown, 0), enabled);
}

TEST(CheckListModel, KeepsTheRulesOfItemModels)
{
    CheckListModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.Add({QStringLiteral("Design"), 1, true});
    model.Add({QStringLiteral("Motor"), 2, std::nullopt});
    model.Move(0, 1);
    model.SetChecked(0, true);
    model.SetText(0, QStringLiteral("Drive"));
    EXPECT_EQ(model.At(0).text, QStringLiteral("Drive"));
    EXPECT_EQ(model.At(1).id, 1);
    model.Clear();
    EXPECT_EQ(model.rowCount(), 0);
}

} // namespace schedules::testing
