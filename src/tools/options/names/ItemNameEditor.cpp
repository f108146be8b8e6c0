#include "tools/options/names/ItemNameEditor.h"

#include "controls/lists/CheckList.h"
#include "tools/options/lists/ItemTexts.h"
#include "tools/options/lists/ShownTemplate.h"
#include "tools/options/names/NameBox.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace schedules {

ItemNameEditor::ItemNameEditor(const EditorContext& editor, ShownTemplate& shown) : m_editor(editor), m_shown(shown) {}

void ItemNameEditor::ShowName(int row)
{
    EnableNameEditor(false);
    EnableNameButtons(false);
    const EventsOff off(m_editor.state);
    m_editor.form.txtDisplayName->clear();
    const auto& element = m_editor.state.currentElement;
    if (row < 0 || !element || !IsUserDefined(*element))
        return;
    m_editor.form.txtDisplayName->setText(DisplayNameOf(*element));
    EnableNameEditor(m_editor.form.lstItems->Checked(row));
}

void ItemNameEditor::EnableNameEditor(bool enabled)
{
    m_editor.form.fraItem->setEnabled(enabled);
    m_editor.form.lblDisplayName->setEnabled(enabled);
    m_editor.form.txtDisplayName->setEnabled(enabled);
}

void ItemNameEditor::EnableNameButtons(bool enabled)
{
    m_editor.form.cmdUpdateUDItemName->setEnabled(enabled);
    m_editor.form.cmdResetUDItemName->setEnabled(enabled);
}

void ItemNameEditor::txtDisplayName_Change()
{
    m_editor.host.Guarded(__func__, [this] {
        if (m_editor.state.eventsEnabled)
            EnableNameButtons(true);
    });
}

void ItemNameEditor::txtDisplayName_GotFocus()
{
    m_editor.host.Guarded(__func__, [this] { m_editor.form.txtDisplayName->selectAll(); });
}

bool ItemNameEditor::txtDisplayName_KeyPress(int key)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        cmdUpdateUDItemName_Click();
        return true;
    case Qt::Key_Escape:
        cmdResetUDItemName_Click();
        m_editor.form.txtDisplayName->selectAll();
        return true;
    default:
        return false;
    }
}

void ItemNameEditor::cmdUpdateUDItemName_Click()
{
    m_editor.host.Guarded(__func__, [this] {
        CheckList& list = *m_editor.form.lstItems;
        const auto& element = m_editor.state.currentElement;
        const int row = list.CurrentRow();
        if (!element || row < 0)
            return;
        const QString name = m_editor.form.txtDisplayName->text();
        list.SetText(row, EntryText(IsUserDefined(*element), name));
        SetProperty(element->Properties(), QStringLiteral("DisplayName"), name);
        EnableNameButtons(false);
        list.setFocus();
        m_shown.SetTemplateDirty(true);
    });
}

void ItemNameEditor::cmdResetUDItemName_Click()
{
    m_editor.host.Guarded(__func__, [this] {
        const auto& element = m_editor.state.currentElement;
        if (!element)
            return;
        m_editor.form.txtDisplayName->setText(DisplayNameOf(*element));
        EnableNameButtons(false);
        m_editor.form.txtDisplayName->setFocus();
    });
}

} // namespace schedules
