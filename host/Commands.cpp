#include "host/Commands.h"

#include "host/ConsoleUserInterface.h"
#include "host/DataFolder.h"
#include "host/GridJson.h"
#include "host/HostError.h"
#include "host/MainWindow.h"
#include "host/Picture.h"
#include "host/ScheduleTool.h"
#include "host/Session.h"
#include "host/XmlFile.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>

#include <cstdio>

namespace schedules::host {

namespace {

/// A schedule view that has loaded its file and has nobody to talk to.
class LoadedTool
{
public:
    explicit LoadedTool(const CommandLine& commandLine)
        : m_session(commandLine), m_tool(m_session.Router(), &m_user, commandLine.view)
    {
        m_tool.Load(ReadXmlFile(commandLine.file));
        ThrowFailure();
        if (commandLine.view.transpose)
            m_tool.Transpose();
        ThrowFailure();
    }

    const ScheduleTool& Tool() const { return m_tool; }

private:
    void ThrowFailure() const
    {
        if (const auto failure = m_user.Failure())
            throw HostError(*failure);
        m_session.RequireCompleteMessages();
    }

    ConsoleUserInterface m_user;
    Session m_session;
    ScheduleTool m_tool;
};

void Print(const QByteArray& text)
{
    const auto size = static_cast<std::size_t>(text.size());
    if (std::fwrite(text.constData(), 1, size, stdout) != size || std::fflush(stdout) != 0)
        throw HostError(QStringLiteral("cannot write to standard output"));
}

} // namespace

int RunWindow(const CommandLine& commandLine)
{
    Session session(commandLine);
    if (!commandLine.file.isEmpty())
        ReadXmlFile(commandLine.file); // what cannot be read is told before there is a window
    MainWindow window(session.Router(), commandLine.view);
    window.show();
    const QString sample = QDir(DataFolder(QStringLiteral("samples"))).filePath(QStringLiteral("pumps.xml"));
    window.Open(commandLine.file.isEmpty() ? sample : commandLine.file);
    const int result = QApplication::exec();
    session.RequireCompleteMessages();
    return result;
}

int RunDump(const CommandLine& commandLine)
{
    const LoadedTool loaded(commandLine);
    const ScheduleTool& tool = loaded.Tool();
    Print(GridJson(tool.Grid(), tool.Orientation(), tool.Transposed()));
    return kDone;
}

int RunRender(const CommandLine& commandLine)
{
    const LoadedTool loaded(commandLine);
    const ScheduleTool& tool = loaded.Tool();
    const QString named = QFileInfo(commandLine.file).completeBaseName() + QStringLiteral(".png");
    const QString png = commandLine.png.isEmpty() ? named : commandLine.png;
    WritePng(PictureOf(tool.Widget(), commandLine.title), png);
    Print(png.toLocal8Bit() + '\n');
    return kDone;
}

} // namespace schedules::host
