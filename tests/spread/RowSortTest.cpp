#include "spread/RowSort.h"

#include "support/SheetDrawing.h"

#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

constexpr Column kColumn{1};

struct RowSort : ::testing::Test
{
    /// One column, its texts from row 1 on.
    void Fill(std::initializer_list<const char*> texts)
    {
        sheet.SetSize(1, static_cast<int>(texts.size()));
        Row row{0};
        for (const char* text : texts)
            sheet.SetText({kColumn, ++row}, QString::fromUtf8(text));
    }

    void SetDataType(int row, DataType type) { sheet.SetStyle(At(1, row), {.dataType = type}); }

    std::vector<int> Sorted(RowOrder order) const { return SortedRows(sheet, kColumn, order, headings, locale); }

    /// The texts as they are shown then: "1 | 2 | A".
    std::string Shown(RowOrder order = RowOrder::Ascending) const
    {
        QStringList texts;
        for (const int row : Sorted(order))
            texts << sheet.Text({kColumn, Row(row)});
        return texts.join(QStringLiteral(" | ")).toStdString();
    }

    /// The rows as they are shown then: "3 1 2".
    std::string Rows(RowOrder order = RowOrder::Ascending) const
    {
        QStringList rows;
        for (const int row : Sorted(order))
            rows << QString::number(row);
        return rows.join(u' ').toStdString();
    }

    Sheet sheet;
    std::vector<int> headings;
    QLocale locale{QLocale::English};
};

} // namespace

TEST_F(RowSort, TheDocumentsOrderIsNone)
{
    Fill({"2", "1"});
    EXPECT_TRUE(Sorted(RowOrder::Document).empty());
}

TEST_F(RowSort, AnEmptySheetHasNoRows)
{
    Fill({});
    EXPECT_EQ(Rows(), "");
    headings = {1};
    sheet.SetFrozenRows(2);
    EXPECT_EQ(Rows(), "");
}

TEST_F(RowSort, TheSheetTakesTheOrder)
{
    Fill({"3", "1", "2"});
    sheet.SetRowOrder(Sorted(RowOrder::Ascending));
    EXPECT_EQ(sheet.Rows().ItemAt(1), 2);
    EXPECT_EQ(sheet.Rows().ItemAt(2), 3);
    EXPECT_EQ(sheet.Rows().ItemAt(3), 1);
}

TEST_F(RowSort, NumbersGoByValue)
{
    Fill({"10", "9", "-2", "-10", "0.5", "9.25", "+9.1", "007"});
    EXPECT_EQ(Shown(), "-10 | -2 | 0.5 | 007 | 9 | +9.1 | 9.25 | 10");
    EXPECT_EQ(Shown(RowOrder::Descending), "10 | 9.25 | +9.1 | 9 | 007 | 0.5 | -2 | -10");
}

TEST_F(RowSort, NumbersGoByValueHoweverTheyAreWritten)
{
    Fill({"1,234.5", "999", "1234", "12,5", "12.25"});
    EXPECT_EQ(Shown(), "12.25 | 12,5 | 999 | 1234 | 1,234.5");
}

TEST_F(RowSort, NumbersAreReadAsTheLocaleWritesThem)
{
    Fill({"1.234", "99", "1,5"});
    EXPECT_EQ(Shown(), "1.234 | 1,5 | 99");
    locale = QLocale(QLocale::German);
    EXPECT_EQ(Shown(), "1,5 | 99 | 1.234");
}

TEST_F(RowSort, NumbersTooLargeForADoubleComeLastOfTheNumbers)
{
    const std::string huge(400, '9');
    Fill({huge.c_str(), "A", "1"});
    EXPECT_EQ(Rows(), "3 1 2");
}

TEST_F(RowSort, NumbersComeBeforeTextsAndAfterThemWhenDescending)
{
    Fill({"B", "2", "A", "1"});
    EXPECT_EQ(Shown(), "1 | 2 | A | B");
    EXPECT_EQ(Shown(RowOrder::Descending), "B | A | 2 | 1");
}

TEST_F(RowSort, ExponentsAreNumbersInNumericCellsAlone)
{
    for (const DataType type :
         {DataType::Integer, DataType::Long, DataType::Single, DataType::Double, DataType::Currency, DataType::Number})
    {
        Fill({"1e3", "5"});
        SetDataType(1, type);
        EXPECT_EQ(Shown(RowOrder::Descending), "1e3 | 5");
    }
    for (const DataType type : {DataType::Text, DataType::CheckBox}) {
        Fill({"1e0", "9", "A"});
        SetDataType(1, type);
        EXPECT_EQ(Shown(), "9 | 1e0 | A");
    }
}

TEST_F(RowSort, TheNamesOfSpecialValuesAreTexts)
{
    Fill({"nan", "inf", "P-1", "7"});
    for (int row = 1; row <= 4; ++row)
        SetDataType(row, DataType::Double);
    EXPECT_EQ(Shown(), "7 | inf | nan | P-1");
}

TEST_F(RowSort, BlanksComeLastInBothDirections)
{
    Fill({"", "B", " \t", "\u00A0", "1", "A"});
    EXPECT_EQ(Rows(), "5 6 2 1 3 4");
    EXPECT_EQ(Rows(RowOrder::Descending), "2 6 5 1 3 4");
}

TEST_F(RowSort, RowsWithoutCellsAreBlank)
{
    Fill({"B", "A"});
    sheet.SetSize(1, 4);
    EXPECT_EQ(Rows(), "2 1 3 4");
    EXPECT_EQ(SortedRows(sheet, Column(7), RowOrder::Descending, {}, locale), (std::vector{1, 2, 3, 4}));
    EXPECT_EQ(SortedRows(sheet, kAllColumns, RowOrder::Descending, {}, locale), (std::vector{1, 2, 3, 4}));
}

TEST_F(RowSort, CellsThatAreAlikeStayInTheDocumentsOrder)
{
    Fill({"B", "1.0", "A", "B", "1", "A"});
    EXPECT_EQ(Rows(), "2 5 3 6 1 4");
    EXPECT_EQ(Rows(RowOrder::Descending), "1 4 3 6 2 5");
}

TEST_F(RowSort, CellsAreAlikeInAColumnOfManyDifferentTexts)
{
    constexpr int kTexts = 9000;
    sheet.SetSize(1, 2 * kTexts);
    std::vector<int> expected;
    for (int text = 1; text <= kTexts; ++text) {
        sheet.SetText(At(1, text), QStringLiteral("P-%1").arg(text));
        sheet.SetText(At(1, kTexts + text), QStringLiteral("P-%1").arg(text));
        expected.insert(expected.end(), {text, kTexts + text});
    }
    EXPECT_EQ(Sorted(RowOrder::Ascending), expected);
}

TEST_F(RowSort, NumbersInTextsGoByValue)
{
    Fill({"P-10", "P-2", "P-1A", "P-1", "P-100", "v1.10", "v1.9"});
    EXPECT_EQ(Shown(), "P-1 | P-1A | P-2 | P-10 | P-100 | v1.9 | v1.10");
}

TEST_F(RowSort, NumbersInTextsMayBeLong)
{
    const std::string longer = "T1" + std::string(60, '0');
    const std::string shorter = "T" + std::string(60, '9');
    Fill({longer.c_str(), shorter.c_str(), "T18446744073709551616", "T5"});
    EXPECT_EQ(Rows(), "4 3 2 1");
}

TEST_F(RowSort, AHyphenInATextIsNoMinus)
{
    Fill({"x-10", "x-5", "x-7 m"});
    EXPECT_EQ(Shown(), "x-5 | x-7 m | x-10");
}

TEST_F(RowSort, LeadingZerosInTextsDoNotTellThemApart)
{
    Fill({"P-002", "P-2", "P-02", "P-1"});
    EXPECT_EQ(Rows(), "4 1 2 3");
}

TEST_F(RowSort, SignsInTextsCount)
{
    Fill({"P1", "P-2", "P 1", "P2", "P-1", "P.1", "P_1"});
    EXPECT_EQ(Shown(), "P 1 | P_1 | P-1 | P-2 | P.1 | P1 | P2");
}

TEST_F(RowSort, CaseDecidesAfterEverythingElse)
{
    Fill({"B", "Ab", "a", "A", "ab", "b"});
    EXPECT_EQ(Shown(), "a | A | ab | Ab | b | B");
}

TEST_F(RowSort, TextsGoByTheLocalesCollation)
{
    Fill({"z", "ä", "a", "b"});
    locale = QLocale(QLocale::German);
    EXPECT_EQ(Shown(), "a | ä | b | z");
    locale = QLocale(QLocale::Swedish);
    EXPECT_EQ(Shown(), "a | b | z | ä");
}

TEST_F(RowSort, WithoutALocaleTextsGoAsInEnglish)
{
    Fill({"P-10", "b", "A", "P-2", "a"});
    locale = QLocale::c();
    EXPECT_EQ(Shown(), "a | A | b | P-2 | P-10");
}

TEST_F(RowSort, CheckBoxesGoByTheirText)
{
    Fill({"1", "0", "1", "0"});
    for (int row = 1; row <= 4; ++row)
        sheet.SetStyle(At(1, row), {.type = CellType::CheckBox, .dataType = DataType::CheckBox});
    EXPECT_EQ(Rows(), "2 4 1 3");
    EXPECT_EQ(Rows(RowOrder::Descending), "1 3 2 4");
}

TEST_F(RowSort, HiddenRowsAreSortedAlong)
{
    Fill({"3", "1", "2"});
    sheet.SetHidden(Row(2), true);
    EXPECT_EQ(Rows(), "2 3 1");
}

TEST_F(RowSort, FrozenRowsStay)
{
    Fill({"5", "4", "3", "2", "1"});
    sheet.SetFrozenRows(2);
    EXPECT_EQ(Shown(), "5 | 4 | 1 | 2 | 3");
    sheet.SetFrozenRows(9);
    EXPECT_EQ(Shown(), "5 | 4 | 3 | 2 | 1");
}

TEST_F(RowSort, HeadingsStayAndKeepTheirRowsBelowThem)
{
    Fill({"2", "1", "Motor", "9", "", "8", "Design", "B", "A"});
    headings = {3, 7};
    EXPECT_EQ(Shown(), "1 | 2 | Motor | 8 | 9 |  | Design | A | B");
    EXPECT_EQ(Shown(RowOrder::Descending), "2 | 1 | Motor | 9 | 8 |  | Design | B | A");
}

TEST_F(RowSort, HeadingsMayFollowOneAnotherAndStandAtTheEnds)
{
    Fill({"Z", "2", "1", "Y", "X"});
    headings = {1, 4, 5};
    EXPECT_EQ(Shown(), "Z | 1 | 2 | Y | X");
}

TEST_F(RowSort, HeadingsMayBeFrozenOrOutsideOfTheSheet)
{
    Fill({"5", "Motor", "4", "2", "1"});
    sheet.SetFrozenRows(3);
    headings = {-1, 0, 2, 3, 6, 99};
    EXPECT_EQ(Shown(), "5 | Motor | 4 | 1 | 2");
}

TEST_F(RowSort, RowsOfATransposedTableAreSortedToo)
{
    CellStore store;
    int line = 0;
    for (const char* text : {"Flow", "12", "8"})
        store.Place(1, line++, text, {});
    sheet.Adopt(std::move(store), Lines::AreColumns);
    sheet.SetSize(1, 2);
    EXPECT_EQ(Shown(), "8 | 12");
}

TEST_F(RowSort, TheOrderThatIsShownDoesNotMatter)
{
    Fill({"1", "1", "0"});
    sheet.SetRowOrder({3, 2, 1});
    EXPECT_EQ(Rows(), "3 1 2");
}
