#include "host/window/ProjectWindow.h"

#include "host/answers/ProjectSchedule.h"
#include "host/base/HostError.h"
#include "host/import/Import.h"
#include "host/import/SampleProject.h"
#include "host/tools/HostRouter.h"
#include "host/tools/HostedEditor.h"
#include "host/tools/HostedSchedule.h"
#include "host/tools/Session.h"
#include "host/window/CategoryDock.h"
#include "host/window/ConflictDialog.h"
#include "host/window/EditorDock.h"
#include "host/window/GuardedSteps.h"
#include "host/window/HelpWindow.h"
#include "host/window/MessageBar.h"
#include "host/window/MessageDock.h"
#include "host/window/ProjectDialogs.h"
#include "host/window/ProjectMenus.h"
#include "host/window/ProjectViews.h"
#include "host/window/Warning.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScreen>
#include <QStatusBar>
#include <QVBoxLayout>

namespace schedules::host {

namespace {

constexpr QSize kPreferredSize{1440, 900};
constexpr int kMessageLines = 9;
constexpr int kStatusTime = 15'000; // milliseconds

} // namespace

ProjectWindow::ProjectWindow(Session& session, const Answering& answering, ConflictQuestion conflicts)
    : m_session(session),
      m_conflicts(std::move(conflicts)),
      m_bar(new MessageBar(this)),
      m_steps(new GuardedSteps(*m_bar, this)),
      m_views(new ProjectViews(session, answering, this)),
      m_categories(new CategoryDock(this)),
      m_editor(new EditorDock(session, answering, *this)),
      m_messages(new MessageDock(this)),
      m_menus(new ProjectMenus(*this, {m_categories->toggleViewAction(), m_messages->toggleViewAction()}))
{
    if (!m_conflicts)
        m_conflicts = [this](const QList<Conflict>& found) {
            return ConflictDialog::Ask(found, m_views->Items(), this);
        };
    BuildDocks();
    statusBar();
    Connect();
    ConnectMenus();
    Restore();
    Retranslate();
}

ProjectWindow::~ProjectWindow()
{
    // The tools send their last messages while there is still somebody who answers.
    m_editor->End();
    m_views->End();
}

HostedSchedule* ProjectWindow::View() const
{
    return m_views->View();
}

HostedEditor* ProjectWindow::Options() const
{
    return m_editor->Editor();
}

void ProjectWindow::BuildDocks()
{
    auto* center = new QWidget(this);
    auto* column = new QVBoxLayout(center);
    column->setContentsMargins({});
    column->addWidget(m_bar);
    column->addWidget(m_views, 1);
    setCentralWidget(center);
    addDockWidget(Qt::LeftDockWidgetArea, m_categories);
    addDockWidget(Qt::RightDockWidgetArea, m_editor);
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

void ProjectWindow::ConnectMenus()
{
    connect(m_menus, &ProjectMenus::NewWanted, this, &ProjectWindow::AskNew);
    connect(m_menus, &ProjectMenus::OpenWanted, this, [this] { OpenChosen(ProjectDialogs(*this).AskProject()); });
    connect(m_menus, &ProjectMenus::ServerWanted, this, [this] { OpenChosen(ProjectDialogs(*this).AskServer()); });
    connect(m_menus, &ProjectMenus::RecentChosen, this, &ProjectWindow::OpenChosen);
    connect(m_menus, &ProjectMenus::ImportWanted, this, &ProjectWindow::AskImport);
    connect(m_menus, &ProjectMenus::RefreshWanted, this, &ProjectWindow::Refresh);
    connect(m_menus, &ProjectMenus::LanguageChosen, this, &ProjectWindow::ChooseLanguage);
    connect(m_menus, &ProjectMenus::HelpWanted, this, [this] { ShowHelp({}); });
    connect(m_menus, &ProjectMenus::AboutWanted, this, [this] { ProjectDialogs(*this).ShowAbout(); });
}

void ProjectWindow::Restore()
{
    resize(kPreferredSize.boundedTo(screen()->availableSize() * 9 / 10));
    resizeDocks({m_messages}, {kMessageLines * fontMetrics().lineSpacing()}, Qt::Vertical);
    restoreGeometry(m_settings.Geometry());
    restoreState(m_settings.Layout());
    m_editor->hide(); // it comes with the editor
}

bool ProjectWindow::Open(const QString& address, const QString& language)
{
    return MayClose() && DoneOrWarned(*this, [&] { Show(Opened(address), language); });
}

std::unique_ptr<Project> ProjectWindow::Opened(const QString& address)
{
    return ProjectDialogs(*this).Opened(address);
}

/// What can fail comes first, so that one project is open at any time: the former one or this.
void ProjectWindow::Show(std::unique_ptr<Project> project, const QString& language)
{
    auto folder = std::make_unique<LaidOutTemplates>(*project, OwnTemplateFolder(*project));
    folder->LayOut();
    const QString own = project->Language();
    const QList<Category> categories = project->Categories();
    m_editor->End();
    m_views->End();
    m_open.answers.reset(); // it takes its answers back before the next one gives its own
    m_open.answers = std::make_unique<ProjectAnswers>(m_session.Router(), *project, *folder, m_conflicts);
    m_open.folder = std::move(folder);
    m_open.project = std::move(project);
    m_views->ShowFrom(*m_open.project, *m_open.answers);
    ConnectAnswers(*m_open.answers);
    m_language = language.isEmpty() ? own : language;
    m_menus->MarkLanguage(m_language);
    m_session.UseLanguage(m_language);
    m_settings.AddRecentProject(m_open.project->Address().Text());
    m_steps->Do([this] { ListCategories(); });
    m_steps->Do([this] { OfferOrphans(); });
    Retranslate();
    if (!categories.isEmpty())
        ChooseCategory(categories.first().name);
}

void ProjectWindow::ConnectAnswers(const ProjectAnswers& answers)
{
    connect(&answers, &ProjectAnswers::TemplateChosen, this,
            [this](const QString& xml) { m_steps->Do([&] { UseTemplate(xml); }); });
    connect(&answers, &ProjectAnswers::TemplatesChanged, this, [this] { m_steps->Do([this] { ListCategories(); }); });
    connect(&answers, &ProjectAnswers::TemplateKept, this, [this](const QString& name) {
        m_bar->Tell(tr("Someone else has changed this template as well. Theirs is kept as %1.").arg(name));
    });
    connect(&answers, &ProjectAnswers::OptionsWanted, this, [this] { m_steps->Do([this] { m_editor->Open(); }); });
    connect(&answers, &ProjectAnswers::OptionsDone, this, [this] { m_steps->DoLater([this] { m_editor->End(); }); });
    connect(&answers, &ProjectAnswers::ScheduleDone, this, &ProjectWindow::LeaveView);
    connect(&answers, &ProjectAnswers::TagsPicked, this,
            [this](const QStringList& tags) { m_steps->DoLater([this, tags] { m_views->ShowPicked(tags); }); });
    connect(&answers, &ProjectAnswers::TagsToPrint, this, [this](const QStringList& tags) {
        m_steps->DoLater([this, tags] {
            m_views->ShowPicked(tags);
            View()->Print();
        });
    });
    connect(&answers, &ProjectAnswers::Saved, this, &ProjectWindow::Freshen);
    connect(&answers, &ProjectAnswers::HelpWanted, this, &ProjectWindow::ShowHelp);
    connect(&answers, &ProjectAnswers::ErrorTold, m_steps, &GuardedSteps::TellError);
}

void ProjectWindow::AskNew()
{
    const QString file = ProjectDialogs(*this).AskNewProject();
    if (!file.isEmpty() && MayClose())
        DoneOrWarned(*this, [&] { Show(NewProject(file, FillWithStandards)); });
}

/// An empty address is none.
void ProjectWindow::OpenChosen(const QString& address)
{
    if (!address.isEmpty())
        Open(address);
}

void ProjectWindow::AskImport()
{
    if (!m_open.project)
        return;
    const QString file = ProjectDialogs(*this).AskTable();
    if (file.isEmpty() || !m_views->MayReplace())
        return;
    DoneOrWarned(*this, [&] {
        const ImportResult result = ImportTable(*m_open.project, file);
        m_views->Reload();
        ListCategories();
        Retranslate();
        statusBar()->showMessage(tr("Imported %1 tags and %2 values").arg(result.tags).arg(result.values));
    });
}

void ProjectWindow::ShowHelp(const QString& context)
{
    if (!m_help)
        m_help = new HelpWindow(this);
    m_help->Open(context);
}

/// Creates the tools again, since they set their captions when they start.
void ProjectWindow::ChooseLanguage(const QString& language)
{
    m_steps->Do([&] {
        if (!m_open.project || !MayClose())
            return;
        m_open.project->SetLanguage(language);
        m_editor->End();
        m_views->RemakeAfter([&] {
            m_language = language;
            m_session.UseLanguage(language);
        });
    });
    m_menus->MarkLanguage(m_language);
}

void ProjectWindow::UseColours(Palette palette)
{
    m_menus->UseColours(palette);
}

void ProjectWindow::OnCrossed(const Crossing& crossing)
{
    m_messages->Append(crossing);
    m_steps->Note(crossing);
    if (!crossing.failure.isEmpty())
        statusBar()->clearMessage(); // it may tell of an earlier success
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
    m_steps->Do([this] {
        for (const QString& orphan : m_open.folder->Orphans())
            m_steps->Do([&] { m_open.folder->Adopt(orphan); });
        ListCategories();
    });
}

void ProjectWindow::ChooseCategory(const QString& category)
{
    if (m_views->ShowsSelectorOf(category))
        return;
    m_steps->Do([&] {
        if (MayClose()) {
            m_editor->End(); // it edits the template of the former category
            m_views->ShowSelector(category);
        }
    });
    m_steps->Do([this] { ListCategories(); });
}

void ProjectWindow::ChooseTemplate(const QString& category, const QString& fileName)
{
    m_steps->Do([&] {
        if (!MayClose())
            return;
        const TemplateLayout layout = LayoutOf(*m_open.project, fileName);
        m_editor->End();
        m_open.project->SetCurrentTemplate(category, fileName);
        if (m_views->ShowsScheduleOf(category))
            m_views->ShowSchedule(category, m_views->Tags(), layout);
        else
            m_views->ShowSelector(category);
    });
    m_steps->Do([this] { ListCategories(); });
}

/// A template was applied in the editor. It is built at once, unless the user would lose values.
void ProjectWindow::UseTemplate(const QString& xml)
{
    ListCategories();
    if (!m_views->ShowsSchedule())
        return;
    if (!m_views->MayReplace())
        return m_bar->Tell(tr("The schedule shows the former template until its values are saved or discarded."));
    m_views->UseLayout(ReadTemplateLayout(xml));
}

void ProjectWindow::LeaveView()
{
    m_views->NoteDone();
    m_steps->DoLater([this] { m_views->Leave(); });
}

/// What other clients have stored is shown.
void ProjectWindow::Refresh()
{
    if (!m_open.project)
        return;
    m_steps->Do([this] {
        if (m_views->MayReplace())
            m_views->Reload();
    });
    m_steps->Do([this] { ListCategories(); });
}

/// The view shows what was saved already, unless somebody else has stored other values: then it shows them before
/// anything is edited on top of them.
void ProjectWindow::Freshen(const QList<ValueEdit>& edited, int stored, bool differs)
{
    statusBar()->showMessage(tr("%n value(s) saved", nullptr, stored), kStatusTime);
    m_bar->hide();
    if (!m_views->ShowsSchedule())
        return;
    m_steps->Do([&] {
        const int others = m_views->Freshen(edited);
        TellOfOthers(others);
        if (others > 0 || differs)
            m_steps->DoLater([this] { m_views->Reload(); });
    });
}

/// When users come back to the window, they see what others have stored meanwhile; never in the midst of their work.
void ProjectWindow::FollowOthers()
{
    if (!QApplication::activeModalWidget())
        TellOfOthers(m_views->FollowOthers());
}

void ProjectWindow::TellOfOthers(int values)
{
    if (values > 0)
        m_bar->Tell(tr("%n value(s) were changed by someone else and are shown now.", nullptr, values));
}

/// The template first: applying it may build the schedule anew, which asks about its values.
bool ProjectWindow::MayClose()
{
    return m_editor->MayDrop() && m_views->MayReplace();
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
    m_menus->Build();
    m_editor->setWindowTitle(tr("Template"));
    const QString project = m_open.project ? m_open.project->Address().Name() : QString();
    setWindowTitle(project.isEmpty() ? tr("Equipment Schedules") : tr("%1 - Equipment Schedules").arg(project));
    m_views->Invite(m_open.project && m_categories->IsEmpty()
                        ? tr("This project has no categories yet. Import a table of them.")
                        : tr("Choose a category at the left."));
}

void ProjectWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        m_steps->DoLater([this] { FollowOthers(); });
}

} // namespace schedules::host
