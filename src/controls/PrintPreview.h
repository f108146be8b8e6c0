#pragma once

#include "controls/SheetPrinter.h"

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

    /// Shows the dialog until the user has chosen. Throws `Error` when a page cannot be painted.
    Choice Ask();

    /// The job on the paper that the user has chosen.
    const PrintJob& Job() const { return m_job; }

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

    PrintJob m_job;
    PreviewStage* m_stage;
    QLabel* m_pageLabel = nullptr;
    QToolButton* m_previous = nullptr;
    QToolButton* m_next = nullptr;
    Choice m_choice = Choice::Cancel;
    std::exception_ptr m_failure;
};

} // namespace schedules
