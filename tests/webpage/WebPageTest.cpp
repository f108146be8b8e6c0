#include "webpage/WebPage.h"

#include "common/Error.h"
#include "webpage/WrittenPage.h"

#include <QDir>

#include <gmock/gmock.h>

using namespace schedules;
using namespace schedules::testing;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

constexpr CellStyle kBox{.type = CellType::CheckBox, .dataType = DataType::CheckBox};

CellRange WholeRow(int row)
{
    return {{kAllColumns, Row(row)}, {kAllColumns, Row(row)}};
}

const QString kTidy = QStringLiteral("/usr/bin/tidy");
const QString kHtmlValidate =
    QStringLiteral(SCHEDULES_SOURCE_DIR "/build/validator/node_modules/html-validate/bin/html-validate.js");

struct WebPageTest : ::testing::Test, WrittenPage
{
    /// What the validators that are there have to say.
    std::string Complaints() const
    {
        PageInfo page = info;
        page.language = QStringLiteral("en"); // one of them insists on a language
        WriteWebPage(sheet, page, FileName());
        std::string complaints;
        if (QFile::exists(kTidy))
            complaints += Asked(kTidy, {"-q", "-e", "-utf8", "--show-info", "no", FileName()}).errors;
        if (QFile::exists(kHtmlValidate))
            complaints += Asked(QStringLiteral("node"), {kHtmlValidate, "--formatter", "text", FileName()}).output;
        return complaints;
    }
};

} // namespace

TEST_F(WebPageTest, HasHeadersThatSayWhatTheyHead)
{
    Fill({{"Tag", "Flow", "Head"}, {"P-1", "12", "48"}, {"P-2", "8", ""}});
    EXPECT_EQ(Table(), "th: ^Tag | ^Flow | ^Head\n"
                       "tb: <P-1 | 12 | 48\n"
                       "tb: <P-2 | 8 |");
}

TEST_F(WebPageTest, AnEmptyHeaderHeadsNothing)
{
    Fill({{"", "Flow"}, {"", "12"}});
    EXPECT_EQ(Table(), "th:  | ^Flow\n"
                       "tb:  | 12");
}

TEST_F(WebPageTest, HiddenColumnsAndRowsAreLeftOut)
{
    Fill({{"Tag", "Flow", "Head"}, {"P-1", "12", "48"}, {"P-2", "8", "50"}});
    sheet.SetHidden(Column(1), true);
    sheet.SetHidden(Row(1), true);
    EXPECT_EQ(Table(), "th: ^Tag | ^Head\n"
                       "tb: <P-2 | 50");
}

TEST_F(WebPageTest, HiddenHeadersAreLeftOut)
{
    Fill({{"Tag", "Flow"}, {"P-1", "12"}});
    sheet.SetHidden(Column(0), true);
    sheet.SetHidden(Row(0), true);
    EXPECT_EQ(Table(), "tb: 12");
    EXPECT_THAT(Written(), Not(HasSubstr("<thead>")));
}

TEST_F(WebPageTest, RowsStandInTheOrderInWhichTheyAreShown)
{
    Fill({{"Tag"}, {"P-1"}, {"P-2"}, {"P-3"}});
    sheet.SetRowOrder({3, 1, 2});
    EXPECT_EQ(Table(), "th: ^Tag\ntb: <P-3\ntb: <P-1\ntb: <P-2");
}

TEST_F(WebPageTest, EverythingIsEscaped)
{
    info.title = QStringLiteral("<Pumps> & \"valves\"");
    Fill({{"<b>Tag</b>", "a & b"}, {"</td><script>alert(1)</script>", "&lt;"}});
    EXPECT_EQ(Table(), "th: ^<b>Tag</b> | ^a & b\n"
                       "tb: <</td><script>alert(1)</script> | &lt;");
    const std::string page = Written();
    EXPECT_THAT(page, HasSubstr("<title>&lt;Pumps&gt; &amp; &quot;valves&quot;</title>"));
    EXPECT_THAT(page, HasSubstr("<caption id=\"title\">&lt;Pumps&gt; &amp; &quot;valves&quot;</caption>"));
    EXPECT_THAT(page, Not(HasSubstr("<script>")));
}

TEST_F(WebPageTest, BoldAlignmentsAndColorsAreClasses)
{
    Fill({{"Tag", "Flow"}, {"P-1", "12"}, {"P-2", "8"}});
    sheet.SetBold(WholeRow(1), true);
    sheet.SetHAlign({{Column(1), kAllRows}, {Column(1), kAllRows}}, HorizontalAlignment::Data);
    sheet.SetHAlign(WholeRow(0), HorizontalAlignment::Center);
    sheet.SetVAlign(CellRange::Of(Column(0), Row(2)), VerticalAlignment::Bottom);
    sheet.SetVAlign(CellRange::Of(Column(1), Row(2)), VerticalAlignment::Center);
    sheet.SetBackColor(CellRange::Of(Column(1), Row(1)), 0x563412);
    sheet.SetBackColor(CellRange::Of(Column(1), Row(2)), 0xCCFFFF);
    sheet.SetBackColor(CellRange::Of(Column(0), Row(2)), 0x8000000F);
    EXPECT_EQ(Table(), "th: ^[c]Tag | ^[c]Flow\n"
                       "tb: <[b]P-1 | [b n k1]12\n"
                       "tb: <[e s]P-2 | [n m k2]8");
    const std::string page = Written();
    EXPECT_THAT(page, HasSubstr(".k1{background:#123456!important;color:#fff}"));
    EXPECT_THAT(page, HasSubstr("(prefers-color-scheme:dark){.k1{background:#131f2b!important;color:var(--ink)}}"))
        << "a tint of it in the dark";
    EXPECT_THAT(page, HasSubstr(".k2{background:#ffffcc!important;color:#000}"));
}

TEST_F(WebPageTest, CheckBoxesAreReadAsWords)
{
    Fill({{"Tag", "In service", "Spare"}, {"P-1", "1", "0"}});
    sheet.SetStyle(At(1, 1), kBox);
    sheet.SetStyle(At(2, 1), kBox);
    EXPECT_EQ(Table(), "th: ^Tag | ^In service | ^Spare\n"
                       "tb: <P-1 | [c](img yes)☑ | [c](img no)☐");
    info.ticked = QStringLiteral("ja");
    info.unticked = QStringLiteral("\"nein\"");
    EXPECT_THAT(Table(), HasSubstr("[c](img ja)☑ | [c](img \"nein\")☐"));
}

TEST_F(WebPageTest, TellsItsLanguageAndDirection)
{
    Fill({{"Tag"}});
    EXPECT_THAT(Written(), HasSubstr("<html dir=\"ltr\">"));
    info.language = QStringLiteral("de");
    EXPECT_THAT(Written(), HasSubstr("<html lang=\"de\" dir=\"ltr\">"));
    info.language = QStringLiteral("ar");
    info.direction = Qt::RightToLeft;
    EXPECT_THAT(Written(), HasSubstr("<html lang=\"ar\" dir=\"rtl\">"));
}

TEST_F(WebPageTest, WithoutATitleTheFilesNameIsTheTitle)
{
    Fill({{"Tag"}});
    info.title = QStringLiteral("  ");
    EXPECT_THAT(Written(), HasSubstr("<title>plan</title>"));
}

TEST_F(WebPageTest, NeedsNoOtherFile)
{
    Fill({{"Tag", "Flow"}, {"P-1", "12"}});
    const std::string page = Written();
    for (const char* reference : {"<link", "<img", "src=", "href=", "url(", "@import", "http"})
        EXPECT_THAT(page, Not(HasSubstr(reference)));
}

TEST_F(WebPageTest, FollowsTheReadersSystemThePhoneAndThePaper)
{
    Fill({{"Tag"}});
    const std::string page = Written();
    EXPECT_THAT(page, HasSubstr("@media screen and (prefers-color-scheme:dark){:root{--paper:#14171a"));
    EXPECT_THAT(page, HasSubstr("@media print"));
    EXPECT_THAT(page, HasSubstr("<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">"));
    EXPECT_THAT(page, HasSubstr("@media (max-width:40em)"));
}

TEST_F(WebPageTest, TwoValidatorsHaveNothingToSay)
{
    if (!QFile::exists(kTidy) || !QFile::exists(kHtmlValidate))
        GTEST_SKIP() << "not both validators are here";
    Fill({{"", "Flow (m³/h)", "насос", "In service"},
          {"<P-1>", "1 & 2", "two\nlines", "1"},
          {"P-2", "\"quoted\"", "\x01\x7F control", "0"}});
    sheet.SetStyle(At(3, 1), kBox);
    sheet.SetStyle(At(3, 2), kBox);
    sheet.SetBackColor(WholeRow(1), 0x123456);
    info.language = QStringLiteral("en");
    for (const bool headers : {true, false}) {
        sheet.SetHidden(Row(0), !headers);
        EXPECT_EQ(Complaints(), "");
    }
}

TEST_F(WebPageTest, TwoValidatorsHaveNothingToSayOfAWidePage)
{
    if (!QFile::exists(kTidy) || !QFile::exists(kHtmlValidate))
        GTEST_SKIP() << "not both validators are here";
    const std::vector<const char*> row(60, "value");
    Fill({row, row, row});
    info.language = QStringLiteral("en");
    EXPECT_EQ(Complaints(), "");
}

TEST_F(WebPageTest, TheFirstColumnStaysInSightWhereItHeadsRows)
{
    Fill({{"", "Flow"}, {"", "12"}});
    EXPECT_THAT(Written(), HasSubstr("<table class=\"g1 r\">"));
    EXPECT_THAT(Written(), HasSubstr(".r tr>:first-child{position:sticky;inset-inline-start:0"));
    sheet.SetHidden(Column(0), true);
    EXPECT_THAT(Written(), HasSubstr("<table class=\"g1\">"));
}

TEST_F(WebPageTest, ASheetThatShowsNothingIsAPageWithAnEmptyTable)
{
    sheet.SetHidden(Column(0), true);
    sheet.SetHidden(Row(0), true);
    EXPECT_EQ(Table(), "");
    EXPECT_EQ(Complaints(), "");
    sheet.SetSize(0, 3);
    EXPECT_EQ(Table(), "") << "rows without columns";
    EXPECT_EQ(Complaints(), "");
}

TEST_F(WebPageTest, AWideTableHasTablesForPaperThatOnlyPaperShows)
{
    sheet.SetSize(60, 1);
    for (Column column{0}; column.Value() <= 60; ++column)
        sheet.SetText({column, Row(0)}, QStringLiteral("C%1").arg(column.Value()));
    const std::string page = Written();
    EXPECT_THAT(page, HasSubstr(".paper{display:none}"));
    EXPECT_THAT(page, HasSubstr("<div class=\"paper\">\n<table class=\"g1 r\">\n<caption>Pumps (1/"));
    EXPECT_THAT(page, HasSubstr(".page{display:none}\n.paper{display:block}"));
    EXPECT_EQ(Complaints(), "");
}

TEST_F(WebPageTest, AFolderThatIsGoneIsAnError)
{
    EXPECT_THROW(WriteWebPage(sheet, info, folder.filePath(QStringLiteral("gone/plan.htm"))), Error);
}

TEST_F(WebPageTest, NothingIsLeftBesideThePage)
{
    Fill({{"Tag"}});
    WriteWebPage(sheet, info, FileName());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"plan.htm"});
}

TEST_F(WebPageTest, ALongTableIsWrittenToItsEnd)
{
    sheet.SetSize(9, 5'000);
    for (int row = 0; row <= 5'000; ++row) {
        for (int column = 0; column <= 9; ++column)
            sheet.SetText(At(column, row), QStringLiteral("%1/%2").arg(column).arg(row));
    }
    const QStringList lines = QString::fromStdString(Table()).split('\n');
    ASSERT_EQ(lines.size(), 5'001);
    EXPECT_EQ(lines.back().toStdString(),
              "tb: <0/5000 | 1/5000 | 2/5000 | 3/5000 | 4/5000 | 5/5000 | 6/5000 | 7/5000 | 8/5000 | 9/5000");
}
