#include "controls/paper/SheetPrinterWatch.h"

#include "common/Error.h"
#include "spread/Sheet.h"

#include <utility>

namespace schedules {

SheetPrinterWatch::SheetPrinterWatch(const Sheet& sheet, std::function<void()> changed) : m_tell(std::move(changed))
{
    const auto note = [this] { Note(); };
    QObject::connect(&sheet, &Sheet::Changed, &m_listener, note);
    QObject::connect(&sheet, &Sheet::CellChanged, &m_listener, note);
    QObject::connect(&sheet, &Sheet::FrozenChanged, &m_listener, note);
    QObject::connect(&sheet, &QObject::destroyed, &m_listener, note);
}

void SheetPrinterWatch::Note()
{
    m_changed = true;
    if (m_tell)
        m_tell();
}

void SheetPrinterWatch::RequireUnchanged() const
{
    if (m_changed)
        throw Error(kUnexpectedError, QStringLiteral("The sheet has changed while it was being printed."));
}

} // namespace schedules
