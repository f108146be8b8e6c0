#include "common/modResource.h"
#include "grid/ScheduleFixture.h"

using namespace schedules;
using namespace schedules::testing;

namespace {

using CScheduleLoad = ScheduleFixture;

} // namespace

TEST_F(CScheduleLoad, PlacesCellsInDocumentOrder)
{
    EXPECT_EQ(Loaded("Tag | Flow | Head \n P-1 | 12 | 48 \n P-2 | 8 | 50"), "Tag | Flow | Head\n"
                                                                            "P-1 | 12   | 48\n"
                                                                            "P-2 | 8    | 50");
    EXPECT_EQ(DrawnSize(sheet), "2 columns, 2 rows");
}

TEST_F(CScheduleLoad, TransposesOnRequest)
{
    engine.SetTransposeData(true);
    EXPECT_EQ(Loaded("Tag | Flow \n P-1 | 12 \n P-2 | 8"), "Tag  | P-1 | P-2\n"
                                                           "Flow | 12  | 8");
}

TEST_F(CScheduleLoad, TransposedTheSecondCellOfTheThirdRowLandsAtColumn2Row1)
{
    engine.SetTransposeData(true);
    engine.SetSchedOrientation(1);
    Loaded("Tag | Flow \n P-1 | 12 \n P-2 | 8");
    EXPECT_EQ(sheet.Text(At(2, 1)), QStringLiteral("8"));
}

TEST_F(CScheduleLoad, OrientationAloneMovesNoCell)
{
    engine.SetSchedOrientation(1);
    EXPECT_EQ(Loaded("Tag | Flow \n P-1 | 12 \n P-2 | 8"), "Tag | Flow\n"
                                                           "P-1 | 12\n"
                                                           "P-2 | 8");
}

TEST_F(CScheduleLoad, AHeaderRowAloneHoldsNoData)
{
    Loaded("Tag | Flow | Head");
    EXPECT_EQ(DrawnSize(sheet), "0 columns, 0 rows");
    sheet.SetSize(2, 0);
    EXPECT_EQ(Drawn(sheet), "Tag | Flow | Head");
}

TEST_F(CScheduleLoad, APlacedCellHoldsDataEvenWithoutText)
{
    EXPECT_EQ(Loaded("Tag | Flow | Remarks \n P-1 | 12 |"), "Tag | Flow | Remarks\n"
                                                            "P-1 | 12   |");
}

TEST_F(CScheduleLoad, ARowHeaderWithoutCellsIsNoData)
{
    EXPECT_EQ(Loaded("Tag | Flow \n P-1 | 12 \n P-2"), "Tag | Flow\n"
                                                       "P-1 | 12");
}

TEST_F(CScheduleLoad, ARowWithoutCellsCountsAsARow)
{
    EXPECT_EQ(Loaded("Tag | Flow \n \n P-2 | 8"), "Tag | Flow\n"
                                                  "    |\n"
                                                  "P-2 | 8");
}

TEST_F(CScheduleLoad, RowsMayHaveAnyNumberOfCells)
{
    EXPECT_EQ(Loaded("Tag \n P-1 | 12 | 48 \n P-2 | 8"), "Tag |    |\n"
                                                         "P-1 | 12 | 48\n"
                                                         "P-2 | 8  |");
}

TEST_F(CScheduleLoad, ATableLargerThanTheWorkingAreaIsLoadedWhole)
{
    QString rows;
    for (int row = 0; row < 521; ++row)
        rows += QStringLiteral("<TR>") + QStringLiteral("<TD>x</TD>").repeated(611) + QStringLiteral("</TR>");
    EXPECT_TRUE(engine.LoadScheduleData(InTable(rows)));
    EXPECT_EQ(DrawnSize(sheet), "610 columns, 520 rows");
    EXPECT_EQ(sheet.Text(At(610, 520)), QStringLiteral("x"));
}

/// A user who remembers which pointers he had seen when a box came, and may do something about it.
struct WatchingUser : ScriptedUserInterface
{
    Answer Show(const MessageBox& box) override
    {
        seenBefore = pointers;
        if (onShow)
            onShow();
        return ScriptedUserInterface::Show(box);
    }

    std::vector<Pointer> seenBefore;
    std::function<void()> onShow;
};

TEST(CScheduleMessage, IsShownBeforeThePointerIsRestored)
{
    WatchingUser watching;
    Sheet filled;
    CSchedule loading(watching);
    loading.SetSched(&filled);
    EXPECT_FALSE(loading.LoadScheduleData(QStringLiteral("<no xml")));
    EXPECT_EQ(watching.seenBefore, std::vector{Pointer::Hourglass});
    EXPECT_EQ(watching.pointers, (std::vector{Pointer::Hourglass, Pointer::Default}));
}

TEST(CScheduleMessage, ThatEndsTheEngineRestoresThePointerOnce)
{
    WatchingUser watching;
    auto filled = std::make_unique<Sheet>();
    auto loading = std::make_unique<CSchedule>(watching);
    loading->SetSched(filled.get());
    watching.onShow = [&] {
        loading.reset();
        filled.reset();
    };
    EXPECT_FALSE(loading->LoadScheduleData(QStringLiteral("<no xml")));
    EXPECT_EQ(watching.pointers, (std::vector{Pointer::Hourglass, Pointer::Default}));
}

TEST_F(CScheduleLoad, ThePointerIsBusyForTheLoad)
{
    Loaded("Tag | Flow");
    EXPECT_EQ(user.pointers, (std::vector{Pointer::Hourglass, Pointer::Default}));
    engine.LoadScheduleData(QStringLiteral("<no xml"));
    EXPECT_EQ(user.pointers, (std::vector{Pointer::Hourglass, Pointer::Default, Pointer::Hourglass, Pointer::Default}));
}

// What is read for a cell's text.

struct CellText
{
    const char* rule;
    const char* cell;
    const char* text;
};

struct CScheduleCellText : ScheduleFixture, ::testing::WithParamInterface<CellText>
{
};

TEST_P(CScheduleCellText, IsTheFirstTextChild)
{
    const QString row = QStringLiteral("<TR><TH>Tag</TH><TH>Flow</TH></TR><TR><TH>P-1</TH>%1<TD>end</TD></TR>");
    EXPECT_TRUE(engine.LoadScheduleData(InTable(row.arg(QString::fromUtf8(GetParam().cell)))));
    EXPECT_EQ(sheet.Text(At(1, 1)).toStdString(), GetParam().text);
    EXPECT_EQ(sheet.Text(At(2, 1)).toStdString(), "end") << "one node is one cell";
}

INSTANTIATE_TEST_SUITE_P(Cells, CScheduleCellText,
                         ::testing::Values(CellText{"Plain", "<TD>12.5</TD>", "12.5"}, CellText{"NoText", "<TD/>", ""},
                                           CellText{"EmptyText", "<TD></TD>", ""},
                                           CellText{"WhiteSpaceAlone", "<TD> \n\t </TD>", ""},
                                           CellText{"WhiteSpaceAroundIsKept", "<TD> a b </TD>", " a b "},
                                           CellText{"NonBreakingSpaceIsText", "<TD>&#160;</TD>", "\u00A0"},
                                           CellText{"Entities", "<TD>a &lt; b &amp; c &#x416;</TD>", "a < b & c Ж"},
                                           CellText{"CommentEndsTheFirstText", "<TD>ab<!-- -->cd</TD>", "ab"},
                                           CellText{"InstructionEndsTheFirstText", "<TD>ab<?p i?>cd</TD>", "ab"},
                                           CellText{"CDataEndsTheFirstText", "<TD>ab<![CDATA[x]]>cd</TD>", "ab"},
                                           CellText{"ElementEndsTheFirstText", "<TD>ab<b>x</b>cd</TD>", "ab"},
                                           CellText{"CDataIsNoText", "<TD><![CDATA[x]]></TD>", ""},
                                           CellText{"TextBehindCData", "<TD><![CDATA[x]]>cd</TD>", "cd"},
                                           CellText{"TextBehindAnElement", "<TD> <b>x</b>cd</TD>", "cd"},
                                           CellText{"TextBehindAComment", "<TD>\n<!-- -->cd</TD>", "cd"},
                                           CellText{"TextOfChildrenIsNotTheCells", "<TD><b>x</b></TD>", ""},
                                           CellText{"AnyElementIsACell", "<X>x</X>", "x"},
                                           CellText{"NamesInLowerCaseAreCells", "<td>x</td>", "x"},
                                           CellText{"ElementsInANamespaceAreCells", "<p:TD xmlns:p='u'>x</p:TD>", "x"},
                                           CellText{"CommentIsAnEmptyCell", "<!-- x -->", ""},
                                           CellText{"InstructionIsAnEmptyCell", "<?p x?>", ""},
                                           CellText{"CDataIsAnEmptyCell", "<![CDATA[x]]>", ""},
                                           CellText{"LooseTextIsAnEmptyCell", "loose &amp; text", ""},
                                           CellText{"AnyScript", "<TD>Насос 水 مضخة 𝄞</TD>", "Насос 水 مضخة 𝄞"}),
                         [](const auto& tested) { return std::string(tested.param.rule); });

TEST_F(CScheduleLoad, WhiteSpaceBetweenElementsIsNoCell)
{
    EXPECT_TRUE(engine.LoadScheduleData(InTable(QStringLiteral(
        "\n  <TR>\n    <TH>Tag</TH>\n    <TH>Flow</TH>\n  </TR>\n  <TR>\t<TH>P-1</TH> <TD>12</TD> </TR>\n"))));
    EXPECT_EQ(Drawn(sheet), "Tag | Flow\n"
                            "P-1 | 12");
}

TEST_F(CScheduleLoad, EachLooseNodeBetweenCellsCountsOnce)
{
    EXPECT_TRUE(engine.LoadScheduleData(
        InTable(QStringLiteral("<TR><TH>0</TH></TR><TR><TH>0</TH>a&amp;b<!-- -->c<?p?><![CDATA[]]><TD>6</TD></TR>"))));
    EXPECT_EQ(Drawn(sheet), "0 |  |  |  |  |  |\n"
                            "0 |  |  |  |  |  | 6");
}

// Which rows belong to the table.

TEST_F(CScheduleLoad, TablesStandAnywhereAndFollowEachOther)
{
    const QString xml = QStringLiteral("<S><G><TABLE>%1</TABLE></G><TABLE>%2</TABLE></S>")
                            .arg(TableRows("Tag | Flow \n P-1 | 12"), TableRows("Tag | Head \n P-2 | 48"));
    EXPECT_TRUE(engine.LoadScheduleData(xml));
    EXPECT_EQ(Drawn(sheet), "Tag | Flow\n"
                            "P-1 | 12\n"
                            "Tag | Head\n"
                            "P-2 | 48");
}

TEST_F(CScheduleLoad, TheRootMayBeTheTable)
{
    EXPECT_TRUE(engine.LoadScheduleData(QStringLiteral("<TABLE><TR><TH/><TH/></TR><TR><TH/><TD>x</TD></TR></TABLE>")));
    EXPECT_EQ(Drawn(sheet), " |\n | x");
}

TEST_F(CScheduleLoad, RowsOutsideOfATableAreNone)
{
    const QString xml = QStringLiteral("<S><TR><TH>no</TH></TR><TABLE><X><TR><TH>no</TH></TR></X>%1</TABLE></S>")
                            .arg(TableRows("Tag | Flow \n P-1 | 12"));
    EXPECT_TRUE(engine.LoadScheduleData(xml));
    EXPECT_EQ(Drawn(sheet), "Tag | Flow\n"
                            "P-1 | 12");
}

TEST_F(CScheduleLoad, NamesAreComparedExactly)
{
    const QString xml =
        QStringLiteral("<S><table><TR><TH>no</TH></TR></table><TABLE><tr><TH>no</TH></tr>%1</TABLE></S>")
            .arg(TableRows("Tag | Flow \n P-1 | 12"));
    EXPECT_TRUE(engine.LoadScheduleData(xml));
    EXPECT_EQ(Drawn(sheet), "Tag | Flow\n"
                            "P-1 | 12");
}

TEST_F(CScheduleLoad, TablesInANamespaceAreNone)
{
    EXPECT_FALSE(engine.LoadScheduleData(QStringLiteral("<TABLE xmlns='u'><TR><TH>x</TH></TR></TABLE>")));
    EXPECT_EQ(Messages(), "1066");
}

TEST_F(CScheduleLoad, ATableInACellIsOneCellAndAddsItsRowsWhereItStarts)
{
    const QString xml = InTable(QStringLiteral("<TR><TH>a</TH><TD>b<TABLE><TR><TD>c</TD><TD>d</TD></TR></TABLE></TD>"
                                               "<TD>e</TD></TR><TR><TH>f</TH><TD>g</TD></TR>"));
    EXPECT_TRUE(engine.LoadScheduleData(xml));
    EXPECT_EQ(Drawn(sheet), "a | b\n"
                            "c | d\n"
                            "f | g");
    EXPECT_EQ(sheet.Text(At(2, 0)), QStringLiteral("e"));
}

TEST_F(CScheduleLoad, TheHeaderIndexRunsOnOverAllTables)
{
    const QString xml =
        QStringLiteral("<S><TABLE>%1</TABLE><TABLE>%2</TABLE></S>")
            .arg(TableRows("a | b \n c | d | e | f"), TableRows("g {fontBold=-1} | h {hidden=-1} \n i | j"));
    EXPECT_TRUE(engine.LoadScheduleData(xml));
    EXPECT_EQ(DrawnBold(sheet), "..#.\n..#.\n..#.\n..#.");
    EXPECT_EQ(DrawnHidden(sheet), "rows 3");
}

TEST_F(CScheduleLoad, HeadersAreThoseOfEachFirstRowOfAnyParent)
{
    const QString xml = QStringLiteral("<S><TR><TH>x</TH></TR><TR><TH fontBold='-1'/></TR><TABLE>%1</TABLE></S>")
                            .arg(TableRows("a {fontBold=-1} | b \n c {fontBold=-1} | d"));
    EXPECT_TRUE(engine.LoadScheduleData(xml));
    EXPECT_EQ(DrawnBold(sheet), ".#\n.#") << "the row outside of the table has a header, too, and is counted first";
}

// Resetting before a load.

TEST_F(CScheduleLoad, AFilledGridIsResetFirst)
{
    engine.SetSchedOrientation(1);
    Loaded("a {hidden=-1 bgColor=255} | b \n c {fontBold=-1} | d {dataType=CHECKBOX visible=-1} | e \n f | g");
    sheet.SetActiveCell(At(1, 1));
    sheet.SetRowOrder({2, 1});
    sheet.SetFrozenColumns(2);
    EXPECT_EQ(Loaded("Tag | Flow \n P-1 | 12"), "Tag | Flow\n"
                                                "P-1 | 12");
    EXPECT_EQ(DrawnHidden(sheet), "none");
    EXPECT_EQ(DrawnBold(sheet), "..\n..");
    EXPECT_EQ(DrawnTypes(sheet), "..\n..");
    EXPECT_EQ(DrawnColors(sheet), "-          | -\n"
                                  "2147483663 | -");
    EXPECT_EQ(sheet.ActiveCell(), At(0, 0));
    EXPECT_FALSE(sheet.Rows().Ordered());
    EXPECT_EQ(sheet.FrozenColumns(), 2) << "that is the host's";
}

TEST_F(CScheduleLoad, AGridWithoutDataIsNotResetFirst)
{
    Loaded("a {fontBold=-1} | b {hidden=-1} | c");
    EXPECT_EQ(DrawnHidden(sheet), "rows 1");
    EXPECT_EQ(Loaded("Tag \n P-1 | 12"), "Tag | b\n"
                                         "P-1 | 12");
    EXPECT_EQ(DrawnHidden(sheet), "rows 1");
    EXPECT_EQ(DrawnBold(sheet), "#.\n#.");
}

TEST_F(CScheduleLoad, RowHeadersWithoutColumnsAreNoReasonForAReset)
{
    Loaded("a \n b {hidden=-1} \n c");
    Loaded("Tag | Flow \n P-1 | 12");
    EXPECT_EQ(DrawnHidden(sheet), "rows 1");
}

TEST_F(CScheduleLoad, AnEmptyScheduleLeavesItsLooksToTheNextUnlessTheGridIsInitialised)
{
    const char* const empty = "a {bgColor=255} | b | c {hidden=-1}";
    const char* const next = "Tag \n P-1 | 12 \n P-2 | 8";
    Loaded(empty);
    Loaded(next);
    EXPECT_EQ(DrawnHidden(sheet), "rows 2");
    EXPECT_EQ(sheet.Text(At(1, 0)), QStringLiteral("b"));
    EXPECT_EQ(sheet.BackColor(At(1, 0)), 255u);
    engine.SchedInitialize();
    Loaded(empty);
    engine.SchedInitialize();
    EXPECT_EQ(Loaded(next), "Tag |\n"
                            "P-1 | 12\n"
                            "P-2 | 8");
    EXPECT_EQ(DrawnHidden(sheet), "none");
    EXPECT_EQ(sheet.BackColor(At(1, 0)), std::nullopt);
}

// Loads that fail.

TEST_F(CScheduleLoad, AFailedLoadShowsItsMessageAndReturnsFalse)
{
    EXPECT_FALSE(engine.LoadScheduleData(QStringLiteral("<TABLE>")));
    EXPECT_FALSE(engine.LoadScheduleData(QStringLiteral("<TABLE/>")));
    EXPECT_EQ(Messages(), "1064 1066");
    EXPECT_EQ(user.boxes[0].style, kOkOnly);
    EXPECT_EQ(user.boxes[0].text, LoadResString(1064));
    EXPECT_EQ(user.boxes[1].text, LoadResString(1066));
}

TEST_F(CScheduleLoad, AFailedLoadStillShrinksAndFormats)
{
    EXPECT_EQ(DrawnSize(sheet), "500 columns, 500 rows");
    EXPECT_FALSE(engine.LoadScheduleData(QStringLiteral("<TABLE>")));
    EXPECT_EQ(DrawnSize(sheet), "0 columns, 0 rows");
    EXPECT_EQ(DrawnWidths(sheet), "0") << "the row headers are as wide as their widest text";
}

TEST_F(CScheduleLoad, AFailedLoadOfAFilledGridLeavesItReset)
{
    Loaded("Tag | Flow \n P-1 | 12");
    EXPECT_FALSE(engine.LoadScheduleData(QStringLiteral("<TABLE>")));
    EXPECT_EQ(Drawn(sheet), "");
    EXPECT_EQ(DrawnSize(sheet), "0 columns, 0 rows");
}

TEST_F(CScheduleLoad, AFailedLoadPlacesNothingOfWhatItHasRead)
{
    EXPECT_FALSE(engine.LoadScheduleData(Table("Tag {hidden=-1} | Flow \n P-1 | 12").chopped(1)));
    sheet.SetSize(1, 1);
    EXPECT_EQ(Drawn(sheet), " |\n |");
    EXPECT_EQ(DrawnHidden(sheet), "none");
}

TEST_F(CScheduleLoad, AFailedSelectionLoadLeavesTheGridAsItWas)
{
    EXPECT_TRUE(engine.LoadSelectionData(Table("Tag | Pick \n P-1 | {dataType=CHECKBOX visible=-1}"), true));
    EXPECT_FALSE(engine.LoadSelectionData(QStringLiteral("<TABLE>"), false));
    EXPECT_EQ(Drawn(sheet), "Tag | Pick\n"
                            "P-1 | 1");
}

TEST_F(CScheduleLoad, WithoutASheetTheFailureIsReported)
{
    engine.SetSched(nullptr);
    EXPECT_FALSE(engine.LoadScheduleData(Table("Tag")));
    EXPECT_FALSE(engine.LoadSelectionData(Table("Tag"), true));
    EXPECT_FALSE(engine.SchedInitialize());
    engine.SchedAutoSize();
    engine.AutoSizeRowHeader();
    engine.SchedShowUnits();
    EXPECT_EQ(Sources(), "Schedules.CSchedule.LoadScheduleData Schedules.CSchedule.LoadSelectionData "
                         "Schedules.CSchedule.SchedInitialize Schedules.CSchedule.SchedAutoSize "
                         "Schedules.CSchedule.AutoSizeRowHeader Schedules.CSchedule.SchedShowUnits");
}

// The selector's table.

TEST_F(CScheduleLoad, SelectAllTicksEveryCheckBoxOrNone)
{
    const QString xml =
        Table("Tag | Pick | Note \n P-1 | 0 {dataType=CHECKBOX visible=-1} | x \n"
              "P-2 | 1 {dataType=CHECKBOX visible=-1} | 1 \n P-3 | 1 {dataType=CHECKBOX visible=0} | y");
    EXPECT_TRUE(engine.LoadSelectionData(xml, true));
    EXPECT_EQ(Drawn(sheet), "Tag | Pick | Note\n"
                            "P-1 | 1    | x\n"
                            "P-2 | 1    | 1\n"
                            "P-3 |      | y");
    EXPECT_TRUE(engine.LoadSelectionData(xml, false));
    EXPECT_EQ(Drawn(sheet), "Tag | Pick | Note\n"
                            "P-1 | 0    | x\n"
                            "P-2 | 0    | 1\n"
                            "P-3 |      | y");
    EXPECT_EQ(DrawnTypes(sheet), "...\n.x.\n.x.\n...");
}

TEST_F(CScheduleLoad, AScheduleKeepsTheTextsOfItsCheckBoxes)
{
    EXPECT_EQ(Loaded("Tag | Pick \n P-1 | 1 {dataType=CHECKBOX visible=-1}"), "Tag | Pick\n"
                                                                              "P-1 | 1");
}

TEST_F(CScheduleLoad, ASelectionIsLoadedWithoutAReset)
{
    EXPECT_TRUE(engine.LoadSelectionData(
        Table("a | b | c \n d | e {hidden=-1} | f {bgColor=1} \n g {hidden=-1} | h | i"), false));
    EXPECT_TRUE(engine.LoadSelectionData(Table("Tag | Pick \n P-1 | 12"), false));
    EXPECT_EQ(Drawn(sheet), "Tag | Pick | c\n"
                            "P-1 | 12   | f\n"
                            "g   | h    | i");
    EXPECT_EQ(DrawnHidden(sheet), "rows 2");
}

// Starting anew.

TEST_F(CScheduleLoad, AnAttachedSheetIsInitialised)
{
    Sheet other;
    other.SetBold({{kAllColumns, kAllRows}, {kAllColumns, kAllRows}}, true);
    other.SetText(At(1, 1), QStringLiteral("old"));
    other.SetHidden(Row(1), true);
    engine.SetSched(&other);
    EXPECT_EQ(engine.Sched(), &other);
    EXPECT_EQ(DrawnSize(other), "500 columns, 500 rows");
    EXPECT_EQ(other.Text(At(1, 1)), QString());
    EXPECT_FALSE(other.Bold(At(1, 1)));
    EXPECT_FALSE(other.Hidden(Row(1)));
}

TEST_F(CScheduleLoad, InitialisingReturnsTrueAndGivesColumnsTheDefaultWidth)
{
    engine.SetDefaultColWidth(2000);
    EXPECT_TRUE(engine.SchedInitialize());
    EXPECT_EQ(sheet.ColumnWidth(Column(7)), 2000);
}
