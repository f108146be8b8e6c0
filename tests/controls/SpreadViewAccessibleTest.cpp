#include "controls/grid/SpreadViewAccessible.h"

#include "controls/ShownView.h"

#include <QAccessible>
#include <QSignalSpy>

#include <array>
#include <gtest/gtest.h>

namespace schedules::testing {

namespace {

QAccessibleInterface* AccessibleOf(ShownView& shown)
{
    return QAccessible::queryAccessibleInterface(&shown.view);
}

QAccessibleTableInterface* TableOf(ShownView& shown)
{
    return AccessibleOf(shown)->tableInterface();
}

/// Column headers first, then each row behind its header.
QString Drawn(ShownView& shown)
{
    QAccessibleTableInterface* const table = TableOf(shown);
    QStringList headers;
    for (int column = 0; column < table->columnCount(); ++column)
        headers.append(table->columnDescription(column));
    QStringList lines{headers.join(u' ')};
    for (int row = 0; row < table->rowCount(); ++row) {
        QStringList cells{table->rowDescription(row) + u':'};
        for (int column = 0; column < table->columnCount(); ++column)
            cells.append(table->cellAt(row, column)->text(QAccessible::Name));
        lines.append(cells.join(u' '));
    }
    return lines.join(u'\n');
}

} // namespace

TEST(SpreadViewAccessible, IsATableOfTheSheetsCells)
{
    ShownView shown(DrawnSheet(QStringLiteral("     | Flow | Head\n"
                                              "P-1  | 12   | 48  \n"
                                              "P-2  | 13   | 49  ")));
    EXPECT_EQ(AccessibleOf(shown)->role(), QAccessible::Table);
    EXPECT_EQ(Drawn(shown), QStringLiteral("Flow Head\n"
                                           "P-1: 12 48\n"
                                           "P-2: 13 49"));
}

TEST(SpreadViewAccessible, LeavesHiddenCellsOutAndTellsFrozenOnesOnce)
{
    ShownView shown(NumberedSheet(4, 4));
    shown.sheet->SetFrozenColumns(1);
    shown.sheet->SetFrozenRows(1);
    shown.sheet->SetHidden(Column(2), true);
    shown.sheet->SetHidden(Row(3), true);
    EXPECT_EQ(Drawn(shown), QStringLiteral("c1r0 c3r0 c4r0\n"
                                           "c0r1: c1r1 c3r1 c4r1\n"
                                           "c0r2: c1r2 c3r2 c4r2\n"
                                           "c0r4: c1r4 c3r4 c4r4"));
    EXPECT_EQ(AccessibleOf(shown)->childCount(), 16);
}

TEST(SpreadViewAccessible, TellsRowsInTheOrderShown)
{
    ShownView shown(NumberedSheet(1, 3));
    shown.sheet->SetRowOrder({3, 1, 2});
    EXPECT_EQ(Drawn(shown), QStringLiteral("c1r0\nc0r3: c1r3\nc0r1: c1r1\nc0r2: c1r2"));
}

TEST(SpreadViewAccessible, ChildrenAreHeadersAndCellsRowByRow)
{
    ShownView shown(NumberedSheet(1, 1));
    QAccessibleInterface* const table = AccessibleOf(shown);
    const std::array roles{QAccessible::ColumnHeader, QAccessible::ColumnHeader, QAccessible::RowHeader,
                           QAccessible::Cell};
    const QStringList names{QStringLiteral("c0r0"), QStringLiteral("c1r0"), QStringLiteral("c0r1"),
                            QStringLiteral("c1r1")};
    ASSERT_EQ(table->childCount(), 4);
    for (int index = 0; index < 4; ++index) {
        QAccessibleInterface* const child = table->child(index);
        EXPECT_EQ(child->role(), roles[index]);
        EXPECT_EQ(child->text(QAccessible::Name), names[index]);
        EXPECT_EQ(table->indexOfChild(child), index);
        EXPECT_EQ(child->parent(), table);
        EXPECT_EQ(child->tableCellInterface() != nullptr, index == 3);
    }
    EXPECT_EQ(table->child(4), nullptr);
    EXPECT_EQ(table->child(-1), nullptr);
}

TEST(SpreadViewAccessible, HiddenHeadersAreNoChildren)
{
    ShownView shown(NumberedSheet(2, 2));
    shown.sheet->SetHidden(Column(0), true);
    shown.sheet->SetHidden(Row(0), true);
    EXPECT_EQ(AccessibleOf(shown)->childCount(), 4);
    EXPECT_EQ(TableOf(shown)->cellAt(0, 0)->text(QAccessible::Name), QStringLiteral("c1r1"));
    EXPECT_TRUE(TableOf(shown)->cellAt(0, 0)->tableCellInterface()->columnHeaderCells().isEmpty());
}

TEST(SpreadViewAccessible, CellsKnowTheirPlaceAndTheirHeaders)
{
    ShownView shown(NumberedSheet(4, 4));
    shown.sheet->SetHidden(Column(1), true);
    QAccessibleTableCellInterface* const cell = TableOf(shown)->cellAt(2, 1)->tableCellInterface();
    EXPECT_EQ(cell->columnIndex(), 1);
    EXPECT_EQ(cell->rowIndex(), 2);
    EXPECT_EQ(cell->columnExtent(), 1);
    EXPECT_EQ(cell->rowExtent(), 1);
    EXPECT_EQ(cell->table(), AccessibleOf(shown));
    ASSERT_EQ(cell->columnHeaderCells().size(), 1);
    ASSERT_EQ(cell->rowHeaderCells().size(), 1);
    EXPECT_EQ(cell->columnHeaderCells().front()->text(QAccessible::Name), QStringLiteral("c3r0"));
    EXPECT_EQ(cell->rowHeaderCells().front()->text(QAccessible::Name), QStringLiteral("c0r3"));
}

TEST(SpreadViewAccessible, CellsAreWhereTheyAreSeen)
{
    ShownView shown(NumberedSheet(4, 40));
    const QRect seen = shown.view.SeenRect(At(2, 3));
    const QPoint corner = shown.view.viewport()->mapToGlobal(seen.topLeft());
    QAccessibleInterface* const cell = TableOf(shown)->cellAt(2, 1);
    EXPECT_EQ(cell->rect(), QRect(corner, seen.size()));
    EXPECT_EQ(AccessibleOf(shown)->childAt(corner.x() + 3, corner.y() + 3), cell);
    EXPECT_FALSE(cell->state().offscreen);
    EXPECT_TRUE(TableOf(shown)->cellAt(39, 1)->state().offscreen);
}

TEST(SpreadViewAccessible, CheckBoxesTellTheirState)
{
    ShownView shown(DrawnSheet(QStringLiteral("  | In service\n"
                                              "1 | [x]\n"
                                              "2 | [ ]\n"
                                              "3 | 1")));
    const auto stateOf = [&](int row) { return TableOf(shown)->cellAt(row, 0)->state(); };
    EXPECT_TRUE(stateOf(0).checkable && stateOf(0).checked);
    EXPECT_TRUE(stateOf(1).checkable && !stateOf(1).checked);
    EXPECT_FALSE(stateOf(2).checkable || stateOf(2).checked);
    EXPECT_EQ(TableOf(shown)->cellAt(0, 0)->text(QAccessible::Name), QStringLiteral("In service"));
    shown.view.ForgetTold();
    shown.sheet->SetText(At(1, 2), QStringLiteral("1"));
    EXPECT_EQ(shown.view.Told(QAccessible::StateChanged), QStringList{QStringLiteral("In service")});
    EXPECT_TRUE(stateOf(1).checked);
}

TEST(SpreadViewAccessible, CellsThatMayBeEditedAreEditableAsLongAsThatIsShown)
{
    ShownView shown(NumberedSheet(2, 2));
    shown.sheet->SetStyle(At(1, 1), {.allowEdit = true});
    shown.sheet->SetStyle(At(1, 0), {.allowEdit = true});
    const auto isEditable = [&](Cell cell) {
        const int index = cell.row.Value() * 3 + cell.column.Value();
        const QAccessible::State state = AccessibleOf(shown)->child(index)->state();
        EXPECT_NE(state.editable, state.readOnly);
        return state.editable == 1;
    };
    EXPECT_FALSE(isEditable(At(1, 1)));
    shown.view.ForgetTold();
    shown.view.ShowEditable(true);
    EXPECT_EQ(shown.view.Told(QAccessible::TableModelChanged).size(), 1) << "all cells may have changed";
    EXPECT_TRUE(isEditable(At(1, 1)));
    EXPECT_FALSE(isEditable(At(2, 1)));
    EXPECT_FALSE(isEditable(At(1, 0))) << "a header";
}

TEST(SpreadViewAccessible, CellsThatMayBeEditedCanBePressed)
{
    ShownView shown(NumberedSheet(2, 2));
    QSignalSpy clicked(&shown.view, &SpreadView::CellClicked);
    shown.sheet->SetStyle(At(1, 2), {.allowEdit = true});
    shown.sheet->SetStyle(At(1, 0), {.allowEdit = true});
    EXPECT_EQ(TableOf(shown)->cellAt(1, 0)->actionInterface(), nullptr) << "not shown as editable";
    shown.view.ShowEditable(true);
    EXPECT_EQ(TableOf(shown)->cellAt(1, 1)->actionInterface(), nullptr);
    EXPECT_EQ(AccessibleOf(shown)->child(1)->actionInterface(), nullptr) << "a header";
    QAccessibleActionInterface* const action = TableOf(shown)->cellAt(1, 0)->actionInterface();
    ASSERT_NE(action, nullptr);
    EXPECT_EQ(action->actionNames(), QStringList{QAccessibleActionInterface::pressAction()});
    action->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(clicked.count(), 0);
    action->doAction(QAccessibleActionInterface::pressAction());
    ASSERT_EQ(clicked.count(), 1);
    EXPECT_EQ(clicked.front().front().value<Cell>(), At(1, 2));
}

TEST(SpreadViewAccessible, CheckBoxesCanBeToggled)
{
    ShownView shown(DrawnSheet(QStringLiteral("  | In service\n"
                                              "1 | [x]")));
    QSignalSpy swept(&shown.view, &SpreadView::SweepStarted);
    shown.view.SetSweeps([](Cell) { return true; });
    QAccessibleActionInterface* const action = TableOf(shown)->cellAt(0, 0)->actionInterface();
    ASSERT_NE(action, nullptr);
    EXPECT_EQ(action->actionNames(), QStringList{QAccessibleActionInterface::toggleAction()});
    action->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(swept.count(), 1);
}

TEST(SpreadViewAccessible, AnActionMayChangeTheTable)
{
    ShownView shown(NumberedSheet(2, 2));
    shown.view.ShowEditable(true);
    shown.sheet->SetStyle(At(1, 1), {.allowEdit = true});
    QObject::connect(&shown.view, &SpreadView::CellClicked, &shown.view, [&] { shown.sheet->SetSize(0, 0); });
    TableOf(shown)->cellAt(0, 0)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(TableOf(shown)->rowCount(), 0);
}

TEST(SpreadViewAccessible, EditedCellsSayThatTheyAreNotSaved)
{
    ShownView shown(NumberedSheet(1, 2));
    shown.sheet->SetStyle(At(1, 1), {.edited = true});
    EXPECT_EQ(TableOf(shown)->cellAt(0, 0)->text(QAccessible::Description), QStringLiteral("Changed, not saved"));
    EXPECT_EQ(TableOf(shown)->cellAt(0, 0)->text(QAccessible::Name), QStringLiteral("c1r1"));
    EXPECT_EQ(TableOf(shown)->cellAt(1, 0)->text(QAccessible::Description), QString());
}

TEST(SpreadViewAccessible, ChangesOfTextAndStyleAreTold)
{
    ShownView shown(DrawnSheet(QStringLiteral("  | Head\n"
                                              "1 | 48\n"
                                              "2 | [ ]")));
    const QString head = QStringLiteral("Head");
    shown.view.ForgetTold();
    shown.sheet->SetText(At(1, 1), QStringLiteral("50"));
    EXPECT_EQ(shown.view.Told(QAccessible::NameChanged), QStringList{QStringLiteral("50")});
    shown.view.ForgetTold();
    shown.sheet->SetStyle(At(1, 1), {.edited = true});
    EXPECT_EQ(shown.view.Told(QAccessible::DescriptionChanged), QStringList{QStringLiteral("50")});
    shown.view.ForgetTold();
    shown.sheet->SetStyle(At(1, 2), {.type = CellType::CheckBox, .edited = true});
    EXPECT_EQ(shown.view.Told(QAccessible::StateChanged), QStringList{head});
    EXPECT_EQ(shown.view.Told(QAccessible::DescriptionChanged), QStringList{head});
}

TEST(SpreadViewAccessible, TheActiveCellHasTheFocus)
{
    ShownView shown(NumberedSheet(4, 4));
    shown.view.ForgetTold();
    shown.sheet->SetActiveCell(At(2, 2));
    shown.Key(Qt::Key_Right);
    EXPECT_EQ(shown.view.Told(QAccessible::Focus), (QStringList{QStringLiteral("c2r2"), QStringLiteral("c3r2")}));
    QAccessibleInterface* const cell = AccessibleOf(shown)->focusChild();
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->text(QAccessible::Name), QStringLiteral("c3r2"));
    EXPECT_TRUE(cell->state().focused);
    EXPECT_FALSE(TableOf(shown)->cellAt(0, 0)->state().focused);
}

TEST(SpreadViewAccessible, TheSelectionIsTold)
{
    ShownView shown(NumberedSheet(4, 4));
    shown.sheet->SetHidden(Column(3), true);
    shown.view.ForgetTold();
    shown.view.Select(At(2, 2), At(4, 3));
    QAccessibleTableInterface* const table = TableOf(shown);
    EXPECT_FALSE(shown.view.Told(QAccessible::SelectionWithin).isEmpty());
    EXPECT_EQ(table->selectedCellCount(), 4);
    QStringList names;
    for (QAccessibleInterface* const cell : table->selectedCells()) {
        names.append(cell->text(QAccessible::Name));
        EXPECT_TRUE(cell->state().selected);
    }
    EXPECT_EQ(names.join(u' '), QStringLiteral("c2r2 c4r2 c2r3 c4r3"));
    EXPECT_FALSE(table->cellAt(0, 0)->state().selected);
    EXPECT_TRUE(table->selectedColumns().isEmpty() && table->selectedRows().isEmpty());
}

TEST(SpreadViewAccessible, WholeColumnsAndRowsCanBeSelected)
{
    ShownView shown(NumberedSheet(4, 4));
    shown.sheet->SetHidden(Column(1), true);
    QAccessibleTableInterface* const table = TableOf(shown);
    EXPECT_EQ(table->selectedCellCount(), 0);
    EXPECT_TRUE(table->selectColumn(1));
    EXPECT_EQ(shown.view.Selection(), Block(3, 1, 3, 4));
    EXPECT_EQ(table->selectedColumns(), QList<int>{1});
    EXPECT_TRUE(table->isColumnSelected(1));
    EXPECT_FALSE(table->isColumnSelected(0));
    EXPECT_EQ(table->selectedColumnCount(), 1);
    EXPECT_TRUE(table->selectRow(3));
    EXPECT_EQ(table->selectedRows(), QList<int>{3});
    EXPECT_TRUE(table->isRowSelected(3));
    EXPECT_EQ(table->selectedRowCount(), 1);
    EXPECT_FALSE(table->selectRow(9));
    EXPECT_FALSE(table->unselectRow(3));
}

TEST(SpreadViewAccessible, CellsEndWithTheTableTheyBelongTo)
{
    ShownView shown(NumberedSheet(4, 4));
    const QAccessible::Id id = QAccessible::uniqueId(TableOf(shown)->cellAt(0, 0));
    EXPECT_NE(QAccessible::accessibleInterface(id), nullptr);
    shown.view.ForgetTold();
    shown.sheet->SetSize(2, 2);
    EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
    EXPECT_EQ(shown.view.Told(QAccessible::TableModelChanged).size(), 1);
    EXPECT_EQ(TableOf(shown)->columnCount(), 2);
}

TEST(SpreadViewAccessible, ItsCellsEndWithTheView)
{
    QAccessible::Id id = 0;
    {
        ShownView shown(NumberedSheet(4, 4));
        id = QAccessible::uniqueId(TableOf(shown)->cellAt(0, 0));
    }
    EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

TEST(SpreadViewAccessible, IsEmptyWithoutASheet)
{
    ShownView shown(NumberedSheet(4, 4));
    shown.view.SetSheet(nullptr);
    EXPECT_EQ(TableOf(shown)->rowCount(), 0);
    EXPECT_EQ(TableOf(shown)->cellAt(0, 0), nullptr);
    EXPECT_EQ(AccessibleOf(shown)->childCount(), 0);
    EXPECT_EQ(AccessibleOf(shown)->focusChild(), nullptr);
}

} // namespace schedules::testing
