#include "host/tools/CreatedTool.h"

#include "framework/IComponentFactory.h"
#include "framework/IToolUI.h"
#include "host/base/HostError.h"

namespace schedules::host {

std::unique_ptr<QWidget> CreatedTool(const QString& name, UserInterface* userInterface)
{
    std::unique_ptr<QObject> tool(ComponentFactory().CreateTool(name, userInterface));
    auto* widget = qobject_cast<QWidget*>(tool.get());
    if (!widget || !qobject_cast<IToolUI*>(widget))
        throw HostError(QStringLiteral("the component has no tool %1").arg(name));
    tool.release();
    return std::unique_ptr<QWidget>(widget);
}

} // namespace schedules::host
