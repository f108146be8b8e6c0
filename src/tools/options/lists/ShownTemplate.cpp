#include "tools/options/lists/ShownTemplate.h"

#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "model/Inside.h"
#include "tools/options/TemplateCatalogue.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace schedules {

ShownTemplate::ShownTemplate(const EditorContext& editor, const TemplateCatalogue& catalogue)
    : m_editor(editor), m_catalogue(catalogue)
{
}

bool ShownTemplate::SetCurrentTemplate(int templateId)
{
    return m_editor.host.Guarded(__func__, false, [&] {
        if (templateId <= 0)
            return false;
        m_editor.state.currentGroup.reset();
        auto& current = m_editor.state.currentTemplate;
        current = m_catalogue.Templates().Template(templateId);
        if (current) {
            m_editor.form.cmdDelete->setEnabled(!current->Protected());
            current->SetDirty(false, Inside());
        }
        ShowTemplateCaption();
        return current != nullptr;
    });
}

void ShownTemplate::SetTemplateDirty(bool dirty)
{
    m_editor.host.Guarded(__func__, [&] {
        const auto& current = m_editor.state.currentTemplate;
        if (!current)
            return;
        current->SetDirty(dirty, Inside());
        m_editor.form.cmdApply->setEnabled(dirty);
        if (dirty)
            m_edited.insert(current->ID());
        ShowTemplateCaption();
    });
}

/// A star marks a template that differs from its file, also when its edits were left behind by choosing another one.
void ShownTemplate::ShowTemplateCaption()
{
    const auto& current = m_editor.state.currentTemplate;
    m_editor.form.fileName->setText(current ? current->Filename() : QString());
    if (!current)
        return m_editor.form.fraTemplate->setTitle({});
    const QString mark = m_edited.contains(current->ID()) ? QStringLiteral(" *") : QString();
    QString caption = LoadResString(kTemplateFramePrefix) + QStringLiteral("  ") + current->Name() + mark;
    m_editor.form.fraTemplate->setTitle(caption.replace(u'&', QStringLiteral("&&")));
}

} // namespace schedules
