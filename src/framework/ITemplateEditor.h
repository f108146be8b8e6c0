#pragma once

#include <QString>
#include <QStringList>
#include <QtPlugin>

namespace schedules {

/// The options editor beside `IToolUI`: found with `qobject_cast` on what `IComponentFactory::CreateTool` has made.
/// Calls are made on the user-interface thread, and none of them throws. The host may delete the editor in any message
/// that a call sends; the call then returns as if it had done nothing.
class ITemplateEditor
{
public:
    virtual ~ITemplateEditor() = default;

    /// The file name of the template that is shown; empty when none is.
    virtual QString TemplateFile() const = 0;

    /// Shows the template of that file name, letter case aside, as choosing it in the list does. False when the list
    /// has no such template, or the user would rather stay with the current one.
    virtual bool ChooseTemplate(const QString& fileName) = 0;

    /// Selects a group, or a data item of the selected group, by the name that is listed. False when there is none, or
    /// it cannot be selected now.
    virtual bool SelectGroup(const QString& name) = 0;
    virtual bool SelectItem(const QString& name) = 0;

    /// The names that are listed of the selected group's data items.
    virtual QStringList ItemNames() const = 0;

    /// Whether the current template has edits that are not saved.
    virtual bool HasUnsavedEdits() const = 0;

    /// Does what the button does; false while it is disabled.
    virtual bool Apply() = 0;
    virtual bool Cancel() = 0;
};

} // namespace schedules

Q_DECLARE_INTERFACE(schedules::ITemplateEditor, "schedules.ITemplateEditor/1.0")
