#include "tools/HostLink.h"

#include "common/Module1.h"
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

} // namespace

Error WithSource(const Error& error, const QString& source)
{
    return {error.Number(), error.Description(), error.Source().isEmpty() ? source : error.Source(),
            error.SystemCode()};
}

HostLink::HostLink(const char* typeName, UserInterface* userInterface)
    : m_typeName(typeName), m_userInterface(userInterface)
{
}

HostLink::~HostLink() = default;

UserInterface& HostLink::Own(std::unique_ptr<UserInterface> userInterface)
{
    m_ownUserInterface = std::move(userInterface);
    m_userInterface = m_ownUserInterface.get();
    return *m_userInterface;
}

void HostLink::TraceProcedure(const char* procedure) const noexcept
{
    IgnoringErrors([&] { Trace(Qualified(procedure)); });
}

void HostLink::Connect(IMsgRouter* router, const QString& owner)
{
    m_router = router;
    m_owner = owner;
}

RequestMessage HostLink::Request(QStringView name, std::initializer_list<QVariant> values)
{
    return Built<RequestMessage>(name, values);
}

EventMessage HostLink::Event(QStringView name, std::initializer_list<QVariant> values)
{
    return Built<EventMessage>(name, values);
}

QString HostLink::SendRequestToOwner(const RequestMessage& message) noexcept
{
    QString reply;
    TellingHost(__func__, [&] { reply = Send(message, RequestMessage::kKind, m_owner); });
    return reply;
}

QString HostLink::SendEventToOwner(const EventMessage& message)
{
    if (!m_router)
        throw Error(kUnexpectedError, QStringLiteral("There is no host to tell."));
    return Send(message, EventMessage::kKind, m_owner);
}

QString HostLink::Ask(const RequestMessage& message)
{
    return m_life.WhileActive([&] { return SendRequestToOwner(message); });
}

Answer HostLink::Show(const MessageBox& box)
{
    return m_life.WhileActive([&] { return Ui().Show(box); });
}

void HostLink::HandleError(const Error* error, const QString& procedure) noexcept
{
    const PointerReset reset(*this);
    if (!error || error->Number() == 0)
        return;
    try {
        Send(Event(kErrorMessage, {error->Description(), error->Source(), error->Number(), procedure}),
             MessageKind::Event, QLatin1String(MessageFormOf(kErrorMessage).recipient));
    } catch (...) {
        IgnoringErrors([&] { Trace(procedure + QStringLiteral(": not reported: ") + error->Description()); });
    }
}

void HostLink::TellHost(const char* procedure) noexcept
{
    IgnoringErrors([&] {
        const QString name = Qualified(procedure);
        const Error error = WithSource(CurrentError(), name);
        HandleError(&error, name);
    });
}

void HostLink::TellUser(const char* procedure) noexcept
{
    IgnoringErrors([&] { ShowError(Ui(), CurrentError(), {}, kExclamation, Qualified(procedure)); });
}

QString HostLink::Send(const Message& message, MessageKind kind, const QString& recipient) const
{
    if (!m_router)
        return {};
    return m_router->Send({TypeName(), recipient, kind, message.Text()});
}

PointerReset::PointerReset(HostLink& link)
    : m_watch(link.Life()), m_userInterface(&link.Ui()), m_isGiven(!link.m_ownUserInterface)
{
}

PointerReset::~PointerReset()
{
    if (m_isGiven || m_watch.IsAlive())
        IgnoringErrors([this] { m_userInterface->SetPointer(Pointer::Default); });
}

} // namespace schedules
