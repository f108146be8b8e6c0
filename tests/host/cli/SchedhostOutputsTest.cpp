// What `render` writes, read back by other programs.

#include "host/HostOutputs.h"

#include <QDir>
#include <QImage>
#include <QRegularExpression>

namespace schedules::host::testing {

namespace {

struct SchedhostOutputs : HostOutputs
{
    QString Small() const { return Written(QStringLiteral("small.xml"), kSmallTable); }

    QString PdfPageSize(const QString& name)
    {
        const QString info = QString::fromUtf8(By(QStringLiteral("pdfinfo"), {name}));
        return QRegularExpression("Page size: +(\\S+ x \\S+)").match(info).captured(1);
    }

    QStringList Files(const QString& folder) const
    {
        return QDir(Path(folder)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
};

} // namespace

TEST_F(SchedhostOutputs, ACsvHoldsTheTable)
{
    ExpectDone(Schedhost({"render", Small(), "--csv", "out.csv"}), "out.csv\n");
    EXPECT_EQ(Read(QStringLiteral("out.csv")), "h,a,b\r\nr,1,2\r\ns,3,4\r\n");
}

TEST_F(SchedhostOutputs, AWorkbookHoldsTheTable)
{
    ExpectDone(Schedhost({"render", Small(), "--xls", "out.xls"}), "out.xls\n");
    EXPECT_EQ(WorkbookText(QStringLiteral("out.xls")), "Equipment schedule\nh|a|b\nr|1|2\ns|3|4\n");
}

TEST_F(SchedhostOutputs, AnOfficeOpenXmlWorkbookHoldsTheTable)
{
    ExpectDone(Schedhost({"render", Small(), "--xlsx", "out.xlsx"}), "out.xlsx\n");
    EXPECT_EQ(OfficeOpenXmlValues("out.xlsx"), (QStringList{"h", "a", "b", "r", "1", "2", "s", "3", "4"}));
}

TEST_F(SchedhostOutputs, AWebPageHoldsTheTable)
{
    ExpectDone(Schedhost({"render", Small(), "--html", "out.html"}), "out.html\n");
    const QByteArray page = Read(QStringLiteral("out.html"));
    EXPECT_TRUE(page.startsWith("<!DOCTYPE html>"));
    EXPECT_EQ(page.count("<tr"), 3);
    EXPECT_EQ(page.count("<th") - page.count("<thead"), 5);
    EXPECT_EQ(page.count("<td"), 4);
}

TEST_F(SchedhostOutputs, APdfHoldsTitleTableAndPageNumber)
{
    ExpectDone(Schedhost({"render", Small(), "--pdf", "out.pdf"}), "out.pdf\n");
    const QStringList words = PdfWords(QStringLiteral("out.pdf"));
    EXPECT_EQ(words.mid(0, 2), (QStringList{"Equipment", "schedule"}));
    EXPECT_EQ(words.mid(words.indexOf("h")),
              (QStringList{"h", "a", "b", "r", "1", "2", "s", "3", "4", "Page", "1", "of", "1"}));
    EXPECT_EQ(PdfPageSize(QStringLiteral("out.pdf")), "595 x 842") << "A4, upright";
}

TEST_F(SchedhostOutputs, APdfIsOnThePaperThatIsNamed)
{
    ExpectDone(Schedhost({"render", Small(), "--pdf", "out.pdf", "--paper", "Letter"}), "out.pdf\n");
    EXPECT_EQ(PdfPageSize(QStringLiteral("out.pdf")), "612 x 792");
    ExpectDone(Schedhost({"render", Small(), "--pdf", "out.pdf", "--paper", "A3"}), "out.pdf\n");
    EXPECT_EQ(PdfPageSize(QStringLiteral("out.pdf")), "842 x 1191");
}

TEST_F(SchedhostOutputs, APlainPdfStaysUprightWhereASmartOneTurns)
{
    QByteArray row = "<TR><TH>h</TH>";
    for (int column = 0; column < 12; ++column)
        row += "<TH>a fairly long name</TH>";
    const QString wide = Written(QStringLiteral("wide.xml"), "<TABLE>" + row + "</TR>" + row + "</TR></TABLE>");
    ExpectDone(Schedhost({"render", wide, "--pdf", "smart.pdf"}), "smart.pdf\n");
    ExpectDone(Schedhost({"render", wide, "--pdf", "plain.pdf", "--plain-print"}), "plain.pdf\n");
    EXPECT_EQ(PdfPageSize(QStringLiteral("smart.pdf")), "842 x 595");
    EXPECT_EQ(PdfPageSize(QStringLiteral("plain.pdf")), "595 x 842");
}

TEST_F(SchedhostOutputs, WhatTheUserDidIsInEveryOutput)
{
    const QString file = Written(QStringLiteral("a.xml"), "<TABLE><TR><TH>Tag</TH><TH>Flow</TH></TR>"
                                                          "<TR><TH>P-1</TH><TD AllowEdit=\"-1\">2</TD></TR>"
                                                          "<TR><TH>P-2</TH><TD>1</TD></TR></TABLE>");
    ExpectDone(Schedhost({"render", file, "--edit", "1,1=77", "--sort", "1", "--csv", "a.csv", "--xls", "a.xls"}),
               "a.xls\na.csv\n");
    EXPECT_EQ(Read(QStringLiteral("a.csv")), "Tag,Flow\r\nP-2,1\r\nP-1,77\r\n");
    EXPECT_EQ(WorkbookText(QStringLiteral("a.xls")), "Equipment schedule\nTag|Flow\nP-2|1\nP-1|77\n");
}

TEST_F(SchedhostOutputs, TheLanguageNamesTheSheet)
{
    ExpectDone(Schedhost({"render", Small(), "--xls", "out.xls", "--language", "de"}), "out.xls\n");
    EXPECT_EQ(WorkbookText(QStringLiteral("out.xls")), "Ausrüstungsliste\nh|a|b\nr|1|2\ns|3|4\n");
}

TEST_F(SchedhostOutputs, TheSelectorViewIsWrittenToo)
{
    const QString selection = Sample(QStringLiteral("selection.xml"));
    ExpectDone(Schedhost({"render", selection, "--view", "selector", "--tick", "P-101A", "--csv", "a.csv"}), "a.csv\n");
    EXPECT_TRUE(Read(QStringLiteral("a.csv")).contains("P-101A"));
}

TEST_F(SchedhostOutputs, SeveralFilesGoIntoOneFolderThatIsMade)
{
    const Outcome run = Schedhost(
        {"render", Small(), Sample(QStringLiteral("air-handling.xml")), "--out", "new/out", "--as", "pdf,csv"});
    ExpectDone(run, "new/out/small.pdf\nnew/out/small.csv\nnew/out/air-handling.pdf\nnew/out/air-handling.csv\n");
    EXPECT_EQ(Files(QStringLiteral("new/out")),
              (QStringList{"air-handling.csv", "air-handling.pdf", "small.csv", "small.pdf"}));
    EXPECT_EQ(Read(QStringLiteral("new/out/small.csv")), "h,a,b\r\nr,1,2\r\ns,3,4\r\n");
}

TEST_F(SchedhostOutputs, ANameThatOnlyAnOptionMakesIsAFileOfTheCurrentFolder)
{
    ExpectDone(Schedhost({"render", Small(), "--as", "csv,png"}), "small.csv\nsmall.png\n");
    EXPECT_FALSE(QImage(Path(QStringLiteral("small.png"))).isNull());
}

TEST_F(SchedhostOutputs, AFileThatFailsIsOneLineAndTheOthersAreDone)
{
    const QString bad = Written(QStringLiteral("bad.xml"), "<TABLE/>");
    const Outcome run = Schedhost({"render", bad, "absent.xml", Small(), "--out", "out", "--as", "csv"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "out/small.csv\n");
    const QList<QByteArray> lines = run.err.split('\n');
    ASSERT_EQ(lines.size(), 3) << run.err.constData();
    EXPECT_TRUE(lines[0].startsWith("bad.xml: ") && lines[0].endsWith(" (1066)")) << lines[0].constData();
    EXPECT_TRUE(lines[1].startsWith("absent.xml: cannot read absent.xml: ")) << lines[1].constData();
    EXPECT_EQ(Files(QStringLiteral("out")), QStringList{"small.csv"});
}

TEST_F(SchedhostOutputs, AnOutputThatFailsIsOneLineAndTheOthersAreDone)
{
    const Outcome run = Schedhost({"render", Small(), "--png", "no/a", "--pdf", "no/b", "--xls", "no/c", "--xlsx",
                                   "no/d", "--html", "no/e", "--csv", "f"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "f\n");
    EXPECT_EQ(run.err, "cannot write no/a: No such file or directory\n"
                       "cannot write no/b: No such file or directory\n"
                       "cannot write no/c: No such file or directory\n"
                       "cannot write no/d: No such file or directory\n"
                       "cannot write no/e: No such file or directory\n");
}

TEST_F(SchedhostOutputs, AFolderThatCannotBeMadeIsTold)
{
    Written(QStringLiteral("file"), "x");
    const Outcome run = Schedhost({"render", Small(), "--out", "file/out"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "cannot make the folder file/out\n");
}

TEST_F(SchedhostOutputs, NoInputIsWritten)
{
    const QString first = Small();
    const QString second = Written(QStringLiteral("second.csv"), kSmallTable);
    const Outcome run = Schedhost({"render", first, second, "--out", ".", "--as", "csv"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "./small.csv\n");
    EXPECT_EQ(run.err, "second.csv: ./second.csv is the file to be read, and is not written\n");
    EXPECT_EQ(Read(second), kSmallTable);
    for (const char* option : {"--pdf", "--xls", "--xlsx", "--html", "--csv", "--png"}) {
        EXPECT_EQ(Schedhost({"render", first, option, "./small.xml"}).exitCode, 1) << option;
        EXPECT_EQ(Read(first), kSmallTable) << option;
    }
}

TEST_F(SchedhostOutputs, AnOldFileIsReplacedByTheNewOne)
{
    Written(QStringLiteral("out.csv"), QByteArray(1000, 'x'));
    ExpectDone(Schedhost({"render", Small(), "--csv", "out.csv"}), "out.csv\n");
    EXPECT_EQ(Read(QStringLiteral("out.csv")), "h,a,b\r\nr,1,2\r\ns,3,4\r\n");
}

TEST_F(SchedhostOutputs, MessagesOfAllFilesAreKept)
{
    const Outcome run = Schedhost({"render", Small(), Written(QStringLiteral("b.xml"), kSmallTable), "--out", "o",
                                   "--as", "csv", "--messages", "log"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(Read(QStringLiteral("log")).count("InitializeSchedule"), 2);
}

} // namespace schedules::host::testing
