// One frame of a large grid, scrolled somewhere else each time, against the toolkit's table view over the same cells;
// and what it costs to open many rows.

#include "Documents.h"
#include "Quiet.h"
#include "controls/grid/SpreadView.h"
#include "grid/CSchedule.h"

#include <QAbstractTableModel>
#include <QImage>
#include <QScrollBar>
#include <QTableView>

#include <benchmark/benchmark.h>
#include <numeric>
#include <random>

namespace schedules::bench {

namespace {

constexpr QSize kViewSize{1600, 900};

/// The cells of a sheet for the toolkit's views.
class SheetModel : public QAbstractTableModel
{
public:
    explicit SheetModel(const Sheet& sheet) : m_sheet(sheet) {}

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : m_sheet.RowCount(); }
    int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : m_sheet.ColumnCount();
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != Qt::DisplayRole)
            return {};
        return m_sheet.Text({Column(index.column() + 1), Row(index.row() + 1)});
    }

private:
    const Sheet& m_sheet;
};

/// A million cells, loaded once.
Sheet& LargeSheet()
{
    static const auto sheet = [] {
        static Quiet quiet;
        auto loaded = std::make_unique<Sheet>();
        CSchedule engine(quiet);
        engine.SetSched(loaded.get());
        engine.LoadScheduleData(ScheduleDocument({1000, 1000}));
        return loaded;
    }();
    return *sheet;
}

void PaintFrames(benchmark::State& state, QAbstractScrollArea& view)
{
    QImage image(kViewSize, QImage::Format_ARGB32_Premultiplied);
    std::minstd_rand random(1);
    const auto scroll = [&](QScrollBar& bar) { bar.setValue(static_cast<int>(random() % (bar.maximum() + 1u))); };
    view.resize(kViewSize);
    view.show();
    for (auto _ : state) {
        scroll(*view.verticalScrollBar());
        scroll(*view.horizontalScrollBar());
        view.render(&image);
    }
}

void OwnFrame(benchmark::State& state)
{
    SpreadView view;
    view.SetSheet(&LargeSheet());
    PaintFrames(state, view);
}

void TableViewFrame(benchmark::State& state)
{
    SheetModel model(LargeSheet());
    QTableView view;
    view.setModel(&model);
    view.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    view.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    PaintFrames(state, view);
}

constexpr int kManyRows = 1'000'000;

void OpenRows(benchmark::State& state)
{
    for (auto _ : state) {
        Axis rows(300);
        rows.SetCount(kManyRows);
        benchmark::DoNotOptimize(rows.Offset(kManyRows));
    }
}

void PrefixSum(benchmark::State& state)
{
    for (auto _ : state) {
        const std::vector<std::int64_t> heights(kManyRows, 300);
        std::vector<std::int64_t> offsets(kManyRows);
        std::exclusive_scan(heights.begin(), heights.end(), offsets.begin(), std::int64_t{0});
        benchmark::DoNotOptimize(offsets.data());
    }
}

const bool kRegistered = [] {
    benchmark::RegisterBenchmark("frame/1000x1000/own", OwnFrame)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("frame/1000x1000/QTableView", TableViewFrame)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("open/1000000 rows/own", OpenRows)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("open/1000000 rows/prefix sum", PrefixSum)->Unit(benchmark::kMillisecond);
    return true;
}();

} // namespace

} // namespace schedules::bench
