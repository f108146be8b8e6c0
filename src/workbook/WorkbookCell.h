#pragma once

#include "spread/CellEdge.h"
#include "spread/FileLook.h"
#include "spread/Sheet.h"
#include "workbook/PlainNumber.h"

#include <compare>

namespace schedules {

/// What a workbook holds in a cell, whatever its format.
struct WorkbookCell
{
    enum class Kind
    {
        Blank,
        Number,
        Text
    };

    Kind kind = Kind::Blank;
    std::string_view text; ///< valid until the sheet changes
    PlainNumber number;
};

/// A cell of a numeric data type, or a check box, whose text is a plain number is that number; every other text is a
/// text as it stands.
WorkbookCell WorkbookCellOf(const Sheet& sheet, Cell cell);

/// How a workbook's cell looks.
struct WorkbookLook
{
    static constexpr std::uint32_t kNoFill = 0xFFFFFFFF;
    static constexpr std::int8_t kGeneral = -1;

    std::uint32_t fill = kNoFill; ///< 0x00BBGGRR
    bool bold = false;
    CellEdge edge = CellEdge::Near;
    VerticalAlignment vAlign = VerticalAlignment::Top;
    bool wraps = false;
    std::int8_t decimals = kGeneral; ///< of a number

    auto operator<=>(const WorkbookLook&) const = default;

    bool WhiteText() const { return fill != kNoFill && NeedsWhiteText(fill); }
};

WorkbookLook WorkbookLookOf(const Sheet& sheet, Cell cell, const WorkbookCell& content);

enum class CellSide : std::uint8_t
{
    Left,
    Center,
    Right
};

CellSide SideOf(CellEdge edge, Qt::LayoutDirection direction);

/// What workbooks can have of a row's height, in twips.
int RowHeightOf(const Sheet& sheet, Row row);

/// "0", "0.00": the number format that shows so many decimals.
std::string NumberFormat(int decimals);

/// A twip is a twentieth of a point; spreadsheets count widths in pixels of a 96th of an inch.
inline constexpr double kTwipsPerPoint = 20;
inline constexpr double kTwipsPerPixel = 15;

} // namespace schedules
