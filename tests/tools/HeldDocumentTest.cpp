#include "tools/schedule/edits/HeldDocument.h"

#include "tools/schedule/edits/EditedElement.h"

#include <gtest/gtest.h>
#include <set>

namespace schedules {

namespace {

struct Change
{
    int line;
    int slot;
    QString text;
};

HeldDocument Held(const char* xml)
{
    HeldDocument document;
    document.Hold(QString::fromUtf8(xml));
    return document;
}

/// The text after the edits; "no element" for an edit that finds none.
std::string Edited(const char* xml, const std::vector<Change>& changes)
{
    HeldDocument document = Held(xml);
    for (const auto& [line, slot, text] : changes) {
        if (!document.SetCellText({line, slot}, text, {}))
            return "no element";
    }
    return document.Text().toStdString();
}

std::string Element(const char* xml, const QString& text)
{
    return EditedElement(QByteArrayView(xml), text).toStdString();
}

std::set<Sheet::TablePlace> PlacesOf(const HeldDocument& document)
{
    std::set<Sheet::TablePlace> places;
    for (const auto& [place, former] : document.Unsaved())
        places.insert(place);
    return places;
}

constexpr auto kTable = "<TABLE><TR><TH/><TH>A</TH></TR><TR><TH>1</TH><TD>a1</TD></TR></TABLE>";

} // namespace

TEST(HeldDocument, IsTheVeryTextAsLongAsNobodyEdits)
{
    for (const auto* text : {"", "no document", "<?xml version='1.0'?>\r\n<!-- c --><TABLE  a = 'x' ><TR/></TABLE >\n"})
        EXPECT_EQ(Held(text).Text().toStdString(), text);
}

TEST(HeldDocument, KeepsAllButTheEditedElement)
{
    EXPECT_EQ(
        Edited(
            "<?xml version='1.0' encoding='utf-16'?>\r\n<?p x?><!-- <TR> --><d:x xmlns:d='u'>\n"
            "<TABLE  b='2' a=\"1\" ><TR><TH>&#x416; &amp;</TH></TR>\t<TR><TH/><TD AllowEdit='-1'\n>Ж</TD></TR></TABLE>"
            "<![CDATA[ & ]]></d:x >\n",
            {{1, 1, QStringLiteral("12.5")}}),
        "<?xml version='1.0' encoding='utf-16'?>\r\n<?p x?><!-- <TR> --><d:x xmlns:d='u'>\n"
        "<TABLE  b='2' a=\"1\" ><TR><TH>&#x416; &amp;</TH></TR>\t<TR><TH/><TD AllowEdit='-1' "
        "Dirty=\"-1\">12.5</TD></TR></TABLE>"
        "<![CDATA[ & ]]></d:x >\n");
}

TEST(HeldDocument, TakesEditsInAnyOrder)
{
    EXPECT_EQ(Edited(kTable, {{1, 1, QStringLiteral("x")}, {0, 1, QStringLiteral("B")}, {1, 1, QStringLiteral("y")}}),
              "<TABLE><TR><TH/><TH Dirty=\"-1\">B</TH></TR><TR><TH>1</TH><TD Dirty=\"-1\">y</TD></TR></TABLE>");
}

TEST(HeldDocument, CountsRowsOfAllTables)
{
    EXPECT_EQ(Edited("<D><TABLE><TR><TD>a</TD></TR></TABLE><TABLE><X><TR><TD>no row</TD></TR></X>"
                     "<TR><TD>b</TD><TD>c</TD></TR></TABLE></D>",
                     {{1, 1, QStringLiteral("!")}}),
              "<D><TABLE><TR><TD>a</TD></TR></TABLE><TABLE><X><TR><TD>no row</TD></TR></X>"
              "<TR><TD>b</TD><TD Dirty=\"-1\">!</TD></TR></TABLE></D>");
}

TEST(HeldDocument, ACommentBetweenCellsTakesAPlaceWithoutAnElement)
{
    constexpr auto kCommented = "<TABLE><TR><TH/><!-- a --><TD>b</TD></TR></TABLE>";
    EXPECT_EQ(Edited(kCommented, {{0, 1, QStringLiteral("x")}}), "no element");
    EXPECT_EQ(Edited(kCommented, {{0, 2, QStringLiteral("x")}}),
              "<TABLE><TR><TH/><!-- a --><TD Dirty=\"-1\">x</TD></TR></TABLE>");
}

TEST(HeldDocument, HasNoElementBeyondTheTableOrWithoutADocument)
{
    EXPECT_EQ(Edited(kTable, {{1, 2, {}}}), "no element");
    EXPECT_EQ(Edited(kTable, {{2, 0, {}}}), "no element");
    EXPECT_EQ(Edited("<TABLE><TR>", {{0, 0, {}}}), "no element");
    EXPECT_EQ(Edited("", {{0, 0, {}}}), "no element");
}

TEST(HeldDocument, AnEditedCellNoLongerHoldsATable)
{
    constexpr auto kNested = "<TABLE><TR><TD><TABLE><TR><TD>in</TD></TR></TABLE></TD><TD>out</TD></TR></TABLE>";
    constexpr auto kReplaced = "<TABLE><TR><TD Dirty=\"-1\">x</TD><TD>out</TD></TR></TABLE>";
    const Change inner{1, 0, QStringLiteral("inner")};
    const Change outer{0, 0, QStringLiteral("x")};
    EXPECT_EQ(Edited(kNested, {inner}),
              "<TABLE><TR><TD><TABLE><TR><TD Dirty=\"-1\">inner</TD></TR></TABLE></TD><TD>out</TD></TR></TABLE>");
    EXPECT_EQ(Edited(kNested, {outer}), kReplaced);
    EXPECT_EQ(Edited(kNested, {inner, outer}), kReplaced);
    EXPECT_EQ(Edited(kNested, {outer, inner}), "no element");
}

TEST(HeldDocument, OnceSettledItCountsInTheEditedText)
{
    HeldDocument document = Held(kTable);
    document.SetCellText({0, 0}, QStringLiteral("longer than before"), {});
    document.Settle();
    EXPECT_TRUE(document.SetCellText({1, 1}, QStringLiteral("x"), {}));
    EXPECT_EQ(document.Text(), QStringLiteral("<TABLE><TR><TH Dirty=\"-1\">longer than before</TH><TH>A</TH></TR>"
                                              "<TR><TH>1</TH><TD Dirty=\"-1\">x</TD></TR></TABLE>"));
}

TEST(HeldDocument, UnsavedPlacesFollowTheRowsThatAnEditedCellLoses)
{
    HeldDocument document =
        Held("<TABLE><TR><TD>a</TD><TD><TABLE><TR><TD>in</TD></TR><TR><TD>in 2</TD></TR></TABLE></TD>"
             "</TR><TR><TD>below</TD></TR></TABLE>");
    document.SetCellText({0, 0}, QStringLiteral("longer"), {});
    document.SetCellText({1, 0}, QStringLiteral("goes with its cell"), {});
    document.SetCellText({3, 0}, QStringLiteral("edited"), {});
    document.SetCellText({0, 1}, QStringLiteral("no table"), {});
    document.Settle();
    EXPECT_EQ(document.Text().toStdString(), "<TABLE><TR><TD Dirty=\"-1\">longer</TD><TD Dirty=\"-1\">no table</TD>"
                                             "</TR><TR><TD Dirty=\"-1\">edited</TD></TR></TABLE>");
    EXPECT_EQ(PlacesOf(document), (std::set<Sheet::TablePlace>{{0, 0}, {0, 1}, {1, 0}}));
}

TEST(HeldDocument, KeepsAByteOrderMark)
{
    const QString marked = QChar(QChar::ByteOrderMark) + QLatin1String(kTable);
    HeldDocument document;
    document.Hold(marked);
    ASSERT_TRUE(document.SetCellText({1, 1}, QStringLiteral("x"), {}));
    EXPECT_EQ(document.Text(), QString(marked).replace(QStringLiteral("<TD>a1"), QStringLiteral("<TD Dirty=\"-1\">x")));
}

TEST(HeldDocument, KnowsWhatIsNotSaved)
{
    HeldDocument document = Held(kTable);
    document.SetCellText({1, 1}, QStringLiteral("x"), {});
    document.SetCellText({9, 9}, QStringLiteral("x"), {});
    document.Settle();
    EXPECT_EQ(PlacesOf(document), (std::set<Sheet::TablePlace>{{1, 1}}));
    document.TakeUnsaved();
    EXPECT_TRUE(document.Unsaved().empty());
    EXPECT_NE(document.Text(), QLatin1String(kTable)) << "saving keeps the edits";
    document.SetCellText({1, 1}, QStringLiteral("y"), {});
    document.Hold(QLatin1String(kTable));
    EXPECT_TRUE(document.Unsaved().empty());
    EXPECT_EQ(document.Text(), QLatin1String(kTable));
}

TEST(EditedElement, ReplacesWhateverItHeld)
{
    EXPECT_EQ(Element("<TD>a<b/>c<!-- d --></TD>", QStringLiteral("x")), "<TD Dirty=\"-1\">x</TD>");
    EXPECT_EQ(Element("<TD/>", QStringLiteral("x")), "<TD Dirty=\"-1\">x</TD>");
    EXPECT_EQ(Element("<TD a='1' />", QStringLiteral("x")), "<TD a='1' Dirty=\"-1\">x</TD>");
    EXPECT_EQ(Element("<TD>a</TD >", {}), "<TD Dirty=\"-1\"></TD>");
}

TEST(EditedElement, KeepsAttributesAsTheyAreWritten)
{
    EXPECT_EQ(Element("<TD  a = '&lt;&#x416;/>'\n\tb=\"'Dirty'\" >x</TD>", QStringLiteral("y")),
              "<TD  a = '&lt;&#x416;/>'\n\tb=\"'Dirty'\" Dirty=\"-1\">y</TD>");
}

TEST(EditedElement, SetsAnAttributeThatExists)
{
    EXPECT_EQ(Element("<TD Dirty='0' a='1'>x</TD>", QStringLiteral("y")), "<TD Dirty=\"-1\" a='1'>y</TD>");
    EXPECT_EQ(Element("<TD a='1' Dirty = \"\"/>", QStringLiteral("y")), "<TD a='1' Dirty = \"-1\">y</TD>");
}

TEST(EditedElement, TakesNoOtherAttributeForIt)
{
    EXPECT_EQ(Element("<TD dirty='0' p:Dirty='1' xDirty='2' Dirty2='3'/>", {}),
              "<TD dirty='0' p:Dirty='1' xDirty='2' Dirty2='3' Dirty=\"-1\"></TD>");
}

TEST(EditedElement, EscapesTheText)
{
    EXPECT_EQ(Element("<TD/>", QStringLiteral("<a> & ]]> Ж\r")), "<TD Dirty=\"-1\">&lt;a&gt; &amp; ]]&gt; Ж&#13;</TD>");
}

} // namespace schedules
