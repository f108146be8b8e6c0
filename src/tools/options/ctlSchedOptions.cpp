#include "tools/options/ctlSchedOptions.h"

#include "common/Blanks.h"
#include "common/modResource.h"
#include "controls/desktop/DesktopUserInterface.h"
#include "controls/lists/CheckList.h"
#include "controls/lists/FilteredList.h"
#include "tools/options/Guarded.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
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

} // namespace

ctlSchedOptions::ctlSchedOptions(UserInterface* userInterface)
    : ToolControl("ctlSchedOptions", userInterface),
      m_reports(std::make_shared<GatheredReports>(userInterface ? *userInterface
                                                                : Own(std::make_unique<DesktopUserInterface>(this)))),
      m_form(*this)
{
    EnableControls();
    ConnectControls();
    ConnectNameEditor();
    TraceProcedure("UserControl_Initialize");
}

ctlSchedOptions::~ctlSchedOptions()
{
    Disconnect();
    TraceProcedure("UserControl_Terminate");
}

void ctlSchedOptions::ConnectControls()
{
    const auto enters = [this](auto* sender, auto signal, void (ctlSchedOptions::*procedure)()) {
        connect(sender, signal, this, [this, procedure] { Entered([&] { (this->*procedure)(); }); });
    };
    enters(m_form.cboTemplates, &QComboBox::activated, &ctlSchedOptions::cboTemplates_Click);
    enters(m_form.lstGroups, &CheckList::Clicked, &ctlSchedOptions::lstGroups_Click);
    enters(m_form.lstItems, &CheckList::Clicked, &ctlSchedOptions::lstItems_Click);
    enters(m_form.chkShowGroupName, &QCheckBox::clicked, &ctlSchedOptions::chkShowGroupName_Click);
    enters(m_form.cmdApply, &QPushButton::clicked, &ctlSchedOptions::cmdApply_Click);
    enters(m_form.cmdOK, &QPushButton::clicked, &ctlSchedOptions::cmdOK_Click);
    enters(m_form.cmdCancel, &QPushButton::clicked, &ctlSchedOptions::cmdCancel_Click);
    enters(m_form.cmdSaveAs, &QPushButton::clicked, &ctlSchedOptions::cmdSaveAs_Click);
    enters(m_form.cmdDelete, &QPushButton::clicked, &ctlSchedOptions::cmdDelete_Click);
    for (const int index : {0, 1}) {
        const auto place = static_cast<std::size_t>(index);
        connect(m_form.cmdGroupMove[place], &QPushButton::clicked, this,
                [this, index] { Entered([&] { cmdGroupMove_Click(index); }); });
        connect(m_form.cmdItemMove[place], &QPushButton::clicked, this,
                [this, index] { Entered([&] { cmdItemMove_Click(index); }); });
    }
    connect(m_form.groups, &FilteredList::Narrowed, this, &ctlSchedOptions::EnableMoving);
    connect(m_form.items, &FilteredList::Narrowed, this, &ctlSchedOptions::EnableMoving);
    connect(m_form.lstGroups, &CheckList::MoveRequested, this,
            [this](int from, int to) { Entered([&] { MoveGroupObject(to, from); }); });
    connect(m_form.lstItems, &CheckList::MoveRequested, this,
            [this](int from, int to) { Entered([&] { MoveElementObject(to, from); }); });
}

void ctlSchedOptions::IToolUI_Initialize(IMsgRouter* msgRouter, const QString& sOwner)
{
    Entered([&] {
        m_templates = std::make_shared<CTemplates>(*m_reports);
        m_categories = std::make_shared<CCategories>(*m_reports);
        const QPointer<QWidget> alive(this);
        StartUp(msgRouter, sOwner, "INITIALIZESCHEDOPTIONS");
        RequireAlive(alive);
        m_form.Translate();
        m_form.KeepCaptionWithoutGroup();
    });
}

bool ctlSchedOptions::ObtainResourceModule()
{
    if (ResourceModule() != 0)
        return true;
    const RequestMessage request = Request(u"GetResourceModule");
    // Hosts count on being asked twice: the first answer says whether there is one, the second is the one.
    if (NumberIn(Reply(request))) {
        if (const int handle = HandleIn(Reply(request)))
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
        Guarded("IToolUI_Activate", [this] { Activate(); });
    });
}

void ctlSchedOptions::Activate()
{
    if (m_state.loaded)
        return;
    m_state.loaded = true; // whatever comes of it: a failed activation is not tried again
    const PointerReset reset(*this);
    Ui().SetPointer(Pointer::Hourglass);
    const QString templateList = GetAllTemplates();
    m_builderPath = GetBuilderPath();
    const QString categories = Ask(Request(u"GETTEMPLATECATEGORIES"));
    if (!m_templates) {
        m_templates = std::make_shared<CTemplates>(*m_reports);
        m_form.SetEnabled(true);
    }
    if (!templateList.isEmpty() && !m_builderPath.isEmpty())
        CreateCatalogue(templateList, categories);
    else
        m_templates->Clear();
    SelectByFile(Ask(Request(u"GETCURRENTSCHEDTEMPLATE")));
    LoadTemplatesList();
    if (m_state.currentTemplate) {
        SelectTemplateEntry(m_state.currentTemplate->ID());
        LoadGroupsList();
    }
    m_state.eventsEnabled = true;
    SetCurrentGroup(-1);
}

void ctlSchedOptions::CreateCatalogue(const QString& templateList, const QString& categories)
{
    const QPointer<QWidget> alive(this);
    const auto templates = m_templates; // what is reported may be the end of the editor
    const auto reports = m_reports;
    bool isCreated = false;
    reports->Together(
        [&, folder = m_builderPath] { isCreated = templates->CreateObjects(templateList, categories, folder); });
    RequireAlive(alive);
    if (isCreated)
        m_edited.clear();
}

void ctlSchedOptions::IToolUI_Deactivate(bool)
{
    TraceProcedure("IToolUI_Deactivate");
    IgnoringErrors([this] {
        m_state.ForgetTemplate();
        m_templates.reset();
        m_categories.reset();
        m_form.SetEnabled(false);
    });
}

QString ctlSchedOptions::Reply(const RequestMessage& message)
{
    const QPointer<QWidget> alive(this);
    const QString reply = SendRequestToOwner(message);
    RequireAlive(alive);
    return reply;
}

QString ctlSchedOptions::Ask(const RequestMessage& message)
{
    return WhileActive([&] { return Reply(message); });
}

Answer ctlSchedOptions::Tell(const MessageBox& box)
{
    return WhileActive([&] { return Ui().Show(box); });
}

QString ctlSchedOptions::GetAllTemplates()
{
    return Guarded(__func__, QString(), [this] { return Ask(Request(u"GETTEMPLATELIST", {QString()})); });
}

QString ctlSchedOptions::GetBuilderPath()
{
    return Guarded(__func__, QString(), [this] { return Ask(Request(u"GETBUILDERPATH", {QString()})); });
}

void ctlSchedOptions::resizeEvent(QResizeEvent* event)
{
    m_form.FitInto(event->size());
    ToolControl::resizeEvent(event);
}

void ctlSchedOptions::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LayoutDirectionChange)
        m_form.Mirror(layoutDirection());
    if (event->type() == QEvent::FontChange)
        m_form.FitInto(size());
    ToolControl::changeEvent(event);
}

bool ctlSchedOptions::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_form.txtDisplayName)
        return ToolControl::eventFilter(watched, event);
    const QPointer<QWidget> alive(this);
    bool isTaken = false;
    if (event->type() == QEvent::FocusIn) {
        Entered([this] { txtDisplayName_GotFocus(); });
        m_focusedByMouse = static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason;
    } else if (event->type() == QEvent::KeyPress) {
        Entered([&] { isTaken = txtDisplayName_KeyPress(static_cast<QKeyEvent*>(event)->key()); });
    } else if (event->type() == QEvent::MouseButtonRelease && std::exchange(m_focusedByMouse, false)) {
        // The press that brought the focus has placed the cursor, which ended the selection.
        if (!m_form.txtDisplayName->hasSelectedText())
            m_form.txtDisplayName->selectAll();
    }
    return isTaken || !alive;
}

} // namespace schedules
