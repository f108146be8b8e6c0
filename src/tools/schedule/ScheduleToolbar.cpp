#include "tools/schedule/ScheduleToolbar.h"

#include <QAction>

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
}

QAction* ScheduleToolbar::Tool(const QString& key) const
{
    return findChild<QAction*>(key, Qt::FindDirectChildrenOnly);
}

bool ScheduleToolbar::AddViewTool(const ToolDescription& tool)
{
    QAction* action = NewTool(tool);
    if (!action)
        return false;
    connect(action, &QAction::triggered, this, [this, key = tool.key] { Q_EMIT ViewToolClicked(key); });
    insertAction(m_firstHostTool, action);
    return true;
}

bool ScheduleToolbar::AddHostTool(const ToolDescription& tool)
{
    QAction* action = NewTool(tool);
    if (!action)
        return false;
    connect(action, &QAction::triggered, this,
            [this, owner = tool.owner, key = tool.key] { Q_EMIT HostToolClicked(owner, key); });
    addAction(action);
    if (!m_firstHostTool)
        m_firstHostTool = action;
    return true;
}

QAction* ScheduleToolbar::NewTool(const ToolDescription& tool)
{
    // Tools without a key, such as separators, may be many.
    if (!tool.key.isEmpty() && Tool(tool.key))
        return nullptr;
    auto* action = new QAction(tool.caption, this);
    action->setObjectName(tool.key);
    action->setToolTip(tool.tooltip);
    action->setVisible(tool.visible);
    action->setSeparator(tool.kind == ToolKind::Separator);
    action->setCheckable(tool.kind == ToolKind::CheckButton);
    action->setProperty("owner", tool.owner);
    action->setProperty("image", tool.image);
    return action;
}

} // namespace schedules
