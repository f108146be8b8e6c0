#pragma once

#include <QString>
#include <QStringList>

#include <variant>

namespace schedules::host {

enum class Form
{
    Window,
    Dump,
    Render,
    Help,
    Version
};

/// The numbers are those of the tool's property `ViewType`.
enum class View
{
    Schedule = 1,
    Selector = 2
};

/// How a table is shown.
struct ViewOptions
{
    View view = View::Schedule;
    bool selectAll = false;
    bool transpose = false;

    bool operator==(const ViewOptions&) const = default;
};

/// What the program was asked to do.
struct CommandLine
{
    Form form = Form::Window;
    QString file; ///< empty: the sample
    ViewOptions view;
    QString messages; ///< the file that every message is appended to; empty for none
    QString png;
    QString title;
    QString language = QStringLiteral("en");

    bool operator==(const CommandLine&) const = default;
};

struct UsageError
{
    QString line;
};

/// `arguments` without the name of the program.
std::variant<CommandLine, UsageError> ParseCommandLine(const QStringList& arguments);

QString HelpText();

} // namespace schedules::host
