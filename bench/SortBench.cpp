// Sorting the rows of a sheet by a column, from its cells to the order of its rows, against a plain std::stable_sort of
// the same keys: numbers as doubles, texts as the collator's sort keys. In one the keys lie ready, in the other they
// are made of the texts, which in most columns is the greater part of the work.

#include "spread/RowSort.h"

#include <QCollator>

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <random>
#include <string>
#include <variant>
#include <vector>

namespace schedules::bench {

namespace {

constexpr int kRows = 100'000;
constexpr std::array kRemarks{"spare in store", "см. примечание", "Ανταλλακτικό", "备用泵", "by vendor", "API 610 OH2"};

// The columns of the sheet.
constexpr Column kTags{1};
constexpr Column kNumbers{2};
constexpr Column kRemarkTexts{3};
constexpr Column kMixed{4};
constexpr Column kTagsInOrder{5};
constexpr Column kLongTexts{6};

QString Tag(unsigned number)
{
    return QStringLiteral("P-%1%2").arg(number / 3).arg(QChar(static_cast<char16_t>(u'A' + number % 3)));
}

QString Number(unsigned number)
{
    return QString::number(number / 100.0, 'f', 2);
}

QString Remark(unsigned number)
{
    return QString::fromUtf8(kRemarks[number % kRemarks.size()]);
}

/// Forty characters, not all of them Cyrillic, and hardly ever the same.
QString LongText(unsigned number)
{
    return QStringLiteral("Насос подпиточной воды, вторая очередь %1").arg(number);
}

struct FilledSheet
{
    FilledSheet()
    {
        std::minstd_rand random{7};
        const auto below = [&random](unsigned limit) { return static_cast<unsigned>(random()) % limit; };
        sheet.SetSize(6, kRows);
        sheet.SetRepainting(false);
        for (Row row{1}; row.Value() <= kRows; ++row) {
            sheet.SetText({kTags, row}, Tag(below(1'000'000)));
            sheet.SetText({kNumbers, row}, Number(below(1'000'000)));
            sheet.SetText({kRemarkTexts, row}, Remark(below(1'000)));
            sheet.SetText({kMixed, row}, below(2) == 0 ? Tag(below(1'000'000)) : Number(below(1'000'000)));
            sheet.SetText({kTagsInOrder, row}, Tag(static_cast<unsigned>(row.Value()) + 3'000));
            sheet.SetText({kLongTexts, row}, LongText(below(1'000'000)));
        }
    }

    Sheet sheet;
};

const Sheet& TheSheet()
{
    static const FilledSheet filled;
    return filled.sheet;
}

QLocale TheLocale()
{
    return QLocale(QLocale::English);
}

void OwnSort(benchmark::State& state, Column column)
{
    const Sheet& sheet = TheSheet();
    for (auto _ : state)
        benchmark::DoNotOptimize(SortedRows(sheet, column, RowOrder::Ascending, {}, TheLocale()));
}

using MixedKey = std::variant<double, QCollatorSortKey>;

struct NumberKeys
{
    double operator()(const QString& text) const { return text.toDouble(); }
};

struct TextKeys
{
    TextKeys() { collator.setNumericMode(true); }
    QCollatorSortKey operator()(const QString& text) const { return collator.sortKey(text); }

    QCollator collator{TheLocale()};
};

struct MixedKeys
{
    MixedKey operator()(const QString& text) const
    {
        bool isNumber = false;
        const double number = text.toDouble(&isNumber);
        return isNumber ? MixedKey(number) : MixedKey(texts(text));
    }

    TextKeys texts;
};

template <class MakeKey>
auto KeysOf(Column column, const MakeKey& makeKey)
{
    std::vector<decltype(makeKey({}))> keys;
    keys.reserve(kRows);
    for (Row row{1}; row.Value() <= kRows; ++row)
        keys.push_back(makeKey(TheSheet().Text({column, row})));
    return keys;
}

template <class MakeKey>
void SortReadyKeys(benchmark::State& state, Column column)
{
    const auto keys = KeysOf(column, MakeKey());
    for (auto _ : state) {
        state.PauseTiming();
        auto sorted = keys;
        state.ResumeTiming();
        std::stable_sort(sorted.begin(), sorted.end());
        benchmark::DoNotOptimize(sorted.data());
    }
}

template <class MakeKey>
void MakeAndSortKeys(benchmark::State& state, Column column)
{
    const MakeKey makeKey;
    for (auto _ : state) {
        auto keys = KeysOf(column, makeKey);
        std::stable_sort(keys.begin(), keys.end());
        benchmark::DoNotOptimize(keys.data());
    }
}

template <class MakeKey>
void Register(const char* what, Column column)
{
    const auto add = [&](const char* who, void (*run)(benchmark::State&, Column)) {
        const std::string name = std::string("sort/100000 ") + what + "/" + who;
        benchmark::RegisterBenchmark(name.c_str(), run, column)->Unit(benchmark::kMillisecond);
    };
    add("own", OwnSort);
    add("stable_sort of ready keys", SortReadyKeys<MakeKey>);
    add("keys made, stable_sort", MakeAndSortKeys<MakeKey>);
}

const bool kRegistered = [] {
    Register<NumberKeys>("numbers", kNumbers);
    Register<TextKeys>("tags", kTags);
    Register<TextKeys>("remarks", kRemarkTexts);
    Register<MixedKeys>("mixed", kMixed);
    Register<TextKeys>("tags in order", kTagsInOrder);
    Register<TextKeys>("long texts", kLongTexts);
    return true;
}();

} // namespace

} // namespace schedules::bench
