#pragma once

#include "grid/CSchedule.h"
#include "spread/Sheet.h"
#include "tools/ToolControl.h"
#include "tools/schedule/CustomMessage.h"
#include "tools/schedule/bar/ToolIdentifiers.h"
#include "tools/schedule/edits/HeldDocument.h"
#include "tools/schedule/picking/TagTable.h"

class QLabel;
class QMenu;
class QPageSize;
class QPushButton;

namespace schedules {

class CellEditing;
struct PrintJob;
class RowSorting;
class ScheduleToolbar;
class SpreadView;

/// The schedule view: shows a schedule, or a table of tags to select from, in a grid with a tool bar.
///
/// A host sets the properties, then drives the view through `IToolUI`. `ShowPrintButtonOnUnitSelector` and the
/// properties whose names begin with `CustomMsg` are meant to be set only; reading them gives what was set. They and
/// `ViewType`, `BuilderPdsg` and `SelectAllTags` are stored and take effect where they are used next.
class ctlSchedule : public ToolControl
{
    Q_OBJECT

    /// Passed back to the host with what the view sends.
    Q_PROPERTY(QString BuilderPdsg MEMBER m_builderPdsg)
    /// A number of `CResEnum::eViewType`; any other shows a schedule without tools.
    Q_PROPERTY(int ViewType MEMBER m_viewType)
    Q_PROPERTY(bool ShowPrintButtonOnUnitSelector MEMBER m_printsSelections)
    Q_PROPERTY(QString CustomMsg MEMBER m_customText)
    Q_PROPERTY(bool CustomMsgBold MEMBER m_customBold)
    Q_PROPERTY(bool CustomMsgItalic MEMBER m_customItalic)
    /// 0 left, 1 right, 2 centre.
    Q_PROPERTY(int CustomMsgAlignment MEMBER m_customAlignment)
    /// Rows and columns that do not scroll. Setting them acts on the grid at once; Transpose exchanges the two, and
    /// the next activation goes back to what was set.
    Q_PROPERTY(int RowsFrozen READ RowsFrozen WRITE SetRowsFrozen)
    Q_PROPERTY(int ColsFrozen READ ColsFrozen WRITE SetColsFrozen)
    Q_PROPERTY(bool SelectAllTags MEMBER m_selectAllTags)
    /// Whether there are edited values that have not been saved.
    Q_PROPERTY(bool TagDataDirty READ TagDataDirty)
    /// The same, under the name that every tool has it.
    Q_PROPERTY(bool HasUnsavedEdits READ TagDataDirty)
    /// How the grid is laid out now, see `CSchedule`.
    Q_PROPERTY(int SchedOrientation READ SchedOrientation)
    Q_PROPERTY(bool TransposeData READ TransposeData)
    /// What the grid shows; null after `CleanUP`. The style of a cell says whether it was edited and not saved.
    Q_PROPERTY(schedules::Sheet* sheet READ ShownSheet)

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

    /// Writes what the grid shows into a file: an Excel 97 workbook ("xls"), an Office Open XML one ("xlsx"),
    /// comma-separated values ("csv") or a web page ("html"). Returns what went wrong, an empty text when it is done.
    Q_INVOKABLE QString WriteFile(const QString& format, const QString& fileName);

    /// Prints the grid into a PDF file, fitted to pages or at full size; `pageSize` is a `QPageSize::PageSizeId`.
    /// Returns what went wrong, an empty text when it is done.
    Q_INVOKABLE QString WritePdf(const QString& fileName, bool smart, int pageSize);

    /// Does what the tool of that key does, enabled or not; nothing for a key that is none of the view's.
    Q_INVOKABLE void ab_ToolClick(const QString& key);

    int RowsFrozen() const { return m_rowsFrozen; }
    void SetRowsFrozen(int count);
    int ColsFrozen() const { return m_colsFrozen; }
    void SetColsFrozen(int count);
    bool TagDataDirty() const { return m_engine.TagDataDirty(); }
    int SchedOrientation() const { return m_engine.SchedOrientation(); }
    bool TransposeData() const { return m_engine.TransposeData(); }
    Sheet* ShownSheet() const { return m_sheet; }

Q_SIGNALS:
    /// A tool that the host added was clicked.
    void HostToolClicked(const QString& owner, const QString& key);

protected:
    /// Sets whether there are edited values; the Save tool is enabled as long as there are.
    void SetTagDataDirty(bool dirty);

    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    using Command = void (ctlSchedule::*)();

    void BuildControls();
    void BuildGrid();
    void BuildLayout();
    void ConnectControls();
    void ResizeUserControl();

    bool IsScheduleView() const;
    bool IsSelectorView() const;

    // Showing the held document.
    void Activate();
    void StartNormalLayout(int orientation);
    bool ShowHeldXml();
    bool LoadSchedule();
    bool LoadSelection();
    bool Load(const std::function<bool(const QString& xml)>& fill);
    void LeaveFormerXml();
    void HoldNewXml(const QString& xml);
    void ShowBox(int textNumber);
    void UpdateLegend();
    void FollowFrozenCounts();
    void FreezeRows(int count);
    void FreezeColumns(int count);

    // The controls around the grid.
    void InitializeControls();
    void AddToolbarButton(const QString& key, int image, const QString& caption, const QString& tooltip, bool visible);
    void BuildExportMenu();
    void AddExport(const char* name, int caption);
    void ShowCommandButtons();
    void ShowCustomMessage();
    void FollowTagDataDirty();

    // Edited values.
    bool MayEdit(Cell cell) const;
    void ChangeCell(Cell cell, const QString& text);
    void SetEdited(Cell cell, bool edited);
    void MarkUnsaved();

    /// What has been edited and not saved, while a save is under way.
    struct UnsavedEdits
    {
        int document; ///< `HeldDocument::Number`
        bool dirty;
        std::set<Sheet::TablePlace> places;
        std::vector<Sheet::TablePlace> marked; ///< these, and cells without an element
    };
    UnsavedEdits TakeUnsaved();
    void PutBack(const UnsavedEdits& unsaved);

    // Check boxes and the selection of tags.
    enum class Ticking
    {
        All,
        None,
        Invert
    };

    void ConnectCheckBoxes();
    bool Toggles(Cell cell) const;
    void SetTicked(Cell cell, bool ticked);
    void ToggleCheckBox(Cell cell);
    bool PressSpace(bool isHeldDown);
    void StartSweep(Cell cell);
    void Sweep(Cell cell);
    void TickVisible(Ticking ticking);
    SelectedTags GetSelectedTags() const;
    void cmdContinue_Click();
    void PrintSelections();

    // The grid's menu.
    bool Sortable() const;
    void ShowContextMenu(QPoint point);
    void FillContextMenu(QMenu& menu);

    // Commands.
    static Command CommandOf(const QString& key);
    void BeginCommand();
    void Transpose();
    void Print();
    void Customize();
    void Help();
    void Save();
    void SendEdits();
    void UpdateTagScheduleData();
    void ExportShown();
    void ExportToExcel(const Sheet& source, Sheet& target);
    void ExportToHTML();
    void WriteHtml(const QString& fileName) const;
    void PrintSchedule();
    std::optional<PrintJob> JobOf(const QPageSize& paper, PrintAction action);
    void cmdCancel_Click();
    bool MayUnload();
    void Unload();

    CSchedule m_engine;
    ToolIdentifiers m_toolIdentifiers;

    CustomMessage* m_customMessage = nullptr;
    ScheduleToolbar* m_toolbar = nullptr;
    SpreadView* m_spread = nullptr;
    QMenu* m_exportMenu = nullptr;
    QLabel* m_legend = nullptr;
    QPushButton* m_continue = nullptr;
    QPushButton* m_cancel = nullptr;
    Sheet* m_sheet = nullptr;
    Sheet* m_exported = nullptr; ///< what of the grid goes into a workbook
    std::unique_ptr<CellEditing> m_editing;
    std::unique_ptr<RowSorting> m_sorting;

    HeldDocument m_held;
    bool m_xmlIsNew = false;    ///< the host has handed over text that no activation has loaded yet
    bool m_leaving = false;     ///< the user has been asked, or the host is being told
    bool m_unloaded = false;    ///< the host has been told to unload the view
    bool m_initialised = false; ///< the controls around the grid have been set up

    bool m_sweepTicks = false; ///< what the mouse makes of the check boxes that it sweeps over
    bool m_showsTags = false;  ///< what was loaded last, with success, is a table of tags

    QString m_builderPdsg;
    int m_viewType = 0;
    bool m_printsSelections = false;
    QString m_customText;
    bool m_customBold = false;
    bool m_customItalic = false;
    int m_customAlignment = 0;
    int m_rowsFrozen = 0;
    int m_colsFrozen = 0;
    int m_rowsFrozenByHost = 0;
    int m_colsFrozenByHost = 0;
    bool m_selectAllTags = false;
};

} // namespace schedules
