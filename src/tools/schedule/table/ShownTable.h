#pragma once

#include "grid/CSchedule.h"
#include "spread/Sheet.h"

#include <QObject>

#include <functional>
#include <optional>

namespace schedules {

class SpreadView;

/// The table that the grid shows: its engine and its sheet, which way it lies, and what of it does not scroll.
///
/// Every load starts from a clean sheet; the engine by itself resets none that holds no data.
class ShownTable : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive the table.
    ShownTable(UserInterface& userInterface, SpreadView& grid);
    ~ShownTable() override;

    CSchedule& Engine() { return m_engine; }
    const CSchedule& Engine() const { return m_engine; }
    SpreadView& Grid() { return m_grid; }

    /// What the grid shows; null after `CleanUp` until something is loaded.
    Sheet* Shown() const { return m_shown; }

    /// Whether what was loaded last, with success, is a table of tags.
    bool ShowsTags() const { return m_showsTags; }

    /// A place of the table that is in the grid now.
    bool Contains(Cell cell) const;

    /// The text of the header in the table's first line, and of the one that the cell's own line begins with.
    struct Headers
    {
        QString tag;
        QString item;
    };
    Headers HeadersOf(Sheet::TablePlace place) const;

    /// The first data cell with these headers.
    std::optional<Cell> Find(const Headers& headers) const;

    /// Makes that cell the active one and scrolls to it. False when there is none, or it is hidden.
    bool Show(const Headers& headers);

    /// Upright, with the frozen counts that the host has set.
    void StartNormalLayout(int orientation);

    /// Turns the table with the next load: rows become columns, frozen rows frozen columns.
    void Turn();

    /// Load and lay out a table. False when it cannot be loaded, which the engine has told the user. They throw
    /// `ViewGone` when the view has been deleted meanwhile.
    bool LoadSchedule(const QString& xml);
    bool LoadTags(const QString& xml, bool selectAll);

    /// Tells that what was loaded is ready to be looked at.
    void TellLoaded() { Q_EMIT Loaded(); }

    /// Empties the grid and lets go of it.
    void CleanUp();

    // What the host sets acts at once, and is gone back to with each new layout.
    int RowsFrozen() const { return m_rowsFrozen; }
    void SetRowsFrozen(int count);
    int ColsFrozen() const { return m_colsFrozen; }
    void SetColsFrozen(int count);

Q_SIGNALS:
    void FrozenChanged();
    void OrientationChanged();
    void SheetChanged();

    /// A table has been loaded, or emptied.
    void Loaded();

private:
    bool Load(const std::function<bool()>& fill);
    void SetOrientation(int orientation, bool transposed);
    void Freeze(int rows, int columns);
    void ShowSheet(Sheet* sheet);

    CSchedule m_engine;
    SpreadView& m_grid;
    Sheet* m_sheet;
    Sheet* m_shown;
    bool m_showsTags = false;
    int m_rowsFrozen = 0;
    int m_colsFrozen = 0;
    int m_rowsFrozenByHost = 0;
    int m_colsFrozenByHost = 0;
};

} // namespace schedules
