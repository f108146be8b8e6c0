#include "component/Component.h"

#include "common/modResource.h"
#include "tools/options/ctlSchedOptions.h"
#include "tools/schedule/ctlSchedule.h"

#include <array>

namespace schedules {

namespace {

struct Tool
{
    const char* name;
    QObject* (*create)(UserInterface* userInterface);
};

template <class Control>
QObject* Created(UserInterface* userInterface)
{
    return new Control(userInterface);
}

constexpr std::array kTools{Tool{"ctlSchedule", Created<ctlSchedule>},
                            Tool{"ctlSchedOptions", Created<ctlSchedOptions>}};

} // namespace

QString Component::Version() const
{
    return QStringLiteral(SCHEDULES_VERSION);
}

QStringList Component::ToolNames() const
{
    QStringList names;
    for (const auto& tool : kTools)
        names += QLatin1String(tool.name);
    return names;
}

QObject* Component::CreateTool(const QString& name, UserInterface* userInterface)
{
    for (const auto& tool : kTools) {
        if (name == QLatin1String(tool.name))
            return tool.create(userInterface);
    }
    return nullptr;
}

int Component::OpenResourceModule(const QString& fileName)
{
    return schedules::OpenResourceModule(fileName);
}

void Component::CloseResourceModule(int handle)
{
    schedules::CloseResourceModule(handle);
}

void Component::UseResourceModule(int handle)
{
    SetResourceModule(handle);
}

IComponentFactory& ComponentFactory()
{
    static Component component;
    return component;
}

} // namespace schedules
