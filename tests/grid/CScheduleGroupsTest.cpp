// Which rows of a table head a group.

#include "ScheduleFixture.h"

#include <gmock/gmock.h>

using namespace schedules;
using namespace schedules::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr const char* kGrouped = "Tag | Flow \n DESIGN {fontBold=-1} | \n P-1 | 12 \n MOTOR {fontBold=-1} | \n P-2 | 8";
constexpr const char* kNotATable = "<SCHEDULE><TABLE>";

struct CScheduleGroups : ScheduleFixture
{
    void LoadGrouped() { ASSERT_TRUE(engine.LoadScheduleData(Table(kGrouped))); }
};

} // namespace

TEST_F(CScheduleGroups, NoTableHasNone)
{
    EXPECT_THAT(engine.GroupHeadings(), IsEmpty());
}

TEST_F(CScheduleGroups, AreHeadedByTheRowsWhoseFirstHeaderIsBold)
{
    LoadGrouped();
    EXPECT_THAT(engine.GroupHeadings(), ElementsAre(1, 3));
}

TEST_F(CScheduleGroups, OtherBoldCellsHeadNone)
{
    ASSERT_TRUE(engine.LoadScheduleData(Table("Tag | Flow {fontBold=-1} \n"
                                              "P-1 | 12 {fontBold=-1} \n"
                                              "P-2 | 8 {TH fontBold=-1}")));
    EXPECT_THAT(engine.GroupHeadings(), IsEmpty());
}

TEST_F(CScheduleGroups, TheFirstHeaderNeedNotBeTheFirstCell)
{
    ASSERT_TRUE(engine.LoadScheduleData(Table("Tag | Flow \n P-1 {TD} | DESIGN {TH fontBold=-1}")));
    EXPECT_THAT(engine.GroupHeadings(), ElementsAre(1));
}

TEST_F(CScheduleGroups, TheHeaderRowHeadsNone)
{
    ASSERT_TRUE(engine.LoadScheduleData(Table("Tag {fontBold=-1} | Flow \n P-1 | 12")));
    EXPECT_THAT(engine.GroupHeadings(), IsEmpty());
}

TEST_F(CScheduleGroups, HiddenAndUserDefinedRowsHeadGroupsToo)
{
    ASSERT_TRUE(engine.LoadScheduleData(Table("Tag | Flow \n"
                                              "DESIGN {fontBold=-1 hidden=-1} | \n"
                                              "MOTOR {fontBold=-1} | 8 {UserDefined=-1}")));
    EXPECT_THAT(engine.GroupHeadings(), ElementsAre(1, 2));
}

TEST_F(CScheduleGroups, AreRowsOfTheTableInEachLayout)
{
    for (const int orientation : {0, 1, 2}) {
        for (const bool transposed : {false, true}) {
            engine.SetSchedOrientation(orientation);
            engine.SetTransposeData(transposed);
            LoadGrouped();
            EXPECT_THAT(engine.GroupHeadings(), ElementsAre(1, 3)) << orientation << transposed;
        }
    }
}

TEST_F(CScheduleGroups, AreThoseOfTheLastTable)
{
    LoadGrouped();
    ASSERT_TRUE(engine.LoadScheduleData(Table("Tag | Flow \n P-1 | 12 \n DESIGN {fontBold=-1} |")));
    EXPECT_THAT(engine.GroupHeadings(), ElementsAre(2));
    ASSERT_TRUE(engine.LoadScheduleData(Table("Tag | Flow \n P-1 | 12")));
    EXPECT_THAT(engine.GroupHeadings(), IsEmpty());
}

TEST_F(CScheduleGroups, ASelectionTableHasThemToo)
{
    ASSERT_TRUE(engine.LoadSelectionData(Table(kGrouped), false));
    EXPECT_THAT(engine.GroupHeadings(), ElementsAre(1, 3));
}

TEST_F(CScheduleGroups, InitialisingForgetsThem)
{
    LoadGrouped();
    engine.SchedInitialize();
    EXPECT_THAT(engine.GroupHeadings(), IsEmpty());
}

TEST_F(CScheduleGroups, AFailedLoadForgetsThemWithTheSheet)
{
    LoadGrouped();
    EXPECT_FALSE(engine.LoadScheduleData(kNotATable));
    EXPECT_THAT(engine.GroupHeadings(), IsEmpty());
}

TEST_F(CScheduleGroups, AFailedSelectionKeepsThemWithTheSheet)
{
    LoadGrouped();
    EXPECT_FALSE(engine.LoadSelectionData(kNotATable, false));
    EXPECT_THAT(engine.GroupHeadings(), ElementsAre(1, 3));
}

TEST_F(CScheduleGroups, ShowingUnitsForgetsThemWithTheSheet)
{
    LoadGrouped();
    engine.SchedShowUnits();
    EXPECT_THAT(engine.GroupHeadings(), IsEmpty());
}

TEST_F(CScheduleGroups, AnotherSheetHasNone)
{
    LoadGrouped();
    Sheet other;
    engine.SetSched(&other);
    EXPECT_THAT(engine.GroupHeadings(), IsEmpty());
}
