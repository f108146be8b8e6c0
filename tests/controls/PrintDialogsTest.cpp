// Printing as the user of a desktop does it.

#include "common/Error.h"
#include "controls/PrintDialogsFixture.h"
#include "controls/PrintedPdf.h"
#include "controls/paper/PreviewStage.h"

#include <QComboBox>
#include <QLabel>
#include <QPrintDialog>
#include <QProgressDialog>
#include <QToolButton>

namespace schedules::testing {

namespace {

QStringList Buttons(const QWidget& dialog)
{
    QStringList texts;
    for (const auto* const button : dialog.findChildren<QPushButton*>())
        texts << button->text();
    return texts;
}

QString Page(const PrintPreview& preview)
{
    return preview.findChild<QLabel*>()->text();
}

} // namespace

TEST_F(PrintDialogsTest, ClosingThePreviewEndsQuietly)
{
    ClickInPreview("Close");
    Run();
    OnPreview([](PrintPreview& preview) { QTest::keyClick(&preview, Qt::Key_Escape); });
    Run();
    EXPECT_EQ(asked, 0);
    EXPECT_TRUE(user.questions.empty());
    EXPECT_TRUE(user.boxes.empty());
}

TEST_F(PrintDialogsTest, WithoutAPrinterThePdfFileIsOfferedAlone)
{
    QStringList with;
    QStringList without;
    const auto look = [](QStringList& buttons) {
        OnPreview([&](PrintPreview& preview) {
            buttons = Buttons(preview);
            preview.reject();
        });
    };
    look(with);
    Run();
    hasPrinter = false;
    look(without);
    Run();
    EXPECT_EQ(with, (QStringList{"Print...", "Save as PDF...", "Close"}));
    EXPECT_EQ(without, (QStringList{"Save as PDF...", "Close"}));
}

TEST_F(PrintDialogsTest, ThePdfIsSavedUnderTheNameThatTheUserChooses)
{
    user.fileNames = {FileIn("list.pdf")};
    ClickInPreview("Save as PDF...");
    Run();
    ASSERT_EQ(user.questions.size(), 1u);
    EXPECT_EQ(user.questions.front().fileName, QStringLiteral("Pumps-newly added.pdf"));
    EXPECT_EQ(user.questions.front().defaultSuffix, QStringLiteral("pdf"));
    const PrintedPdf pdf(ContentOf(FileIn("list.pdf")));
    EXPECT_EQ(pdf.Info("Pages"), "3");
    EXPECT_EQ(pdf.Info("Title"), "Pumps/newly added");
}

TEST_F(PrintDialogsTest, WithoutANameNothingIsSaved)
{
    ClickInPreview("Save as PDF...");
    Run();
    EXPECT_EQ(user.questions.size(), 1u);
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(PrintDialogsTest, AFileThatCannotBeWrittenIsAnError)
{
    user.fileNames = {FileIn("no/such/folder/list.pdf")};
    ClickInPreview("Save as PDF...");
    EXPECT_THROW(Run(), Error);
}

TEST_F(PrintDialogsTest, CancellingThePrintDialogEndsQuietly)
{
    ClickInPreview("Print...");
    Run();
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(user.questions.empty());
    EXPECT_TRUE(user.boxes.empty());
}

TEST_F(PrintDialogsTest, ThePrintDialogStartsWithTheJobsPaper)
{
    job.paper = QPageSize(QPageSize::Letter);
    QPageSize paper;
    QString name;
    answer = [&](QPrinter& printer) {
        paper = printer.pageLayout().pageSize();
        name = printer.docName();
        return false;
    };
    ClickInPreview("Print...");
    Run();
    EXPECT_EQ(paper.id(), QPageSize::Letter);
    EXPECT_EQ(name, QStringLiteral("Pumps/newly added"));
}

TEST_F(PrintDialogsTest, WhatTheUserSetsInThePrintDialogHolds)
{
    answer = [&](QPrinter& printer) {
        printer.setOutputFileName(FileIn("printed.pdf"));
        printer.setPageSize(QPageSize(QPageSize::A3));
        printer.setPageOrientation(QPageLayout::Landscape);
        printer.setPageRanges(QPageRanges::fromString("2"));
        return true;
    };
    ClickInPreview("Print...");
    Run();
    const PrintedPdf pdf(ContentOf(FileIn("printed.pdf")));
    EXPECT_EQ(pdf.Info("Page size"), "1191 x 842 pts (A3)");
    EXPECT_EQ(pdf.Info("Pages"), "1");
    EXPECT_TRUE(pdf.Text(1).ends_with("\nPage 2 of 3"));
}

TEST_F(PrintDialogsTest, ThePlatformsPrintDialogCanBeCancelled)
{
    QPrinter printer;
    OnceModal<QPrintDialog>([](QPrintDialog& dialog) { dialog.reject(); });
    EXPECT_FALSE(PrinterDesk::OfPlatform().ask(printer, 3, nullptr));
}

TEST_F(PrintDialogsTest, ThePlatformsPrintDialogOffersThePagesThatExist)
{
    QPrinter printer;
    std::pair<int, int> range;
    OnceModal<QPrintDialog>([&](QPrintDialog& dialog) {
        range = {dialog.minPage(), dialog.maxPage()};
        dialog.reject();
    });
    PrinterDesk::OfPlatform().ask(printer, 3, nullptr);
    EXPECT_EQ(range, std::pair(1, 3));
}

TEST_F(PrintDialogsTest, ThePrintDialogIsToldHowManyPagesThereAre)
{
    ClickInPreview("Print...");
    Run();
    EXPECT_EQ(pagesAsked, 3);
}

TEST_F(PrintDialogsTest, ARangeBeyondTheEndIsAnErrorAndPrintsNothing)
{
    answer = [&](QPrinter& printer) {
        printer.setOutputFileName(FileIn("printed.pdf"));
        printer.setPageRanges(QPageRanges::fromString("4-9"));
        return true;
    };
    ClickInPreview("Print...");
    EXPECT_THROW(Run(), Error);
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(PrintDialogsTest, ThePreviewStepsThroughThePages)
{
    QStringList pages;
    OnPreview([&](PrintPreview& preview) {
        const auto steps = preview.findChildren<QToolButton*>();
        pages << Page(preview);
        EXPECT_FALSE(steps.front()->isEnabled());
        QTest::mouseClick(steps.back(), Qt::LeftButton);
        pages << Page(preview);
        QTest::mouseClick(steps.front(), Qt::LeftButton);
        pages << Page(preview);
        for (const auto key : {Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_End, Qt::Key_PageDown}) {
            QTest::keyClick(&preview, key);
            pages << Page(preview);
        }
        EXPECT_FALSE(steps.back()->isEnabled());
        QTest::keyClick(&preview, Qt::Key_Home);
        pages << Page(preview);
        preview.reject();
    });
    Run();
    EXPECT_EQ(pages, (QStringList{"Page 1 of 3", "Page 2 of 3", "Page 1 of 3", "Page 2 of 3", "Page 1 of 3",
                                  "Page 3 of 3", "Page 3 of 3", "Page 1 of 3"}));
}

TEST_F(PrintDialogsTest, PaperCanBeChosenInThePreview)
{
    user.fileNames = {FileIn("list.pdf")};
    OnPreview([&](PrintPreview& preview) {
        auto* const papers = preview.findChild<QComboBox*>();
        EXPECT_EQ(papers->currentText(), QStringLiteral("A4"));
        papers->setCurrentIndex(papers->findText("A3"));
        EXPECT_EQ(Page(preview), QStringLiteral("Page 1 of 2"));
        Click(preview, "Save as PDF...");
    });
    Run();
    EXPECT_EQ(PrintedPdf(ContentOf(FileIn("list.pdf"))).Info("Page size"), "842 x 1191 pts (A3)");
}

TEST_F(PrintDialogsTest, APaperOfTheJobsOwnIsAmongThePapers)
{
    job.paper = QPageSize(QPageSize::A5);
    QString shown;
    OnPreview([&](PrintPreview& preview) {
        shown = preview.findChild<QComboBox*>()->currentText();
        preview.reject();
    });
    Run();
    EXPECT_EQ(shown, QStringLiteral("A5"));
}

TEST_F(PrintDialogsTest, ThePreviewShowsWhatIsPrinted)
{
    PreviewStage stage(nullptr);
    stage.resize(621, 868);
    stage.Show(job, 1);
    const QImage shown = stage.Picture();
    const QImage printed = PrintedPdf(job).Picture(2);
    ASSERT_NEAR(shown.width(), printed.width(), 1);
    ASSERT_NEAR(shown.height(), printed.height(), 1);
    const auto inkInBands = [](const QImage& page) {
        std::vector<int> bands;
        for (int top = 0; top + 36 <= 828; top += 36) {
            int ink = 0;
            for (int y = top; y < top + 36; ++y) {
                for (int x = 0; x < 590; ++x)
                    ink += qGray(page.pixel(x, y)) < 160 ? 1 : 0;
            }
            bands.push_back(ink > 0 ? 1 : 0);
        }
        return bands;
    };
    EXPECT_EQ(inkInBands(shown), inkInBands(printed));
}

TEST_F(PrintDialogsTest, PaperWithoutRoomIsAnErrorNotADialog)
{
    job.paper = QPageSize(QSizeF(30, 40), QPageSize::Millimeter);
    EXPECT_THROW(Run(), Error);
}

TEST_F(PrintDialogsTest, ALongPrintShowsItsProgressAndCanBeCancelled)
{
    sheet->SetSize(1, 1'000'000);
    user.fileNames = {FileIn("list.pdf")};
    ClickInPreview("Save as PDF...");
    QString told;
    OnceModal<QProgressDialog>([&](QProgressDialog& dialog) {
        told = dialog.labelText();
        dialog.cancel();
    });
    Run();
    EXPECT_TRUE(told.startsWith("Printing page ")) << told.toStdString();
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

} // namespace schedules::testing
