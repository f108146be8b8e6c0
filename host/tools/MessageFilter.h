#pragma once

#include "host/tools/MessageModel.h"

#include <QSortFilterProxyModel>

namespace schedules::host {

/// The messages of one kind, out of all that a model has.
class MessageFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    enum Kind
    {
        All,
        Requests,
        Events,
        Errors ///< error events, and deliveries that have failed
    };

    using QSortFilterProxyModel::QSortFilterProxyModel;

    void ShowKind(Kind kind);

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private:
    Kind m_kind = All;
};

} // namespace schedules::host
