#pragma once

#include "spread/Sheet.h"

#include <QString>

#include <map>
#include <set>

namespace schedules::testing {

/// What a table must show, mark and hand back after the edits that were seen in it. Its cells hold no tables.
class EditModel
{
public:
    using Place = Sheet::TablePlace;

    /// A table that was loaded from that text and has not been edited yet.
    EditModel(const QString& xml, const Sheet& sheet);

    /// Looks for what a step has edited: two cells at the most, since a click ends an edit and may tick a check box.
    void See(const Sheet& sheet);

    /// The text that was handed to the host holds the edits and nothing else, and loads as what the sheet shows.
    void ExpectHandedOver(const QString& xml, const Sheet& sheet) const;

    void SetSaved() { m_unsaved.clear(); }
    bool HasUnsaved() const { return !m_unsaved.empty(); }
    void ExpectMarked(const Sheet& sheet) const;

private:
    using Texts = std::map<Place, QString>;

    static Texts TextsOf(const Sheet& sheet);
    static Texts DirtyIn(const QString& xml);
    static std::string Drawn(const Texts& texts);

    Texts m_texts;
    Texts m_dirty; ///< what the text of the table says has been edited
    std::set<Place> m_unsaved;
};

} // namespace schedules::testing
