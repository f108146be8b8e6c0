#include "host/CommandLineOptions.h"

#include <QCommandLineParser>
#include <QHash>

namespace schedules::host {

namespace {

const QHash<QString, Form> kCommands{{"dump", Form::Dump},         {"render", Form::Render},
                                     {"template", Form::Template}, {"catalogue", Form::Catalogue},
                                     {"find", Form::Find},         {"options", Form::Options}};

const QStringList kCommonOptions{"view", "select-all", "messages", "language", "palette"};
const QStringList kActionOptions{"transpose", "edit", "tick", "sort", "continue", "save"};
const QStringList kRenderOptions = kFormats + QStringList{"out", "as", "title", "plain-print", "paper"};
const QStringList kEditorOptions{"list", "categories", "current", "select", "group", "item", "right-to-left"};
const QStringList kFlags{"select-all", "transpose", "continue", "plain-print", "right-to-left"};

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
    for (const QString& name : kCommonOptions + kActionOptions + kRenderOptions + kEditorOptions)
        parser.addOption({name, {}, kFlags.contains(name) ? QString() : name});
}

} // namespace schedules::host
