#include "controls/lists/CheckListModel.h"

#include <algorithm>

namespace schedules {

int RowAfterMove(int row, int from, int to)
{
    if (row == from)
        return to;
    if (from < row && row <= to)
        return row - 1;
    return to <= row && row < from ? row + 1 : row;
}

void CheckListModel::Add(CheckEntry entry)
{
    beginInsertRows({}, Count(), Count());
    m_entries.push_back(std::move(entry));
    endInsertRows();
}

void CheckListModel::Clear()
{
    beginResetModel();
    m_entries.clear();
    endResetModel();
}

void CheckListModel::SetText(int row, const QString& text)
{
    m_entries[static_cast<std::size_t>(row)].text = text;
    TellChange(row, row, {Qt::DisplayRole});
}

void CheckListModel::SetChecked(int row, std::optional<bool> checked)
{
    m_entries[static_cast<std::size_t>(row)].checked = checked;
    TellChange(row, row, {Qt::CheckStateRole});
}

void CheckListModel::Move(int from, int to)
{
    const auto source = m_entries.begin() + from;
    const auto target = m_entries.begin() + to;
    if (from < to)
        std::rotate(source, source + 1, target + 1);
    else
        std::rotate(target, source, source + 1);
    TellChange(std::min(from, to), std::max(from, to), {});
}

void CheckListModel::TellChange(int first, int last, const QList<int>& roles)
{
    Q_EMIT dataChanged(index(first), index(last), roles);
}

int CheckListModel::RowOf(int id) const
{
    const auto found = std::ranges::find(m_entries, id, &CheckEntry::id);
    return found == m_entries.end() ? -1 : static_cast<int>(found - m_entries.begin());
}

int CheckListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : Count();
}

QVariant CheckListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const CheckEntry& entry = At(index.row());
    if (role == Qt::DisplayRole)
        return entry.text;
    if (role == Qt::CheckStateRole)
        return entry.checked.value_or(false) ? Qt::Checked : Qt::Unchecked;
    return {};
}

Qt::ItemFlags CheckListModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags always = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return At(index.row()).checked ? always | Qt::ItemIsUserCheckable : always;
}

} // namespace schedules
