#include "host/CommandLine.h"

#include "host/HostError.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <array>

namespace schedules::host {

namespace {

/// The first one is written when none is named.
const QStringList kFormats{"png", "pdf", "xls", "xlsx", "csv", "html"};

const QHash<QString, Form> kCommands{{"dump", Form::Dump},
                                     {"render", Form::Render},
                                     {"template", Form::Template},
                                     {"catalogue", Form::Catalogue},
                                     {"find", Form::Find}};

const QStringList kCommonOptions{"view", "select-all", "messages", "language", "palette"};
const QStringList kActionOptions{"transpose", "edit", "tick", "sort", "continue", "save"};
const QStringList kRenderOptions = kFormats + QStringList{"out", "as", "title", "plain-print", "paper"};
const QStringList kFlags{"select-all", "transpose", "continue", "plain-print"};

/// The options that make sense in one format only.
const QHash<QString, QString> kFormatOf{{"title", "png"}, {"plain-print", "pdf"}, {"paper", "pdf"}};

/// The options that make sense in one view only.
const QHash<QString, QString> kViewOf{
    {"edit", "schedule"}, {"save", "schedule"}, {"tick", "selector"}, {"continue", "selector"}};

const QStringList kViews{"schedule", "selector"};
const QStringList kLanguages{"en", "de", "fr"};

/// In the order of `Palette`.
const QStringList kPalettes{"desktop", "light", "dark"};

/// The first one is used when none is named.
constexpr std::array kPapers{QPageSize::A4, QPageSize::A3,     QPageSize::A2,    QPageSize::A1,     QPageSize::A0,
                             QPageSize::A5, QPageSize::Letter, QPageSize::Legal, QPageSize::Tabloid};

/// The options that a form takes.
QStringList OptionsOf(Form form)
{
    switch (form) {
    case Form::Dump:
        return kCommonOptions + kActionOptions;
    case Form::Render:
        return kCommonOptions + kActionOptions + kRenderOptions;
    case Form::Template:
    case Form::Catalogue:
    case Form::Find:
        return {QStringLiteral("language")};
    default:
        return kCommonOptions;
    }
}

void AddOptions(QCommandLineParser& parser)
{
    parser.addOptions({{{"h", "help"}, {}}, {{"v", "version"}, {}}});
    for (const QString& name : kCommonOptions + kActionOptions + kRenderOptions)
        parser.addOption({name, {}, kFlags.contains(name) ? QString() : name});
}

QString OneOf(const QCommandLineParser& parser, const QString& name, const QStringList& choices)
{
    if (!parser.isSet(name))
        return choices.first();
    const QString value = parser.value(name);
    if (!choices.contains(value))
        throw HostError(QStringLiteral("--%1 must be one of: %2").arg(name, choices.join(QStringLiteral(", "))));
    return value;
}

QString FileName(const QCommandLineParser& parser, const QString& name)
{
    if (parser.isSet(name) && parser.value(name).isEmpty())
        throw HostError(QStringLiteral("--%1 needs a file name").arg(name));
    return parser.value(name);
}

void CheckOptions(const QCommandLineParser& parser, Form form)
{
    const QString view = OneOf(parser, QStringLiteral("view"), kViews);
    for (const QString& name : parser.optionNames()) {
        if (!OptionsOf(form).contains(name))
            throw HostError(QStringLiteral("--%1 does not belong to this command").arg(name));
        if (kViewOf.value(name, view) != view)
            throw HostError(QStringLiteral("--%1 does not belong to the %2 view").arg(name, view));
    }
}

/// The parts of an option's value that a pattern captures.
QStringList Parts(const QString& name, const QString& value, const QString& pattern, const QString& form)
{
    const QRegularExpression expression(QRegularExpression::anchoredPattern(pattern),
                                        QRegularExpression::DotMatchesEverythingOption);
    const auto match = expression.match(value);
    if (!match.hasMatch())
        throw HostError(QStringLiteral("--%1 must be %2, not '%3'").arg(name, form, value));
    return match.capturedTexts().sliced(1);
}

QList<CellText> Edits(const QStringList& values)
{
    QList<CellText> edits;
    for (const QString& value : values) {
        const QStringList parts = Parts(QStringLiteral("edit"), value, QStringLiteral("([0-9]{1,9}),([0-9]{1,9})=(.*)"),
                                        QStringLiteral("COLUMN,ROW=TEXT"));
        edits.append({parts[0].toInt(), parts[1].toInt(), parts[2]});
    }
    return edits;
}

std::optional<SortColumn> Sorting(const QCommandLineParser& parser)
{
    const QString name = QStringLiteral("sort");
    if (!parser.isSet(name))
        return std::nullopt;
    const QStringList parts = Parts(name, parser.value(name), QStringLiteral("([0-9]{1,9})(:desc)?"),
                                    QStringLiteral("COLUMN or COLUMN:desc"));
    return SortColumn{parts[0].toInt(), !parts.value(1).isEmpty()};
}

UserActions Actions(const QCommandLineParser& parser)
{
    return {.edits = Edits(parser.values(QStringLiteral("edit"))),
            .ticks = parser.values(QStringLiteral("tick")),
            .sort = Sorting(parser),
            .pressContinue = parser.isSet(QStringLiteral("continue")),
            .save = FileName(parser, QStringLiteral("save"))};
}

QStringList PaperNames()
{
    QStringList names;
    for (const auto paper : kPapers)
        names << QPageSize::key(paper);
    return names;
}

QList<Output> NamedOutputs(const QCommandLineParser& parser)
{
    QList<Output> outputs;
    for (const QString& format : kFormats) {
        if (parser.isSet(format))
            outputs << Output{format, FileName(parser, format)};
    }
    return outputs;
}

QStringList Formats(const QCommandLineParser& parser)
{
    const QString name = QStringLiteral("as");
    if (!parser.isSet(name))
        return RenderOptions().formats;
    QStringList formats = parser.value(name).split(u',');
    if (!std::ranges::all_of(formats, [](const QString& format) { return kFormats.contains(format); }))
        throw HostError(QStringLiteral("--as must be a list of: %1").arg(kFormats.join(QStringLiteral(", "))));
    formats.removeDuplicates();
    return formats;
}

RenderOptions Rendering(const QCommandLineParser& parser)
{
    const QStringList papers = PaperNames();
    const qsizetype paper = papers.indexOf(OneOf(parser, QStringLiteral("paper"), papers));
    return {.outputs = NamedOutputs(parser),
            .formats = Formats(parser),
            .folder = FileName(parser, QStringLiteral("out")),
            .title = parser.value(QStringLiteral("title")),
            .smartPrint = !parser.isSet(QStringLiteral("plain-print")),
            .paper = kPapers[std::size_t(paper)]};
}

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

void CheckArguments(const QStringList& arguments, Form form)
{
    switch (form) {
    case Form::Catalogue:
        return CheckLists(arguments);
    case Form::Find:
        return CheckPattern(arguments);
    default:
        return CheckFiles(arguments, form);
    }
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
void CheckNames(const CommandLine& commandLine)
{
    QStringList names{commandLine.messages, commandLine.actions.save};
    names.removeAll(QString());
    for (const QString& file : commandLine.files) {
        for (const Output& output : commandLine.render.OutputsOf(file))
            names << output.fileName;
    }
    QSet<QString> seen;
    for (const QString& name : names) {
        const QString path = QDir::cleanPath(QFileInfo(name).absoluteFilePath());
        if (seen.contains(path))
            throw HostError(QStringLiteral("'%1' would be written twice").arg(name));
        seen.insert(path);
    }
}

void CheckRendering(const QCommandLineParser& parser, const CommandLine& commandLine)
{
    CheckNaming(parser, commandLine.files);
    CheckFormats(parser, commandLine.render.OutputsOf(commandLine.files.first()));
    CheckNames(commandLine);
}

CommandLine Understood(const QCommandLineParser& parser)
{
    QStringList words = parser.positionalArguments();
    const Form form = kCommands.value(words.value(0), Form::Window);
    CheckOptions(parser, form);
    if (form != Form::Window)
        words.removeFirst();
    CheckArguments(words, form);
    const bool selector = OneOf(parser, QStringLiteral("view"), kViews) == kViews.last();
    return {.form = form,
            .files = words,
            .view = {.view = selector ? View::Selector : View::Schedule,
                     .selectAll = parser.isSet(QStringLiteral("select-all")),
                     .transpose = parser.isSet(QStringLiteral("transpose"))},
            .actions = Actions(parser),
            .messages = FileName(parser, QStringLiteral("messages")),
            .render = Rendering(parser),
            .language = OneOf(parser, QStringLiteral("language"), kLanguages),
            .palette = Palette(kPalettes.indexOf(OneOf(parser, QStringLiteral("palette"), kPalettes)))};
}

CommandLine Checked(const QCommandLineParser& parser)
{
    if (parser.isSet(QStringLiteral("help")))
        return {.form = Form::Help};
    if (parser.isSet(QStringLiteral("version")))
        return {.form = Form::Version};
    const CommandLine commandLine = Understood(parser);
    if (commandLine.form == Form::Render)
        CheckRendering(parser, commandLine);
    return commandLine;
}

} // namespace

QList<Output> RenderOptions::OutputsOf(const QString& file) const
{
    if (!outputs.isEmpty())
        return outputs;
    QList<Output> named;
    for (const QString& format : formats) {
        const QString name = QFileInfo(file).completeBaseName() + u'.' + format;
        named << Output{format, folder.isEmpty() ? name : QDir(folder).filePath(name)};
    }
    return named;
}

std::variant<CommandLine, UsageError> ParseCommandLine(const QStringList& arguments)
{
    QCommandLineParser parser;
    AddOptions(parser);
    if (!parser.parse(QStringList{QStringLiteral("schedhost")} + arguments))
        return UsageError{parser.errorText().simplified()};
    try {
        return Checked(parser);
    } catch (const HostError& error) {
        return UsageError{error.Line().simplified()};
    }
}

} // namespace schedules::host
