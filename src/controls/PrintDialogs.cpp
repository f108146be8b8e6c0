#include "controls/PrintDialogs.h"

#include "common/FileReplacement.h"
#include "common/modResource.h"
#include "controls/PrintPreview.h"
#include "controls/SheetPrinterPages.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProgressDialog>
#include <QRegularExpression>

namespace schedules {

namespace {

constexpr int kQuietMilliseconds = 1000;

/// Tells the user how far a print is, from when it takes long.
class ShownProgress
{
public:
    explicit ShownProgress(QWidget* window) : m_dialog({}, ComponentText("Cancel"), 0, 0, window)
    {
        m_dialog.setWindowModality(Qt::WindowModal);
        m_dialog.setMinimumDuration(kQuietMilliseconds);
    }

    bool operator()(int page, int pages)
    {
        m_dialog.setMaximum(pages);
        m_dialog.setLabelText(ComponentText("Printing page %1 of %2").arg(page).arg(pages));
        m_dialog.setValue(page - 1);
        return !m_dialog.wasCanceled();
    }

private:
    QProgressDialog m_dialog;
};

/// A title as the name of a file.
QString PdfNameFor(const QString& title)
{
    static const QRegularExpression forbidden(QStringLiteral(R"re([\x00-\x1F"*/:<>?\\|]+)re"));
    return QString(title).replace(forbidden, QStringLiteral("-")).trimmed() + QStringLiteral(".pdf");
}

bool AskPrinter(QPrinter& printer, QWidget* window)
{
    QPrintDialog dialog(&printer, window);
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
                      QAbstractPrintDialog::PrintCollateCopies);
    return dialog.exec() == QDialog::Accepted;
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
    PrintPreview preview(job, m_desk.hasPrinter(), Window());
    switch (preview.Ask()) {
    case PrintPreview::Choice::Print:
        return Print(preview.Job());
    case PrintPreview::Choice::SavePdf:
        return SavePdf(preview.Job());
    case PrintPreview::Choice::Cancel:
        return;
    }
}

void PrintDialogs::Print(PrintJob job)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(job.title);
    printer.setPageLayout(SheetPrinterPages(job, printer).PageLayout());
    if (!m_desk.ask(printer, Window()))
        return;
    TakeOver(job, printer);
    // Written by the printer, a file on a full disk would look like a success.
    if (!printer.outputFileName().isEmpty())
        return WritePdf(job, printer.outputFileName());
    ShownProgress progress(Window());
    PrintOn(printer, job, std::ref(progress));
}

void PrintDialogs::SavePdf(const PrintJob& job)
{
    const QString fileName = m_userInterface.AskSaveFileName({.title = ComponentText("Save as PDF..."),
                                                              .fileName = PdfNameFor(job.title),
                                                              .defaultSuffix = QStringLiteral("pdf"),
                                                              .filters = {ComponentText("PDF documents (*.pdf)")},
                                                              .flags = kOverwritePrompt | kPathMustExist});
    if (!fileName.isEmpty())
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
