// The printing half of the engine: what it tells a printer about the sheet.

#include "common/Error.h"
#include "grid/CSchedule.h"
#include "spread/PrintCodes.h"

#include <QLocale>

namespace schedules {

namespace {

constexpr SourceName kSource("CSchedule");
constexpr int kMargin = 720;

QString ShortDate(const QDateTime& moment)
{
    return QLocale().toString(moment.date(), QLocale::ShortFormat);
}

QString ShortTime(const QDateTime& moment)
{
    return QLocale().toString(moment.time(), QLocale::ShortFormat);
}

QString AsItStands(QString text)
{
    return text;
}

} // namespace

void CSchedule::PrintSched()
{
    Reported(m_userInterface, kSource.In(__func__), [&] {
        RequireSheet();
        ISheetPrinter& printer = RequiredPrinter();
        SetPrintOptions(printer);
        printer.SetHeader(m_printHeader ? HeaderWith(ProtectedFromCodes) : QString());
        for (const PageEdge edge : {PageEdge::Left, PageEdge::Right, PageEdge::Top, PageEdge::Bottom})
            printer.SetMargin(edge, kMargin);
        printer.Print(*m_sched, m_smartPrint ? PrintAction::Smart : PrintAction::Plain);
    });
}

ISheetPrinter& CSchedule::RequiredPrinter() const
{
    if (!m_printer)
        throw Error(kUnexpectedError, QStringLiteral("The schedule has no printer."));
    return *m_printer;
}

void CSchedule::SetPrintOptions(ISheetPrinter& printer) const
{
    printer.SetOption(PrintOption::Border, m_printBorder);
    printer.SetOption(PrintOption::Grid, m_printGrid);
    printer.SetOption(PrintOption::Shading, m_printShadows);
    printer.SetOption(PrintOption::ColumnHeaders, m_printColHeaders);
    printer.SetOption(PrintOption::RowHeaders, m_printRowHeaders);
}

QString CSchedule::GetPageHeader() const
{
    return HeaderWith(AsItStands);
}

QString CSchedule::HeaderWith(QString (*written)(QString text)) const
{
    QString header;
    const QString title = written(Title());
    if (!title.trimmed().isEmpty())
        header += QStringLiteral("/fn\"Arial\"/fz\"12\"/fb1/c") + title + QStringLiteral("/n");
    if (!m_printHeader)
        return header;
    const QString date = written(ShortDate(m_clock()));
    const QString time = written(ShortTime(m_clock()));
    return header + QStringLiteral("/fn\"Arial\"/fz\"8\"/fb0/l/r") + date + QStringLiteral("/n/l/r") + time +
           QStringLiteral("/n");
}

} // namespace schedules
