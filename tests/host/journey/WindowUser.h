#pragma once

#include "Hands.h"
#include "ShownGrid.h"

#include <QStringList>

namespace schedules::host {
class ProjectWindow;
} // namespace schedules::host

namespace schedules::host::testing {

/// A person at the window of a project, who does what can be done there by mouse and keyboard, and reads what is shown.
/// What cannot be done throws `HostError`.
class WindowUser
{
public:
    /// Shows the window in a good size.
    explicit WindowUser(ProjectWindow& window);

    /// The entries at the left, those below a category indented.
    std::string Entries() const;
    void ChooseCategory(const QString& displayName);

    /// Ticks tags and presses Continue.
    void Pick(const QStringList& tags);

    ShownGrid Grid() const;
    void Edit(const QString& tag, const QString& item, const QString& text);
    void Save() { ClickTool("btnSaveTag"); }

    /// Opens the options editor unless it is open.
    void Customize();

    /// Gives a user-defined data item of a group another name in the editor.
    void Rename(const QString& group, const QString& item, const QString& name);
    void Apply();
    void SaveAs(const QString& name);

    void PrintToPdf(const QString& fileName);
    void Export(const QString& fileName);
    void Refresh();

    /// Turns to another window, and comes back.
    void LookElsewhere();

    /// Opens another project by the File menu. What is asked or told then has to be answered elsewhere.
    void OpenFile(const QString& fileName);
    void OpenServer(const QString& address);

    /// Quits; a question about unsaved values is answered by the button with that caption.
    void Quit(const QString& answer = {});

    /// What the bar above the view tells, empty while it is hidden, and what the line below tells.
    std::string Told() const;
    std::string Status() const;
    void CloseMessage();

private:
    void ClickTool(const char* key);
    void ClickMenu(const QString& menu, const QString& entry);
    void Select(const char* list, const QString& entry);

    ProjectWindow& m_window;
};

} // namespace schedules::host::testing
