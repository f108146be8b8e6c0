#include "tools/schedule/edits/HeldDocument.h"

#include "common/XmlReader.h"

#include <QStringDecoder>

#include <iterator>
#include <utility>

namespace schedules {

void HeldDocument::Hold(const QString& text)
{
    const int number = m_number + 1;
    *this = {};
    m_number = number;
    m_text = text;
}

bool HeldDocument::HasLost(Sheet::TablePlace place) const
{
    if (!m_losesCells)
        return false;
    const auto span = m_spans->Find(place);
    return span && LiesInEdited(*span);
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
    // A byte-order mark at the start is the host's, too.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder(edited);
}

bool HeldDocument::SetCellText(Sheet::TablePlace place, const QString& text, const QString& former)
{
    const auto span = Open() ? m_spans->Find(place) : std::nullopt;
    if (!span || LiesInEdited(*span))
        return false;
    const QByteArrayView element(m_utf8.constData() + span->start, span->end - span->start);
    // A table inside of the cell goes, and with it what was edited there.
    m_losesCells = m_losesCells || element.contains("<TR");
    m_edits.erase(m_edits.lower_bound(span->start), m_edits.lower_bound(span->end));
    m_edits[span->start] = {span->end, EditedElement(element, text)};
    m_unsaved.try_emplace(place, former);
    return true;
}

QByteArray HeldDocument::ElementAt(Sheet::TablePlace place) const
{
    const auto span = Open() ? m_spans->Find(place) : std::nullopt;
    if (!span)
        return {};
    const auto edit = m_edits.find(span->start);
    return edit != m_edits.end() ? edit->second.element : m_utf8.mid(span->start, span->end - span->start);
}

ElementAttributes HeldDocument::AttributesOf(Sheet::TablePlace place) const
{
    return AttributesOfElement(ElementAt(place));
}

void HeldDocument::PutBack(const Formers& unsaved)
{
    for (const auto& [place, former] : unsaved)
        m_unsaved.insert_or_assign(place, former);
}

bool HeldDocument::Open() const
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
    if (m_edits.empty())
        return;
    const auto formers = m_losesCells ? FormersByStart() : std::map<std::uint32_t, QString>();
    m_text = Text();
    m_spans.reset();
    m_utf8.clear();
    m_edits.clear();
    if (std::exchange(m_losesCells, false))
        FindUnsaved(formers);
}

/// Where the unsaved elements that are still there begin in the text with all edits.
std::map<std::uint32_t, QString> HeldDocument::FormersByStart() const
{
    std::map<std::uint32_t, QString> here;
    for (const auto& [place, former] : m_unsaved) {
        const auto span = m_spans->Find(place);
        if (span && !LiesInEdited(*span))
            here.emplace(span->start, former);
    }
    std::map<std::uint32_t, QString> moved;
    std::int64_t shift = 0;
    auto edit = m_edits.begin();
    for (const auto& [start, former] : here) {
        for (; edit != m_edits.end() && edit->first < start; ++edit)
            shift += edit->second.element.size() - (static_cast<std::int64_t>(edit->second.end) - edit->first);
        moved.emplace(static_cast<std::uint32_t>(start + shift), former);
    }
    return moved;
}

void HeldDocument::FindUnsaved(const std::map<std::uint32_t, QString>& formers)
{
    m_unsaved.clear();
    if (!Open())
        return;
    m_spans->ForEach([&](Sheet::TablePlace place, const CellSpan& span) {
        if (const auto former = formers.find(span.start); former != formers.end())
            m_unsaved.emplace(place, former->second);
    });
}

} // namespace schedules
