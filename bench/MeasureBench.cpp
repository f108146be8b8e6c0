// Measuring the columns of a table, against asking the font for the width of every text.

#include "Documents.h"
#include "Quiet.h"
#include "grid/CSchedule.h"
#include "spread/TextMeasure.h"

#include <algorithm>
#include <benchmark/benchmark.h>

namespace schedules::bench {

namespace {

/// A loaded sheet of 500 by 500 cells.
struct LoadedSheet
{
    LoadedSheet()
    {
        CSchedule engine(quiet);
        engine.SetSched(&sheet);
        engine.LoadScheduleData(ScheduleDocument({500, 500}));
    }

    Quiet quiet;
    Sheet sheet;
};

template <class Measure>
int SumOfWidths(const Sheet& sheet, Measure&& widest)
{
    int sum = 0;
    for (Column column{0}; column.Value() <= sheet.ColumnCount(); ++column)
        sum += widest(column);
    return sum;
}

void OwnWidths(benchmark::State& state)
{
    LoadedSheet loaded;
    const CellRange corner = CellRange::Of(Column(0), Row(0));
    for (auto _ : state) {
        loaded.sheet.SetBold(corner, false); // what was measured before is void now
        benchmark::DoNotOptimize(
            SumOfWidths(loaded.sheet, [&](Column column) { return loaded.sheet.WidestText(column); }));
    }
}

void FontWidths(benchmark::State& state)
{
    LoadedSheet loaded;
    const TextMeasure measure(loaded.sheet.Font());
    for (auto _ : state) {
        benchmark::DoNotOptimize(SumOfWidths(loaded.sheet, [&](Column column) {
            int widest = 0;
            for (Row row{0}; row.Value() <= loaded.sheet.RowCount(); ++row)
                widest = std::max(widest, measure.Exact(loaded.sheet.Utf8({column, row}), false));
            return widest;
        }));
    }
}

const bool kRegistered = [] {
    benchmark::RegisterBenchmark("measure/500x500/own", OwnWidths)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("measure/500x500/font metrics", FontWidths)->Unit(benchmark::kMillisecond);
    return true;
}();

} // namespace

} // namespace schedules::bench
