#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtPlugin>

#include <memory>

namespace schedules {

class CFileUtility;
class UserInterface;

/// The way into the component: linked, through `ComponentFactory()`, or loaded at run time with `QPluginLoader`. The
/// interface's name ends in its version: what another version of the component exports is not taken for this one.
class IComponentFactory
{
public:
    virtual ~IComponentFactory() = default;

    virtual QString Version() const = 0;

    /// The type names that `CreateTool` knows.
    virtual QStringList ToolNames() const = 0;

    /// A new tool, which is a `QWidget` and an `IToolUI` (use `qobject_cast`); null for an unknown name. The caller
    /// owns it. Message boxes, file dialogs and the like go through `userInterface`, which must outlive the tool;
    /// with none the desktop's are used.
    virtual QObject* CreateTool(const QString& name, UserInterface* userInterface = nullptr) = 0;

    /// The type names that `CreateUtility` knows.
    virtual QStringList UtilityNames() const = 0;

    /// A new object of a type that no user sees: the search for files, "CFileUtility"; null for any other name.
    virtual std::unique_ptr<CFileUtility> CreateUtility(const QString& name) = 0;

    /// Whether a host that has loaded the component may unload it: true when each tool and utility that was created
    /// is gone and no resource module is open. Not to be asked while one of them is being destroyed.
    virtual bool MayUnload() const = 0;

    /// Opens a table of localised texts (a compiled message catalogue, `.qm`). Returns its handle, a positive number,
    /// which a tool receives as the reply to "GetResourceModule"; 0 when the file is no such table.
    virtual int OpenResourceModule(const QString& fileName) = 0;

    /// Closes a module. Texts asked from it afterwards are missing.
    virtual void CloseResourceModule(int handle) = 0;

    /// Makes a module the one in use for all tools created from now on; 0 for none, so that the next tool asks again.
    virtual void UseResourceModule(int handle) = 0;
};

/// The factory of the component that the program is linked with.
IComponentFactory& ComponentFactory();

} // namespace schedules

Q_DECLARE_INTERFACE(schedules::IComponentFactory, "schedules.IComponentFactory/1.0")
