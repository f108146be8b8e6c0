#pragma once

#include "host/answers/ProjectAnswers.h"
#include "host/project/Project.h"
#include "host/window/Answering.h"
#include "host/window/HostSettings.h"
#include "host/window/Palettes.h"

#include <QMainWindow>

#include <memory>

namespace schedules::host {

class CategoryDock;
class EditorDock;
class GuardedSteps;
class HelpWindow;
class HostedEditor;
class HostedSchedule;
class MessageBar;
class MessageDock;
class ProjectMenus;
class ProjectViews;
class Session;
struct Crossing;

/// The window on a project: its categories at the left, in the middle the selector or the schedule of the picked tags,
/// beside it the options editor while it is open, and below the messages that the tools exchange with this host.
///
/// What a tool wants to be closed goes when its message is over, since it is still at work in its own click. Closing
/// the window asks about values and templates that are not saved.
class ProjectWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The session must outlive the window. `conflicts` decides instead of a dialog.
    explicit ProjectWindow(Session& session, const Answering& answering = {}, ConflictQuestion conflicts = {});
    ~ProjectWindow() override;

    /// Opens a project in place of the one that is open, in its own language unless one is named. False when the user
    /// would not leave unsaved values, or it cannot be opened, which is told in a message box.
    bool Open(const QString& address, const QString& language = {});

    /// Opens a project without showing it. Asks for the password of a server that does not let the user in without.
    /// Throws `HostError`.
    std::unique_ptr<Project> Opened(const QString& address);

    /// Shows it as `Open` does.
    void Show(std::unique_ptr<Project> project, const QString& language = {});

    /// Shows all windows in these colours, or, when they are the desktop's, in those that the user chose last.
    void UseColours(Palette palette);

    /// The view that is shown; none before a category is chosen.
    HostedSchedule* View() const;
    HostedEditor* Options() const;

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// What belongs to the project that is open, in the order in which it is built.
    struct OpenProject
    {
        std::unique_ptr<Project> project;
        std::unique_ptr<LaidOutTemplates> folder;
        std::unique_ptr<ProjectAnswers> answers;
    };

    void BuildDocks();
    void Connect();
    void ConnectMenus();
    void ConnectAnswers(const ProjectAnswers& answers);
    void Restore();
    void Retranslate();

    void AskNew();
    void OpenChosen(const QString& address);
    void AskImport();
    void ShowHelp(const QString& context);
    void ChooseLanguage(const QString& language);

    void ListCategories();
    void OfferOrphans();
    void AdoptOrphans();
    void ChooseCategory(const QString& category);
    void ChooseTemplate(const QString& category, const QString& fileName);
    void UseTemplate(const QString& xml);

    void LeaveView();
    void Refresh();
    void Freshen(const QList<ValueEdit>& edited, int stored, bool differs);
    void FollowOthers();
    void TellOfOthers(int values);
    bool MayClose();
    void OnCrossed(const Crossing& crossing);

    Session& m_session;
    ConflictQuestion m_conflicts;
    HostSettings m_settings;
    MessageBar* m_bar;
    GuardedSteps* m_steps;
    ProjectViews* m_views;
    CategoryDock* m_categories;
    EditorDock* m_editor;
    MessageDock* m_messages;
    ProjectMenus* m_menus;
    HelpWindow* m_help = nullptr;
    OpenProject m_open;
    QString m_language;
};

} // namespace schedules::host
