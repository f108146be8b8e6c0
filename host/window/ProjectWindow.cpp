#include "host/window/ProjectWindow.h"

#include "host/HostError.h"
#include "host/HostRouter.h"
#include "host/MessageDock.h"
#include "host/OptionsTool.h"
#include "host/ScheduleTool.h"
#include "host/Session.h"
#include "host/window/CategoryDock.h"
#include "host/window/ConflictDialog.h"
#include "host/window/HelpWindow.h"
#include "host/window/MessageBar.h"

#include <QCloseEvent>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QStackedWidget>
#include <QStatusBar>
#include <QVBoxLayout>

namespace schedules::host {

namespace {

constexpr QSize kPreferredSize{1440, 900};
constexpr int kMessageLines = 9;

QDockWidget* OptionsDock(QWidget* parent)
{
    auto* dock = new QDockWidget(ProjectWindow::tr("Template"), parent);
    dock->setObjectName(QStringLiteral("dockOptions"));
    dock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
    dock->hide();
    return dock;
}

/// What is shown while there is no view.
QLabel* Invitation(QWidget* parent)
{
    auto* label = new QLabel(ProjectWindow::tr("Choose a category at the left."), parent);
    label->setAlignment(Qt::AlignCenter);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

} // namespace

ProjectWindow::ProjectWindow(Session& session, const Answering& answering, ConflictQuestion conflicts)
    : m_session(session),
      m_answering(answering),
      m_conflicts(std::move(conflicts)),
      m_bar(new MessageBar(this)),
      m_place(new QStackedWidget(this)),
      m_categories(new CategoryDock(this)),
      m_optionsDock(OptionsDock(this)),
      m_messages(new MessageDock(this))
{
    if (!m_conflicts)
        m_conflicts = [this](const QList<Conflict>& found) { return AskConflicts(found); };
    auto* center = new QWidget(this);
    auto* column = new QVBoxLayout(center);
    column->setContentsMargins({});
    column->addWidget(m_bar);
    column->addWidget(m_place, 1);
    m_place->addWidget(Invitation(m_place));
    setCentralWidget(center);
    addDockWidget(Qt::LeftDockWidgetArea, m_categories);
    addDockWidget(Qt::RightDockWidgetArea, m_optionsDock);
    addDockWidget(Qt::BottomDockWidgetArea, m_messages);
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    BuildFileMenu();
    BuildViewMenu();
    BuildHelpMenu();
    statusBar();
    setWindowTitle(tr("Equipment Schedules"));
    connect(m_categories, &CategoryDock::CategoryChosen, this, &ProjectWindow::ChooseCategory);
    connect(m_categories, &CategoryDock::TemplateChosen, this, &ProjectWindow::ChooseTemplate);
    connect(m_bar, &MessageBar::OfferTaken, this, [this] { Guarded([this] { AdoptOrphans(); }); });
    connect(&m_session.Router(), &HostRouter::Crossed, this, &ProjectWindow::OnCrossed);
    Restore();
}

ProjectWindow::~ProjectWindow()
{
    // The tools send their last messages while there is still somebody who answers.
    m_options.reset();
    m_view.reset();
}

void ProjectWindow::Restore()
{
    resize(kPreferredSize.boundedTo(screen()->availableSize() * 9 / 10));
    resizeDocks({m_messages}, {kMessageLines * fontMetrics().lineSpacing()}, Qt::Vertical);
    restoreGeometry(m_settings.Geometry());
    restoreState(m_settings.Layout());
    m_optionsDock->hide(); // it comes with the editor
}

bool ProjectWindow::Open(const QString& address, const QString& language)
{
    if (!MayClose())
        return false;
    try {
        Show(Project::Open(address), language);
        return true;
    } catch (const HostError& error) {
        QMessageBox::warning(this, windowTitle(), error.Line());
        return false;
    }
}

void ProjectWindow::Show(std::unique_ptr<Project> project, const QString& language)
{
    auto folder = std::make_unique<TemplateFolder>(*project, OwnTemplateFolder(*project));
    folder->LayOut();
    EndOptions();
    EndView();
    m_open.answers.reset(); // it takes its answers back before the next one gives its own
    auto answers = std::make_unique<ProjectAnswers>(m_session.Router(), *project, *folder, m_conflicts);
    m_language = language.isEmpty() ? project->Language() : language;
    m_session.UseLanguage(m_language);
    m_open = {std::move(project), std::move(folder), std::move(answers)};
    Connect(*m_open.answers);
    m_settings.AddRecentProject(m_open.project->Address().Text());
    ListRecent();
    CheckChoices();
    setWindowTitle(tr("%1 - Equipment Schedules").arg(m_open.project->Address().Name()));
    const QList<Category> categories = m_open.project->Categories();
    ListCategories();
    OfferOrphans();
    if (!categories.isEmpty())
        ChooseCategory(categories.first().name);
}

void ProjectWindow::Connect(const ProjectAnswers& answers)
{
    connect(&answers, &ProjectAnswers::TemplateChosen, this, &ProjectWindow::UseTemplate);
    connect(&answers, &ProjectAnswers::TemplatesChanged, this, &ProjectWindow::ListCategories);
    connect(&answers, &ProjectAnswers::TemplateKept, this, [this](const QString& name, const QString& keptAs) {
        m_bar->Tell(tr("Someone else has changed the template %1 as well. His is kept as %2.").arg(name, keptAs));
    });
    connect(&answers, &ProjectAnswers::OptionsWanted, this, &ProjectWindow::ShowOptions);
    connect(&answers, &ProjectAnswers::OptionsDone, this, [this] { Later([this] { EndOptions(); }); });
    connect(&answers, &ProjectAnswers::ScheduleDone, this, [this] {
        m_viewDone = true;
        Later([this] { m_schedule ? ShowSelector() : EndView(); });
    });
    connect(&answers, &ProjectAnswers::TagsPicked, this,
            [this](const QStringList& tags) { Later([this, tags] { ShowSchedule(tags); }); });
    connect(&answers, &ProjectAnswers::TagsToPrint, this, [this](const QStringList& tags) {
        Later([this, tags] {
            ShowSchedule(tags);
            m_view->Print();
        });
    });
    connect(&answers, &ProjectAnswers::Saved, this, &ProjectWindow::FreshenView);
    connect(&answers, &ProjectAnswers::HelpWanted, this, [this](const QString& context) {
        if (!m_help)
            m_help = new HelpWindow(this);
        m_help->Open(context);
    });
    connect(&answers, &ProjectAnswers::ErrorTold, this, [this](const QString& error) { m_bar->Tell(error); });
}

void ProjectWindow::OnCrossed(const Crossing& crossing)
{
    m_messages->Append(crossing);
    if (!crossing.failure.isEmpty())
        m_bar->Tell(crossing.failure);
}

void ProjectWindow::ListCategories()
{
    m_categories->Show(*m_open.project, m_open.answers->Category());
}

void ProjectWindow::OfferOrphans()
{
    const QStringList orphans = m_open.folder->Orphans();
    if (!orphans.isEmpty())
        m_bar->Tell(tr("Templates that are in no list were found: %1").arg(orphans.join(QStringLiteral(", "))),
                    tr("Add them"));
}

void ProjectWindow::AdoptOrphans()
{
    for (const QString& orphan : m_open.folder->Orphans())
        m_open.folder->Adopt(orphan);
    ListCategories();
}

void ProjectWindow::Later(std::function<void()> step)
{
    QMetaObject::invokeMethod(
        this, [this, step = std::move(step)] { Guarded(step); }, Qt::QueuedConnection);
}

void ProjectWindow::Guarded(const std::function<void()>& step)
{
    try {
        step();
    } catch (const HostError& error) {
        m_bar->Tell(error.Line());
    }
}

QList<ValueEdit> ProjectWindow::AskConflicts(const QList<Conflict>& conflicts)
{
    ConflictDialog dialog(conflicts, m_open.project->Items(), this);
    dialog.exec();
    return dialog.Insisted();
}

bool ProjectWindow::MayReplaceView()
{
    return !m_view || m_viewDone || MayReplace(*m_view, *this, tr("the schedule"), m_answering.unsaved);
}

/// Whether the edits of the open template are saved now, or the user does not want them.
bool ProjectWindow::MayDropTemplate()
{
    if (!m_options || !m_options->HasUnsavedEdits())
        return true;
    switch (m_answering.unsaved(*this, m_options->TemplateFile())) {
    case UnsavedValues::Save:
        m_options->PressApply();
        return !m_options->HasUnsavedEdits();
    case UnsavedValues::Discard:
        return true;
    default:
        return false;
    }
}

bool ProjectWindow::MayClose()
{
    return MayReplaceView() && MayDropTemplate();
}

void ProjectWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(MayClose());
    if (event->isAccepted())
        m_settings.SetWindow(saveGeometry(), saveState());
}

} // namespace schedules::host
