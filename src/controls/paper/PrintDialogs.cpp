#include "controls/paper/PrintDialogs.h"

#include "common/FileReplacement.h"
#include "common/modResource.h"
#include "controls/paper/PrintPreview.h"
#include "controls/paper/SheetPrinterPages.h"
#include "controls/paper/SheetPrinterWatch.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProgressBar>
#include <QProgressDialog>
#include <QRegularExpression>

namespace schedules {

namespace {

constexpr int kQuietMilliseconds = 1000;

/// Tells the user how far a print is, from when it takes long.
class ShownProgress
{
public:
    explicit ShownProgress(QWidget* window)
        : m_dialog(new QProgressDialog({}, ComponentText("Cancel"), 0, 0, window)), m_bar(new QProgressBar)
    {
        m_dialog->setBar(m_bar);
        m_dialog->setWindowModality(Qt::WindowModal);
        m_time.start();
    }
    ~ShownProgress() { delete m_dialog; }
    Q_DISABLE_COPY_MOVE(ShownProgress)

    bool operator()(int page, int pages)
    {
        if (m_time.elapsed() < kQuietMilliseconds)
            return true;
        if (m_dialog)
            Tell(page, pages);
        QCoreApplication::processEvents();
        return m_dialog && !m_dialog->wasCanceled();
    }

private:
    /// The dialog's own way to set its value handles events, and does not survive being deleted by one.
    void Tell(int page, int pages)
    {
        m_dialog->setMaximum(pages);
        m_dialog->setLabelText(ComponentText("Printing page %1 of %2").arg(page).arg(pages));
        m_bar->setValue(page - 1);
        m_dialog->show();
    }

    QPointer<QProgressDialog> m_dialog;
    QProgressBar* m_bar;
    QElapsedTimer m_time;
};

/// A title as the name of a file.
QString PdfNameFor(const QString& title)
{
    static const QRegularExpression forbidden(QStringLiteral(R"re([\x00-\x1F"*/:<>?\\|]+)re"));
    return QString(title).replace(forbidden, QStringLiteral("-")).trimmed() + QStringLiteral(".pdf");
}

bool AskPrinter(QPrinter& printer, int pages, QWidget* window)
{
    const QPointer dialog = new QPrintDialog(&printer, window);
    dialog->setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
                       QAbstractPrintDialog::PrintCollateCopies);
    dialog->setMinMax(1, pages);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    delete dialog;
    return accepted;
}

/// What the user has changed in the print dialog.
void TakeOver(PrintJob& job, const QPrinter& printer)
{
    const QPageLayout layout = printer.pageLayout();
    job.paper = layout.pageSize();
    job.pages = printer.pageRanges();
    const bool across = layout.orientation() == QPageLayout::Landscape;
    job.setup.orientation = across ? PageOrientation::Across : PageOrientation::Upright;
}

} // namespace

PrinterDesk PrinterDesk::OfPlatform()
{
    return {.hasPrinter = [] { return !QPrinterInfo::availablePrinterNames().isEmpty(); }, .ask = AskPrinter};
}

PrintDialogs::PrintDialogs(QWidget* parent, UserInterface& userInterface, PrinterDesk desk)
    : m_parent(parent), m_userInterface(userInterface), m_desk(std::move(desk))
{
}

QWidget* PrintDialogs::Window() const
{
    return m_parent ? m_parent->window() : nullptr;
}

void PrintDialogs::Run(const PrintJob& job)
{
    const bool standsAlone = !m_parent;
    try {
        Deliver(job);
    } catch (...) {
        // The sheet goes with the parent, and so do those who could be told.
        if (standsAlone || m_parent)
            throw;
    }
}

void PrintDialogs::Deliver(const PrintJob& job)
{
    const auto answer = PrintPreview::Ask(job, m_desk.hasPrinter(), Window());
    switch (answer.choice) {
    case PrintPreview::Choice::Print:
        return Print(answer.job);
    case PrintPreview::Choice::SavePdf:
        return SavePdf(answer.job);
    case PrintPreview::Choice::Cancel:
        return;
    }
}

void PrintDialogs::Print(PrintJob job)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(job.title);
    const SheetPrinterPages pages(job, printer);
    printer.setPageLayout(pages.PageLayout());
    const SheetPrinterWatch watch(*job.sheet);
    if (!m_desk.ask(printer, pages.Count(), Window()))
        return;
    watch.RequireUnchanged();
    TakeOver(job, printer);
    // Written by the printer, a file on a full disk would look like a success.
    if (!printer.outputFileName().isEmpty())
        return WritePdf(job, printer.outputFileName());
    ShownProgress progress(Window());
    PrintOn(printer, job, std::ref(progress));
}

void PrintDialogs::SavePdf(const PrintJob& job)
{
    const SheetPrinterWatch watch(*job.sheet);
    const QString fileName = m_userInterface.AskSaveFileName({.title = ComponentText("Save as PDF..."),
                                                              .fileName = PdfNameFor(job.title),
                                                              .defaultSuffix = QStringLiteral("pdf"),
                                                              .filters = {ComponentText("PDF documents (*.pdf)")},
                                                              .flags = kOverwritePrompt | kPathMustExist});
    if (fileName.isEmpty())
        return;
    watch.RequireUnchanged();
    WritePdf(job, fileName);
}

void PrintDialogs::WritePdf(const PrintJob& job, const QString& fileName)
{
    ShownProgress progress(Window());
    const QByteArray pdf = PdfOf(job, std::ref(progress));
    if (!pdf.isEmpty())
        ReplaceFile(fileName, pdf);
}

} // namespace schedules
