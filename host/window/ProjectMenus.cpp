#include "host/window/ProjectMenus.h"

#include "host/tools/LanguageModule.h"

#include <QActionGroup>
#include <QMainWindow>
#include <QMenuBar>

#include <algorithm>
#include <utility>

namespace schedules::host {

namespace {

/// Each in its own language, so that whoever is lost in a foreign one finds back.
const QStringList kLanguageNames{"English", "Deutsch", "Français"};

/// The desktop's for a name that is none.
Palette PaletteNamed(const QString& name)
{
    return static_cast<Palette>(std::max<qsizetype>(0, kPaletteNames.indexOf(name)));
}

void Check(const QActionGroup* choices, const QString& value)
{
    if (!choices)
        return;
    for (QAction* action : choices->actions())
        action->setChecked(action->data().toString() == value);
}

} // namespace

ProjectMenus::ProjectMenus(QMainWindow& window, const QList<QAction*>& panes)
    : QObject(&window), m_window(window), m_panes(panes)
{
}

void ProjectMenus::Build()
{
    qDeleteAll(std::exchange(m_menus, {}));
    BuildFileMenu();
    BuildViewMenu();
    BuildHelpMenu();
}

QMenu* ProjectMenus::Added(const QString& title)
{
    m_menus.append(m_window.menuBar()->addMenu(title));
    return m_menus.last();
}

void ProjectMenus::BuildFileMenu()
{
    QMenu* menu = Added(tr("&File"));
    menu->addAction(tr("&New Project..."), QKeySequence::New, this, &ProjectMenus::NewWanted);
    menu->addAction(tr("&Open Project..."), QKeySequence::Open, this, &ProjectMenus::OpenWanted);
    menu->addAction(tr("Open from &Server..."), this, &ProjectMenus::ServerWanted);
    ListRecent(*menu->addMenu(tr("&Recent Projects")));
    menu->addSeparator();
    menu->addAction(tr("&Import Table..."), this, &ProjectMenus::ImportWanted);
    menu->addAction(tr("Re&fresh"), QKeySequence::Refresh, this, &ProjectMenus::RefreshWanted);
    menu->addSeparator();
    menu->addAction(tr("&Quit"), QKeySequence::Quit, &m_window, &QMainWindow::close);
}

void ProjectMenus::ListRecent(QMenu& menu)
{
    for (const QString& address : m_settings.RecentProjects()) {
        const QAction* action = menu.addAction(QString(address).replace(u'&', QStringLiteral("&&")));
        // Later, since opening replaces the menus.
        connect(
            action, &QAction::triggered, this, [this, address] { Q_EMIT RecentChosen(address); }, Qt::QueuedConnection);
    }
    menu.setEnabled(!menu.isEmpty());
}

void ProjectMenus::BuildViewMenu()
{
    QMenu* menu = Added(tr("&View"));
    m_languages =
        BuildChoices(*menu->addMenu(tr("&Language")), kLanguageNames, kLanguageCodes, &ProjectMenus::LanguageChosen);
    m_palettes = BuildChoices(*menu->addMenu(tr("&Colours")), {tr("Desktop"), tr("Light"), tr("Dark")}, kPaletteNames,
                              &ProjectMenus::ChoosePalette);
    Check(m_languages, m_language);
    Check(m_palettes, m_palette);
    menu->addSeparator();
    menu->addActions(m_panes);
}

QActionGroup* ProjectMenus::BuildChoices(QMenu& menu, const QStringList& names, const QStringList& values,
                                         void (ProjectMenus::*chosen)(const QString&))
{
    auto* group = new QActionGroup(&menu);
    for (int index = 0; index < names.size(); ++index) {
        QAction* action = group->addAction(menu.addAction(names[index]));
        action->setCheckable(true);
        action->setData(values[index]);
        connect(action, &QAction::triggered, this, [this, chosen, value = values[index]] { (this->*chosen)(value); });
    }
    return group;
}

void ProjectMenus::BuildHelpMenu()
{
    QMenu* menu = Added(tr("&Help"));
    menu->addAction(tr("&Contents"), QKeySequence::HelpContents, this, &ProjectMenus::HelpWanted);
    menu->addAction(tr("&About"), this, &ProjectMenus::AboutWanted);
}

void ProjectMenus::MarkLanguage(const QString& language)
{
    m_language = language;
    Check(m_languages, language);
}

void ProjectMenus::UseColours(Palette palette)
{
    ShowIn(palette == Palette::Desktop ? PaletteNamed(m_settings.Palette()) : palette);
}

void ProjectMenus::ChoosePalette(const QString& palette)
{
    m_settings.SetPalette(palette);
    ShowIn(PaletteNamed(palette));
}

void ProjectMenus::ShowIn(Palette palette)
{
    UsePalette(palette);
    m_palette = kPaletteNames[static_cast<int>(palette)];
    Check(m_palettes, m_palette);
}

} // namespace schedules::host
