#include "tools/schedule/output/SchedulePrinting.h"

#include "common/Error.h"
#include "common/FileReplacement.h"
#include "controls/paper/PrintDialogs.h"
#include "controls/paper/SheetPrinter.h"
#include "tools/schedule/table/ShownTable.h"

namespace schedules {

/// The engine hands its job over before there is any dialog: the host may take the view away while one is open.
void SchedulePrinting::Print()
{
    if (const auto job = JobOf(QPageSize(QPageSize::A4), PrintAction::Smart))
        PrintDialogs(&m_link.view, m_link.user).Run(*job);
}

QString SchedulePrinting::WritePdf(const QString& fileName, const PaperOptions& options)
{
    const QPageSize paper(static_cast<QPageSize::PageSizeId>(options.pageSize.value_or(QPageSize::A4)));
    return FailureOf([&] {
        const auto job = JobOf(paper, options.smart ? PrintAction::Smart : PrintAction::Plain);
        if (!job)
            throw Error(kUnexpectedError, QStringLiteral("The schedule was not printed."));
        ReplaceFile(fileName, PdfOf(*job));
    });
}

std::optional<PrintJob> SchedulePrinting::JobOf(const QPageSize& paper, PrintAction action)
{
    CSchedule& engine = m_table.Engine();
    std::optional<PrintJob> job;
    SheetPrinter printer({.title = engine.Title(), .paper = paper, .direction = m_link.view.layoutDirection()},
                         [&](const PrintJob& handedOver) { job = handedOver; });
    engine.SetSmartPrint(action == PrintAction::Smart);
    engine.SetSheetPrinter(&printer);
    RequireOutlived(m_link.view, [&] { engine.PrintSched(); });
    engine.SetSheetPrinter(nullptr);
    return job;
}

} // namespace schedules
