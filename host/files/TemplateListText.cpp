#include "host/files/TemplateListText.h"

#include "host/base/HostError.h"

#include <QList>
#include <QXmlStreamReader>

#include <algorithm>
#include <optional>

namespace schedules::host {

namespace {

/// Where an element stands in a text.
struct Span
{
    qsizetype begin = 0;
    qsizetype end = 0;
};

struct Entry
{
    QString fileName;
    bool isRoot = false;
    Span span;
};

void ThrowIfBroken(const QXmlStreamReader& reader)
{
    if (reader.hasError())
        throw HostError(QStringLiteral("the list of templates is no XML: %1").arg(reader.errorString()));
}

class EntryReader
{
public:
    explicit EntryReader(const QString& list) : m_list(list), m_reader(list) {}

    /// In the order of their first characters.
    QList<Entry> Read()
    {
        while (!m_reader.atEnd()) {
            const auto token = m_reader.readNext();
            if (token == QXmlStreamReader::StartElement)
                Open();
            else if (token == QXmlStreamReader::EndElement)
                Close();
        }
        ThrowIfBroken(m_reader);
        return m_entries;
    }

private:
    void Open()
    {
        const bool isRoot = m_open.isEmpty();
        m_open.append(std::nullopt);
        const auto fileName = m_reader.attributes().value(QStringLiteral("filename"));
        if (m_reader.name() != QLatin1String("Template") || !m_reader.namespaceUri().isEmpty() || fileName.isNull())
            return;
        // In attributes there is no such character, so the last one begins the element.
        const qsizetype begin = m_list.lastIndexOf(u'<', Position() - 1);
        m_open.last() = m_entries.size();
        m_entries.append({fileName.toString().trimmed(), isRoot, {begin, begin}});
    }

    void Close()
    {
        if (const auto entry = m_open.takeLast())
            m_entries[*entry].span.end = Position();
    }

    qsizetype Position() const { return m_reader.characterOffset(); }

    const QString& m_list;
    QXmlStreamReader m_reader;
    QList<std::optional<qsizetype>> m_open; ///< the entry that each open element is, if it is one
    QList<Entry> m_entries;
};

QList<Entry> EntriesFor(const QString& fileName, const QList<Entry>& all, Qt::CaseSensitivity letters)
{
    QList<Entry> found;
    std::ranges::copy_if(all, std::back_inserter(found),
                         [&](const Entry& entry) { return entry.fileName.compare(fileName, letters) == 0; });
    return found;
}

bool IsBlank(QChar character)
{
    return character == u' ' || character == u'\t';
}

/// The line that an element stands on, with its end, when there is nothing else on it; else the element.
Span WithItsLine(const QString& text, Span element)
{
    Span line = element;
    while (line.begin > 0 && IsBlank(text[line.begin - 1]))
        --line.begin;
    while (line.end < text.size() && IsBlank(text[line.end]))
        ++line.end;
    if (QStringView(text).sliced(line.end).startsWith(QLatin1String("\r\n")))
        ++line.end;
    const bool isWhole =
        line.begin > 0 && text[line.begin - 1] == u'\n' && line.end < text.size() && text[line.end] == u'\n';
    return isWhole ? Span{line.begin, line.end + 1} : element;
}

} // namespace

void RequireXml(const QString& text)
{
    QXmlStreamReader reader(text);
    while (!reader.atEnd())
        reader.readNext();
    ThrowIfBroken(reader);
}

QString WithoutEntries(const QString& list, const QString& fileName)
{
    const QList<Entry> all = EntryReader(list).Read();
    QList<Entry> entries = EntriesFor(fileName, all, Qt::CaseSensitive);
    if (entries.isEmpty())
        entries = EntriesFor(fileName, all, Qt::CaseInsensitive);
    QString text;
    qsizetype done = 0;
    for (const Entry& entry : entries) {
        if (entry.isRoot)
            throw HostError(QStringLiteral("the entry for %1 is the whole list").arg(fileName));
        if (entry.span.begin < done)
            continue; // within another one
        const Span span = WithItsLine(list, entry.span);
        text += QStringView(list).sliced(done, span.begin - done);
        done = span.end;
    }
    return text.append(QStringView(list).sliced(done));
}

} // namespace schedules::host
