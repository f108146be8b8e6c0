#include "tools/options/saving/TemplateSaving.h"

#include "common/Blanks.h"
#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "tools/options/TemplateCatalogue.h"
#include "tools/options/saving/CatalogueReload.h"
#include "tools/options/saving/HostTemplateList.h"
#include "tools/options/saving/TemplateFiles.h"

namespace schedules {

TemplateSaving::TemplateSaving(const EditorContext& editor, const TemplateCatalogue& catalogue, CatalogueReload& reload)
    : m_editor(editor), m_catalogue(catalogue), m_reload(reload)
{
}

int TemplateSaving::SaveTemplateEx(const WrittenTemplate& written, bool asItIs)
{
    const QString source = m_editor.host.Qualified(__func__);
    try {
        return Save(written, asItIs);
    } catch (const Error& error) {
        throw WithSource(error, source);
    }
}

int TemplateSaving::Save(const WrittenTemplate& written, bool asItIs)
{
    RequireComplete(written);
    const auto current = m_editor.state.currentTemplate;
    const bool isListed = HostTemplateList(m_catalogue.GetAllTemplates()).Has(written.fileName);
    if (isListed && current->Protected()) {
        const int number = kTemplateProtected;
        m_editor.host.Show({LoadResString(number), kInformation, LoadResString(kSaveTemplateTitle), number});
        return kStopped;
    }
    WriteFile(written, asItIs);
    UpdateHostList(written, current->Pdsg());
    m_reload.ReloadAndSelect(written.fileName);
    return kApplied;
}

void TemplateSaving::RequireComplete(const WrittenTemplate& written) const
{
    if (!m_editor.state.currentTemplate)
        throw SaveError(kNoCurrentTemplate);
    for (const QString& text : {written.name, written.displayName, written.category, written.fileName}) {
        if (TrimmedOfBlanks(text).isEmpty())
            throw SaveError(kTemplateTextMissing);
    }
    if (!TemplateFiles(m_catalogue.Folder()).IsKnown())
        throw SaveError(kTemplateFolderUnknown);
}

void TemplateSaving::WriteFile(const WrittenTemplate& written, bool asItIs) const
{
    const TemplateFiles files(m_catalogue.Folder());
    if (!asItIs)
        files.RequireDeletable(written.fileName);
    files.Replace(written.fileName, FileText(written, asItIs).toUtf8());
}

void TemplateSaving::UpdateHostList(const WrittenTemplate& written, const QString& pdsg) const
{
    HostTemplateList list(m_catalogue.GetAllTemplates());
    list.Put(written.fileName, written.name, pdsg);
    UpdateScheduleServiceConfigFile(list.ToText());
}

void TemplateSaving::UpdateScheduleServiceConfigFile(const QString& configXml) const
{
    m_editor.host.Ask(HostLink::Request(u"UPDATESCHEDCONFIG", {configXml}));
}

} // namespace schedules
