#pragma once

#include <QWidget>

#include <memory>

namespace schedules {
class IMsgRouter;
class ITemplateEditor;
class IToolUI;
class UserInterface;
} // namespace schedules

namespace schedules::host {

/// The options editor as this host uses it: created by name, driven through `IToolUI` and `ITemplateEditor`. What it
/// shows it asks the router for.
class HostedEditor
{
public:
    /// Runs the start-up exchange. With no `userInterface` message boxes are the desktop's.
    explicit HostedEditor(IMsgRouter& router, UserInterface* userInterface = nullptr);
    ~HostedEditor();

    /// Loads the templates and shows the schedule's.
    void Open();

    /// Whether the template that is shown has edits that have not been saved.
    bool HasUnsavedEdits() const;

    /// The file name of the template that is shown; empty when there is none.
    QString TemplateFile() const;

    /// Does what the buttons of that name do. False when they cannot be pressed.
    bool Apply();
    bool Cancel();

    /// Shows the template of that file, in whatever letter case. What is not there, or cannot be chosen, throws
    /// `HostError`.
    void ChooseTemplate(const QString& fileName);

    /// By the name that is listed; that of a data item with or without the star that marks the user's own. Throws
    /// likewise.
    void SelectGroup(const QString& name);
    void SelectItem(const QString& name);

    QWidget& Widget() const { return *m_widget; }

private:
    std::unique_ptr<QWidget> m_widget;
    IToolUI& m_tool;
    ITemplateEditor& m_editor;
};

} // namespace schedules::host
