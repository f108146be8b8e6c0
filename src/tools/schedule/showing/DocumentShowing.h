#pragma once

#include "spread/Sheet.h"
#include "tools/schedule/ViewLink.h"

#include <functional>

namespace schedules {

class CellEditing;
class EditSession;
class RowSorting;
class ShownTable;
struct ViewSettings;

/// Brings the document into the grid: in its normal layout, or turned.
class DocumentShowing
{
public:
    /// All must outlive the showing.
    DocumentShowing(const ViewLink& link, const ViewSettings& settings, ShownTable& table, EditSession& edits,
                    CellEditing& editing, RowSorting& sorting);

    /// Shows the text last handed over, or the same document again, with its edits. False when it cannot be loaded,
    /// which the user has been told then.
    bool Activate();

    /// Shows a text at once, as a schedule or as a table of tags, whatever the view's type.
    bool LoadScheduleData(const QString& xml);
    bool LoadSelectionData(const QString& xml);

    void Transpose();

private:
    enum class Kind
    {
        Schedule,
        Tags
    };

    Kind KindOfView() const;
    bool LoadText(const QString& xml, Kind kind, int messageNumber);
    bool ShowHeld(Kind kind);
    bool ShowHeldOfView();
    void StartAtTop();
    void GoTo(Sheet::TablePlace place);
    void ShowBox(int textNumber);

    const ViewLink& m_link;
    const ViewSettings& m_settings;
    ShownTable& m_table;
    EditSession& m_edits;
    CellEditing& m_editing;
    RowSorting& m_sorting;
};

} // namespace schedules
