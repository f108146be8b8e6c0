#pragma once

#include "framework/IComponentFactory.h"

#include <QObject>

namespace schedules {

/// The factory that the component exports. It keeps nothing itself, so that all of them are alike; what they have
/// created is counted for the whole process.
class Component : public QObject, public IComponentFactory
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "schedules.IComponentFactory/1.0")
    Q_INTERFACES(schedules::IComponentFactory)

public:
    QString Version() const override;
    QStringList ToolNames() const override;
    QObject* CreateTool(const QString& name, UserInterface* userInterface) override;
    QStringList UtilityNames() const override;
    std::unique_ptr<CFileUtility> CreateUtility(const QString& name) override;
    bool MayUnload() const override;
    int OpenResourceModule(const QString& fileName) override;
    void CloseResourceModule(int handle) override;
    void UseResourceModule(int handle) override;
};

} // namespace schedules
