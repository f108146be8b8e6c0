#pragma once

#include <QWidget>

#include <memory>

namespace schedules {
class IMsgRouter;
class IToolUI;
class UserInterface;
} // namespace schedules

namespace schedules::host {

/// The options editor as this host uses it: created by name, driven through `IToolUI`. What it shows it asks the router
/// for.
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
    bool PressApply();
    bool PressCancel();

    QWidget& Widget() const { return *m_widget; }

private:
    bool Press(const char* button);

    std::unique_ptr<QWidget> m_widget;
    IToolUI* m_tool;
};

} // namespace schedules::host
