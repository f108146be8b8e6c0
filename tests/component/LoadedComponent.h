#pragma once

#include "framework/IComponentFactory.h"
#include "framework/IMsgRouter.h"
#include "framework/IToolUI.h"
#include "support/ScriptedUserInterface.h"

#include <QPluginLoader>
#include <QStringList>

#include <gtest/gtest.h>
#include <memory>

namespace schedules {

inline const QString kLibrary = QStringLiteral(SCHEDULES_BIN_DIR "/libSchedules.so");

inline const QString kSchedule =
    QStringLiteral("<TABLE><TR><TH/><TH>Flow</TH></TR><TR><TH>P-1</TH><TD>12</TD></TR></TABLE>");

/// A host that knows nothing but the contract.
class Host : public IMsgRouter
{
public:
    QString Send(const Envelope& envelope) override
    {
        bodies += envelope.body.toString();
        return envelope.body.toString().contains(QStringLiteral("GetResourceModule")) ? QStringLiteral("0") : QString();
    }

    QStringList bodies;
};

/// The component as a host without its import library gets it: loaded at run time, and unloaded at the end.
class ComponentTest : public ::testing::Test
{
protected:
    void SetUp() override { Load(); }

    void TearDown() override
    {
        if (loader.isLoaded()) {
            EXPECT_TRUE(factory->MayUnload());
            EXPECT_TRUE(loader.unload());
        }
    }

    void Load()
    {
        loader.setLoadHints({}); // by custom what is loaded stays in the process
        ASSERT_TRUE(loader.load()) << loader.errorString().toStdString();
        factory = qobject_cast<IComponentFactory*>(loader.instance());
        ASSERT_TRUE(factory);
    }

    std::unique_ptr<QObject> Created(const QString& name)
    {
        return std::unique_ptr<QObject>(factory->CreateTool(name, &user));
    }

    void Start(QObject& tool)
    {
        tool.setProperty("ViewType", 1);
        auto* toolUi = qobject_cast<IToolUI*>(&tool);
        toolUi->IToolUI_Initialize(&host, QStringLiteral("Host"));
        toolUi->IToolUI_XML(kSchedule);
        toolUi->IToolUI_Activate();
    }

    QPluginLoader loader{kLibrary};
    IComponentFactory* factory = nullptr;
    testing::ScriptedUserInterface user;
    Host host;
};

} // namespace schedules
