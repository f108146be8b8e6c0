#pragma once

#include <QString>
#include <QToolBar>

namespace schedules {

/// What a tool of the host is in the tool bar; any other number is a plain button.
enum class ToolKind
{
    Button = 0,
    Separator = 1,
    CheckButton = 2
};

struct ToolDescription
{
    QString owner;
    QString key;
    int image = 0; ///< number in the view's list of images; 0 for none
    QString caption;
    QString tooltip;
    bool visible = true;
    ToolKind kind = ToolKind::Button;
};

/// The band of tools above the grid. Each tool is an action that has its key for a name; a key occurs once. The
/// view's own tools come first, then those of the host, in the order in which they were added.
class ScheduleToolbar : public QToolBar
{
    Q_OBJECT

public:
    explicit ScheduleToolbar(QWidget* parent = nullptr);

    /// The tool of that key, or null.
    QAction* Tool(const QString& key) const;

    /// Adds a tool of the view. False when the key exists.
    bool AddViewTool(const ToolDescription& tool);

    /// Adds a tool of the host. False when the key exists.
    bool AddHostTool(const ToolDescription& tool);

Q_SIGNALS:
    void ViewToolClicked(const QString& key);
    void HostToolClicked(const QString& owner, const QString& key);

private:
    QAction* NewTool(const ToolDescription& tool);

    QAction* m_firstHostTool = nullptr;
};

} // namespace schedules
