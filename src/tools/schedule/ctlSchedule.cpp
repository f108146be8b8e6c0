#include "tools/schedule/ctlSchedule.h"

#include "controls/desktop/DesktopUserInterface.h"
#include "controls/grid/SpreadView.h"
#include "tools/schedule/ScheduleRooms.h"
#include "tools/schedule/bar/GridMenu.h"
#include "tools/schedule/bar/ScheduleToolbar.h"
#include "tools/schedule/bar/ViewCommands.h"
#include "tools/schedule/bar/ViewTools.h"
#include "tools/schedule/layout/Legend.h"

#include <QAction>
#include <QCloseEvent>
#include <QPushButton>
#include <QScrollBar>

#include <utility>

namespace schedules {

ctlSchedule::ctlSchedule(UserInterface* userInterface)
    : ToolControl("ctlSchedule", userInterface),
      m_link(LinkFor(userInterface)),
      m_layout(*this),
      m_setup(m_link, m_settings, m_layout),
      m_rooms(std::make_unique<ScheduleRooms>(m_link, m_settings, *m_layout.grid)),
      m_commands(std::make_unique<ViewCommands>(m_link, m_settings, *m_rooms)),
      m_menu(std::make_unique<GridMenu>(m_link, m_settings, m_rooms->table, m_rooms->picking, m_rooms->sorting,
                                        *m_commands))
{
    ConnectControls();
    ConnectProperties();
    TraceProcedure("UserControl_Initialize");
}

ctlSchedule::~ctlSchedule()
{
    Disconnect();
    m_layout.grid->disconnect(this);
    m_menu.reset();
    m_commands.reset();
    m_rooms.reset();
    TraceProcedure("UserControl_Terminate");
}

ViewLink ctlSchedule::LinkFor(UserInterface* userInterface)
{
    if (!userInterface)
        Own(std::make_unique<DesktopUserInterface>(this));
    return {*this, Link()};
}

template <class Result, std::invocable Body>
Result ctlSchedule::Commanded(const char* procedure, Result otherwise, Body&& body)
{
    TellingUser(procedure, [&] {
        m_commands->Begin();
        otherwise = std::invoke(body);
    });
    return otherwise;
}

template <std::invocable Body>
void ctlSchedule::Commanded(const char* procedure, Body&& body)
{
    Commanded(procedure, true, [&] { return std::invoke(body), true; });
}

void ctlSchedule::ConnectControls()
{
    connect(m_layout.toolbar, &ScheduleToolbar::ViewToolClicked, this, &ctlSchedule::ab_ToolClick);
    connect(m_layout.toolbar, &ScheduleToolbar::HostToolClicked, this,
            [this](const QString& owner, const QString& key) {
                m_commands->Begin();
                Q_EMIT HostToolClicked(owner, key);
            });
    connect(m_layout.toolbar, &ScheduleToolbar::EntryChosen, this,
            [this](const QString& entry) { Commanded("mnuExport_Click", [&] { m_rooms->exports.ExportBy(entry); }); });
    connect(m_layout.continueButton, &QPushButton::clicked, this, &ctlSchedule::cmdContinue_Click);
    connect(m_layout.closeButton, &QPushButton::clicked, this, &ctlSchedule::cmdCancel_Click);
    connect(m_layout.grid, &QWidget::customContextMenuRequested, this,
            [this](QPoint point) { Commanded("ShowContextMenu", [&] { m_menu->Open(point); }); });
    connect(&m_rooms->editing, &CellEditing::Refused, this, [this] { IgnoringErrors([this] { Ui().Beep(); }); });
    connect(&m_rooms->table, &ShownTable::Loaded, m_layout.legend, [this] { m_layout.legend->Follow(m_rooms->table); });
}

void ctlSchedule::ConnectProperties()
{
    connect(&m_rooms->table, &ShownTable::FrozenChanged, this, &ctlSchedule::FrozenChanged);
    connect(&m_rooms->table, &ShownTable::OrientationChanged, this, &ctlSchedule::OrientationChanged);
    connect(&m_rooms->table, &ShownTable::SheetChanged, this, &ctlSchedule::SheetChanged);
    connect(m_rooms->table.Shown(), &Sheet::ActiveCellChanged, this, &ctlSchedule::FollowActiveCell);
    connect(&m_rooms->edits, &EditSession::TagDataDirtyChanged, this, &ctlSchedule::TagDataDirtyChanged);
    connect(&m_rooms->edits, &EditSession::TagDataDirtyChanged, this, &ctlSchedule::FollowEdits);
    connect(&m_rooms->editing, &CellEditing::OpenChangeChanged, this, &ctlSchedule::FollowEdits);
    connect(&m_rooms->edits, &EditSession::ValueEdited, this,
            [this](const QString& tag, const QString& item, const QString& former, const QString& now) {
                m_commands->Closing().SetInUse();
                Q_EMIT ValueEdited(tag, item, former, now);
            });
}

void ctlSchedule::FollowEdits()
{
    const bool hasUnsavedEdits = HasUnsavedEdits();
    if (QAction* save = m_layout.toolbar->Tool(QStringLiteral("btnSaveTag")))
        save->setEnabled(hasUnsavedEdits);
    if (std::exchange(m_hadUnsavedEdits, hasUnsavedEdits) != hasUnsavedEdits)
        Q_EMIT HasUnsavedEditsChanged();
}

void ctlSchedule::FollowActiveCell()
{
    const Sheet* sheet = m_rooms->table.Shown();
    const bool isData = sheet && sheet->ActiveCell().column >= Column(1) && sheet->ActiveCell().row >= Row(1);
    const auto [tag, item] =
        isData ? m_rooms->table.HeadersOf(sheet->TablePlaceOf(sheet->ActiveCell())) : ShownTable::Headers();
    Q_EMIT ActiveCellChanged(tag, item);
}

/// Closing the window that is this view is what its last button does.
void ctlSchedule::closeEvent(QCloseEvent* event)
{
    const ToolLife::Watch watch(Life());
    if (!m_commands->Closing().IsUnloaded() && IsConnected())
        cmdCancel_Click();
    event->setAccepted(!watch.IsAlive() || m_commands->Closing().IsUnloaded() || !IsConnected());
}

/// The grid is what a host means that gives the view the focus. It is no proxy: Tab, which comes from somewhere else,
/// would pass over the tool bar then.
void ctlSchedule::focusInEvent(QFocusEvent* event)
{
    m_layout.grid->setFocus(event->reason());
}

void ctlSchedule::resizeEvent(QResizeEvent* event)
{
    ToolControl::resizeEvent(event);
    ResizeUserControl();
}

void ctlSchedule::ResizeUserControl()
{
    TellingHost(__func__, [this] { m_layout.FollowHeight(height()); });
}

void ctlSchedule::IToolUI_Initialize(IMsgRouter* msgRouter, const QString& sOwner)
{
    StartUp(msgRouter, sOwner, "InitializeSchedule");
}

void ctlSchedule::IToolUI_XML(const QString& sData)
{
    m_commands->Closing().SetInUse();
    m_rooms->edits.HandOver(sData);
    IgnoringErrors([this] { m_rooms->editing.LookAtDocument(); });
}

void ctlSchedule::IToolUI_Activate()
{
    TraceProcedure(__func__);
    Commanded(__func__, [this] {
        m_layout.ShowCommandButtons(m_settings.IsSelectorView());
        if (!m_rooms->showing.Activate())
            return;
        m_setup.InitializeControls();
        IgnoringErrors([this] { FollowEdits(); });
    });
}

void ctlSchedule::IToolUI_Deactivate([[maybe_unused]] bool bCancel)
{
    TraceProcedure(__func__);
    CommitEdit();
}

bool ctlSchedule::LoadScheduleData(const QString& sData)
{
    return Commanded(__func__, false, [&] {
        m_layout.continueButton->hide();
        return m_rooms->showing.LoadScheduleData(sData);
    });
}

bool ctlSchedule::LoadSelectionData(const QString& sData)
{
    return Commanded(__func__, false, [&] {
        m_layout.continueButton->show();
        return m_rooms->showing.LoadSelectionData(sData);
    });
}

int ctlSchedule::GetUniqueToolID()
{
    int identifier = 0;
    TellingHost(__func__, [&] { identifier = m_toolIdentifiers.Next(); });
    return identifier;
}

void ctlSchedule::AddMenu(const QString& sOwner, const QString& sKey, int lImage, const QString& sText,
                          const QString& sToolTipText, bool bVisible, int lToolType)
{
    TellingUser(__func__, [&] {
        // The view's own tools may not be there yet, but their keys are taken.
        if (CommandOfKey(sKey))
            return;
        m_layout.toolbar->AddHostTool(
            {sOwner, sKey, lImage, sText, sToolTipText, bVisible, static_cast<ToolKind>(lToolType)});
    });
}

void ctlSchedule::CleanUP()
{
    TellingHost(__func__, [this] {
        m_commands->Begin();
        if (m_rooms->table.Shown())
            m_rooms->sorting.Forget();
        m_rooms->table.CleanUp();
    });
}

void ctlSchedule::DoColSort()
{
    Commanded(__func__, [this] { m_commands->DoColSort(); });
}

void ctlSchedule::ab_ToolClick(const QString& key)
{
    Commanded(__func__, [&] {
        if (const auto command = CommandOfKey(key))
            m_commands->Do(*command);
    });
}

void ctlSchedule::cmdContinue_Click()
{
    TellingHost(__func__, [this] {
        m_commands->Begin();
        m_commands->Do(ViewCommand::Continue);
    });
}

void ctlSchedule::cmdCancel_Click()
{
    TellingUser(__func__, [this] {
        if (m_commands->Closing().IsUnderWay())
            return; // the host pumps events while it saves
        m_commands->Begin();
        m_commands->Do(ViewCommand::Close);
    });
}

QString ctlSchedule::WriteFile(const QString& format, const QString& fileName)
{
    m_commands->Begin();
    return m_rooms->exports.WriteFile(format, fileName);
}

QString ctlSchedule::WritePdf(const QString& fileName, bool smart, int pageSize)
{
    return WritePdf(fileName, PaperOptions{smart, pageSize});
}

QString ctlSchedule::WritePdf(const QString& fileName, const PaperOptions& options)
{
    m_commands->Begin();
    return m_rooms->printing.WritePdf(fileName, options);
}

void ctlSchedule::CommitEdit()
{
    m_rooms->editing.CommitCellEdit();
}

bool ctlSchedule::IsEditing() const
{
    return m_rooms->editing.IsEditing();
}

bool ctlSchedule::CanDo(ViewCommand command) const
{
    if (command == ViewCommand::Close)
        return m_layout.closeButton->isEnabled();
    if (!m_setup.IsInitialised() || !m_commands->Has(command))
        return false;
    return command != ViewCommand::Save || HasUnsavedEdits();
}

bool ctlSchedule::Do(ViewCommand command)
{
    if (command == ViewCommand::Close) {
        cmdCancel_Click();
        return true;
    }
    if (!m_setup.IsInitialised() || !m_commands->Has(command))
        return false;
    if (command == ViewCommand::Continue)
        cmdContinue_Click();
    else
        Commanded("ab_ToolClick", [&] { m_commands->Do(command); });
    return true;
}

Entry ctlSchedule::EnterText(GridPlace place, const QString& text)
{
    return Commanded(__func__, Entry::NotEditable, [&] {
        return m_commands->EnterText({Column(place.column), Row(place.row)}, text);
    });
}

bool ctlSchedule::TickTag(const QString& identifier)
{
    return Commanded(__func__, false, [&] { return m_rooms->picking.TickTag(identifier); });
}

bool ctlSchedule::SortBy(int column, bool descending)
{
    const RowOrder order = descending ? RowOrder::Descending : RowOrder::Ascending;
    return Commanded(__func__, false, [&] { return m_commands->SortBy(Column(column), order); });
}

std::optional<GridPlace> ctlSchedule::FindCell(const QString& tag, const QString& item) const
{
    const auto cell = m_rooms->table.Find({tag, item});
    return cell ? std::optional(GridPlace{cell->column.Value(), cell->row.Value()}) : std::nullopt;
}

bool ctlSchedule::ShowCell(const QString& tag, const QString& item)
{
    return Commanded(__func__, false, [&] { return m_rooms->table.Show({tag, item}); });
}

QList<ChangedCell> ctlSchedule::ChangedCells() const
{
    return m_rooms->edits.ChangedCells();
}

QSize ctlSchedule::WholeSize() const
{
    const SpreadView& grid = *m_layout.grid;
    const QSize beyond(grid.horizontalScrollBar()->maximum(), grid.verticalScrollBar()->maximum());
    return size() - grid.maximumViewportSize() + grid.viewport()->size() + beyond;
}

int ctlSchedule::RowsFrozen() const
{
    return m_rooms->table.RowsFrozen();
}

void ctlSchedule::SetRowsFrozen(int count)
{
    m_rooms->table.SetRowsFrozen(count);
    m_layout.legend->Follow(m_rooms->table);
}

int ctlSchedule::ColsFrozen() const
{
    return m_rooms->table.ColsFrozen();
}

void ctlSchedule::SetColsFrozen(int count)
{
    m_rooms->table.SetColsFrozen(count);
    m_layout.legend->Follow(m_rooms->table);
}

bool ctlSchedule::TagDataDirty() const
{
    return m_rooms->edits.TagDataDirty();
}

void ctlSchedule::SetTagDataDirty(bool dirty)
{
    m_rooms->edits.SetTagDataDirty(dirty);
}

bool ctlSchedule::HasUnsavedEdits() const
{
    return TagDataDirty() || m_rooms->editing.HasOpenChange();
}

int ctlSchedule::SchedOrientation() const
{
    return m_rooms->table.Engine().SchedOrientation();
}

bool ctlSchedule::TransposeData() const
{
    return m_rooms->table.Engine().TransposeData();
}

Sheet* ctlSchedule::ShownSheet() const
{
    return m_rooms->table.Shown();
}

} // namespace schedules
