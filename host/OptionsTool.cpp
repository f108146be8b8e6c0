#include "host/OptionsTool.h"

#include "framework/IToolUI.h"
#include "host/CreatedTool.h"
#include "host/HostRouter.h"

#include <QAbstractButton>
#include <QLabel>

namespace schedules::host {

OptionsTool::OptionsTool(IMsgRouter& router, UserInterface* userInterface)
    : m_widget(CreatedTool(QStringLiteral("ctlSchedOptions"), userInterface)),
      m_tool(qobject_cast<IToolUI*>(m_widget.get()))
{
    m_tool->IToolUI_Initialize(&router, kOwner);
}

OptionsTool::~OptionsTool()
{
    m_tool->IToolUI_Deactivate(false);
}

void OptionsTool::Open()
{
    m_tool->IToolUI_Activate();
}

bool OptionsTool::HasUnsavedEdits() const
{
    return m_widget->property("HasUnsavedEdits").toBool();
}

QString OptionsTool::TemplateFile() const
{
    const auto* label = m_widget->findChild<QLabel*>(QStringLiteral("templateFileName"));
    return label ? label->text() : QString();
}

bool OptionsTool::PressApply()
{
    return Press("cmdApply");
}

bool OptionsTool::PressCancel()
{
    return Press("cmdCancel");
}

bool OptionsTool::Press(const char* button)
{
    auto* found = m_widget->findChild<QAbstractButton*>(QLatin1String(button));
    if (!found || !found->isEnabled())
        return false;
    found->click();
    return true;
}

} // namespace schedules::host
