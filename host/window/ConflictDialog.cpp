#include "host/window/ConflictDialog.h"

#include "host/project/Names.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace schedules::host {

namespace {

enum Column
{
    kTag,
    kItem,
    kStored,
    kOwn,
    kChoice,
    kColumnCount
};

QString ItemName(const QList<DataItem>& items, const QString& location)
{
    const auto item =
        std::ranges::find_if(items, [&](const DataItem& candidate) { return SameName(candidate.location, location); });
    if (item == items.end())
        return location;
    return item->unit.isEmpty() ? item->name : QStringLiteral("%1 (%2)").arg(item->name, item->unit);
}

QTableWidgetItem* Cell(const QString& text)
{
    auto* cell = new QTableWidgetItem(text);
    cell->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    return cell;
}

} // namespace

ConflictDialog::ConflictDialog(const QList<Conflict>& conflicts, const QList<DataItem>& items, QWidget* parent)
    : QDialog(parent), m_conflicts(conflicts), m_table(new QTableWidget(int(conflicts.size()), kColumnCount, this))
{
    setWindowTitle(tr("Values changed by someone else"));
    auto* text = new QLabel(tr("These values were changed since they were shown. Everything else has been saved. "
                               "Cancel leaves yours unsaved in the schedule."),
                            this);
    text->setWordWrap(true);
    Fill(items);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    auto* stored = buttons->addButton(tr("All theirs"), QDialogButtonBox::ActionRole);
    auto* own = buttons->addButton(tr("All mine"), QDialogButtonBox::ActionRole);
    connect(stored, &QPushButton::clicked, this, [this] { Choose(false); });
    connect(own, &QPushButton::clicked, this, [this] { Choose(true); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(text);
    column->addWidget(m_table);
    column->addWidget(buttons);
    resize(80 * fontMetrics().averageCharWidth(), 18 * fontMetrics().height());
}

std::optional<QList<ValueEdit>> ConflictDialog::Ask(const QList<Conflict>& conflicts, const QList<DataItem>& items,
                                                    QWidget* parent)
{
    ConflictDialog dialog(conflicts, items, parent);
    return dialog.exec() == Accepted ? std::optional(dialog.Insisted()) : std::nullopt;
}

void ConflictDialog::Fill(const QList<DataItem>& items)
{
    m_table->setObjectName(QStringLiteral("lstConflicts"));
    m_table->setHorizontalHeaderLabels({tr("Tag"), tr("Data item"), tr("Theirs"), tr("Mine"), tr("Keep")});
    m_table->verticalHeader()->hide();
    for (int row = 0; row < m_conflicts.size(); ++row) {
        const Conflict& conflict = m_conflicts[row];
        m_table->setItem(row, kTag, Cell(conflict.edit.tag));
        m_table->setItem(row, kItem, Cell(ItemName(items, conflict.edit.item)));
        m_table->setItem(row, kStored, Cell(conflict.stored.text));
        m_table->setItem(row, kOwn, Cell(conflict.edit.text));
        auto* choice = new QComboBox(m_table);
        choice->addItems({tr("Theirs"), tr("Mine")});
        m_table->setCellWidget(row, kChoice, choice);
    }
    m_table->resizeColumnsToContents();
    for (const int column : {kStored, kOwn})
        m_table->horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
}

void ConflictDialog::Choose(bool own)
{
    for (int row = 0; row < m_table->rowCount(); ++row)
        qobject_cast<QComboBox*>(m_table->cellWidget(row, kChoice))->setCurrentIndex(own ? 1 : 0);
}

QList<ValueEdit> ConflictDialog::Insisted() const
{
    QList<ValueEdit> edits;
    for (int row = 0; row < m_conflicts.size(); ++row) {
        if (qobject_cast<QComboBox*>(m_table->cellWidget(row, kChoice))->currentIndex() == 0)
            continue;
        ValueEdit edit = m_conflicts[row].edit;
        edit.version = m_conflicts[row].stored.version;
        edits.append(edit);
    }
    return edits;
}

} // namespace schedules::host
