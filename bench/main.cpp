// Runs the benchmarks and prints, after the usual lines, every figure beside its peers and what is promised of it.

#include "FigureTable.h"

#include <QApplication>

#include <benchmark/benchmark.h>

namespace {

class TableReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (!run.error_occurred)
                m_table.Add(run);
        }
    }

    void Finalize() override { m_table.Print(); }

private:
    schedules::bench::FigureTable m_table;
};

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    TableReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
