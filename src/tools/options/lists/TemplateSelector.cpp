#include "tools/options/lists/TemplateSelector.h"

#include "controls/lists/CheckList.h"
#include "tools/options/TemplateCatalogue.h"
#include "tools/options/lists/GroupList.h"
#include "tools/options/lists/ItemList.h"
#include "tools/options/lists/ShownTemplate.h"

#include <QComboBox>

#include <algorithm>

namespace schedules {

namespace {

/// What a user knows a template by: its display name, and the category's behind a hyphen.
QString EntryOf(const CTemplate& listed)
{
    const auto displayName = listed.Properties().Item(QStringLiteral("DisplayName"));
    const QString text = displayName ? TextOf(displayName->Value()) : listed.Name();
    const auto category = listed.Category();
    const QString of = category ? category->DisplayName() : QString();
    return of.isEmpty() ? text : text + QStringLiteral(" - ") + of;
}

} // namespace

TemplateSelector::TemplateSelector(const EditorContext& editor, const TemplateCatalogue& catalogue,
                                   ShownTemplate& shown, GroupList& groups, ItemList& items)
    : m_editor(editor), m_catalogue(catalogue), m_shown(shown), m_groups(groups), m_items(items)
{
}

int TemplateSelector::TemplateOf(const QString& fileName) const
{
    const QString wanted = fileName.toUpper();
    const auto templates = m_catalogue.Templates().NewEnum();
    const auto found =
        std::ranges::find_if(templates, [&](const auto& each) { return each->Filename().toUpper() == wanted; });
    return found != templates.end() ? (*found)->ID() : -1;
}

void TemplateSelector::SelectByFile(const QString& fileName)
{
    if (fileName.isEmpty())
        return;
    if (const int id = TemplateOf(fileName); id > 0)
        LoadNewTemplate(id);
}

void TemplateSelector::LoadTemplatesList()
{
    m_editor.host.Guarded(__func__, [this] {
        QComboBox& list = *m_editor.form.cboTemplates;
        list.clear();
        for (const auto& listed : m_catalogue.Templates().NewEnum())
            list.addItem(EntryOf(*listed), listed->ID());
        list.setCurrentIndex(-1);
    });
}

int TemplateSelector::FindTemplateListIndex(int templateId) const
{
    return m_editor.host.Guarded(__func__, -1, [&] { return m_editor.form.cboTemplates->findData(templateId); });
}

void TemplateSelector::SelectTemplateEntry(int templateId)
{
    m_editor.form.cboTemplates->setCurrentIndex(FindTemplateListIndex(templateId));
    cboTemplates_Click();
}

void TemplateSelector::cboTemplates_Click()
{
    m_editor.host.Guarded(__func__, [this] {
        const QComboBox& list = *m_editor.form.cboTemplates;
        if (!m_editor.state.loaded || list.count() == 0 || list.currentIndex() < 0)
            return;
        LoadNewTemplate(list.currentData().toInt());
        m_groups.LoadGroupsList();
        m_groups.SetCurrentGroup(-1);
        m_shown.SetTemplateDirty(false);
    });
}

bool TemplateSelector::LoadNewTemplate(int templateId)
{
    return m_editor.host.Guarded(__func__, false, [&] {
        m_editor.form.lstGroups->Clear();
        m_items.ClearItems();
        if (!m_shown.SetCurrentTemplate(templateId))
            return false;
        m_groups.LoadGroupsList();
        m_shown.SetTemplateDirty(false);
        return true;
    });
}

} // namespace schedules
