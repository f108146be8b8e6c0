// The lists of groups and data items: what is shown, in which order.

#include "common/BooleanText.h"
#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "controls/lists/CheckList.h"
#include "tools/options/Guarded.h"
#include "tools/options/lists/ItemTexts.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace schedules {

namespace {

const QString kDisplayName = QStringLiteral("DisplayName");
const QString kShowThisGroup = QStringLiteral("ShowThisGroup");
const QString kShowThisItem = QStringLiteral("ShowThisItem");
const QString kShowGroupName = QStringLiteral("ShowGroupName");

constexpr int kUp = 0;

/// The place of the neighbour that an entry changes places with; the entry's own where there is none.
int NeighbourOf(const CheckList& list, int direction)
{
    const int row = list.CurrentRow();
    const int neighbour = direction == kUp ? row - 1 : row + 1;
    return neighbour >= 0 && neighbour < list.Count() ? neighbour : row;
}

/// Takes a member out and puts it directly before or behind another one, which is found first.
template <class Members, class Member>
bool Move(Members& members, std::shared_ptr<Member> member, const std::shared_ptr<Member>& neighbour, bool before)
{
    if (!member || !neighbour || member == neighbour)
        return false;
    members.Remove(member->Name());
    const MemberKey place = neighbour->Name();
    if (before)
        members.Add(member, place);
    else
        members.Add(member, {}, place);
    return true;
}

} // namespace

void ctlSchedOptions::LoadGroupsList()
{
    Guarded(__func__, [this] {
        m_state.groupsLoaded = false;
        m_form.lstGroups->Clear();
        if (m_state.currentTemplate) {
            for (const auto& group : m_state.currentTemplate->Groups().NewEnum()) {
                if (const auto displayName = group->Properties().Item(kDisplayName))
                    m_form.lstGroups->AddEntry(TextOf(displayName->Value()), group->ID(),
                                               FlagIn(group->Properties(), kShowThisGroup));
            }
        }
        m_state.groupsLoaded = true;
    });
}

void ctlSchedOptions::LoadItemsList()
{
    Guarded(__func__, [this] {
        if (!m_state.currentGroup)
            return;
        ClearItems();
        for (const auto& element : m_state.currentGroup->Elements().NewEnum()) {
            const QString text = EntryText(*element);
            if (!text.isEmpty())
                m_form.lstItems->AddEntry(text, element->ID(), FlagIn(element->Properties(), kShowThisItem));
        }
        m_state.itemsLoaded = true;
    });
}

void ctlSchedOptions::ClearItems()
{
    m_state.itemsLoaded = false;
    m_form.lstItems->Clear();
    m_state.currentElement.reset();
    ShowName(-1);
}

void ctlSchedOptions::SetCurrentGroup(int index)
{
    Guarded(__func__, [&] {
        m_form.lstGroups->SetCurrentRow(index);
        if (index >= 0)
            return lstGroups_Click();
        const EventsOff off(m_state);
        m_state.currentGroup.reset();
        ClearItems();
        m_form.fraGroup->setTitle(m_form.CaptionWithoutGroup());
        m_form.groupName->clear();
        m_form.chkShowGroupName->setChecked(false);
        m_form.chkShowGroupName->setEnabled(false);
        m_form.lstItems->setEnabled(false);
    });
}

void ctlSchedOptions::lstGroups_Click()
{
    Guarded(__func__, [this] {
        if (!m_state.TakesGroupClicks())
            return;
        ClearItems();
        if (m_form.lstGroups->CurrentRow() >= 0 && m_state.currentTemplate)
            ShowGroup(m_form.lstGroups->CurrentRow());
    });
}

void ctlSchedOptions::ShowGroup(int row)
{
    const bool isChecked = m_form.lstGroups->Checked(row);
    m_state.currentGroup = m_state.currentTemplate->Groups().ItemByGroupID(m_form.lstGroups->Id(row));
    if (!m_state.currentGroup)
        return;
    TakeCheckMark(m_state.currentGroup->Properties(), kShowThisGroup, isChecked);
    QString caption = m_form.lstGroups->Text(row) + u' ' + LoadResString(kGroupFrameSuffix);
    m_form.fraGroup->setTitle(caption.replace(u'&', QStringLiteral("&&")));
    m_form.groupName->setText(m_state.currentGroup->Name());
    {
        const EventsOff off(m_state);
        m_form.chkShowGroupName->setChecked(FlagIn(m_state.currentGroup->Properties(), kShowGroupName).value_or(false));
    }
    LoadItemsList();
    m_form.chkShowGroupName->setEnabled(isChecked);
    m_form.lstItems->setEnabled(isChecked);
}

void ctlSchedOptions::lstItems_Click()
{
    Guarded(__func__, [this] {
        const int row = m_form.lstItems->CurrentRow();
        if (!m_state.TakesItemClicks() || row < 0 || !m_state.currentGroup)
            return;
        m_state.currentElement = m_state.currentGroup->Elements().ItemByElementID(m_form.lstItems->Id(row));
        if (!m_state.currentElement)
            return;
        TakeCheckMark(m_state.currentElement->Properties(), kShowThisItem, m_form.lstItems->Checked(row));
        ShowName(row);
    });
}

/// A member without the property cannot be checked, so there is nothing to take.
void ctlSchedOptions::TakeCheckMark(CProperties& properties, const QString& name, bool checked)
{
    const auto property = properties.Item(name);
    if (!property || FlagIn(properties, name) == checked)
        return;
    property->SetValue(BooleanText(checked));
    SetTemplateDirty(true);
}

void ctlSchedOptions::chkShowGroupName_Click()
{
    Guarded(__func__, [this] {
        if (!m_state.eventsEnabled || !m_state.currentGroup)
            return;
        SetProperty(m_state.currentGroup->Properties(), kShowGroupName,
                    BooleanText(m_form.chkShowGroupName->isChecked()));
        SetTemplateDirty(true);
    });
}

void ctlSchedOptions::cmdGroupMove_Click(int index)
{
    Guarded(__func__, [&] {
        if (m_form.lstGroups->Count() > 0 && m_form.lstGroups->CurrentRow() >= 0)
            MoveGroupObject(NeighbourOf(*m_form.lstGroups, index), m_form.lstGroups->CurrentRow());
    });
}

void ctlSchedOptions::cmdItemMove_Click(int index)
{
    Guarded(__func__, [&] {
        if (m_form.lstItems->Count() > 0 && m_form.lstItems->CurrentRow() >= 0)
            MoveElementObject(NeighbourOf(*m_form.lstItems, index), m_form.lstItems->CurrentRow());
    });
}

// Members that are not listed may stand between two that are: the moved one goes directly to its listed neighbour.

void ctlSchedOptions::MoveGroupObject(int lNewListIndex, int lOldListIndex)
{
    Guarded(__func__, [&] {
        if (!m_state.currentTemplate || lNewListIndex == lOldListIndex)
            return;
        CGroups& groups = m_state.currentTemplate->Groups();
        const CheckList& list = *m_form.lstGroups;
        if (!Move(groups, groups.ItemByGroupID(list.Id(lOldListIndex)), groups.ItemByGroupID(list.Id(lNewListIndex)),
                  lNewListIndex < lOldListIndex))
            return;
        m_form.lstGroups->MoveEntry(lOldListIndex, lNewListIndex);
        SetTemplateDirty(true);
    });
}

void ctlSchedOptions::MoveElementObject(int lNewListIndex, int lOldListIndex)
{
    Guarded(__func__, [&] {
        if (!m_state.currentGroup || lNewListIndex == lOldListIndex)
            return;
        CElements& elements = m_state.currentGroup->Elements();
        const CheckList& list = *m_form.lstItems;
        if (!Move(elements, elements.ItemByElementID(list.Id(lOldListIndex)),
                  elements.ItemByElementID(list.Id(lNewListIndex)), lNewListIndex < lOldListIndex))
            return;
        m_form.lstItems->MoveEntry(lOldListIndex, lNewListIndex);
        SetTemplateDirty(true);
    });
}

void ctlSchedOptions::EnableMoving()
{
    const auto enable = [](const CheckList& list, const std::array<QPushButton*, 2>& buttons) {
        const bool canMove = list.isEnabled() && !list.IsNarrowed() && list.CurrentRow() >= 0;
        buttons[0]->setEnabled(canMove && list.CurrentRow() > 0);
        buttons[1]->setEnabled(canMove && list.CurrentRow() < list.Count() - 1);
    };
    enable(*m_form.lstGroups, m_form.cmdGroupMove);
    enable(*m_form.lstItems, m_form.cmdItemMove);
}

} // namespace schedules
