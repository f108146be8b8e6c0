#pragma once

#include "tools/options/EditorContext.h"

#include <QSet>

namespace schedules {

class TemplateCatalogue;

/// The template that is edited, and what the editor's frame tells of it.
class ShownTemplate
{
public:
    ShownTemplate(const EditorContext& editor, const TemplateCatalogue& catalogue);

    /// Makes a template of the catalogue the current one, without unsaved edits. False when it has none of that number.
    bool SetCurrentTemplate(int templateId);

    void SetTemplateDirty(bool dirty);

    /// Shows the name of the current template and of its file, or that there is none.
    void ShowTemplateCaption();

    /// All templates are as in their files.
    void ForgetEdits() { m_edited.clear(); }

private:
    EditorContext m_editor;
    const TemplateCatalogue& m_catalogue;
    QSet<int> m_edited; ///< numbers of templates that differ from their files
};

} // namespace schedules
