#include "controls/paper/PrintPreview.h"

#include "common/modResource.h"
#include "controls/paper/PreviewStage.h"

#include <QComboBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QToolButton>
#include <QVBoxLayout>

#include <array>

namespace schedules {

namespace {

/// What engineers' offices have in their printers.
constexpr std::array kPapers{QPageSize::A4,     QPageSize::A3,    QPageSize::A2,      QPageSize::A1,
                             QPageSize::Letter, QPageSize::Legal, QPageSize::Tabloid, QPageSize::AnsiC};

constexpr double kShareOfScreen = 0.85;

} // namespace

PrintPreview::PrintPreview(const PrintJob& job, bool hasPrinter, QWidget* parent)
    : QDialog(parent), m_job(job), m_watch(*job.sheet, [this] { reject(); }), m_stage(new PreviewStage(this))
{
    setWindowTitle(ComponentText("Print preview"));
    setSizeGripEnabled(true);
    auto* const rows = new QVBoxLayout(this);
    rows->addLayout(NavigationRow());
    rows->addWidget(m_stage, 1);
    rows->addLayout(ChoiceRow(hasPrinter));
    m_stage->Show(m_job, 0);
    Refresh();
    resize(sizeHint().expandedTo(screen()->availableSize() * kShareOfScreen).boundedTo({1100, 1000}));
}

PrintPreview::Answer PrintPreview::Ask(const PrintJob& job, bool hasPrinter, QWidget* parent)
{
    const QPointer preview = new PrintPreview(job, hasPrinter, parent);
    const auto end = qScopeGuard([&preview] { delete preview; });
    preview->exec();
    return preview ? preview->GivenAnswer() : Answer();
}

PrintPreview::Answer PrintPreview::GivenAnswer() const
{
    m_watch.RequireUnchanged();
    if (m_failure)
        std::rethrow_exception(m_failure);
    return {m_choice, m_job};
}

QLayout* PrintPreview::NavigationRow()
{
    auto* const row = new QHBoxLayout;
    m_previous = AddStep(*row, Qt::LeftArrow, ComponentText("Previous page"), -1);
    m_pageLabel = new QLabel(this);
    row->addWidget(m_pageLabel);
    m_next = AddStep(*row, Qt::RightArrow, ComponentText("Next page"), 1);
    row->addStretch();
    AddPapers(*row);
    return row;
}

QToolButton* PrintPreview::AddStep(QBoxLayout& row, Qt::ArrowType arrow, const QString& name, int step)
{
    auto* const button = new QToolButton(this);
    button->setArrowType(arrow);
    button->setToolTip(name);
    button->setAccessibleName(name);
    button->setAutoRepeat(true);
    connect(button, &QToolButton::clicked, this, [this, step] { Step(step); });
    row.addWidget(button);
    return button;
}

void PrintPreview::AddPapers(QBoxLayout& row)
{
    auto* const papers = new QComboBox(this);
    for (const QPageSize::PageSizeId id : kPapers)
        papers->addItem(QPageSize::name(id), id);
    if (papers->findData(m_job.paper.id()) < 0)
        papers->insertItem(0, m_job.paper.name(), m_job.paper.id());
    papers->setCurrentIndex(papers->findData(m_job.paper.id()));
    auto* const label = new QLabel(ComponentText("Paper:"), this);
    label->setBuddy(papers);
    connect(papers, &QComboBox::currentIndexChanged, this, [this, papers, own = m_job.paper](int index) {
        const auto id = static_cast<QPageSize::PageSizeId>(papers->itemData(index).toInt());
        UsePaper(id == own.id() ? own : QPageSize(id));
    });
    row.addWidget(label);
    row.addWidget(papers);
}

QLayout* PrintPreview::ChoiceRow(bool hasPrinter)
{
    auto* const row = new QHBoxLayout;
    row->addStretch();
    if (hasPrinter)
        AddChoice(*row, ComponentText("Print..."), Choice::Print);
    AddChoice(*row, ComponentText("Save as PDF..."), Choice::SavePdf);
    AddChoice(*row, ComponentText("Close"), Choice::Cancel);
    findChild<QPushButton*>()->setFocus();
    return row;
}

void PrintPreview::AddChoice(QBoxLayout& row, const QString& text, Choice choice)
{
    auto* const button = new QPushButton(text, this);
    connect(button, &QPushButton::clicked, this, [this, choice] { Choose(choice); });
    row.addWidget(button);
}

void PrintPreview::UsePaper(const QPageSize& paper)
{
    m_job.paper = paper;
    Step(0);
}

void PrintPreview::Step(int step)
{
    try {
        m_stage->Show(m_job, m_stage->Page() + step);
        Refresh();
    } catch (...) {
        m_failure = std::current_exception();
        reject();
    }
}

void PrintPreview::Refresh()
{
    m_pageLabel->setText(ComponentText("Page %1 of %2").arg(m_stage->Page() + 1).arg(m_stage->PageCount()));
    m_stage->setAccessibleName(m_pageLabel->text());
    m_previous->setEnabled(m_stage->Page() > 0);
    m_next->setEnabled(m_stage->Page() + 1 < m_stage->PageCount());
}

void PrintPreview::Choose(Choice choice)
{
    m_choice = choice;
    done(choice == Choice::Cancel ? Rejected : Accepted);
}

void PrintPreview::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_PageUp:
        return Step(-1);
    case Qt::Key_PageDown:
        return Step(1);
    case Qt::Key_Home:
        return Step(-m_stage->Page());
    case Qt::Key_End:
        return Step(m_stage->PageCount());
    default:
        return QDialog::keyPressEvent(event);
    }
}

} // namespace schedules
