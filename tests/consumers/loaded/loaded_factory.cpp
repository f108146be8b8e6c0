// The factory for a host that is not linked with the component: it loads the library that SCHEDULES_LIBRARY names.

#include "framework/IComponentFactory.h"

#include <QPluginLoader>

schedules::IComponentFactory& schedules::ComponentFactory()
{
    QPluginLoader component(QStringLiteral(SCHEDULES_LIBRARY));
    auto* factory = qobject_cast<IComponentFactory*>(component.instance());
    if (!factory)
        qFatal("%s", qPrintable(component.errorString()));
    return *factory;
}
