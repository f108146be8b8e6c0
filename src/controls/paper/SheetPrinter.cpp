#include "controls/paper/SheetPrinter.h"

#include "common/Error.h"
#include "controls/paper/SheetPrinterPages.h"
#include "controls/paper/SheetPrinterWatch.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QPdfWriter>
#include <QPrinter>
#include <QScopeGuard>

#include <utility>

namespace schedules {

namespace {

/// A unit of the document is a twip, so that nothing is rounded.
constexpr int kPdfResolution = 1440;

void Require(bool done)
{
    if (!done)
        throw Error(kUnexpectedError, QStringLiteral("The printer does not take the pages."));
}

/// The pages to be printed, from 0.
std::vector<int> PagesOf(const PrintJob& job, int count)
{
    std::vector<int> pages;
    for (int page = 0; page < count; ++page) {
        if (job.pages.isEmpty() || job.pages.contains(page + 1))
            pages.push_back(page);
    }
    if (pages.empty()) {
        throw Error(kUnexpectedError, QStringLiteral("There is nothing to print on the pages %1: the last page is %2.")
                                          .arg(job.pages.toString())
                                          .arg(count));
    }
    return pages;
}

/// Takes back what has been painted, on systems that can.
void Withdraw(QPagedPaintDevice& device)
{
    if (auto* const printer = dynamic_cast<QPrinter*>(&device))
        printer->abort();
}

bool PaintOn(QPagedPaintDevice& device, const PrintJob& job, const PrintProgress& progress)
{
    const SheetPrinterWatch watch(*job.sheet);
    SheetPrinterPages pages(job, device);
    const std::vector<int> numbers = PagesOf(job, pages.Count());
    Require(device.setPageLayout(pages.PageLayout()));
    QPainter painter;
    auto withdrawal = qScopeGuard([&device] { Withdraw(device); });
    for (const int number : numbers) {
        if (progress && !progress(number + 1, pages.Count()))
            return false;
        watch.RequireUnchanged();
        Require(painter.isActive() ? device.newPage() : painter.begin(&device));
        pages.Paint(painter, number);
    }
    Require(painter.end());
    withdrawal.dismiss();
    return true;
}

} // namespace

SheetPrinter::SheetPrinter(PrintJob job, Deliver deliver) : m_job(std::move(job)), m_deliver(std::move(deliver)) {}

void SheetPrinter::SetOption(PrintOption option, bool print)
{
    m_job.setup.options[static_cast<std::size_t>(option)] = print;
}

void SheetPrinter::SetHeader(const QString& codes)
{
    m_job.setup.header = codes;
}

void SheetPrinter::SetMargin(PageEdge edge, int twips)
{
    m_job.setup.margins[static_cast<std::size_t>(edge)] = twips;
}

void SheetPrinter::Print(const Sheet& sheet, PrintAction action)
{
    m_job.sheet = &sheet;
    m_job.setup.action = action;
    m_deliver(m_job);
}

bool PrintOn(QPagedPaintDevice& device, const PrintJob& job, const PrintProgress& progress)
{
    return !PdfOf(job, progress).isEmpty() && PaintOn(device, job, {});
}

QByteArray PdfOf(const PrintJob& job, const PrintProgress& progress)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(kPdfResolution);
    writer.setTitle(job.title);
    writer.setCreator(QCoreApplication::applicationName());
    return PaintOn(writer, job, progress) ? bytes : QByteArray();
}

} // namespace schedules
