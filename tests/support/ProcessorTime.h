#pragma once

#include <algorithm>
#include <ctime>
#include <limits>

namespace schedules::testing {

/// The processor time that a call takes, in seconds. What other programs do meanwhile does not count.
template <class Call>
double ProcessorTime(const Call& call)
{
    const std::clock_t start = std::clock();
    call();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

/// Lies between 4, where the time grows with the input, and 16, where it grows with its square: large inputs cost
/// somewhat more each, since they leave the caches.
constexpr double kLinear = 8;

/// How many times the processor time of `call(size)` `call(4 * size)` takes. The least times of some rounds are
/// compared, since a busy machine only adds to them; more rounds follow while the result is not that of linear time.
template <class Call>
double CostOfFourTimes(int size, const Call& call)
{
    constexpr int kLeastRounds = 2;
    constexpr int kMostRounds = 8;
    double once = std::numeric_limits<double>::max();
    double fourTimes = once;
    for (int round = 0; round < kMostRounds && (round < kLeastRounds || fourTimes >= kLinear * once); ++round) {
        once = std::min(once, ProcessorTime([&] { call(size); }));
        fourTimes = std::min(fourTimes, ProcessorTime([&] { call(4 * size); }));
    }
    return fourTimes / once;
}

} // namespace schedules::testing
