#include "host/window/MainWindow.h"

#include "framework/IComponentFactory.h"
#include "host/base/DataFolder.h"
#include "host/tools/HostRouter.h"
#include "host/tools/HostedSchedule.h"
#include "host/window/MessageDock.h"
#include "host/window/Warning.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QFileDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QStatusBar>

namespace schedules::host {

namespace {

constexpr QSize kPreferredSize{1440, 900};

const QString kSaveMessage = QStringLiteral("UpdateTagScheduleData");

QString Counted(qsizetype count, const QString& one, const QString& many)
{
    return count == 1 ? one : many.arg(count);
}

QString PickedTags(const Message& message)
{
    const auto count = ParameterText(message, QStringLiteral("SelectedTags")).count(QLatin1String("<Tag>"));
    return Counted(count, MainWindow::tr("1 tag was picked"), MainWindow::tr("%1 tags were picked"));
}

/// What the user is told of a message; nothing for most of them.
QString StatusText(const Crossing& crossing)
{
    const QString failure = FailureOf(crossing);
    if (!failure.isEmpty() || !crossing.message)
        return failure;
    const Message& message = *crossing.message;
    if (message.name == QLatin1String("ContinueButton"))
        return PickedTags(message);
    if (message.name == QLatin1String("PrintSelections"))
        return MainWindow::tr("%1 to be printed").arg(PickedTags(message));
    return {};
}

} // namespace

MainWindow::MainWindow(HostRouter& router, const ViewOptions& options, const Answering& answering)
    : m_router(router), m_options(options), m_answering(answering), m_messages(new MessageDock(this))
{
    setWindowTitle(tr("Equipment Schedules"));
    HoldCentralPlace();
    addDockWidget(Qt::BottomDockWidgetArea, m_messages);
    BuildFileMenu();
    BuildViewMenu();
    BuildHelpMenu();
    statusBar();
    connect(&m_router, &HostRouter::Crossed, this, &MainWindow::OnCrossed);
    m_router.Answers(kSaveMessage, [this](const Message& message) { return SaveTable(message); });
    resize(kPreferredSize.boundedTo(screen()->availableSize() * 9 / 10));
}

MainWindow::~MainWindow()
{
    m_router.NoLongerAnswers(kSaveMessage);
}

/// Keeps the dock from taking the room of the tool that is to come.
void MainWindow::HoldCentralPlace()
{
    auto* place = new QWidget;
    place->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setCentralWidget(place);
}

void MainWindow::BuildFileMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    menu->addAction(tr("&Open..."), QKeySequence::Open, this, &MainWindow::AskFile);
    menu->addAction(tr("&Reload"), QKeySequence::Refresh, this, &MainWindow::Reload);
    menu->addSeparator();
    menu->addAction(tr("&Quit"), QKeySequence::Quit, this, &MainWindow::close);
}

void MainWindow::BuildViewMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&View"));
    m_views = new QActionGroup(this);
    AddViewChoice(*menu, tr("&Schedule"), View::Schedule);
    AddViewChoice(*menu, tr("Se&lector"), View::Selector);
    CheckViewChoice();
    menu->addSeparator();
    menu->addAction(m_messages->toggleViewAction());
}

void MainWindow::AddViewChoice(QMenu& menu, const QString& text, View view)
{
    QAction* action = m_views->addAction(menu.addAction(text));
    action->setCheckable(true);
    action->setData(static_cast<int>(view));
    connect(action, &QAction::triggered, this, [this, view] { ShowView(view); });
}

void MainWindow::CheckViewChoice()
{
    for (QAction* action : m_views->actions())
        action->setChecked(action->data().toInt() == static_cast<int>(m_options.view));
}

void MainWindow::BuildHelpMenu()
{
    menuBar()->addMenu(tr("&Help"))->addAction(tr("&About"), this, &MainWindow::ShowAbout);
}

void MainWindow::Open(const QString& fileName)
{
    if (MayReplace())
        Show(fileName, m_options);
}

bool MainWindow::MayReplace()
{
    return !m_tool || host::MayReplace(*m_tool, *this, m_file->ShortName(), m_answering.unsaved);
}

bool MainWindow::Show(const QString& fileName, const ViewOptions& options)
{
    return DoneOrWarned(*this, [&] { ShowTable(TableFile(fileName), options); });
}

void MainWindow::ShowTable(TableFile file, const ViewOptions& options)
{
    auto tool = std::make_unique<HostedSchedule>(m_router, m_answering.tool, options);
    setCentralWidget(&tool->Widget());
    m_tool = std::move(tool);
    m_file = std::move(file);
    m_unloaded = false;
    setWindowTitle(tr("%1 - Equipment Schedules").arg(m_file->ShortName()));
    setWindowFilePath(m_file->Name());
    m_tool->Load(m_file->Xml());
}

QString MainWindow::SaveTable(const Message& message)
{
    if (!m_file)
        return {};
    const int cells = m_file->Save(ParameterText(message, QStringLiteral("ScheduleXml")));
    statusBar()->showMessage(
        Counted(cells, tr("Saved 1 changed cell to %1"), tr("Saved %1 changed cells to %2")).arg(m_file->ShortName()));
    return {};
}

/// Whether the window stays, because the view has yet to finish or its user wants it to. A view that did nothing, and
/// has nothing to save, has failed.
bool MainWindow::ViewKeepsOpen()
{
    if (m_unloaded || !m_tool || !m_tool->Close())
        return false;
    return m_unloaded || m_tool->Dirty();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(!ViewKeepsOpen());
}

void MainWindow::AskFile()
{
    const QString start = m_file ? m_file->Name() : DataFolder(QStringLiteral("samples"));
    const QString chosen =
        QFileDialog::getOpenFileName(this, tr("Open a schedule"), start, tr("Schedule tables (*.xml);;All files (*)"));
    if (!chosen.isEmpty())
        Open(chosen);
}

void MainWindow::Reload()
{
    if (m_file)
        Open(QString(m_file->Name()));
}

void MainWindow::ShowView(View view)
{
    ViewOptions options = m_options;
    options.view = view;
    if (!m_file || (MayReplace() && Show(QString(m_file->Name()), options)))
        m_options = options;
    CheckViewChoice();
}

void MainWindow::ShowAbout()
{
    QMessageBox::about(this, tr("About Equipment Schedules"),
                       tr("<h3>Equipment Schedules %1</h3><p>The reference host of the schedule component: it shows a "
                          "table of equipment and lists what the component and its host say to each other.</p>")
                           .arg(ComponentFactory().Version()));
}

void MainWindow::OnCrossed(const Crossing& crossing)
{
    m_messages->Append(crossing);
    if (const QString status = StatusText(crossing); !status.isEmpty())
        statusBar()->showMessage(status);
    // The tool is still at work inside its own click, so the window goes when that is over.
    if (crossing.message && crossing.message->name == QLatin1String("UnloadSchedule")) {
        m_unloaded = true;
        QMetaObject::invokeMethod(this, &MainWindow::close, Qt::QueuedConnection);
    }
}

} // namespace schedules::host
