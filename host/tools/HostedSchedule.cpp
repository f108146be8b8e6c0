#include "host/tools/HostedSchedule.h"

#include "framework/IToolUI.h"
#include "host/base/HostError.h"
#include "host/tools/CreatedTool.h"
#include "host/tools/HostRouter.h"
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

HostedSchedule::HostedSchedule(IMsgRouter& router, UserInterface* userInterface, const ViewOptions& options)
    : m_widget(CreatedTool(QStringLiteral("ctlSchedule"), userInterface)),
      m_tool(qobject_cast<IToolUI*>(m_widget.get()))
{
    m_widget->setProperty("ViewType", static_cast<int>(options.view));
    m_widget->setProperty("SelectAllTags", options.selectAll);
    m_widget->setProperty("ShowPrintButtonOnUnitSelector", true);
    m_tool->IToolUI_Initialize(&router, kOwner);
}

HostedSchedule::~HostedSchedule()
{
    m_tool->IToolUI_Deactivate(false);
}

void HostedSchedule::Load(const QString& xml)
{
    m_tool->IToolUI_XML(xml);
    m_tool->IToolUI_Activate();
}

void HostedSchedule::GiveText(const QString& xml)
{
    m_tool->IToolUI_XML(xml);
}

void HostedSchedule::SetPdsg(const QString& pdsg)
{
    m_widget->setProperty("BuilderPdsg", pdsg);
}

void HostedSchedule::Trigger(const char* button)
{
    auto* action = m_widget->findChild<QAction*>(QLatin1String(button));
    if (!action)
        throw HostError(QStringLiteral("this view has no button %1").arg(QLatin1String(button)));
    action->trigger();
}

void HostedSchedule::Transpose()
{
    Trigger("btnTranspose");
}

void HostedSchedule::Save()
{
    Trigger("btnSaveTag");
}

void HostedSchedule::Print()
{
    Trigger("btnPrint");
}

QString HostedSchedule::WriteFile(const QString& format, const QString& fileName)
{
    return FailureOf(*m_widget, "WriteFile", Q_ARG(QString, format), Q_ARG(QString, fileName));
}

QString HostedSchedule::WritePdf(const QString& fileName, bool smart, QPageSize::PageSizeId paper)
{
    return FailureOf(*m_widget, "WritePdf", Q_ARG(QString, fileName), Q_ARG(bool, smart), Q_ARG(int, int(paper)));
}

void HostedSchedule::CommitEdit()
{
    m_tool->IToolUI_Deactivate(false);
}

bool HostedSchedule::IsEditing() const
{
    const auto* box = m_widget->findChild<QWidget*>(QStringLiteral("txtEditCell"));
    return box && box->isVisible();
}

bool HostedSchedule::Dirty() const
{
    return m_widget->property("TagDataDirty").toBool();
}

bool HostedSchedule::PressCancel()
{
    auto* cancel = m_widget->findChild<QAbstractButton*>(QStringLiteral("cmdCancel"));
    if (!cancel || !cancel->isEnabled())
        return false;
    cancel->click();
    return true;
}

Sheet& HostedSchedule::Grid() const
{
    auto* sheet = m_widget->property("sheet").value<Sheet*>();
    if (!sheet)
        throw HostError(QStringLiteral("the schedule view has no grid"));
    return *sheet;
}

int HostedSchedule::Orientation() const
{
    return m_widget->property("SchedOrientation").toInt();
}

bool HostedSchedule::Transposed() const
{
    return m_widget->property("TransposeData").toBool();
}

} // namespace schedules::host
