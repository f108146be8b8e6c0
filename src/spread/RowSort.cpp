#include "spread/RowSort.h"

#include "common/Utf8.h"
#include "spread/NumberReader.h"

#include <QCollator>

#include <algorithm>
#include <span>
#include <string_view>
#include <unordered_map>

namespace schedules {

namespace {

enum class Kind : std::uint8_t
{
    Number,
    Text,
    Blank
};

/// A row and what its cell holds.
struct KeyedRow
{
    int row;
    Kind kind;
    int text = 0; ///< which one of `CollatedTexts`
    double number = 0;
};

/// The C locale has no collation, only the order of bytes; English has the one that all others refine.
QLocale CollationOf(const QLocale& locale)
{
    return locale.language() == QLocale::C ? QLocale(QLocale::English) : locale.collation();
}

/// Texts with their collation keys. Making a key costs more than looking a text up, so texts that come again and again
/// share one; a column of other texts should not fill a large table for nothing.
class CollatedTexts
{
public:
    CollatedTexts(const QLocale& locale, int most) : m_collator(CollationOf(locale))
    {
        m_collator.setNumericMode(true);
        m_keys.reserve(static_cast<std::size_t>(most));
    }

    /// The number of the text, which must stay where it is.
    int NumberOf(std::string_view utf8)
    {
        if (const auto found = m_known.find(utf8); found != m_known.end())
            return found->second;
        const int number = static_cast<int>(m_keys.size());
        m_keys.push_back(m_collator.sortKey(FromUtf8(utf8)));
        if (m_known.size() < kMostRemembered)
            m_known.emplace(utf8, number);
        return number;
    }

    bool Before(int left, int right) const { return left != right && m_keys[left] < m_keys[right]; }

private:
    static constexpr std::size_t kMostRemembered = 4096;

    QCollator m_collator;
    std::unordered_map<std::string_view, int> m_known;
    std::vector<QCollatorSortKey> m_keys;
};

bool IsVisibleAscii(char byte)
{
    return byte > ' ' && byte < '\x7F';
}

bool IsBlank(std::string_view utf8)
{
    // One visible character is enough, and nearly all texts have one that needs no conversion.
    return std::ranges::none_of(utf8, IsVisibleAscii) && FromUtf8(utf8).trimmed().isEmpty();
}

/// The rows of a sheet while they are being sorted, counted from 0.
class SortingRows
{
public:
    SortingRows(const Sheet& sheet, Column column, const QLocale& locale)
        : m_numbers(locale), m_texts(locale, sheet.RowCount())
    {
        m_rows.reserve(static_cast<std::size_t>(sheet.RowCount()));
        for (Row row{1}; row.Value() <= sheet.RowCount(); ++row)
            m_rows.push_back(Keyed(row, sheet.Utf8({column, row}), sheet.Style({column, row})));
    }

    /// Sorts the rows from `first` up to, but without, `end`.
    void Sort(int first, int end, RowOrder order)
    {
        const std::span rows(m_rows.begin() + first, m_rows.begin() + end);
        const auto isFilled = [](const KeyedRow& row) { return row.kind != Kind::Blank; };
        const auto blanks = std::stable_partition(rows.begin(), rows.end(), isFilled);
        const auto ascending = [this](const KeyedRow& left, const KeyedRow& right) { return Before(left, right); };
        const auto descending = [this](const KeyedRow& left, const KeyedRow& right) { return Before(right, left); };
        if (order == RowOrder::Ascending)
            std::stable_sort(rows.begin(), blanks, ascending);
        else
            std::stable_sort(rows.begin(), blanks, descending);
    }

    std::vector<int> Numbers() const
    {
        std::vector<int> numbers(m_rows.size());
        std::ranges::transform(m_rows, numbers.begin(), &KeyedRow::row);
        return numbers;
    }

private:
    KeyedRow Keyed(Row row, std::string_view utf8, CellStyle style)
    {
        const Exponents exponents = IsNumeric(style.dataType) ? Exponents::Allowed : Exponents::Refused;
        if (const auto number = m_numbers.Read(utf8, exponents))
            return {.row = row.Value(), .kind = Kind::Number, .number = *number};
        if (IsBlank(utf8))
            return {.row = row.Value(), .kind = Kind::Blank};
        return {.row = row.Value(), .kind = Kind::Text, .text = m_texts.NumberOf(utf8)};
    }

    bool Before(const KeyedRow& left, const KeyedRow& right) const
    {
        if (left.kind != right.kind)
            return left.kind < right.kind;
        return left.kind == Kind::Number ? left.number < right.number : m_texts.Before(left.text, right.text);
    }

    NumberReader m_numbers;
    CollatedTexts m_texts;
    std::vector<KeyedRow> m_rows;
};

} // namespace

std::vector<int> SortedRows(const Sheet& sheet, Column column, RowOrder order, const std::vector<int>& headings,
                            const QLocale& locale)
{
    if (order == RowOrder::Document)
        return {};
    SortingRows rows(sheet, column, locale);
    int first = std::clamp(sheet.FrozenRows(), 0, sheet.RowCount());
    for (const int heading : headings) {
        if (heading <= first || heading > sheet.RowCount())
            continue;
        rows.Sort(first, heading - 1, order);
        first = heading;
    }
    rows.Sort(first, sheet.RowCount(), order);
    return rows.Numbers();
}

} // namespace schedules
