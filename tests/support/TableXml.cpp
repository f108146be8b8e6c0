#include "support/TableXml.h"

#include <QRegularExpression>
#include <QStringList>

namespace schedules::testing {

namespace {

QString Attributes(const QString& notation)
{
    static const QRegularExpression attribute(QStringLiteral(R"re(([\w:]+)=(?:'([^']*)'|(\S*)))re"));
    QString xml;
    auto found = attribute.globalMatch(notation);
    while (found.hasNext()) {
        const auto match = found.next();
        const QString value = match.captured(2) + match.captured(3);
        xml += QStringLiteral(" %1=\"%2\"").arg(match.captured(1), value.toHtmlEscaped());
    }
    return xml;
}

QString CellXml(const QString& drawn, const QString& usualName)
{
    static const QRegularExpression cell(QStringLiteral(R"re(^([^{]*)(?:\{(?:(\w+)(?=\s|\}))?([^}]*)\})?\s*$)re"));
    const auto match = cell.match(drawn);
    const QString name = match.captured(2).isEmpty() ? usualName : match.captured(2);
    return QStringLiteral("<%1%2>%3</%1>")
        .arg(name, Attributes(match.captured(3)), match.captured(1).trimmed().toHtmlEscaped());
}

QString RowXml(const QString& line, bool isFirst)
{
    QString cells;
    if (!line.trimmed().isEmpty()) {
        const QStringList drawn = line.split(u'|');
        for (qsizetype index = 0; index < drawn.size(); ++index)
            cells += CellXml(drawn[index], isFirst || index == 0 ? QStringLiteral("TH") : QStringLiteral("TD"));
    }
    return QStringLiteral("<TR>%1</TR>").arg(cells);
}

} // namespace

QString TableRows(const char* drawing)
{
    QString rows;
    for (const QString& line : QString::fromUtf8(drawing).split(u'\n'))
        rows += RowXml(line, rows.isEmpty());
    return rows;
}

QString InTable(const QString& content)
{
    return QStringLiteral("<SCHEDULE><TABLE>%1</TABLE></SCHEDULE>").arg(content);
}

QString Table(const char* drawing)
{
    return InTable(TableRows(drawing));
}

} // namespace schedules::testing
