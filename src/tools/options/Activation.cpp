#include "tools/options/Activation.h"

#include "tools/options/TemplateCatalogue.h"
#include "tools/options/lists/GroupList.h"
#include "tools/options/lists/ShownTemplate.h"
#include "tools/options/lists/TemplateSelector.h"

namespace schedules {

Activation::Activation(const EditorContext& editor, TemplateCatalogue& catalogue, ShownTemplate& shown,
                       TemplateSelector& selector, GroupList& groups)
    : m_editor(editor), m_catalogue(catalogue), m_shown(shown), m_selector(selector), m_groups(groups)
{
}

void Activation::IToolUI_Activate()
{
    m_editor.host.Guarded(__func__, [this] {
        if (!m_editor.state.loaded)
            Load();
    });
}

void Activation::Load()
{
    EditorState& state = m_editor.state;
    state.loaded = true; // whatever comes of it: a failed activation is not tried again
    const PointerReset reset(m_editor.host);
    m_editor.host.Ui().SetPointer(Pointer::Hourglass);
    RefillCatalogue();
    m_selector.SelectByFile(m_editor.host.Ask(HostLink::Request(u"GETCURRENTSCHEDTEMPLATE")));
    m_selector.LoadTemplatesList();
    if (state.currentTemplate) {
        m_selector.SelectTemplateEntry(state.currentTemplate->ID());
        m_groups.LoadGroupsList();
    }
    state.eventsEnabled = true;
    m_groups.SetCurrentGroup(-1);
}

void Activation::RefillCatalogue()
{
    const bool wasThere = m_catalogue.IsThere();
    if (m_catalogue.Refill())
        m_shown.ForgetEdits();
    if (!wasThere && m_catalogue.IsThere())
        m_editor.form.SetEnabled(true);
}

} // namespace schedules
