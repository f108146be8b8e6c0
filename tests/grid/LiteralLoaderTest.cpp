// The one-pass loader against the literal one, on documents written at random.

#include "grid/LoadedBothWays.h"
#include "grid/RandomTables.h"

#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

constexpr int kDocuments = 1500;
constexpr int kLooked = 40; ///< no random document has as many rows, columns or header cells

struct AgainstLiteral : ::testing::TestWithParam<LoadSetting>
{
};

std::string NameOf(const ::testing::TestParamInfo<LoadSetting>& tested)
{
    const int orientation = tested.param.orientation;
    return (orientation < 0 ? "Minus1" : std::to_string(orientation)) + (tested.param.transpose ? "Transposed" : "");
}

} // namespace

TEST_P(AgainstLiteral, TheLoadersAgreeOnRandomDocuments)
{
    RandomTables tables(static_cast<unsigned>(2 * GetParam().orientation + GetParam().transpose) + 1);
    int loaded = 0;
    for (int count = 0; count < kDocuments; ++count) {
        const QString xml = tables.Next();
        const std::string expected = LoadedLiterally(xml, GetParam(), kLooked);
        ASSERT_EQ(LoadedFast(xml, GetParam(), kLooked), expected) << "document " << count << ":\n" << xml.toStdString();
        loaded += expected.starts_with('1') ? 1 : 0;
    }
    EXPECT_GT(loaded, kDocuments / 2);
    EXPECT_LT(loaded, kDocuments);
}

INSTANTIATE_TEST_SUITE_P(Orientations, AgainstLiteral,
                         ::testing::Values(LoadSetting{0, false}, LoadSetting{0, true}, LoadSetting{1, false},
                                           LoadSetting{1, true}, LoadSetting{2, false}, LoadSetting{-1, true}),
                         NameOf);
