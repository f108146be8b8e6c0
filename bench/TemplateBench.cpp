// Reading and writing a folder of templates, against libxml2 parsing the same files into trees and writing these.

#include "Quiet.h"
#include "TemplateFolder.h"
#include "model/CTemplates.h"

#include <benchmark/benchmark.h>
#include <libxml/parser.h>
#include <memory>
#include <vector>

namespace schedules::bench {

namespace {

using Tree = std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)>;

const TemplateFolder& TheFolder()
{
    static const TemplateFolder folder({1'000, 10, 20});
    return folder;
}

Tree Parsed(const QByteArray& fileName)
{
    return {xmlReadFile(fileName.constData(), nullptr, XML_PARSE_NONET), xmlFreeDoc};
}

std::vector<Tree> ParsedFolder()
{
    std::vector<Tree> trees;
    for (const QByteArray& fileName : TheFolder().FileNames())
        trees.push_back(Parsed(fileName));
    return trees;
}

void OwnRead(benchmark::State& state)
{
    Quiet quiet;
    for (auto _ : state) {
        CTemplates catalogue(quiet);
        if (!catalogue.CreateObjects(TheFolder().List(), TheFolder().Categories(), TheFolder().Path()))
            state.SkipWithError("the list was not read");
        state.PauseTiming(); // what reading costs; both leave their trees
        catalogue.Clear();
        state.ResumeTiming();
    }
}

void PeerRead(benchmark::State& state)
{
    for (auto _ : state) {
        auto trees = ParsedFolder();
        state.PauseTiming();
        trees.clear();
        state.ResumeTiming();
    }
}

void OwnWrite(benchmark::State& state)
{
    Quiet quiet;
    CTemplates catalogue(quiet);
    catalogue.CreateObjects(TheFolder().List(), TheFolder().Categories(), TheFolder().Path());
    for (auto _ : state) {
        for (const auto& each : catalogue.NewEnum())
            benchmark::DoNotOptimize(each->ObjectToXML());
    }
}

void PeerWrite(benchmark::State& state)
{
    const auto trees = ParsedFolder();
    for (auto _ : state) {
        for (const Tree& tree : trees) {
            xmlChar* text = nullptr;
            int size = 0;
            xmlDocDumpMemoryEnc(tree.get(), &text, &size, "UTF-8");
            benchmark::DoNotOptimize(text);
            xmlFree(text);
        }
    }
}

const bool kRegistered = [] {
    benchmark::RegisterBenchmark("templates/read 1000/own", OwnRead)->Unit(benchmark::kMillisecond)->MinTime(2);
    benchmark::RegisterBenchmark("templates/read 1000/libxml2 trees", PeerRead)
        ->Unit(benchmark::kMillisecond)
        ->MinTime(2);
    benchmark::RegisterBenchmark("templates/write 1000/own", OwnWrite)->Unit(benchmark::kMillisecond)->MinTime(2);
    benchmark::RegisterBenchmark("templates/write 1000/libxml2 trees", PeerWrite)
        ->Unit(benchmark::kMillisecond)
        ->MinTime(2);
    return true;
}();

} // namespace

} // namespace schedules::bench
