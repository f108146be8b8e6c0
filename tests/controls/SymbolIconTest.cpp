#include "controls/desktop/SymbolIcon.h"

#include "controls/cells/SheetColors.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>
#include <memory>

namespace schedules::testing {

namespace {

const QColor kText(10, 60, 20);
const QColor kAccent(150, 30, 30);

QPalette Palette(const QColor& text, const QColor& ground, const QColor& accent = kAccent)
{
    QPalette palette;
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, QColor(250, 250, 100));
    return palette;
}

/// "text accent" for a drawing whose left half is text and whose right half is accent.
std::string Colors(const QImage& image)
{
    const int middle = image.height() / 2;
    const auto colorAt = [&](int x) { return image.pixelColor(x, middle).name().toStdString(); };
    return colorAt(image.width() / 4) + ' ' + colorAt(image.width() * 3 / 4);
}

std::string Named(const QColor& text, const QColor& accent)
{
    return (text.name() + ' ' + accent.name()).toStdString();
}

/// The drawing in twice as many pixels, without knowing more of it.
QImage Enlarged(const QImage& image)
{
    QImage enlarged = image.scaled(image.size() * 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    enlarged.setDevicePixelRatio(1);
    return enlarged;
}

QImage Plain(QImage image)
{
    image.setDevicePixelRatio(1);
    return image;
}

class SymbolIconTest : public ::testing::Test
{
protected:
    SymbolIconTest() { surface->setPalette(Palette(kText, Qt::white)); }

    QIcon Icon(const QByteArray& shapes) const
    {
        const QString name = folder.filePath(QStringLiteral("symbol.svg"));
        QFile file(name);
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 16 16'>" + shapes + "</svg>");
        file.close();
        return SymbolIcon(name, surface.get());
    }

    QIcon TwoHalves() const
    {
        return Icon("<path d='M0 0h8v16h-8z' fill='currentColor'/><path d='M8 0h8v16h-8z' fill='#2a82da'/>");
    }

    QIcon Diagonal() const { return Icon("<path d='M2 1l13 11' stroke='currentColor' stroke-width='1.25'/>"); }

    std::string Drawn(const QIcon& icon, QIcon::Mode mode = QIcon::Normal, QIcon::State state = QIcon::Off) const
    {
        return Colors(icon.pixmap(QSize(16, 16), 1, mode, state).toImage());
    }

    QTemporaryDir folder;
    std::unique_ptr<QWidget> surface = std::make_unique<QWidget>();
};

} // namespace

TEST_F(SymbolIconTest, HasTheTextColorAndTheHighlightOfItsSurface)
{
    EXPECT_EQ(Drawn(TwoHalves()), Named(kText, kAccent));
}

TEST_F(SymbolIconTest, IsTheSameUnderThePointerAndChecked)
{
    EXPECT_EQ(Drawn(TwoHalves(), QIcon::Active), Named(kText, kAccent));
    EXPECT_EQ(Drawn(TwoHalves(), QIcon::Normal, QIcon::On), Named(kText, kAccent));
}

TEST_F(SymbolIconTest, FollowsThePaletteOfItsSurface)
{
    const QIcon icon = TwoHalves();
    Drawn(icon);
    surface->setPalette(Palette(Qt::white, Qt::black, QColor(200, 80, 80)));
    EXPECT_EQ(Drawn(icon), Named(Qt::white, QColor(200, 80, 80)));
}

TEST_F(SymbolIconTest, HasTheApplicationsColorsOnceItsSurfaceIsGone)
{
    const QIcon icon = TwoHalves();
    surface.reset();
    EXPECT_EQ(Drawn(icon).substr(0, 7), QApplication::palette().color(QPalette::ButtonText).name().toStdString());
}

TEST_F(SymbolIconTest, IsPalerWhenDisabled)
{
    for (const auto& [text, ground] :
         {std::pair(kText, QColor(Qt::white)), std::pair(QColor(230, 230, 230), QColor(40, 40, 40))})
    {
        surface->setPalette(Palette(text, ground));
        const QImage image = TwoHalves().pixmap(QSize(16, 16), 1, QIcon::Disabled).toImage();
        const QColor pale = image.pixelColor(4, 8);
        EXPECT_LT(Contrast(pale, ground), Contrast(text, ground) / 2);
        EXPECT_GT(Contrast(pale, ground), 1.5) << "it can still be seen";
        EXPECT_EQ(image.pixelColor(12, 8), pale) << "nothing of it stands out";
    }
}

TEST_F(SymbolIconTest, HasTheColorOfSelectedTextWhenSelected)
{
    EXPECT_EQ(Drawn(TwoHalves(), QIcon::Selected), Named(QColor(250, 250, 100), QColor(250, 250, 100)));
}

TEST_F(SymbolIconTest, HasNoAccentThatCannotBeSeen)
{
    surface->setPalette(Palette(kText, kAccent.lighter(110)));
    EXPECT_EQ(Drawn(TwoHalves()), Named(kText, kText));
}

TEST_F(SymbolIconTest, IsDrawnAnewForEachPixelRatio)
{
    const QIcon icon = Diagonal();
    for (const double ratio : {1.5, 2.0}) {
        const QPixmap pixmap = icon.pixmap(QSize(16, 16), ratio);
        EXPECT_EQ(pixmap.size(), QSize(16, 16) * ratio);
        EXPECT_EQ(pixmap.devicePixelRatio(), ratio);
        EXPECT_EQ(Plain(pixmap.toImage()), icon.pixmap(pixmap.size(), 1).toImage())
            << "as sharp as an icon of that size";
    }
    EXPECT_NE(Plain(icon.pixmap(QSize(16, 16), 2).toImage()), Enlarged(icon.pixmap(QSize(16, 16), 1).toImage()));
}

TEST_F(SymbolIconTest, HasEveryEdgeAsSharpAsThePixelsAre)
{
    const QImage image = TwoHalves().pixmap(QSize(64, 64), 2).toImage();
    EXPECT_EQ(image.pixelColor(63, 64), kText);
    EXPECT_EQ(image.pixelColor(64, 64), kAccent);
}

TEST_F(SymbolIconTest, KeepsItsProportions)
{
    const QImage image = TwoHalves().pixmap(QSize(32, 16), 1).toImage();
    EXPECT_EQ(image.pixelColor(4, 8).alpha(), 0);
    EXPECT_EQ(image.pixelColor(12, 8), kText);
    EXPECT_EQ(image.pixelColor(28, 8).alpha(), 0);
}

TEST_F(SymbolIconTest, IsDrawnIntoItsRectangleAlone)
{
    QImage image(40, 40, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    TwoHalves().paint(&painter, QRect(20, 20, 16, 16));
    painter.end();
    EXPECT_EQ(image.pixelColor(21, 28), kText);
    EXPECT_EQ(image.pixelColor(19, 28), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(37, 28), QColor(Qt::white));
}

TEST_F(SymbolIconTest, ACopyDrawsTheSame)
{
    const QIcon icon = TwoHalves();
    QIcon copy = icon;
    copy.detach();
    EXPECT_EQ(Drawn(copy), Drawn(icon));
}

TEST_F(SymbolIconTest, IsNullWithoutADrawing)
{
    EXPECT_TRUE(SymbolIcon(QString(), surface.get()).isNull());
    EXPECT_TRUE(SymbolIcon(QStringLiteral(":/schedules/icons/none.svg"), surface.get()).isNull());
}

TEST_F(SymbolIconTest, AButtonShowsItInNewColorsAtOnce)
{
    QToolButton button;
    QFile file(folder.filePath(QStringLiteral("symbol.svg")));
    TwoHalves();
    button.setIcon(SymbolIcon(file.fileName(), &button));
    button.setIconSize({16, 16});
    button.setPalette(Palette(kText, Qt::white));
    button.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&button));
    const QPoint inText = button.rect().center() - QPoint(4, 0);
    EXPECT_EQ(button.grab().toImage().pixelColor(inText), kText);
    button.setPalette(Palette(QColor(200, 220, 240), Qt::black));
    EXPECT_EQ(button.grab().toImage().pixelColor(inText), QColor(200, 220, 240));
}

namespace {

class SymbolDrawing : public ::testing::TestWithParam<const char*>
{
protected:
    SymbolDrawing() { surface.setPalette(Palette(kText, Qt::white)); }

    QImage Drawn(int size) const
    {
        const QString file = QStringLiteral(":/schedules/icons/%1.svg").arg(QLatin1String(GetParam()));
        return SymbolIcon(file, &surface).pixmap(QSize(size, size), 1).toImage();
    }

    template <class Condition>
    static int CountIf(const QImage& image, Condition condition)
    {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                count += condition(image.pixelColor(x, y));
        }
        return count;
    }

    /// How many pixels are of that color entirely.
    static int Count(const QImage& image, const QColor& color)
    {
        return CountIf(image, [&](const QColor& pixel) { return pixel == color; });
    }

    /// How many pixels are covered by three quarters or more.
    static int CountFirm(const QImage& image)
    {
        return CountIf(image, [](const QColor& pixel) { return pixel.alpha() >= 192; });
    }

    QWidget surface;
};

} // namespace

TEST_P(SymbolDrawing, IsOfTextWithOneAccent)
{
    const QImage image = Drawn(64);
    EXPECT_GT(Count(image, kText), 200);
    EXPECT_GT(Count(image, kAccent), 100);
}

TEST_P(SymbolDrawing, IsFirmAtTheSmallestSize)
{
    EXPECT_GE(CountFirm(Drawn(16)), 25);
}

TEST_P(SymbolDrawing, LeavesAMargin)
{
    const QImage image = Drawn(64);
    for (int at = 0; at < 64; ++at) {
        for (const QPoint edge : {QPoint(at, 0), QPoint(at, 63), QPoint(0, at), QPoint(63, at)})
            ASSERT_EQ(image.pixelColor(edge).alpha(), 0) << edge.x() << ' ' << edge.y();
    }
}

INSTANTIATE_TEST_SUITE_P(Icons, SymbolDrawing,
                         ::testing::Values("print", "export", "customize", "help", "transpose", "save"),
                         [](const auto& drawing) { return std::string(drawing.param); });

} // namespace schedules::testing
