#include "host/HostProgram.h"

#include <QImage>
#include <QSet>

namespace schedules::host::testing {

namespace {

struct SchedhostRender : HostProgram
{
    QImage Rendered(const QStringList& arguments, const QString& picture)
    {
        const Outcome run = Schedhost(QStringList{"render"} + arguments);
        EXPECT_EQ(run.exitCode, 0) << run.err.constData();
        EXPECT_EQ(run.err, "");
        EXPECT_EQ(run.out, picture.toUtf8() + '\n');
        return QImage(Path(picture), "png");
    }

    QImage Rendered(const QString& file, const QStringList& options = {})
    {
        return Rendered(QStringList{file, "--png", "out.png"} + options, QStringLiteral("out.png"));
    }
};

QSet<QRgb> ColorsOf(const QImage& picture)
{
    QSet<QRgb> colors;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            colors.insert(picture.pixel(x, y));
    }
    return colors;
}

} // namespace

TEST_F(SchedhostRender, DrawsTheGridWithItsColours)
{
    const QImage picture = Rendered(Sample(QStringLiteral("pumps.xml")));
    ASSERT_FALSE(picture.isNull());
    EXPECT_TRUE(ColorsOf(picture).contains(qRgb(0xD2, 0xE6, 0xF5))) << "the group heading rows are light blue";
    EXPECT_GT(ColorsOf(picture).size(), 20) << "there are texts";
}

TEST_F(SchedhostRender, TheWholeGridIsInThePicture)
{
    const QImage pumps = Rendered(Sample(QStringLiteral("pumps.xml")));
    const QImage air = Rendered(Sample(QStringLiteral("air-handling.xml")));
    EXPECT_GT(pumps.width(), air.width()) << "more tags need more room";
    const QImage turned = Rendered(Sample(QStringLiteral("pumps.xml")), {"--transpose"});
    EXPECT_GT(turned.height(), pumps.height());
    EXPECT_LT(turned.width(), pumps.width());
}

TEST_F(SchedhostRender, APictureStaysWithinLimits)
{
    const QImage valves = Rendered(Sample(QStringLiteral("valves.xml")), {"--transpose"});
    EXPECT_EQ(valves.width(), 6000);
}

TEST_F(SchedhostRender, ATitleIsAHeadingAbove)
{
    const QString file = Written(QStringLiteral("a.xml"), kSmallTable);
    const QImage plain = Rendered(file);
    const QImage titled = Rendered(file, {"--title", "Crude unit"});
    const int heading = titled.height() - plain.height();
    ASSERT_GT(heading, 10);
    EXPECT_EQ(titled.width(), plain.width());
    EXPECT_EQ(titled.copy(0, heading, plain.width(), plain.height()), plain);
    EXPECT_GT(ColorsOf(titled.copy(0, 0, titled.width(), heading)).size(), 2);
    EXPECT_NE(titled, Rendered(file, {"--title", "Vacuum unit"}));
}

TEST_F(SchedhostRender, WithoutANameThePictureIsNamedAfterTheFile)
{
    EXPECT_FALSE(
        Rendered(QStringList{Sample(QStringLiteral("air-handling.xml"))}, QStringLiteral("air-handling.png")).isNull());
}

TEST_F(SchedhostRender, TheSelectorViewIsDrawnToo)
{
    const QImage none = Rendered(Sample(QStringLiteral("selection.xml")), {"--view", "selector"});
    const QImage all = Rendered(Sample(QStringLiteral("selection.xml")), {"--view", "selector", "--select-all"});
    EXPECT_EQ(none.size(), all.size());
    EXPECT_NE(none, all) << "ticks";
}

TEST_F(SchedhostRender, AFailedLoadDrawsNothing)
{
    const Outcome run = Schedhost({"render", Written(QStringLiteral("bad.xml"), "<TABLE/>"), "--png", "out.png"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_TRUE(run.err.endsWith(" (1066)\n")) << run.err.constData();
    EXPECT_EQ(run.err.count('\n'), 1);
    EXPECT_FALSE(QFile::exists(Path(QStringLiteral("out.png"))));
}

TEST_F(SchedhostRender, APictureThatCannotBeWrittenIsToldInOneLine)
{
    const QString file = Written(QStringLiteral("a.xml"), kSmallTable);
    const Outcome run = Schedhost({"render", file, "--png", "absent/out.png"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.err.startsWith("cannot write absent/out.png: ")) << run.err.constData();
    EXPECT_EQ(run.err.count('\n'), 1);
}

TEST_F(SchedhostRender, APictureThatFillsTheDiskIsTold)
{
    const Outcome run = Schedhost({"render", Written(QStringLiteral("a.xml"), kSmallTable), "--png", "/dev/full"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "cannot write /dev/full: No space left on device\n");
}

} // namespace schedules::host::testing
