#pragma once

#include "tools/options/EditorContext.h"
#include "tools/options/saving/WrittenTemplate.h"

#include <optional>

namespace schedules {

class TemplateCatalogue;
class TemplateSaving;
class frmSaveAs;

/// Saves the current template under a name that the user is asked for.
class SavingAs
{
public:
    /// The dialog stands over `parent`.
    SavingAs(const EditorContext& editor, const TemplateCatalogue& catalogue, TemplateSaving& saving, QWidget& parent);

    /// Returns a `SaveResult`, and tells what was written, where that is wanted.
    int SaveTemplateAs(WrittenTemplate* saved = nullptr);

private:
    std::optional<WrittenTemplate> AskForName();
    void FillDialog(frmSaveAs& dialog) const;
    QString ObjectionTo(const WrittenTemplate& chosen) const;

    EditorContext m_editor;
    const TemplateCatalogue& m_catalogue;
    TemplateSaving& m_saving;
    QWidget& m_parent;
};

} // namespace schedules
