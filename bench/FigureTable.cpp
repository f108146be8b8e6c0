#include "FigureTable.h"

#include "Promises.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace schedules::bench {

namespace {

/// A time in the unit that leaves one to three digits before the point.
std::string Time(double seconds)
{
    struct Unit
    {
        double seconds;
        const char* name;
    };
    constexpr std::array kUnits{Unit{1, "s"}, Unit{1e-3, "ms"}, Unit{1e-6, "µs"}, Unit{1e-9, "ns"}};
    const auto fits = [seconds](const Unit& unit) { return seconds >= unit.seconds; };
    const auto found = std::ranges::find_if(kUnits, fits);
    const Unit& unit = found == kUnits.end() ? kUnits.back() : *found;
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.3g %s", seconds / unit.seconds, unit.name);
    return text.data();
}

std::string Number(double number)
{
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), number < 10 ? "%.2f" : number < 1000 ? "%.1f" : "%.0f", number);
    return text.data();
}

std::string PromiseText(const std::string& group, const std::string& peer, double figure)
{
    const auto promise = PromiseOf(group, peer);
    if (!promise)
        return {};
    return promise->Text() + (promise->HeldBy(figure) ? ", held" : ", **missed**");
}

} // namespace

FigureTable::Group& FigureTable::GroupNamed(const std::string& name)
{
    const auto found = std::ranges::find(m_groups, name, &Group::name);
    return found != m_groups.end() ? *found : m_groups.emplace_back(Group{name, {}});
}

void FigureTable::Add(const benchmark::BenchmarkReporter::Run& run)
{
    const std::string& name = run.run_name.function_name;
    const std::size_t slash = name.rfind('/');
    const bool tellsItsTime = run.run_name.time_type == "manual_time";
    const double time = tellsItsTime ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime();
    const double seconds = time / benchmark::GetTimeUnitMultiplier(run.time_unit);
    GroupNamed(name.substr(0, slash)).peers.push_back({name.substr(slash + 1), seconds, run.counters});
}

void FigureTable::PrintPeers(const Group& group)
{
    const auto own = std::ranges::find(group.peers, "own", &Peer::name);
    if (own == group.peers.end())
        return;
    for (const Peer& peer : group.peers) {
        if (&peer == &*own)
            continue;
        const double times = peer.seconds / own->seconds;
        std::printf("| %s | %s | %s | %s | %s | %s |\n", group.name.c_str(), Time(own->seconds).c_str(),
                    peer.name.c_str(), Time(peer.seconds).c_str(), Number(times).c_str(),
                    PromiseText(group.name, peer.name, times).c_str());
    }
}

void FigureTable::PrintCounters(const Group& group)
{
    for (const Peer& peer : group.peers) {
        for (const auto& [name, counter] : peer.counters) {
            const std::string promise = PromiseText(group.name, name, counter.value);
            if (!promise.empty())
                std::printf("| %s | %s | %s | %s |\n", group.name.c_str(), name.c_str(), Number(counter.value).c_str(),
                            promise.c_str());
        }
    }
}

void FigureTable::Print() const
{
    std::printf("\n| what | the component | beside it | takes | times | promised |\n|---|---|---|---|---|---|\n");
    std::ranges::for_each(m_groups, PrintPeers);
    std::printf("\n| what | counted | figure | promised |\n|---|---|---|---|\n");
    std::ranges::for_each(m_groups, PrintCounters);
}

} // namespace schedules::bench
