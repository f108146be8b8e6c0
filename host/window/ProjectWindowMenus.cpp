#include "framework/IComponentFactory.h"
#include "host/base/HostError.h"
#include "host/import/Import.h"
#include "host/import/SampleProject.h"
#include "host/tools/LanguageModule.h"
#include "host/tools/Session.h"
#include "host/window/CategoryDock.h"
#include "host/window/HelpWindow.h"
#include "host/window/MessageDock.h"
#include "host/window/Palettes.h"
#include "host/window/ProjectWindow.h"
#include "host/window/Warning.h"

#include <QActionGroup>
#include <QFileDialog>
#include <QInputDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>

#include <algorithm>

namespace schedules::host {

namespace {

/// Each in its own language, so that whoever is lost in another one finds back.
const QStringList kLanguageNames{"English", "Deutsch", "Français"};

const QString kProjectEnd = QStringLiteral(".schedules");

QString ProjectFilter()
{
    return ProjectWindow::tr("Projects (*%1);;All files (*)").arg(kProjectEnd);
}

/// The desktop's for a name that is none.
Palette PaletteNamed(const QString& name)
{
    return static_cast<Palette>(std::max<qsizetype>(0, kPaletteNames.indexOf(name)));
}

} // namespace

/// Anew each time, which tells them in the language of now.
void ProjectWindow::BuildMenus()
{
    qDeleteAll(menuBar()->findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly));
    BuildFileMenu();
    BuildViewMenu();
    BuildHelpMenu();
    CheckChoices();
}

void ProjectWindow::BuildFileMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    menu->addAction(tr("&New Project..."), QKeySequence::New, this, &ProjectWindow::AskNew);
    menu->addAction(tr("&Open Project..."), QKeySequence::Open, this, &ProjectWindow::AskOpen);
    menu->addAction(tr("Open from &Server..."), this, &ProjectWindow::AskServer);
    m_recent = menu->addMenu(tr("&Recent Projects"));
    menu->addSeparator();
    menu->addAction(tr("&Import Table..."), this, &ProjectWindow::AskImport);
    menu->addAction(tr("Re&fresh"), QKeySequence::Refresh, this, &ProjectWindow::Refresh);
    menu->addSeparator();
    menu->addAction(tr("&Quit"), QKeySequence::Quit, this, &ProjectWindow::close);
    ListRecent();
}

void ProjectWindow::ListRecent()
{
    m_recent->clear();
    for (const QString& address : m_settings.RecentProjects()) {
        const QAction* action = m_recent->addAction(QString(address).replace(u'&', QStringLiteral("&&")));
        // Later, since opening makes the menus anew.
        connect(
            action, &QAction::triggered, this, [this, address] { Open(address); }, Qt::QueuedConnection);
    }
    m_recent->setEnabled(!m_recent->isEmpty());
}

void ProjectWindow::BuildViewMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&View"));
    BuildChoices(*menu->addMenu(tr("&Language")), kLanguageNames, kLanguageCodes, m_languages,
                 &ProjectWindow::ChooseLanguage);
    BuildChoices(*menu->addMenu(tr("&Colours")), {tr("Desktop"), tr("Light"), tr("Dark")}, kPaletteNames, m_palettes,
                 &ProjectWindow::ChoosePalette);
    menu->addSeparator();
    menu->addAction(m_categories->toggleViewAction());
    menu->addAction(m_messages->toggleViewAction());
}

void ProjectWindow::BuildChoices(QMenu& menu, const QStringList& names, const QStringList& values, QActionGroup*& group,
                                 void (ProjectWindow::*chosen)(const QString&))
{
    group = new QActionGroup(&menu);
    for (int index = 0; index < names.size(); ++index) {
        QAction* action = group->addAction(menu.addAction(names[index]));
        action->setCheckable(true);
        action->setData(values[index]);
        connect(action, &QAction::triggered, this, [this, chosen, value = values[index]] { (this->*chosen)(value); });
    }
}

void ProjectWindow::BuildHelpMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Help"));
    menu->addAction(tr("&Contents"), QKeySequence::HelpContents, this, [this] { ShowHelp({}); });
    menu->addAction(tr("&About"), this, &ProjectWindow::ShowAbout);
}

void ProjectWindow::ShowHelp(const QString& context)
{
    if (!m_help)
        m_help = new HelpWindow(this);
    m_help->Open(context);
}

void ProjectWindow::AskNew()
{
    const QString chosen = QFileDialog::getSaveFileName(this, tr("New project"), {}, ProjectFilter(), nullptr,
                                                        QFileDialog::DontConfirmOverwrite); // none is overwritten
    if (chosen.isEmpty() || !MayClose())
        return;
    const QString file = chosen.endsWith(kProjectEnd, Qt::CaseInsensitive) ? chosen : chosen + kProjectEnd;
    try {
        Show(NewProject(file, FillWithStandards));
    } catch (const HostError& error) {
        Warn(*this, error.Line());
    }
}

void ProjectWindow::AskOpen()
{
    const QString chosen = QFileDialog::getOpenFileName(this, tr("Open a project"), {}, ProjectFilter());
    if (!chosen.isEmpty())
        Open(chosen);
}

void ProjectWindow::AskServer()
{
    const QString address = QInputDialog::getText(this, tr("Open from a server"), tr("Address of the project:"),
                                                  QLineEdit::Normal, QStringLiteral("postgresql://user@host/database"));
    if (!address.isEmpty())
        Open(address);
}

void ProjectWindow::AskImport()
{
    if (!m_open.project)
        return;
    const QString file =
        QFileDialog::getOpenFileName(this, tr("Import a table"), {}, tr("Tables (*.csv *.txt);;All files (*)"));
    if (file.isEmpty() || !MayReplaceView())
        return;
    try {
        const ImportResult result = ImportTable(*m_open.project, file);
        Reload();
        ListCategories();
        Retranslate();
        statusBar()->showMessage(tr("Imported %1 tags and %2 values").arg(result.tags).arg(result.values));
    } catch (const HostError& error) {
        Warn(*this, error.Line());
    }
}

void ProjectWindow::ShowAbout()
{
    QMessageBox::about(
        this, tr("About Equipment Schedules"),
        tr("<h3>Equipment Schedules %1</h3><p>The reference host of the schedule component: it shows the "
           "equipment of a project, and lists what the component and its host say to each other.</p>")
            .arg(ComponentFactory().Version()));
}

/// The tools are made anew, since they set their captions when they start.
void ProjectWindow::ChooseLanguage(const QString& language)
{
    Guarded([&] {
        if (!m_open.project || !MayClose())
            return;
        m_open.project->SetLanguage(language);
        const auto schedule = m_schedule;
        const bool hadView = m_view != nullptr;
        EndOptions();
        EndView();
        m_language = language;
        m_session.UseLanguage(language);
        if (schedule)
            ShowSchedule(schedule->category, schedule->tags, schedule->layout);
        else if (hadView)
            ShowSelector(QString(m_open.answers->Category()));
    });
    CheckChoices();
}

void ProjectWindow::UseColours(Palette palette)
{
    ShowIn(palette == Palette::Desktop ? PaletteNamed(m_settings.Palette()) : palette);
}

void ProjectWindow::ChoosePalette(const QString& palette)
{
    m_settings.SetPalette(palette);
    ShowIn(PaletteNamed(palette));
}

void ProjectWindow::ShowIn(Palette palette)
{
    UsePalette(palette);
    m_palette = kPaletteNames[static_cast<int>(palette)];
    CheckChoices();
}

void ProjectWindow::CheckChoices()
{
    for (QAction* action : m_languages->actions())
        action->setChecked(action->data().toString() == m_language);
    for (QAction* action : m_palettes->actions())
        action->setChecked(action->data().toString() == m_palette);
}

} // namespace schedules::host
