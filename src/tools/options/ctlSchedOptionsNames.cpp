// The names of user-defined data items.

#include "controls/lists/CheckList.h"
#include "tools/options/Guarded.h"
#include "tools/options/lists/ItemTexts.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace schedules {

void ctlSchedOptions::ConnectNameEditor()
{
    m_form.txtDisplayName->installEventFilter(this);
    connect(m_form.txtDisplayName, &QLineEdit::textChanged, this,
            [this] { Entered([this] { txtDisplayName_Change(); }); });
    connect(m_form.cmdUpdateUDItemName, &QPushButton::clicked, this,
            [this] { Entered([this] { cmdUpdateUDItemName_Click(); }); });
    connect(m_form.cmdResetUDItemName, &QPushButton::clicked, this,
            [this] { Entered([this] { cmdResetUDItemName_Click(); }); });
}

/// Shows the name of the current data item, in its row of the list, and lets it be edited when it is a user-defined one
/// that is shown; -1 for no data item.
void ctlSchedOptions::ShowName(int row)
{
    EnableNameEditor(false);
    EnableNameButtons(false);
    const EventsOff off(m_state);
    m_form.txtDisplayName->clear();
    if (row < 0 || !m_state.currentElement || !IsUserDefined(*m_state.currentElement))
        return;
    m_form.txtDisplayName->setText(DisplayNameOf(*m_state.currentElement));
    EnableNameEditor(m_form.lstItems->Checked(row));
}

void ctlSchedOptions::EnableNameEditor(bool enabled)
{
    m_form.fraItem->setEnabled(enabled);
    m_form.lblDisplayName->setEnabled(enabled);
    m_form.txtDisplayName->setEnabled(enabled);
}

void ctlSchedOptions::EnableNameButtons(bool enabled)
{
    m_form.cmdUpdateUDItemName->setEnabled(enabled);
    m_form.cmdResetUDItemName->setEnabled(enabled);
}

void ctlSchedOptions::txtDisplayName_Change()
{
    Guarded(__func__, [this] {
        if (m_state.eventsEnabled)
            EnableNameButtons(true);
    });
}

void ctlSchedOptions::txtDisplayName_GotFocus()
{
    Guarded(__func__, [this] { m_form.txtDisplayName->selectAll(); });
}

bool ctlSchedOptions::txtDisplayName_KeyPress(int key)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        cmdUpdateUDItemName_Click();
        return true;
    case Qt::Key_Escape:
        cmdResetUDItemName_Click();
        m_form.txtDisplayName->selectAll();
        return true;
    default:
        return false;
    }
}

void ctlSchedOptions::cmdUpdateUDItemName_Click()
{
    Guarded(__func__, [this] {
        const int row = m_form.lstItems->CurrentRow();
        if (!m_state.currentElement || row < 0)
            return;
        const QString name = m_form.txtDisplayName->text();
        m_form.lstItems->SetText(row, EntryText(IsUserDefined(*m_state.currentElement), name));
        SetProperty(m_state.currentElement->Properties(), QStringLiteral("DisplayName"), name);
        EnableNameButtons(false);
        m_form.lstItems->setFocus();
        SetTemplateDirty(true);
    });
}

void ctlSchedOptions::cmdResetUDItemName_Click()
{
    Guarded(__func__, [this] {
        if (!m_state.currentElement)
            return;
        m_form.txtDisplayName->setText(DisplayNameOf(*m_state.currentElement));
        EnableNameButtons(false);
        m_form.txtDisplayName->setFocus();
    });
}

} // namespace schedules
