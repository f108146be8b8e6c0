#pragma once

#include "host/project/ProjectTypes.h"

#include <QDialog>

#include <optional>

class QTableWidget;

namespace schedules::host {

/// Lists edits that were not stored because another value was stored since, with both values, and lets the user choose
/// for each of them. At first each keeps the stored value, so that nothing is overwritten by a mere Enter. A user who
/// cancels has not decided.
class ConflictDialog : public QDialog
{
    Q_OBJECT

public:
    ConflictDialog(const QList<Conflict>& conflicts, const QList<DataItem>& items, QWidget* parent = nullptr);

    /// What the user wants, as `Insisted`; empty if they cancelled the dialog.
    static std::optional<QList<ValueEdit>> Ask(const QList<Conflict>& conflicts, const QList<DataItem>& items,
                                               QWidget* parent);

    /// The edits that are to be stored all the same, as edits of what is stored now. None when the dialog was
    /// cancelled.
    QList<ValueEdit> Insisted() const;

private:
    void Fill(const QList<DataItem>& items);
    void Choose(bool own);

    QList<Conflict> m_conflicts;
    QTableWidget* m_table;
};

} // namespace schedules::host
