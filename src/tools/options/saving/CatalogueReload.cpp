#include "tools/options/saving/CatalogueReload.h"

#include "controls/lists/CheckList.h"
#include "framework/IToolUI.h"
#include "tools/options/TemplateCatalogue.h"
#include "tools/options/lists/GroupList.h"
#include "tools/options/lists/ItemList.h"
#include "tools/options/lists/ShownTemplate.h"
#include "tools/options/lists/TemplateSelector.h"

#include <QComboBox>
#include <QScrollBar>

#include <algorithm>

namespace schedules {

CatalogueReload::CatalogueReload(const EditorContext& editor, const TemplateCatalogue& catalogue, ShownTemplate& shown,
                                 TemplateSelector& selector, GroupList& groups, ItemList& items, IToolUI& tool)
    : m_editor(editor),
      m_catalogue(catalogue),
      m_shown(shown),
      m_selector(selector),
      m_groups(groups),
      m_items(items),
      m_tool(tool)
{
}

void CatalogueReload::ReloadAndSelect(const QString& fileName, const QString& deletedCategory)
{
    const Whereabouts former = Current();
    Empty();
    m_editor.state.loaded = false;
    m_editor.host.Life().WhileAlive([this] { m_tool.IToolUI_Activate(); });
    const int id = fileName.isEmpty() ? DefaultTemplateID(deletedCategory) : SavedTemplateID(fileName);
    if (id > 0 && m_selector.LoadNewTemplate(id))
        m_selector.SelectTemplateEntry(id);
    ReturnTo(former);
}

void CatalogueReload::Empty()
{
    m_editor.state.ForgetTemplate();
    m_editor.form.cboTemplates->clear();
    m_editor.form.lstGroups->Clear();
    m_groups.SetCurrentGroup(-1);
    m_shown.ShowTemplateCaption();
}

int CatalogueReload::SavedTemplateID(const QString& fileName) const
{
    const auto templates = m_catalogue.Templates().NewEnum();
    const auto exact = std::ranges::find(templates, fileName, [](const auto& each) { return each->Filename(); });
    return exact != templates.end() ? (*exact)->ID() : m_catalogue.Templates().TemplateIDFromFileName(fileName);
}

/// The default template of the category, or any, or what the host's list calls the default of the category; -1 to stay
/// with what the host uses.
int CatalogueReload::DefaultTemplateID(const QString& category) const
{
    const auto templates = m_catalogue.Templates().NewEnum();
    const auto first = [&](auto&& isWanted) {
        const auto found = std::ranges::find_if(templates, isWanted);
        return found == templates.end() ? -1 : (*found)->ID();
    };
    const auto isOfCategory = [&](const auto& each) {
        return CategoryNameOf(*each).compare(category, Qt::CaseInsensitive) == 0;
    };
    const int ofCategory = first([&](const auto& each) { return each->IsDefaultTemplate() && isOfCategory(each); });
    if (ofCategory > 0)
        return ofCategory;
    const int any = first([](const auto& each) { return each->IsDefaultTemplate(); });
    return any > 0 ? any : first([&](const auto& each) { return each->DefaultForCategory() && isOfCategory(each); });
}

CatalogueReload::Whereabouts CatalogueReload::Current() const
{
    const EditorState& state = m_editor.state;
    return {state.currentGroup ? state.currentGroup->Name() : QString(),
            state.currentElement ? state.currentElement->Name() : QString(),
            m_editor.form.lstGroups->verticalScrollBar()->value(),
            m_editor.form.lstItems->verticalScrollBar()->value()};
}

void CatalogueReload::ReturnTo(const Whereabouts& former)
{
    Reselect(former);
    m_editor.form.lstGroups->verticalScrollBar()->setValue(former.groupsTop); // selecting has scrolled
    m_editor.form.lstItems->verticalScrollBar()->setValue(former.itemsTop);
}

void CatalogueReload::Reselect(const Whereabouts& former)
{
    if (!m_editor.state.currentTemplate)
        return;
    const auto group = m_editor.state.currentTemplate->Groups().Item(former.group);
    if (!group || m_editor.form.lstGroups->RowOf(group->ID()) < 0)
        return;
    m_groups.SetCurrentGroup(m_editor.form.lstGroups->RowOf(group->ID()));
    const auto element = group->Elements().Item(former.item);
    if (!element || m_editor.form.lstItems->RowOf(element->ID()) < 0)
        return;
    m_editor.form.lstItems->SetCurrentRow(m_editor.form.lstItems->RowOf(element->ID()));
    m_items.lstItems_Click();
}

} // namespace schedules
