#pragma once

#include "tools/options/EditorContext.h"

namespace schedules {

class SavingAs;
class TemplateSaving;
struct WrittenTemplate;

/// Saves the current template's edits and makes the schedule use it.
class TemplateApplying
{
public:
    TemplateApplying(const EditorContext& editor, TemplateSaving& saving, SavingAs& savingAs);

    /// Returns a `SaveResult`. A protected template is saved under a name that the user is asked for.
    int ApplyChanges();

private:
    int Save(WrittenTemplate& written);
    bool MayOverwrite() const;

    EditorContext m_editor;
    TemplateSaving& m_saving;
    SavingAs& m_savingAs;
};

} // namespace schedules
