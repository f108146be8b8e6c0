#pragma once

#include "framework/Envelope.h"

namespace schedules {

/// The host's message router. A tool tells and asks its host everything through this one operation.
class IMsgRouter
{
public:
    virtual ~IMsgRouter() = default;

    /// Delivers the envelope to its recipient and returns the reply before it returns itself; empty when there is none.
    /// An exception is taken as a failed send and is reported by the tool.
    virtual QString Send(const Envelope& envelope) = 0;
};

} // namespace schedules
