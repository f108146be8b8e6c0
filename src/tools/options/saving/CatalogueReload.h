#pragma once

#include "tools/options/EditorContext.h"

namespace schedules {

class GroupList;
class IToolUI;
class ItemList;
class ShownTemplate;
class TemplateCatalogue;
class TemplateSelector;

/// Asks the host for everything again after a save or a deletion, and goes back to what the user was looking at, as far
/// as it is still there.
class CatalogueReload
{
public:
    CatalogueReload(const EditorContext& editor, const TemplateCatalogue& catalogue, ShownTemplate& shown,
                    TemplateSelector& selector, GroupList& groups, ItemList& items, IToolUI& tool);

    /// Shows the template of that file name; without one, a default of the category of the deleted template.
    void ReloadAndSelect(const QString& fileName, const QString& deletedCategory = {});

private:
    /// What the user was looking at, by names: after a reload the members are other objects.
    struct Whereabouts
    {
        QString group;
        QString item;
        int groupsTop = 0;
        int itemsTop = 0;
    };

    Whereabouts Current() const;
    void ReturnTo(const Whereabouts& former);
    void Reselect(const Whereabouts& former);
    void Empty();
    int SavedTemplateID(const QString& fileName) const;
    int DefaultTemplateID(const QString& category) const;

    EditorContext m_editor;
    const TemplateCatalogue& m_catalogue;
    ShownTemplate& m_shown;
    TemplateSelector& m_selector;
    GroupList& m_groups;
    ItemList& m_items;
    IToolUI& m_tool;
};

} // namespace schedules
