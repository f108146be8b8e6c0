#include "common/modResource.h"
#include "grid/ScheduleFixture.h"
#include "support/BadXml.h"
#include "support/ProcessorTime.h"

#include <QFile>
#include <QTemporaryDir>

using namespace schedules;
using namespace schedules::testing;

namespace {

constexpr const char* kSecret = "nobody may read this";

/// A file that stands beside the documents and must not be read. It lives as long as the tests, since their
/// parameters name it.
QString SecretFile()
{
    static const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("secret.txt"));
    QFile file(name);
    if (file.open(QIODevice::WriteOnly))
        file.write(kSecret);
    return name;
}

struct CScheduleBadInput : ScheduleFixture
{
    std::string AllTexts() const
    {
        std::string texts;
        for (int line = 0; line < sheet.Store().LineCount(); ++line) {
            for (int slot = 0; slot < sheet.Store().SlotCount(line); ++slot)
                texts += sheet.Store().Text(line, slot);
        }
        return texts;
    }

    /// How much memory the process has gained at most meanwhile, in kibibytes.
    template <class Call>
    static long PeakGain(const Call& call)
    {
        QFile peak(QStringLiteral("/proc/self/clear_refs"));
        EXPECT_TRUE(peak.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && peak.write("5") == 1);
        const long before = Status("VmHWM:");
        call();
        return Status("VmHWM:") - before;
    }

private:
    static long Status(const QByteArray& name)
    {
        QFile status(QStringLiteral("/proc/self/status"));
        EXPECT_TRUE(status.open(QIODevice::ReadOnly));
        const QByteArray text = status.readAll();
        return text.mid(text.indexOf(name) + name.size()).trimmed().split(' ').front().toLong();
    }
};

double TimeOfALargeDocument()
{
    struct Loader : ScheduleFixture
    {
        void TestBody() override {}
    };
    Loader loader;
    return ProcessorTime([&] { EXPECT_TRUE(loader.engine.LoadScheduleData(LargeDocument())); });
}

struct CScheduleBadDocument : CScheduleBadInput, ::testing::WithParamInterface<BadXml>
{
};

} // namespace

TEST_P(CScheduleBadDocument, IsNotLoadedInBoundedTimeAndMemory)
{
    static const double large = TimeOfALargeDocument();
    const QString& xml = GetParam().text;
    double time = 0;
    const long memory = PeakGain([&] { time = ProcessorTime([&] { EXPECT_FALSE(engine.LoadScheduleData(xml)); }); });
    EXPECT_LT(time, large);
    EXPECT_LT(memory, 50'000 + 10 * xml.size() / 1024) << "kibibytes";
    EXPECT_EQ(Messages(), "1064");
    EXPECT_EQ(AllTexts(), "");
    EXPECT_EQ(DrawnSize(sheet), "0 columns, 0 rows");
}

TEST_P(CScheduleBadDocument, IsNoSelectionEither)
{
    EXPECT_FALSE(engine.LoadSelectionData(GetParam().text, true));
    EXPECT_EQ(Messages(), "1064");
}

INSTANTIATE_TEST_SUITE_P(Documents, CScheduleBadDocument, ::testing::ValuesIn(BadDocuments(SecretFile())),
                         [](const auto& tested) { return std::string(tested.param.name); });

TEST_F(CScheduleBadInput, ADocumentWithoutRowsHasItsOwnMessage)
{
    for (const char* xml : {"<x/>", "<TABLE/>", "<TABLE><X/></TABLE>", "<TR><TH>x</TH></TR>", "<TABLE>TR</TABLE>",
                            "<TABLE><!--<TR/>--></TABLE>", "<S><TABLE><X><TR/></X></TABLE></S>"})
    {
        user.boxes.clear();
        EXPECT_FALSE(engine.LoadScheduleData(QString::fromUtf8(xml))) << xml;
        EXPECT_EQ(Messages(), "1066") << xml;
    }
}

TEST_F(CScheduleBadInput, WhatIsUnusualButWellFormedIsLoaded)
{
    const QString table = QString(QChar(0xFEFF)) +
                          QStringLiteral("<?xml version='1.0' encoding='UTF-16' standalone='yes'?><!-- c --><?p i?>\n"
                                         "<S xmlns:p='u'><p:x/>%1</S>\n<!-- end -->\n")
                              .arg(Table("Tag | Flow \n P-1 | 12"));
    EXPECT_TRUE(engine.LoadScheduleData(table));
    EXPECT_EQ(Drawn(sheet), "Tag | Flow\n"
                            "P-1 | 12");
}

TEST_F(CScheduleBadInput, ADeclaredEncodingIsIgnored)
{
    for (const char* encoding : {"utf-8", "UTF-16", "ISO-8859-1", "windows-1251", "nonsense"}) {
        const QString declaration =
            QStringLiteral("<?xml version=\"1.0\" encoding=\"%1\"?>").arg(QLatin1String(encoding));
        EXPECT_TRUE(engine.LoadScheduleData(declaration + Table("Насос | 水"))) << encoding;
        EXPECT_EQ(sheet.Text(At(0, 0)), QStringLiteral("Насос"));
    }
}

TEST_F(CScheduleBadInput, DocumentsUpToTheBoundsAreLoaded)
{
    EXPECT_TRUE(engine.LoadScheduleData(Attributed(4096)));
    EXPECT_TRUE(engine.LoadScheduleData(WithTagOf(1 << 20)));
    EXPECT_TRUE(
        engine.LoadScheduleData(Repeated("<TABLE>", 200) + QStringLiteral("<TR/>") + Repeated("</TABLE>", 200)));
    EXPECT_EQ(Messages(), "");
}

TEST_F(CScheduleBadInput, TextsOfMegabytesAreLoadedWhole)
{
    const QString text = Repeated("Ж", 11'000'000);
    EXPECT_TRUE(engine.LoadScheduleData(InTable(QStringLiteral("<TR><TH>%1</TH></TR>").arg(text))));
    EXPECT_EQ(sheet.Text(At(0, 0)), text);
}

TEST_F(CScheduleBadInput, TheMessagesComeFromTheLanguageTables)
{
    engine.LoadScheduleData({});
    EXPECT_EQ(user.boxes.front().text, LoadResString(1064));
    EXPECT_EQ(user.boxes.front().style, kOkOnly);
}
