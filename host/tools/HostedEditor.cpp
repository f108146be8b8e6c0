#include "host/tools/HostedEditor.h"

#include "framework/ITemplateEditor.h"
#include "framework/IToolUI.h"
#include "host/base/HostError.h"
#include "host/tools/CreatedTool.h"
#include "host/tools/HostRouter.h"

namespace schedules::host {

namespace {

/// As it is, or with the star of the user's own; empty when it is not listed.
QString ListedName(const QStringList& listed, const QString& name)
{
    if (listed.contains(name))
        return name;
    const QString own = u'*' + name;
    return listed.contains(own) ? own : QString();
}

} // namespace

HostedEditor::HostedEditor(IMsgRouter& router, UserInterface* userInterface)
    : m_widget(CreatedTool(QStringLiteral("ctlSchedOptions"), userInterface)),
      m_tool(InterfaceOf<IToolUI>(*m_widget)),
      m_editor(InterfaceOf<ITemplateEditor>(*m_widget))
{
    m_tool.IToolUI_Initialize(&router, kOwner);
}

HostedEditor::~HostedEditor()
{
    m_tool.IToolUI_Deactivate(false);
}

void HostedEditor::Open()
{
    m_tool.IToolUI_Activate();
}

bool HostedEditor::HasUnsavedEdits() const
{
    return m_editor.HasUnsavedEdits();
}

QString HostedEditor::TemplateFile() const
{
    return m_editor.TemplateFile();
}

bool HostedEditor::Apply()
{
    return m_editor.Apply();
}

bool HostedEditor::Cancel()
{
    return m_editor.Cancel();
}

void HostedEditor::ChooseTemplate(const QString& fileName)
{
    const bool isShown = TemplateFile().compare(fileName, Qt::CaseInsensitive) == 0;
    if (!isShown && !m_editor.ChooseTemplate(fileName))
        throw HostError(QStringLiteral("there is no template %1 in the list").arg(fileName));
}

void HostedEditor::SelectGroup(const QString& name)
{
    if (!m_editor.SelectGroup(name))
        throw HostError(QStringLiteral("there is no group '%1' in %2").arg(name, TemplateFile()));
}

void HostedEditor::SelectItem(const QString& name)
{
    const QString listed = ListedName(m_editor.ItemNames(), name);
    if (listed.isEmpty())
        throw HostError(QStringLiteral("there is no data item '%1' in %2").arg(name, TemplateFile()));
    if (!m_editor.SelectItem(listed))
        throw HostError(QStringLiteral("the group of the data item '%1' is not shown").arg(name));
}

} // namespace schedules::host
