// The loader of schedules: it refuses and places what the literal one refuses and places.

#include "fuzz/Input.h"
#include "grid/LoadedBothWays.h"

#include <array>
#include <gtest/gtest.h>

using namespace schedules::testing;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr int kLooked = 12;
    constexpr std::array kOrientations{1, 2, 0, -1};
    const Input input(data, size);
    const LoadSetting setting{kOrientations[input.choice % 4], (input.choice & 4) != 0};
    EXPECT_EQ(LoadedFast(input.Text(), setting, kLooked), LoadedLiterally(input.Text(), setting, kLooked));
    return 0;
}
