#pragma once

#include <benchmark/benchmark.h>
#include <string>
#include <vector>

namespace schedules::bench {

/// All figures of a run, each of the component's own beside its peers', as a table in Markdown.
///
/// A benchmark is named "GROUP/PEER", what is done and who does it; the component itself is the peer "own". Peers are
/// told as multiples of it. Times are processor times, since all work is done on one thread, but for peers that run as
/// programs of their own and tell theirs.
class FigureTable
{
public:
    void Add(const benchmark::BenchmarkReporter::Run& run);
    void Print() const;

private:
    struct Peer
    {
        std::string name;
        double seconds;
        benchmark::UserCounters counters;
    };
    struct Group
    {
        std::string name;
        std::vector<Peer> peers;
    };

    Group& GroupNamed(const std::string& name);
    static void PrintPeers(const Group& group);
    static void PrintCounters(const Group& group);

    std::vector<Group> m_groups;
};

} // namespace schedules::bench
