#pragma once

#include <QString>
#include <QtPlugin>

namespace schedules {

class IMsgRouter;

/// The tool interface: how a host drives a visual tool. A tool is also a `QWidget`, which the host places on a form of
/// its own. Every call is made on the user-interface thread, and none of them throws.
class IToolUI
{
public:
    virtual ~IToolUI() = default;

    /// Connects the tool with the host and runs the start-up exchange. `msgRouter` must outlive the tool; with none
    /// the tool works but tells the host nothing. `sOwner` is the recipient of whatever the tool sends.
    virtual void IToolUI_Initialize(IMsgRouter* msgRouter, const QString& sOwner) = 0;

    /// Hands over the document that the next activation shows. Nothing changes on screen before that.
    virtual void IToolUI_XML(const QString& sData) = 0;

    /// Loads the document last handed over and shows it.
    virtual void IToolUI_Activate() = 0;

    /// Tells the tool that it is hidden or about to be closed.
    virtual void IToolUI_Deactivate(bool bCancel) = 0;
};

} // namespace schedules

Q_DECLARE_INTERFACE(schedules::IToolUI, "schedules.IToolUI/1.0")
