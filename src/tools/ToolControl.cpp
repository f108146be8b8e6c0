#include "tools/ToolControl.h"

#include "common/Module1.h"
#include "common/modResource.h"
#include "framework/IMsgRouter.h"
#include "framework/MessageTable.h"

#include <stdexcept>

namespace schedules {

namespace {

constexpr auto kErrorMessage = u"ErrorMessage";

template <class Kind>
Kind Built(QStringView name, std::initializer_list<QVariant> values)
{
    const MessageForm& form = MessageFormOf(name);
    if (form.kind != Kind::kKind)
        throw std::logic_error("A message of another kind: " + name.toString().toStdString());
    return {BuildMessage(form, values)};
}

int ModuleHandle(const QString& reply)
{
    bool isNumber = false;
    const int handle = reply.toInt(&isNumber);
    if (!isNumber)
        throw Error(kTypeMismatchError, QStringLiteral("The host's resource module is not a number: ") + reply);
    return handle;
}

} // namespace

ToolControl::ToolControl(const char* typeName, UserInterface* userInterface)
    : m_typeName(typeName), m_userInterface(userInterface)
{
    setObjectName(TypeName());
}

ToolControl::~ToolControl() = default;

UserInterface& ToolControl::Own(std::unique_ptr<UserInterface> userInterface)
{
    m_ownUserInterface = std::move(userInterface);
    m_userInterface = m_ownUserInterface.get();
    return *m_userInterface;
}

void ToolControl::StartUp(IMsgRouter* router, const QString& owner, const char* announcement)
{
    TellingHost("IToolUI_Initialize", [&] {
        const QPointer<QWidget> alive(this);
        m_router = router;
        m_owner = owner;
        const bool hasModule = ObtainResourceModule();
        RequireAlive(alive);
        if (!hasModule)
            return;
        LoadControls(TypeName(), findChildren<QObject*>(), Ui());
        RequireAlive(alive);
        SendRequestToOwner(Request(QString::fromLatin1(announcement), {QString()}));
        if (alive)
            TraceProcedure("IToolUI_Initialize");
    });
}

bool ToolControl::ObtainResourceModule()
{
    if (ResourceModule() != 0)
        return true;
    const QString reply = SendRequestToOwner(Request(u"GetResourceModule"));
    if (reply.isEmpty())
        return false;
    SetResourceModule(ModuleHandle(reply));
    return true;
}

QString ToolControl::SendRequestToOwner(const RequestMessage& message) noexcept
{
    QString reply;
    TellingHost(__func__, [&] { reply = Send(message, RequestMessage::kKind, m_owner); });
    return reply;
}

QString ToolControl::SendEventToOwner(const EventMessage& message)
{
    if (!m_router)
        throw Error(kUnexpectedError, QStringLiteral("There is no host to tell."));
    return Send(message, EventMessage::kKind, m_owner);
}

RequestMessage ToolControl::Request(QStringView name, std::initializer_list<QVariant> values)
{
    return Built<RequestMessage>(name, values);
}

EventMessage ToolControl::Event(QStringView name, std::initializer_list<QVariant> values)
{
    return Built<EventMessage>(name, values);
}

void ToolControl::HandleError(const Error* oErr, const QString& sProcName, const QString&, const QString&) noexcept
{
    const PointerReset reset(*this);
    if (!oErr || oErr->Number() == 0)
        return;
    try {
        Send(Event(kErrorMessage, {oErr->Description(), oErr->Source(), oErr->Number(), sProcName}), MessageKind::Event,
             QLatin1String(MessageFormOf(kErrorMessage).recipient));
    } catch (...) {
        IgnoringErrors([&] { Trace(sProcName + QStringLiteral(": not reported: ") + oErr->Description()); });
    }
}

void ToolControl::TellHost(const char* procedure) noexcept
{
    IgnoringErrors([&] {
        const Error error = CurrentError();
        HandleError(&error, Qualified(procedure), {}, {});
    });
}

void ToolControl::TellUser(const char* procedure) noexcept
{
    IgnoringErrors([&] { ShowError(Ui(), CurrentError(), {}, kExclamation, Qualified(procedure)); });
}

QString ToolControl::Send(const Message& message, MessageKind kind, const QString& recipient) const
{
    if (!m_router)
        return {};
    return m_router->Send({TypeName(), recipient, kind, message.Text()});
}

} // namespace schedules
