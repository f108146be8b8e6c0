#include "tools/options/lists/ItemList.h"

#include "controls/lists/CheckList.h"
#include "tools/options/lists/ItemTexts.h"
#include "tools/options/lists/ListEntries.h"
#include "tools/options/lists/ShownTemplate.h"
#include "tools/options/names/ItemNameEditor.h"

namespace schedules {

namespace {
const QString kShowThisItem = QStringLiteral("ShowThisItem");
}

ItemList::ItemList(const EditorContext& editor, ShownTemplate& shown, ItemNameEditor& names)
    : m_editor(editor), m_shown(shown), m_names(names)
{
}

void ItemList::LoadItemsList()
{
    m_editor.host.Guarded(__func__, [this] {
        const auto& group = m_editor.state.currentGroup;
        if (!group)
            return;
        ClearItems();
        for (const auto& element : group->Elements().NewEnum()) {
            const QString text = EntryText(*element);
            if (!text.isEmpty())
                m_editor.form.lstItems->AddEntry(text, element->ID(), FlagIn(element->Properties(), kShowThisItem));
        }
        m_editor.state.itemsLoaded = true;
    });
}

void ItemList::ClearItems()
{
    m_editor.state.itemsLoaded = false;
    m_editor.form.lstItems->Clear();
    m_editor.state.currentElement.reset();
    m_names.ShowName(-1);
}

bool ItemList::SelectEntry(const QString& text)
{
    const int row = RowToSelect(*m_editor.form.lstItems, text);
    if (row < 0 || !m_editor.state.TakesItemClicks())
        return false;
    m_editor.form.lstItems->SetCurrentRow(row);
    lstItems_Click();
    return m_editor.state.currentElement != nullptr;
}

void ItemList::lstItems_Click()
{
    m_editor.host.Guarded(__func__, [this] {
        EditorState& state = m_editor.state;
        const CheckList& list = *m_editor.form.lstItems;
        const int row = list.CurrentRow();
        if (!state.TakesItemClicks() || row < 0 || !state.currentGroup)
            return;
        state.currentElement = state.currentGroup->Elements().ItemByElementID(list.Id(row));
        if (!state.currentElement)
            return;
        if (TakeCheckMark(state.currentElement->Properties(), kShowThisItem, list.Checked(row)))
            m_shown.SetTemplateDirty(true);
        m_names.ShowName(row);
    });
}

void ItemList::cmdItemMove_Click(int index)
{
    m_editor.host.Guarded(__func__, [&] {
        const CheckList& list = *m_editor.form.lstItems;
        if (list.Count() > 0 && list.CurrentRow() >= 0)
            MoveElementObject(NeighbourOf(list, index), list.CurrentRow());
    });
}

void ItemList::MoveElementObject(int lNewListIndex, int lOldListIndex)
{
    m_editor.host.Guarded(__func__, [&] {
        if (!m_editor.state.currentGroup || lNewListIndex == lOldListIndex)
            return;
        CElements& elements = m_editor.state.currentGroup->Elements();
        CheckList& list = *m_editor.form.lstItems;
        if (!MoveMember(elements, elements.ItemByElementID(list.Id(lOldListIndex)),
                        elements.ItemByElementID(list.Id(lNewListIndex)), lNewListIndex < lOldListIndex))
            return;
        list.MoveEntry(lOldListIndex, lNewListIndex);
        m_shown.SetTemplateDirty(true);
    });
}

} // namespace schedules
