#include "tools/ToolControl.h"

#include "common/modResource.h"

namespace schedules {

namespace {

int ModuleHandle(const QString& reply)
{
    bool isNumber = false;
    const int handle = reply.toInt(&isNumber);
    if (!isNumber)
        throw Error(kTypeMismatchError, QStringLiteral("The host's resource module is not a number: ") + reply);
    return handle;
}

} // namespace

ToolControl::ToolControl(const char* typeName, UserInterface* userInterface) : HostLink(typeName, userInterface)
{
    setObjectName(TypeName());
}

void ToolControl::HandleError(const Error* oErr, const QString& sProcName, const QString&, const QString&) noexcept
{
    HostLink::HandleError(oErr, sProcName);
}

void ToolControl::StartUp(IMsgRouter* router, const QString& owner, const char* announcement)
{
    TellingHost("IToolUI_Initialize", [&] {
        Connect(router, owner);
        if (!Life().WhileAlive([this] { return ObtainResourceModule(); }))
            return;
        Life().WhileAlive([this] { LoadControls(TypeName(), findChildren<QObject*>(), Ui()); });
        Life().WhileAlive([&] { SendRequestToOwner(Request(QString::fromLatin1(announcement), {QString()})); });
        TraceProcedure("IToolUI_Initialize");
    });
}

bool ToolControl::ObtainResourceModule()
{
    if (ResourceModule() != 0)
        return true;
    const QString reply = Life().WhileAlive([this] { return SendRequestToOwner(Request(u"GetResourceModule")); });
    if (reply.isEmpty())
        return false;
    SetResourceModule(ModuleHandle(reply));
    return true;
}

} // namespace schedules
