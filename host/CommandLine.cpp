#include "host/CommandLine.h"

#include "host/HostError.h"

#include <QCommandLineParser>

namespace schedules::host {

namespace {

const QStringList kCommonOptions{"view", "select-all", "messages", "language"};
const QStringList kViews{"schedule", "selector"};
const QStringList kLanguages{"en", "de", "fr"};

/// The options that a form takes.
QStringList OptionsOf(Form form)
{
    switch (form) {
    case Form::Dump:
        return kCommonOptions + QStringList{"transpose"};
    case Form::Render:
        return kCommonOptions + QStringList{"transpose", "png", "title"};
    default:
        return kCommonOptions;
    }
}

void AddOptions(QCommandLineParser& parser)
{
    parser.addOptions({{{"h", "help"}, {}}, {{"v", "version"}, {}}, {"select-all", {}}, {"transpose", {}}});
    for (const char* name : {"view", "messages", "language", "png", "title"})
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
    for (const QString& name : parser.optionNames()) {
        if (!OptionsOf(form).contains(name))
            throw HostError(QStringLiteral("--%1 does not belong to this command").arg(name));
    }
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
            .messages = FileName(parser, QStringLiteral("messages")),
            .png = FileName(parser, QStringLiteral("png")),
            .title = parser.value(QStringLiteral("title")),
            .language = OneOf(parser, QStringLiteral("language"), kLanguages)};
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

  schedhost [FILE.xml] [options]         opens a window on a schedule, or on a sample
  schedhost dump FILE.xml [options]      prints the loaded grid as JSON
  schedhost render FILE.xml [options]    draws the view into a picture

Options:
  --view schedule|selector   which view loads the file (schedule)
  --select-all               selector view: every check box starts ticked
  --transpose                dump, render: exchanges rows and columns after loading
  --png FILE                 render: the picture's name (FILE.png in the current folder)
  --title TEXT               render: a heading above the grid
  --messages FILE            appends each message between tool and host to a file, one XML line each
  --language en|de|fr        language of the tool (en)
  -h, --help                 this text
  -v, --version              the version

Exit codes: 0 done, 1 the file could not be loaded or written, 2 wrong usage.
)");
}

} // namespace schedules::host
