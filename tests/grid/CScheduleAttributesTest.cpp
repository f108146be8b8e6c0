// Where the attributes of header cells land: on a row or on a column, by the orientation of the schedule.

#include "grid/CellAttributes.h"
#include "grid/ScheduleFixture.h"

using namespace schedules;
using namespace schedules::testing;

namespace {

/// One row of the summary of attributes: what a table draws in each orientation.
struct Landing
{
    const char* rule;
    const char* table;
    int orientation;
    const char* hidden;
    const char* bold;
    const char* colors; ///< without the row headers' grey, which comes after all
};

/// The second row's first header cell is that of row 1; the second header cell of the first row is header 1.
constexpr const char* kRowHidden = "a | b | c \n d {hidden=-1} | e | f \n g | h | i";
constexpr const char* kRowBold = "a | b | c \n d {fontBold=-1} | e | f \n g | h | i";
constexpr const char* kRowBoldUserDefined = "a | b | c \n d {fontBold=-1} | e | f {UserDefined=-1} \n g | h | i";
constexpr const char* kRowColored = "a | b | c \n d {bgColor=255} | e | f \n g | h | i";
constexpr const char* kHeaderHidden = "a | b {hidden=-1} | c \n d | e | f \n g | h | i";
constexpr const char* kHeaderBold = "a | b {fontBold=-1} | c \n d | e | f \n g | h | i";
constexpr const char* kHeaderColored = "a | b {bgColor=255} | c \n d | e | f \n g | h | i";

constexpr const char* kPlain = "...\n...\n...";
constexpr const char* kColumnBold = ".#.\n.#.\n.#.";
constexpr const char* kRowBoldDrawn = "...\n###\n...";
constexpr const char* kUncolored = "- | - | -\n- | - | -\n- | - | -";
constexpr const char* kColumnColored = "- | 255 | -\n- | 255 | -\n- | 255 | -";
constexpr const char* kRowColoredDrawn = "-   | -   | -\n255 | 255 | 255\n-   | -   | -";

struct CScheduleAttributes : ScheduleFixture
{
    /// Without the grey that schedules give to their row headers.
    bool LoadUnstyled(const QString& xml)
    {
        engine.SchedInitialize();
        return engine.LoadSelectionData(xml, false);
    }
};

struct CScheduleLanding : CScheduleAttributes, ::testing::WithParamInterface<Landing>
{
};

} // namespace

TEST_P(CScheduleLanding, IsOnTheRightRowOrColumn)
{
    engine.SetSchedOrientation(GetParam().orientation);
    ASSERT_TRUE(LoadUnstyled(Table(GetParam().table)));
    EXPECT_EQ(DrawnHidden(sheet), GetParam().hidden);
    EXPECT_EQ(DrawnBold(sheet), GetParam().bold);
    EXPECT_EQ(DrawnColors(sheet), GetParam().colors);
}

INSTANTIATE_TEST_SUITE_P(
    Summary, CScheduleLanding,
    ::testing::Values(Landing{"RowHidden1", kRowHidden, 1, "columns 1", kPlain, kUncolored},
                      Landing{"RowHidden0", kRowHidden, 0, "rows 1", kPlain, kUncolored},
                      Landing{"RowHidden2", kRowHidden, 2, "rows 1", kPlain, kUncolored},
                      Landing{"RowBold1", kRowBold, 1, "columns 1", kRowBoldDrawn, kUncolored},
                      Landing{"RowBold0", kRowBold, 0, "none", kPlain, kUncolored},
                      Landing{"RowBold2", kRowBold, 2, "none", kPlain, kUncolored},
                      Landing{"RowBoldUserDefined1", kRowBoldUserDefined, 1, "none", kRowBoldDrawn, kUncolored},
                      Landing{"RowBoldUserDefined0", kRowBoldUserDefined, 0, "none", kPlain, kUncolored},
                      Landing{"RowColored1", kRowColored, 1, "none", kPlain, kRowColoredDrawn},
                      Landing{"RowColored0", kRowColored, 0, "none", kPlain, kColumnColored},
                      Landing{"RowColored2", kRowColored, 2, "none", kPlain, kColumnColored},
                      Landing{"HeaderHidden1", kHeaderHidden, 1, "columns 1", kPlain, kUncolored},
                      Landing{"HeaderHidden0", kHeaderHidden, 0, "rows 1", kPlain, kUncolored},
                      Landing{"HeaderHidden2", kHeaderHidden, 2, "none", kPlain, kUncolored},
                      Landing{"HeaderBold1", kHeaderBold, 1, "none", kColumnBold, kUncolored},
                      Landing{"HeaderBold0", kHeaderBold, 0, "none", kColumnBold, kUncolored},
                      Landing{"HeaderBold2", kHeaderBold, 2, "none", kColumnBold, kUncolored},
                      Landing{"HeaderColored1", kHeaderColored, 1, "none", kPlain, kColumnColored},
                      Landing{"HeaderColored0", kHeaderColored, 0, "none", kPlain, kRowColoredDrawn},
                      Landing{"HeaderColored2", kHeaderColored, 2, "none", kPlain, kColumnColored}),
    [](const auto& tested) { return std::string(tested.param.rule); });

TEST_F(CScheduleAttributes, LandAlikeWhenTheDataAreTransposed)
{
    engine.SetTransposeData(true);
    engine.SetSchedOrientation(1);
    ASSERT_TRUE(LoadUnstyled(Table("a | b {bgColor=255} | c \n d {hidden=-1 fontBold=-1} | e {UserDefined=-1} | f")));
    EXPECT_EQ(Drawn(sheet), "a | d\nb | e\nc | f");
    EXPECT_EQ(DrawnHidden(sheet), "columns 1");
    EXPECT_EQ(DrawnBold(sheet), "..\n##\n..");
    EXPECT_EQ(DrawnColors(sheet), "- | 255\n- | 255\n- | 255");
}

TEST_F(CScheduleAttributes, TheFirstHeaderOfTheFirstRowSpeaksForRowAndColumn)
{
    ASSERT_TRUE(LoadUnstyled(Table("a {hidden=-1 bgColor=7} | b \n c | d")));
    EXPECT_EQ(DrawnHidden(sheet), "rows 0");
    EXPECT_EQ(DrawnColors(sheet), "7 | 7\n7 | -") << "column 0 as the row's colour, row 0 as the header's";
}

TEST_F(CScheduleAttributes, OnlyTheFirstHeaderOfARowCounts)
{
    ASSERT_TRUE(LoadUnstyled(Table("a | b | c \n d | e {TH hidden=-1 bgColor=255} | f {hidden=-1 bgColor=255}")));
    EXPECT_EQ(DrawnHidden(sheet), "none");
    EXPECT_EQ(DrawnColors(sheet), "- | - | -\n- | - | -");
}

TEST_F(CScheduleAttributes, TheFirstHeaderNeedNotBeTheFirstCell)
{
    ASSERT_TRUE(LoadUnstyled(Table("a | b | c \n d {TD} | e {TH hidden=-1} | f")));
    EXPECT_EQ(DrawnHidden(sheet), "rows 1");
}

TEST_F(CScheduleAttributes, DataCellsOfTheFirstRowAreNoHeaders)
{
    ASSERT_TRUE(LoadUnstyled(Table("a | b {TD fontBold=-1 hidden=-1 bgColor=1} | c {fontBold=-1} \n d | e | f")));
    EXPECT_EQ(DrawnBold(sheet), ".#.\n.#.") << "the second header is header 1";
    EXPECT_EQ(DrawnHidden(sheet), "none");
}

TEST_F(CScheduleAttributes, OnlyMinusOneIsTrue)
{
    for (const char* value : {"0", "1", "true", "", "'-1 '", "' -1'", "-01"}) {
        const QByteArray drawing = QByteArray("a | b {hidden=# fontBold=#} \n d {hidden=#} | e").replace("#", value);
        ASSERT_TRUE(LoadUnstyled(Table(drawing)));
        EXPECT_EQ(DrawnHidden(sheet), "none") << value;
        EXPECT_EQ(DrawnBold(sheet), "..\n..") << value;
    }
}

TEST_F(CScheduleAttributes, NamesAreComparedExactlyAndOutsideOfNamespaces)
{
    ASSERT_TRUE(LoadUnstyled(InTable(QStringLiteral("<TR><TH/><TH Hidden='-1' FONTBOLD='-1'/></TR>"
                                                    "<TR><TH xmlns:p='u' p:hidden='-1' p:bgColor='1'/><TD/></TR>"))));
    EXPECT_EQ(DrawnHidden(sheet), "none");
    EXPECT_EQ(DrawnBold(sheet), "..\n..");
    EXPECT_EQ(DrawnColors(sheet), "- | -\n- | -");
}

// The bold-row rule.

TEST_F(CScheduleAttributes, OnlyADataCellWithMinusOneIsUserDefined)
{
    engine.SetSchedOrientation(1);
    for (const char* cells :
         {"e {TH UserDefined=-1}", "e {UserDefined=0}", "e {X UserDefined=-1}", "e {UserDefined=1}"}) {
        const QByteArray drawing = QByteArray("a | b \n d {fontBold=-1} | ") + cells;
        ASSERT_TRUE(LoadUnstyled(Table(drawing)));
        EXPECT_EQ(DrawnHidden(sheet), "columns 1") << cells;
    }
}

TEST_F(CScheduleAttributes, AUserDefinedCellOfAnotherRowDoesNotSaveThisOne)
{
    engine.SetSchedOrientation(1);
    ASSERT_TRUE(LoadUnstyled(Table("a | b | c \n d {fontBold=-1} | e | f \n g | h {UserDefined=-1} | i")));
    EXPECT_EQ(DrawnHidden(sheet), "columns 1");
}

TEST_F(CScheduleAttributes, AUserDefinedCellDoesNotShowAHiddenRow)
{
    engine.SetSchedOrientation(1);
    ASSERT_TRUE(LoadUnstyled(Table("a | b \n d {fontBold=-1 hidden=-1} | e {UserDefined=-1}")));
    EXPECT_EQ(DrawnHidden(sheet), "columns 1");
}

// Colours.

TEST_F(CScheduleAttributes, OfRowAndColumnColoursTheLastOneAppliedWins)
{
    ASSERT_TRUE(
        LoadUnstyled(Table("a | b {bgColor=1} | c {bgColor=2} \n d {bgColor=3} | e | f \n g {bgColor=4} | h | i")));
    EXPECT_EQ(DrawnColors(sheet), "- | 3 | 4\n"
                                  "1 | 1 | 1\n"
                                  "2 | 2 | 2");
    engine.SetSchedOrientation(1);
    ASSERT_TRUE(LoadUnstyled(Table("a | b {bgColor=1} | c \n d {bgColor=3} | e | f \n g | h | i")));
    EXPECT_EQ(DrawnColors(sheet), "- | 1 | -\n"
                                  "3 | 1 | 3\n"
                                  "- | 1 | -");
}

TEST_F(CScheduleAttributes, TheGreyOfTheRowHeadersComesAfterAll)
{
    Loaded("a {bgColor=5} | b {bgColor=1} \n d | e \n f {bgColor=9} | g");
    EXPECT_EQ(DrawnColors(sheet), "5          | 5\n"
                                  "2147483663 | 1\n"
                                  "2147483663 | -");
}

struct ColorText
{
    const char* value;
    const char* color;
};

struct CScheduleColor : CScheduleAttributes, ::testing::WithParamInterface<ColorText>
{
};

TEST_P(CScheduleColor, IsAWholeNumberOf32Bits)
{
    const QByteArray drawing = QByteArray("a | b \n c | d \n e {bgColor='#'} | f").replace("#", GetParam().value);
    ASSERT_TRUE(LoadUnstyled(Table(drawing)));
    EXPECT_EQ(DrawnColors(sheet), "- | -\n- | -\n- | -") << "column 2 is beyond the data";
    const auto color = sheet.BackColor(At(2, 0));
    EXPECT_EQ(color ? std::to_string(*color) : "none", GetParam().color);
}

INSTANTIATE_TEST_SUITE_P(Texts, CScheduleColor,
                         ::testing::Values(ColorText{"255", "255"}, ColorText{"0", "0"},
                                           ColorText{"  16711680 ", "16711680"}, ColorText{"007", "7"},
                                           ColorText{"2147483663", "2147483663"},
                                           ColorText{"-2147483633", "2147483663"},
                                           ColorText{"4294967295", "4294967295"}, ColorText{"-1", "4294967295"},
                                           ColorText{"-2147483648", "2147483648"}, ColorText{"4294967296", "none"},
                                           ColorText{"-2147483649", "none"}, ColorText{"99999999999999999999", "none"},
                                           ColorText{"", "none"}, ColorText{"   ", "none"}, ColorText{"red", "none"},
                                           ColorText{"0xFF", "none"}, ColorText{"FF", "none"},
                                           ColorText{"#FF0000", "none"}, ColorText{"12.5", "none"},
                                           ColorText{"1 2", "none"}, ColorText{"12x", "none"}, ColorText{"-", "none"},
                                           ColorText{"1,000", "none"}, ColorText{"\u0663", "none"}));

// Check boxes.

struct BoxText
{
    const char* rule;
    const char* cell;
    const char* type;
    const char* text;
};

struct CScheduleCheckBox : CScheduleAttributes, ::testing::WithParamInterface<BoxText>
{
};

TEST_P(CScheduleCheckBox, IsAVisibleDataCellOfThatType)
{
    const QByteArray drawing = QByteArray("a | b \n c | ") + GetParam().cell;
    Loaded(drawing);
    EXPECT_EQ(DrawnTypes(sheet), std::string("..\n.") + GetParam().type);
    EXPECT_EQ(sheet.Text(At(1, 1)).toStdString(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Cells, CScheduleCheckBox,
    ::testing::Values(BoxText{"Visible", "1 {dataType=CHECKBOX visible=-1}", "x", "1"},
                      BoxText{"VisibleWithoutText", "{dataType=CHECKBOX visible=-1}", "x", ""},
                      BoxText{"AttributesInAnyOrder", "1 {visible=-1 dataType=CHECKBOX}", "x", "1"},
                      BoxText{"LowerCase", "1 {dataType=checkbox visible=-1}", "x", "1"},
                      BoxText{"MixedCase", "1 {dataType=CheckBox visible=-1}", "x", "1"},
                      BoxText{"BlanksAround", "1 {dataType='  CHECKBOX ' visible=-1}", "x", "1"},
                      BoxText{"NotVisible", "1 {dataType=CHECKBOX visible=0}", ".", ""},
                      BoxText{"NotVisibleLowerCase", "1 {dataType=checkbox visible=1}", ".", ""},
                      BoxText{"VisibleNotSaid", "1 {dataType=CHECKBOX}", ".", ""},
                      BoxText{"VisibleWithABlank", "1 {dataType=CHECKBOX visible=' -1'}", ".", ""},
                      BoxText{"HeaderIsNone", "1 {TH dataType=CHECKBOX visible=-1}", ".", "1"},
                      BoxText{"HeaderKeepsItsText", "1 {TH dataType=CHECKBOX visible=0}", ".", "1"},
                      BoxText{"OtherElementIsNone", "1 {X dataType=CHECKBOX visible=-1}", ".", "1"},
                      BoxText{"BlankInside", "1 {dataType='CHECK BOX' visible=-1}", ".", "1"},
                      BoxText{"OtherType", "1 {dataType=DOUBLE visible=-1}", ".", "1"},
                      BoxText{"UnknownType", "1 {dataType=nonsense visible=0}", ".", "1"},
                      BoxText{"Number", "1 {dataType=11 visible=0}", ".", "1"},
                      BoxText{"EmptyType", "1 {dataType='' visible=-1}", ".", "1"},
                      BoxText{"BlankType", "1 {dataType='  ' visible=-1}", ".", "1"},
                      BoxText{"VisibleAloneMeansNothing", "1 {visible=0}", ".", "1"}),
    [](const auto& tested) { return std::string(tested.param.rule); });

TEST_F(CScheduleAttributes, CheckBoxesAreTransposedWithTheirTexts)
{
    engine.SetTransposeData(true);
    Loaded("a | b | c \n d | 1 {dataType=CHECKBOX visible=-1} | e");
    EXPECT_EQ(DrawnTypes(sheet), "..\n.x\n..");
}

TEST_F(CScheduleAttributes, CellsKnowTheirTypeAndWhetherTheyMayBeEdited)
{
    Loaded("a | b | c \n d | 1 {dataType=double AllowEdit=-1} | 2 {dataType=3 UserDefined=-1 AllowEdit=0}");
    EXPECT_EQ(sheet.Style(At(1, 1)), (CellStyle{.dataType = DataType::Double, .allowEdit = true}));
    EXPECT_EQ(sheet.Style(At(2, 1)), (CellStyle{.dataType = DataType::Number, .userDefined = true}));
}

TEST(DataTypeNamed, KnowsTheSixNamesAndNumbers)
{
    EXPECT_EQ(DataTypeNamed("INTEGER"), DataType::Integer);
    EXPECT_EQ(DataTypeNamed("Long"), DataType::Long);
    EXPECT_EQ(DataTypeNamed("single"), DataType::Single);
    EXPECT_EQ(DataTypeNamed(" DOUBLE "), DataType::Double);
    EXPECT_EQ(DataTypeNamed("currency"), DataType::Currency);
    EXPECT_EQ(DataTypeNamed("checkBox"), DataType::CheckBox);
    EXPECT_EQ(DataTypeNamed("12"), DataType::Number);
    EXPECT_EQ(DataTypeNamed(" -5 "), DataType::Number);
    for (const char* text : {"", "  ", "TEXT", "CHECKBOXES", "INTEGER LONG", "Ж", "\uFEFFCHECKBOX"})
        EXPECT_EQ(DataTypeNamed(text), DataType::Text) << text;
}

TEST_F(CScheduleAttributes, ManyDifferentAttributeTextsAreReadAlike)
{
    QString rows = QStringLiteral("<TR><TH/><TH/></TR>");
    for (int row = 1; row <= 9000; ++row)
        rows += QStringLiteral("<TR><TH other='%1' hidden='%2'/><TD/></TR>").arg(row).arg(row % 3 == 0 ? -1 : 0);
    ASSERT_TRUE(LoadUnstyled(InTable(rows)));
    for (int row = 1; row <= 9000; ++row)
        ASSERT_EQ(sheet.Hidden(Row(row)), row % 3 == 0) << row;
}
