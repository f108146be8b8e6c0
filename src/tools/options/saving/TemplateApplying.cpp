#include "tools/options/saving/TemplateApplying.h"

#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "tools/options/saveas/SavingAs.h"
#include "tools/options/saving/TemplateSaving.h"

#include <QComboBox>

namespace schedules {

TemplateApplying::TemplateApplying(const EditorContext& editor, TemplateSaving& saving, SavingAs& savingAs)
    : m_editor(editor), m_saving(saving), m_savingAs(savingAs)
{
}

int TemplateApplying::ApplyChanges()
{
    return m_editor.host.Guarded(__func__, static_cast<int>(kStopped), [this] {
        const auto current = m_editor.state.currentTemplate;
        const QComboBox& list = *m_editor.form.cboTemplates;
        if (list.count() == 0 || list.currentIndex() < 0 || !current)
            return static_cast<int>(kNothingToApply);
        WrittenTemplate written = Written(current, m_editor.host);
        if (written.xml.isEmpty())
            return static_cast<int>(kStopped); // why has been told
        if (current->Dirty()) {
            if (const int result = Save(written); result != kApplied)
                return result;
        }
        m_editor.host.Ask(HostLink::Request(u"SETCURRENTSCHEDTEMPLATE", {written.xml, written.fileName}));
        return static_cast<int>(kApplied);
    });
}

int TemplateApplying::Save(WrittenTemplate& written)
{
    if (m_editor.state.currentTemplate->Protected())
        return m_savingAs.SaveTemplateAs(&written);
    return MayOverwrite() ? m_saving.SaveTemplateEx(written, true) : static_cast<int>(kStopped);
}

/// Asks before something is lost that the user has not seen.
bool TemplateApplying::MayOverwrite() const
{
    const auto current = m_editor.state.currentTemplate;
    const char* question = nullptr;
    if (current->ReadInPart())
        question =
            "The file of this template could only be read in part. Saving it drops what could not be read. Save?";
    else if (current->FileDiffers())
        question = "The file of this template was changed after it had been read. Saving it drops that change. Save?";
    if (!question)
        return true;
    return m_editor.host.Show({ComponentText(question), kYesNo | kQuestion, LoadResString(kSaveTemplateTitle), 0,
                               current->Filename()}) == Answer::Yes;
}

} // namespace schedules
