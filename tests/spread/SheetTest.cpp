#include "spread/Sheet.h"

#include "support/MeasuredText.h"
#include "support/SheetDrawing.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

constexpr CellStyle kBox{.type = CellType::CheckBox};

QString Text(const char* text)
{
    return QString::fromUtf8(text);
}

/// Lines of texts as a table brings them; "-" places nothing.
CellStore TableOf(std::initializer_list<std::initializer_list<const char*>> lines)
{
    CellStore store;
    int line = 0;
    for (const auto& texts : lines) {
        store.AddLine(line);
        int slot = 0;
        for (const char* text : texts) {
            if (std::string_view(text) != "-")
                store.Place(line, slot, text, {});
            ++slot;
        }
        ++line;
    }
    return store;
}

struct SheetTest : ::testing::Test
{
    /// Takes over cells and shows all of them.
    void Adopt(CellStore cells, Lines lines = Lines::AreRows)
    {
        sheet.Adopt(std::move(cells), lines);
        sheet.SetSize(sheet.DataColumnCount(), sheet.DataRowCount());
    }

    Sheet sheet;
};

/// Counts the signals of a sheet from its making on.
struct Signals
{
    explicit Signals(Sheet& sheet)
        : changed(&sheet, &Sheet::Changed),
          cell(&sheet, &Sheet::CellChanged),
          frozen(&sheet, &Sheet::FrozenChanged),
          active(&sheet, &Sheet::ActiveCellChanged)
    {
    }

    std::string Drawn() const
    {
        return QStringLiteral("changed %1, cell %2, frozen %3, active %4")
            .arg(changed.count())
            .arg(cell.count())
            .arg(frozen.count())
            .arg(active.count())
            .toStdString();
    }

    QSignalSpy changed;
    QSignalSpy cell;
    QSignalSpy frozen;
    QSignalSpy active;
};

} // namespace

TEST_F(SheetTest, StartsEmpty)
{
    EXPECT_EQ(DrawnSize(sheet), "0 columns, 0 rows");
    EXPECT_EQ(Drawn(sheet), "");
    EXPECT_EQ(DrawnHidden(sheet), "none");
    EXPECT_EQ(DrawnColors(sheet), "-");
    EXPECT_EQ(DrawnBold(sheet), ".");
    EXPECT_EQ(sheet.ActiveCell(), At(0, 0));
    EXPECT_TRUE(sheet.Repainting());
}

TEST_F(SheetTest, KeepsAByteOrderMarkAtTheStartOfAText)
{
    sheet.SetText(At(1, 1), Text("x\uFEFF").right(1) + Text("y"));
    EXPECT_EQ(sheet.Text(At(1, 1)).toStdString(), "\uFEFFy");
}

TEST_F(SheetTest, LinesAreRows)
{
    Adopt(TableOf({{"Tag", "Flow"}, {"P-1", "12"}, {"P-2"}}));
    EXPECT_EQ(Drawn(sheet), "Tag | Flow\n"
                            "P-1 | 12");
    EXPECT_EQ(DrawnSize(sheet), "1 columns, 1 rows") << "row headers without data are no data";
}

TEST_F(SheetTest, LinesAreColumns)
{
    Adopt(TableOf({{"Tag", "Flow"}, {"P-1", "12"}, {"P-2", "8"}}), Lines::AreColumns);
    EXPECT_EQ(Drawn(sheet), "Tag  | P-1 | P-2\n"
                            "Flow | 12  | 8");
    EXPECT_EQ(DrawnSize(sheet), "2 columns, 1 rows");
}

TEST_F(SheetTest, TellsWhereACellIsInTheTable)
{
    constexpr Cell kCell{Column(3), Row(5)};
    EXPECT_EQ(sheet.TablePlaceOf(kCell), (Sheet::TablePlace{.line = 5, .slot = 3}));
    EXPECT_EQ(sheet.CellAt({.line = 5, .slot = 3}), kCell);
    Adopt(TableOf({{"a"}}), Lines::AreColumns);
    EXPECT_EQ(sheet.TablePlaceOf(kCell), (Sheet::TablePlace{.line = 3, .slot = 5}));
    EXPECT_EQ(sheet.CellAt({.line = 3, .slot = 5}), kCell);
}

TEST_F(SheetTest, TakesCellsOverOnTopOfWhatIsThere)
{
    Adopt(TableOf({{"Tag", "Flow"}, {"P-1", "12"}}));
    Adopt(TableOf({{"-", "Head"}, {"-", "48", "new"}}));
    EXPECT_EQ(Drawn(sheet), "Tag | Head |\n"
                            "P-1 | 48   | new");
}

TEST_F(SheetTest, TakesCellsOverThatRunTheOtherWay)
{
    Adopt(TableOf({{"Tag", "Flow"}, {"P-1", "12"}}));
    Adopt(TableOf({{"-", "x", "y"}}), Lines::AreColumns);
    sheet.SetSize(1, 2);
    EXPECT_EQ(Drawn(sheet), "Tag | Flow\n"
                            "x   | 12\n"
                            "y   |");
}

TEST_F(SheetTest, CellsOutsideOfTheSizeAreKept)
{
    Adopt(TableOf({{"Tag", "Flow"}, {"P-1", "12"}}));
    sheet.SetSize(0, 0);
    EXPECT_EQ(Drawn(sheet), "Tag");
    sheet.SetSize(1, 1);
    EXPECT_EQ(Drawn(sheet), "Tag | Flow\n"
                            "P-1 | 12");
}

TEST_F(SheetTest, ChangesSingleTexts)
{
    for (const Lines lines : {Lines::AreRows, Lines::AreColumns}) {
        sheet.Reset();
        Adopt(TableOf({{"Tag", "Flow"}, {"P-1", "12"}}), lines);
        sheet.SetText(At(1, 1), Text("насос 𝄞"));
        EXPECT_EQ(sheet.Text(At(1, 1)), Text("насос 𝄞"));
        EXPECT_EQ(sheet.Utf8(At(1, 1)), "насос 𝄞");
        EXPECT_TRUE(sheet.Holds(At(1, 1)));
        EXPECT_FALSE(sheet.Holds(At(2, 1)));
    }
}

TEST_F(SheetTest, AChangedTextKeepsTheCellsStyle)
{
    sheet.SetStyle(At(1, 1), kBox);
    sheet.SetText(At(1, 1), Text("1"));
    EXPECT_EQ(sheet.Style(At(1, 1)), kBox);
    sheet.SetStyle(At(1, 1), {.allowEdit = true});
    EXPECT_EQ(sheet.Text(At(1, 1)), Text("1"));
    EXPECT_TRUE(sheet.Style(At(1, 1)).allowEdit);
}

TEST_F(SheetTest, TellsTheCellsOfAType)
{
    sheet.SetStyle(At(2, 1), kBox);
    sheet.SetStyle(At(1, 3), kBox);
    sheet.SetText(At(1, 2), Text("no box"));
    EXPECT_EQ(sheet.CellsOfType(CellType::CheckBox), (std::vector{At(2, 1), At(1, 3)}));
}

TEST_F(SheetTest, ClearingCellsLeavesLooksAndSizes)
{
    sheet.SetStyle(At(1, 1), kBox);
    sheet.SetText(At(1, 1), Text("1"));
    sheet.SetSize(1, 1);
    sheet.SetColumnWidth(Column(1), 700);
    sheet.SetBold({At(1, 1), At(1, 1)}, true);
    sheet.SetHidden(Row(1), true);
    sheet.ClearCells();
    EXPECT_EQ(Drawn(sheet), " |\n |");
    EXPECT_EQ(DrawnTypes(sheet), "..\n..");
    EXPECT_EQ(DrawnBold(sheet), "..\n.#");
    EXPECT_EQ(DrawnHidden(sheet), "rows 1");
    EXPECT_EQ(DrawnWidths(sheet), "1440 | 700");
    EXPECT_EQ(sheet.DataColumnCount(), 0);
}

TEST_F(SheetTest, ResettingBringsBackAllThatALoadCanSet)
{
    const CellRange all{{kAllColumns, kAllRows}, {kAllColumns, kAllRows}};
    Adopt(TableOf({{"Tag", "Flow"}, {"P-1", "12"}}), Lines::AreColumns);
    sheet.SetStyle(At(1, 1), kBox);
    sheet.SetBold(all, true);
    sheet.SetBackColor(all, 255);
    sheet.SetHAlign(all, HorizontalAlignment::Center);
    sheet.SetVAlign(all, VerticalAlignment::Center);
    sheet.SetWraps(all, true);
    sheet.SetHidden(Row(1), true);
    sheet.SetHidden(Column(1), true);
    const int rowHeight = sheet.RowHeight(Row(1));
    sheet.SetRowHeight(Row(1), 999);
    sheet.SetColumnWidth(Column(1), 999);
    sheet.SetRowOrder({1});
    sheet.SetActiveCell(At(1, 1));
    sheet.Reset();
    EXPECT_EQ(Drawn(sheet), " |\n |");
    EXPECT_EQ(DrawnTypes(sheet), "..\n..");
    EXPECT_EQ(DrawnBold(sheet), "..\n..");
    EXPECT_EQ(DrawnColors(sheet), "- | -\n- | -");
    EXPECT_EQ(DrawnHAlign(sheet), "LL\nLL");
    EXPECT_EQ(DrawnVAlign(sheet), "TT\nTT");
    EXPECT_FALSE(sheet.Wraps(At(1, 1)));
    EXPECT_EQ(DrawnHidden(sheet), "none");
    EXPECT_EQ(DrawnWidths(sheet), "1440 | 1440");
    EXPECT_EQ(sheet.RowHeight(Row(1)), rowHeight);
    EXPECT_FALSE(sheet.Rows().Ordered());
    EXPECT_EQ(sheet.ActiveCell(), At(0, 0));
}

TEST_F(SheetTest, ResettingLeavesTheFrozenCountsAndTheFont)
{
    sheet.SetFrozenColumns(2);
    sheet.SetFrozenRows(3);
    const QFont font(QStringLiteral("Liberation Sans"), 14);
    sheet.SetFont(font);
    sheet.Reset();
    EXPECT_EQ(sheet.FrozenColumns(), 2);
    EXPECT_EQ(sheet.FrozenRows(), 3);
    EXPECT_EQ(sheet.Font(), font);
}

TEST_F(SheetTest, FrozenCountsBelowZeroAreZero)
{
    sheet.SetFrozenColumns(-2);
    sheet.SetFrozenRows(-3);
    EXPECT_EQ(sheet.FrozenColumns(), 0);
    EXPECT_EQ(sheet.FrozenRows(), 0);
}

TEST_F(SheetTest, LooksCoverWholeRowsColumnsAndBlocks)
{
    sheet.SetSize(2, 2);
    sheet.SetBold({{kAllColumns, Row(1)}, {kAllColumns, Row(1)}}, true);
    sheet.SetBackColor({{Column(1), kAllRows}, {Column(1), kAllRows}}, 255);
    sheet.SetBackColor({At(1, 1), At(2, 1)}, std::nullopt);
    EXPECT_EQ(DrawnBold(sheet), "...\n###\n...");
    EXPECT_EQ(DrawnColors(sheet), "- | 255 | -\n"
                                  "- | -   | -\n"
                                  "- | 255 | -");
}

TEST_F(SheetTest, ARowIsAsHighAsALineOfItsFontWithSomeRoom)
{
    sheet.SetFont(QFont(QStringLiteral("Liberation Sans"), 10));
    const int small = sheet.RowHeight(Row(1));
    EXPECT_GT(small, 200);
    sheet.SetFont(QFont(QStringLiteral("Liberation Sans"), 20));
    EXPECT_GT(sheet.RowHeight(Row(1)), small + 200);
}

TEST_F(SheetTest, TheWidestTextHasPaddingAtBothSides)
{
    sheet.SetText(At(1, 1), Text("short"));
    sheet.SetText(At(1, 2), Text("rather long"));
    EXPECT_EQ(sheet.WidestText(Column(1)), Advance(Text("rather long"), sheet.Font()) + 2 * Sheet::kPadding);
}

TEST_F(SheetTest, AColumnWithoutAnyTextNeedsNoWidth)
{
    sheet.SetText(At(1, 1), Text(""));
    EXPECT_EQ(sheet.WidestText(Column(0)), 0);
    EXPECT_EQ(sheet.WidestText(Column(1)), 0);
    EXPECT_EQ(sheet.WidestText(Column(77)), 0);
}

TEST_F(SheetTest, HeadersAndHiddenRowsCountForTheWidestText)
{
    const QString text = Text("the widest of all");
    sheet.SetText(At(1, 1), Text("x"));
    sheet.SetText(At(2, 1), text);
    sheet.SetText(At(1, 0), text);
    sheet.SetHidden(Row(1), true);
    EXPECT_EQ(sheet.WidestText(Column(1)), Advance(text, sheet.Font()) + 2 * Sheet::kPadding);
    EXPECT_EQ(sheet.WidestText(Column(2)), sheet.WidestText(Column(1)));
}

TEST_F(SheetTest, BoldCellsAreMeasuredBold)
{
    sheet.SetText(At(1, 1), Text("Remarks"));
    sheet.SetText(At(1, 2), Text("Remark"));
    const int plain = sheet.WidestText(Column(1));
    sheet.SetBold(CellRange::Of(Column(1), Row(1)), true);
    EXPECT_EQ(sheet.WidestText(Column(1)), Advance(Text("Remarks"), sheet.Font(), true) + 2 * Sheet::kPadding);
    EXPECT_GT(sheet.WidestText(Column(1)), plain);
}

TEST_F(SheetTest, WidthsFollowEveryChange)
{
    const auto widest = [this] { return sheet.WidestText(Column(1)) - 2 * Sheet::kPadding; };
    sheet.SetText(At(1, 1), Text("long text"));
    EXPECT_EQ(widest(), Advance(Text("long text"), sheet.Font()));
    sheet.SetText(At(1, 1), Text("text"));
    EXPECT_EQ(widest(), Advance(Text("text"), sheet.Font()));
    Adopt(TableOf({{}, {"-", "another one"}}));
    EXPECT_EQ(widest(), Advance(Text("another one"), sheet.Font()));
    sheet.SetFont(QFont(QStringLiteral("Liberation Sans"), 20));
    EXPECT_EQ(widest(), Advance(Text("another one"), sheet.Font()));
    sheet.ClearCells();
    EXPECT_EQ(sheet.WidestText(Column(1)), 0);
}

TEST_F(SheetTest, OneTextIsMeasuredLikeTheWidest)
{
    Adopt(TableOf({{"a", "bb"}, {"AVAVA To Ty, Umwälzpumpe Насос 上海", "d"}}), Lines::AreColumns);
    const auto measuresAlike = [this] { return sheet.TextWidth(At(1, 0)) == sheet.WidestText(Column(1)); };
    EXPECT_TRUE(measuresAlike());
    sheet.SetBold(CellRange::Of(Column(1), Row(0)), true);
    EXPECT_TRUE(measuresAlike());
    QFont bold = sheet.Font();
    bold.setBold(true);
    sheet.SetFont(bold);
    EXPECT_TRUE(measuresAlike());
    EXPECT_EQ(sheet.TextWidth(At(5, 5)), 0) << "without text";
}

TEST_F(SheetTest, ColumnsOfTransposedLinesAreMeasuredAsColumns)
{
    Adopt(TableOf({{"a", "bb"}, {"cccccc", "d"}}), Lines::AreColumns);
    EXPECT_EQ(sheet.WidestText(Column(1)), Advance(Text("cccccc"), sheet.Font()) + 2 * Sheet::kPadding);
}

TEST_F(SheetTest, TellsEachChange)
{
    const Signals told(sheet);
    sheet.SetSize(3, 3);
    sheet.SetText(At(1, 1), Text("x"));
    sheet.SetHidden(Row(1), true);
    sheet.SetFrozenColumns(1);
    sheet.SetActiveCell(At(1, 1));
    EXPECT_EQ(told.Drawn(), "changed 2, cell 1, frozen 1, active 1");
    EXPECT_EQ(told.cell.front().front().value<Cell>(), At(1, 1));
}

TEST_F(SheetTest, WhatDoesNotChangeIsNotTold)
{
    const Signals told(sheet);
    sheet.SetSize(0, 0);
    sheet.SetActiveCell(At(0, 0));
    sheet.SetRepainting(true);
    EXPECT_EQ(told.Drawn(), "changed 0, cell 0, frozen 0, active 0");
}

TEST_F(SheetTest, WhileRepaintingIsOffNoChangeIsToldAndThenOne)
{
    const Signals told(sheet);
    sheet.SetRepainting(false);
    sheet.SetSize(3, 3);
    sheet.SetText(At(1, 1), Text("x"));
    sheet.SetStyle(At(1, 1), kBox);
    sheet.SetColumnWidth(Column(1), 700);
    sheet.SetBold(CellRange::Of(Column(1), Row(1)), true);
    sheet.Adopt(TableOf({{"a"}}), Lines::AreRows);
    EXPECT_EQ(told.Drawn(), "changed 0, cell 0, frozen 0, active 0");
    EXPECT_FALSE(sheet.Repainting());
    sheet.SetRepainting(true);
    EXPECT_EQ(told.Drawn(), "changed 1, cell 0, frozen 0, active 0");
}

TEST_F(SheetTest, AnEditCostsOnlyItsText)
{
    sheet.SetText(At(1, 1), Text("x"));
    const std::size_t before = sheet.MemoryUse();
    for (int edits = 0; edits < 10; ++edits)
        sheet.SetText(At(1, 1), Text("0123456789"));
    EXPECT_LE(sheet.MemoryUse(), before + 512);
}
