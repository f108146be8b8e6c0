// Writing a web page, against writing bytes that lie ready, as many and the same, in the same way: beside the file,
// then in its place.

#include "Sheets.h"
#include "common/FileReplacement.h"
#include "webpage/WebPage.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <string>

namespace schedules::bench {

namespace {

std::unique_ptr<Sheet> SheetOf(const benchmark::State& state)
{
    return ExportedSheet(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
}

void OwnPage(benchmark::State& state)
{
    const auto sheet = SheetOf(state);
    const QTemporaryDir folder;
    for (auto _ : state)
        WriteWebPage(*sheet, {}, folder.filePath(QStringLiteral("a.htm")));
}

void ReadyBytes(benchmark::State& state)
{
    const auto sheet = SheetOf(state);
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("a.htm"));
    WriteWebPage(*sheet, {}, name);
    QFile page(name);
    if (!page.open(QFile::ReadOnly))
        return state.SkipWithError("the page is not there");
    const QByteArray bytes = page.readAll();
    state.counters["bytes"] = static_cast<double>(bytes.size());
    for (auto _ : state)
        ReplaceFile(name, bytes);
}

void Register(int columns, int rows)
{
    const auto add = [&](const char* who, void (*run)(benchmark::State&)) {
        const std::string name = "page/" + std::to_string(rows) + "x" + std::to_string(columns) + "/" + who;
        benchmark::RegisterBenchmark(name.c_str(), run)->Args({columns, rows})->Unit(benchmark::kMillisecond);
    };
    add("own", OwnPage);
    add("writing ready bytes", ReadyBytes);
}

const bool kRegistered = [] {
    Register(15, 65'536);
    Register(250, 4'000);
    return true;
}();

} // namespace

} // namespace schedules::bench
