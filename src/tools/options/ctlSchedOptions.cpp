#include "tools/options/ctlSchedOptions.h"

#include "common/Blanks.h"
#include "common/modResource.h"
#include "controls/desktop/DesktopUserInterface.h"
#include "controls/lists/CheckList.h"
#include "controls/lists/FilteredList.h"
#include "tools/options/EditorRooms.h"
#include "tools/options/lists/ListEntries.h"
#include "tools/options/names/NameBox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QPushButton>
#include <QResizeEvent>

#include <cmath>
#include <utility>

namespace schedules {

namespace {

/// A reply as a number; nothing when it is none.
std::optional<double> NumberIn(const QString& reply)
{
    bool isNumber = false;
    const double number = TrimmedOfBlanks(reply).toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

int HandleIn(const QString& reply)
{
    const auto number = NumberIn(reply);
    if (!number)
        throw Error(kTypeMismatchError, QStringLiteral("The host's resource module is not a number: ") + reply);
    const double handle = std::nearbyint(*number);
    if (std::abs(handle) > std::numeric_limits<int>::max())
        throw Error(kOverflowError, QStringLiteral("The host's resource module is out of range: ") + reply);
    return static_cast<int>(handle);
}

/// False when it cannot be pressed, or when pressing it was the end of the tool.
bool Press(QPushButton& button, const ToolLife& life)
{
    if (!button.isEnabled())
        return false;
    const ToolLife::Watch watch(life);
    button.click();
    return watch.IsAlive();
}

} // namespace

template <std::invocable Body>
void ctlSchedOptions::Entered(Body&& body) noexcept
{
    const ToolLife::Watch watch(Life());
    UntilGone([&] {
        std::invoke(body);
        if (watch.IsAlive())
            EnableControls();
    });
    if (watch.IsAlive())
        TellUnsavedEdits();
}

/// What the body returns; false when the tool has gone with it.
template <std::invocable Body>
bool ctlSchedOptions::EnteredWith(Body&& body) noexcept
{
    const ToolLife::Watch watch(Life());
    bool isDone = false;
    Entered([&] { isDone = std::invoke(body); });
    return watch.IsAlive() && isDone;
}

template <class Sender, class Signal, class Room>
void ctlSchedOptions::Enter(Sender* sender, Signal signal, Room& room, void (Room::*procedure)())
{
    connect(sender, signal, this, [this, &room, procedure] { Entered([&] { (room.*procedure)(); }); });
}

ctlSchedOptions::ctlSchedOptions(UserInterface* userInterface) : ToolControl("ctlSchedOptions", userInterface)
{
    if (!userInterface)
        Own(std::make_unique<DesktopUserInterface>(this));
    m_rooms = std::make_unique<EditorRooms>(*this, *this, Link());
    EnableControls();
    ConnectTemplates();
    ConnectLists();
    ConnectNameEditor();
    ConnectButtons();
    TraceProcedure("UserControl_Initialize");
}

ctlSchedOptions::~ctlSchedOptions()
{
    Disconnect();
    TraceProcedure("UserControl_Terminate");
}

void ctlSchedOptions::ConnectTemplates()
{
    Enter(m_rooms->form.cboTemplates, &QComboBox::activated, m_rooms->selector, &TemplateSelector::cboTemplates_Click);
}

void ctlSchedOptions::ConnectLists()
{
    const OptionsForm& form = m_rooms->form;
    GroupList& groups = m_rooms->groups;
    ItemList& items = m_rooms->items;
    Enter(form.lstGroups, &CheckList::Clicked, groups, &GroupList::lstGroups_Click);
    Enter(form.lstItems, &CheckList::Clicked, items, &ItemList::lstItems_Click);
    Enter(form.chkShowGroupName, &QCheckBox::clicked, groups, &GroupList::chkShowGroupName_Click);
    connect(form.lstGroups, &CheckList::MoveRequested, this,
            [this, &groups](int from, int to) { Entered([&] { groups.MoveGroupObject(to, from); }); });
    connect(form.lstItems, &CheckList::MoveRequested, this,
            [this, &items](int from, int to) { Entered([&] { items.MoveElementObject(to, from); }); });
    for (const int index : {0, 1}) {
        const auto place = static_cast<std::size_t>(index);
        connect(form.cmdGroupMove[place], &QPushButton::clicked, this,
                [this, &groups, index] { Entered([&] { groups.cmdGroupMove_Click(index); }); });
        connect(form.cmdItemMove[place], &QPushButton::clicked, this,
                [this, &items, index] { Entered([&] { items.cmdItemMove_Click(index); }); });
    }
    for (const FilteredList* list : {form.groups, form.items})
        connect(list, &FilteredList::Narrowed, this, &ctlSchedOptions::EnableMoving);
}

void ctlSchedOptions::ConnectNameEditor()
{
    const OptionsForm& form = m_rooms->form;
    ItemNameEditor& names = m_rooms->names;
    Enter(form.txtDisplayName, &QLineEdit::textChanged, names, &ItemNameEditor::txtDisplayName_Change);
    Enter(form.txtDisplayName, &NameBox::Focused, names, &ItemNameEditor::txtDisplayName_GotFocus);
    Enter(form.cmdUpdateUDItemName, &QPushButton::clicked, names, &ItemNameEditor::cmdUpdateUDItemName_Click);
    Enter(form.cmdResetUDItemName, &QPushButton::clicked, names, &ItemNameEditor::cmdResetUDItemName_Click);
    form.txtDisplayName->OnKey(
        [this, &names](int key) { return EnteredWith([&] { return names.txtDisplayName_KeyPress(key); }); });
}

void ctlSchedOptions::ConnectButtons()
{
    const OptionsForm& form = m_rooms->form;
    Enter(form.cmdApply, &QPushButton::clicked, *this, &ctlSchedOptions::cmdApply_Click);
    Enter(form.cmdOK, &QPushButton::clicked, *this, &ctlSchedOptions::cmdOK_Click);
    Enter(form.cmdCancel, &QPushButton::clicked, *this, &ctlSchedOptions::cmdCancel_Click);
    Enter(form.cmdSaveAs, &QPushButton::clicked, *this, &ctlSchedOptions::cmdSaveAs_Click);
    Enter(form.cmdDelete, &QPushButton::clicked, m_rooms->deleting, &TemplateDeleting::cmdDelete_Click);
}

void ctlSchedOptions::IToolUI_Initialize(IMsgRouter* msgRouter, const QString& sOwner)
{
    Entered([&] {
        m_rooms->catalogue.Begin();
        Life().WhileAlive([&] { StartUp(msgRouter, sOwner, "INITIALIZESCHEDOPTIONS"); });
        m_rooms->form.Translate();
        m_rooms->form.KeepCaptionWithoutGroup();
    });
}

bool ctlSchedOptions::ObtainResourceModule()
{
    if (ResourceModule() != 0)
        return true;
    const auto reply = [this] {
        return Life().WhileAlive([this] { return SendRequestToOwner(Request(u"GetResourceModule")); });
    };
    // Hosts count on being asked twice: the first answer says whether there is one, the second is the one.
    if (NumberIn(reply())) {
        if (const int handle = HandleIn(reply()))
            SetResourceModule(handle);
    }
    return true;
}

void ctlSchedOptions::IToolUI_XML(const QString& sData)
{
    IgnoringErrors([&] { m_xml = sData; });
}

void ctlSchedOptions::IToolUI_Activate()
{
    Entered([this] {
        TraceProcedure("IToolUI_Activate");
        m_rooms->activation.IToolUI_Activate();
    });
}

void ctlSchedOptions::IToolUI_Deactivate(bool)
{
    TraceProcedure("IToolUI_Deactivate");
    IgnoringErrors([this] {
        Life().Interrupt();
        m_rooms->state.ForgetTemplate();
        m_rooms->catalogue.End();
        m_rooms->form.SetEnabled(false);
    });
    TellUnsavedEdits();
}

QString ctlSchedOptions::TemplateFile() const
{
    const auto& current = m_rooms->state.currentTemplate;
    return current ? current->Filename() : QString();
}

bool ctlSchedOptions::ChooseTemplate(const QString& fileName)
{
    return EnteredWith([&] {
        if (!m_rooms->form.cboTemplates->isEnabled())
            return false;
        const int id = m_rooms->selector.TemplateOf(fileName);
        if (id <= 0)
            return false;
        m_rooms->selector.SelectTemplateEntry(id);
        return m_rooms->state.currentTemplate && m_rooms->state.currentTemplate->ID() == id;
    });
}

bool ctlSchedOptions::SelectGroup(const QString& name)
{
    return EnteredWith([&] { return m_rooms->groups.SelectEntry(name); });
}

bool ctlSchedOptions::SelectItem(const QString& name)
{
    return EnteredWith([&] { return m_rooms->items.SelectEntry(name); });
}

QStringList ctlSchedOptions::ItemNames() const
{
    const CheckList& list = *m_rooms->form.lstItems;
    QStringList names;
    for (int row = 0; row < list.Count(); ++row)
        names.append(list.Text(row));
    return names;
}

bool ctlSchedOptions::HasUnsavedEdits() const
{
    return m_rooms->state.IsDirty();
}

bool ctlSchedOptions::Apply()
{
    return Press(*m_rooms->form.cmdApply, Life());
}

bool ctlSchedOptions::Cancel()
{
    return Press(*m_rooms->form.cmdCancel, Life());
}

QSize ctlSchedOptions::minimumSizeHint() const
{
    return OptionsForm::kSmallest;
}

void ctlSchedOptions::resizeEvent(QResizeEvent* event)
{
    m_rooms->form.FitInto(event->size());
    ToolControl::resizeEvent(event);
}

void ctlSchedOptions::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LayoutDirectionChange)
        m_rooms->form.Mirror(layoutDirection());
    if (event->type() == QEvent::FontChange)
        m_rooms->form.FitInto(size());
    ToolControl::changeEvent(event);
}

void ctlSchedOptions::EnableControls()
{
    const OptionsForm& form = m_rooms->form;
    const EditorState& state = m_rooms->state;
    const bool isThere = m_rooms->catalogue.IsThere();
    const bool hasTemplate = isThere && state.currentTemplate;
    form.fraTemplate->setEnabled(hasTemplate);
    form.cboTemplates->setEnabled(isThere && form.cboTemplates->count() > 0);
    form.cmdSaveAs->setEnabled(hasTemplate);
    form.cmdDelete->setEnabled(hasTemplate && !state.currentTemplate->Protected());
    form.cmdApply->setEnabled(hasTemplate && state.IsDirty());
    EnableMoving();
}

void ctlSchedOptions::EnableMoving()
{
    EnableMoves(*m_rooms->form.lstGroups, m_rooms->form.cmdGroupMove);
    EnableMoves(*m_rooms->form.lstItems, m_rooms->form.cmdItemMove);
}

void ctlSchedOptions::TellUnsavedEdits() noexcept
{
    const bool now = HasUnsavedEdits();
    if (std::exchange(m_toldUnsavedEdits, now) != now)
        IgnoringErrors([this] { Q_EMIT HasUnsavedEditsChanged(); });
}

void ctlSchedOptions::cmdApply_Click()
{
    m_rooms->applying.ApplyChanges();
}

void ctlSchedOptions::cmdOK_Click()
{
    if (m_rooms->applying.ApplyChanges() != kStopped)
        UnloadUserControl();
}

void ctlSchedOptions::cmdCancel_Click()
{
    UnloadUserControl();
}

void ctlSchedOptions::cmdSaveAs_Click()
{
    m_rooms->savingAs.SaveTemplateAs();
}

void ctlSchedOptions::UnloadUserControl()
{
    Guarded(__func__, [this] {
        Life().WhileAlive([this] { SendEventToOwner(Event(u"UnloadScheduleOptions", {QStringLiteral("True")})); });
    });
}

} // namespace schedules
