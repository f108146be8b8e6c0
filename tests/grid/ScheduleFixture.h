#pragma once

#include "grid/CSchedule.h"
#include "support/ScriptedUserInterface.h"
#include "support/SheetDrawing.h"
#include "support/TableXml.h"

#include <gtest/gtest.h>

namespace schedules::testing {

/// An engine with a sheet attached, before a user who presses OK.
struct ScheduleFixture : ::testing::Test
{
    ScheduleFixture() { engine.SetSched(&sheet); }

    /// Loads a drawn table as a schedule and draws the texts of the sheet.
    std::string Loaded(const char* drawing)
    {
        EXPECT_TRUE(engine.LoadScheduleData(Table(drawing)));
        return Drawn(sheet);
    }

    /// The numbers of the messages that the user has seen, blanks between.
    std::string Messages() const
    {
        std::string numbers;
        for (const MessageBox& box : user.boxes)
            numbers += (numbers.empty() ? "" : " ") + std::to_string(box.number);
        return numbers;
    }

    /// The titles of the boxes, which are the sources of reported errors.
    std::string Sources() const
    {
        std::string sources;
        for (const MessageBox& box : user.boxes)
            sources += (sources.empty() ? "" : " ") + box.title.toStdString();
        return sources;
    }

    ScriptedUserInterface user;
    Sheet sheet;
    CSchedule engine{user};
};

} // namespace schedules::testing
