#include "tools/options/lists/GroupList.h"

#include "common/BooleanText.h"
#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "controls/lists/CheckList.h"
#include "tools/options/lists/ItemList.h"
#include "tools/options/lists/ItemTexts.h"
#include "tools/options/lists/ListEntries.h"
#include "tools/options/lists/ShownTemplate.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>

namespace schedules {

namespace {
const QString kShowThisGroup = QStringLiteral("ShowThisGroup");
const QString kShowGroupName = QStringLiteral("ShowGroupName");
} // namespace

GroupList::GroupList(const EditorContext& editor, ShownTemplate& shown, ItemList& items)
    : m_editor(editor), m_shown(shown), m_items(items)
{
}

void GroupList::LoadGroupsList()
{
    m_editor.host.Guarded(__func__, [this] {
        m_editor.state.groupsLoaded = false;
        CheckList& list = *m_editor.form.lstGroups;
        list.Clear();
        if (const auto& current = m_editor.state.currentTemplate) {
            for (const auto& group : current->Groups().NewEnum()) {
                if (const auto displayName = group->Properties().Item(QStringLiteral("DisplayName")))
                    list.AddEntry(TextOf(displayName->Value()), group->ID(),
                                  FlagIn(group->Properties(), kShowThisGroup));
            }
        }
        m_editor.state.groupsLoaded = true;
    });
}

void GroupList::SetCurrentGroup(int index)
{
    m_editor.host.Guarded(__func__, [&] {
        m_editor.form.lstGroups->SetCurrentRow(index);
        if (index >= 0)
            lstGroups_Click();
        else
            ShowNoGroup();
    });
}

void GroupList::ShowNoGroup()
{
    const EventsOff off(m_editor.state);
    m_editor.state.currentGroup.reset();
    m_items.ClearItems();
    OptionsForm& form = m_editor.form;
    form.fraGroup->setTitle(form.CaptionWithoutGroup());
    form.groupName->clear();
    form.chkShowGroupName->setChecked(false);
    form.chkShowGroupName->setEnabled(false);
    form.lstItems->setEnabled(false);
}

bool GroupList::SelectEntry(const QString& text)
{
    const int row = RowToSelect(*m_editor.form.lstGroups, text);
    if (row < 0 || !m_editor.state.TakesGroupClicks())
        return false;
    SetCurrentGroup(row);
    return m_editor.state.currentGroup != nullptr;
}

void GroupList::lstGroups_Click()
{
    m_editor.host.Guarded(__func__, [this] {
        if (!m_editor.state.TakesGroupClicks())
            return;
        m_items.ClearItems();
        const int row = m_editor.form.lstGroups->CurrentRow();
        if (row >= 0 && m_editor.state.currentTemplate)
            ShowGroup(row);
    });
}

void GroupList::ShowGroup(int row)
{
    const CheckList& list = *m_editor.form.lstGroups;
    const bool isChecked = list.Checked(row);
    auto& group = m_editor.state.currentGroup;
    group = m_editor.state.currentTemplate->Groups().ItemByGroupID(list.Id(row));
    if (!group)
        return;
    if (TakeCheckMark(group->Properties(), kShowThisGroup, isChecked))
        m_shown.SetTemplateDirty(true);
    ShowFrame(row);
    m_items.LoadItemsList();
    m_editor.form.chkShowGroupName->setEnabled(isChecked);
    m_editor.form.lstItems->setEnabled(isChecked);
}

void GroupList::ShowFrame(int row)
{
    const CGroup& group = *m_editor.state.currentGroup;
    QString caption = m_editor.form.lstGroups->Text(row) + u' ' + LoadResString(kGroupFrameSuffix);
    m_editor.form.fraGroup->setTitle(caption.replace(u'&', QStringLiteral("&&")));
    m_editor.form.groupName->setText(group.Name());
    const EventsOff off(m_editor.state);
    m_editor.form.chkShowGroupName->setChecked(FlagIn(group.Properties(), kShowGroupName).value_or(false));
}

void GroupList::chkShowGroupName_Click()
{
    m_editor.host.Guarded(__func__, [this] {
        const auto& group = m_editor.state.currentGroup;
        if (!m_editor.state.eventsEnabled || !group)
            return;
        SetProperty(group->Properties(), kShowGroupName, BooleanText(m_editor.form.chkShowGroupName->isChecked()));
        m_shown.SetTemplateDirty(true);
    });
}

void GroupList::cmdGroupMove_Click(int index)
{
    m_editor.host.Guarded(__func__, [&] {
        const CheckList& list = *m_editor.form.lstGroups;
        if (list.Count() > 0 && list.CurrentRow() >= 0)
            MoveGroupObject(NeighbourOf(list, index), list.CurrentRow());
    });
}

void GroupList::MoveGroupObject(int lNewListIndex, int lOldListIndex)
{
    m_editor.host.Guarded(__func__, [&] {
        if (!m_editor.state.currentTemplate || lNewListIndex == lOldListIndex)
            return;
        CGroups& groups = m_editor.state.currentTemplate->Groups();
        CheckList& list = *m_editor.form.lstGroups;
        if (!MoveMember(groups, groups.ItemByGroupID(list.Id(lOldListIndex)),
                        groups.ItemByGroupID(list.Id(lNewListIndex)), lNewListIndex < lOldListIndex))
            return;
        list.MoveEntry(lOldListIndex, lNewListIndex);
        m_shown.SetTemplateDirty(true);
    });
}

} // namespace schedules
