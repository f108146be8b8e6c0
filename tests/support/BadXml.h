#pragma once

#include <QString>

#include <vector>

namespace schedules::testing {

/// A document that must not be read, and why.
struct BadXml
{
    const char* name;
    QString text;
};

inline QString Repeated(const char* text, int count)
{
    return QString::fromUtf8(text).repeated(count);
}

/// An element with so many attributes.
inline QString Attributed(int attributes)
{
    QString xml = QStringLiteral("<TABLE><TR");
    for (int number = 0; number < attributes; ++number)
        xml += QStringLiteral(" a%1=''").arg(number);
    return xml + QStringLiteral("><TH>x</TH></TR></TABLE>");
}

/// A tag of so many characters, brackets included.
inline QString WithTagOf(int length)
{
    const QString start = QStringLiteral("<TR a='");
    const QString end = QStringLiteral("'>");
    return QStringLiteral("<TABLE>") + start + QString(length - start.size() - end.size(), u'x') + end +
           QStringLiteral("<TH>x</TH></TR></TABLE>");
}

/// A sound one that is larger than any bad one: what costs more than it is not refused in time.
inline QString LargeDocument()
{
    return QStringLiteral("<TABLE>") + Repeated("<TR><TH a='1'>x</TH></TR>", 200'000) + QStringLiteral("</TABLE>");
}

inline QString Nested(int depth)
{
    return Repeated("<TABLE>", depth) + Repeated("</TABLE>", depth);
}

/// Whatever is not well-formed, breaks the namespace rules or is out of bounds, one of each kind. `outside` names a
/// file that some of them try to read.
inline std::vector<BadXml> BadDocuments(const QString& outside)
{
    const auto text = [](const char* utf8) { return QString::fromUtf8(utf8); };
    const QString external = QStringLiteral("<!DOCTYPE TABLE [<!ENTITY e SYSTEM \"file://%1\">]>").arg(outside);
    const QString rows = text("<TABLE><TR><TH>&e;</TH></TR></TABLE>");
    const QString bomb = text("<!DOCTYPE TABLE [<!ENTITY a 'xxxxxxxxxx'>"
                              "<!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;'><!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;'>"
                              "<!ENTITY d '&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;'><!ENTITY f '&d;&d;&d;&d;&d;&d;&d;&d;&d;&d;'>"
                              "<!ENTITY g '&f;&f;&f;&f;&f;&f;&f;&f;&f;&f;'><!ENTITY e '&g;&g;&g;&g;&g;&g;&g;&g;'>]>");
    return {
        {"Empty", {}},
        {"BlanksOnly", text("  \n ")},
        {"NoMarkup", text("Tag Flow Head")},
        {"CommentOnly", text("<!-- nothing else -->")},
        {"DeclarationOnly", text("<?xml version=\"1.0\"?>")},
        {"TwoRoots", text("<TABLE/><TABLE/>")},
        {"TextBehindTheRoot", text("<TABLE/>x")},
        {"TextBeforeTheRoot", text("x<TABLE/>")},
        {"BlankBeforeTheDeclaration", text(" <?xml version=\"1.0\"?><TABLE/>")},
        {"DeclarationInside", text("<TABLE><?xml version=\"1.0\"?></TABLE>")},
        {"VersionMissing", text("<?xml encoding=\"UTF-8\"?><TABLE/>")},
        {"CutOffInATag", text("<TABLE><TR><TH")},
        {"CutOffInAnAttribute", text("<TABLE><TR><TH a=\"1")},
        {"CutOffInAText", text("<TABLE><TR><TH>P-1")},
        {"CutOffInAComment", text("<TABLE><!-- ")},
        {"CutOffInCData", text("<TABLE><![CDATA[ ")},
        {"CutOffInAnEndTag", text("<TABLE></TABLE")},
        {"NotClosed", text("<TABLE><TR></TABLE>")},
        {"WrongNesting", text("<TABLE><TR><TH></TR></TH></TABLE>")},
        {"OtherCaseOfTheEndTag", text("<TABLE></table>")},
        {"EndTagOnly", text("</TABLE>")},
        {"DuplicateAttribute", text("<TABLE a='1' a='2'/>")},
        {"AttributeWithoutQuotes", text("<TABLE a=1/>")},
        {"AttributeWithoutValue", text("<TABLE a/>")},
        {"AttributesWithoutBlank", text("<TABLE a='1'b='2'/>")},
        {"LessThanInAnAttribute", text("<TABLE a='<'/>")},
        {"LessThanInAText", text("<TABLE>a < b</TABLE>")},
        {"BareAmpersand", text("<TABLE>a & b</TABLE>")},
        {"EntityWithoutEnd", text("<TABLE>&amp</TABLE>")},
        {"UndefinedEntity", text("<TABLE>&nbsp;</TABLE>")},
        {"UndefinedEntityInAnAttribute", text("<TABLE a='&nbsp;'/>")},
        {"ReferenceToNoCharacter", text("<TABLE>&#1;</TABLE>")},
        {"ReferenceToNull", text("<TABLE>&#0;</TABLE>")},
        {"ReferenceToASurrogate", text("<TABLE>&#xD800;</TABLE>")},
        {"ReferenceBeyondUnicode", text("<TABLE>&#x110000;</TABLE>")},
        {"ReferenceWithoutNumber", text("<TABLE>&#;</TABLE>")},
        {"EndOfCDataInAText", text("<TABLE>]]></TABLE>")},
        {"TwoHyphensInAComment", text("<TABLE><!-- a -- b --></TABLE>")},
        {"InstructionNamedXml", text("<TABLE><?XML x?></TABLE>")},
        {"BadNameStart", text("<1TABLE/>")},
        {"BlankBeforeAName", text("< TABLE/>")},
        {"ControlCharacter", text("<TABLE>\x01</TABLE>")},
        {"EscapeInAnAttribute", text("<TABLE a='\x1B'/>")},
        {"NonCharacter", QStringLiteral("<TABLE>") + QChar(0xFFFF) + QStringLiteral("</TABLE>")},
        {"NullCharacter", QStringLiteral("<TABLE>") + QChar(0) + QStringLiteral("</TABLE>")},
        {"NullAtTheEnd", QStringLiteral("<TABLE/>") + QChar(0)},
        {"LoneHighSurrogate", QStringLiteral("<TABLE>") + QChar(0xD83D) + QStringLiteral("</TABLE>")},
        {"LoneLowSurrogate", QStringLiteral("<TABLE>") + QChar(0xDE42) + QStringLiteral("</TABLE>")},
        {"HighSurrogateAtTheEnd", QStringLiteral("<TABLE/>") + QChar(0xD83D)},
        {"UndefinedPrefix", text("<TABLE><p:TR/></TABLE>")},
        {"UndefinedPrefixOfAnAttribute", text("<TABLE p:a='1'/>")},
        {"SameAttributeThroughTwoPrefixes", text("<TABLE xmlns:p='u' xmlns:q='u' p:a='1' q:a='2'/>")},
        {"TwoColons", text("<TABLE xmlns:p='u'><p:a:b/></TABLE>")},
        {"EmptyPrefix", text("<TABLE><:TR/></TABLE>")},
        {"UnboundPrefix", text("<TABLE xmlns:p=''/>")},
        {"PrefixXmlBoundElsewhere", text("<TABLE xmlns:xml='u'/>")},
        {"PrefixXmlnsBound", text("<TABLE xmlns:xmlns='u'/>")},
        {"ColonInAnInstruction", text("<TABLE><?p:i x?></TABLE>")},
        {"DocumentType", text("<!DOCTYPE TABLE><TABLE><TR><TH>x</TH></TR></TABLE>")},
        {"DocumentTypeWithEntity", text("<!DOCTYPE TABLE [<!ENTITY e 'x'>]>") + rows},
        {"DocumentTypeOutside",
         QStringLiteral("<!DOCTYPE TABLE SYSTEM \"file://%1\"><TABLE><TR><TH>x</TH></TR></TABLE>").arg(outside)},
        {"ExternalEntity", external + rows},
        {"ExternalParameterEntity",
         QStringLiteral("<!DOCTYPE TABLE [<!ENTITY % p SYSTEM \"file://%1\">%p;]>").arg(outside) + rows},
        {"EntityBomb", bomb + rows},
        {"EntityThatHoldsItself", text("<!DOCTYPE TABLE [<!ENTITY e '&e;'>]>") + rows},
        {"NestedFarTooDeep", Nested(100'000)},
        {"NestedFarTooDeepAndCutOff", Repeated("<TABLE>", 100'000)},
        {"NestedJustTooDeep", Nested(258)},
        {"TooManyAttributes", Attributed(4097)},
        {"FarTooManyAttributes", Attributed(60'000)},
        {"TagTooLong", WithTagOf((1 << 20) + 1)},
        {"TagFarTooLong", WithTagOf(3'000'000)},
        {"TagThatNeverEnds", text("<TABLE><TR a='") + Repeated("x", 1'500'000)},
    };
}

} // namespace schedules::testing
