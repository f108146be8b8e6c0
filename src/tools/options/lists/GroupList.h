#pragma once

#include "tools/options/EditorContext.h"

namespace schedules {

class ItemList;
class ShownTemplate;

/// The list of the current template's groups, and the frame that tells of the selected one.
class GroupList
{
public:
    GroupList(const EditorContext& editor, ShownTemplate& shown, ItemList& items);

    void LoadGroupsList();

    /// Selects the group in that row as a click does; -1 selects none.
    void SetCurrentGroup(int index);

    /// Selects the group with that entry as a click does. False when the user could not do so now.
    bool SelectEntry(const QString& text);

    void lstGroups_Click();
    void chkShowGroupName_Click();
    void cmdGroupMove_Click(int index);
    void MoveGroupObject(int lNewListIndex, int lOldListIndex);

private:
    void ShowGroup(int row);
    void ShowFrame(int row);
    void ShowNoGroup();

    EditorContext m_editor;
    ShownTemplate& m_shown;
    ItemList& m_items;
};

} // namespace schedules
