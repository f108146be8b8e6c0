#include "fuzz/WalkDocuments.h"

#include "common/XmlDocument.h"
#include "grid/RandomTables.h"
#include "support/TableXml.h"

#include <QRegularExpression>

#include <array>

namespace schedules::testing {

namespace {

/// A check box that is not shown has its text hidden with every load, even that of an edit, so all are shown.
QString AllEditable(QString xml)
{
    static const QRegularExpression set(QStringLiteral(" (AllowEdit|visible)=\"[^\"]*\""));
    static const QRegularExpression cell(QStringLiteral("<TD(?=[ />])"));
    return xml.remove(set).replace(cell, QStringLiteral("<TD AllowEdit=\"-1\" visible=\"-1\""));
}

QString WithGroups()
{
    return Table("Tag | A {bgColor=255 hidden=-1} | B | C {fontBold=-1}\n"
                 "G {fontBold=-1} | | | \n"
                 "1 | 3 {AllowEdit=-1 dataType=DOUBLE} | 1.50 {AllowEdit=-1 dataType=DOUBLE} | x {AllowEdit=-1}\n"
                 "2 {hidden=-1} | 2 | {AllowEdit=-1} | y {AllowEdit=-1}\n"
                 "H {fontBold=-1 bgColor=2147483663} | u {UserDefined=-1 AllowEdit=-1} | | \n"
                 "3 | 10 {AllowEdit=-1} | -7 {AllowEdit=-1} | z");
}

QString WithCheckBoxes()
{
    return Table(
        "Tag | In service | Shown | Note\n"
        "P-1 | 1 {dataType=CHECKBOX visible=-1 AllowEdit=-1} | 1 {dataType=CHECKBOX visible=-1} | a {AllowEdit=-1}\n"
        "P-2 | {dataType=CHECKBOX visible=-1 AllowEdit=-1} | 0 {dataType=CHECKBOX} | {AllowEdit=-1}\n"
        "P-3 | yes {dataType=CHECKBOX visible=-1 AllowEdit=-1} | | c {AllowEdit=-1}");
}

QString Tags()
{
    return Table(
        "No. | 1 | 2 | 3\n"
        "Tag {bgColor=16115410} | P-1 | P-2 | \n"
        "Select | {dataType=CHECKBOX visible=-1} | 1 {dataType=CHECKBOX visible=-1} | {dataType=CHECKBOX visible=-1}\n"
        "Note | a {AllowEdit=-1} | b | c");
}

/// What may stand between cells, and in other ways.
QString Odd()
{
    return QStringLiteral(
        "<?xml version='1.0' encoding='utf-16'?>\r\n<D xmlns:p='u'><!-- <TR> --><TABLE a = '>' ><TR ><TH/>\n<TH>A</TH "
        "></TR>"
        "<TR><TH>1</TH><!-- c --><TD\tAllowEdit='-1' Dirty = '0'\n>a&amp;b<b/>c</TD><p:TD AllowEdit='-1'>no</p:TD></TR>"
        "<?p <TD/> ?></TABLE><TABLE b='\"'><TR><TH>2</TH><TD AllowEdit='-1' Dirty=\"-1\"/><TD AllowEdit='-1'>"
        "<![CDATA[x]]></TD>loose<TD AllowEdit='-1'/></TR></TABLE></D>\n");
}

QString Nested()
{
    return QStringLiteral(
        "<TABLE><TR><TH>a</TH><TD AllowEdit='-1'>x<TABLE><TR><TH>in</TH><TD AllowEdit='-1'>1</TD></TR></TABLE>"
        "y</TD></TR><TR><TH>b</TH><TD AllowEdit='-1'>z</TD><TD AllowEdit='-1'/></TR></TABLE>");
}

QString Tall()
{
    const QString row = QStringLiteral("<TR><TH/><TD>x</TD><TD AllowEdit='-1'>1</TD></TR>");
    return QStringLiteral("<TABLE><TR><TH/><TH>A</TH><TH>B</TH></TR>") + row.repeated(60) + QStringLiteral("</TABLE>");
}

QString Wide()
{
    return QStringLiteral("<TABLE><TR><TH/></TR><TR><TH>1</TH>") +
           QStringLiteral("<TD AllowEdit='-1'>wide text</TD><TD/>").repeated(20) + QStringLiteral("</TR></TABLE>");
}

QString Small()
{
    return Table("Tag | Flow | Head | Note\n"
                 "P-1 | 12 {AllowEdit=-1} | 48 | spare {AllowEdit=-1}\n"
                 "P-2 | 13 {AllowEdit=-1} | 49 {AllowEdit=-1} | fixed");
}

QString Broken()
{
    return QStringLiteral("<TABLE><TR><TD>");
}

QString HeadersAlone()
{
    return Table("Tag | Flow");
}

constexpr std::array<QString (*)(), kDrawnDocuments> kDrawn{Small,  WithGroups, WithCheckBoxes, Tags,   Odd,
                                                            Nested, Tall,       Wide,           Broken, HeadersAlone};

} // namespace

QString WalkDocument(unsigned number)
{
    return number < kDrawnDocuments ? kDrawn[number]() : AllEditable(RandomTables(number).Next());
}

bool IsFlatSchedule(const QString& xml)
{
    const XmlDocument document = XmlDocument::FromText(xml);
    return document.SelectOne(QStringLiteral("//TABLE/TR")) &&
           document.Select(QStringLiteral("//TABLE/TR//TABLE")).empty();
}

} // namespace schedules::testing
