#pragma once

#include "grid/CellLocator.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <optional>
#include <set>

namespace schedules {

/// The schedule document that the view shows: the text as the host handed it over, and what has been edited since.
///
/// Outside of edited elements the text never changes. It is opened, which takes about as long as loading it, with the
/// first edit; further ones cost the same in a table of any size.
class HeldDocument
{
public:
    /// Takes another text; edits are forgotten.
    void Hold(const QString& text);

    /// Another one for each text that is taken.
    int Number() const { return m_number; }

    /// The text with all edits; the very one that was handed over as long as nobody has edited.
    QString Text() const;

    /// Gives the element at that place of the table a text and marks it as dirty. False when there is no such element.
    bool SetCellText(Sheet::TablePlace place, const QString& text);

    /// Whether there is an element at that place that says that it may be edited. Takes as long as a first edit.
    bool AllowsEdit(Sheet::TablePlace place) const;

    /// Whether the element at that place stood in one that has been edited since, and so is gone.
    bool HasLost(Sheet::TablePlace place) const;

    /// Edits that have not been saved, by place.
    const std::set<Sheet::TablePlace>& Unsaved() const { return m_unsaved; }
    void SetSaved() { m_unsaved.clear(); }
    void AddUnsaved(const std::set<Sheet::TablePlace>& places) { m_unsaved.insert(places.begin(), places.end()); }

    /// From here on places count in the text with all edits, in which edited elements no longer hold others.
    void Settle();

private:
    struct Edit
    {
        std::uint32_t end;
        QByteArray element;
    };

    bool Open() const;
    bool LiesInEdited(const CellSpan& span) const;
    std::set<std::uint32_t> StartsOfUnsaved() const;
    void FindUnsaved(const std::set<std::uint32_t>& starts);

    int m_number = 0;
    QString m_text;
    mutable std::optional<CellSpans> m_spans; ///< once opened
    mutable QByteArray m_utf8;                ///< the text as the spans count
    std::map<std::uint32_t, Edit> m_edits;    ///< by where they start; none within another
    std::set<Sheet::TablePlace> m_unsaved;
    bool m_losesCells = false; ///< an edited cell held others
};

} // namespace schedules
