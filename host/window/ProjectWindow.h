#pragma once

#include "host/answers/ProjectAnswers.h"
#include "host/project/Project.h"
#include "host/schedule/ScheduleBuilder.h"
#include "host/window/Answering.h"
#include "host/window/HostSettings.h"
#include "host/window/Palettes.h"

#include <QMainWindow>

#include <memory>
#include <optional>

class QActionGroup;
class QLabel;
class QMenu;
class QStackedWidget;

namespace schedules::host {

class CategoryDock;
class HelpWindow;
class MessageBar;
class MessageDock;
class HostedEditor;
class HostedSchedule;
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
    HostedSchedule* View() const { return m_view.get(); }
    HostedEditor* Options() const { return m_options.get(); }

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

    /// What the schedule view shows, as it was read.
    struct ShownSchedule
    {
        QString category;
        QStringList tags;
        TemplateLayout layout;
        ScheduleContent content;
    };

    void BuildDocks();
    void BuildMenus();
    void BuildFileMenu();
    void BuildViewMenu();
    void BuildHelpMenu();
    void BuildChoices(QMenu& menu, const QStringList& names, const QStringList& values, QActionGroup*& group,
                      void (ProjectWindow::*chosen)(const QString&));
    void CheckChoices();
    void ListRecent();
    void Restore();
    void Retranslate();

    void AskNew();
    void AskOpen();
    void AskServer();
    void AskImport();
    void ShowHelp(const QString& context);
    void ShowAbout();
    void ChooseLanguage(const QString& language);
    void ChoosePalette(const QString& palette);
    void ShowIn(Palette palette);

    void Connect();
    void ConnectAnswers(const ProjectAnswers& answers);
    void ListCategories();
    void OfferOrphans();
    void AdoptOrphans();

    void ChooseCategory(const QString& category);
    void ChooseTemplate(const QString& category, const QString& fileName);
    void ShowSelector(const QString& category);
    void ShowSchedule(const QString& category, const QStringList& tags, const TemplateLayout& layout);
    void ShowPicked(const QStringList& tags);
    void UseTemplate(const QString& xml);
    void TakeView(host::View kind, const QString& category, const QString& xml);
    void EndView();
    void LeaveView();
    void Refresh();
    void Reload();
    void Freshen(const QList<ValueEdit>& edited, int stored, bool differs);
    void FollowOthers();

    void ShowOptions();
    void EndOptions();
    bool MayDropTemplate();
    bool MayReplaceView();
    bool MayClose();

    std::optional<QList<ValueEdit>> AskConflicts(const QList<Conflict>& conflicts);
    void OnCrossed(const Crossing& crossing);
    void TellError(const QString& error);

    /// Does something, or later, when the message that asked for it is over. What fails is told in the bar.
    void Guarded(const std::function<void()>& step);
    void Later(std::function<void()> step);

    Session& m_session;
    Answering m_answering;
    ConflictQuestion m_conflicts;
    HostSettings m_settings;
    QString m_language;
    QString m_palette;
    QMenu* m_recent = nullptr;
    QActionGroup* m_languages = nullptr;
    QActionGroup* m_palettes = nullptr;
    MessageBar* m_bar;
    QStackedWidget* m_place;
    QLabel* m_invitation;
    CategoryDock* m_categories;
    QDockWidget* m_optionsDock;
    MessageDock* m_messages;
    HelpWindow* m_help = nullptr;
    OpenProject m_open;
    std::unique_ptr<HostedSchedule> m_view;
    std::unique_ptr<HostedEditor> m_options;
    std::optional<ShownSchedule> m_schedule; ///< nothing while the selector is shown
    bool m_viewDone = false;                 ///< the view has told to unload it
    QString m_failure;                       ///< why the last message but for errors was not answered
};

} // namespace schedules::host
