// A printed document against drawing the same texts with a bare painter; and what the first and the last page cost, in
// a preview and in a document, with few rows and with many: 100,000 of them are 1,200,000 cells.

#include "Documents.h"
#include "Quiet.h"
#include "controls/paper/PreviewStage.h"
#include "controls/paper/SheetPrinter.h"
#include "controls/paper/SheetPrinterFonts.h"
#include "grid/CSchedule.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include <benchmark/benchmark.h>
#include <limits>
#include <map>
#include <memory>

namespace schedules::bench {

namespace {

constexpr int kColumns = 12;
constexpr int kTwipsPerInch = 1440;

/// A loaded sheet of so many rows, kept.
const Sheet& SheetOf(int rows)
{
    static std::map<int, std::unique_ptr<Sheet>> sheets;
    auto& sheet = sheets[rows];
    if (!sheet) {
        static Quiet quiet;
        sheet = std::make_unique<Sheet>();
        CSchedule engine(quiet);
        engine.SetSched(sheet.get());
        engine.LoadScheduleData(ScheduleDocument({rows, kColumns}));
    }
    return *sheet;
}

PrintJob JobOf(int rows)
{
    PrintJob job{.sheet = &SheetOf(rows), .title = QStringLiteral("Pumps")};
    job.setup.header = QStringLiteral("/fn\"Arial\"/fz\"12\"/fb1/cPumps/n");
    return job;
}

void OwnDocument(benchmark::State& state)
{
    const PrintJob job = JobOf(10'000);
    for (auto _ : state)
        benchmark::DoNotOptimize(PdfOf(job).size());
}

/// The same texts in the same face, one below the other, and nothing else: no lines, no alignment, no cutting off.
qsizetype BareDocument(const Sheet& sheet)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(kTwipsPerInch);
    writer.setPageSize(QPageSize(QPageSize::A4));
    QPainter painter(&writer);
    QFont font = PrintedCellFont(sheet.Font());
    font.setPixelSize(static_cast<int>(font.pointSizeF() * 20));
    painter.setFont(font);
    const int onPage = (writer.height() - 1) / sheet.RowHeight(Row(1));
    for (Row row{0}; row.Value() <= sheet.RowCount(); ++row) {
        if (row.Value() > 0 && row.Value() % onPage == 0)
            writer.newPage();
        for (Column column{0}; column.Value() <= sheet.ColumnCount(); ++column) {
            const QPointF at(column.Value() * 800, (row.Value() % onPage + 1) * sheet.RowHeight(row));
            painter.drawText(at, sheet.Text({column, row}));
        }
    }
    painter.end();
    return bytes.size();
}

void BarePainter(benchmark::State& state)
{
    const Sheet& sheet = SheetOf(10'000);
    for (auto _ : state)
        benchmark::DoNotOptimize(BareDocument(sheet));
}

constexpr int kFewRows = 100;
constexpr int kManyRows = 100'000;
constexpr int kFirst = 0;
constexpr int kLast = std::numeric_limits<int>::max(); // the nearest page that there is

void PreviewedPage(benchmark::State& state, int rows, int page)
{
    const PrintJob job = JobOf(rows);
    PreviewStage stage(nullptr);
    stage.resize(800, 1000);
    for (auto _ : state) {
        stage.Show(job, page);
        benchmark::DoNotOptimize(stage.Picture());
    }
}

void FirstAndLastPage(benchmark::State& state, int rows)
{
    PrintJob job = JobOf(rows);
    PreviewStage stage(nullptr);
    stage.Show(job, kFirst);
    job.pages.addPage(1);
    job.pages.addPage(stage.PageCount());
    for (auto _ : state)
        benchmark::DoNotOptimize(PdfOf(job).size());
}

const bool kRegistered = [] {
    const auto add = [](const char* name, auto&&... how) {
        benchmark::RegisterBenchmark(name, how...)->Unit(benchmark::kMillisecond);
    };
    add("print/10000x12/own", OwnDocument);
    add("print/10000x12/bare painter", BarePainter);
    add("print/first and last page/own", FirstAndLastPage, kFewRows);
    add("print/first and last page/of 100000 rows", FirstAndLastPage, kManyRows);
    add("preview/first page/own", PreviewedPage, kFewRows, kFirst);
    add("preview/first page/of 100000 rows", PreviewedPage, kManyRows, kFirst);
    add("preview/last page of 100000 rows/own", PreviewedPage, kManyRows, kLast);
    add("preview/last page of 100000 rows/first page", PreviewedPage, kManyRows, kFirst);
    return true;
}();

} // namespace

} // namespace schedules::bench
