#pragma once

#include "spread/PrintSetup.h"
#include "spread/Sheet.h"

#include <QByteArray>
#include <QPageRanges>
#include <QPageSize>
#include <QPagedPaintDevice>

#include <functional>

namespace schedules {

/// All that decides how a sheet comes to paper.
struct PrintJob
{
    const Sheet* sheet = nullptr; ///< must outlive the job
    PrintSetup setup;
    QString title; ///< of the document, for those who look it up
    QPageSize paper{QPageSize::A4};
    QPageRanges pages; ///< those to be printed; none stands for all
    Qt::LayoutDirection direction = Qt::LeftToRight;
};

/// Is told before each page which one it is, from 1, and of how many; printing ends when it returns false. It may
/// handle events; a sheet that changes, or is deleted, meanwhile ends the printing with an `Error`.
using PrintProgress = std::function<bool(int page, int pages)>;

/// Takes an engine's settings and delivers them, with the sheet, as one job.
class SheetPrinter : public ISheetPrinter
{
public:
    using Deliver = std::function<void(const PrintJob& job)>;

    /// `job` holds what the engine does not set.
    SheetPrinter(PrintJob job, Deliver deliver);

    void SetOption(PrintOption option, bool print) override;
    void SetHeader(const QString& codes) override;
    void SetMargin(PageEdge edge, int twips) override;
    void Print(const Sheet& sheet, PrintAction action) override;

private:
    PrintJob m_job;
    Deliver m_deliver;
};

/// Prints on a device. Paper, orientation and margins are set on it. Returns whether it came to the end; false when it
/// was cancelled. Throws `Error` when the device fails, no font is there, or none of the job's pages exists.
///
/// A printer prints what it has got, be it complete or not. So all pages are rehearsed first, with the progress, and a
/// job that is cancelled or fails then leaves the device untouched; the pages themselves follow in one go.
bool PrintOn(QPagedPaintDevice& device, const PrintJob& job, const PrintProgress& progress = {});

/// The job as a PDF document with text that can be searched and fonts embedded. Empty when it was cancelled, and only
/// then: a failure throws `Error` as above.
QByteArray PdfOf(const PrintJob& job, const PrintProgress& progress = {});

} // namespace schedules
