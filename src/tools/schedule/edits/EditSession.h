#pragma once

#include "framework/IScheduleView.h"
#include "spread/Sheet.h"
#include "tools/schedule/edits/HeldDocument.h"

#include <QObject>

#include <functional>
#include <optional>
#include <set>
#include <vector>

namespace schedules {

class ShownTable;

/// What has been edited and not saved: the one that knows. The document, the marks of the grid, `TagDataDirty` and the
/// Save tool follow.
///
/// Text that the host hands over waits for the next activation; until then the document is the one that the grid shows.
/// There is one exception, for hosts that hand over fresh text after a save: text of the same table, which has the same
/// headers at the same places, takes the document's place as soon as the document is needed, unless there was an
/// unsaved edit when it came.
class EditSession : public QObject
{
    Q_OBJECT

public:
    /// The table must outlive the session.
    explicit EditSession(ShownTable& table);

    /// Takes a text that waits for the next activation.
    void HandOver(const QString& xml);

    /// Makes the waiting text the document; its edits are gone then. False when no text waits.
    bool TakeWaiting();

    /// Makes a text the document at once; edits and waiting text are gone.
    void Hold(const QString& xml);

    /// The text that the grid shows, with its edits, to be loaded. Places count in it from here on.
    QString Settled();

    /// Gives the grid the marks of what is not saved, after a load.
    void ShowMarks();

    /// Whether the document lets the user change the cell. One that stood inside a cell that has been edited is gone.
    bool MayEdit(Cell cell);

    /// Whether an edit that began with that text may go on. If not, the cell shows what the document says.
    bool MayGoOn(Cell cell, const QString& began);

    /// Gives a cell a text: in the grid and in the document. A cell without an element changes in the grid alone.
    void Change(Cell cell, const QString& text);

    /// Hands the document to `send`. Its edits count as saved from the start of the call, so that what is edited in it
    /// is not part of them, and as unsaved again when it throws.
    void Save(const std::function<void(const QString& xml)>& send);

    bool TagDataDirty() const { return m_dirty; }
    void SetTagDataDirty(bool dirty);

    /// See `IScheduleView::ChangedCells`.
    QList<ChangedCell> ChangedCells() const;

Q_SIGNALS:
    void TagDataDirtyChanged();
    void ValueEdited(const QString& tag, const QString& item, const QString& former, const QString& now);

private:
    struct Taken
    {
        int document; ///< `HeldDocument::Number`
        bool dirty;
        HeldDocument::Formers formers;
    };

    /// Text that the host has handed over and that no activation has shown.
    struct Waiting
    {
        QString xml;
        bool mayFollow = false; ///< may take the document's place if it is the same table
    };

    bool HasUnsaved() const;
    void FollowHost();
    Taken TakeUnsaved();
    void PutBack(const Taken& taken);
    void SetMark(Sheet::TablePlace place, bool edited);

    ShownTable& m_table;
    HeldDocument m_held;
    std::optional<Waiting> m_waiting;
    std::set<Sheet::TablePlace> m_onlyShown; ///< edited cells without an element
    bool m_dirty = false;
    std::optional<CellStore> m_fresh; ///< the cells of a document that has taken the place of the one that was loaded
};

} // namespace schedules
