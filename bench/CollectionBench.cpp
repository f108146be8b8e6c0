// What one operation on the groups of a template costs, in templates of 100, 1,000 and 10,000 groups: the same number
// of operations for each size, so the ratios say how the cost of one grows. "own" is the smallest size.

#include "Quiet.h"
#include "model/CGroups.h"

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <memory>
#include <string>
#include <vector>

namespace schedules::bench {

namespace {

constexpr int kOperations = 10'000;

QString NameOf(int number)
{
    return QStringLiteral("Group %1").arg(number);
}

/// A template's groups, and their names.
class Filled
{
public:
    explicit Filled(int size) : m_size(size), m_groups(std::make_unique<CGroups>(m_quiet)) { Fill(); }

    int Size() const { return m_size; }
    CGroups& Groups() { return *m_groups; }
    const QString& Name(int index) const { return m_names[static_cast<std::size_t>(index)]; }

private:
    void Fill()
    {
        for (int number = 1; number <= m_size; ++number) {
            m_names.push_back(NameOf(number));
            m_groups->AddNew(m_names.back());
        }
    }

    Quiet m_quiet;
    int m_size;
    std::unique_ptr<CGroups> m_groups;
    std::vector<QString> m_names;
};

void Add(benchmark::State& state, int size)
{
    Quiet quiet;
    const Filled filled(size);
    for (auto _ : state) {
        for (int repeated = 0; repeated < kOperations / size; ++repeated) {
            CGroups groups(quiet);
            for (int index = 0; index < size; ++index)
                groups.AddNew(filled.Name(index));
        }
    }
}

/// Calls `operation` for every group, as often as it takes.
template <class Operation>
void ForEach(benchmark::State& state, int size, Operation&& operation)
{
    Filled filled(size);
    for (auto _ : state) {
        for (int count = 0; count < kOperations; ++count)
            operation(filled, count % size);
    }
}

void FindByName(benchmark::State& state, int size)
{
    ForEach(state, size,
            [](Filled& filled, int index) { benchmark::DoNotOptimize(filled.Groups().Item(filled.Name(index))); });
}

void FindById(benchmark::State& state, int size)
{
    ForEach(state, size,
            [](Filled& filled, int index) { benchmark::DoNotOptimize(filled.Groups().ItemByGroupID(index + 1)); });
}

void FindByPosition(benchmark::State& state, int size)
{
    ForEach(state, size, [](Filled& filled, int index) {
        benchmark::DoNotOptimize(filled.Groups().Item(Position::OfIndex(static_cast<std::size_t>(index))));
    });
}

void FindPosition(benchmark::State& state, int size)
{
    ForEach(state, size,
            [](Filled& filled, int index) { benchmark::DoNotOptimize(filled.Groups().GetGroupPosition(index + 1)); });
}

void MoveToTheFront(benchmark::State& state, int size)
{
    ForEach(state, size, [](Filled& filled, int index) {
        auto group = filled.Groups().Item(filled.Name(index));
        filled.Groups().Remove(filled.Name(index));
        filled.Groups().Add(group, Position(1));
    });
}

void Register(const std::string& name, void (*run)(benchmark::State&, int))
{
    for (const int size : {100, 1'000, 10'000}) {
        const std::string who = size == 100 ? "own" : "of " + std::to_string(size);
        std::string path = "groups/";
        path.append(name).append("/").append(who);
        benchmark::RegisterBenchmark(path.c_str(), run, size)->Unit(benchmark::kMillisecond);
    }
}

const bool kRegistered = [] {
    Register("add", Add);
    Register("find by name", FindByName);
    Register("find by ID", FindById);
    Register("find by position", FindByPosition);
    Register("position of an ID", FindPosition);
    Register("move to the front", MoveToTheFront);
    return true;
}();

} // namespace

} // namespace schedules::bench
