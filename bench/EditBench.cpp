// Editing a cell in a small and in a large table, opening a document for its first edit beside loading it, transposing,
// and ticking and collecting ten times as many tags.

#include "Documents.h"
#include "Quiet.h"
#include "ShownSchedule.h"
#include "grid/CSchedule.h"
#include "tools/schedule/edits/HeldDocument.h"

#include <QAction>
#include <QMenu>
#include <QPushButton>

#include <benchmark/benchmark.h>

namespace schedules::bench {

namespace {

QString SelectionDocument(int tags)
{
    QString document = QStringLiteral("<TABLE><TR><TH/><TH>Tag</TH><TH>Select</TH></TR>");
    for (int tag = 1; tag <= tags; ++tag)
        document += QStringLiteral("<TR><TH>%1</TH><TD>P-%1</TD><TD dataType='CHECKBOX' visible='-1'/></TR>").arg(tag);
    return document + QStringLiteral("</TABLE>");
}

void EditCells(benchmark::State& state)
{
    ShownSchedule shown(1, EditableDocument({static_cast<int>(state.range(0)), static_cast<int>(state.range(1))}));
    const std::vector<Cell> cells = EditedCells(*shown.view.ShownSheet());
    shown.Edit(cells.front(), QStringLiteral("opened"));
    std::size_t at = 0;
    for (auto _ : state) {
        at = (at + 179) % cells.size();
        shown.Edit(cells[at], QString::number(at));
    }
}

void LoadText(benchmark::State& state, const QString& xml)
{
    Quiet quiet;
    for (auto _ : state) {
        Sheet sheet;
        CSchedule engine(quiet);
        engine.SetSched(&sheet);
        benchmark::DoNotOptimize(engine.LoadScheduleData(xml));
    }
}

void LoadDocument(benchmark::State& state)
{
    LoadText(state, EditableDocument({1000, 1000}));
}

void OpenDocument(benchmark::State& state)
{
    const QString xml = EditableDocument({1000, 1000});
    for (auto _ : state) {
        HeldDocument document;
        document.Hold(xml);
        benchmark::DoNotOptimize(document.SetCellText({500, 500}, QStringLiteral("x"), {}));
    }
}

/// As the tool of the toolbar does.
void Transpose(benchmark::State& state)
{
    ShownSchedule shown(1, ScheduleDocument({static_cast<int>(state.range(0)), static_cast<int>(state.range(1))}));
    for (auto _ : state)
        shown.view.ab_ToolClick(QStringLiteral("btnTranspose"));
}

void LoadPlainDocument(benchmark::State& state)
{
    LoadText(state, ScheduleDocument({1000, 1000}));
}

/// Ticks all tags through the grid's menu, then collects them.
void TickAndCollect(benchmark::State& state)
{
    ShownSchedule shown(2, SelectionDocument(static_cast<int>(state.range(0))));
    shown.view.ab_ToolClick(QStringLiteral("btnTranspose"));
    auto* grid = shown.view.findChild<QWidget*>(QStringLiteral("vaSpread1"));
    auto* proceed = shown.view.findChild<QPushButton*>(QStringLiteral("cmdContinue"));
    for (auto _ : state) {
        QMetaObject::invokeMethod(grid, "customContextMenuRequested", Q_ARG(QPoint, QPoint(200, 200)));
        auto* menu = shown.view.findChild<QMenu*>(QStringLiteral("mnuGrid"));
        menu->actions().at(2)->trigger(); // inverts
        delete menu;
        proceed->click();
    }
}

const bool kRegistered = [] {
    const auto add = [](const char* name, void (*run)(benchmark::State&), std::vector<std::int64_t> arguments = {}) {
        return benchmark::RegisterBenchmark(name, run)->Args(arguments)->Unit(benchmark::kMicrosecond);
    };
    add("edit a cell/own", EditCells, {60, 20}); // of 1,200 cells
    add("edit a cell/of 1,000,000 cells", EditCells, {1000, 1000});
    add("open for editing/own", OpenDocument);
    add("open for editing/loading it", LoadDocument);
    add("transpose/1000x1000/own", Transpose, {1000, 1000});
    add("transpose/1000x1000/loading it", LoadPlainDocument);
    add("transpose/growth/own", Transpose, {500, 500});
    add("transpose/growth/of four times as many cells", Transpose, {1000, 1000});
    add("tick and collect/own", TickAndCollect, {10'000});
    add("tick and collect/ten times as many tags", TickAndCollect, {100'000});
    return true;
}();

} // namespace

} // namespace schedules::bench
