#include "host/import/TableErrors.h"

#include "host/base/HostError.h"

#include <QStringList>

#include <algorithm>

namespace schedules::host {

namespace {

constexpr qsizetype kMostLines = 20;

} // namespace

void TableErrors::ThrowIfAny(const QString& fileName) const
{
    if (m_errors.isEmpty())
        return;
    QList<Error> ordered = m_errors;
    std::ranges::stable_sort(ordered, {}, &Error::place);
    QStringList lines;
    for (const auto& [place, what] : ordered.first(std::min(ordered.size(), kMostLines)))
        lines << QStringLiteral("%1:%2:%3: ").arg(fileName).arg(place.line).arg(place.column) + what;
    if (ordered.size() > kMostLines)
        lines << QStringLiteral("and %1 more").arg(ordered.size() - kMostLines);
    throw HostError(lines.join(u'\n'));
}

} // namespace schedules::host
