#include "tools/options/saving/TemplateDeleting.h"

#include "common/Blanks.h"
#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "tools/options/TemplateCatalogue.h"
#include "tools/options/saving/CatalogueReload.h"
#include "tools/options/saving/TemplateFiles.h"

#include <QComboBox>

namespace schedules {

TemplateDeleting::TemplateDeleting(const EditorContext& editor, const TemplateCatalogue& catalogue,
                                   CatalogueReload& reload)
    : m_editor(editor), m_catalogue(catalogue), m_reload(reload)
{
}

void TemplateDeleting::cmdDelete_Click()
{
    m_editor.host.Guarded(__func__, [this] {
        const auto current = m_editor.state.currentTemplate;
        if (!current || m_editor.form.cboTemplates->currentIndex() < 0 || !IsWanted())
            return;
        const bool isStillCurrent = current == m_editor.state.currentTemplate;
        if (isStillCurrent && DeleteTemplate())
            m_reload.ReloadAndSelect({}, CategoryNameOf(*current));
    });
}

bool TemplateDeleting::IsWanted() const
{
    const QString shown = TrimmedOfBlanks(m_editor.form.cboTemplates->currentText());
    const QString title = LoadResString(kDeleteTemplateTitle);
    if (m_editor.state.currentTemplate->DefaultForCategory()) {
        const int number = kDefaultTemplateWarning;
        m_editor.host.Show({LoadResString(number), kInformation, title, number, shown});
    }
    const int number = kDeleteTemplateQuestion;
    return m_editor.host.Show({LoadResString(number), kYesNo, title, number, shown}) == Answer::Yes;
}

/// The file goes first; what is gone already is no failure.
bool TemplateDeleting::DeleteTemplate()
{
    return m_editor.host.Guarded(__func__, false, [this] {
        const auto current = m_editor.state.currentTemplate;
        TemplateFiles(m_catalogue.Folder()).Delete(current->Filename());
        m_editor.host.Ask(HostLink::Request(u"REMOVECONFIGENTRY", {current->Filename()}));
        m_catalogue.Templates().Remove(current->Name());
        return true;
    });
}

} // namespace schedules
