#include "host/cli/CommandLineChecks.h"

#include "host/base/HostError.h"
#include "host/cli/CommandLineOptions.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <algorithm>

namespace schedules::host {

namespace {

/// The options that make sense in one format only.
const QHash<QString, QString> kFormatOf{{"title", "png"}, {"plain-print", "pdf"}, {"paper", "pdf"}};

/// The options that make sense in one view only.
const QHash<QString, QString> kViewOf{
    {"edit", "schedule"}, {"save", "schedule"}, {"tick", "selector"}, {"continue", "selector"}};

void RequireNames(const QStringList& files)
{
    if (files.contains(QString()))
        throw HostError(QStringLiteral("the file name is empty"));
}

void CheckFiles(const QStringList& files, Form form)
{
    if (files.isEmpty() && form != Form::Window)
        throw HostError(QStringLiteral("a file is missing"));
    if (files.size() > 1 && form != Form::Render)
        throw HostError(QStringLiteral("one file at a time, not also '%1'").arg(files[1]));
    RequireNames(files);
}

/// Whether a folder will do is the catalogue's to say.
void CheckLists(const QStringList& arguments)
{
    if (arguments.size() != 3)
        throw HostError(QStringLiteral("catalogue takes a list of templates, a list of categories, and a folder"));
    RequireNames(arguments.first(2));
}

void CheckPattern(const QStringList& arguments)
{
    if (arguments.size() != 1)
        throw HostError(QStringLiteral("find takes one pattern, in quotes if a shell would expand it"));
}

/// Whether there is such a folder is seen when its templates are to be listed.
void CheckFolder(const QStringList& arguments)
{
    if (arguments.size() > 1)
        throw HostError(QStringLiteral("one folder at a time, not also '%1'").arg(arguments[1]));
    if (arguments.contains(QString()))
        throw HostError(QStringLiteral("the folder's name is empty"));
}

struct ArgumentCount
{
    qsizetype least;
    qsizetype most;
    const char* what;
};

/// What each command on a project takes.
ArgumentCount CountOf(Form form)
{
    constexpr qsizetype kAny = 1'000'000;
    switch (form) {
    case Form::Import:
        return {2, kAny, "import takes a project and the tables to import"};
    case Form::Get:
        return {2, 3, "get takes a project, a tag and, for one value, a data item"};
    case Form::Set:
        return {4, 4, "set takes a project, a tag, a data item and a value"};
    default:
        return {1, 1, "this command takes one project"};
    }
}

void CheckProject(const QStringList& arguments, Form form)
{
    const ArgumentCount count = CountOf(form);
    if (arguments.size() < count.least || arguments.size() > count.most)
        throw HostError(QString::fromLatin1(count.what));
    RequireNames(arguments.first(1));
}

/// An output has either a name of its own or one that is made from folder and input.
void CheckNaming(const QCommandLineParser& parser, const QStringList& files)
{
    for (const QString& format : kFormats) {
        for (const char* other : {"out", "as"}) {
            if (parser.isSet(format) && parser.isSet(QLatin1String(other)))
                throw HostError(QStringLiteral("--%1 and --%2 exclude each other").arg(QLatin1String(other), format));
        }
    }
    if (files.size() < 2)
        return;
    if (!parser.isSet(QStringLiteral("out")))
        throw HostError(QStringLiteral("several files need --out FOLDER"));
    if (parser.isSet(QStringLiteral("save")))
        throw HostError(QStringLiteral("--save takes one file at a time"));
}

void CheckFormats(const QCommandLineParser& parser, const QList<Output>& outputs)
{
    for (const QString& name : parser.optionNames()) {
        const QString format = kFormatOf.value(name);
        const auto isIt = [&](const Output& output) { return output.format == format; };
        if (!format.isEmpty() && std::ranges::none_of(outputs, isIt))
            throw HostError(QStringLiteral("--%1 belongs to %2 only").arg(name, format));
    }
}

/// Nothing may be written over what the same command has written.
void RequireDifferent(QStringList names)
{
    names.removeAll(QString());
    QSet<QString> seen;
    for (const QString& name : names) {
        const QString path = QDir::cleanPath(QFileInfo(name).absoluteFilePath());
        if (seen.contains(path))
            throw HostError(QStringLiteral("'%1' would be written twice").arg(name));
        seen.insert(path);
    }
}

void CheckNames(const CommandLine& commandLine)
{
    QStringList names{commandLine.session.messages, commandLine.actions.save};
    for (const QString& file : commandLine.files) {
        for (const Output& output : commandLine.render.OutputsOf(file))
            names << output.fileName;
    }
    RequireDifferent(names);
}

} // namespace

void CheckOptions(const QCommandLineParser& parser, Form form, const QString& view)
{
    for (const QString& name : parser.optionNames()) {
        if (!OptionsOf(form).contains(name))
            throw HostError(QStringLiteral("--%1 does not belong to this command").arg(name));
        if (kViewOf.value(name, view) != view)
            throw HostError(QStringLiteral("--%1 does not belong to the %2 view").arg(name, view));
    }
}

void CheckArguments(const QStringList& arguments, Form form)
{
    switch (form) {
    case Form::Catalogue:
        return CheckLists(arguments);
    case Form::Find:
        return CheckPattern(arguments);
    case Form::Options:
        return CheckFolder(arguments);
    case Form::New:
    case Form::Import:
    case Form::List:
    case Form::Schedule:
    case Form::Get:
    case Form::Set:
        return CheckProject(arguments, form);
    default:
        return CheckFiles(arguments, form);
    }
}

void CheckRendering(const QCommandLineParser& parser, const CommandLine& commandLine)
{
    CheckNaming(parser, commandLine.files);
    CheckFormats(parser, commandLine.render.OutputsOf(commandLine.files.first()));
    CheckNames(commandLine);
}

void CheckEditor(const CommandLine& commandLine)
{
    const EditorOptions& editor = commandLine.editor;
    const bool hasList = !editor.list.isEmpty();
    const bool hasCategories = !editor.categories.isEmpty();
    if (commandLine.files.isEmpty() && (hasList || hasCategories))
        throw HostError(QStringLiteral("--list and --categories need the FOLDER of the templates"));
    if (!commandLine.files.isEmpty() && !(hasList && hasCategories))
        throw HostError(QStringLiteral("a FOLDER needs --list FILE and --categories FILE"));
    if (!editor.item.isEmpty() && editor.group.isEmpty())
        throw HostError(QStringLiteral("--item needs --group NAME"));
    RequireDifferent({commandLine.session.messages, editor.picture});
}

void CheckNew(const CommandLine& commandLine)
{
    if (commandLine.project.empty && commandLine.project.sample)
        throw HostError(QStringLiteral("--empty and --sample exclude each other"));
}

void CheckSchedule(const QCommandLineParser& parser, const CommandLine& commandLine)
{
    if (commandLine.project.category.isEmpty())
        throw HostError(QStringLiteral("schedule needs --category NAME"));
    if (commandLine.render.outputs.isEmpty())
        throw HostError(QStringLiteral("schedule needs an output, such as --pdf FILE"));
    CheckFormats(parser, commandLine.render.outputs);
    CheckNames(commandLine);
}

} // namespace schedules::host
