#include "Drawings.h"
#include "Pumps.h"
#include "ShownView.h"
#include "host/schedule/EditedCells.h"
#include "host/schedule/SelectionTable.h"
#include "support/SheetDrawing.h"

namespace schedules::host::testing {

using schedules::testing::DrawnTypes;

namespace {

const SelectionCaptions kCaptions{"No.", "Tag", "Select"};

} // namespace

TEST(SelectionXml, HasATagInEachColumnAndACheckBoxBelow)
{
    EXPECT_EQ(Rows(SelectionXml(kCaptions, Pumps())),
              "<TABLE>\n"
              "<TR><TH>No.</TH><TH>1</TH><TH>2</TH></TR>\n"
              "<TR><TH bgColor=\"16115410\">Tag</TH><TD>P-101A</TD><TD>P-101B</TD></TR>\n"
              "<TR><TH>Select</TH><TD dataType=\"CHECKBOX\" visible=\"-1\">0</TD>"
              "<TD dataType=\"CHECKBOX\" visible=\"-1\">0</TD></TR>\n"
              "<TR><TH>Service</TH><TD>Crude &amp; charge</TD><TD/></TR>\n"
              "<TR><TH>Flow (m³/h)</TH><TD dataType=\"DOUBLE\">412.0</TD><TD dataType=\"DOUBLE\">about 400</TD></TR>\n"
              "<TR><TH>Running</TH><TD>✓</TD><TD/></TR>\n"
              "<TR><TH>Temperature (°C)</TH><TD dataType=\"DOUBLE\">36.5</TD><TD dataType=\"DOUBLE\">-40</TD></TR>\n"
              "</TABLE>");
}

TEST(SelectionXml, WithoutValuesHasEmptyCells)
{
    ScheduleContent content = Pumps();
    content.items = {content.items[0]};
    content.values.clear();
    EXPECT_EQ(Rows(SelectionXml(kCaptions, content)),
              "<TABLE>\n"
              "<TR><TH>No.</TH><TH>1</TH><TH>2</TH></TR>\n"
              "<TR><TH bgColor=\"16115410\">Tag</TH><TD>P-101A</TD><TD>P-101B</TD></TR>\n"
              "<TR><TH>Select</TH><TD dataType=\"CHECKBOX\" visible=\"-1\">0</TD>"
              "<TD dataType=\"CHECKBOX\" visible=\"-1\">0</TD></TR>\n"
              "<TR><TH>Service</TH><TD/><TD/></TR>\n"
              "</TABLE>");
}

TEST(SelectionXml, HasNoOtherCheckBoxesThanThoseOfTheTags)
{
    const ShownView view(kSelectorView, SelectionXml(kCaptions, Pumps()));
    EXPECT_EQ(DrawnTypes(view.Grid()), "...\n...\n.xx\n...\n...\n...\n...");
}

TEST(SelectionXml, TickedTagsComeBackByContinue)
{
    ScheduleContent content = Pumps();
    content.tags = {{"P-101A", "PUMPS"}, {"<P> & \"2\"", "PUMPS"}, {"Насос-3", "PUMPS"}};
    ShownView view(kSelectorView, SelectionXml(kCaptions, content));
    view.Tick(2, 2);
    view.Tick(3, 2);
    view.Press("cmdContinue");
    EXPECT_EQ(SelectedTags(view.Sent("ContinueButton", "SelectedTags")), (QStringList{"<P> & \"2\"", "Насос-3"}));
}

TEST(SelectedTags, AreTheIdentifiersInTheirOrder)
{
    EXPECT_EQ(SelectedTags("<Tags><Tag><Id>P-2</Id></Tag><Tag><Id>P&amp;1</Id></Tag></Tags>"),
              (QStringList{"P-2", "P&1"}));
    EXPECT_EQ(SelectedTags("<Tags/>"), QStringList());
}

} // namespace schedules::host::testing
