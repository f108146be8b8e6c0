#pragma once

#include "controls/paper/SheetPrinter.h"
#include "controls/paper/SheetPrinterWatch.h"

#include <QDialog>

#include <exception>

class QBoxLayout;
class QComboBox;
class QLabel;
class QToolButton;

namespace schedules {

class PreviewStage;

/// Shows the pages of a print job as they will be on paper, one at a time, and asks what to do with the job. Only the
/// page that is shown is painted, so that a job of thousands of pages opens as fast as one of a few.
class PrintPreview : public QDialog
{
    Q_OBJECT

public:
    enum class Choice
    {
        Cancel,
        Print,
        SavePdf
    };

    /// Without a printer, printing is not offered.
    PrintPreview(const PrintJob& job, bool hasPrinter, QWidget* parent);

    struct Answer
    {
        Choice choice = Choice::Cancel;
        PrintJob job; ///< on the paper that the user has chosen
    };

    /// Shows the dialog until the user has chosen. A dialog whose parent is deleted meanwhile is deleted, too, and
    /// counts as cancelled. Throws `Error` when a page cannot be painted, or the sheet changes or is deleted.
    static Answer Ask(const PrintJob& job, bool hasPrinter, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLayout* NavigationRow();
    QToolButton* AddStep(QBoxLayout& row, Qt::ArrowType arrow, const QString& name, int step);
    void AddPapers(QBoxLayout& row);
    QLayout* ChoiceRow(bool hasPrinter);
    void AddChoice(QBoxLayout& row, const QString& text, Choice choice);
    void UsePaper(const QPageSize& paper);
    void Step(int step);
    void Refresh();
    void Choose(Choice choice);
    Answer GivenAnswer() const;

    PrintJob m_job;
    SheetPrinterWatch m_watch;
    PreviewStage* m_stage;
    QLabel* m_pageLabel = nullptr;
    QToolButton* m_previous = nullptr;
    QToolButton* m_next = nullptr;
    Choice m_choice = Choice::Cancel;
    std::exception_ptr m_failure;
};

} // namespace schedules
