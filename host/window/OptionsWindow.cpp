#include "host/window/OptionsWindow.h"

#include "host/tools/HostRouter.h"
#include "host/window/MessageDock.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>

namespace schedules::host {

namespace {

constexpr QSize kPreferredSize{900, 760};

/// What the user is told of a message; nothing for most of them.
QString StatusText(const Crossing& crossing)
{
    const QString failure = FailureOf(crossing);
    if (!failure.isEmpty() || !crossing.message)
        return failure;
    const QString file = ParameterText(*crossing.message, QStringLiteral("TemplateFile"));
    if (crossing.message->name == QLatin1String("SETCURRENTSCHEDTEMPLATE"))
        return OptionsWindow::tr("The schedule uses %1").arg(file);
    if (crossing.message->name == QLatin1String("REMOVECONFIGENTRY"))
        return OptionsWindow::tr("Took %1 from the list of templates").arg(file);
    if (crossing.message->name == QLatin1String("UPDATESCHEDCONFIG"))
        return OptionsWindow::tr("Saved the list of templates");
    return {};
}

} // namespace

OptionsWindow::OptionsWindow(HostRouter& router, const QString& folder, const Answering& answering)
    : m_router(router), m_answering(answering), m_messages(new MessageDock(this)), m_tool(router, answering.tool)
{
    setWindowTitle(tr("Schedule templates – %1").arg(folder));
    setCentralWidget(&m_tool.Widget());
    addDockWidget(Qt::BottomDockWidgetArea, m_messages);
    BuildMenus();
    statusBar();
    connect(&m_router, &HostRouter::Crossed, this, &OptionsWindow::OnCrossed);
    resize(kPreferredSize.boundedTo(screen()->availableSize() * 9 / 10));
}

void OptionsWindow::BuildMenus()
{
    menuBar()->addMenu(tr("&File"))->addAction(tr("&Quit"), QKeySequence::Quit, this, &OptionsWindow::close);
    menuBar()->addMenu(tr("&View"))->addAction(m_messages->toggleViewAction());
}

void OptionsWindow::closeEvent(QCloseEvent* event)
{
    const bool stays = !m_unloaded && !MayReplace(m_tool, *this, m_answering.unsaved);
    event->setAccepted(!stays);
    if (!stays && !m_unloaded)
        m_tool.Cancel();
}

void OptionsWindow::OnCrossed(const Crossing& crossing)
{
    m_messages->Append(crossing);
    if (const QString status = StatusText(crossing); !status.isEmpty())
        statusBar()->showMessage(status);
    // The editor is still at work inside its own click, so the window goes when that is over.
    if (crossing.message && crossing.message->name == QLatin1String("UnloadScheduleOptions")) {
        m_unloaded = true;
        QMetaObject::invokeMethod(this, &OptionsWindow::close, Qt::QueuedConnection);
    }
}

} // namespace schedules::host
