#pragma once

#include "tools/options/EditorContext.h"

namespace schedules {

class GroupList;
class ItemList;
class ShownTemplate;
class TemplateCatalogue;

/// The list of templates, from which the user chooses the one to be edited.
class TemplateSelector
{
public:
    TemplateSelector(const EditorContext& editor, const TemplateCatalogue& catalogue, ShownTemplate& shown,
                     GroupList& groups, ItemList& items);

    void LoadTemplatesList();

    /// The entry of the template with that number; -1 when there is none.
    int FindTemplateListIndex(int templateId) const;

    /// As if the user had chosen the template, also when it was chosen already.
    void SelectTemplateEntry(int templateId);
    void cboTemplates_Click();

    /// Makes a template the current one and shows its groups. False when there is none of that number.
    bool LoadNewTemplate(int templateId);

    /// Loads the first template with that file name, letter case aside.
    void SelectByFile(const QString& fileName);

    /// The number of that template; -1 when there is none.
    int TemplateOf(const QString& fileName) const;

private:
    EditorContext m_editor;
    const TemplateCatalogue& m_catalogue;
    ShownTemplate& m_shown;
    GroupList& m_groups;
    ItemList& m_items;
};

} // namespace schedules
