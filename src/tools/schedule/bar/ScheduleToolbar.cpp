#include "tools/schedule/bar/ScheduleToolbar.h"

#include "common/modResource.h"
#include "controls/desktop/SymbolIcon.h"
#include "tools/schedule/bar/ViewTools.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QToolButton>

#include <utility>

namespace schedules {

namespace {

constexpr int kPictureTwips = 250;
constexpr int kTwipsPerInch = 1440;

} // namespace

ScheduleToolbar::ScheduleToolbar(QWidget* parent) : QToolBar(parent)
{
    setObjectName(QStringLiteral("tbTasks"));
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    const int pictureSize = kPictureTwips * logicalDpiX() / kTwipsPerInch;
    setIconSize({pictureSize, pictureSize});
    m_more = findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
}

QAction* ScheduleToolbar::Tool(const QString& key) const
{
    if (key.isEmpty())
        return nullptr;
    return findChild<QAction*>(key, Qt::FindDirectChildrenOnly);
}

bool ScheduleToolbar::AddViewTool(const ToolDescription& tool)
{
    QAction* action = NewTool(tool);
    if (!action)
        return false;
    connect(action, &QAction::triggered, this,
            [this, key = tool.key] { Tell([this, key] { Q_EMIT ViewToolClicked(key); }); });
    insertAction(m_firstHostTool, action);
    OpenToKeyboard();
    return true;
}

bool ScheduleToolbar::AddHostTool(const ToolDescription& tool)
{
    QAction* action = NewTool(tool);
    if (!action)
        return false;
    if (!action->isSeparator())
        connect(action, &QAction::triggered, this, [this, owner = tool.owner, key = tool.key] {
            Tell([this, owner, key] { Q_EMIT HostToolClicked(owner, key); });
        });
    addAction(action);
    if (!m_firstHostTool)
        m_firstHostTool = action;
    OpenToKeyboard();
    return true;
}

bool ScheduleToolbar::AddDropDown(const QString& key, QMenu* menu)
{
    QAction* action = Tool(key);
    if (!action || action->isSeparator())
        return false;
    if (menu->accessibleName().isEmpty())
        menu->setAccessibleName(menu->title().isEmpty() ? action->text() : menu->title());
    // The button shows it below its arrow, the action as a submenu of a narrow bar's menu. The button comes first: it
    // drops its action when it gets a menu that is the action's already.
    ButtonOf(action)->setPopupMode(QToolButton::MenuButtonPopup);
    ButtonOf(action)->setMenu(menu);
    action->setMenu(menu);
    Follow(menu);
    return true;
}

void ScheduleToolbar::AddEntry(QMenu* menu, const QString& name, const QString& text)
{
    QAction* entry = menu->addAction(text);
    entry->setObjectName(name);
    connect(entry, &QAction::triggered, this, [this, name] { Tell([this, name] { Q_EMIT EntryChosen(name); }); });
}

/// Before it opens. That of a narrow bar is made when it is needed.
void ScheduleToolbar::FollowMenuOf(const QToolButton& button)
{
    if (button.menu())
        Follow(button.menu());
}

void ScheduleToolbar::Follow(const QMenu* menu)
{
    connect(menu, &QMenu::aboutToHide, this, &ScheduleToolbar::OnMenuEnds, Qt::UniqueConnection);
}

void ScheduleToolbar::OnMenuEnds()
{
    m_menuEnds = true;
    QMetaObject::invokeMethod(
        this, [this] { m_menuEnds = false; }, Qt::QueuedConnection);
}

/// A click may bring up a dialog, and the host may delete the view while that is open. A menu goes with the view, and
/// does not survive that while it still works with its entry.
void ScheduleToolbar::Tell(const std::function<void()>& click)
{
    if (m_menuEnds)
        QMetaObject::invokeMethod(this, click, Qt::QueuedConnection);
    else
        click();
}

bool ScheduleToolbar::eventFilter(QObject* watched, QEvent* event)
{
    auto* button = qobject_cast<QToolButton*>(watched);
    return (button && TakesEvent(*button, *event)) || QToolBar::eventFilter(watched, event);
}

bool ScheduleToolbar::TakesEvent(QToolButton& button, const QEvent& event)
{
    switch (event.type()) {
    case QEvent::KeyPress:
        FollowMenuOf(button);
        return TakesKey(button, static_cast<const QKeyEvent&>(event));
    case QEvent::MouseButtonPress:
        FollowMenuOf(button);
        return false;
    case QEvent::MouseButtonRelease:
        return &button != m_more && TakesRelease(button, static_cast<const QMouseEvent&>(event));
    default:
        return false;
    }
}

QAction* ScheduleToolbar::NewTool(const ToolDescription& tool)
{
    // Tools without a key, such as separators, may be many.
    if (Tool(tool.key))
        return nullptr;
    auto* action = new QAction(SymbolIcon(ImageFile(tool.image), this), tool.caption, this);
    action->setObjectName(tool.key);
    action->setToolTip(tool.tooltip);
    action->setVisible(tool.visible);
    action->setSeparator(tool.kind == ToolKind::Separator);
    action->setCheckable(tool.kind == ToolKind::CheckButton);
    action->setProperty("owner", tool.owner);
    action->setProperty("image", tool.image);
    return action;
}

void ScheduleToolbar::OpenToKeyboard()
{
    m_more->setAccessibleName(ComponentText(QT_TRANSLATE_NOOP("Schedules", "More tools")));
    m_more->setToolTip(m_more->accessibleName());
    m_more->setFocusPolicy(Qt::TabFocus);
    // It is the one that stands at the bar's place among the window's fields; new ones come after all fields.
    QWidget* before = m_more;
    for (QToolButton* button : Buttons()) {
        button->setFocusPolicy(Qt::TabFocus);
        button->installEventFilter(this);
        setTabOrder(std::exchange(before, button), button);
    }
}

QToolButton* ScheduleToolbar::ButtonOf(QAction* action) const
{
    return qobject_cast<QToolButton*>(widgetForAction(action));
}

QList<QToolButton*> ScheduleToolbar::Buttons() const
{
    QList<QToolButton*> buttons;
    for (QAction* action : actions()) {
        if (!action->isSeparator())
            buttons += ButtonOf(action);
    }
    return buttons << m_more;
}

/// After a click of the mouse the toolkit's button works with itself once more, be it there or not; here it does not.
bool ScheduleToolbar::TakesRelease(QToolButton& button, const QMouseEvent& release)
{
    const bool isClick = release.button() == Qt::LeftButton && button.isDown();
    if (isClick)
        button.click();
    return isClick;
}

bool ScheduleToolbar::TakesKey(QToolButton& button, const QKeyEvent& key)
{
    switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!key.isAutoRepeat())
            button.click();
        return true;
    case Qt::Key_Down:
        if (!button.menu())
            return false;
        button.showMenu();
        return true;
    default:
        return false;
    }
}

} // namespace schedules
