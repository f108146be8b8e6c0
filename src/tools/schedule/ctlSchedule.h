#pragma once

#include "framework/IScheduleView.h"
#include "spread/Sheet.h"
#include "tools/ToolControl.h"
#include "tools/schedule/ViewLink.h"
#include "tools/schedule/ViewSettings.h"
#include "tools/schedule/bar/ControlsSetup.h"
#include "tools/schedule/bar/ToolIdentifiers.h"
#include "tools/schedule/layout/ViewLayout.h"

namespace schedules {

class GridMenu;
class ViewCommands;
struct ScheduleRooms;

/// The schedule view: shows a schedule, or a table of tags to select from, in a grid with a tool bar.
///
/// A host sets the properties, then drives the view through `IToolUI`, and, beside it, through `IScheduleView`.
/// `ShowPrintButtonOnUnitSelector` and the properties whose names begin with `CustomMsg` are meant to be set only;
/// reading them gives what was set. They and `ViewType`, `BuilderPdsg` and `SelectAllTags` are stored and take effect
/// where they are used next.
class ctlSchedule : public ToolControl, public IScheduleView
{
    Q_OBJECT
    Q_INTERFACES(schedules::IScheduleView)

    /// Passed back to the host with what the view sends.
    Q_PROPERTY(QString BuilderPdsg READ BuilderPdsg WRITE SetBuilderPdsg)
    /// A number of `CResEnum::eViewType`; any other shows a schedule without tools.
    Q_PROPERTY(int ViewType READ ViewType WRITE SetViewType)
    Q_PROPERTY(bool ShowPrintButtonOnUnitSelector READ PrintsSelections WRITE SetPrintsSelections)
    Q_PROPERTY(QString CustomMsg READ CustomMsg WRITE SetCustomMsg)
    Q_PROPERTY(bool CustomMsgBold READ CustomMsgBold WRITE SetCustomMsgBold)
    Q_PROPERTY(bool CustomMsgItalic READ CustomMsgItalic WRITE SetCustomMsgItalic)
    /// 0 left, 1 right, 2 centre.
    Q_PROPERTY(int CustomMsgAlignment READ CustomMsgAlignment WRITE SetCustomMsgAlignment)
    /// Rows and columns that do not scroll. Setting them acts on the grid at once; Transpose exchanges the two, and
    /// the next activation goes back to what was set.
    Q_PROPERTY(int RowsFrozen READ RowsFrozen WRITE SetRowsFrozen NOTIFY FrozenChanged)
    Q_PROPERTY(int ColsFrozen READ ColsFrozen WRITE SetColsFrozen NOTIFY FrozenChanged)
    Q_PROPERTY(bool SelectAllTags READ SelectAllTags WRITE SetSelectAllTags)
    /// Whether there are edited values that have not been saved.
    Q_PROPERTY(bool TagDataDirty READ TagDataDirty NOTIFY TagDataDirtyChanged)
    /// The same, and true as well while the text of an open edit differs from its cell.
    Q_PROPERTY(bool HasUnsavedEdits READ HasUnsavedEdits NOTIFY HasUnsavedEditsChanged)
    /// How the grid is laid out now, see `CSchedule`.
    Q_PROPERTY(int SchedOrientation READ SchedOrientation NOTIFY OrientationChanged)
    Q_PROPERTY(bool TransposeData READ TransposeData NOTIFY OrientationChanged)
    /// What the grid shows; null after `CleanUP`. The style of a cell says whether it was edited and not saved.
    Q_PROPERTY(schedules::Sheet* sheet READ ShownSheet NOTIFY SheetChanged)

public:
    /// Without a user interface the desktop's is used; one that is given must outlive the view.
    explicit ctlSchedule(UserInterface* userInterface = nullptr);
    ~ctlSchedule() override;

    void IToolUI_Initialize(IMsgRouter* msgRouter, const QString& sOwner) override;
    void IToolUI_XML(const QString& sData) override;
    void IToolUI_Activate() override;
    void IToolUI_Deactivate(bool bCancel) override;

    /// Shows a schedule or a table of tags at once and keeps its text. A failure is shown and gives false.
    Q_INVOKABLE bool LoadScheduleData(const QString& sData);
    Q_INVOKABLE bool LoadSelectionData(const QString& sData);

    /// A number for a tool, 1001 for the first one; 0, and an error told to the host, when there are no more.
    Q_INVOKABLE int GetUniqueToolID();

    /// Adds a tool of the host at the end of the tool bar: a plain button, for `lToolType` 1 a separator, for 2 a
    /// check button. `lImage` is its picture's number in the view's list of images, 0 for none. A key that exists is
    /// not added twice, and those of the view's own tools exist always. `HostToolClicked` tells of clicks.
    Q_INVOKABLE void AddMenu(const QString& sOwner, const QString& sKey, int lImage, const QString& sText,
                             const QString& sToolTipText, bool bVisible, int lToolType);

    /// Empties the grid and lets go of it.
    Q_INVOKABLE void CleanUP();

    /// Sorts the rows that are shown by the active column: ascending, then descending, then in the document's order
    /// again. Rows under a group's heading stay under it, frozen rows in their places. Does nothing while the lines of
    /// the table are shown as columns.
    Q_INVOKABLE void DoColSort();

    /// See `IScheduleView`.
    Q_INVOKABLE QString WriteFile(const QString& format, const QString& fileName) override;
    Q_INVOKABLE QString WritePdf(const QString& fileName, bool smart, int pageSize);

    /// Does what the tool of that key does, enabled or not; nothing for a key that is none of the view's.
    Q_INVOKABLE void ab_ToolClick(const QString& key);

    void CommitEdit() override;
    bool IsEditing() const override;
    bool CanDo(ViewCommand command) const override;
    bool Do(ViewCommand command) override;
    Entry EnterText(GridPlace place, const QString& text) override;
    bool TickTag(const QString& identifier) override;
    bool SortBy(int column, bool descending) override;
    std::optional<GridPlace> FindCell(const QString& tag, const QString& item) const override;
    bool ShowCell(const QString& tag, const QString& item) override;
    QList<ChangedCell> ChangedCells() const override;
    QSize WholeSize() const override;
    QString WritePdf(const QString& fileName, const PaperOptions& options) override;

    QString BuilderPdsg() const { return m_settings.builderPdsg; }
    void SetBuilderPdsg(const QString& pdsg) { m_settings.builderPdsg = pdsg; }
    int ViewType() const { return m_settings.viewType; }
    void SetViewType(int type) { m_settings.viewType = type; }
    bool PrintsSelections() const { return m_settings.printsSelections; }
    void SetPrintsSelections(bool prints) { m_settings.printsSelections = prints; }
    bool SelectAllTags() const { return m_settings.selectAllTags; }
    void SetSelectAllTags(bool select) { m_settings.selectAllTags = select; }
    QString CustomMsg() const { return m_settings.message.text; }
    void SetCustomMsg(const QString& text) { m_settings.message.text = text; }
    bool CustomMsgBold() const { return m_settings.message.bold; }
    void SetCustomMsgBold(bool bold) { m_settings.message.bold = bold; }
    bool CustomMsgItalic() const { return m_settings.message.italic; }
    void SetCustomMsgItalic(bool italic) { m_settings.message.italic = italic; }
    int CustomMsgAlignment() const { return m_settings.message.alignment; }
    void SetCustomMsgAlignment(int alignment) { m_settings.message.alignment = alignment; }
    int RowsFrozen() const;
    void SetRowsFrozen(int count);
    int ColsFrozen() const;
    void SetColsFrozen(int count);
    bool TagDataDirty() const;
    bool HasUnsavedEdits() const;
    int SchedOrientation() const;
    bool TransposeData() const;
    Sheet* ShownSheet() const;

Q_SIGNALS:
    /// A tool that the host added was clicked.
    void HostToolClicked(const QString& owner, const QString& key);

    /// A value was edited: by the texts of its headers (see `ChangedCell`), from the text before to the one now.
    void ValueEdited(const QString& tag, const QString& item, const QString& former, const QString& now);

    /// Another cell is the active one; empty texts when it is no data cell.
    void ActiveCellChanged(const QString& tag, const QString& item);

    void FrozenChanged();
    void TagDataDirtyChanged();
    void HasUnsavedEditsChanged();
    void OrientationChanged();
    void SheetChanged();

protected:
    void SetTagDataDirty(bool dirty);

    void focusInEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    ViewLink LinkFor(UserInterface* userInterface);
    /// Runs a command: an open edit is committed first, and a failure is shown to the user.
    template <class Result, std::invocable Body>
    Result Commanded(const char* procedure, Result otherwise, Body&& body);
    template <std::invocable Body>
    void Commanded(const char* procedure, Body&& body);

    void ConnectControls();
    void ConnectProperties();
    void ResizeUserControl();
    void FollowEdits();
    void FollowActiveCell();
    void cmdContinue_Click();
    void cmdCancel_Click();

    ViewSettings m_settings;
    ViewLink m_link;
    ViewLayout m_layout;
    ControlsSetup m_setup;
    ToolIdentifiers m_toolIdentifiers;
    std::unique_ptr<ScheduleRooms> m_rooms;
    std::unique_ptr<ViewCommands> m_commands;
    std::unique_ptr<GridMenu> m_menu;
    bool m_hadUnsavedEdits = false;
};

} // namespace schedules
