#include "Sheets.h"

#include <array>
#include <random>
#include <string>

namespace schedules::bench {

namespace {

constexpr std::array kRemarks{"spare in store", "см. примечание", "Ανταλλακτικό", "备用泵", "by vendor", "API 610 OH2"};
constexpr CellStyle kNumber{.dataType = DataType::Double};

std::string NumberText(std::uint32_t hundredths)
{
    const std::string cents = std::to_string(100 + hundredths % 100);
    return std::to_string(hundredths / 100) + '.' + cents.substr(1);
}

CellStore Cells(int columns, int rows)
{
    CellStore cells;
    std::minstd_rand random{7};
    for (int row = 1; row <= rows; ++row) {
        cells.Place(row, 1, row == 1 ? "Tag" : "P-" + std::to_string(row), {});
        for (int column = 2; column <= columns; ++column) {
            if (row == 1)
                cells.Place(row, column, "Item " + std::to_string(column), {});
            else if (random() % 8 == 0)
                cells.Place(row, column, kRemarks[random() % kRemarks.size()], {});
            else
                cells.Place(row, column, NumberText(static_cast<std::uint32_t>(random() % 1'000'000)), kNumber);
        }
    }
    return cells;
}

} // namespace

std::unique_ptr<Sheet> ExportedSheet(int columns, int rows)
{
    auto sheet = std::make_unique<Sheet>();
    sheet->SetRepainting(false);
    sheet->SetSize(columns, rows);
    sheet->Adopt(Cells(columns, rows), Lines::AreRows);
    sheet->SetBold({{kAllColumns, Row(1)}, {kAllColumns, Row(1)}}, true);
    sheet->SetBackColor({{Column(1), Row(2)}, {Column(1), Row(rows)}}, 0x8000000F);
    sheet->SetHAlign({{Column(2), Row(2)}, {Column(columns), Row(rows)}}, HorizontalAlignment::Data);
    return sheet;
}

} // namespace schedules::bench
