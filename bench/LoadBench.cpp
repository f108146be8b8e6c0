// Loading a schedule, from the text that the host hands over to sized columns, against three other ways of treating the
// same text: parsing alone, reading alone, and filling a table widget.

#include "Documents.h"
#include "Quiet.h"
#include "grid/CSchedule.h"

#include <QTableWidget>
#include <QXmlStreamReader>

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <pugixml.hpp>

namespace schedules::bench {

namespace {

TableSize SizeOf(const benchmark::State& state)
{
    return {static_cast<int>(state.range(0)), static_cast<int>(state.range(1))};
}

double CellsOf(const Sheet& sheet)
{
    return static_cast<double>(sheet.ColumnCount() + 1) * (sheet.RowCount() + 1);
}

void OwnLoad(benchmark::State& state)
{
    const QString xml = ScheduleDocument(SizeOf(state));
    Quiet quiet;
    for (auto _ : state) {
        Sheet sheet;
        CSchedule engine(quiet);
        engine.SetSched(&sheet);
        benchmark::DoNotOptimize(engine.LoadScheduleData(xml));
    }
}

void OwnMemory(benchmark::State& state)
{
    const QString xml = ScheduleDocument(SizeOf(state));
    const auto textBytes = static_cast<double>(xml.toUtf8().size());
    Quiet quiet;
    for (auto _ : state) {
        const auto before = mallinfo2();
        Sheet sheet;
        CSchedule engine(quiet);
        engine.SetSched(&sheet);
        engine.LoadScheduleData(xml);
        const auto after = mallinfo2();
        const auto used =
            static_cast<double>(after.uordblks + after.hblkhd) - static_cast<double>(before.uordblks + before.hblkhd);
        state.counters["bytes_per_cell"] = used / CellsOf(sheet);
        state.counters["text_bytes_per_cell"] = textBytes / CellsOf(sheet);
    }
}

void PugixmlParse(benchmark::State& state)
{
    const QString xml = ScheduleDocument(SizeOf(state));
    for (auto _ : state) {
        pugi::xml_document document;
        const auto bytes = static_cast<std::size_t>(xml.size()) * sizeof(QChar);
        benchmark::DoNotOptimize(
            document.load_buffer(xml.constData(), bytes, pugi::parse_default, pugi::encoding_utf16_le));
    }
}

void PugixmlParseUtf8(benchmark::State& state)
{
    const QByteArray xml = ScheduleDocument(SizeOf(state)).toUtf8();
    for (auto _ : state) {
        pugi::xml_document document;
        benchmark::DoNotOptimize(document.load_buffer(xml.constData(), static_cast<std::size_t>(xml.size())));
    }
}

void StreamReaderLoop(benchmark::State& state)
{
    const QString xml = ScheduleDocument(SizeOf(state));
    for (auto _ : state) {
        QXmlStreamReader reader(xml);
        while (!reader.atEnd())
            benchmark::DoNotOptimize(reader.readNext());
    }
}

void TableWidgetLoad(benchmark::State& state)
{
    const TableSize size = SizeOf(state);
    const QString xml = ScheduleDocument(size);
    for (auto _ : state) {
        QTableWidget table(size.rows + 1, size.columns + 1);
        QXmlStreamReader reader(xml);
        int row = -1;
        int column = 0;
        while (!reader.atEnd()) {
            if (reader.readNext() != QXmlStreamReader::StartElement)
                continue;
            if (reader.name() == QLatin1String("TR")) {
                ++row;
                column = 0;
            } else if (reader.name() == QLatin1String("TH") || reader.name() == QLatin1String("TD")) {
                table.setItem(row, column++, new QTableWidgetItem(reader.readElementText()));
            }
        }
        table.resizeColumnsToContents();
    }
}

void Register(const char* size, TableSize table)
{
    const auto add = [&](const char* what, const char* who, void (*run)(benchmark::State&)) {
        const std::string name = std::string(what) + "/" + size + "/" + who;
        return benchmark::RegisterBenchmark(name.c_str(), run)
            ->Args({table.rows, table.columns})
            ->Unit(benchmark::kMillisecond);
    };
    add("load", "own", OwnLoad);
    add("load", "pugixml parse", PugixmlParse);
    add("load", "pugixml parse of UTF-8", PugixmlParseUtf8);
    add("load", "QXmlStreamReader loop", StreamReaderLoop);
    add("load", "QTableWidget", TableWidgetLoad);
    add("memory", "own", OwnMemory)->Iterations(1);
}

void RegisterGrowth(const char* who, TableSize table)
{
    const std::string name = std::string("load/growth/") + who;
    benchmark::RegisterBenchmark(name.c_str(), OwnLoad)
        ->Args({table.rows, table.columns})
        ->Unit(benchmark::kMillisecond);
}

const bool kRegistered = [] {
    Register("60x20", {60, 20});
    Register("500x500", {500, 500});
    Register("1000x1000", {1000, 1000});
    RegisterGrowth("own", {500, 500});
    RegisterGrowth("of four times as many cells", {1000, 1000});
    return true;
}();

} // namespace

} // namespace schedules::bench
