// Prints sheets and reads the documents back.

#include "controls/paper/SheetPrinter.h"

#include "common/CompiledTable.h"
#include "common/Error.h"
#include "controls/FailingPrinter.h"
#include "controls/PrintedSheet.h"
#include "controls/paper/SheetPrinterFonts.h"

#include <QCoreApplication>
#include <QPdfWriter>
#include <QPrinter>
#include <QProcess>

namespace schedules::testing {

namespace {

const QString kThreePages = QStringLiteral("Pump|Flow") + QStringLiteral("\nP|1").repeated(50);

PrintProgress FailOnPage(int failing)
{
    return [failing](int page, int) {
        if (page == failing)
            throw Error(kUnexpectedError, QStringLiteral("No memory"));
        return true;
    };
}

} // namespace

TEST(SheetPrinter, APageHasHeaderTableAndPageNumber)
{
    Printed printed(kPumps);
    printed.job.setup.header = QStringLiteral("/fb1/cPumps and more/n/r12/31/24/n");
    EXPECT_EQ(printed.Text(), "Pumps and more\n"
                              "12/31/24\n"
                              "Pump Flow Remarks\n"
                              "P-1 12.5 Резерв\n"
                              "P-2 7 上海\n"
                              "Page 1 of 1");
}

TEST(SheetPrinter, EveryPageHasHeaderHeadersAndItsNumber)
{
    Printed printed(QStringLiteral("Pump|Flow") + QStringLiteral("\nP|1").repeated(21));
    printed.job.setup.header = QStringLiteral("/cPumps");
    EXPECT_EQ(printed.Pdf().Info("Pages"), "2");
    EXPECT_EQ(printed.Text(2), "Pumps\nPump Flow\nP 1\nP 1\nPage 2 of 2");
}

TEST(SheetPrinter, ThePageNumberIsInTheMiddleOfTheLowerMargin)
{
    const QImage picture = Printed(kPumps).Bare().Picture();
    const QRect margin(0, picture.height() - 35, picture.width(), 35);
    const QRect middle(picture.width() / 2 - 40, margin.top(), 80, 30);
    EXPECT_GT(Ink(picture, middle), 20);
    EXPECT_EQ(Ink(picture, margin), Ink(picture, middle));
}

TEST(SheetPrinter, ThePageNumberIsInTheLanguageOfTheTexts)
{
    const ModuleInUse german(CompiledTable({{1, QStringLiteral("eins")}}, QStringLiteral("de_DE")));
    EXPECT_TRUE(Printed(kPumps).Text().ends_with("\nSeite 1 von 1"));
}

TEST(SheetPrinter, FontsAreThoseOfArialsWidthsEmbeddedAndReadable)
{
    Printed printed(QStringLiteral("Pump|Flow\nP-1|12"));
    printed.sheet->SetBold(WholeRow(0), true);
    printed.job.setup.header = QStringLiteral("/fn\"Arial\"/fz\"12\"/fb1/cPumps/n/fb0/rtoday");
    QStringList expected;
    for (const char* style : {"", "-Bold"}) {
        const QString family = PrintFamily(QStringLiteral("Arial")).remove(' ');
        expected << family + style + QStringLiteral(" embedded readable");
    }
    expected.sort();
    EXPECT_EQ(printed.Pdf().Fonts(), expected);
    EXPECT_TRUE(expected.front().startsWith("Arial") || expected.front().startsWith("LiberationSans"));
}

TEST(SheetPrinter, TheDocumentBearsItsTitle)
{
    Printed printed(kPumps);
    printed.job.title = QStringLiteral("Pumps/newly added – Насосы");
    EXPECT_EQ(printed.Pdf().Info("Title"), printed.job.title.toStdString());
}

TEST(SheetPrinter, ThePaperIsAsAsked)
{
    Printed printed(kPumps);
    EXPECT_EQ(printed.Pdf().Info("Page size"), "595 x 842 pts (A4)");
    printed.job.paper = QPageSize(QPageSize::Letter);
    EXPECT_EQ(printed.Pdf().Info("Page size"), "612 x 792 pts (letter)");
    printed.job.setup.orientation = PageOrientation::Across;
    EXPECT_EQ(printed.Pdf().Info("Page size"), "792 x 612 pts (letter)");
}

TEST(SheetPrinter, SmartPrintingTurnsThePaperAndScalesTheTable)
{
    Printed printed(QStringLiteral("Pump|Flow|Remarks\nP-1|12|none"));
    printed.sheet->SetColumnWidth(Column(2), 14000);
    printed.job.setup.action = PrintAction::Smart;
    const PrintedPdf pdf = printed.Pdf();
    EXPECT_EQ(pdf.Info("Page size"), "842 x 595 pts (A4)");
    EXPECT_EQ(pdf.Info("Pages"), "1");
    const QImage picture = pdf.Picture();
    EXPECT_LT(Darkest(picture, {804, 45}, {808, 45}), 128) << "the table ends at the margin";
    EXPECT_EQ(Darkest(picture, {809, 45}, {841, 45}), 255);
}

TEST(SheetPrinter, ALongTitleGoesOnInTheNextLine)
{
    Printed printed(QStringLiteral("Pump|Flow"));
    printed.job.setup.header = QStringLiteral("/fz\"20\"/c") + QStringLiteral("Rotating equipment ").repeated(4);
    const std::string text = printed.Text();
    EXPECT_EQ(text, "Rotating equipment Rotating equipment Rotating\n"
                    "equipment Rotating equipment\n"
                    "Pump Flow\nPage 1 of 1");
}

TEST(SheetPrinter, AnEndlessTitleLeavesRoomForTheTable)
{
    Printed printed(QStringLiteral("Pump|Flow"));
    printed.job.setup.header = QStringLiteral("/c") + QStringLiteral("Rotating ").repeated(2000);
    EXPECT_TRUE(printed.Text().ends_with("\nPump Flow\nPage 1 of 1"));
}

TEST(SheetPrinter, ProgressIsToldBeforeEachPage)
{
    Printed printed(kThreePages);
    std::string told;
    PdfOf(printed.job, [&](int page, int pages) {
        told += std::to_string(page) + "/" + std::to_string(pages) + " ";
        return true;
    });
    EXPECT_EQ(told, "1/3 2/3 3/3 ");
}

TEST(SheetPrinter, ACancelledDocumentIsEmpty)
{
    Printed printed(kThreePages);
    EXPECT_TRUE(PdfOf(printed.job, [](int page, int) { return page < 2; }).isEmpty());
    EXPECT_TRUE(PdfOf(printed.job, [](int, int) { return false; }).isEmpty());
}

TEST(SheetPrinter, ACancelledOrFailedJobLeavesThePrinterUntouched)
{
    Printed printed(kThreePages);
    FailingPrinter printer;
    EXPECT_FALSE(PrintOn(printer, printed.job, [](int page, int) { return page < 3; }));
    EXPECT_THROW(PrintOn(printer, printed.job, FailOnPage(3)), Error);
    EXPECT_EQ(printer.Told(), "");
}

TEST(SheetPrinter, ACancelledOrFailedJobWritesNoDocument)
{
    Printed printed(kThreePages);
    const QTemporaryDir folder;
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFileName(folder.filePath(QStringLiteral("printer.pdf")));
    EXPECT_FALSE(PrintOn(printer, printed.job, [](int page, int) { return page < 3; }));
    EXPECT_THROW(PrintOn(printer, printed.job, FailOnPage(3)), Error);
    EXPECT_FALSE(QFile::exists(printer.outputFileName()));
}

TEST(SheetPrinter, WhatAFailingPrinterHasGotIsWithdrawn)
{
    Printed printed(kThreePages);
    FailingPrinter printer;
    EXPECT_THROW(PrintOn(printer, printed.job), Error);
    EXPECT_EQ(printer.Told(), "begin, page, abort, end");
}

TEST(SheetPrinter, PagesBeyondTheEndAreAnError)
{
    Printed printed(kThreePages);
    printed.job.pages = QPageRanges::fromString(QStringLiteral("4-5"));
    try {
        PdfOf(printed.job);
        FAIL() << "printed";
    } catch (const Error& error) {
        EXPECT_EQ(error.Description(),
                  QStringLiteral("There is nothing to print on the pages 4-5: the last page is 3."));
    }
}

TEST(SheetPrinter, PagesAreThoseOfARangeThatExist)
{
    Printed printed(kThreePages);
    printed.job.pages = QPageRanges::fromString(QStringLiteral("3-5"));
    EXPECT_EQ(printed.Pdf().Info("Pages"), "1");
}

TEST(SheetPrinter, ASheetThatChangesWhileItIsPrintedIsAnError)
{
    Printed printed(kThreePages);
    const auto change = [&](int page, int) {
        if (page == 2)
            printed.sheet->SetSize(1, 1);
        return true;
    };
    EXPECT_THROW(PdfOf(printed.job, change), Error);
}

TEST(SheetPrinter, ASheetThatIsDeletedWhileItIsPrintedIsAnError)
{
    Printed printed(kThreePages);
    const auto end = [&](int, int) {
        printed.sheet.reset();
        return true;
    };
    EXPECT_THROW(PdfOf(printed.job, end), Error);
}

TEST(SheetPrinter, PageRangesArePrintedAlone)
{
    Printed printed(kThreePages);
    printed.job.pages = QPageRanges::fromString(QStringLiteral("2-3"));
    EXPECT_EQ(printed.Pdf().Info("Pages"), "2");
    EXPECT_TRUE(printed.Text(1).ends_with("\nPage 2 of 3"));
}

TEST(SheetPrinter, PaperThatIsTooSmallIsRefused)
{
    Printed printed(kPumps);
    printed.job.paper = QPageSize(QSizeF(30, 40), QPageSize::Millimeter);
    EXPECT_THROW(PdfOf(printed.job), Error);
}

TEST(SheetPrinter, AnyPagedDeviceGetsPaperOrientationAndMarginsSet)
{
    Printed printed(kPumps);
    const QTemporaryDir folder;
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFileName(folder.filePath(QStringLiteral("printer.pdf")));
    printer.setPageLayout({QPageSize(QPageSize::A5), QPageLayout::Landscape, {50, 50, 50, 50}});
    ASSERT_TRUE(PrintOn(printer, printed.job));
    QFile file(printer.outputFileName());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const PrintedPdf pdf(file.readAll());
    EXPECT_EQ(pdf.Info("Page size"), "595 x 842 pts (A4)");
    EXPECT_EQ(pdf.Text(1), printed.Text());
    EXPECT_LT(LineBefore(pdf.Picture(), 0, 1), 100);
}

TEST(SheetPrinter, ADeviceThatDoesNotStartIsAnError)
{
    Printed printed(kPumps);
    QPdfWriter nowhere(QStringLiteral("/no/such/folder/printed.pdf"));
    EXPECT_THROW(PrintOn(nowhere, printed.job), Error);
}

/// Runs a second time, in a program of its own that finds no fonts.
TEST(SheetPrinter, AComputerWithoutFontsPrintsNothing)
{
    const QString mark = QStringLiteral("SCHEDULES_TESTS_WITHOUT_FONTS");
    if (qEnvironmentVariableIsSet(mark.toUtf8().constData())) {
        EXPECT_THROW(PdfOf(Printed(kPumps).job), Error);
        return;
    }
    const QTemporaryDir folder;
    QFile noFonts(folder.filePath(QStringLiteral("fonts.conf")));
    ASSERT_TRUE(noFonts.open(QIODevice::WriteOnly) && noFonts.write("<fontconfig></fontconfig>") > 0);
    noFonts.close();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(mark, QStringLiteral("1"));
    environment.insert(QStringLiteral("FONTCONFIG_FILE"), noFonts.fileName());
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(),
                  {"--gtest_filter=SheetPrinter.AComputerWithoutFontsPrintsNothing"});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0) << process.readAll().toStdString();
}

TEST(SheetPrinter, DeliversWhatItWasTold)
{
    const auto sheet = DrawnSheet(kPumps);
    std::vector<PrintJob> jobs;
    SheetPrinter printer({.title = QStringLiteral("Pumps")}, [&](const PrintJob& job) { jobs.push_back(job); });
    printer.SetOption(PrintOption::Grid, false);
    printer.SetOption(PrintOption::Shading, true);
    printer.SetHeader(QStringLiteral("/cPumps"));
    printer.SetMargin(PageEdge::Left, 1);
    printer.SetMargin(PageEdge::Right, 2);
    printer.SetMargin(PageEdge::Top, 3);
    printer.SetMargin(PageEdge::Bottom, 4);
    printer.Print(*sheet, PrintAction::Smart);
    ASSERT_EQ(jobs.size(), 1u);
    EXPECT_EQ(jobs.front().sheet, sheet.get());
    EXPECT_EQ(jobs.front().title, QStringLiteral("Pumps"));
    EXPECT_EQ(jobs.front().setup, (PrintSetup{.options = {true, false, true, true, true},
                                              .margins = {1, 2, 3, 4},
                                              .header = QStringLiteral("/cPumps"),
                                              .action = PrintAction::Smart}));
}

} // namespace schedules::testing
