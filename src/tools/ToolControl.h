#pragma once

#include "common/Error.h"
#include "framework/IToolUI.h"
#include "framework/Message.h"

#include <QPointer>
#include <QStringView>
#include <QVariant>
#include <QWidget>

#include <initializer_list>
#include <memory>

namespace schedules {

class IMsgRouter;

/// What every visual tool of the component shares: its connection with the host, the start-up exchange, and the ways
/// in which a failed procedure is reported. Nothing that fails inside a tool ever reaches the host as an exception.
class ToolControl : public QWidget, public IToolUI
{
    Q_OBJECT
    Q_INTERFACES(schedules::IToolUI)

public:
    /// Reports an error to the host's framework, and sets the pointer to the default in any case. An error that is
    /// absent or has the number 0 sends nothing. `sControlName` and `sSnapin` are not used. Never throws.
    Q_INVOKABLE void HandleError(const schedules::Error* oErr, const QString& sProcName, const QString& sControlName,
                                 const QString& sSnapin) noexcept;

protected:
    /// `typeName` names the tool in messages, captions and qualified procedure names. A tool that is given no user
    /// interface calls `Own` before anything else.
    ToolControl(const char* typeName, UserInterface* userInterface);
    ~ToolControl() override;

    UserInterface& Own(std::unique_ptr<UserInterface> userInterface);
    UserInterface& Ui() const { return *m_userInterface; }

    /// Sets the pointer to the default when it goes, also when the host has deleted the tool by then: an interface that
    /// was given to the tool outlives it, and one of its own sets the pointer back in its end.
    class PointerReset
    {
    public:
        explicit PointerReset(ToolControl& tool)
            : m_tool(&tool), m_userInterface(tool.m_userInterface), m_isGiven(!tool.m_ownUserInterface)
        {
        }
        ~PointerReset()
        {
            if (m_isGiven || m_tool)
                IgnoringErrors([this] { m_userInterface->SetPointer(Pointer::Default); });
        }
        Q_DISABLE_COPY_MOVE(PointerReset)

    private:
        QPointer<QWidget> m_tool;
        UserInterface* m_userInterface;
        bool m_isGiven;
    };

    /// Ends whatever was under way in a tool that the host has taken away meanwhile.
    struct ToolGone
    {
    };
    static void RequireAlive(const QPointer<QWidget>& alive)
    {
        if (!alive)
            throw ToolGone();
    }

    QString TypeName() const { return QLatin1String(m_typeName); }

    /// "Schedules.ctlSchedule.IToolUI_Activate" for "IToolUI_Activate".
    QString Qualified(const char* procedure) const { return SourceName(m_typeName).In(procedure); }
    void TraceProcedure(const char* procedure) const noexcept
    {
        IgnoringErrors([&] { Trace(Qualified(procedure)); });
    }

    /// Keeps router and owner, then obtains the resource module, sets the captions and sends the announcement, a
    /// request with the parameter "Caller". Ends early, without a trace, when no module can be had.
    void StartUp(IMsgRouter* router, const QString& owner, const char* announcement);
    void Disconnect() { m_router = nullptr; }
    bool IsConnected() const { return m_router != nullptr; }

    /// Asks the owner for the resource module, if the component has none. False when the start-up ends there: the
    /// host gave none, or (which throws) what it gave is no number.
    virtual bool ObtainResourceModule();

    /// Sends a request and returns the reply. A failed send is told through `HandleError` and gives an empty reply.
    QString SendRequestToOwner(const RequestMessage& message) noexcept;

    /// Sends an event and returns the reply. A failed send throws.
    QString SendEventToOwner(const EventMessage& message);

    /// Messages of the component's table, with the values of their parameters in order.
    static RequestMessage Request(QStringView name, std::initializer_list<QVariant> values = {});
    static EventMessage Event(QStringView name, std::initializer_list<QVariant> values = {});

    /// Runs the body of a procedure whose failure is told to the host.
    template <std::invocable Body>
    void TellingHost(const char* procedure, Body&& body) noexcept
    {
        const QPointer<QWidget> alive(this); // a host may delete the tool in its answer
        try {
            std::invoke(body);
        } catch (...) {
            if (alive)
                TellHost(procedure);
        }
    }

    /// Runs the body of a procedure whose failure is shown to the user.
    template <std::invocable Body>
    void TellingUser(const char* procedure, Body&& body) noexcept
    {
        const QPointer<QWidget> alive(this);
        try {
            std::invoke(body);
        } catch (...) {
            if (alive)
                TellUser(procedure);
        }
    }

private:
    void TellHost(const char* procedure) noexcept;
    void TellUser(const char* procedure) noexcept;
    QString Send(const Message& message, MessageKind kind, const QString& recipient) const;

    const char* m_typeName;
    std::unique_ptr<UserInterface> m_ownUserInterface;
    UserInterface* m_userInterface;
    IMsgRouter* m_router = nullptr;
    QString m_owner;
};

} // namespace schedules
