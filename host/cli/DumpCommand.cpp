#include "host/cli/DumpCommand.h"

#include "host/base/Console.h"
#include "host/cli/ExitCodes.h"
#include "host/cli/GridJson.h"
#include "host/cli/LoadedTool.h"
#include "host/files/InputFiles.h"
#include "host/files/XmlFile.h"

namespace schedules::host {

int RunDump(const CommandLine& commandLine)
{
    KeepInputs(commandLine.files, {commandLine.session.messages, commandLine.actions.save});
    LoadedTool loaded(commandLine, ReadXmlFile(commandLine.files.first()));
    const HostedSchedule& tool = loaded.Tool();
    PrintOut(GridJson(tool.Grid(), tool.Orientation(), tool.Transposed()));
    return kDone;
}

} // namespace schedules::host
