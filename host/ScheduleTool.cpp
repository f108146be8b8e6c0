#include "host/ScheduleTool.h"

#include "framework/IToolUI.h"
#include "host/CreatedTool.h"
#include "host/HostError.h"
#include "host/HostRouter.h"
#include "spread/Sheet.h"

#include <QAbstractButton>
#include <QAction>

namespace schedules::host {

namespace {

/// Calls a method of the view that gives what went wrong.
template <class... Arguments>
QString FailureOf(QWidget& view, const char* method, Arguments... arguments)
{
    QString failure;
    if (!QMetaObject::invokeMethod(&view, method, Q_RETURN_ARG(QString, failure), arguments...))
        throw HostError(QStringLiteral("the view has no %1").arg(QLatin1String(method)));
    return failure;
}

} // namespace

ScheduleTool::ScheduleTool(IMsgRouter& router, UserInterface* userInterface, const ViewOptions& options)
    : m_widget(CreatedTool(QStringLiteral("ctlSchedule"), userInterface)),
      m_tool(qobject_cast<IToolUI*>(m_widget.get()))
{
    m_widget->setProperty("ViewType", static_cast<int>(options.view));
    m_widget->setProperty("SelectAllTags", options.selectAll);
    m_widget->setProperty("ShowPrintButtonOnUnitSelector", true);
    m_tool->IToolUI_Initialize(&router, kOwner);
}

ScheduleTool::~ScheduleTool()
{
    m_tool->IToolUI_Deactivate(false);
}

void ScheduleTool::Load(const QString& xml)
{
    m_tool->IToolUI_XML(xml);
    m_tool->IToolUI_Activate();
}

void ScheduleTool::GiveText(const QString& xml)
{
    m_tool->IToolUI_XML(xml);
}

void ScheduleTool::SetPdsg(const QString& pdsg)
{
    m_widget->setProperty("BuilderPdsg", pdsg);
}

void ScheduleTool::Trigger(const char* button)
{
    auto* action = m_widget->findChild<QAction*>(QLatin1String(button));
    if (!action)
        throw HostError(QStringLiteral("this view has no button %1").arg(QLatin1String(button)));
    action->trigger();
}

void ScheduleTool::Transpose()
{
    Trigger("btnTranspose");
}

void ScheduleTool::Save()
{
    Trigger("btnSaveTag");
}

void ScheduleTool::Print()
{
    Trigger("btnPrint");
}

QString ScheduleTool::WriteFile(const QString& format, const QString& fileName)
{
    return FailureOf(*m_widget, "WriteFile", Q_ARG(QString, format), Q_ARG(QString, fileName));
}

QString ScheduleTool::WritePdf(const QString& fileName, bool smart, QPageSize::PageSizeId paper)
{
    return FailureOf(*m_widget, "WritePdf", Q_ARG(QString, fileName), Q_ARG(bool, smart), Q_ARG(int, int(paper)));
}

void ScheduleTool::CommitEdit()
{
    m_tool->IToolUI_Deactivate(false);
}

bool ScheduleTool::IsEditing() const
{
    const auto* box = m_widget->findChild<QWidget*>(QStringLiteral("txtEditCell"));
    return box && box->isVisible();
}

bool ScheduleTool::Dirty() const
{
    return m_widget->property("TagDataDirty").toBool();
}

bool ScheduleTool::PressCancel()
{
    auto* cancel = m_widget->findChild<QAbstractButton*>(QStringLiteral("cmdCancel"));
    if (!cancel || !cancel->isEnabled())
        return false;
    cancel->click();
    return true;
}

Sheet& ScheduleTool::Grid() const
{
    auto* sheet = m_widget->property("sheet").value<Sheet*>();
    if (!sheet)
        throw HostError(QStringLiteral("the schedule view has no grid"));
    return *sheet;
}

int ScheduleTool::Orientation() const
{
    return m_widget->property("SchedOrientation").toInt();
}

bool ScheduleTool::Transposed() const
{
    return m_widget->property("TransposeData").toBool();
}

} // namespace schedules::host
