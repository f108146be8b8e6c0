#pragma once

#include "host/tools/Crossing.h"

#include <QAbstractTableModel>
#include <QList>

namespace schedules::host {

/// The latest messages that crossed the router, oldest first, for a table on screen. One that was sent while another
/// one waited for its answer comes behind that one, as it began later.
class MessageModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Field
    {
        Time,
        Route,
        Kind,
        Name,
        Parameters,
        Reply,
        kFieldCount
    };

    using QAbstractTableModel::QAbstractTableModel;

    void Append(const Crossing& crossing);

    const Crossing& At(int row) const { return m_crossings[row]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;

    /// A field's text; the tool tip gives more of long ones.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    void ForgetOldest();

    QList<Crossing> m_crossings;
};

} // namespace schedules::host
