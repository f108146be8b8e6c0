#include "workbook/Palette.h"

#include "workbook/ReadBack.h"

#include <gtest/gtest.h>
#include <set>

using namespace schedules;
using namespace schedules::testing;

namespace {

/// The color that a workbook has at a number.
std::uint32_t ColorAt(const Palette& palette, Word number)
{
    MemoryStream stream;
    RecordWriter records(stream);
    palette.WriteTo(records);
    records.Flush();
    return stream.Records().at(0).At<DWord>(2u + 4u * (number - 8u));
}

} // namespace

TEST(Palette, ACustomaryColorHasItsCustomaryNumber)
{
    Palette palette;
    EXPECT_EQ(palette.NumberOf(0x000000), 8);
    EXPECT_EQ(palette.NumberOf(0xFFFFFF), 9);
    EXPECT_EQ(palette.NumberOf(0x0000FF), 10) << "red";
}

TEST(Palette, AnotherColorTakesAPlaceThatNobodyHasAskedFor)
{
    Palette palette;
    EXPECT_EQ(palette.NumberOf(0x333333), 63);
    const Word number = palette.NumberOf(0x123456);
    EXPECT_EQ(number, 62);
    EXPECT_EQ(ColorAt(palette, number), 0x123456u);
    EXPECT_EQ(palette.NumberOf(0x123456), number);
    EXPECT_EQ(ColorAt(palette, 63), 0x333333u);
}

TEST(Palette, BlackAndWhiteKeepTheirPlaces)
{
    Palette palette;
    for (std::uint32_t color = 0x101010; color < 0x101010 + 100; ++color)
        palette.NumberOf(color);
    EXPECT_EQ(ColorAt(palette, Palette::kBlack), 0x000000u);
    EXPECT_EQ(ColorAt(palette, Palette::kWhite), 0xFFFFFFu);
}

TEST(Palette, ColorsBeyondItsPlacesGetTheNearest)
{
    Palette palette;
    std::set<Word> numbers;
    for (std::uint32_t step = 1; step <= 54; ++step)
        numbers.insert(palette.NumberOf(step * 0x040404 + 1));
    EXPECT_EQ(numbers.size(), 54u);
    EXPECT_EQ(palette.NumberOf(10 * 0x040404 + 2), palette.NumberOf(10 * 0x040404 + 1));
}
