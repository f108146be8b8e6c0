#include "host/cli/CommandLineOptions.h"

#include <QCommandLineParser>
#include <QHash>

namespace schedules::host {

namespace {

const QHash<QString, Form> kCommands{
    {"dump", Form::Dump}, {"render", Form::Render},     {"template", Form::Template}, {"catalogue", Form::Catalogue},
    {"find", Form::Find}, {"options", Form::Options},   {"new", Form::New},           {"import", Form::Import},
    {"list", Form::List}, {"schedule", Form::Schedule}, {"get", Form::Get},           {"set", Form::Set}};

const QStringList kCommonOptions{"view", "select-all", "messages", "language", "palette"};
const QStringList kActionOptions{"transpose", "edit", "tick", "sort", "continue", "save"};
const QStringList kRenderOptions = kFormats + QStringList{"out", "as", "title", "plain-print", "paper"};
const QStringList kEditorOptions{"list", "categories", "current", "select", "group", "item", "right-to-left"};
const QStringList kProjectOptions{"category", "tags", "template", "json", "empty", "sample"};
const QStringList kFlags{"json",      "empty",    "sample",      "select-all",
                         "transpose", "continue", "plain-print", "right-to-left"};

} // namespace

Form FormOf(const QString& word)
{
    return kCommands.value(word, Form::Window);
}

QStringList OptionsOf(Form form)
{
    switch (form) {
    case Form::Dump:
        return kCommonOptions + kActionOptions;
    case Form::Render:
        return kCommonOptions + kActionOptions + kRenderOptions;
    case Form::Options:
        return kEditorOptions + QStringList{"png", "messages", "language", "palette"};
    case Form::New:
        return {QStringLiteral("empty"), QStringLiteral("sample")};
    case Form::List:
        return {QStringLiteral("category"), QStringLiteral("json")};
    case Form::Get:
        return {QStringLiteral("json")};
    case Form::Schedule:
        return kFormats + QStringList{"category",    "tags",  "template", "transpose", "title",
                                      "plain-print", "paper", "messages", "language",  "palette"};
    case Form::Import:
    case Form::Set:
        return {};
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
    for (const QString& name : kCommonOptions + kActionOptions + kRenderOptions + kEditorOptions + kProjectOptions)
        parser.addOption({name, {}, kFlags.contains(name) ? QString() : name});
}

} // namespace schedules::host
