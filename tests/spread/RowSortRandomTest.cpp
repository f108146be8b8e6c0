// Random sheets against the rules taken word by word.

#include "spread/RowSort.h"
#include "support/SheetDrawing.h"

#include <QCollator>

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <optional>
#include <random>
#include <set>

using namespace schedules;
using namespace schedules::testing;

namespace {

constexpr Column kColumn{1};

/// A text and what it is known to be. The two that depend on the locale are told apart by the oracle.
struct Known
{
    const char* text;
    std::optional<double> number = {};          ///< in a cell of text
    std::optional<double> numericCell = number; ///< in a numeric cell
};

constexpr const char* kCommaGroup = "1,234";
constexpr const char* kPointGroup = "1.234";

const std::array kKnown{
    Known{""},          Known{"  "},        Known{"\u00A0"}, Known{"0", 0},          Known{"1", 1},
    Known{"+1", 1},     Known{"1.0", 1},    Known{"-1", -1}, Known{"12.5", 12.5},    Known{"12,5", 12.5},
    Known{kCommaGroup}, Known{kPointGroup}, Known{"10", 10}, Known{"1e3", {}, 1000}, Known{"2E-1", {}, 0.2},
    Known{"nan"},       Known{"-inf"},      Known{"P-1"},    Known{"P-2"},           Known{"P-02"},
    Known{"P-10"},      Known{"P1"},        Known{"p-2"},    Known{"P-1234A"},       Known{"a"},
    Known{"A"},         Known{"ä"},         Known{"z"},      Known{"Насос"},         Known{"备用泵"},
    Known{"🙂"}};

const std::array kLocales{QLocale(QLocale::English), QLocale(QLocale::German), QLocale(QLocale::Swedish)};

struct RandomSheet
{
    explicit RandomSheet(unsigned seed) : random(seed)
    {
        locale = kLocales[seed % kLocales.size()];
        rows = Below(30);
        sheet.SetSize(2, rows);
        for (Row row{1}; row.Value() <= rows; ++row)
            FillRow(row);
        sheet.SetFrozenRows(Below(3) == 0 ? Below(rows + 3) : 0);
        for (int count = Below(5); count > 0; --count)
            headings.insert(Below(rows + 4) - 1);
    }

    int Below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }

    void FillRow(Row row)
    {
        const auto& text = kKnown[static_cast<std::size_t>(Below(kKnown.size()))];
        known.push_back(&text);
        sheet.SetStyle({kColumn, row}, {.dataType = Below(2) == 0 ? DataType::Text : DataType::Double});
        sheet.SetText({kColumn, row}, QString::fromUtf8(text.text));
        sheet.SetText({Column(2), row}, QString::number(row.Value()));
        sheet.SetHidden(row, Below(6) == 0);
    }

    std::mt19937 random;
    QLocale locale;
    int rows = 0;
    Sheet sheet;
    std::set<int> headings;
    std::vector<const Known*> known; ///< by row, from 1 on
};

/// Sorts by taking, again and again, the first row that none of the others must precede.
class SlowSort
{
public:
    SlowSort(const RandomSheet& random, RowOrder order) : m_random(random), m_order(order), m_collator(random.locale)
    {
        m_collator.setNumericMode(true);
    }

    std::vector<int> Rows() const
    {
        std::vector<int> shown;
        std::vector<int> block;
        for (int row = 1; row <= m_random.rows; ++row) {
            if (!Stays(row)) {
                block.push_back(row);
                continue;
            }
            TakeSorted(block, shown);
            shown.push_back(row);
        }
        TakeSorted(block, shown);
        return shown;
    }

private:
    bool Stays(int row) const { return row <= m_random.sheet.FrozenRows() || m_random.headings.contains(row); }

    void TakeSorted(std::vector<int>& block, std::vector<int>& shown) const
    {
        while (!block.empty()) {
            const auto first = std::ranges::find_if(block, [&](int row) {
                return std::ranges::none_of(block, [&](int other) { return MustPrecede(other, row); });
            });
            shown.push_back(*first);
            block.erase(first);
        }
    }

    bool MustPrecede(int left, int right) const
    {
        if (Blank(left) || Blank(right))
            return !Blank(left) && Blank(right);
        return m_order == RowOrder::Ascending ? IsLess(left, right) : IsLess(right, left);
    }

    bool IsLess(int left, int right) const
    {
        const auto leftNumber = Number(left);
        const auto rightNumber = Number(right);
        if (leftNumber && rightNumber)
            return *leftNumber < *rightNumber;
        if (leftNumber || rightNumber)
            return leftNumber.has_value();
        return m_collator.compare(Text(left), Text(right)) < 0;
    }

    QString Text(int row) const { return m_random.sheet.Text(At(1, row)); }
    bool Blank(int row) const { return Text(row).trimmed().isEmpty(); }

    std::optional<double> Number(int row) const
    {
        const Known& known = *m_random.known[static_cast<std::size_t>(row - 1)];
        const QString groupMark = m_random.locale.groupSeparator();
        if (known.text == kCommaGroup)
            return groupMark == u',' ? 1234 : 1.234;
        if (known.text == kPointGroup)
            return groupMark == u'.' ? 1234 : 1.234;
        return m_random.sheet.Style(At(1, row)).dataType == DataType::Text ? known.number : known.numericCell;
    }

    const RandomSheet& m_random;
    RowOrder m_order;
    QCollator m_collator;
};

struct RowSortRandom : ::testing::TestWithParam<unsigned>
{
};

} // namespace

TEST_P(RowSortRandom, FollowsTheRules)
{
    for (unsigned seed = GetParam(); seed < GetParam() + 100; ++seed) {
        const RandomSheet random(seed);
        const std::vector<int> headings(random.headings.begin(), random.headings.end());
        for (const RowOrder order : {RowOrder::Ascending, RowOrder::Descending}) {
            ASSERT_EQ(SortedRows(random.sheet, kColumn, order, headings, random.locale), SlowSort(random, order).Rows())
                << "seed " << seed << (order == RowOrder::Ascending ? " ascending" : " descending");
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RowSortRandom, ::testing::Values(0u, 100u, 200u, 300u));
