#include "host/cli/WindowCommand.h"

#include "host/cli/LoadedTool.h"
#include "host/cli/OwnSample.h"
#include "host/files/InputFiles.h"
#include "host/files/XmlFile.h"
#include "host/project/Project.h"
#include "host/window/MainWindow.h"
#include "host/window/Palettes.h"
#include "host/window/ProjectWindow.h"

#include <QApplication>

namespace schedules::host {

namespace {

int ShowTable(Session& session, const CommandLine& commandLine, const QString& file)
{
    ReadXmlFile(file); // what cannot be read is told before there is a window
    MainWindow window(session.Router(), commandLine.view);
    window.show();
    window.Open(file);
    return QApplication::exec();
}

int ShowProject(Session& session, const CommandLine& commandLine, const QString& address)
{
    ProjectWindow window(session);
    window.UseColours(commandLine.palette);
    auto project = window.Opened(address); // likewise
    window.show();
    window.Show(std::move(project), commandLine.languageChosen ? commandLine.session.language : QString());
    return QApplication::exec();
}

} // namespace

int RunWindow(const CommandLine& commandLine)
{
    KeepInputs(commandLine.files, {commandLine.session.messages});
    Session session(commandLine.session);
    const QString address = commandLine.files.isEmpty() ? OwnProject() : commandLine.files.first();
    UsePalette(commandLine.palette);
    const int result =
        NamesProject(address) ? ShowProject(session, commandLine, address) : ShowTable(session, commandLine, address);
    session.RequireCompleteMessages();
    return result;
}

} // namespace schedules::host
