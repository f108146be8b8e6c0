// Runs the benchmarks and prints, after the usual lines, every figure as a ratio to the component's own.

#include <QApplication>

#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>
#include <string>

namespace {

/// The console's report, and in the end a table: how many times the component's own
/// processor time each peer took (all of them run on one thread).
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            const std::string name = run.run_name.function_name;
            const std::size_t slash = name.rfind('/');
            m_times[name.substr(0, slash)][name.substr(slash + 1)] = run.GetAdjustedCPUTime();
        }
    }

    void Finalize() override
    {
        std::printf("\nTimes as multiples of the component's own:\n");
        for (const auto& [group, times] : m_times) {
            const auto own = times.find("own");
            if (own == times.end() || times.size() < 2)
                continue;
            for (const auto& [who, time] : times)
                std::printf("  %-28s %-28s %8.2f\n", group.c_str(), who.c_str(), time / own->second);
        }
    }

private:
    std::map<std::string, std::map<std::string, double>> m_times;
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
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
