// The catalogue of templates, and which of them is the current one.

#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "controls/lists/CheckList.h"
#include "model/Inside.h"
#include "tools/options/Guarded.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace schedules {

namespace {

const QString kDisplayName = QStringLiteral("DisplayName");

/// What a user knows a template by: its display name, and the category's behind a hyphen.
QString EntryOf(const CTemplate& listed)
{
    const auto displayName = listed.Properties().Item(kDisplayName);
    const QString text = displayName ? TextOf(displayName->Value()) : listed.Name();
    const auto category = listed.Category();
    const QString of = category ? category->DisplayName() : QString();
    return of.isEmpty() ? text : text + QStringLiteral(" - ") + of;
}

} // namespace

/// Also a host that deactivates the editor in an answer ends what was under way.
CTemplates& ctlSchedOptions::Catalogue() const
{
    return m_templates ? *m_templates : throw ToolGone();
}

void ctlSchedOptions::SelectByFile(const QString& fileName)
{
    if (fileName.isEmpty())
        return;
    const QString wanted = fileName.toUpper();
    const auto templates = Catalogue().NewEnum();
    const auto found =
        std::ranges::find_if(templates, [&](const auto& each) { return each->Filename().toUpper() == wanted; });
    if (found != templates.end())
        LoadNewTemplate((*found)->ID());
}

void ctlSchedOptions::LoadTemplatesList()
{
    Guarded(__func__, [this] {
        m_form.cboTemplates->clear();
        for (const auto& listed : Catalogue().NewEnum())
            m_form.cboTemplates->addItem(EntryOf(*listed), listed->ID());
        m_form.cboTemplates->setCurrentIndex(-1);
    });
}

int ctlSchedOptions::FindTemplateListIndex(int templateId)
{
    return Guarded(__func__, -1, [&] { return m_form.cboTemplates->findData(templateId); });
}

void ctlSchedOptions::SelectTemplateEntry(int templateId)
{
    m_form.cboTemplates->setCurrentIndex(FindTemplateListIndex(templateId));
    cboTemplates_Click(); // as if the user had done it, also when it was selected already
}

void ctlSchedOptions::cboTemplates_Click()
{
    Guarded(__func__, [this] {
        if (!m_state.loaded || m_form.cboTemplates->count() == 0 || m_form.cboTemplates->currentIndex() < 0)
            return;
        LoadNewTemplate(m_form.cboTemplates->currentData().toInt());
        LoadGroupsList();
        SetCurrentGroup(-1);
        SetTemplateDirty(false);
    });
}

bool ctlSchedOptions::LoadNewTemplate(int templateId)
{
    return Guarded(__func__, false, [&] {
        m_form.lstGroups->Clear();
        ClearItems();
        if (!SetCurrentTemplate(templateId))
            return false;
        LoadGroupsList();
        SetTemplateDirty(false);
        return true;
    });
}

bool ctlSchedOptions::SetCurrentTemplate(int templateId)
{
    return Guarded(__func__, false, [&] {
        if (templateId <= 0)
            return false;
        m_state.currentGroup.reset();
        m_state.currentTemplate = Catalogue().Template(templateId);
        if (!m_state.currentTemplate) {
            ShowTemplateCaption();
            return false;
        }
        m_form.cmdDelete->setEnabled(!m_state.currentTemplate->Protected());
        m_state.currentTemplate->SetDirty(false, Inside());
        ShowTemplateCaption();
        return true;
    });
}

void ctlSchedOptions::SetTemplateDirty(bool dirty)
{
    Guarded(__func__, [&] {
        if (!m_state.currentTemplate)
            return;
        m_state.currentTemplate->SetDirty(dirty, Inside());
        m_form.cmdApply->setEnabled(dirty);
        if (dirty)
            m_edited.insert(m_state.currentTemplate->ID());
        ShowTemplateCaption();
    });
}

/// A star marks a template that differs from its file, also when its edits were left behind by choosing another one.
void ctlSchedOptions::ShowTemplateCaption()
{
    const auto& current = m_state.currentTemplate;
    m_form.fileName->setText(current ? current->Filename() : QString());
    if (!current)
        return m_form.fraTemplate->setTitle({});
    const QString mark = m_edited.contains(current->ID()) ? QStringLiteral(" *") : QString();
    QString caption = LoadResString(kTemplateFramePrefix) + QStringLiteral("  ") + current->Name() + mark;
    m_form.fraTemplate->setTitle(caption.replace(u'&', QStringLiteral("&&")));
}

void ctlSchedOptions::EnableControls()
{
    const bool hasTemplate = m_templates && m_state.currentTemplate;
    m_form.fraTemplate->setEnabled(hasTemplate);
    m_form.cboTemplates->setEnabled(m_templates && m_form.cboTemplates->count() > 0);
    m_form.cmdSaveAs->setEnabled(hasTemplate);
    m_form.cmdDelete->setEnabled(hasTemplate && !m_state.currentTemplate->Protected());
    m_form.cmdApply->setEnabled(hasTemplate && m_state.IsDirty());
    EnableMoving();
}

} // namespace schedules
