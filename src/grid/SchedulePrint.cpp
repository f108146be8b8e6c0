#include "grid/SchedulePrint.h"

#include <QLocale>

namespace schedules {

namespace {

constexpr int kMargin = 720;

QString ShortDate(const QDateTime& moment)
{
    return QLocale().toString(moment.date(), QLocale::ShortFormat);
}

QString ShortTime(const QDateTime& moment)
{
    return QLocale().toString(moment.time(), QLocale::ShortFormat);
}

void SetOptions(ISheetPrinter& printer, const PrintChoices& choices)
{
    printer.SetOption(PrintOption::Border, choices.border);
    printer.SetOption(PrintOption::Grid, choices.grid);
    printer.SetOption(PrintOption::Shading, choices.shadows);
    printer.SetOption(PrintOption::ColumnHeaders, choices.colHeaders);
    printer.SetOption(PrintOption::RowHeaders, choices.rowHeaders);
}

} // namespace

QString PageHeader(const QString& title, const PageClock& clock, QString (*written)(QString text))
{
    QString header;
    const QString shown = written(title);
    if (!shown.trimmed().isEmpty())
        header += QStringLiteral("/fn\"Arial\"/fz\"12\"/fb1/c") + shown + QStringLiteral("/n");
    if (!clock)
        return header;
    const QString date = written(ShortDate(clock()));
    const QString time = written(ShortTime(clock()));
    return header + QStringLiteral("/fn\"Arial\"/fz\"8\"/fb0/l/r") + date + QStringLiteral("/n/l/r") + time +
           QStringLiteral("/n");
}

void Print(const Sheet& sheet, ISheetPrinter& printer, const PrintChoices& choices, const QString& header)
{
    SetOptions(printer, choices);
    printer.SetHeader(header);
    for (const PageEdge edge : {PageEdge::Left, PageEdge::Right, PageEdge::Top, PageEdge::Bottom})
        printer.SetMargin(edge, kMargin);
    printer.Print(sheet, choices.smart ? PrintAction::Smart : PrintAction::Plain);
}

} // namespace schedules
