#include "framework/IComponentFactory.h"
#include "host/base/Console.h"
#include "host/base/HostError.h"
#include "host/cli/CommandLine.h"
#include "host/cli/DumpCommand.h"
#include "host/cli/ExitCodes.h"
#include "host/cli/HelpText.h"
#include "host/cli/ModelCommands.h"
#include "host/cli/OptionsCommand.h"
#include "host/cli/Platform.h"
#include "host/cli/ProjectCommands.h"
#include "host/cli/RenderCommand.h"
#include "host/cli/ScheduleCommand.h"
#include "host/cli/WindowCommand.h"

#include <QApplication>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>

namespace schedules::host {

namespace {

QStringList Arguments(int argc, char** argv)
{
    QStringList arguments;
    for (int index = 1; index < argc; ++index)
        arguments.append(QString::fromLocal8Bit(argv[index]));
    return arguments;
}

int Run(const CommandLine& commandLine)
{
    switch (commandLine.form) {
    case Form::Dump:
        return RunDump(commandLine);
    case Form::Render:
        return RunRender(commandLine);
    case Form::Template:
        return RunTemplate(commandLine);
    case Form::Catalogue:
        return RunCatalogue(commandLine);
    case Form::Find:
        return RunFind(commandLine);
    case Form::Options:
        return RunOptions(commandLine);
    case Form::New:
        return RunNew(commandLine);
    case Form::Import:
        return RunImport(commandLine);
    case Form::List:
        return RunList(commandLine);
    case Form::Schedule:
        return RunSchedule(commandLine);
    case Form::Get:
        return RunGet(commandLine);
    case Form::Set:
        return RunSet(commandLine);
    default:
        return RunWindow(commandLine);
    }
}

/// What shows and draws nothing works on any platform, and starts sooner without one.
std::unique_ptr<QCoreApplication> Application(Form form, int& argc, char** argv)
{
    constexpr std::array kDrawing{Form::Window, Form::Dump, Form::Render, Form::Options, Form::Schedule};
    if (std::ranges::find(kDrawing, form) == kDrawing.end())
        return std::make_unique<QCoreApplication>(argc, argv);
    return std::make_unique<QApplication>(argc, argv);
}

int RunApplication(const CommandLine& commandLine, int argc, char** argv)
{
    ChoosePlatform(commandLine.ShowsWindow());
    const auto application = Application(commandLine.form, argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("schedhost"));
    QCoreApplication::setApplicationVersion(ComponentFactory().Version());
    try {
        return Run(commandLine);
    } catch (const HostError& error) {
        PrintError(error.Line());
        return kFailed;
    }
}

int Main(int argc, char** argv)
{
    const auto parsed = ParseCommandLine(Arguments(argc, argv));
    if (const auto* error = std::get_if<UsageError>(&parsed)) {
        PrintError(QStringLiteral("schedhost: %1 (see schedhost --help)").arg(error->line));
        return kWrongUsage;
    }
    const auto& commandLine = std::get<CommandLine>(parsed);
    if (commandLine.form == Form::Help)
        return std::fputs(HelpText().toUtf8().constData(), stdout), kDone;
    if (commandLine.form == Form::Version)
        return std::fputs("schedhost " + ComponentFactory().Version().toUtf8() + '\n', stdout), kDone;
    return RunApplication(commandLine, argc, argv);
}

} // namespace

} // namespace schedules::host

int main(int argc, char** argv)
{
    return schedules::host::Main(argc, argv);
}
