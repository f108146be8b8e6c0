#include "host/import/CsvTable.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>

namespace schedules::host {

namespace {

constexpr QChar kQuote(u'"');
constexpr QChar kLineBreak(u'\n');

QString WithPlainLineBreaks(QString text)
{
    return text.replace(QStringLiteral("\r\n"), kLineBreak).replace(u'\r', kLineBreak);
}

/// The text up to the first byte that is not of UTF-8; of what comes after it nothing can be said.
QString Decoded(QByteArrayView bytes, TableErrors& errors)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder(bytes);
    if (!decoder.hasError())
        return WithPlainLineBreaks(text);

    text = WithPlainLineBreaks(text.left(text.indexOf(QChar::ReplacementCharacter)));
    const qsizetype lineStart = text.lastIndexOf(kLineBreak) + 1;
    const qsizetype column = QStringView(text).mid(lineStart).toUcs4().size() + 1;
    errors.Add({static_cast<int>(text.count(kLineBreak)) + 1, static_cast<int>(column)},
               QStringLiteral("this is not UTF-8"));
    return {};
}

QChar SeparatorOf(QStringView text)
{
    const QStringView headings = text.left(text.indexOf(kLineBreak));
    constexpr std::array kSeparators{QChar(u','), QChar(u';'), QChar(u'\t')};
    return *std::ranges::max_element(kSeparators, {}, [&](QChar separator) { return headings.count(separator); });
}

class CsvReader
{
public:
    CsvReader(QStringView text, TableErrors& errors) : m_text(text), m_separator(SeparatorOf(text)), m_errors(errors) {}

    /// Goes to the next line that has anything in it; gives whether there is one.
    bool FindRow()
    {
        while (!AtEnd() && Next() == kLineBreak)
            Take();
        return !AtEnd();
    }

    CsvRow Row()
    {
        CsvRow row{Field()};
        while (!AtEnd() && Next() == m_separator) {
            Take();
            row.push_back(Field());
        }
        if (!AtEnd())
            Take();
        return row;
    }

private:
    bool AtEnd() const { return m_at == m_text.size(); }
    QChar Next() const { return m_text[m_at]; }
    bool AtEndOfField() const { return AtEnd() || Next() == m_separator || Next() == kLineBreak; }

    QChar Take()
    {
        const QChar taken = m_text[m_at++];
        if (taken.isNull())
            m_errors.Add(m_place, QStringLiteral("a text cannot hold a NUL character"));
        if (taken == kLineBreak)
            m_place = {m_place.line + 1, 1};
        else if (!taken.isLowSurrogate())
            ++m_place.column;
        return taken;
    }

    CsvField Field()
    {
        const TablePlace start = m_place;
        return {!AtEnd() && Next() == kQuote ? Quoted() : Plain(), start};
    }

    QString Plain()
    {
        QString text;
        while (!AtEndOfField())
            text += Take();
        return text;
    }

    QString Quoted()
    {
        const TablePlace start = m_place;
        Take();
        QString text;
        while (!AtEnd()) {
            const QChar taken = Take();
            if (taken != kQuote)
                text += taken;
            else if (!AtEnd() && Next() == kQuote)
                text += Take();
            else
                return EndOfQuoted(text);
        }
        m_errors.Add(start, QStringLiteral("this quote is not closed"));
        return text;
    }

    QString EndOfQuoted(const QString& text)
    {
        if (!AtEndOfField()) {
            m_errors.Add(m_place, QStringLiteral("there is text after a closing quote"));
            Plain();
        }
        return text;
    }

    QStringView m_text;
    QChar m_separator;
    TableErrors& m_errors;
    qsizetype m_at = 0;
    TablePlace m_place;
};

} // namespace

CsvTable::CsvTable(QByteArrayView bytes, TableErrors& errors)
{
    const QString text = Decoded(bytes, errors);
    CsvReader reader(text, errors);
    if (reader.FindRow())
        m_headings = reader.Row();
    else if (errors.IsEmpty())
        errors.Add({}, QStringLiteral("there is nothing in this file"));
    while (reader.FindRow())
        AddRow(reader.Row(), errors);
}

void CsvTable::AddRow(const CsvRow& row, TableErrors& errors)
{
    if (row.size() == m_headings.size()) {
        m_rows.push_back(row);
        return;
    }
    errors.Add(row.front().place, QStringLiteral("this row has another number of fields (%1) than the headings (%2)")
                                      .arg(row.size())
                                      .arg(m_headings.size()));
}

} // namespace schedules::host
