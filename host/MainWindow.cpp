#include "host/MainWindow.h"

#include "framework/IComponentFactory.h"
#include "host/DataFolder.h"
#include "host/HostError.h"
#include "host/HostRouter.h"
#include "host/MessageDock.h"
#include "host/ScheduleTool.h"
#include "host/XmlFile.h"

#include <QActionGroup>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QStatusBar>

namespace schedules::host {

namespace {

constexpr QSize kPreferredSize{1440, 900};

QString ParameterText(const Message& message, const QString& name)
{
    for (const Parameter& parameter : message.parameters.Items()) {
        if (parameter.name == name)
            return parameter.value.toString();
    }
    return {};
}

} // namespace

MainWindow::MainWindow(HostRouter& router, const ViewOptions& options)
    : m_router(router), m_options(options), m_messages(new MessageDock(this))
{
    setWindowTitle(tr("Equipment Schedules"));
    HoldCentralPlace();
    addDockWidget(Qt::BottomDockWidgetArea, m_messages);
    BuildFileMenu();
    BuildViewMenu();
    BuildHelpMenu();
    statusBar();
    connect(&m_router, &HostRouter::Crossed, this, &MainWindow::OnCrossed);
    resize(kPreferredSize.boundedTo(screen()->availableSize() * 9 / 10));
}

MainWindow::~MainWindow() = default;

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
    auto* choices = new QActionGroup(this);
    AddViewChoice(*menu, *choices, tr("&Schedule"), View::Schedule);
    AddViewChoice(*menu, *choices, tr("Se&lector"), View::Selector);
    menu->addSeparator();
    menu->addAction(m_messages->toggleViewAction());
}

void MainWindow::AddViewChoice(QMenu& menu, QActionGroup& choices, const QString& text, View view)
{
    QAction* action = choices.addAction(menu.addAction(text));
    action->setCheckable(true);
    action->setChecked(m_options.view == view);
    connect(action, &QAction::triggered, this, [this, view] { ShowView(view); });
}

void MainWindow::BuildHelpMenu()
{
    menuBar()->addMenu(tr("&Help"))->addAction(tr("&About"), this, &MainWindow::ShowAbout);
}

void MainWindow::Open(const QString& fileName)
{
    try {
        const QString xml = ReadXmlFile(fileName);
        auto tool = std::make_unique<ScheduleTool>(m_router, nullptr, m_options);
        setCentralWidget(&tool->Widget());
        m_tool = std::move(tool);
        m_fileName = fileName;
        setWindowTitle(tr("%1 - Equipment Schedules").arg(QFileInfo(fileName).fileName()));
        setWindowFilePath(fileName);
        m_tool->Load(xml);
    } catch (const HostError& error) {
        QMessageBox::warning(this, windowTitle(), error.Line());
    }
}

void MainWindow::AskFile()
{
    const QString start = m_fileName.isEmpty() ? DataFolder(QStringLiteral("samples")) : m_fileName;
    const QString chosen =
        QFileDialog::getOpenFileName(this, tr("Open a schedule"), start, tr("Schedule tables (*.xml);;All files (*)"));
    if (!chosen.isEmpty())
        Open(chosen);
}

void MainWindow::Reload()
{
    if (!m_fileName.isEmpty())
        Open(m_fileName);
}

void MainWindow::ShowView(View view)
{
    m_options.view = view;
    Reload();
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
    if (!crossing.message)
        return;
    const Message& message = *crossing.message;
    if (message.name == QLatin1String("ErrorMessage"))
        statusBar()->showMessage(ParameterText(message, QStringLiteral("ErrorDescription")));
    // The tool is still at work inside its own click, so the window goes when that is over.
    if (message.name == QLatin1String("UnloadSchedule"))
        QMetaObject::invokeMethod(this, &MainWindow::close, Qt::QueuedConnection);
}

} // namespace schedules::host
