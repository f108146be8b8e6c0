#pragma once

#include "tools/options/EditorContext.h"

namespace schedules {

class ShownTemplate;

/// The fields in which the user renames the current data item, if it is user-defined.
class ItemNameEditor
{
public:
    ItemNameEditor(const EditorContext& editor, ShownTemplate& shown);

    /// Shows the name of the current data item, in its row of the list, and lets it be edited when it is a user-defined
    /// one that is shown; -1 for no data item.
    void ShowName(int row);

    void txtDisplayName_Change();
    void txtDisplayName_GotFocus();
    bool txtDisplayName_KeyPress(int key); ///< whether it takes the key
    void cmdUpdateUDItemName_Click();
    void cmdResetUDItemName_Click();

private:
    void EnableNameEditor(bool enabled);
    void EnableNameButtons(bool enabled);

    EditorContext m_editor;
    ShownTemplate& m_shown;
};

} // namespace schedules
