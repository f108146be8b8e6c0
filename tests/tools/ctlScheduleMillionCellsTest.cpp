// A table of a million cells, through all that a user does with one of ten.

#include "controls/PrintedPdf.h"
#include "controls/paper/PreviewStage.h"
#include "controls/paper/PrintPreview.h"
#include "support/ModalDialog.h"
#include "tools/EditingTest.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace schedules {

namespace {

struct TableSize
{
    int columns;
    int rows;
};

constexpr TableSize kSquare{1'000, 1'000};
constexpr TableSize kNarrow{250, 4'000}; // an Excel 97 sheet has room for it

/// "column/row".
QString TextOf(int column, int row)
{
    return QString::number(column) + u'/' + QString::number(row);
}

/// All cells may be edited. Lines are numbered, and columns, too.
QString TableOf(TableSize size)
{
    QString xml = QStringLiteral("<TABLE>");
    for (int row = 0; row <= size.rows; ++row) {
        xml += QStringLiteral("<TR><TH>%1</TH>").arg(row);
        for (int column = 1; column <= size.columns; ++column) {
            xml += row == 0 ? QStringLiteral("<TH>%1</TH>").arg(column)
                            : QStringLiteral("<TD AllowEdit='-1'>%1</TD>").arg(TextOf(column, row));
        }
        xml += QStringLiteral("</TR>");
    }
    return xml + QStringLiteral("</TABLE>");
}

class MillionCellsTest : public EditingTest
{
protected:
    void ShowTable(TableSize size = kSquare) { Show(kScheduleView, TableOf(size)); }

    /// The first key enters the table, and so the edit of its first cell.
    void GoToTheEnd()
    {
        Key(Qt::Key_Down);
        Key(Qt::Key_Escape);
        Key(Qt::Key_End, Qt::ControlModifier);
    }

    QString Path(const char* name) const { return folder.filePath(QLatin1String(name)); }

    QByteArray Written(const char* format)
    {
        EXPECT_EQ(view.WriteFile(QLatin1String(format), Path("table")), QString());
        QFile file(Path("table"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    /// What another program finds in a workbook.
    std::string EndOfWorkbook(const char* format)
    {
        const QString name = Path("table.") + QLatin1String(format);
        EXPECT_EQ(view.WriteFile(QLatin1String(format), name), QString());
        QProcess reader;
        reader.start(QStringLiteral("/usr/bin/python3"),
                     {QStringLiteral(SCHEDULES_SOURCE_DIR "/tests/tools/workbook_end.py"), name});
        EXPECT_TRUE(reader.waitForFinished(240'000));
        EXPECT_EQ(reader.exitCode(), 0) << reader.readAllStandardError().toStdString();
        return QString::fromUtf8(reader.readAllStandardOutput()).trimmed().toStdString();
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(MillionCellsTest, AreLoadedAndScrolled)
{
    ShowTable();
    EXPECT_EQ(TextAt(1, 1), "1/1");
    EXPECT_EQ(TextAt(1'000, 1'000), "1000/1000");
    EXPECT_TRUE(Spread()->viewport()->rect().contains(Middle(1, 1)));

    GoToTheEnd();
    EXPECT_EQ(Active(), "1000,1000");
    EXPECT_TRUE(Spread()->viewport()->rect().contains(Spread()->CellRect({Column(1'000), Row(1'000)})));
    ClickCell(999, 998);
    EXPECT_EQ(Active(), "999,998");

    Key(Qt::Key_Escape);
    Key(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_TRUE(Spread()->viewport()->rect().contains(Middle(1, 1)));
    EXPECT_EQ(Boxes(), "");
}

TEST_F(MillionCellsTest, AreTransposedThereAndBack)
{
    ShowTable(kNarrow);
    Click("btnTranspose");
    EXPECT_EQ(TheSheet()->ColumnCount(), 4'000);
    EXPECT_EQ(TheSheet()->RowCount(), 250);
    EXPECT_EQ(TextAt(4'000, 250), "250/4000");
    EXPECT_EQ(TextAt(3, 7), "7/3");
    Click("btnTranspose");
    EXPECT_EQ(TheSheet()->RowCount(), 4'000);
    EXPECT_EQ(TextAt(250, 4'000), "250/4000");
    EXPECT_EQ(TextAt(3, 7), "3/7");
    EXPECT_EQ(Boxes(), "");
}

TEST_F(MillionCellsTest, AreEditedAndSaved)
{
    ShowTable();
    GoToTheEnd();
    Key(Qt::Key_F2);
    Box()->selectAll();
    Type("edited");
    Key(Qt::Key_Return);
    EXPECT_EQ(TextAt(1'000, 1'000), "edited");
    EXPECT_TRUE(Dirty());
    Click("btnSaveTag");
    const QString saved = QString::fromStdString(SavedXml());
    EXPECT_EQ(saved.count(QStringLiteral("<TD")), 1'000'000);
    EXPECT_EQ(saved.count(QStringLiteral("Dirty=")), 1);
    EXPECT_EQ(saved.count(QStringLiteral(">edited<")), 1);
    EXPECT_EQ(saved.count(QStringLiteral(">1000/1000<")), 0);
    EXPECT_EQ(Boxes(), "");
}

TEST_F(MillionCellsTest, ShowTheirLastPageBeforeTheyArePrinted)
{
    ShowTable(kNarrow);
    int page = 0;
    int pages = 0;
    QImage first;
    QImage last;
    testing::OnceModal<PrintPreview>([&](PrintPreview& preview) {
        const auto& stage = *preview.findChild<PreviewStage*>();
        first = stage.Picture();
        QTest::keyClick(&preview, Qt::Key_End);
        last = stage.Picture();
        page = stage.Page();
        pages = stage.PageCount();
        preview.reject();
    });
    Click("btnPrint");
    EXPECT_GT(pages, 1'000);
    EXPECT_EQ(page, pages - 1);
    EXPECT_FALSE(last.isNull());
    EXPECT_NE(first, last);
    EXPECT_EQ(Boxes(), "");
}

TEST_F(MillionCellsTest, ArePrintedOnTheFirstAndTheLastPage)
{
    ShowTable(kNarrow);
    PrintJob job{.sheet = TheSheet(), .title = QStringLiteral("Pumps")};
    PreviewStage stage(nullptr);
    stage.Show(job, 0);
    job.pages.addPage(1);
    job.pages.addPage(stage.PageCount());
    const testing::PrintedPdf pdf(job);
    EXPECT_EQ(pdf.Info("Pages"), "2");
    EXPECT_TRUE(pdf.Text(1).find("1/1 2/1 3/1 ") != std::string::npos) << pdf.Text(1);
    EXPECT_TRUE(pdf.Text(2).find(" 249/4000 250/4000\n") != std::string::npos) << pdf.Text(2);
}

TEST_F(MillionCellsTest, BecomeAnExcel97Workbook)
{
    ShowTable(kNarrow);
    EXPECT_EQ(EndOfWorkbook("xls"), "4001 rows, 251 columns, last: 250/4000");
}

TEST_F(MillionCellsTest, BecomeAnOpenWorkbook)
{
    ShowTable();
    EXPECT_EQ(EndOfWorkbook("xlsx"), "1001 rows, 1001 columns, last: 1000/1000");
}

TEST_F(MillionCellsTest, BecomeCommaSeparatedValues)
{
    ShowTable();
    const QByteArray csv = Written("csv");
    EXPECT_EQ(csv.count('\n'), 1'001);
    EXPECT_EQ(csv.count(','), 1'001 * 1'000);
    EXPECT_TRUE(csv.trimmed().endsWith(",999/1000,1000/1000"));
}

TEST_F(MillionCellsTest, BecomeAWebPage)
{
    ShowTable();
    const QByteArray page = Written("html");
    // Once in the table for the screen, and once in those for paper.
    EXPECT_EQ(page.count("<td"), 2'000'000);
    EXPECT_EQ(page.count(">1000/1000</td>"), 2);
}

} // namespace schedules
