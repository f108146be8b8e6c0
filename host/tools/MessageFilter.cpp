#include "host/tools/MessageFilter.h"

namespace schedules::host {

void MessageFilter::ShowKind(Kind kind)
{
    m_kind = kind;
    invalidateFilter();
}

bool MessageFilter::filterAcceptsRow(int sourceRow, const QModelIndex&) const
{
    const Crossing& crossing = static_cast<const MessageModel*>(sourceModel())->At(sourceRow);
    switch (m_kind) {
    case Requests:
        return crossing.envelope.kind == MessageKind::Request;
    case Events:
        return crossing.envelope.kind == MessageKind::Event;
    case Errors:
        return !FailureOf(crossing).isEmpty();
    default:
        return true;
    }
}

} // namespace schedules::host
