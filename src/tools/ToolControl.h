#pragma once

#include "framework/IToolUI.h"
#include "tools/HostLink.h"

#include <QWidget>

namespace schedules {

/// What every visual tool of the component shares: its connection with the host, the start-up exchange, and the ways
/// in which a failed procedure is reported. Nothing that fails inside a tool ever reaches the host as an exception.
class ToolControl : public QWidget, public IToolUI, protected HostLink
{
    Q_OBJECT
    Q_INTERFACES(schedules::IToolUI)

public:
    /// Reports an error to the host's framework, and sets the pointer to the default in any case. An error that is
    /// absent or has the number 0 sends nothing. `sControlName` and `sSnapin` are not used. Never throws.
    Q_INVOKABLE void HandleError(const schedules::Error* oErr, const QString& sProcName, const QString& sControlName,
                                 const QString& sSnapin) noexcept;

protected:
    ToolControl(const char* typeName, UserInterface* userInterface);

    /// For those who do a part of the tool's work.
    HostLink& Link() { return *this; }

    /// Keeps router and owner, then obtains the resource module, sets the captions and sends the announcement, a
    /// request with the parameter "Caller". Ends early, without a trace, when no module can be had.
    void StartUp(IMsgRouter* router, const QString& owner, const char* announcement);

    /// Asks the owner for the resource module, if the component has none. False when the start-up ends there: the
    /// host gave none, or (which throws) what it gave is no number.
    virtual bool ObtainResourceModule();
};

} // namespace schedules
