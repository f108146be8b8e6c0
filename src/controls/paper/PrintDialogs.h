#pragma once

#include "common/UserInterface.h"
#include "controls/paper/SheetPrinter.h"

#include <QPointer>
#include <QWidget>

#include <functional>

class QPrinter;

namespace schedules {

/// The printers of a desktop.
struct PrinterDesk
{
    std::function<bool()> hasPrinter; ///< whether any printer is installed

    /// Shows the platform's print dialog for a job of so many pages, which sets the printer up; false when the user
    /// cancels, or the window is deleted meanwhile.
    std::function<bool(QPrinter& printer, int pages, QWidget* window)> ask;

    static PrinterDesk OfPlatform();
};

/// How a desktop's user prints a job: a preview, then the platform's print dialog or a PDF file. Without any printer
/// there is the PDF file alone. A job of more than a second shows its progress and can be cancelled.
class PrintDialogs
{
public:
    /// Without a parent, or after its end, dialogs stand alone. The file's name is asked for through `userInterface`.
    PrintDialogs(QWidget* parent, UserInterface& userInterface, PrinterDesk desk = PrinterDesk::OfPlatform());

    /// Returns when the job is printed or cancelled. Throws `Error` when it fails, as it does when the sheet changes
    /// meanwhile; a PDF file that was there before is then as it was. When the parent or its window is deleted
    /// meanwhile, with all that belongs to it, the job counts as cancelled.
    void Run(const PrintJob& job);

private:
    QWidget* Window() const;
    void Deliver(const PrintJob& job);
    void Print(PrintJob job);
    void SavePdf(const PrintJob& job);
    void WritePdf(const PrintJob& job, const QString& fileName);

    QPointer<QWidget> m_parent;
    UserInterface& m_userInterface;
    PrinterDesk m_desk;
};

} // namespace schedules
