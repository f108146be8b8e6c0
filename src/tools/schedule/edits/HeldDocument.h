#pragma once

#include "grid/CellLocator.h"
#include "tools/schedule/edits/EditedElement.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <optional>
#include <utility>

namespace schedules {

/// The schedule document that the view shows: the text as the host handed it over, and what has been edited since.
///
/// Outside edited elements the text never changes. It is opened, which takes about as long as loading it, with the
/// first edit; further ones cost the same in a table of any size.
class HeldDocument
{
public:
    /// Takes another text; edits are forgotten.
    void Hold(const QString& text);

    /// Differs for each text that is taken.
    int Number() const { return m_number; }

    /// The text with all edits; the very one that was handed over as long as nobody has edited.
    QString Text() const;

    /// Gives the element at that place of the table a text and marks it as dirty. False when there is no such element.
    /// `former` is what the cell showed before.
    bool SetCellText(Sheet::TablePlace place, const QString& text, const QString& former);

    /// Whether the element at that place stood in one that has been edited since, and so is gone.
    bool HasLost(Sheet::TablePlace place) const;

    /// The attributes of the element at that place, but for the mark of an edit, as they are written.
    ElementAttributes AttributesOf(Sheet::TablePlace place) const;

    /// Edits that have not been saved: by place what the cell showed before the first of them.
    using Formers = std::map<Sheet::TablePlace, QString>;
    const Formers& Unsaved() const { return m_unsaved; }
    Formers TakeUnsaved() { return std::exchange(m_unsaved, {}); }

    /// Edits that were taken and could not be saved. What was edited meanwhile was edited before, too.
    void PutBack(const Formers& unsaved);

    /// From here on places count in the text with all edits, in which edited elements no longer hold others.
    void Settle();

private:
    struct Edit
    {
        std::uint32_t end;
        QByteArray element;
    };

    bool Open() const;
    QByteArray ElementAt(Sheet::TablePlace place) const;
    bool LiesInEdited(const CellSpan& span) const;
    std::map<std::uint32_t, QString> FormersByStart() const;
    void FindUnsaved(const std::map<std::uint32_t, QString>& formers);

    int m_number = 0;
    QString m_text;
    mutable std::optional<CellSpans> m_spans; ///< once opened
    mutable QByteArray m_utf8;                ///< the text as the spans count
    std::map<std::uint32_t, Edit> m_edits;    ///< by where they start; none within another
    Formers m_unsaved;
    bool m_losesCells = false; ///< an edited cell held others
};

} // namespace schedules
