#include "tools/schedule/HeldDocument.h"

#include "common/XmlReader.h"
#include "tools/schedule/EditedElement.h"

#include <iterator>

namespace schedules {

void HeldDocument::Hold(const QString& text)
{
    *this = {};
    m_text = text;
}

QString HeldDocument::Text() const
{
    if (m_edits.empty())
        return m_text;
    QByteArray edited;
    edited.reserve(m_utf8.size());
    std::uint32_t from = 0;
    for (const auto& [start, edit] : m_edits) {
        edited.append(m_utf8.constData() + from, start - from);
        edited.append(edit.element);
        from = edit.end;
    }
    edited.append(m_utf8.constData() + from, m_utf8.size() - from);
    return QString::fromUtf8(edited);
}

bool HeldDocument::SetCellText(Sheet::TablePlace place, const QString& text)
{
    const auto span = Open() ? m_spans->Find(place) : std::nullopt;
    if (!span || LiesInEdited(*span))
        return false;
    const QByteArrayView element(m_utf8.constData() + span->start, span->end - span->start);
    // A table inside of the cell goes, and with it what was edited there.
    m_edits.erase(m_edits.lower_bound(span->start), m_edits.lower_bound(span->end));
    m_edits[span->start] = {span->end, EditedElement(element, text)};
    m_unsaved.insert(place);
    return true;
}

bool HeldDocument::Open()
{
    if (m_spans)
        return true;
    if (const auto utf8 = XmlUtf8(m_text)) {
        m_utf8 = *utf8;
        m_spans = CellSpans::Of(m_utf8);
    }
    return m_spans.has_value();
}

bool HeldDocument::LiesInEdited(const CellSpan& span) const
{
    const auto next = m_edits.lower_bound(span.start);
    return next != m_edits.begin() && std::prev(next)->second.end > span.start;
}

void HeldDocument::Settle()
{
    m_text = Text();
    m_spans.reset();
    m_utf8.clear();
    m_edits.clear();
}

} // namespace schedules
