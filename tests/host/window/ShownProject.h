#pragma once

#include "host/answers/SmallProject.h"
#include "host/tools/HostedEditor.h"
#include "host/tools/HostedSchedule.h"
#include "host/tools/Session.h"
#include "host/window/ProjectWindow.h"
#include "spread/Sheet.h"
#include "support/ScriptedUserInterface.h"

#include <QAction>
#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSettings>
#include <QStatusBar>
#include <QTest>
#include <QTreeView>
#include <QTreeWidget>

#include <deque>
#include <optional>

namespace schedules::host::testing {

/// A window on a small project, with a user who works in it, and who answers from scripts. Settings and template files
/// go into a folder of the test's own.
class ShownProject : public SmallProject
{
protected:
    ShownProject()
    {
        qputenv("XDG_DATA_HOME", Path(QStringLiteral("data")).toLocal8Bit());
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, Path(QStringLiteral("config")));
        Start();
    }

    /// A window as it is after the start of the program.
    void Start()
    {
        window.reset();
        window = std::make_unique<ProjectWindow>(session,
                                                 Answering{&user,
                                                           [this](QWidget&, const QString& name) {
                                                               asked << name;
                                                               return NextAnswer();
                                                           }},
                                                 [this](const QList<Conflict>& found) { return Decided(found); });
        window->show();
        QApplication::setActiveWindow(window.get());
        ASSERT_TRUE(window->Open(Address()));
    }

    HostedSchedule& View() const { return *window->View(); }
    Sheet& Grid() const { return View().Grid(); }
    std::string TextAt(int column, int row) const { return Grid().Text({Column(column), Row(row)}).toStdString(); }
    bool ShowsSelector() const { return View().Widget().property("ViewType").toInt() == int(host::View::Selector); }

    /// What the grid shows, a line for each row, without the check boxes' row of a selection.
    std::string Shown() const
    {
        QStringList lines;
        for (int row = 0; row <= Grid().RowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column <= Grid().ColumnCount(); ++column)
                cells << Grid().Text({Column(column), Row(row)});
            lines << cells.join(QStringLiteral(" | "));
        }
        return lines.join(u'\n').toStdString();
    }

    /// Ticks tags and presses Continue; the schedule is there when the click is over.
    void Pick(const QStringList& tags)
    {
        for (const QString& tag : tags)
            View().Tick(tag);
        View().Continue();
        QCoreApplication::processEvents();
    }

    void Edit(int column, int row, const QString& text) { View().Enter({column, row, text}); }
    void PressSave() { View().Save(); }

    void Press(const QWidget& in, const char* name)
    {
        auto* button = in.findChild<QAbstractButton*>(QLatin1String(name));
        ASSERT_NE(button, nullptr) << name;
        ASSERT_TRUE(button->isEnabled()) << name;
        button->click();
        QCoreApplication::processEvents();
    }

    void Trigger(const char* name)
    {
        View().Widget().findChild<QAction*>(QLatin1String(name))->trigger();
        QCoreApplication::processEvents();
    }

    QAction* Menu(const QString& text) const
    {
        for (QMenu* menu : window->findChildren<QMenu*>()) {
            for (QAction* action : menu->actions()) {
                if (action->text() == text)
                    return action;
            }
        }
        ADD_FAILURE() << "no action " << qPrintable(text);
        return nullptr;
    }

    /// The entries at the left, those below a category indented, the one in use marked.
    std::string Categories() const
    {
        QStringList lines;
        const auto* tree = window->findChild<QTreeWidget*>(QStringLiteral("lstCategories"));
        for (int index = 0; index < tree->topLevelItemCount(); ++index) {
            const auto* category = tree->topLevelItem(index);
            lines << category->text(0);
            for (int child = 0; child < category->childCount(); ++child)
                lines << QStringLiteral("  %1%2").arg(category->child(child)->text(0),
                                                      category->child(child)->font(0).bold() ? " *" : "");
        }
        return lines.join(u'\n').toStdString();
    }

    /// Does what a double click on an entry at the left does.
    void Choose(int category, int entry = -1)
    {
        auto* tree = window->findChild<QTreeWidget*>(QStringLiteral("lstCategories"));
        auto* item = tree->topLevelItem(category);
        item->setExpanded(true);
        auto* chosen = entry < 0 ? item : item->child(entry);
        tree->scrollToItem(chosen);
        tree->setCurrentItem(chosen);
        QTest::keyClick(tree, Qt::Key_Return);
        QCoreApplication::processEvents();
    }

    /// What the bar above the view tells; empty while it is hidden.
    std::string Told() const
    {
        const auto* label = window->findChild<QLabel*>(QStringLiteral("lblMessage"));
        return label->isVisible() ? label->text().toStdString() : std::string();
    }

    std::string Status() const { return window->statusBar()->currentMessage().toStdString(); }

    UnsavedValues NextAnswer()
    {
        EXPECT_FALSE(unsaved.empty()) << "an answer is missing for " << qPrintable(asked.last());
        const UnsavedValues answer = unsaved.empty() ? UnsavedValues::Keep : unsaved.front();
        if (!unsaved.empty())
            unsaved.pop_front();
        return answer;
    }

    std::optional<QList<ValueEdit>> Decided(const QList<Conflict>& found)
    {
        conflicts = found;
        if (!decides)
            return std::nullopt;
        QList<ValueEdit> edits;
        for (const Conflict& conflict : found) {
            if (insists)
                edits.append({conflict.edit.tag, conflict.edit.item, conflict.edit.text, conflict.stored.version});
        }
        return edits;
    }

    schedules::testing::ScriptedUserInterface user;
    std::deque<UnsavedValues> unsaved; ///< the answers to come
    QStringList asked;
    QList<Conflict> conflicts;
    bool decides = true; ///< in conflicts
    bool insists = false;
    Session session{SessionOptions()};
    std::unique_ptr<ProjectWindow> window;
};

} // namespace schedules::host::testing
