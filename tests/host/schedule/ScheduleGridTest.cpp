// The tables of schedules, as the component's view shows them.

#include "Pumps.h"
#include "ShownView.h"
#include "support/SheetDrawing.h"

#include <QDir>
#include <QFile>

#include <algorithm>

namespace schedules::host::testing {

using schedules::testing::Drawn;
using schedules::testing::DrawnBold;
using schedules::testing::DrawnColors;
using schedules::testing::DrawnHidden;
using schedules::testing::DrawnTypes;

namespace {

/// Two groups with headings in a color, the first one in bold.
TemplateLayout TwoGroups(bool tagsAsRows)
{
    GroupLayout design = Group("DESIGN", {Shown("Service"), Shown("Flow", "gpm", "#,##0.0")});
    design.color = "255";
    design.bold = true;
    GroupLayout motor = Group("MOTOR", {Shown("Running"), Shown("Temperature", "°F", "0")});
    motor.color = "16115410";
    return {.tagsAsRows = tagsAsRows, .groups = {design, motor}};
}

TemplateLayout Sample(const QString& fileName)
{
    QFile file(fileName);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(fileName);
    return ReadTemplateLayout(QString::fromUtf8(file.readAll()));
}

/// Two tags with the value 12.5 for each item that the template shows.
ScheduleContent ContentFor(const TemplateLayout& layout)
{
    ScheduleContent content{Pumps().tags, {}, {}};
    for (const QString& location : LocationsShown(layout)) {
        content.items.append({.location = location, .name = {}, .group = {}, .dataType = {}, .unit = {}});
        content.values.append({{"12.5", 1}, {"12.5", 1}});
    }
    return content;
}

/// How many headings and items of a template are shown.
int EntriesOf(const TemplateLayout& layout)
{
    int entries = 0;
    for (const GroupLayout& group : layout.groups) {
        const auto items = std::ranges::count_if(group.items, &ItemLayout::shown);
        if (group.shown && items > 0)
            entries += static_cast<int>(items) + (group.nameShown ? 1 : 0);
    }
    return entries;
}

} // namespace

TEST(ScheduleGrid, ShowsItemsInRowsBelowColoredHeadings)
{
    const ShownView view(kScheduleView, ScheduleXml(TwoGroups(false), Pumps()));
    EXPECT_EQ(Drawn(view.Grid()), "                 | P-101A         | P-101B\n"
                                  "DESIGN           |                |\n"
                                  "Service          | Crude & charge |\n"
                                  "Flow (gpm)       | 1,814.0        | about 400\n"
                                  "MOTOR            |                |\n"
                                  "Running          | 1              | 0\n"
                                  "Temperature (°F) | 98             | -40");
    EXPECT_EQ(DrawnTypes(view.Grid()), "...\n...\n...\n...\n...\n.xx\n...");
    EXPECT_EQ(DrawnHidden(view.Grid()), "none");
    EXPECT_EQ(DrawnBold(view.Grid()), "...\n...\n...\n...\n...\n...\n...");
    EXPECT_EQ(DrawnColors(view.Grid()), "-          | -        | -\n"
                                        "2147483663 | 255      | 255\n"
                                        "2147483663 | -        | -\n"
                                        "2147483663 | -        | -\n"
                                        "2147483663 | 16115410 | 16115410\n"
                                        "2147483663 | -        | -\n"
                                        "2147483663 | -        | -");
    EXPECT_TRUE(view.user.boxes.empty());
}

TEST(ScheduleGrid, ShowsTagsInRowsWithHeadingsAsColumns)
{
    const ShownView view(kScheduleView, ScheduleXml(TwoGroups(true), Pumps()));
    EXPECT_EQ(Drawn(view.Grid()), "       | DESIGN | Service        | Flow (gpm) | MOTOR | Running | Temperature (°F)\n"
                                  "P-101A |        | Crude & charge | 1,814.0    |       | 1       | 98\n"
                                  "P-101B |        |                | about 400  |       | 0       | -40");
    EXPECT_EQ(DrawnTypes(view.Grid()), ".......\n.....x.\n.....x.");
    EXPECT_EQ(DrawnHidden(view.Grid()), "none");
    EXPECT_EQ(DrawnBold(view.Grid()), ".#.....\n.#.....\n.#.....") << "the heading's column alone";
    EXPECT_EQ(DrawnColors(view.Grid()), "-          | 255 | - | - | 16115410 | - | -\n"
                                        "2147483663 | 255 | - | - | 16115410 | - | -\n"
                                        "2147483663 | 255 | - | - | 16115410 | - | -");
}

TEST(ScheduleGrid, TransposedItHidesBoldHeadingsAndNothingElse)
{
    ShownView view(kScheduleView, ScheduleXml(TwoGroups(false), Pumps()));
    view.Trigger("btnTranspose");
    EXPECT_EQ(DrawnHidden(view.Grid()), "columns 1");
    EXPECT_EQ(Drawn(view.Grid()), "       | DESIGN | Service        | Flow (gpm) | MOTOR | Running | Temperature (°F)\n"
                                  "P-101A |        | Crude & charge | 1,814.0    |       | 1       | 98\n"
                                  "P-101B |        |                | about 400  |       | 0       | -40");
}

TEST(ScheduleGrid, TagsAsRowsTransposedHidesNothing)
{
    ShownView view(kScheduleView, ScheduleXml(TwoGroups(true), Pumps()));
    view.Trigger("btnTranspose");
    EXPECT_EQ(DrawnHidden(view.Grid()), "none");
}

TEST(ScheduleGrid, EscapedTextsComeThrough)
{
    ScheduleContent content = Pumps();
    content.values[0] = {{"<a> & \"b\" 'c'", 1}, {"Ü 中 \U0001F600", 1}};
    const ShownView view(kScheduleView, ScheduleXml({.groups = {Group("<G>", {Shown("Service")})}}, content));
    EXPECT_EQ(Drawn(view.Grid()), "        | P-101A        | P-101B\n"
                                  "<G>     |               |\n"
                                  "Service | <a> & \"b\" 'c' | Ü 中 \U0001F600");
}

TEST(ScheduleGrid, EverySampleTemplateMakesASchedule)
{
    const QDir samples(SCHEDULES_SOURCE_DIR "/samples/templates");
    const QFileInfoList files = samples.entryInfoList({"*.xml"});
    ASSERT_GT(files.size(), 20);
    for (const QFileInfo& file : files) {
        const TemplateLayout layout = Sample(file.filePath());
        const ShownView view(kScheduleView, ScheduleXml(layout, ContentFor(layout)));
        EXPECT_TRUE(view.user.boxes.empty()) << qPrintable(file.fileName());
        const int entries = layout.tagsAsRows ? view.Grid().ColumnCount() : view.Grid().RowCount();
        const int tags = layout.tagsAsRows ? view.Grid().RowCount() : view.Grid().ColumnCount();
        EXPECT_EQ(entries, EntriesOf(layout)) << qPrintable(file.fileName());
        EXPECT_EQ(tags, 2) << qPrintable(file.fileName());
    }
}

} // namespace schedules::host::testing
