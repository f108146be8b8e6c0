#pragma once

#include "framework/IScheduleView.h"
#include "spread/PrintSetup.h"
#include "tools/schedule/ViewLink.h"

#include <QPageSize>

#include <optional>

namespace schedules {

class ShownTable;
struct PrintJob;

/// The schedule on paper.
class SchedulePrinting
{
public:
    /// Both must outlive the printing.
    SchedulePrinting(const ViewLink& link, ShownTable& table) : m_link(link), m_table(table) {}

    /// A preview, then the desktop's dialog or a PDF file.
    void Print();

    /// Returns what went wrong, an empty text when it is done.
    QString WritePdf(const QString& fileName, const PaperOptions& options);

private:
    std::optional<PrintJob> JobOf(const QPageSize& paper, PrintAction action);

    const ViewLink& m_link;
    ShownTable& m_table;
};

} // namespace schedules
