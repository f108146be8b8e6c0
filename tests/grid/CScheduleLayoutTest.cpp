#include "grid/ScheduleFixture.h"
#include "support/MeasuredText.h"

#include <QSignalSpy>

using namespace schedules;
using namespace schedules::testing;

namespace {

constexpr int kPadding = 2 * Sheet::kPadding;

struct CScheduleLayout : ScheduleFixture
{
    /// A table with these texts in a column of data and in the row header before it.
    static QString Cells(const QString& rowHeader, const QString& data)
    {
        return InTable(QStringLiteral("<TR><TH/><TH/></TR><TR><TH>%1</TH><TD>%2</TD></TR>").arg(rowHeader, data));
    }

    QString Measuring(int twips) const
    {
        const QString text = TextMeasuring(twips, sheet.Font());
        EXPECT_FALSE(text.isEmpty()) << "no text measures " << twips;
        return text;
    }

    int WidthWithHeader(int twips)
    {
        EXPECT_TRUE(engine.LoadScheduleData(Cells(Measuring(twips), QStringLiteral("x"))));
        return sheet.ColumnWidth(Column(0));
    }

    int WidthWithData(const QString& text)
    {
        EXPECT_TRUE(engine.LoadScheduleData(Cells(QStringLiteral("P-1"), text)));
        return sheet.ColumnWidth(Column(1));
    }
};

} // namespace

TEST(CScheduleMembers, StartWithTheirDefaults)
{
    ScriptedUserInterface user;
    const CSchedule engine(user);
    EXPECT_EQ(engine.Sched(), nullptr);
    EXPECT_EQ(engine.DefaultColWidth(), 1440);
    EXPECT_TRUE(engine.ShowUnits());
    EXPECT_EQ(engine.SchedOrientation(), 0);
    EXPECT_FALSE(engine.TransposeData());
    EXPECT_FALSE(engine.ShowGroupHeaders());
    EXPECT_FALSE(engine.TagDataDirty());
    EXPECT_EQ(engine.TemplateName(), QStringLiteral("(Default)"));
    EXPECT_EQ(engine.TemplateID(), 0);
    EXPECT_EQ(engine.Title(), QStringLiteral("Missing: 3024"));
    EXPECT_TRUE(user.boxes.empty());
}

TEST(CScheduleMembers, KeepWhatIsSet)
{
    ScriptedUserInterface user;
    CSchedule engine(user);
    engine.SetShowUnits(false);
    engine.SetShowGroupHeaders(true);
    engine.SetTagDataDirty(true);
    engine.SetTemplateName(QStringLiteral("Pumps"));
    engine.SetTemplateID(7);
    engine.SetTitle(QString());
    EXPECT_FALSE(engine.ShowUnits());
    EXPECT_TRUE(engine.ShowGroupHeaders());
    EXPECT_TRUE(engine.TagDataDirty());
    EXPECT_EQ(engine.TemplateName(), QStringLiteral("Pumps"));
    EXPECT_EQ(engine.TemplateID(), 7);
    EXPECT_EQ(engine.Title(), QString()) << "set to nothing is set";
}

TEST(CScheduleMembers, UnitsAreLabelledInBrackets)
{
    EXPECT_EQ(CSchedule::GetUnitLabel({}), QString());
    EXPECT_EQ(CSchedule::GetUnitLabel(QStringLiteral("ft")), QStringLiteral("(ft)"));
    EXPECT_EQ(CSchedule::GetUnitLabel(QStringLiteral("psi")), QStringLiteral("(psi)"));
    EXPECT_EQ(CSchedule::GetUnitLabel(QStringLiteral(" ")), QStringLiteral("( )"));
    EXPECT_EQ(CSchedule::GetUnitLabel(QStringLiteral("%1")), QStringLiteral("(%1)"));
}

// Widths.

TEST_F(CScheduleLayout, DataColumnsAreAtLeast360TwipsWide)
{
    EXPECT_EQ(WidthWithData(QStringLiteral("i")), 360);
    EXPECT_EQ(WidthWithData({}), 360);
    EXPECT_EQ(WidthWithData(Measuring(359)), 360);
    EXPECT_EQ(WidthWithData(Measuring(360)), 360);
    EXPECT_EQ(WidthWithData(Measuring(361)), 361);
}

TEST_F(CScheduleLayout, RowHeadersAreAtLeast1440TwipsWide)
{
    EXPECT_EQ(WidthWithHeader(900), 1440);
    EXPECT_EQ(WidthWithHeader(1440), 1440);
    EXPECT_EQ(WidthWithHeader(1441), 1441);
    EXPECT_EQ(WidthWithHeader(2000), 2000);
}

TEST_F(CScheduleLayout, AColumnIsAsWideAsItsWidestText)
{
    Loaded("Tag | Flow rate at the design point \n P-1 | 12 \n P-2 | 8");
    EXPECT_EQ(sheet.ColumnWidth(Column(1)),
              Advance(QStringLiteral("Flow rate at the design point"), sheet.Font()) + kPadding);
}

TEST_F(CScheduleLayout, HiddenRowsAndTheCornerCount)
{
    const QString wide = QStringLiteral("a really wide text in here");
    EXPECT_TRUE(engine.LoadScheduleData(
        InTable(QStringLiteral("<TR><TH>%1</TH><TH/></TR><TR><TH hidden='-1'/><TD>%1</TD></TR><TR><TH/><TD/></TR>")
                    .arg(wide))));
    EXPECT_EQ(sheet.ColumnWidth(Column(1)), Advance(wide, sheet.Font()) + kPadding);
    EXPECT_EQ(sheet.ColumnWidth(Column(0)), sheet.ColumnWidth(Column(1)));
}

TEST_F(CScheduleLayout, BoldColumnsAreMeasuredBold)
{
    Loaded("Tag | Remarks of the vendor {fontBold=-1} \n P-1 | 12");
    EXPECT_EQ(sheet.ColumnWidth(Column(1)),
              Advance(QStringLiteral("Remarks of the vendor"), sheet.Font(), true) + kPadding);
}

TEST_F(CScheduleLayout, TextsThatAreNotShownDoNotCount)
{
    Loaded("Tag | A \n P-1 | much too long to be shown in a box {dataType=CHECKBOX visible=0}");
    EXPECT_EQ(sheet.ColumnWidth(Column(1)), 360);
}

TEST_F(CScheduleLayout, HiddenColumnsAreSizedLikeOthers)
{
    engine.SetSchedOrientation(1);
    Loaded("Tag | A wide header text {hidden=-1} \n P-1 | 12");
    EXPECT_EQ(sheet.ColumnWidth(Column(1)), Advance(QStringLiteral("A wide header text"), sheet.Font()) + kPadding);
}

TEST_F(CScheduleLayout, TheRowHeadersOfASelectorAreAsWideAsTheirText)
{
    ASSERT_TRUE(engine.LoadSelectionData(Cells(Measuring(900), QStringLiteral("x")), false));
    EXPECT_EQ(sheet.ColumnWidth(Column(0)), 900);
    ASSERT_TRUE(engine.LoadSelectionData(Cells({}, QStringLiteral("x")), false));
    EXPECT_EQ(sheet.ColumnWidth(Column(0)), 0) << "no text, no width";
}

TEST_F(CScheduleLayout, ASelectorSizesFromColumn1InTheNormalLayout)
{
    ASSERT_TRUE(engine.LoadSelectionData(Table("Tag | A wide header text | i | i | i \n P-1 | 1 | 2 | 3 | 4"), false));
    EXPECT_EQ(sheet.ColumnWidth(Column(1)), Advance(QStringLiteral("A wide header text"), sheet.Font()) + kPadding);
    EXPECT_EQ(sheet.ColumnWidth(Column(2)), 360);
    EXPECT_EQ(sheet.ColumnWidth(Column(4)), 360);
}

TEST_F(CScheduleLayout, ASelectorLeavesColumns1And2AloneInOrientation1)
{
    engine.SetSchedOrientation(1);
    ASSERT_TRUE(engine.LoadSelectionData(Table("Tag | A wide header text | i | i | i \n P-1 | 1 | 2 | 3 | 4"), false));
    EXPECT_EQ(sheet.ColumnWidth(Column(1)), 1440);
    EXPECT_EQ(sheet.ColumnWidth(Column(2)), 1440);
    EXPECT_EQ(sheet.ColumnWidth(Column(3)), 360);
    EXPECT_EQ(sheet.ColumnWidth(Column(4)), 360);
    EXPECT_EQ(DrawnHAlign(sheet), "CCCCC\nLLLDD");
}

TEST_F(CScheduleLayout, ASelectorSizesFromColumn1InAnyOtherOrientation)
{
    engine.SetSchedOrientation(2);
    ASSERT_TRUE(engine.LoadSelectionData(Table("Tag | i | i | i \n P-1 | 1 | 2 | 3"), false));
    EXPECT_EQ(sheet.ColumnWidth(Column(1)), 360);
}

TEST_F(CScheduleLayout, AScheduleSizesAllColumnsInEitherOrientation)
{
    for (const int orientation : {0, 1, 2}) {
        engine.SetSchedOrientation(orientation);
        Loaded("Tag | i | i | i \n P-1 | 1 | 2 | 3");
        EXPECT_EQ(DrawnWidths(sheet), "1440 | 360 | 360 | 360") << orientation;
    }
}

// Widths after an edit.

TEST_F(CScheduleLayout, AnEditedCellWidensItsColumnToItsTextAndNeverNarrowsIt)
{
    Loaded("Tag | Flow | Head \n P-1 | 12 | 3 \n P-2 | 8 | 4");
    const QString text = QStringLiteral("1234567.5 m3/h at most");
    sheet.SetText(At(1, 2), text);
    engine.WidenToCell(At(1, 2));
    const int wide = Advance(text, sheet.Font()) + kPadding;
    EXPECT_EQ(sheet.ColumnWidth(Column(1)), wide);
    EXPECT_EQ(sheet.ColumnWidth(Column(2)), Advance(QStringLiteral("Head"), sheet.Font()) + kPadding)
        << "the neighbour stays";
    for (const char* shorter : {"1", ""}) {
        sheet.SetText(At(1, 2), QLatin1String(shorter));
        engine.WidenToCell(At(1, 2));
        EXPECT_EQ(sheet.ColumnWidth(Column(1)), wide);
    }
}

TEST_F(CScheduleLayout, AnEditedCellWidensByTheMeasureOfALoad)
{
    for (const int orientation : {0, 1}) {
        for (const bool transpose : {false, true}) {
            engine.SetSchedOrientation(orientation);
            engine.SetTransposeData(transpose);
            Loaded("Tag | i {fontBold=-1} | i \n P-1 | 1 | 2 \n P-2 | 3 | 4");
            for (const Cell cell : {At(0, 1), At(1, 0), At(1, 2), At(2, 1)}) {
                sheet.SetText(cell, QStringLiteral("Umwälzpumpe, spare in store"));
                engine.WidenToCell(cell);
                EXPECT_EQ(sheet.ColumnWidth(cell.column), sheet.WidestText(cell.column)) << orientation << transpose;
            }
        }
    }
}

TEST_F(CScheduleLayout, AnEditedCellKeepsTheLeastWidths)
{
    Loaded("Tag | i \n P-1 | 1");
    sheet.SetText(At(0, 1), Measuring(1400));
    sheet.SetText(At(1, 1), Measuring(361));
    engine.WidenToCell(At(0, 1));
    engine.WidenToCell(At(1, 1));
    EXPECT_EQ(DrawnWidths(sheet), "1440 | 361");
}

TEST_F(CScheduleLayout, AnEditWithoutASheetToWidenIsReported)
{
    engine.SetSched(nullptr);
    engine.WidenToCell(At(1, 1));
    EXPECT_EQ(Sources(), "Schedules.CSchedule.WidenToCell");
}

// Alignment and looks.

TEST_F(CScheduleLayout, HeadersAreCentredRowHeadersLeftAndDataByTheirKind)
{
    for (const int orientation : {0, 1, 2}) {
        engine.SetSchedOrientation(orientation);
        Loaded("Tag | Flow | Head \n P-1 | 12 | 48 \n P-2 | 8 | 50");
        EXPECT_EQ(DrawnHAlign(sheet), "CCC\nLDD\nLDD") << orientation;
        EXPECT_EQ(DrawnVAlign(sheet), "CCC\nBTT\nBTT") << orientation;
    }
}

TEST_F(CScheduleLayout, TheHeaderRowOfASelectorIsVerticallyAtTheTop)
{
    ASSERT_TRUE(engine.LoadSelectionData(Table("Tag | Flow \n P-1 | 12"), false));
    EXPECT_EQ(DrawnVAlign(sheet), "TT\nTT");
    EXPECT_EQ(DrawnHAlign(sheet), "CC\nLD");
}

TEST_F(CScheduleLayout, TheRowHeadersOfAScheduleAreGreyAndThoseOfASelectorNot)
{
    Loaded("Tag | Flow \n P-1 | 12");
    EXPECT_EQ(DrawnColors(sheet), "-          | -\n"
                                  "2147483663 | -");
    engine.SchedInitialize();
    ASSERT_TRUE(engine.LoadSelectionData(Table("Tag | Flow \n P-1 | 12"), false));
    EXPECT_EQ(DrawnColors(sheet), "- | -\n- | -");
}

TEST_F(CScheduleLayout, RowHeadersDoNotWrap)
{
    sheet.SetWraps({{kAllColumns, kAllRows}, {kAllColumns, kAllRows}}, true);
    Loaded("Tag | Flow \n P-1 | 12");
    EXPECT_FALSE(sheet.Wraps(At(0, 1)));
    EXPECT_TRUE(sheet.Wraps(At(1, 1)));
}

TEST_F(CScheduleLayout, RowHeadersStandAtTheLeftWhateverTheyDidBefore)
{
    for (const int orientation : {0, 1}) {
        engine.SetSchedOrientation(orientation);
        engine.SchedInitialize();
        sheet.SetHAlign({{Column(0), kAllRows}, {Column(0), kAllRows}}, HorizontalAlignment::Data);
        ASSERT_TRUE(engine.LoadSelectionData(Table("1 | Tag | Select \n 2 | P-1 | 3"), false));
        EXPECT_EQ(sheet.HAlign(At(0, 1)), HorizontalAlignment::Left) << orientation;
        engine.SchedInitialize();
        sheet.SetHAlign({{Column(0), kAllRows}, {Column(0), kAllRows}}, HorizontalAlignment::Center);
        Loaded("1 | Tag");
        EXPECT_EQ(sheet.HAlign(At(0, 0)), HorizontalAlignment::Left) << orientation;
    }
}

TEST_F(CScheduleLayout, TheHeaderRowIsNeverLowered)
{
    sheet.SetRowHeight(Row(0), 900);
    Loaded("Tag | Flow \n P-1 | 12");
    EXPECT_EQ(sheet.RowHeight(Row(0)), 900);
}

TEST_F(CScheduleLayout, AGridWithoutDataIsNotStyled)
{
    for (const char* table : {"Tag | Flow", "Tag \n P-1 \n P-2"}) {
        engine.SchedInitialize();
        Loaded(table);
        EXPECT_EQ(sheet.HAlign(At(0, 0)), HorizontalAlignment::Left) << table;
        EXPECT_EQ(sheet.VAlign(At(0, 0)), VerticalAlignment::Top);
        EXPECT_EQ(sheet.BackColor(At(0, 1)), std::nullopt);
        EXPECT_LT(sheet.ColumnWidth(Column(0)), 1440);
    }
}

// The public steps alone.

TEST_F(CScheduleLayout, AutoSizingShrinksTheGridToItsData)
{
    sheet.SetText(At(3, 2), QStringLiteral("x"));
    engine.SchedAutoSize();
    EXPECT_EQ(DrawnSize(sheet), "3 columns, 2 rows");
    engine.SetSchedOrientation(1);
    sheet.SetSize(9, 9);
    engine.SchedAutoSize();
    EXPECT_EQ(DrawnSize(sheet), "3 columns, 2 rows") << "nothing is swapped";
}

TEST_F(CScheduleLayout, TheRowHeaderIsSizedToItsTextWhenThereAreData)
{
    sheet.SetText(At(0, 1), Measuring(900));
    engine.AutoSizeRowHeader();
    EXPECT_EQ(sheet.ColumnWidth(Column(0)), 1440) << "row headers alone are no data";
    sheet.SetText(At(1, 1), QStringLiteral("x"));
    engine.AutoSizeRowHeader();
    EXPECT_EQ(sheet.ColumnWidth(Column(0)), 900);
}

TEST_F(CScheduleLayout, TheWorkingAreaIs500By500InEitherOrientation)
{
    engine.SetSchedOrientation(1);
    engine.SchedInitialize();
    EXPECT_EQ(DrawnSize(sheet), "500 columns, 500 rows");
}

TEST_F(CScheduleLayout, ShowingUnitsLeavesNoContents)
{
    Loaded("Tag | Flow \n P-1 | 1 {dataType=CHECKBOX visible=-1}");
    engine.SchedShowUnits();
    EXPECT_EQ(DrawnSize(sheet), "100 columns, 1 rows");
    EXPECT_EQ(sheet.Text(At(0, 0)) + sheet.Text(At(1, 1)), QString());
    EXPECT_EQ(DrawnTypes(sheet).find('x'), std::string::npos);
    EXPECT_EQ(sheet.DataColumnCount(), 0);
    EXPECT_EQ(sheet.ColumnWidth(Column(100)), 360) << "the columns are sized";
    EXPECT_EQ(Messages(), "");
}

TEST_F(CScheduleLayout, ShowingUnitsTakes500ColumnsInOrientation1And100InAnyOther)
{
    for (const auto& [orientation, columns] : {std::pair{0, 100}, {1, 500}, {2, 100}}) {
        engine.SetSchedOrientation(orientation);
        engine.SchedShowUnits();
        EXPECT_EQ(sheet.ColumnCount(), columns) << orientation;
    }
}

TEST_F(CScheduleLayout, ShowingUnitsRepaintsOnce)
{
    Loaded("Tag | Flow \n P-1 | 12");
    const QSignalSpy changed(&sheet, &Sheet::Changed);
    engine.SchedShowUnits();
    EXPECT_EQ(changed.count(), 1);
    EXPECT_TRUE(sheet.Repainting());
}

TEST_F(CScheduleLayout, AfterShowingUnitsNothingOfTheTableIsLeft)
{
    sheet.SetHidden(Row(2), true);
    sheet.SetBackColor({{kAllColumns, Row(1)}, {kAllColumns, Row(1)}}, 255);
    engine.SchedShowUnits();
    EXPECT_FALSE(sheet.Hidden(Row(2)));
    EXPECT_EQ(sheet.BackColor({Column(1), Row(1)}), std::nullopt);
}

TEST_F(CScheduleLayout, AfterShowingUnitsTheTableIsFilledInAgain)
{
    Loaded("Tag | Flow \n P-1 | 12");
    engine.SchedShowUnits();
    EXPECT_EQ(Loaded("Tag | Flow (m3/h) \n P-1 | 12"), "Tag | Flow (m3/h)\n"
                                                       "P-1 | 12");
}
