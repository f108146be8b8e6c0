#include "host/CommandLine.h"

#include "host/HostError.h"

#include <QCommandLineParser>
#include <QHash>
#include <QRegularExpression>

namespace schedules::host {

namespace {

const QStringList kCommonOptions{"view", "select-all", "messages", "language", "palette"};
const QStringList kActionOptions{"transpose", "edit", "tick", "sort", "continue", "save"};
const QStringList kFlags{"select-all", "transpose", "continue"};
const QStringList kOptionsWithValue{"view",  "messages", "language", "palette", "png",
                                    "title", "edit",     "tick",     "sort",    "save"};

/// The options that make sense in one view only.
const QHash<QString, QString> kViewOf{
    {"edit", "schedule"}, {"save", "schedule"}, {"tick", "selector"}, {"continue", "selector"}};

const QStringList kViews{"schedule", "selector"};
const QStringList kLanguages{"en", "de", "fr"};

/// In the order of `Palette`.
const QStringList kPalettes{"desktop", "light", "dark"};

/// The options that a form takes.
QStringList OptionsOf(Form form)
{
    switch (form) {
    case Form::Dump:
        return kCommonOptions + kActionOptions;
    case Form::Render:
        return kCommonOptions + kActionOptions + QStringList{"png", "title"};
    default:
        return kCommonOptions;
    }
}

void AddOptions(QCommandLineParser& parser)
{
    parser.addOptions({{{"h", "help"}, {}}, {{"v", "version"}, {}}});
    for (const QString& name : kFlags)
        parser.addOption({name, {}});
    for (const QString& name : kOptionsWithValue)
        parser.addOption({name, {}, name});
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

Form FormNamed(const QString& word)
{
    if (word == QLatin1String("dump"))
        return Form::Dump;
    return word == QLatin1String("render") ? Form::Render : Form::Window;
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

QString OnlyFile(const QStringList& files, Form form)
{
    if (files.isEmpty() && form != Form::Window)
        throw HostError(QStringLiteral("a file is missing"));
    if (files.size() > 1)
        throw HostError(QStringLiteral("one file at a time, not also '%1'").arg(files[1]));
    if (!files.isEmpty() && files.first().isEmpty())
        throw HostError(QStringLiteral("the file name is empty"));
    return files.value(0);
}

CommandLine Understood(const QCommandLineParser& parser)
{
    if (parser.isSet(QStringLiteral("help")))
        return {.form = Form::Help};
    if (parser.isSet(QStringLiteral("version")))
        return {.form = Form::Version};

    QStringList words = parser.positionalArguments();
    const Form form = FormNamed(words.value(0));
    CheckOptions(parser, form);
    if (form != Form::Window)
        words.removeFirst();
    const bool selector = OneOf(parser, QStringLiteral("view"), kViews) == kViews.last();
    return {.form = form,
            .file = OnlyFile(words, form),
            .view = {.view = selector ? View::Selector : View::Schedule,
                     .selectAll = parser.isSet(QStringLiteral("select-all")),
                     .transpose = parser.isSet(QStringLiteral("transpose"))},
            .actions = Actions(parser),
            .messages = FileName(parser, QStringLiteral("messages")),
            .png = FileName(parser, QStringLiteral("png")),
            .title = parser.value(QStringLiteral("title")),
            .language = OneOf(parser, QStringLiteral("language"), kLanguages),
            .palette = Palette(kPalettes.indexOf(OneOf(parser, QStringLiteral("palette"), kPalettes)))};
}

} // namespace

std::variant<CommandLine, UsageError> ParseCommandLine(const QStringList& arguments)
{
    QCommandLineParser parser;
    AddOptions(parser);
    if (!parser.parse(QStringList{QStringLiteral("schedhost")} + arguments))
        return UsageError{parser.errorText().simplified()};
    try {
        return Understood(parser);
    } catch (const HostError& error) {
        return UsageError{error.Line().simplified()};
    }
}

QString HelpText()
{
    return QStringLiteral(R"(schedhost: shows equipment schedules.

  schedhost [FILE.xml] [options]         opens a window on a schedule, or on your copy of a sample
  schedhost dump FILE.xml [options]      prints the grid as JSON
  schedhost render FILE.xml [options]    draws the view into a picture

Options:
  --view schedule|selector   which view loads the file (schedule)
  --select-all               selector view: every check box starts ticked
  --messages FILE            appends each message between tool and host to a file, one XML line each
  --language en|de|fr        language of the tool (en)
  --palette desktop|light|dark
                             colours (desktop); dump shows none
  --png FILE                 render: the picture's name (FILE.png in the current folder)
  --title TEXT               render: a heading above the grid
  -h, --help                 this text
  -v, --version              the version

For dump and render, done after loading in this order; columns and rows are numbered as dump prints them:
  --transpose                exchanges rows and columns
  --edit COLUMN,ROW=TEXT     schedule view: edits a cell; may be repeated. A check box takes 1 or 0
  --tick TAG                 selector view: ticks a tag; may be repeated
  --sort COLUMN[:desc]       sorts the rows as they are shown
  --continue                 selector view: presses Continue
  --save FILE                schedule view: presses Save, and writes what the view hands over

The window saves into the file that it shows; dump and render never change it.

Exit codes: 0 done, 1 the file could not be loaded or written, or the view did not allow it, 2 wrong usage.
)");
}

} // namespace schedules::host
