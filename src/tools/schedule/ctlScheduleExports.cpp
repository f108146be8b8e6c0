// The schedule on paper, in a workbook, as a web page.

#include "common/FileReplacement.h"
#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "controls/paper/PrintDialogs.h"
#include "controls/paper/SheetPrinter.h"
#include "spread/VisibleCopy.h"
#include "tools/schedule/ctlSchedule.h"
#include "webpage/WebPage.h"
#include "workbook/CsvWriter.h"
#include "workbook/Workbook.h"
#include "workbook/XlsxWriter.h"

#include <QPointer>
#include <QScopeGuard>

namespace schedules {

namespace {

// What the dialogs are asked for: prompts before overwriting, an existing path, and the like.
constexpr int kWorkbookDialogFlags = 2140166;
constexpr int kWebPageDialogFlags = 2054;

const QString kTwoLines = QStringLiteral("\r\n\r\n");

FileQuestion WorkbookQuestion()
{
    return {LoadResString(kExportWorkbookTitle),
            QStringLiteral("Schedule"),
            QStringLiteral(".xls"),
            {QStringLiteral("Microsoft Excel 97 Workbook(*.xls)|*.xls")},
            kWorkbookDialogFlags};
}

FileQuestion WebPageQuestion()
{
    return {LoadResString(kExportCaption),
            QStringLiteral("*.htm"),
            QStringLiteral(".htm"),
            {QStringLiteral("Web Page (*.htm; *.html)|*.htm")},
            kWebPageDialogFlags};
}

/// Runs what may fail; returns what went wrong.
template <std::invocable Body>
QString FailureOf(Body&& body)
{
    try {
        body();
    } catch (...) {
        return CurrentError().Description();
    }
    return {};
}

} // namespace

void ctlSchedule::ExportShown()
{
    ExportToExcel(*m_engine.Sched(), *m_exported);
}

/// Its result is not told to the user.
void ctlSchedule::ExportToExcel(const Sheet& source, Sheet& target)
{
    const QPointer<ctlSchedule> alive(this);
    const QString fileName = Ui().AskSaveFileName(WorkbookQuestion());
    if (!alive || fileName.isEmpty())
        return;
    const auto emptied = qScopeGuard([&] { target.Reset(); });
    const QString failure = FailureOf([&] {
        CopyVisible(source, target);
        WriteWorkbook(target, LoadResString(kDefaultTitle), fileName, layoutDirection());
    });
    if (!failure.isEmpty())
        Trace(Qualified(__func__) + QStringLiteral(": ") + failure);
}

void ctlSchedule::ExportToHTML()
{
    const QPointer<ctlSchedule> alive(this);
    const QString fileName = Ui().AskSaveFileName(WebPageQuestion());
    if (!alive || fileName.isEmpty())
        return;
    const QString logName = fileName + QStringLiteral(".LOG");
    const QString failure = FailureOf([&] { WriteHtml(fileName); });
    if (failure.isEmpty()) {
        Ui().Show({LoadResString(kExported) + kTwoLines + LoadResString(kExportedFile) + u' ' + fileName, kInformation,
                   LoadResString(kExportTitle)});
        return;
    }
    IgnoringErrors([&] { ReplaceFile(logName, (fileName + QStringLiteral(": ") + failure + u'\n').toUtf8()); });
    Ui().Show({LoadResString(kNotExported) + kTwoLines + LoadResString(kExportLogFile) + u' ' + logName, kExclamation,
               LoadResString(kExportTitle)});
}

void ctlSchedule::WriteHtml(const QString& fileName) const
{
    const QString language = ResourceLanguage();
    const PageInfo page{m_engine.Title(), language.isEmpty() ? locale().bcp47Name() : language,
                        ComponentText("checked"), ComponentText("unchecked"), layoutDirection()};
    WriteWebPage(*m_engine.Sched(), page, fileName);
}

/// The engine hands its job over before there is any dialog: the host may take the view away while one is open.
void ctlSchedule::PrintSchedule()
{
    if (const auto job = JobOf(QPageSize(QPageSize::A4), PrintAction::Smart))
        PrintDialogs(this, Ui()).Run(*job);
}

std::optional<PrintJob> ctlSchedule::JobOf(const QPageSize& paper, PrintAction action)
{
    std::optional<PrintJob> job;
    SheetPrinter printer({.title = m_engine.Title(), .paper = paper, .direction = layoutDirection()},
                         [&](const PrintJob& handedOver) { job = handedOver; });
    m_engine.SetSmartPrint(action == PrintAction::Smart);
    m_engine.SetSheetPrinter(&printer);
    const QPointer<QWidget> alive(this);
    m_engine.PrintSched();
    RequireAlive(alive);
    m_engine.SetSheetPrinter(nullptr);
    return job;
}

QString ctlSchedule::WriteFile(const QString& format, const QString& fileName)
{
    BeginCommand();
    const auto emptied = qScopeGuard([this] { m_exported->Reset(); });
    return FailureOf([&] {
        CopyVisible(*m_engine.Sched(), *m_exported);
        if (format == QLatin1String("xls"))
            WriteWorkbook(*m_exported, LoadResString(kDefaultTitle), fileName, layoutDirection());
        else if (format == QLatin1String("xlsx"))
            WriteXlsx(*m_exported, LoadResString(kDefaultTitle), fileName, layoutDirection());
        else if (format == QLatin1String("csv"))
            WriteCsv(*m_exported, fileName);
        else if (format == QLatin1String("html"))
            WriteHtml(fileName);
        else
            throw Error(kUnexpectedError, QStringLiteral("There is no format \"%1\".").arg(format));
    });
}

QString ctlSchedule::WritePdf(const QString& fileName, bool smart, int pageSize)
{
    BeginCommand();
    const QPageSize paper(static_cast<QPageSize::PageSizeId>(pageSize));
    return FailureOf([&] {
        const auto job = JobOf(paper, smart ? PrintAction::Smart : PrintAction::Plain);
        if (!job)
            throw Error(kUnexpectedError, QStringLiteral("The schedule was not printed."));
        ReplaceFile(fileName, PdfOf(*job));
    });
}

} // namespace schedules
