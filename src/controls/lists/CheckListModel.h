#pragma once

#include <QAbstractListModel>

#include <optional>
#include <vector>

namespace schedules {

/// What a check list shows in one row.
struct CheckEntry
{
    QString text;
    int id = 0;
    std::optional<bool> checked; ///< none: it cannot be checked
};

/// Where a row is when the entry in row `from` has gone to row `to`.
int RowAfterMove(int row, int from, int to);

/// The entries of a check list, in their order. Rows count from 0; all methods expect rows that are there.
///
/// Moving an entry changes what the rows between hold and neither inserts nor removes one, so that it costs what the
/// distance costs, however long the list is.
class CheckListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void Add(CheckEntry entry);
    void Clear();
    void SetText(int row, const QString& text);
    void SetChecked(int row, std::optional<bool> checked);
    void Move(int from, int to);

    const CheckEntry& At(int row) const { return m_entries[static_cast<std::size_t>(row)]; }
    bool Has(int row) const { return row >= 0 && row < Count(); }
    int Count() const { return static_cast<int>(m_entries.size()); }

    /// The first row with that ID; -1 when there is none.
    int RowOf(int id) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    void TellChange(int first, int last, const QList<int>& roles);

    std::vector<CheckEntry> m_entries;
};

} // namespace schedules
