// The schedule on paper, in a workbook, as a web page.

#include "common/FileReplacement.h"
#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "controls/PrintDialogs.h"
#include "controls/SheetPrinter.h"
#include "spread/VisibleCopy.h"
#include "tools/schedule/ctlSchedule.h"
#include "webpage/WebPage.h"
#include "workbook/CsvWriter.h"
#include "workbook/Workbook.h"
#include "workbook/XlsxWriter.h"

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
    const QString fileName = Ui().AskSaveFileName(WorkbookQuestion());
    if (fileName.isEmpty())
        return;
    const auto emptied = qScopeGuard([&] { target.Reset(); });
    const QString failure = FailureOf([&] {
        CopyVisible(source, target);
        WriteWorkbook(target, LoadResString(kDefaultTitle), fileName);
    });
    if (!failure.isEmpty())
        Trace(Qualified(__func__) + QStringLiteral(": ") + failure);
}

void ctlSchedule::ExportToHTML()
{
    const QString fileName = Ui().AskSaveFileName(WebPageQuestion());
    if (fileName.isEmpty())
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
    const PageInfo page{m_engine.Title(), locale().bcp47Name(), ComponentText("checked"), ComponentText("unchecked")};
    WriteWebPage(*m_engine.Sched(), page, fileName);
}

void ctlSchedule::PrintSchedule()
{
    SheetPrinter printer({.title = m_engine.Title(), .direction = layoutDirection()},
                         [this](const PrintJob& job) { PrintDialogs(this, Ui()).Run(job); });
    m_engine.SetSmartPrint(true);
    m_engine.SetSheetPrinter(&printer);
    m_engine.PrintSched();
    m_engine.SetSheetPrinter(nullptr);
}

QString ctlSchedule::WriteFile(const QString& format, const QString& fileName)
{
    BeginCommand();
    const auto emptied = qScopeGuard([this] { m_exported->Reset(); });
    return FailureOf([&] {
        CopyVisible(*m_engine.Sched(), *m_exported);
        if (format == QLatin1String("xls"))
            WriteWorkbook(*m_exported, LoadResString(kDefaultTitle), fileName);
        else if (format == QLatin1String("xlsx"))
            WriteXlsx(*m_exported, LoadResString(kDefaultTitle), fileName);
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
    const auto size = static_cast<QPageSize::PageSizeId>(pageSize);
    return FailureOf([&] {
        QByteArray pdf;
        SheetPrinter printer({.title = m_engine.Title(), .paper = QPageSize(size), .direction = layoutDirection()},
                             [&](const PrintJob& job) { pdf = PdfOf(job); });
        const auto detached = qScopeGuard([this] { m_engine.SetSheetPrinter(nullptr); });
        m_engine.SetSmartPrint(smart);
        m_engine.SetSheetPrinter(&printer);
        m_engine.PrintSched();
        if (pdf.isEmpty())
            throw Error(kUnexpectedError, QStringLiteral("The schedule was not printed."));
        ReplaceFile(fileName, pdf);
    });
}

} // namespace schedules
