// What moving one entry of a check list costs, repainting included, in lists of 100, 1,000 and 10,000 entries: the same
// number of moves for each size, so the ratios say how the cost of one grows. "own" is the smallest size.

#include "controls/lists/CheckList.h"

#include <QApplication>

#include <benchmark/benchmark.h>
#include <string>

namespace schedules::bench {

namespace {

constexpr int kMoves = 1'000;

void Fill(CheckList& list, int size)
{
    for (int number = 1; number <= size; ++number)
        list.AddEntry(QStringLiteral("Data item %1").arg(number), number, number % 2 == 0);
}

/// A list on screen whose middle entry is selected.
class Shown
{
public:
    explicit Shown(int size) : m_middle(size / 2)
    {
        Fill(m_list, size);
        m_list.resize(240, 320);
        m_list.SetCurrentRow(m_middle);
        m_list.show();
        QApplication::processEvents();
    }

    /// There and back again, as the buttons do.
    void MoveDownAndUp()
    {
        Move(m_middle, m_middle + 1);
        Move(m_middle + 1, m_middle);
    }

    /// Over more than the list shows, as a drag may.
    void MoveFarAndBack()
    {
        constexpr int kFar = 40;
        Move(m_middle, m_middle + kFar);
        Move(m_middle + kFar, m_middle);
    }

private:
    void Move(int from, int to)
    {
        m_list.MoveEntry(from, to);
        QApplication::processEvents();
    }

    CheckList m_list;
    int m_middle;
};

template <void (Shown::*ThereAndBack)()>
void Move(benchmark::State& state, int size)
{
    Shown shown(size);
    for (auto _ : state) {
        for (int count = 0; count < kMoves; count += 2)
            (shown.*ThereAndBack)();
    }
}

void Register(const std::string& name, void (*run)(benchmark::State&, int))
{
    for (const int size : {100, 1'000, 10'000}) {
        const std::string who = size == 100 ? "own" : "of " + std::to_string(size);
        std::string path = "lists/";
        path.append(name).append("/").append(who);
        benchmark::RegisterBenchmark(path.c_str(), run, size)->Unit(benchmark::kMillisecond);
    }
}

const bool kRegistered = [] {
    Register("move", Move<&Shown::MoveDownAndUp>);
    Register("move far", Move<&Shown::MoveFarAndBack>);
    return true;
}();

} // namespace

} // namespace schedules::bench
