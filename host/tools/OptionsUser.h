#pragma once

#include <QString>

class QAbstractItemView;

namespace schedules::host {

class HostedEditor;

/// Chooses what an options editor shows as a user does, by keys and clicks on its widgets. What is not there, or cannot
/// be chosen, throws `HostError`.
class OptionsUser
{
public:
    /// The editor is shown and outlives this object.
    explicit OptionsUser(HostedEditor& tool) : m_tool(tool) {}

    /// Goes from template to template until it comes to the one with that file, in whatever letter case.
    void ChooseTemplate(const QString& fileName);

    /// By the text in the list; that of a data item with or without the star that marks the user's own.
    void SelectGroup(const QString& name);
    void SelectItem(const QString& name);

private:
    void Select(const char* list, const QString& name, const QString& kind);

    HostedEditor& m_tool;
};

} // namespace schedules::host
