#pragma once

#include "common/Error.h"
#include "spread/Sheet.h"

namespace schedules {

/// Keeps a sheet from being repainted for as long as it lives; whatever happens, repainting is on again afterwards.
class RepaintingOff
{
public:
    explicit RepaintingOff(Sheet& sheet) : m_sheet(sheet) { m_sheet.SetRepainting(false); }
    ~RepaintingOff()
    {
        IgnoringErrors([this] { m_sheet.SetRepainting(true); });
    }
    Q_DISABLE_COPY_MOVE(RepaintingOff)

private:
    Sheet& m_sheet;
};

} // namespace schedules
