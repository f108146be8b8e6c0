#include "tools/schedule/ctlSchedule.h"

#include "common/CResEnum.h"
#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "controls/desktop/DesktopUserInterface.h"
#include "controls/grid/SpreadView.h"
#include "spread/RepaintingOff.h"
#include "tools/schedule/RowSorting.h"
#include "tools/schedule/bar/ScheduleToolbar.h"
#include "tools/schedule/bar/ScheduleTools.h"
#include "tools/schedule/edits/CellEditing.h"

#include <QAction>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include <utility>

namespace schedules {

namespace {

// The orientation in which a table is shown first.
constexpr int kOfSchedule = 0;
constexpr int kOfTags = 1;

constexpr auto kRowsLegend = "Note: the first data row contains selection requirements only.";
constexpr auto kColumnsLegend = "Note: the first data column contains selection requirements only.";

template <class Widget, class... Arguments>
Widget* Named(const char* name, Arguments&&... arguments)
{
    auto* widget = new Widget(std::forward<Arguments>(arguments)...);
    widget->setObjectName(QLatin1String(name));
    return widget;
}

} // namespace

ctlSchedule::ctlSchedule(UserInterface* userInterface)
    : ToolControl("ctlSchedule", userInterface),
      m_engine(userInterface ? *userInterface : Own(std::make_unique<DesktopUserInterface>(this)))
{
    BuildControls();
    BuildLayout();
    ConnectControls();
    TraceProcedure("UserControl_Initialize");
}

ctlSchedule::~ctlSchedule()
{
    Disconnect();
    m_editing.reset();
    m_spread->disconnect(this);
    m_spread->SetSheet(nullptr);
    m_engine.SetSched(nullptr);
    m_sheet = nullptr;
    TraceProcedure("UserControl_Terminate");
}

void ctlSchedule::BuildControls()
{
    m_sheet = new Sheet(this);
    m_exported = Named<Sheet>("vaSpread2", this);
    m_customMessage = new CustomMessage(this);
    m_toolbar = new ScheduleToolbar(this);
    BuildGrid();
    m_legend = Named<QLabel>("lblLegend", this);
    m_legend->setWordWrap(true);
    m_legend->hide();
    m_continue = Named<QPushButton>("cmdContinue", QStringLiteral("Continue"), this);
    m_continue->hide();
    m_cancel = Named<QPushButton>("cmdCancel", QStringLiteral("Cancel"), this);
}

void ctlSchedule::BuildGrid()
{
    m_spread = Named<SpreadView>("vaSpread1", this);
    m_spread->SetSheet(m_sheet);
    m_spread->setContextMenuPolicy(Qt::CustomContextMenu);
    m_engine.SetSched(m_sheet);
    m_editing = std::make_unique<CellEditing>(*m_spread, m_engine, [this](Cell cell) { return MayEdit(cell); });
    m_sorting = std::make_unique<RowSorting>(*m_spread);
    setFocusProxy(m_spread);
}

void ctlSchedule::BuildLayout()
{
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_continue);
    buttons->addWidget(m_cancel);

    auto* view = new QVBoxLayout(this);
    view->addWidget(m_customMessage);
    view->addWidget(m_toolbar);
    view->addWidget(m_spread, 1);
    view->addWidget(m_legend);
    view->addLayout(buttons);
}

void ctlSchedule::ConnectControls()
{
    connect(m_toolbar, &ScheduleToolbar::ViewToolClicked, this, &ctlSchedule::ab_ToolClick);
    connect(m_toolbar, &ScheduleToolbar::HostToolClicked, this, [this](const QString& owner, const QString& key) {
        BeginCommand();
        Q_EMIT HostToolClicked(owner, key);
    });
    connect(m_continue, &QPushButton::clicked, this, &ctlSchedule::cmdContinue_Click);
    connect(m_cancel, &QPushButton::clicked, this, &ctlSchedule::cmdCancel_Click);
    connect(m_spread, &QWidget::customContextMenuRequested, this, &ctlSchedule::ShowContextMenu);
    connect(m_editing.get(), &CellEditing::Changed, this, &ctlSchedule::ChangeCell);
    connect(m_editing.get(), &CellEditing::Refused, this, [this] { IgnoringErrors([this] { Ui().Beep(); }); });
    ConnectCheckBoxes();
}

/// Closing the window that is this view is what its last button does.
void ctlSchedule::closeEvent(QCloseEvent* event)
{
    const QPointer<ctlSchedule> alive(this);
    if (!m_unloaded && IsConnected())
        cmdCancel_Click();
    event->setAccepted(!alive || m_unloaded || !IsConnected());
}

void ctlSchedule::resizeEvent(QResizeEvent* event)
{
    ToolControl::resizeEvent(event);
    ResizeUserControl();
}

void ctlSchedule::ResizeUserControl()
{
    // A long message scrolls; the grid is what the view is for.
    TellingHost(__func__, [this] { m_customMessage->setMaximumHeight(height() / 3); });
}

bool ctlSchedule::IsScheduleView() const
{
    return m_viewType == static_cast<int>(CResEnum::eViewType::vtSCHEDULE_VIEW);
}

bool ctlSchedule::IsSelectorView() const
{
    return m_viewType == static_cast<int>(CResEnum::eViewType::vtSELECTOR_VIEW);
}

void ctlSchedule::IToolUI_Initialize(IMsgRouter* msgRouter, const QString& sOwner)
{
    StartUp(msgRouter, sOwner, "InitializeSchedule");
}

void ctlSchedule::IToolUI_XML(const QString& sData)
{
    m_held.Hold(sData);
    m_xmlIsNew = true;
    m_unloaded = false;
}

void ctlSchedule::IToolUI_Activate()
{
    TellingUser(__func__, [this] {
        TraceProcedure("IToolUI_Activate");
        Activate();
    });
}

void ctlSchedule::IToolUI_Deactivate([[maybe_unused]] bool bCancel)
{
    TraceProcedure(__func__);
    m_editing->CommitCellEdit();
}

void ctlSchedule::Activate()
{
    BeginCommand();
    ShowCommandButtons();
    StartNormalLayout(IsSelectorView() ? kOfTags : kOfSchedule);
    // Fresh text that has been edited since it came is not left behind by its own activation.
    if (std::exchange(m_xmlIsNew, false) && m_held.Unsaved().empty())
        LeaveFormerXml();
    if (!ShowHeldXml())
        return;
    InitializeControls();
    IgnoringErrors([this] { FollowTagDataDirty(); });
}

void ctlSchedule::StartNormalLayout(int orientation)
{
    m_engine.SetSchedOrientation(orientation);
    m_engine.SetTransposeData(false);
    FreezeRows(m_rowsFrozenByHost);
    FreezeColumns(m_colsFrozenByHost);
}

bool ctlSchedule::ShowHeldXml()
{
    if (IsSelectorView() ? LoadSelection() : LoadSchedule())
        return true;
    ShowBox(IsSelectorView() ? kSelectionNotShown : kScheduleNotShown);
    return false;
}

/// The edits are gone with their document, and the new one is shown from its start.
void ctlSchedule::LeaveFormerXml()
{
    SetTagDataDirty(false);
    m_spread->horizontalScrollBar()->setValue(0);
    m_spread->verticalScrollBar()->setValue(0);
}

bool ctlSchedule::LoadSchedule()
{
    m_showsTags = false;
    m_legend->hide();
    return Load([this](const QString& xml) { return m_engine.LoadScheduleData(xml); });
}

bool ctlSchedule::LoadSelection()
{
    m_showsTags = Load([this](const QString& xml) {
        return m_engine.SchedInitialize() && m_engine.LoadSelectionData(xml, m_selectAllTags);
    });
    if (m_showsTags)
        UpdateLegend();
    return m_showsTags;
}

bool ctlSchedule::Load(const std::function<bool(const QString& xml)>& fill)
{
    m_sheet = m_engine.Sched();
    const RepaintingOff off(*m_sheet);
    m_held.Settle();
    m_spread->ShowEditable(IsScheduleView());
    const QPointer<QWidget> alive(this); // a host may delete the view while it shows a message
    const bool loaded = fill(m_held.Text());
    RequireAlive(alive);
    m_editing->ForgetTable();
    m_sorting->Forget();
    MarkUnsaved();
    return loaded;
}

bool ctlSchedule::LoadScheduleData(const QString& sData)
{
    bool loaded = false;
    TellingUser(__func__, [&] {
        m_continue->hide();
        BeginCommand();
        StartNormalLayout(kOfSchedule);
        HoldNewXml(sData);
        loaded = LoadSchedule();
        if (!loaded)
            ShowBox(kScheduleNotLoadable);
    });
    return loaded;
}

bool ctlSchedule::LoadSelectionData(const QString& sData)
{
    bool loaded = false;
    TellingUser(__func__, [&] {
        m_continue->show();
        BeginCommand();
        StartNormalLayout(kOfTags);
        HoldNewXml(sData);
        loaded = LoadSelection();
        if (!loaded)
            ShowBox(kSelectionNotLoadable);
    });
    return loaded;
}

void ctlSchedule::HoldNewXml(const QString& xml)
{
    m_held.Hold(xml);
    m_xmlIsNew = false;
    LeaveFormerXml();
}

void ctlSchedule::ShowBox(int textNumber)
{
    Ui().Show({LoadResString(textNumber), kOkOnly, {}, textNumber});
}

void ctlSchedule::UpdateLegend()
{
    if (m_rowsFrozen != 0)
        m_legend->setText(QLatin1String(kRowsLegend));
    else if (m_colsFrozen != 0)
        m_legend->setText(QLatin1String(kColumnsLegend));
    m_legend->setVisible(m_rowsFrozen != 0 || m_colsFrozen != 0);
}

void ctlSchedule::SetRowsFrozen(int count)
{
    m_rowsFrozenByHost = count;
    FreezeRows(count);
    FollowFrozenCounts();
}

void ctlSchedule::SetColsFrozen(int count)
{
    m_colsFrozenByHost = count;
    FreezeColumns(count);
    FollowFrozenCounts();
}

void ctlSchedule::FollowFrozenCounts()
{
    if (m_showsTags || (m_rowsFrozen == 0 && m_colsFrozen == 0))
        UpdateLegend();
}

void ctlSchedule::FreezeRows(int count)
{
    m_rowsFrozen = count;
    IgnoringErrors([&] { m_engine.Sched()->SetFrozenRows(count); });
}

void ctlSchedule::FreezeColumns(int count)
{
    m_colsFrozen = count;
    IgnoringErrors([&] { m_engine.Sched()->SetFrozenColumns(count); });
}

void ctlSchedule::CleanUP()
{
    TellingHost(__func__, [this] {
        BeginCommand();
        Sheet* const sheet = std::exchange(m_sheet, nullptr);
        if (!sheet)
            return;
        m_showsTags = false;
        m_legend->hide();
        m_sorting->Forget();
        sheet->Reset();
        sheet->SetSize(0, 0);
    });
}

} // namespace schedules
