#pragma once

#include "common/Error.h"
#include "spread/Sheet.h"

#include <QPointer>

namespace schedules {

/// Keeps a sheet from being repainted for as long as it lives; whatever happens, repainting is on again afterwards. The
/// sheet may be gone by then.
class RepaintingOff
{
public:
    explicit RepaintingOff(Sheet& sheet) : m_sheet(&sheet) { sheet.SetRepainting(false); }
    ~RepaintingOff()
    {
        if (m_sheet)
            IgnoringErrors([this] { m_sheet->SetRepainting(true); });
    }
    Q_DISABLE_COPY_MOVE(RepaintingOff)

private:
    QPointer<Sheet> m_sheet;
};

} // namespace schedules
