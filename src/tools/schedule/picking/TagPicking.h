#pragma once

#include "spread/Sheet.h"
#include "tools/schedule/picking/TagTable.h"

#include <QObject>

namespace schedules {

class CellEditing;
class EditSession;
class ShownTable;
struct ViewSettings;

/// Check boxes under the mouse and the keyboard: those of a selector pick tags, those of a schedule are edits.
class TagPicking : public QObject
{
    Q_OBJECT

public:
    /// All must outlive the picking.
    TagPicking(ShownTable& table, CellEditing& editing, EditSession& edits, const ViewSettings& settings);

    enum class Ticking
    {
        All,
        None,
        Invert
    };

    /// Ticks the visible check boxes of a selector.
    void TickVisible(Ticking ticking);

    /// Whether the user may tick a cell, and remove its tick.
    bool Toggles(Cell cell) const;
    void SetTicked(Cell cell, bool ticked);

    /// Ticks the tag of that identifier in a selector. False when there is none.
    bool TickTag(const QString& identifier);

    /// None in a view that is no selector.
    SelectedTags GetSelectedTags() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Toggle(Cell cell);
    bool PressSpace(bool isHeldDown);
    void StartSweep(Cell cell);
    void Sweep(Cell cell);
    Tags TagsRun() const;

    ShownTable& m_table;
    CellEditing& m_editing;
    EditSession& m_edits;
    const ViewSettings& m_settings;
    bool m_sweepTicks = false; ///< what the mouse makes of the check boxes that it sweeps over
};

} // namespace schedules
