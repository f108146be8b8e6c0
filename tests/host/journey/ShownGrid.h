#pragma once

#include <QString>

class QAbstractScrollArea;
class QAccessibleInterface;
class QWidget;

namespace schedules::host::testing {

/// The grid of a view as a person, or a program that reads it out, finds it on screen: visible columns and rows,
/// counted from 0 with their headers.
class ShownGrid
{
public:
    explicit ShownGrid(const QWidget& view);

    int ColumnCount() const;
    int RowCount() const;
    QString Text(int column, int row) const;

    /// Whether a check box is ticked.
    bool Ticked(int column, int row) const;

    /// By the text in a header. Throws `HostError` when there is none.
    int ColumnOf(const QString& header) const;
    int RowOf(const QString& header) const;

    /// The column with a text in a row. Throws likewise.
    int ColumnWith(const QString& text, int row) const;

    /// What stands where a column and a row meet, by their headers.
    QString Text(const QString& column, const QString& row) const { return Text(ColumnOf(column), RowOf(row)); }

    /// Scrolls to a cell and clicks on it.
    void Click(int column, int row) const;

    /// Writes into a cell. Throws when no edit opens in it.
    void Write(int column, int row, const QString& text) const;

    /// All texts, a line for each row.
    std::string Drawn() const;

private:
    QAccessibleInterface& CellAt(int column, int row) const;
    void Reveal(QAccessibleInterface& cell) const;

    QAbstractScrollArea& m_grid;
    QWidget& m_surface;
};

} // namespace schedules::host::testing
