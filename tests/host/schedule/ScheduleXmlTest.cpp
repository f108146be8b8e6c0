// The tables of schedules, as text.

#include "Drawings.h"
#include "Pumps.h"
#include "host/schedule/ScheduleBuilder.h"

#include <gtest/gtest.h>

namespace schedules::host::testing {

namespace {

/// The table of the pumps with one item.
std::string RowsOf(const ItemLayout& item, const ScheduleContent& content = Pumps())
{
    return Rows(ScheduleXml({.groups = {{.caption = {}, .color = {}, .items = {item}}}}, content));
}

/// The row of an item with one value.
std::string RowOf(const ItemLayout& layout, const DataItem& item, const StoredValue& value, bool editable = true)
{
    const TemplateLayout one{.editable = editable, .groups = {{.caption = {}, .color = {}, .items = {layout}}}};
    const QString xml = ScheduleXml(one, {{{"P-1", "PUMPS"}}, {item}, {{value}}});
    return xml.mid(xml.lastIndexOf("<TR>")).toStdString();
}

/// What a value becomes in its cell.
std::string ShownAs(const char* stored, const char* unit, const char* unitShown, const char* format)
{
    const DataItem item{
        .location = "L", .name = {}, .group = {}, .dataType = "DOUBLE", .unit = QString::fromUtf8(unit)};
    const ItemLayout layout{
        .location = "L", .caption = {}, .unit = QString::fromUtf8(unitShown), .dataType = {}, .format = format};
    const std::string row = RowOf(layout, item, {stored, 0});
    const std::size_t start = row.rfind("-1\">") + 4;
    return row.substr(start, row.find("</TD>") - start);
}

} // namespace

TEST(ScheduleXml, HasARowForEachItemAndAColumnForEachTag)
{
    const TemplateLayout layout{.groups = {Group("DESIGN", {Shown("Service"), Shown("Flow", "m³/h", "0.0")}),
                                           Group("MOTOR", {Shown("Running")})}};
    EXPECT_EQ(Rows(ScheduleXml(layout, Pumps())),
              "<TABLE>\n"
              "<TR><TH/><TH tag=\"P-101A\">P-101A</TH><TH tag=\"P-101B\">P-101B</TH></TR>\n"
              "<TR><TH>DESIGN</TH><TD/><TD/></TR>\n"
              "<TR><TH item=\"PUMPS/Design/Service\">Service</TH><TD>Crude &amp; charge</TD><TD/></TR>\n"
              "<TR><TH item=\"PUMPS/Design/Flow\" unit=\"m³/h\" format=\"0.0\">Flow (m³/h)</TH>"
              "<TD dataType=\"DOUBLE\" AllowEdit=\"-1\" version=\"3\">412.0</TD>"
              "<TD dataType=\"DOUBLE\" AllowEdit=\"-1\" version=\"12\">about 400</TD></TR>\n"
              "<TR><TH>MOTOR</TH><TD/><TD/></TR>\n"
              "<TR><TH item=\"PUMPS/Design/Running\">Running</TH>"
              "<TD dataType=\"CHECKBOX\" visible=\"-1\" AllowEdit=\"-1\" version=\"2\">1</TD>"
              "<TD dataType=\"CHECKBOX\" visible=\"-1\" AllowEdit=\"-1\">0</TD></TR>\n"
              "</TABLE>");
}

TEST(ScheduleXml, WithTagsAsRowsHasAColumnForEachItem)
{
    const TemplateLayout layout{.tagsAsRows = true,
                                .groups = {Group("DESIGN", {Shown("Service"), Shown("Flow", "m³/h")})}};
    EXPECT_EQ(Rows(ScheduleXml(layout, Pumps())),
              "<TABLE>\n"
              "<TR><TH/><TH>DESIGN</TH><TH item=\"PUMPS/Design/Service\">Service</TH>"
              "<TH item=\"PUMPS/Design/Flow\" unit=\"m³/h\">Flow (m³/h)</TH></TR>\n"
              "<TR><TH tag=\"P-101A\">P-101A</TH><TD/><TD>Crude &amp; charge</TD>"
              "<TD dataType=\"DOUBLE\" AllowEdit=\"-1\" version=\"3\">412.0</TD></TR>\n"
              "<TR><TH tag=\"P-101B\">P-101B</TH><TD/><TD/>"
              "<TD dataType=\"DOUBLE\" AllowEdit=\"-1\" version=\"12\">about 400</TD></TR>\n"
              "</TABLE>");
}

TEST(ScheduleXml, LeavesOutWhatIsHidden)
{
    ItemLayout hiddenItem = Shown("Service");
    hiddenItem.shown = false;
    GroupLayout hiddenGroup = Group("HIDDEN", {Shown("Service")});
    hiddenGroup.shown = false;
    GroupLayout unnamed = Group("UNNAMED", {Shown("Running")});
    unnamed.nameShown = false;
    const TemplateLayout layout{.groups = {Group("DESIGN", {hiddenItem, Shown("Missing")}), hiddenGroup,
                                           Group("EMPTY", {}), Group("ALL HIDDEN", {hiddenItem}), unnamed}};
    ScheduleContent content = Pumps();
    content.tags.removeLast();
    EXPECT_EQ(Rows(ScheduleXml(layout, content)),
              "<TABLE>\n"
              "<TR><TH/><TH tag=\"P-101A\">P-101A</TH></TR>\n"
              "<TR><TH>DESIGN</TH><TD/></TR>\n"
              "<TR><TH item=\"PUMPS/Design/Missing\">Missing</TH><TD/></TR>\n"
              "<TR><TH item=\"PUMPS/Design/Running\">Running</TH>"
              "<TD dataType=\"CHECKBOX\" visible=\"-1\" AllowEdit=\"-1\" version=\"2\">1</TD></TR>\n"
              "</TABLE>");
}

TEST(ScheduleXml, FindsItemsWithoutRegardToLetterCase)
{
    ItemLayout item = Shown("Service");
    item.location = "pumps/DESIGN/service";
    EXPECT_EQ(RowsOf(item), "<TABLE>\n"
                            "<TR><TH/><TH tag=\"P-101A\">P-101A</TH><TH tag=\"P-101B\">P-101B</TH></TR>\n"
                            "<TR><TH item=\"pumps/DESIGN/service\">Service</TH><TD>Crude &amp; charge</TD><TD/></TR>\n"
                            "</TABLE>");
}

TEST(ScheduleXml, AValueThatIsMissingIsAnEmptyCell)
{
    ScheduleContent content = Pumps();
    content.values = {{{"Crude", 1}}};
    EXPECT_EQ(RowsOf(Shown("Service"), content),
              "<TABLE>\n"
              "<TR><TH/><TH tag=\"P-101A\">P-101A</TH><TH tag=\"P-101B\">P-101B</TH></TR>\n"
              "<TR><TH item=\"PUMPS/Design/Service\">Service</TH><TD>Crude</TD><TD/></TR>\n"
              "</TABLE>");
    EXPECT_NE(RowsOf(Shown("Temperature"), content).find("<TD dataType=\"DOUBLE\" AllowEdit=\"-1\"/>"),
              std::string::npos);
}

TEST(ScheduleXml, IsEditableWhereTemplateAndItemAllowIt)
{
    const ItemLayout layout{.location = "L", .caption = "C", .unit = {}, .dataType = {}, .format = {}};
    DataItem item{.location = "L", .name = {}, .group = {}, .dataType = "TEXT", .unit = {}};
    EXPECT_EQ(RowOf(layout, item, {"a", 7}),
              "<TR><TH item=\"L\">C</TH><TD AllowEdit=\"-1\" version=\"7\">a</TD></TR></TABLE>");
    EXPECT_EQ(RowOf(layout, item, {"a", 0}), "<TR><TH item=\"L\">C</TH><TD AllowEdit=\"-1\">a</TD></TR></TABLE>");
    EXPECT_EQ(RowOf(layout, item, {"a", 7}, false), "<TR><TH item=\"L\">C</TH><TD>a</TD></TR></TABLE>");
    item.editable = false;
    EXPECT_EQ(RowOf(layout, item, {"a", 7}), "<TR><TH item=\"L\">C</TH><TD>a</TD></TR></TABLE>");
}

TEST(ScheduleXml, MarksUserDefinedItems)
{
    ItemLayout layout{.location = "L", .caption = "C", .unit = {}, .dataType = {}, .format = {}, .userDefined = true};
    DataItem item{.location = "L", .name = {}, .group = {}, .dataType = "TEXT", .unit = {}, .editable = false};
    const std::string marked = "<TR><TH item=\"L\">C</TH><TD UserDefined=\"-1\">a</TD></TR></TABLE>";
    EXPECT_EQ(RowOf(layout, item, {"a", 7}), marked);
    layout.userDefined = false;
    item.userDefined = true;
    EXPECT_EQ(RowOf(layout, item, {"a", 7}), marked);
}

TEST(ScheduleXml, TheTypeIsTheTemplatesElseTheItems)
{
    ItemLayout layout{.location = "L", .caption = "C", .unit = {}, .dataType = " integer ", .format = {}};
    DataItem item{.location = "L", .name = {}, .group = {}, .dataType = "CHECKBOX", .unit = {}, .editable = false};
    EXPECT_EQ(RowOf(layout, item, {"1", 7}), "<TR><TH item=\"L\">C</TH><TD dataType=\"INTEGER\">1</TD></TR></TABLE>");
    layout.dataType = "Text";
    EXPECT_EQ(RowOf(layout, item, {"1", 7}), "<TR><TH item=\"L\">C</TH><TD>1</TD></TR></TABLE>");
    layout.dataType.clear();
    EXPECT_EQ(RowOf(layout, item, {"1", 7}),
              "<TR><TH item=\"L\">C</TH><TD dataType=\"CHECKBOX\" visible=\"-1\">1</TD></TR></TABLE>");
}

TEST(ScheduleXml, ACheckBoxIsTickedByWhatMeansTrue)
{
    const ItemLayout layout{.location = "L", .caption = "C", .unit = {}, .dataType = "checkbox", .format = "0.0"};
    const DataItem item{.location = "L", .name = {}, .group = {}, .dataType = {}, .unit = {}, .editable = false};
    const auto shown = [&](const char* stored) {
        const std::string row = RowOf(layout, item, {stored, 1});
        return row.substr(row.find("</TD>") - 1, 1);
    };
    for (const char* ticked : {"1", "-1", "True", " true "})
        EXPECT_EQ(shown(ticked), "1") << ticked;
    for (const char* empty : {"", "0", "False", "maybe"})
        EXPECT_EQ(shown(empty), "0") << empty;
}

TEST(ScheduleXml, ValuesAreConvertedAndFormatted)
{
    EXPECT_EQ(ShownAs("412.0", "m³/h", "gpm", "0.0"), "1814.0");
    EXPECT_EQ(ShownAs("412.0", "m³/h", "gpm", "#,##0.0"), "1,814.0");
    EXPECT_EQ(ShownAs("412.0", "m³/h", "gpm", ""), "1814.0") << "with the precision of the value";
    EXPECT_EQ(ShownAs("36.6", "°C", "°F", "0.000"), "97.880");
    EXPECT_EQ(ShownAs("412", "m³/h", "m³/h", "0.00"), "412.00");
    EXPECT_EQ(ShownAs("412.0", "m³/h", "m³/h", ""), "412.0");
    EXPECT_EQ(ShownAs("412.04", "m³/h", "", "0.0"), "412.0");
    EXPECT_EQ(ShownAs("12345678901234567890", "", "", "0"), "12345678901234567890");
    EXPECT_EQ(ShownAs("0.0000123", "", "", "0.00E+00"), "1.23E-05");
    EXPECT_EQ(ShownAs("about 400", "m³/h", "gpm", "0.0"), "about 400");
    EXPECT_EQ(ShownAs("412.04", "m³/h", "", "General"), "412.04") << "a format that nobody knows";
}

TEST(ScheduleXml, AUnitIsShownBesideTheCaptionWhenTheTemplateAsksForIt)
{
    ItemLayout item = Shown("Flow", "gpm");
    EXPECT_NE(RowsOf(item).find("unit=\"gpm\">Flow (gpm)</TH>"), std::string::npos) << RowsOf(item);
    item.unit.clear();
    EXPECT_NE(RowsOf(item).find("unit=\"m³/h\">Flow (m³/h)</TH>"), std::string::npos) << "that of the item";
    item.unitShown = false;
    EXPECT_NE(RowsOf(item).find("unit=\"m³/h\">Flow</TH>"), std::string::npos);
}

TEST(ScheduleXml, AUnitThatValuesCannotBeConvertedToIsNotShown)
{
    EXPECT_NE(RowsOf(Shown("Flow", "kg/h", "0")).find("unit=\"m³/h\" format=\"0\">Flow (m³/h)</TH>"),
              std::string::npos);
    EXPECT_NE(RowsOf(Shown("Flow", "kg/h", "0")).find(">412</TD>"), std::string::npos);
    EXPECT_NE(RowsOf(Shown("Service", "kg")).find("unit=\"kg\">Service (kg)</TH>"), std::string::npos)
        << "an item that has none may be given one";
}

TEST(ScheduleXml, TheColorOfAHeadingStandsWhereTheViewLooksForIt)
{
    GroupLayout design = Group("DESIGN", {Shown("Missing")});
    design.color = "255";
    GroupLayout motor = design;
    motor.caption = "MOTOR";
    EXPECT_EQ(Rows(ScheduleXml({.groups = {design, motor}}, {{{"P-1", "PUMPS"}}, {}, {}})),
              "<TABLE>\n"
              "<TR><TH/><TH tag=\"P-1\" bgColor=\"255\">P-1</TH><TH/><TH bgColor=\"255\"/></TR>\n"
              "<TR><TH>DESIGN</TH><TD/></TR>\n"
              "<TR><TH item=\"PUMPS/Design/Missing\">Missing</TH><TD/></TR>\n"
              "<TR><TH>MOTOR</TH><TD/></TR>\n"
              "<TR><TH item=\"PUMPS/Design/Missing\">Missing</TH><TD/></TR>\n"
              "</TABLE>");
    EXPECT_EQ(Rows(ScheduleXml({.tagsAsRows = true, .groups = {design, motor}}, {{{"P-1", "PUMPS"}}, {}, {}})),
              "<TABLE>\n"
              "<TR><TH/><TH>DESIGN</TH><TH item=\"PUMPS/Design/Missing\">Missing</TH>"
              "<TH>MOTOR</TH><TH item=\"PUMPS/Design/Missing\">Missing</TH></TR>\n"
              "<TR><TH tag=\"P-1\" bgColor=\"255\">P-1</TH><TD/><TD/><TD/><TD/></TR>\n"
              "<TR><TH/></TR>\n"
              "<TR><TH bgColor=\"255\"/></TR>\n"
              "</TABLE>");
}

TEST(ScheduleXml, TextsAreEscaped)
{
    const ItemLayout layout{.location = "A&B/\"C\"", .caption = "<C>\n", .unit = {}, .dataType = {}, .format = {}};
    const DataItem item{
        .location = "A&B/\"C\"", .name = {}, .group = {}, .dataType = {}, .unit = {}, .editable = false};
    EXPECT_EQ(RowOf(layout, item, {QStringLiteral("a\tb<>'中\U0001F600") + QChar(1) + QChar(0xD800), 1}),
              "<TR><TH item=\"A&amp;B/&quot;C&quot;\">&lt;C&gt;&#10;</TH>"
              "<TD>a&#9;b&lt;&gt;&apos;中\U0001F600\uFFFD\uFFFD</TD></TR></TABLE>");
}

TEST(ScheduleXml, WithoutTagsOrItemsHasHeadersAlone)
{
    EXPECT_EQ(ScheduleXml({}, {}), "<TABLE><TR><TH/></TR></TABLE>");
    EXPECT_EQ(ScheduleXml({}, Pumps()),
              "<TABLE><TR><TH/><TH tag=\"P-101A\">P-101A</TH><TH tag=\"P-101B\">P-101B</TH></TR></TABLE>");
    EXPECT_EQ(
        ScheduleXml({.groups = {Group("G", {Shown("Missing")})}}, {}),
        "<TABLE><TR><TH/></TR><TR><TH>G</TH></TR><TR><TH item=\"PUMPS/Design/Missing\">Missing</TH></TR></TABLE>");
}

TEST(LocationsShown, AreThoseOfShownItemsEachOnce)
{
    ItemLayout hidden = Shown("Hidden");
    hidden.shown = false;
    ItemLayout otherCase = Shown("Flow");
    otherCase.location = otherCase.location.toUpper();
    ItemLayout nowhere = Shown("Nowhere");
    nowhere.location.clear();
    GroupLayout hiddenGroup = Group("HIDDEN", {Shown("Head")});
    hiddenGroup.shown = false;
    EXPECT_EQ(LocationsShown({.groups = {Group("A", {Shown("Flow"), hidden, nowhere}), hiddenGroup,
                                         Group("B", {otherCase, Shown("Power")})}}),
              (QStringList{"PUMPS/Design/Flow", "PUMPS/Design/Power"}));
}

} // namespace schedules::host::testing
