#pragma once

#include "host/window/HostSettings.h"
#include "host/window/Palettes.h"

#include <QList>
#include <QObject>
#include <QString>

class QAction;
class QActionGroup;
class QMainWindow;
class QMenu;

namespace schedules::host {

/// The menus of a project's window, which tell what their user wants. The colours they set themselves.
class ProjectMenus : public QObject
{
    Q_OBJECT

public:
    /// `panes` are the entries that show and hide what is docked. They and the window must outlive this object.
    ProjectMenus(QMainWindow& window, const QList<QAction*>& panes);

    /// Replaces the menus with new ones in the current language.
    void Build();

    /// Which language is in use.
    void MarkLanguage(const QString& language);

    /// Shows all windows in these colours, or, when they are the desktop's, in those that the user chose last.
    void UseColours(Palette palette);

Q_SIGNALS:
    void NewWanted();
    void OpenWanted();
    void ServerWanted();
    void RecentChosen(const QString& address); ///< when the menu is closed
    void ImportWanted();
    void RefreshWanted();
    void LanguageChosen(const QString& language);
    void HelpWanted();
    void AboutWanted();

private:
    QMenu* Added(const QString& title);
    void BuildFileMenu();
    void BuildViewMenu();
    void BuildHelpMenu();
    QActionGroup* BuildChoices(QMenu& menu, const QStringList& names, const QStringList& values,
                               void (ProjectMenus::*chosen)(const QString&));
    void ListRecent(QMenu& menu);
    void ChoosePalette(const QString& palette);
    void ShowIn(Palette palette);

    QMainWindow& m_window;
    QList<QAction*> m_panes;
    HostSettings m_settings;
    QString m_language;
    QString m_palette;
    QList<QMenu*> m_menus;
    QActionGroup* m_languages = nullptr;
    QActionGroup* m_palettes = nullptr;
};

} // namespace schedules::host
