#include "Promises.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace schedules::bench {

namespace {

constexpr auto kAtLeast = Promise::Bound::AtLeast;
constexpr auto kAtMost = Promise::Bound::AtMost;

struct Row
{
    std::string_view group;
    std::string_view peer;
    Promise promise;
};

// "The component takes at most 1.5 times as long as the peer" reads here: the peer takes at least 1 / 1.5 of its time.
constexpr auto kRows = std::to_array<Row>({
    // Loading.
    {"load/60x20", "QTableWidget", {kAtLeast, 5}},
    {"load/500x500", "QTableWidget", {kAtLeast, 20}},
    {"load/1000x1000", "QTableWidget", {kAtLeast, 20}},
    {"load/500x500", "pugixml parse", {kAtLeast, 1 / 1.5}},
    {"load/1000x1000", "pugixml parse", {kAtLeast, 1 / 1.5}},
    {"load/growth", "of four times as many cells", {kAtMost, 5}},
    {"memory/60x20", "bytes_per_cell", {kAtMost, 24}},
    {"memory/500x500", "bytes_per_cell", {kAtMost, 24}},
    {"memory/1000x1000", "bytes_per_cell", {kAtMost, 24}},
    {"measure/500x500", "font metrics", {kAtLeast, 50}},
    // On screen.
    {"frame/1000x1000", "QTableView", {kAtLeast, 3}},
    {"open/1000000 rows", "prefix sum", {kAtLeast, 1}},
    {"transpose/1000x1000", "loading it", {kAtLeast, 1 / 1.5}},
    {"transpose/growth", "of four times as many cells", {kAtMost, 5}},
    // Editing and picking.
    {"edit a cell", "of 1,000,000 cells", {kAtMost, 2}},
    {"open for editing", "loading it", {kAtLeast, 1}},
    {"tick and collect", "ten times as many tags", {kAtMost, 12}},
    {"sort/100000 numbers", "stable_sort of ready keys", {kAtLeast, 1 / 3.0}},
    {"sort/100000 tags", "stable_sort of ready keys", {kAtLeast, 1 / 3.0}},
    {"sort/100000 remarks", "stable_sort of ready keys", {kAtLeast, 1 / 3.0}},
    {"sort/100000 mixed", "stable_sort of ready keys", {kAtLeast, 1 / 3.0}},
    {"sort/100000 tags in order", "keys made, stable_sort", {kAtLeast, 1 / 3.0}},
    {"sort/100000 long texts", "keys made, stable_sort", {kAtLeast, 1 / 3.0}},
    // On paper and in files.
    {"print/10000x12", "bare painter", {kAtLeast, 1 / 1.5}},
    {"preview/first page", "of 100000 rows", {kAtMost, 2}},
    {"preview/last page of 100000 rows", "first page", {kAtLeast, 1 / 2.0}},
    {"print/first and last page", "of 100000 rows", {kAtMost, 2}},
    {"workbook/65536x15", "python3-xlwt", {kAtLeast, 10}},
    {"workbook/65536x15", "libxlsxwriter", {kAtLeast, 1}},
    {"workbook/20000x50", "libxlsxwriter", {kAtLeast, 1}},
    {"workbook/4000x250", "libxlsxwriter", {kAtLeast, 1}},
    {"workbook memory/65536x15", "bytes_beside_per_byte_of_the_file", {kAtMost, 1}},
    {"workbook memory/20000x50", "bytes_beside_per_byte_of_the_file", {kAtMost, 1}},
    {"workbook memory/4000x250", "bytes_beside_per_byte_of_the_file", {kAtMost, 1}},
    {"page/65536x15", "writing ready bytes", {kAtLeast, 1 / 5.0}},
    {"page/4000x250", "writing ready bytes", {kAtLeast, 1 / 5.0}},
    // Templates.
    {"templates/read 1000", "libxml2 trees", {kAtLeast, 1 / 2.0}},
    {"templates/write 1000", "libxml2 trees", {kAtLeast, 1 / 1.5}},
    {"groups/add", "of 10000", {kAtMost, 3}},
    {"groups/find by name", "of 10000", {kAtMost, 3}},
    {"groups/find by ID", "of 10000", {kAtMost, 3}},
    {"groups/find by position", "of 10000", {kAtMost, 3}},
    {"groups/move to the front", "of 10000", {kAtMost, 3}},
    {"fileutil/100000 files", "bare", {kAtLeast, 1 / 1.5}},
    {"options/open 1000", "model", {kAtLeast, 1 / 1.5}},
    {"options/switch to 200 groups", "model", {kAtLeast, 1 / 1.5}},
    {"lists/move", "of 10000", {kAtMost, 2}},
    {"lists/move far", "of 10000", {kAtMost, 2}},
    {"schedules/build 100000 cells", "template of that size read", {kAtLeast, 1}},
    {"schedules/build 100000 cells", "of 200000 cells", {kAtMost, 2.2}},
});

} // namespace

std::string Promise::Text() const
{
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%s %.3g", bound == Bound::AtLeast ? "at least" : "at most", limit);
    return text.data();
}

std::optional<Promise> PromiseOf(std::string_view group, std::string_view peer)
{
    const auto row =
        std::ranges::find_if(kRows, [&](const Row& each) { return each.group == group && each.peer == peer; });
    return row == kRows.end() ? std::nullopt : std::optional(row->promise);
}

} // namespace schedules::bench
