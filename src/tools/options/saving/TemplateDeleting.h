#pragma once

#include "tools/options/EditorContext.h"

namespace schedules {

class CatalogueReload;
class TemplateCatalogue;

/// Deletes the current template with its file, after asking.
class TemplateDeleting
{
public:
    TemplateDeleting(const EditorContext& editor, const TemplateCatalogue& catalogue, CatalogueReload& reload);

    void cmdDelete_Click();

    /// Without asking. False when the file could not be deleted; then nothing has been sent.
    bool DeleteTemplate();

private:
    bool IsWanted() const;

    EditorContext m_editor;
    const TemplateCatalogue& m_catalogue;
    CatalogueReload& m_reload;
};

} // namespace schedules
