// What must not bring the host down: a user interface that fails, and tables inside of tables without end.

#include "ScheduleFixture.h"

#include <stdexcept>

using namespace schedules;
using namespace schedules::testing;

namespace {

/// The pointer cannot be set back to the default.
struct FailingPointer : ScriptedUserInterface
{
    void SetPointer(Pointer pointer) override
    {
        if (pointer == Pointer::Default)
            throw std::runtime_error("no pointer");
    }
};

/// A row whose first cell holds a table of many rows that set something, and which has many user-defined cells.
QString RowAroundTable(int rows, int cells)
{
    return QStringLiteral("<TABLE><TR><TH><TABLE>") + QStringLiteral("<TR><TH hidden='-1'/></TR>").repeated(rows) +
           QStringLiteral("</TABLE></TH>") + QStringLiteral("<TD UserDefined='-1'/>").repeated(cells) +
           QStringLiteral("</TR></TABLE>");
}

} // namespace

TEST(CScheduleFailures, APointerThatCannotBeSetBackDoesNotStopALoad)
{
    FailingPointer user;
    Sheet sheet;
    CSchedule engine(user);
    engine.SetSched(&sheet);
    EXPECT_TRUE(engine.LoadScheduleData(Table("Tag | Flow \n P-1 | 12")));
}

TEST(CScheduleFailures, AnOuterRowIsFoundOnceHoweverManyCellsItHas)
{
    ParsedTable parsed = ParseScheduleTable(RowAroundTable(50'000, 50'000));
    ASSERT_EQ(parsed.fault, TableFault::None);
    ASSERT_EQ(parsed.table.rows.size(), 50'001u);
    EXPECT_TRUE(parsed.table.rows.front().userDefined);
    EXPECT_FALSE(parsed.table.rows.back().userDefined);
}
