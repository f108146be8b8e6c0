#include "host/cli/OptionsCommand.h"

#include "host/answers/TemplateFileAnswers.h"
#include "host/base/Console.h"
#include "host/cli/ExitCodes.h"
#include "host/cli/LoadedTool.h"
#include "host/cli/OwnSample.h"
#include "host/cli/Picture.h"
#include "host/files/InputFiles.h"
#include "host/tools/ConsoleUserInterface.h"
#include "host/tools/Session.h"
#include "host/window/OptionsWindow.h"
#include "host/window/Palettes.h"

#include <QApplication>
#include <QDir>

namespace schedules::host {

namespace {

constexpr QSize kPictureSize{760, 560};

bool IsOwn(const CommandLine& commandLine)
{
    return commandLine.files.isEmpty();
}

TemplatePlaces PlacesOf(const CommandLine& commandLine)
{
    const EditorOptions& options = commandLine.editor;
    if (!IsOwn(commandLine))
        return {commandLine.files.first(), options.list, options.categories, options.current};
    TemplatePlaces own = OwnTemplates();
    if (!options.current.isEmpty())
        own.current = options.current;
    return own;
}

QStringList FilesOf(const TemplatePlaces& places)
{
    QStringList files{places.list, places.categories};
    for (const QFileInfo& file : QDir(places.folder).entryInfoList(QDir::Files))
        files << file.filePath();
    return files;
}

void Show(HostedEditor& tool, const EditorOptions& options)
{
    if (!options.templateFile.isEmpty())
        tool.ChooseTemplate(options.templateFile);
    if (!options.group.isEmpty())
        tool.SelectGroup(options.group);
    if (!options.item.isEmpty())
        tool.SelectItem(options.item);
}

int OpenWindow(HostRouter& router, const QString& folder, const EditorOptions& options)
{
    OptionsWindow window(router, QDir::toNativeSeparators(folder));
    window.show();
    window.Open();
    Show(window.Tool(), options);
    return QApplication::exec();
}

/// What the editor would tell a user goes to standard error, a line each.
int Draw(HostRouter& router, const EditorOptions& options)
{
    ConsoleUserInterface user;
    HostedEditor tool(router, &user);
    QObject::connect(&router, &HostRouter::Crossed, &tool.Widget(), [](const Crossing& crossing) {
        if (const QString failure = FailureOf(crossing); !failure.isEmpty())
            PrintError(failure);
    });
    tool.Widget().setAttribute(Qt::WA_DontShowOnScreen);
    tool.Widget().resize(kPictureSize);
    tool.Widget().show();
    tool.Open();
    Show(tool, options);
    for (const QString& line : user.TakeReports())
        PrintError(line);
    WritePng(tool.Widget().grab().toImage(), options.picture);
    PrintOut(options.picture.toLocal8Bit() + '\n');
    return kDone;
}

} // namespace

int RunOptions(const CommandLine& commandLine)
{
    const EditorOptions& options = commandLine.editor;
    const TemplatePlaces places = PlacesOf(commandLine);
    KeepInputs(FilesOf(places), {commandLine.session.messages, options.picture});
    Session session(commandLine.session);
    const TemplateFileAnswers files(session.Router(), places, IsOwn(commandLine) ? KeepOwnCurrentTemplate : nullptr);
    UsePalette(commandLine.palette);
    if (options.rightToLeft)
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const int result = options.picture.isEmpty() ? OpenWindow(session.Router(), places.folder, options)
                                                 : Draw(session.Router(), options);
    session.RequireCompleteMessages();
    return result;
}

} // namespace schedules::host
