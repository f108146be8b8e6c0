#pragma once

#include "tools/options/EditorContext.h"

namespace schedules {

class ItemNameEditor;
class ShownTemplate;

/// The list of the current group's data items.
class ItemList
{
public:
    ItemList(const EditorContext& editor, ShownTemplate& shown, ItemNameEditor& names);

    void LoadItemsList();
    void ClearItems();

    /// Selects the data item with that entry as a click does. False when the user could not do so now.
    bool SelectEntry(const QString& text);

    void lstItems_Click();
    void cmdItemMove_Click(int index);
    void MoveElementObject(int lNewListIndex, int lOldListIndex);

private:
    EditorContext m_editor;
    ShownTemplate& m_shown;
    ItemNameEditor& m_names;
};

} // namespace schedules
