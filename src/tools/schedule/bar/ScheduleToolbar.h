#pragma once

#include <QList>
#include <QString>
#include <QToolBar>

#include <functional>

class QKeyEvent;
class QMenu;
class QMouseEvent;
class QToolButton;

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
    int image = 0; ///< number in the view's list of images (`ImageFile`); 0 for none
    QString caption;
    QString tooltip;
    bool visible = true;
    ToolKind kind = ToolKind::Button;
};

/// The band of tools above the grid. Each tool is an action that has its key for a name; a key occurs once. The
/// view's own tools come first, then those of the host, in the order in which they were added.
///
/// Tab reaches each tool and the button behind which a narrow bar keeps those that do not fit; Space and Enter click.
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

    /// Gives a tool an arrow that opens a menu, as Down and Alt+Down do while the tool has the focus; a click beside
    /// the arrow still is the tool's. Where a narrow bar hides the tool, its place is taken by a submenu. The menu
    /// stays the caller's; it takes the tool's caption for a title, and keeps its own title, if it had one, as its
    /// accessible name. False when there is no tool of that key.
    bool AddDropDown(const QString& key, QMenu* menu);

    /// Adds an entry to such a menu, which `EntryChosen` tells.
    void AddEntry(QMenu* menu, const QString& name, const QString& text);

Q_SIGNALS:
    // What was chosen in a menu is told when the menu is done with it, everything else at once.
    void ViewToolClicked(const QString& key);
    void HostToolClicked(const QString& owner, const QString& key);
    void EntryChosen(const QString& name);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QAction* NewTool(const ToolDescription& tool);
    void OpenToKeyboard();
    QToolButton* ButtonOf(QAction* action) const;
    QList<QToolButton*> Buttons() const;
    bool TakesEvent(QToolButton& button, const QEvent& event);
    bool TakesKey(QToolButton& button, const QKeyEvent& key);
    static bool TakesRelease(QToolButton& button, const QMouseEvent& release);
    void FollowMenuOf(const QToolButton& button);
    void Follow(const QMenu* menu);
    void OnMenuEnds();
    void Tell(const std::function<void()>& click);

    QToolButton* m_more = nullptr; ///< stands for the tools that do not fit
    QAction* m_firstHostTool = nullptr;
    bool m_menuEnds = false; ///< a menu that was open may tell yet what was chosen in it
};

} // namespace schedules
