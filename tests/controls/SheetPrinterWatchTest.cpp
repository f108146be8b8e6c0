// What counts as a change of a sheet that is being printed.

#include "controls/paper/SheetPrinterWatch.h"

#include "common/Error.h"
#include "controls/DrawnSheet.h"

#include <gtest/gtest.h>

namespace schedules::testing {

namespace {

using Change = std::function<void(std::unique_ptr<Sheet>& sheet)>;

/// How often the watch tells of a change, and whether the sheet then is what it was.
std::pair<int, bool> After(const Change& change)
{
    auto sheet = DrawnSheet(QStringLiteral("Pump|Flow\nP-1|12"));
    int told = 0;
    const SheetPrinterWatch watch(*sheet, [&told] { ++told; });
    change(sheet);
    try {
        watch.RequireUnchanged();
        return {told, true};
    } catch (const Error&) {
        return {told, false};
    }
}

} // namespace

TEST(SheetPrinterWatch, ASheetLeftAloneIsUnchanged)
{
    EXPECT_EQ(After([](auto& sheet) { sheet->Text({Column(1), Row(1)}); }), std::pair(0, true));
    EXPECT_EQ(After([](auto& sheet) { sheet->SetActiveCell({Column(1), Row(1)}); }), std::pair(0, true));
}

TEST(SheetPrinterWatch, ATextSizeOrFrozenRowIsAChange)
{
    const auto changed = std::pair(1, false);
    EXPECT_EQ(After([](auto& sheet) { sheet->SetText({Column(1), Row(1)}, QStringLiteral("13")); }), changed);
    EXPECT_EQ(After([](auto& sheet) { sheet->SetSize(1, 2); }), changed);
    EXPECT_EQ(After([](auto& sheet) { sheet->SetFrozenRows(1); }), changed);
}

TEST(SheetPrinterWatch, TheSheetsEndIsAChange)
{
    EXPECT_EQ(After([](auto& sheet) { sheet.reset(); }), std::pair(1, false));
}

} // namespace schedules::testing
