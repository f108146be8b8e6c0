#pragma once

#include "controls/desktop/SymbolIcon.h"
#include "tools/schedule/bar/ScheduleToolbar.h"
#include "tools/schedule/ViewSettings.h"
#include "tools/schedule/bar/ViewTools.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionToolButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace schedules {

/// A menu's entries as they are shown: separators as "-", those with a submenu with "...".
inline std::string Entries(const QMenu& menu)
{
    QStringList entries;
    for (const QAction* action : menu.actions())
        entries += action->isSeparator() ? QStringLiteral("-") : action->text() + (action->menu() ? "..." : "");
    return entries.join(' ').toStdString();
}

/// The entries of the menu that an act opens, which is then used and closed.
inline std::string OpenedBy(
    const std::function<void()>& act, const std::function<void(QMenu&)>& use = [](QMenu&) {})
{
    std::string entries = "no menu";
    QTimer whenOpen;
    QObject::connect(&whenOpen, &QTimer::timeout, &whenOpen, [&] {
        const QPointer menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return;
        whenOpen.stop();
        // No user closes a menu before the platform has made it active; it would keep the focus afterwards.
        QApplication::processEvents();
        entries = Entries(*menu);
        use(*menu);
        if (menu)
            menu->close();
    });
    whenOpen.start(1);
    act();
    QApplication::processEvents();
    return entries;
}

inline void ClickEntry(QMenu& menu, int index)
{
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(menu.actions().at(index)).center());
}

inline std::unique_ptr<QAccessibleInterface, void (*)(QAccessibleInterface*)> Accessible(QWidget* widget)
{
    // The registry keeps what it gave out.
    return {QAccessible::queryAccessibleInterface(widget), [](QAccessibleInterface*) {}};
}

/// A bar of the schedule view's six tools in a window, between two fields.
class ToolbarInWindow : public ::testing::Test
{
protected:
    ToolbarInWindow()
    {
        auto* layout = new QVBoxLayout(&window);
        layout->setContentsMargins({});
        layout->addWidget(&before);
        layout->addWidget(bar);
        layout->addWidget(&after);
        QObject::connect(bar, &ScheduleToolbar::ViewToolClicked, [this](const QString& key) { clicks += key; });
        QObject::connect(bar, &ScheduleToolbar::EntryChosen, [this](const QString& name) { clicks += name; });
        QObject::connect(bar, &ScheduleToolbar::HostToolClicked,
                         [this](const QString& owner, const QString& key) { clicks += owner + '/' + key; });
        exportMenu.addAction(QStringLiteral("Workbook"), [this] { clicks += QStringLiteral("Workbook"); });
        exportMenu.addAction(QStringLiteral("Web page"), [this] { clicks += QStringLiteral("Web page"); });
    }

    void AddViewTools()
    {
        for (const ViewTool& tool : ViewToolsOf(ViewSettings{.viewType = 1}))
            bar->AddViewTool({{}, QLatin1String(tool.key), tool.image, QLatin1String(tool.caption), "Tip"});
    }

    bool AddHostTool(const char* key, ToolKind kind = ToolKind::Button, int image = 0)
    {
        return bar->AddHostTool({"Drawing", QLatin1String(key), image, QLatin1String(key), "Tip", true, kind});
    }

    bool AddExportMenu() { return bar->AddDropDown(QStringLiteral("btnExport"), &exportMenu); }

    void Show(int width = 900)
    {
        window.resize(width, 200);
        window.show();
        QApplication::setActiveWindow(&window);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QAction* Tool(const char* key) const { return bar->Tool(QLatin1String(key)); }
    QToolButton* Button(const char* key) const { return qobject_cast<QToolButton*>(bar->widgetForAction(Tool(key))); }
    QToolButton* More() const { return bar->findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button")); }

    void Press(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        widget->setFocus(Qt::TabFocusReason);
        QTest::keyClick(widget, key, modifiers);
    }

    void Press(const char* key, Qt::Key pressed, Qt::KeyboardModifiers modifiers = {})
    {
        Press(Button(key), pressed, modifiers);
    }

    void ClickArrow(const char* key)
    {
        QStyleOptionToolButton option;
        option.initFrom(Button(key));
        option.subControls = QStyle::SC_All;
        option.features = QStyleOptionToolButton::MenuButtonPopup | QStyleOptionToolButton::HasMenu;
        const QRect arrow =
            bar->style()->subControlRect(QStyle::CC_ToolButton, &option, QStyle::SC_ToolButtonMenu, Button(key));
        QTest::mouseClick(Button(key), Qt::LeftButton, {}, arrow.center());
    }

    /// Where a key leads from field to field: captions of tools, "More", "after", "before".
    std::string Walk(Qt::Key key, QWidget* from, const QWidget* to)
    {
        QStringList names;
        from->setFocus();
        for (int step = 0; step < 20 && QApplication::focusWidget() != to; ++step) {
            QTest::keyClick(QApplication::focusWidget(), key);
            names += NameOf(QApplication::focusWidget());
        }
        return names.join(' ').toStdString();
    }

    std::string Clicks() const { return clicks.join(' ').toStdString(); }

    QWidget window;
    QLineEdit before;
    QLineEdit after;
    ScheduleToolbar* bar = new ScheduleToolbar;
    QMenu exportMenu{QStringLiteral("Export schedule")};
    QStringList clicks;

private:
    QString NameOf(const QWidget* widget) const
    {
        if (const auto* button = qobject_cast<const QToolButton*>(widget))
            return button == More() ? QStringLiteral("More") : button->text();
        return widget == &after ? QStringLiteral("after") : QStringLiteral("before");
    }
};

} // namespace schedules
