#include "tools/schedule/ScheduleToolbar.h"

#include "common/modResource.h"
#include "controls/SymbolIcon.h"
#include "tools/schedule/ScheduleTools.h"

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
    connect(action, &QAction::triggered, this, [this, key = tool.key] { Q_EMIT ViewToolClicked(key); });
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
        connect(action, &QAction::triggered, this,
                [this, owner = tool.owner, key = tool.key] { Q_EMIT HostToolClicked(owner, key); });
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
    return true;
}

bool ScheduleToolbar::eventFilter(QObject* watched, QEvent* event)
{
    auto* button = qobject_cast<QToolButton*>(watched);
    if (button && event->type() == QEvent::KeyPress && TakesKey(*button, *static_cast<QKeyEvent*>(event)))
        return true;
    return QToolBar::eventFilter(watched, event);
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
