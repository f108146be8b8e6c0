#include "host/tools/HostedEditor.h"

#include "framework/IToolUI.h"
#include "host/tools/CreatedTool.h"
#include "host/tools/HostRouter.h"

#include <QAbstractButton>
#include <QLabel>

namespace schedules::host {

HostedEditor::HostedEditor(IMsgRouter& router, UserInterface* userInterface)
    : m_widget(CreatedTool(QStringLiteral("ctlSchedOptions"), userInterface)),
      m_tool(qobject_cast<IToolUI*>(m_widget.get()))
{
    m_tool->IToolUI_Initialize(&router, kOwner);
}

HostedEditor::~HostedEditor()
{
    m_tool->IToolUI_Deactivate(false);
}

void HostedEditor::Open()
{
    m_tool->IToolUI_Activate();
}

bool HostedEditor::HasUnsavedEdits() const
{
    return m_widget->property("HasUnsavedEdits").toBool();
}

QString HostedEditor::TemplateFile() const
{
    const auto* label = m_widget->findChild<QLabel*>(QStringLiteral("templateFileName"));
    return label ? label->text() : QString();
}

bool HostedEditor::PressApply()
{
    return Press("cmdApply");
}

bool HostedEditor::PressCancel()
{
    return Press("cmdCancel");
}

bool HostedEditor::Press(const char* button)
{
    auto* found = m_widget->findChild<QAbstractButton*>(QLatin1String(button));
    if (!found || !found->isEnabled())
        return false;
    found->click();
    return true;
}

} // namespace schedules::host
