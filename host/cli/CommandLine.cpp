#include "host/cli/CommandLine.h"

#include "host/base/HostError.h"
#include "host/cli/CommandLineChecks.h"
#include "host/cli/CommandLineOptions.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace schedules::host {

namespace {

const QStringList kViews{"schedule", "selector"};

/// The first one is used when none is named.
constexpr std::array kPapers{QPageSize::A4, QPageSize::A3,     QPageSize::A2,    QPageSize::A1,     QPageSize::A0,
                             QPageSize::A5, QPageSize::Letter, QPageSize::Legal, QPageSize::Tabloid};

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

EditorOptions Editor(const QCommandLineParser& parser)
{
    return {.list = FileName(parser, QStringLiteral("list")),
            .categories = FileName(parser, QStringLiteral("categories")),
            .current = parser.value(QStringLiteral("current")),
            .picture = FileName(parser, QStringLiteral("png")),
            .templateFile = parser.value(QStringLiteral("select")),
            .group = parser.value(QStringLiteral("group")),
            .item = parser.value(QStringLiteral("item")),
            .rightToLeft = parser.isSet(QStringLiteral("right-to-left"))};
}

ProjectOptions OnProject(const QCommandLineParser& parser)
{
    const QString tags = parser.value(QStringLiteral("tags"));
    return {.category = parser.value(QStringLiteral("category")),
            .tags = tags.isEmpty() ? QStringList() : tags.split(u','),
            .templateFile = parser.value(QStringLiteral("template")),
            .asJson = parser.isSet(QStringLiteral("json")),
            .empty = parser.isSet(QStringLiteral("empty")),
            .sample = parser.isSet(QStringLiteral("sample"))};
}

CommandLine Understood(const QCommandLineParser& parser)
{
    QStringList words = parser.positionalArguments();
    const Form form = FormOf(words.value(0));
    const QString view = OneOf(parser, QStringLiteral("view"), kViews);
    CheckOptions(parser, form, view);
    if (form != Form::Window)
        words.removeFirst();
    CheckArguments(words, form);
    return {.form = form,
            .files = words,
            .view = {.view = view == kViews.last() ? View::Selector : View::Schedule,
                     .selectAll = parser.isSet(QStringLiteral("select-all")),
                     .transpose = parser.isSet(QStringLiteral("transpose"))},
            .actions = Actions(parser),
            .session = {.language = OneOf(parser, QStringLiteral("language"), kLanguageCodes),
                        .messages = FileName(parser, QStringLiteral("messages"))},
            .render = form == Form::Options ? RenderOptions() : Rendering(parser),
            .editor = form == Form::Options ? Editor(parser) : EditorOptions(),
            .project = OnProject(parser),
            .languageChosen = parser.isSet(QStringLiteral("language")),
            .palette = Palette(kPaletteNames.indexOf(OneOf(parser, QStringLiteral("palette"), kPaletteNames)))};
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
    if (commandLine.form == Form::Options)
        CheckEditor(commandLine);
    if (commandLine.form == Form::New)
        CheckNew(commandLine);
    if (commandLine.form == Form::Schedule)
        CheckSchedule(parser, commandLine);
    return commandLine;
}

/// The value that `set` stores may be a negative number, which is no option then.
QStringList WithPlainValue(QStringList arguments)
{
    static const QRegularExpression negative(QStringLiteral("^-[0-9.,]"));
    if (arguments.size() == 5 && FormOf(arguments.first()) == Form::Set && arguments.last().contains(negative))
        arguments.insert(4, QStringLiteral("--"));
    return arguments;
}

} // namespace

bool CommandLine::ShowsWindow() const
{
    return form == Form::Window || (form == Form::Options && editor.picture.isEmpty());
}

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
    if (!parser.parse(QStringList{QStringLiteral("schedhost")} + WithPlainValue(arguments)))
        return UsageError{parser.errorText().simplified()};
    try {
        return Checked(parser);
    } catch (const HostError& error) {
        return UsageError{error.Line().simplified()};
    }
}

} // namespace schedules::host
