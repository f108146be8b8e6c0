#pragma once

#include "host/tools/Session.h"
#include "host/tools/UserActions.h"
#include "host/tools/ViewOptions.h"
#include "host/window/Palettes.h"

#include <QList>
#include <QPageSize>
#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

namespace schedules::host {

enum class Form
{
    Window,
    Dump,
    Render,
    Template,
    Catalogue,
    Find,
    Options,
    New,
    Import,
    List,
    Schedule,
    Get,
    Set,
    Help,
    Version
};

/// A file to be written. The formats are "png", "pdf", "xls", "xlsx", "csv" and "html", which are also the names of the
/// options and the ends of file names.
struct Output
{
    QString format;
    QString fileName;

    bool operator==(const Output&) const = default;
};

/// What `render` makes of the files that it reads.
struct RenderOptions
{
    QList<Output> outputs;      ///< those that have a name, for one file
    QStringList formats{"png"}; ///< without any, one output of each, named after the file that is read
    QString folder;             ///< where these go; empty: the current folder
    QString title;              ///< a heading for pictures
    bool smartPrint = true;     ///< a PDF is fitted to its pages
    QPageSize::PageSizeId paper = QPageSize::A4;

    bool operator==(const RenderOptions&) const = default;

    QList<Output> OutputsOf(const QString& file) const;
};

/// What the options editor is opened on, and what of it is shown.
struct EditorOptions
{
    QString list;         ///< the files of the host's two lists; empty for the user's copy of the samples
    QString categories;   ///< likewise
    QString current;      ///< the file name of the template that the schedule uses
    QString picture;      ///< the file that the editor is drawn into; empty: a window is opened
    QString templateFile; ///< the template that is chosen; empty for the schedule's
    QString group;        ///< the group and the data item that are selected in it, as they are listed; empty for none
    QString item;
    bool rightToLeft = false;

    bool operator==(const EditorOptions&) const = default;
};

/// What of a project is meant, and how it is told.
struct ProjectOptions
{
    QString category;
    QStringList tags;     ///< none for all
    QString templateFile; ///< empty for that which the category's schedule uses
    bool asJson = false;
    bool empty = false;  ///< a new project has not even categories
    bool sample = false; ///< a new project has the sample's tags

    bool operator==(const ProjectOptions&) const = default;
};

/// What the program was asked to do.
struct CommandLine
{
    Form form = Form::Window;

    /// One, or none for the user's copy of the sample project; several for `render`. For `catalogue` the list of
    /// templates, that of categories, and the folder; for `find` the pattern; for `options` the folder, or none for the
    /// user's copy of the sample templates. For a command on a project its address, and then what the command takes:
    /// files to import, or tag, item and value.
    QStringList files;

    ViewOptions view;
    UserActions actions;
    SessionOptions session;
    RenderOptions render;
    EditorOptions editor;
    ProjectOptions project;
    bool languageChosen = false; ///< else a project has its own
    Palette palette = Palette::Desktop;

    bool operator==(const CommandLine&) const = default;

    /// Whether a person is to see something.
    bool ShowsWindow() const;
};

struct UsageError
{
    QString line;
};

/// `arguments` without the name of the program.
std::variant<CommandLine, UsageError> ParseCommandLine(const QStringList& arguments);

} // namespace schedules::host
