#include "host/Commands.h"

#include "host/Console.h"
#include "host/GridJson.h"
#include "host/LoadedTool.h"
#include "host/MainWindow.h"
#include "host/OwnSample.h"
#include "host/Palettes.h"
#include "host/XmlFile.h"

#include <QApplication>

namespace schedules::host {

int RunWindow(const CommandLine& commandLine)
{
    KeepInputs(commandLine.files, {commandLine.messages});
    Session session(commandLine);
    const QString file = commandLine.files.isEmpty() ? OwnSample() : commandLine.files.first();
    ReadXmlFile(file); // what cannot be read is told before there is a window
    UsePalette(commandLine.palette);
    MainWindow window(session.Router(), commandLine.view);
    window.show();
    window.Open(file);
    const int result = QApplication::exec();
    session.RequireCompleteMessages();
    return result;
}

int RunDump(const CommandLine& commandLine)
{
    KeepInputs(commandLine.files, {commandLine.messages, commandLine.actions.save});
    LoadedTool loaded(commandLine, commandLine.files.first());
    const ScheduleTool& tool = loaded.Tool();
    PrintOut(GridJson(tool.Grid(), tool.Orientation(), tool.Transposed()));
    return kDone;
}

} // namespace schedules::host
