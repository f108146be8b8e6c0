#include "host/cli/ScheduleCommand.h"

#include "host/answers/ProjectSchedule.h"
#include "host/base/Console.h"
#include "host/base/HostError.h"
#include "host/cli/ExitCodes.h"
#include "host/cli/LoadedTool.h"
#include "host/cli/Outputs.h"
#include "host/files/InputFiles.h"
#include "host/project/Names.h"
#include "host/project/Project.h"
#include "host/window/Palettes.h"

#include <algorithm>

namespace schedules::host {

namespace {

/// By its file or its name, whatever category the list has it in.
TemplateLayout NamedLayout(const Project& project, const QString& name)
{
    for (const TemplateEntry& entry : project.Templates()) {
        if (SameName(entry.fileName, name) || SameName(entry.name, name))
            return LayoutOf(project, entry.fileName);
    }
    throw HostError(QStringLiteral("there is no template %1").arg(name));
}

bool HoldsValues(const ScheduleContent& content)
{
    return std::ranges::any_of(content.values, [](const QList<StoredValue>& line) {
        return std::ranges::any_of(line, [](const StoredValue& value) { return value.version > 0; });
    });
}

QString TextOf(const Project& project, const ProjectOptions& options)
{
    const QStringList tags = options.tags.isEmpty() ? TagNames(project, options.category) : options.tags;
    const TemplateLayout layout = options.templateFile.isEmpty() ? CurrentLayout(project, options.category)
                                                                 : NamedLayout(project, options.templateFile);
    const ScheduleContent content = ContentOf(project, options.category, tags, layout);
    if (!HoldsValues(content))
        PrintError(QStringLiteral("the template shows nothing that is known of these tags"));
    return ScheduleXml(layout, content);
}

QStringList OutputNames(const RenderOptions& options)
{
    QStringList names;
    for (const Output& output : options.outputs)
        names << output.fileName;
    return names;
}

} // namespace

int RunSchedule(const CommandLine& commandLine)
{
    const QString& address = commandLine.files.first();
    KeepInputs({address}, OutputNames(commandLine.render) + QStringList{commandLine.session.messages});
    UsePalette(commandLine.palette);
    const auto project = Project::Open(address);
    CommandLine viewed = commandLine;
    if (!commandLine.languageChosen)
        viewed.session.language = project->Language();
    ProgressLine progress;
    progress.Show(QStringLiteral("building the schedule of %1").arg(commandLine.project.category));
    LoadedTool loaded(viewed, TextOf(*project, commandLine.project));
    for (const Output& output : commandLine.render.outputs) {
        progress.Show(QStringLiteral("writing %1").arg(output.fileName));
        WriteOutput(loaded, output, commandLine.render, progress);
    }
    return kDone;
}

} // namespace schedules::host
