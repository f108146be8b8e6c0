// Writing a workbook, against another library that writes the same cells as .xlsx row by row, with the same formats,
// and a library of another language that writes a table alike, in a program that tells its time. How much memory the
// writing takes beside the sheet is a figure of its own.

#include "Sheets.h"
#include "spread/VisibleCopy.h"
#include "workbook/Workbook.h"
#include "workbook/WorkbookCell.h"

#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <fstream>
#include <malloc.h>
#include <map>
#include <string>
#include <xlsxwriter.h>

namespace schedules::bench {

namespace {

std::unique_ptr<Sheet> SheetOf(const benchmark::State& state)
{
    return ExportedSheet(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
}

void OwnWorkbook(benchmark::State& state)
{
    const auto sheet = SheetOf(state);
    const QTemporaryDir folder;
    for (auto _ : state)
        WriteWorkbook(*sheet, QStringLiteral("Schedule"), folder.filePath(QStringLiteral("a.xls")));
}

void OwnCopy(benchmark::State& state)
{
    const auto sheet = SheetOf(state);
    for (auto _ : state) {
        Sheet target;
        CopyVisible(*sheet, target);
        benchmark::DoNotOptimize(target.RowCount());
    }
}

/// The highest use of memory since it was last set back, in bytes.
double PeakMemory()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmHWM:"))
            return 1024 * std::stod(line.substr(6));
    }
    return 0;
}

void OwnMemory(benchmark::State& state)
{
    const auto sheet = SheetOf(state);
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("a.xls"));
    for (auto _ : state) {
        malloc_trim(0);
        std::ofstream("/proc/self/clear_refs") << "5";
        const double before = PeakMemory();
        WriteWorkbook(*sheet, QStringLiteral("Schedule"), file);
        const double beside = PeakMemory() - before;
        state.counters["bytes_beside_the_sheet"] = beside;
        state.counters["bytes_beside_per_byte_of_the_file"] = beside / static_cast<double>(QFileInfo(file).size());
    }
}

/// What a user of the library would write: its formats made once, its fastest mode.
void Xlsxwriter(benchmark::State& state)
{
    const auto sheet = SheetOf(state);
    const QTemporaryDir folder;
    const QByteArray file = folder.filePath(QStringLiteral("a.xlsx")).toUtf8();
    for (auto _ : state) {
        lxw_workbook_options options{.constant_memory = LXW_TRUE, .tmpdir = nullptr, .use_zip64 = LXW_FALSE};
        lxw_workbook* book = workbook_new_opt(file.constData(), &options);
        lxw_worksheet* page = workbook_add_worksheet(book, "Schedule");
        std::map<WorkbookLook, lxw_format*> formats;
        for (Row row{1}; row.Value() <= sheet->RowCount(); ++row) {
            for (Column column{1}; column.Value() <= sheet->ColumnCount(); ++column) {
                const WorkbookCell cell = WorkbookCellOf(*sheet, {column, row});
                lxw_format*& format = formats[WorkbookLookOf(*sheet, {column, row}, cell)];
                if (!format)
                    format = workbook_add_format(book);
                const auto line = static_cast<lxw_row_t>(row.Value() - 1);
                const auto place = static_cast<lxw_col_t>(column.Value() - 1);
                if (cell.kind == WorkbookCell::Kind::Number)
                    worksheet_write_number(page, line, place, cell.number.value, format);
                else
                    worksheet_write_string(page, line, place, std::string(cell.text).c_str(), format);
            }
        }
        workbook_close(book);
    }
}

void PythonXlwt(benchmark::State& state)
{
    for (auto _ : state) {
        QProcess python;
        python.start(QStringLiteral("/usr/bin/python3"),
                     {QStringLiteral(SCHEDULES_SOURCE_DIR "/bench/workbook_peer.py"), QString::number(state.range(0)),
                      QString::number(state.range(1))});
        python.waitForFinished(-1);
        bool told = false;
        state.SetIterationTime(python.readAllStandardOutput().trimmed().toDouble(&told));
        if (!told)
            state.SkipWithError("the other program did not tell its time");
    }
}

void Register(int columns, int rows)
{
    const auto add = [&](const char* what, const char* who, void (*run)(benchmark::State&)) {
        const std::string name =
            std::string(what) + "/" + std::to_string(rows) + "x" + std::to_string(columns) + "/" + who;
        return benchmark::RegisterBenchmark(name.c_str(), run)->Args({columns, rows})->Unit(benchmark::kMillisecond);
    };
    add("workbook", "own", OwnWorkbook);
    add("workbook", "own copy of the sheet", OwnCopy);
    add("workbook", "libxlsxwriter", Xlsxwriter);
    add("workbook memory", "own", OwnMemory)->Iterations(1);
}

const bool kRegistered = [] {
    Register(15, 65'536);
    Register(50, 20'000);
    Register(250, 4'000);
    benchmark::RegisterBenchmark("workbook/65536x15/python3-xlwt", PythonXlwt)
        ->Args({15, 65'536})
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime()
        ->Iterations(1);
    return true;
}();

} // namespace

} // namespace schedules::bench
