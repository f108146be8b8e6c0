#pragma once

#include "workbook/SharedStrings.h"
#include "workbook/Styles.h"

#include <vector>

namespace schedules {

/// What must be known of all cells of a sheet before the first of them can be written: the strings that they share and
/// the formats that they have. Cells go row by row, from column 1 and row 1 of the sheet on.
///
/// The sheet must not change as long as this lives. Throws `Error` when the sheet exceeds the format's limits.
class SheetPlan
{
public:
    static constexpr int kMostRows = 65'536;
    static constexpr int kMostColumns = 256;
    static constexpr int kLongestText = 32'767;

    SheetPlan(const Sheet& sheet, Qt::LayoutDirection direction);

    const Sheet& Source() const { return m_sheet; }
    const SharedStrings& Strings() const { return m_strings; }
    Qt::LayoutDirection Direction() const { return m_styles.Direction(); }
    const Styles& Formats() const { return m_styles; }

    Word FormatAt(std::size_t cell) const { return m_formats[cell]; }

    /// The number of the string of each text cell, one after the other.
    const std::vector<std::uint32_t>& StringNumbers() const { return m_stringNumbers; }

private:
    struct KnownLook
    {
        WorkbookLook look;
        Word format = 0;
    };

    void RequireSize() const;
    void Add(Cell cell);
    void AddText(Cell cell, std::string_view text);
    Word FormatOf(const WorkbookLook& look, KnownLook& last);

    const Sheet& m_sheet;
    SharedStrings m_strings;
    Styles m_styles;
    std::vector<KnownLook> m_lastLooks; ///< by column, since the cells of a column are much alike
    std::vector<Word> m_formats;
    std::vector<std::uint32_t> m_stringNumbers;
};

} // namespace schedules
