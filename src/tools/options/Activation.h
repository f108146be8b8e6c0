#pragma once

#include "tools/options/EditorContext.h"

namespace schedules {

class GroupList;
class ShownTemplate;
class TemplateCatalogue;
class TemplateSelector;

/// Asks the host for everything and shows it.
class Activation
{
public:
    Activation(const EditorContext& editor, TemplateCatalogue& catalogue, ShownTemplate& shown,
               TemplateSelector& selector, GroupList& groups);

    /// Runs only once, whether it succeeds or not, unless `EditorState::loaded` was cleared.
    void IToolUI_Activate();

private:
    void Load();
    void RefillCatalogue();

    EditorContext m_editor;
    TemplateCatalogue& m_catalogue;
    ShownTemplate& m_shown;
    TemplateSelector& m_selector;
    GroupList& m_groups;
};

} // namespace schedules
