#pragma once

#include "common/Error.h"
#include "framework/Message.h"
#include "tools/ToolLife.h"

#include <QStringView>
#include <QVariant>

#include <initializer_list>
#include <memory>

namespace schedules {

class IMsgRouter;

/// The error with that source, unless it has one of its own.
Error WithSource(const Error& error, const QString& source);

/// A tool's connection with its host and its user: what it asks and tells them, and how it reports a failed procedure.
/// It is as old as the tool.
class HostLink
{
public:
    Q_DISABLE_COPY_MOVE(HostLink)

    ToolLife& Life() { return m_life; }
    UserInterface& Ui() const { return *m_userInterface; }
    QString TypeName() const { return QLatin1String(m_typeName); }

    /// "Schedules.ctlSchedule.IToolUI_Activate" for "IToolUI_Activate".
    QString Qualified(const char* procedure) const { return SourceName(m_typeName).In(procedure); }
    void TraceProcedure(const char* procedure) const noexcept;

    /// Without a router nothing is sent, and every reply is empty.
    void Connect(IMsgRouter* router, const QString& owner);
    void Disconnect() { m_router = nullptr; }
    bool IsConnected() const { return m_router != nullptr; }

    /// Messages of the component's table, with the values of their parameters in order.
    static RequestMessage Request(QStringView name, std::initializer_list<QVariant> values = {});
    static EventMessage Event(QStringView name, std::initializer_list<QVariant> values = {});

    /// Sends a request and returns the reply. A failed send is reported with `HandleError` and gives an empty reply.
    QString SendRequestToOwner(const RequestMessage& message) noexcept;

    /// Sends an event and returns the reply. A failed send throws.
    QString SendEventToOwner(const EventMessage& message);

    /// Sends a request, or shows a box, and returns the answer. Throws `ToolGone` when the tool was deleted or
    /// deactivated meanwhile.
    QString Ask(const RequestMessage& message);
    Answer Show(const MessageBox& box);

    /// See `ToolControl`.
    void HandleError(const Error* error, const QString& procedure) noexcept;

    /// Runs a procedure whose failure is reported to the host, and returns what it returns, else `otherwise`. Nothing
    /// but `ToolGone` leaves it.
    template <class Result, std::invocable Body>
    Result Guarded(const char* procedure, Result otherwise, Body&& body)
    {
        const ToolLife::Watch watch(m_life);
        try {
            return std::invoke(body);
        } catch (const ToolGone&) {
            throw;
        } catch (...) {
            if (watch.IsAlive())
                TellHost(procedure);
        }
        return watch.IsAlive() ? otherwise : throw ToolGone();
    }

    template <std::invocable Body>
    void Guarded(const char* procedure, Body&& body)
    {
        Guarded(procedure, false, [&] { return std::invoke(body), true; });
    }

    /// Runs a procedure whose failure is reported to the host, and lets nothing out.
    template <std::invocable Body>
    void TellingHost(const char* procedure, Body&& body) noexcept
    {
        UntilGone([&] { Guarded(procedure, body); });
    }

    /// Runs a procedure whose failure is shown to the user, and lets nothing out.
    template <std::invocable Body>
    void TellingUser(const char* procedure, Body&& body) noexcept
    {
        const ToolLife::Watch watch(m_life);
        try {
            std::invoke(body);
        } catch (const ToolGone&) {
            return;
        } catch (...) {
            if (watch.IsAlive())
                TellUser(procedure);
        }
    }

protected:
    /// `typeName` names the tool in messages, captions and qualified procedure names. A tool that is given no user
    /// interface calls `Own` before anything else.
    HostLink(const char* typeName, UserInterface* userInterface);
    ~HostLink();

    UserInterface& Own(std::unique_ptr<UserInterface> userInterface);

private:
    friend class PointerReset;

    void TellHost(const char* procedure) noexcept;
    void TellUser(const char* procedure) noexcept;
    QString Send(const Message& message, MessageKind kind, const QString& recipient) const;

    const char* m_typeName;
    std::unique_ptr<UserInterface> m_ownUserInterface;
    UserInterface* m_userInterface;
    IMsgRouter* m_router = nullptr;
    QString m_owner;
    ToolLife m_life;
};

/// Sets the pointer to the default when it goes, also when the host has deleted the tool by then: an interface that was
/// given to the tool outlives it, and one of its own sets the pointer back in its end.
class PointerReset
{
public:
    explicit PointerReset(HostLink& link);
    ~PointerReset();
    Q_DISABLE_COPY_MOVE(PointerReset)

private:
    ToolLife::Watch m_watch;
    UserInterface* m_userInterface;
    bool m_isGiven;
};

} // namespace schedules
