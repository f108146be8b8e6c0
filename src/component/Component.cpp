#include "component/Component.h"

#include "common/modResource.h"
#include "fileutil/CFileUtility.h"
#include "tools/options/ctlSchedOptions.h"
#include "tools/schedule/ctlSchedule.h"

#include <array>
#include <atomic>

namespace schedules {

namespace {

const auto kFileUtility = QLatin1String("CFileUtility");

/// The objects that were created here and still live.
std::atomic<int> livingObjects = 0;

class CountedFileUtility : public CFileUtility
{
public:
    CountedFileUtility() { ++livingObjects; }
    ~CountedFileUtility() override { --livingObjects; }
    Q_DISABLE_COPY_MOVE(CountedFileUtility)
};

QObject* Counted(QObject* tool)
{
    ++livingObjects;
    QObject::connect(tool, &QObject::destroyed, [] { --livingObjects; });
    return tool;
}

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
    return QString::fromLatin1(SCHEDULES_VERSION); // a literal's characters would go with the component
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
            return Counted(tool.create(userInterface));
    }
    return nullptr;
}

QStringList Component::UtilityNames() const
{
    return {kFileUtility};
}

std::unique_ptr<CFileUtility> Component::CreateUtility(const QString& name)
{
    return name == kFileUtility ? std::make_unique<CountedFileUtility>() : nullptr;
}

bool Component::MayUnload() const
{
    return livingObjects == 0 && !HasOpenResourceModules();
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
