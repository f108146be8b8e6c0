// The loader of tables of tags: it shows what the loader of schedules shows, but for the check boxes, and what is
// picked is a document with as many tags as are counted.

#include "common/XmlDocument.h"
#include "fuzz/Input.h"
#include "grid/CSchedule.h"
#include "support/ScriptedUserInterface.h"
#include "support/SheetDrawing.h"
#include "tools/schedule/picking/TagTable.h"

#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

struct Engine
{
    Engine()
    {
        schedule.SetSchedOrientation(1);
        schedule.SetSched(&sheet);
    }

    ScriptedUserInterface user;
    Sheet sheet;
    CSchedule schedule{user};
};

void ExpectPicked(const SelectedTags& picked)
{
    const XmlDocument document = XmlDocument::FromText(picked.xml);
    EXPECT_TRUE(document);
    EXPECT_EQ(std::ssize(document.Select(QStringLiteral("/Tags/Tag/Id"))), picked.count);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Input input(data, size);
    const bool ticked = (input.choice & 1) != 0;
    Engine tags;
    Engine plain;
    const bool loaded = tags.schedule.LoadSelectionData(input.Text(), ticked);
    EXPECT_EQ(loaded, plain.schedule.LoadScheduleData(input.Text()));
    EXPECT_EQ(tags.user.boxes.size(), loaded ? 0U : 1U);
    for (const Cell cell : plain.sheet.CellsOfType(CellType::CheckBox))
        plain.sheet.SetText(cell, StateText(ticked));
    EXPECT_EQ(Drawn(tags.sheet), Drawn(plain.sheet));
    EXPECT_EQ(DrawnTypes(tags.sheet), DrawnTypes(plain.sheet));
    ExpectPicked(TickedTags(tags.sheet, Tags::AreColumns));
    ExpectPicked(TickedTags(tags.sheet, Tags::AreRows));
    return 0;
}
