// From template and values into the view, through the user's edits, and back to what is to be stored.

#include "Drawings.h"
#include "Pumps.h"
#include "ShownView.h"
#include "host/schedule/EditedCells.h"

namespace schedules::host::testing {

namespace {

TemplateLayout Layout(bool tagsAsRows, const char* flowUnit, const char* temperatureUnit)
{
    return {.tagsAsRows = tagsAsRows,
            .groups = {Group("DESIGN", {Shown("Service"), Shown("Flow", flowUnit, "#,##0.0")}),
                       Group("MOTOR", {Shown("Running"), Shown("Temperature", temperatureUnit, "0")})}};
}

std::string SavedEdits(ShownView& view)
{
    view.Trigger("btnSaveTag");
    return Drawn(EditedCells(view.Sent("UpdateTagScheduleData", "ScheduleXml"), Pumps().items));
}

} // namespace

TEST(ScheduleRoundTrip, EditsComeBackInTheUnitsOfTheItems)
{
    ShownView view(kScheduleView, ScheduleXml(Layout(false, "m³/h", "°C"), Pumps()));
    view.Edit(1, 3, "1,412.5");
    view.Edit(2, 6, "55");
    EXPECT_EQ(SavedEdits(view), "P-101A PUMPS/Design/Flow = 1412.5 (3)\n"
                                "P-101B PUMPS/Design/Temperature = 55 (1)");
}

TEST(ScheduleRoundTrip, InOtherUnitsToo)
{
    ShownView view(kScheduleView, ScheduleXml(Layout(false, "gpm", "°F"), Pumps()));
    view.Edit(2, 3, "1,814.0");
    view.Edit(1, 6, "212");
    EXPECT_EQ(SavedEdits(view), "P-101B PUMPS/Design/Flow = 412.00 (12)\n"
                                "P-101A PUMPS/Design/Temperature = 100.0 (1)");
}

TEST(ScheduleRoundTrip, WithTagsAsRows)
{
    ShownView view(kScheduleView, ScheduleXml(Layout(true, "gpm", "°C"), Pumps()));
    view.Edit(3, 1, "1,814");
    view.Edit(6, 2, "-41");
    EXPECT_EQ(SavedEdits(view), "P-101A PUMPS/Design/Flow = 412.0 (3)\n"
                                "P-101B PUMPS/Design/Temperature = -41 (1)");
}

TEST(ScheduleRoundTrip, AfterTranspose)
{
    for (const bool tagsAsRows : {false, true}) {
        ShownView view(kScheduleView, ScheduleXml(Layout(tagsAsRows, "m³/h", "°C"), Pumps()));
        view.Trigger("btnTranspose");
        if (tagsAsRows)
            view.Edit(1, 3, "12");
        else
            view.Edit(3, 1, "12");
        EXPECT_EQ(SavedEdits(view), "P-101A PUMPS/Design/Flow = 12 (3)") << tagsAsRows;
    }
}

TEST(ScheduleRoundTrip, CheckBoxesComeBack)
{
    ShownView view(kScheduleView, ScheduleXml(Layout(false, "", ""), Pumps()));
    view.Tick(1, 5);
    view.Tick(2, 5);
    EXPECT_EQ(SavedEdits(view), "P-101A PUMPS/Design/Running = 0 (2)\n"
                                "P-101B PUMPS/Design/Running = 1 (0)");
}

TEST(ScheduleRoundTrip, MarksPersistFromSaveToSave)
{
    ShownView view(kScheduleView, ScheduleXml(Layout(false, "", ""), Pumps()));
    view.Edit(1, 3, "1");
    EXPECT_EQ(SavedEdits(view), "P-101A PUMPS/Design/Flow = 1 (3)");
    view.Edit(1, 6, "2");
    EXPECT_EQ(SavedEdits(view), "P-101A PUMPS/Design/Flow = 1 (3)\n"
                                "P-101A PUMPS/Design/Temperature = 2 (1)");
}

TEST(ScheduleRoundTrip, WhatMayNotBeEditedStaysAsItIs)
{
    TemplateLayout fixed = Layout(false, "", "");
    fixed.editable = false;
    ShownView view(kScheduleView, ScheduleXml(fixed, Pumps()));
    view.Tick(1, 5);
    view.Trigger("btnSaveTag");
    EXPECT_FALSE(view.host.Names().contains("UpdateTagScheduleData"));
}

} // namespace schedules::host::testing
