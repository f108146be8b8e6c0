// The page in a browser: what it shows, and how it looks on a screen, a phone and in the dark.

#include "webpage/WrittenPage.h"

#include <QImage>

#include <gmock/gmock.h>

using namespace schedules;
using namespace schedules::testing;
using ::testing::HasSubstr;

namespace {

struct BrowserTest : ::testing::Test, WrittenPage
{
    void SetUp() override
    {
        if (!QFile::exists(kBrowser))
            GTEST_SKIP() << "no browser here";
        Fill({{"Tag", "Flow (m³/h)", "In service"}, {"P-1", "12.5", "1"}, {"P-2", "8 < 9", "0"}});
        for (int row : {1, 2})
            sheet.SetStyle(At(2, row), {.type = CellType::CheckBox});
        sheet.SetBackColor(CellRange::Of(Column(1), Row(2)), 0xCCFFFF);
        WriteWebPage(sheet, info, FileName());
    }

    /// Writes the page anew and tells what a script that runs in it answers.
    std::string Answer(const char* script) const
    {
        WriteWebPage(sheet, info, FileName());
        QFile file(FileName());
        EXPECT_TRUE(file.open(QFile::Append));
        file.write(QByteArray("<script>document.title='['+(()=>{") + script + "})()+']'</script>");
        file.close();
        const std::string tree = Browsed({"--window-size=800,400", "--dump-dom"});
        const std::size_t start = tree.find("<title>[") + 8;
        return tree.substr(start, tree.find("]</title>") - start);
    }

    QImage Picture(const QString& size, const QStringList& options = {}) const
    {
        const QString file = folder.filePath(QStringLiteral("picture.png"));
        Browsed(QStringList{"--window-size=" + size, "--screenshot=" + file} + options);
        return QImage(file);
    }
};

} // namespace

TEST_F(BrowserTest, ReadsTheTableBack)
{
    const std::string tree = Browsed({"--dump-dom"});
    EXPECT_THAT(tree, HasSubstr("<caption id=\"title\">Pumps</caption>"));
    EXPECT_THAT(tree, HasSubstr("<tr><th scope=\"row\">P-1</th><td>12.5</td>"));
    EXPECT_THAT(tree, HasSubstr("<tr><th scope=\"row\">P-2</th><td class=\"k1\">8 &lt; 9</td>"));
}

TEST_F(BrowserTest, ShowsTheColorsOfCellsOnALightPage)
{
    const QImage picture = Picture(QStringLiteral("800,400"));
    ASSERT_FALSE(picture.isNull());
    EXPECT_EQ(picture.pixelColor(790, 390), QColor(Qt::white));
    int colored = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            colored += picture.pixelColor(x, y) == QColor(0xFF, 0xFF, 0xCC) ? 1 : 0;
    }
    EXPECT_GT(colored, 500);
}

TEST_F(BrowserTest, IsDarkWhereTheReadersSystemIsDark)
{
    const QImage picture = Picture(QStringLiteral("800,400"), {"--blink-settings=preferredColorScheme=0"});
    ASSERT_FALSE(picture.isNull());
    EXPECT_LT(picture.pixelColor(790, 390).lightness(), 60);
}

namespace {

/// For each row after the header the side of its cell in column 1 at which the text stands.
constexpr auto kSides = R"js(
return [...document.querySelectorAll('tbody td:nth-child(2)')].map(cell => {
    const range = document.createRange();
    range.selectNodeContents(cell);
    const text = range.getBoundingClientRect(), box = cell.getBoundingClientRect();
    return text.left - box.left < box.right - text.right ? 'left' : 'right';
}).join(' '))js";

} // namespace

TEST_F(BrowserTest, AllTextsOfAColumnStandAtTheSameSide)
{
    Fill({{"Tag", "A header that is wider"}, {"P-1", "pump"}, {"P-2", "משאבה"}, {"P-3", "12"}});
    for (int row : {1, 2, 3})
        sheet.SetStyle(At(1, row), {});
    EXPECT_EQ(Answer(kSides), "left left left");
    info.direction = Qt::RightToLeft;
    EXPECT_EQ(Answer(kSides), "right right right");
}

TEST_F(BrowserTest, NumbersStandAtTheFarSide)
{
    Fill({{"Tag", "A header that is wider"}, {"P-1", "12"}, {"P-2", "-8.5"}});
    for (int row : {1, 2})
        sheet.SetStyle(At(1, row), {});
    sheet.SetHAlign({{Column(1), kAllRows}, {Column(1), kAllRows}}, HorizontalAlignment::Data);
    EXPECT_EQ(Answer(kSides), "right right");
    info.direction = Qt::RightToLeft;
    EXPECT_EQ(Answer(kSides), "left left");
}

TEST_F(BrowserTest, TheFirstColumnAndTheCornerStayWhereverTheTableIsScrolled)
{
    for (int row = 0; row <= 60; ++row) {
        for (int column = 0; column <= 40; ++column)
            sheet.SetText(At(column, row), QStringLiteral("%1/%2").arg(column).arg(row));
    }
    sheet.SetText(At(0, 0), {});
    sheet.SetText(At(0, 50), {});
    sheet.SetSize(40, 60);
    constexpr auto kAtTheEdge = R"js(
const page = document.querySelector('.page');
page.scrollTo(900, 700);
const at = (x, y) => { const cell = document.elementFromPoint(x, y); return cell.cellIndex + '/' + cell.parentNode.rowIndex; };
const empty = document.querySelector('table').rows[50].cells[0].getBoundingClientRect();
return page.scrollLeft + ' ' + page.scrollTop + ' ' + at(3, 3) + ' ' + empty.left + ' ' +
       at(3, 200).startsWith('0/') + ' ' + at(400, 3).endsWith('/0'))js";
    EXPECT_EQ(Answer(kAtTheEdge), "900 700 0/0 0 true true");
}
