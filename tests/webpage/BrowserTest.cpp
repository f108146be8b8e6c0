// The page in a browser: what it shows, and how it looks on a screen, a phone and in the dark.

#include "webpage/WrittenPage.h"

#include <QImage>

#include <gmock/gmock.h>

using namespace schedules;
using namespace schedules::testing;
using ::testing::HasSubstr;

namespace {

const QString kBrowser = QStringLiteral("/usr/bin/chromium");

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

    std::string Browsed(const QStringList& options) const
    {
        const QStringList common{"--headless",     "--no-sandbox",
                                 "--disable-gpu",  "--hide-scrollbars",
                                 "--no-first-run", "--user-data-dir=" + folder.filePath("profile")};
        return Asked(kBrowser, common + options + QStringList{"file://" + FileName()}).output;
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
