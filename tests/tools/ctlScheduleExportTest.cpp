// What leaves the view as a file: the questions that are asked, what is written, and what the user is told.

#include "controls/paper/PrintPreview.h"
#include "support/FileSizeLimit.h"
#include "support/ModalDialog.h"
#include "support/TraceLog.h"
#include "tools/EditingTest.h"

#include <QDir>
#include <QFile>
#include <QMenu>
#include <QPageSize>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace schedules {

namespace {

/// Column 2 is hidden, and so is row 2.
const QString kWithHidden = QStringLiteral("<TABLE><TR><TH>Tag</TH><TH>A</TH><TH>B</TH><TH>C</TH></TR>"
                                           "<TR><TH>P-1</TH><TD>a1</TD><TD>b1</TD><TD dataType='DOUBLE'>12.50</TD></TR>"
                                           "<TR><TH hidden='-1'>P-2</TH><TD>a2</TD><TD>b2</TD><TD>c2</TD></TR>"
                                           "<TR><TH>P-3</TH><TD>=1+1</TD><TD>b3</TD><TD>007</TD></TR></TABLE>");

class ExportTest : public EditingTest
{
protected:
    /// An entry of Export's menu.
    void Choose(const char* entry) { Tool(entry)->trigger(); }

    void ShowTable()
    {
        Show(kScheduleView, kWithHidden);
        TheSheet()->SetHidden(Column(2), true);
    }

    QString Path(const char* name) const { return folder.filePath(QLatin1String(name)); }

    static QByteArray Content(const QString& fileName)
    {
        QFile file(fileName);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    std::string Files() const { return QDir(folder.path()).entryList(QDir::Files, QDir::Name).join(' ').toStdString(); }

    /// One that fits a page only when that is turned.
    static QString WideTable()
    {
        QString row;
        for (int column = 0; column < 12; ++column)
            row += QStringLiteral("<TD>a value of column %1</TD>").arg(column);
        return QStringLiteral("<TABLE><TR><TH/>%1</TR><TR><TH/>%1</TR></TABLE>").arg(row);
    }

    /// "upright" or "across", and how many pages a PDF has.
    std::string PageSize(const char* name) const
    {
        QProcess pdfinfo;
        pdfinfo.start(QStringLiteral("pdfinfo"), {Path(name)});
        EXPECT_TRUE(pdfinfo.waitForFinished());
        const QString info = QString::fromUtf8(pdfinfo.readAllStandardOutput());
        const auto size = QRegularExpression(QStringLiteral("Page size: +([\\d.]+) x ([\\d.]+)")).match(info);
        const auto pages = QRegularExpression(QStringLiteral("Pages: +(\\d+)")).match(info);
        const bool across = size.captured(1).toDouble() > size.captured(2).toDouble();
        return (across ? "across, pages: " : "upright, pages: ") + pages.captured(1).toStdString();
    }

    std::string Csv()
    {
        EXPECT_EQ(view.WriteFile(QStringLiteral("csv"), Path("out.csv")), QString());
        return Content(Path("out.csv")).toStdString();
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(ExportTest, TheButtonAsksForAWorkbook)
{
    ShowTable();
    Click("btnExport");
    ASSERT_EQ(user.questions.size(), 1u);
    const FileQuestion& question = user.questions.front();
    EXPECT_EQ(question.title, QStringLiteral("Missing: 1071"));
    EXPECT_EQ(question.fileName, QStringLiteral("Schedule"));
    EXPECT_EQ(question.defaultSuffix, QStringLiteral(".xls"));
    EXPECT_EQ(question.filters, QStringList{"Microsoft Excel 97 Workbook(*.xls)|*.xls"});
    EXPECT_EQ(question.flags, 2140166);
    EXPECT_EQ(Boxes(), "") << "cancelling ends quietly";
    EXPECT_TRUE(host.sent.empty());
}

TEST_F(ExportTest, TheMenuLeadsToBoth)
{
    ShowTable();
    auto* menu = Find<QMenu>("mnuExport");
    EXPECT_EQ(menu->accessibleName(), QStringLiteral("Missing: 1061"));
    ASSERT_EQ(menu->actions().size(), 2);
    EXPECT_EQ(Tool("mnuExportExcel")->text(), QStringLiteral("Missing: 1059"));
    EXPECT_EQ(Tool("mnuExportHtml")->text(), QStringLiteral("Missing: 1060"));
    Choose("mnuExportExcel");
    Choose("mnuExportHtml");
    ASSERT_EQ(user.questions.size(), 2u);
    EXPECT_EQ(user.questions[0].title, QStringLiteral("Missing: 1071"));
    EXPECT_EQ(user.questions[1].title, QStringLiteral("Missing: 1061"));
}

TEST_F(ExportTest, EntriesOfTheMenuAreNoKeysOfTools)
{
    ShowTable();
    for (const char* key : {"mnuExportExcel", "mnuExportHtml", "mnuExport", "vaSpread1", ""})
        Click(key);
    EXPECT_TRUE(user.questions.empty());
}

TEST_F(ExportTest, TheWebPageIsAskedFor)
{
    ShowTable();
    Choose("mnuExportHtml");
    ASSERT_EQ(user.questions.size(), 1u);
    const FileQuestion& question = user.questions.front();
    EXPECT_EQ(question.fileName, QStringLiteral("*.htm"));
    EXPECT_EQ(question.defaultSuffix, QStringLiteral(".htm"));
    EXPECT_EQ(question.filters, QStringList{"Web Page (*.htm; *.html)|*.htm"});
    EXPECT_EQ(question.flags, 2054);
    EXPECT_EQ(Boxes(), "");
}

TEST_F(ExportTest, AWorkbookIsWrittenWithoutAWord)
{
    ShowTable();
    user.fileNames = {Path("plan.xls")};
    Click("btnExport");
    EXPECT_TRUE(Content(Path("plan.xls")).startsWith("\xD0\xCF\x11\xE0"));
    EXPECT_EQ(Files(), "plan.xls");
    EXPECT_EQ(Boxes(), "");
}

TEST_F(ExportTest, AWorkbookThatFailsIsTracedAndNotTold)
{
    ShowTable();
    testing::TraceLog trace;
    user.fileNames = {Path("gone/plan.xls")};
    Click("btnExport");
    EXPECT_EQ(Boxes(), "");
    ASSERT_FALSE(trace.lines.isEmpty());
    EXPECT_TRUE(trace.lines.constLast().startsWith(QStringLiteral("Schedules.ctlSchedule.ExportToExcel: ")));
}

TEST_F(ExportTest, TheSecondGridHoldsTheVisiblePartAndIsEmptyAfterwards)
{
    ShowTable();
    auto* exported = Find<Sheet>("vaSpread2");
    ASSERT_TRUE(exported);
    int columns = 0;
    QObject::connect(exported, &Sheet::Changed, [&] { columns = std::max(columns, exported->ColumnCount()); });
    user.fileNames = {Path("plan.xls")};
    Click("btnExport");
    EXPECT_EQ(columns, 3) << "columns 0, 1 and 3";
    EXPECT_EQ(exported->DataColumnCount(), 0);
}

TEST_F(ExportTest, HiddenColumnsAndRowsAreLeftOut)
{
    ShowTable();
    EXPECT_EQ(Csv(), "Tag,A,C\r\nP-1,a1,12.50\r\nP-3,'=1+1,007\r\n");
}

TEST_F(ExportTest, RowsStandAsTheyAreShown)
{
    ShowTable();
    TheSheet()->SetActiveCell({Column(1), Row(1)});
    view.DoColSort();
    EXPECT_EQ(Csv(), "Tag,A,C\r\nP-3,'=1+1,007\r\nP-1,a1,12.50\r\n");
}

TEST_F(ExportTest, AnOpenEditIsPartOfIt)
{
    Show(kScheduleView, kEditable);
    ClickCell(1, 1);
    Type("20");
    EXPECT_EQ(Csv(), ",Flow,Head,Note\r\nP-1,20,48,spare\r\nP-2,13,49,fixed\r\n");
}

TEST_F(ExportTest, AWebPageThatIsWrittenIsTold)
{
    ShowTable();
    user.fileNames = {Path("plan.htm")};
    Choose("mnuExportHtml");
    EXPECT_EQ(Boxes(), "Missing: 3056\r\n\r\nMissing: 3057 " + Path("plan.htm").toStdString() + " (64) Missing: 3058");
    EXPECT_EQ(Files(), "plan.htm");
    const QByteArray page = Content(Path("plan.htm"));
    EXPECT_TRUE(page.startsWith("<!DOCTYPE html>"));
    EXPECT_TRUE(page.contains(">a1<") && !page.contains(">b1<") && !page.contains(">a2<"));
}

TEST_F(ExportTest, FilesRunTheWayTheViewDoes)
{
    view.setLayoutDirection(Qt::RightToLeft);
    ShowTable();
    ASSERT_EQ(view.WriteFile(QStringLiteral("html"), Path("page.htm")), QString());
    EXPECT_TRUE(Content(Path("page.htm")).contains("dir=\"rtl\""));
    ASSERT_EQ(view.WriteFile(QStringLiteral("xls"), Path("right.xls")), QString());
    view.setLayoutDirection(Qt::LeftToRight);
    ASSERT_EQ(view.WriteFile(QStringLiteral("xls"), Path("left.xls")), QString());
    EXPECT_NE(Content(Path("left.xls")), Content(Path("right.xls")));
}

TEST_F(ExportTest, AWebPageThatFailsNamesItsLog)
{
    ShowTable();
    QDir(folder.path()).mkdir(QStringLiteral("plan.htm"));
    user.fileNames = {Path("plan.htm")};
    Choose("mnuExportHtml");
    EXPECT_EQ(Boxes(),
              "Missing: 3059\r\n\r\nMissing: 3060 " + Path("plan.htm.LOG").toStdString() + " (48) Missing: 3058");
    EXPECT_TRUE(Content(Path("plan.htm.LOG")).startsWith(Path("plan.htm").toUtf8() + ": "));
}

TEST_F(ExportTest, TheSelectorViewExportsToo)
{
    Show(kSelectorView, kSelection);
    EXPECT_EQ(Csv(), ",1,2\r\nTag,P-1,P-2\r\nSelect,0,0\r\n");
}

TEST_F(ExportTest, FilesThatCannotBeWrittenSayWhy)
{
    ShowTable();
    for (const char* format : {"xls", "xlsx", "csv", "html"})
        EXPECT_NE(view.WriteFile(QLatin1String(format), Path("gone/out")), QString()) << format;
    EXPECT_NE(view.WritePdf(Path("gone/out.pdf"), true, QPageSize::A4), QString());
    EXPECT_EQ(view.WriteFile(QStringLiteral("odt"), Path("out.odt")), QStringLiteral("There is no format \"odt\"."));
    EXPECT_EQ(Files(), "");
}

TEST_F(ExportTest, WhatIsCutShortLeavesTheFormerFile)
{
    ShowTable();
    for (const char* name : {"out.pdf", "out.xls", "out.xlsx", "out.csv", "out.html"}) {
        QFile former(Path(name));
        ASSERT_TRUE(former.open(QIODevice::WriteOnly));
        former.write("former");
    }
    {
        const testing::FileSizeLimit full(10);
        EXPECT_NE(view.WritePdf(Path("out.pdf"), true, QPageSize::A4), QString());
        for (const char* format : {"xls", "xlsx", "csv", "html"})
            EXPECT_NE(view.WriteFile(QLatin1String(format), Path(qPrintable(QStringLiteral("out.") + format))),
                      QString())
                << format;
    }
    for (const char* name : {"out.pdf", "out.xls", "out.xlsx", "out.csv", "out.html"})
        EXPECT_EQ(Content(Path(name)).toStdString(), "former") << name;
    EXPECT_EQ(Files(), "out.csv out.html out.pdf out.xls out.xlsx");
}

TEST_F(ExportTest, EachFormatIsWritten)
{
    ShowTable();
    for (const char* format : {"xls", "xlsx", "csv", "html"})
        EXPECT_EQ(view.WriteFile(QLatin1String(format), Path(format)), QString()) << format;
    EXPECT_TRUE(Content(Path("xls")).startsWith("\xD0\xCF\x11\xE0"));
    EXPECT_TRUE(Content(Path("xlsx")).startsWith("PK"));
    EXPECT_TRUE(Content(Path("html")).startsWith("<!DOCTYPE html>"));
}

TEST_F(ExportTest, TheViewPrintsSmart)
{
    Show(kScheduleView, WideTable());
    testing::OnceModal<PrintPreview>([](PrintPreview& preview) {
        for (auto* button : preview.findChildren<QAbstractButton*>()) {
            if (button->text().contains(QStringLiteral("PDF")))
                button->click();
        }
    });
    user.fileNames = {Path("out.pdf")};
    Click("btnPrint");
    EXPECT_EQ(PageSize("out.pdf"), "across, pages: 1");
    EXPECT_EQ(Boxes(), "");
}

TEST_F(ExportTest, SmartPrintTurnsAWideTableAndPlainPrintDoesNot)
{
    Show(kScheduleView, WideTable());
    ASSERT_EQ(view.WritePdf(Path("smart.pdf"), true, QPageSize::A4), QString());
    ASSERT_EQ(view.WritePdf(Path("plain.pdf"), false, QPageSize::A4), QString());
    EXPECT_EQ(PageSize("smart.pdf"), "across, pages: 1");
    EXPECT_EQ(PageSize("plain.pdf").substr(0, 7), "upright");
    EXPECT_NE(PageSize("plain.pdf"), "upright, pages: 1");
}

TEST_F(ExportTest, PrintShowsThePagesAndPrintsOnPaperOnlyWhenTheUserWantsIt)
{
    ShowTable();
    EXPECT_TRUE(Tool("btnPrint")->isEnabled());
    QSize shown;
    testing::OnceModal<PrintPreview>([&](PrintPreview& preview) {
        shown = preview.size();
        preview.reject();
    });
    QTest::mouseClick(Find<QToolBar>("tbTasks")->widgetForAction(Tool("btnPrint")), Qt::LeftButton);
    EXPECT_FALSE(shown.isEmpty());
    EXPECT_EQ(Boxes(), "");
    EXPECT_EQ(Log(), "") << "printing is no business of the host's";
}

TEST_F(ExportTest, APdfIsWrittenOnThePaperThatIsNamed)
{
    ShowTable();
    EXPECT_EQ(view.WritePdf(Path("out.pdf"), true, QPageSize::A4), QString());
    EXPECT_TRUE(Content(Path("out.pdf")).startsWith("%PDF"));
    EXPECT_EQ(view.WritePdf(Path("letter.pdf"), false, QPageSize::Letter), QString());
    EXPECT_TRUE(Content(Path("letter.pdf")).contains("/MediaBox [0 0 612 792]") ||
                Content(Path("letter.pdf")).contains("/MediaBox [0 0 612.000000 792.000000]"));
}

} // namespace schedules
