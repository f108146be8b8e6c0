#pragma once

#include "tools/options/EditorContext.h"
#include "tools/options/saving/WrittenTemplate.h"

namespace schedules {

class CatalogueReload;
class TemplateCatalogue;

/// Writes a template into its file and the host's list.
class TemplateSaving
{
public:
    TemplateSaving(const EditorContext& editor, const TemplateCatalogue& catalogue, CatalogueReload& reload);

    /// Writes the template as it is (`asItIs`), or with the given texts on its root, in place of a file of that name,
    /// puts it into the host's list, and shows it. Returns a `SaveResult`; throws what its caller is to tell.
    int SaveTemplateEx(const WrittenTemplate& written, bool asItIs);

private:
    int Save(const WrittenTemplate& written, bool asItIs);
    void RequireComplete(const WrittenTemplate& written) const;
    void WriteFile(const WrittenTemplate& written, bool asItIs) const;
    void UpdateHostList(const WrittenTemplate& written, const QString& pdsg) const;
    void UpdateScheduleServiceConfigFile(const QString& configXml) const;

    EditorContext m_editor;
    const TemplateCatalogue& m_catalogue;
    CatalogueReload& m_reload;
};

} // namespace schedules
