#include "host/window/ProjectWindow.h"

#include "host/base/HostError.h"
#include "host/tools/HostRouter.h"
#include "host/tools/HostedEditor.h"
#include "host/tools/HostedSchedule.h"
#include "host/tools/Session.h"
#include "host/window/CategoryDock.h"
#include "host/window/ConflictDialog.h"
#include "host/window/HelpWindow.h"
#include "host/window/MessageBar.h"
#include "host/window/MessageDock.h"
#include "host/window/Warning.h"

#include <QCloseEvent>
#include <QInputDialog>
#include <QLabel>
#include <QMenuBar>
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
    auto* dock = new QDockWidget(parent);
    dock->setObjectName(QStringLiteral("dockOptions"));
    dock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
    dock->hide();
    return dock;
}

/// What is shown while there is no view.
QLabel* Invitation(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(QStringLiteral("lblInvitation"));
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
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
      m_invitation(Invitation(m_place)),
      m_categories(new CategoryDock(this)),
      m_optionsDock(OptionsDock(this)),
      m_messages(new MessageDock(this))
{
    if (!m_conflicts)
        m_conflicts = [this](const QList<Conflict>& found) { return AskConflicts(found); };
    BuildDocks();
    statusBar();
    Connect();
    Restore();
    Retranslate();
}

ProjectWindow::~ProjectWindow()
{
    // The tools send their last messages while there is still somebody who answers.
    m_options.reset();
    m_view.reset();
}

void ProjectWindow::BuildDocks()
{
    auto* center = new QWidget(this);
    auto* column = new QVBoxLayout(center);
    column->setContentsMargins({});
    column->addWidget(m_bar);
    column->addWidget(m_place, 1);
    m_place->addWidget(m_invitation);
    setCentralWidget(center);
    addDockWidget(Qt::LeftDockWidgetArea, m_categories);
    addDockWidget(Qt::RightDockWidgetArea, m_optionsDock);
    addDockWidget(Qt::BottomDockWidgetArea, m_messages);
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
}

void ProjectWindow::Connect()
{
    connect(m_categories, &CategoryDock::CategoryChosen, this, &ProjectWindow::ChooseCategory);
    connect(m_categories, &CategoryDock::TemplateChosen, this, &ProjectWindow::ChooseTemplate);
    connect(m_bar, &MessageBar::OfferTaken, this, &ProjectWindow::AdoptOrphans);
    connect(&m_session.Router(), &HostRouter::Crossed, this, &ProjectWindow::OnCrossed);
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
        Show(Opened(address), language);
        return true;
    } catch (const HostError& error) {
        Warn(*this, error.Line());
        return false;
    }
}

std::unique_ptr<Project> ProjectWindow::Opened(const QString& address)
{
    try {
        return Project::Open(address);
    } catch (const LoginRefused& error) {
        bool given = false;
        const QString password = QInputDialog::getText(this, windowTitle(), tr("%1\nPassword:").arg(error.Line()),
                                                       QLineEdit::Password, {}, &given);
        if (!given)
            throw;
        return Project::Open(WithPassword(address, password));
    }
}

/// What can fail comes first, so that one project is open at any time: the former one or this.
void ProjectWindow::Show(std::unique_ptr<Project> project, const QString& language)
{
    auto folder = std::make_unique<LaidOutTemplates>(*project, OwnTemplateFolder(*project));
    folder->LayOut();
    const QString own = project->Language();
    const QList<Category> categories = project->Categories();
    EndOptions();
    EndView();
    m_open.answers.reset(); // it takes its answers back before the next one gives its own
    m_open.answers = std::make_unique<ProjectAnswers>(m_session.Router(), *project, *folder, m_conflicts);
    m_open.folder = std::move(folder);
    m_open.project = std::move(project);
    ConnectAnswers(*m_open.answers);
    m_language = language.isEmpty() ? own : language;
    m_session.UseLanguage(m_language);
    m_settings.AddRecentProject(m_open.project->Address().Text());
    Guarded([this] { ListCategories(); });
    Guarded([this] { OfferOrphans(); });
    Retranslate();
    if (!categories.isEmpty())
        ChooseCategory(categories.first().name);
}

void ProjectWindow::ConnectAnswers(const ProjectAnswers& answers)
{
    connect(&answers, &ProjectAnswers::TemplateChosen, this,
            [this](const QString& xml) { Guarded([&] { UseTemplate(xml); }); });
    connect(&answers, &ProjectAnswers::TemplatesChanged, this, [this] { Guarded([this] { ListCategories(); }); });
    connect(&answers, &ProjectAnswers::TemplateKept, this, [this](const QString& name) {
        m_bar->Tell(tr("Someone else has changed this template as well. Theirs is kept as %1.").arg(name));
    });
    connect(&answers, &ProjectAnswers::OptionsWanted, this, [this] { Guarded([this] { ShowOptions(); }); });
    connect(&answers, &ProjectAnswers::OptionsDone, this, [this] { Later([this] { EndOptions(); }); });
    connect(&answers, &ProjectAnswers::ScheduleDone, this, &ProjectWindow::LeaveView);
    connect(&answers, &ProjectAnswers::TagsPicked, this,
            [this](const QStringList& tags) { Later([this, tags] { ShowPicked(tags); }); });
    connect(&answers, &ProjectAnswers::TagsToPrint, this, [this](const QStringList& tags) {
        Later([this, tags] {
            ShowPicked(tags);
            m_view->Print();
        });
    });
    connect(&answers, &ProjectAnswers::Saved, this, &ProjectWindow::Freshen);
    connect(&answers, &ProjectAnswers::HelpWanted, this, &ProjectWindow::ShowHelp);
    connect(&answers, &ProjectAnswers::ErrorTold, this, &ProjectWindow::TellError);
}

void ProjectWindow::OnCrossed(const Crossing& crossing)
{
    m_messages->Append(crossing);
    if (crossing.failure.isEmpty()) {
        const bool tellsError = !FailureOf(crossing).isEmpty();
        if (!tellsError)
            m_failure.clear();
        return;
    }
    m_failure = crossing.failure;
    m_bar->Tell(crossing.failure);
    statusBar()->clearMessage(); // it may tell of an earlier success
}

/// What a tool could not do, and why, when this host has just failed to answer it.
void ProjectWindow::TellError(const QString& error)
{
    m_bar->Tell(error.contains(m_failure) ? error : error + u' ' + m_failure);
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

/// What is no template is told, and does not keep the others out.
void ProjectWindow::AdoptOrphans()
{
    Guarded([this] {
        for (const QString& orphan : m_open.folder->Orphans())
            Guarded([&] { m_open.folder->Adopt(orphan); });
        ListCategories();
    });
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
    } catch (const std::exception& error) {
        m_bar->Tell(QString::fromUtf8(error.what()));
    }
}

std::optional<QList<ValueEdit>> ProjectWindow::AskConflicts(const QList<Conflict>& conflicts)
{
    ConflictDialog dialog(conflicts, m_schedule ? m_schedule->content.items : QList<DataItem>(), this);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.Insisted();
}

bool ProjectWindow::MayReplaceView()
{
    return !m_view || m_viewDone || MayReplace(*m_view, *this, tr("The schedule"), m_answering.unsaved);
}

/// Whether the edits of the open template are saved now, or the user does not want them.
bool ProjectWindow::MayDropTemplate()
{
    return !m_options || MayReplace(*m_options, *this, m_answering.unsaved);
}

/// The template first: applying it may build the schedule anew, which asks about its values.
bool ProjectWindow::MayClose()
{
    return MayDropTemplate() && MayReplaceView();
}

void ProjectWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(MayClose());
    if (event->isAccepted())
        m_settings.SetWindow(saveGeometry(), saveState());
}

/// Everything that was said in another language. What a tool says is said anew by a new one.
void ProjectWindow::Retranslate()
{
    BuildMenus();
    m_optionsDock->setWindowTitle(tr("Template"));
    const QString project = m_open.project ? m_open.project->Address().Name() : QString();
    setWindowTitle(project.isEmpty() ? tr("Equipment Schedules") : tr("%1 - Equipment Schedules").arg(project));
    m_invitation->setText(m_open.project && m_categories->IsEmpty()
                              ? tr("This project has no categories yet. Import a table of them.")
                              : tr("Choose a category at the left."));
}

void ProjectWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        Later([this] { FollowOthers(); });
}

} // namespace schedules::host
