#pragma once

#include <QString>

#include <array>

namespace schedules {

class Sheet;

/// What of a sheet is printed beside its cells.
enum class PrintOption
{
    Border,  ///< the frame around the table
    Grid,    ///< the lines between cells
    Shading, ///< the ground of headers that have no color of their own
    ColumnHeaders,
    RowHeaders
};
inline constexpr std::size_t kPrintOptionCount = 5;

enum class PageEdge
{
    Left,
    Right,
    Top,
    Bottom
};
inline constexpr std::size_t kPageEdgeCount = 4;

enum class PrintAction
{
    Plain, ///< at full size; columns that do not fit go on in further pages
    Smart  ///< turned across and scaled down as far as it takes to get all columns on one page
};

enum class PageOrientation
{
    Upright,
    Across
};

/// How a sheet is to be printed.
struct PrintSetup
{
    std::array<bool, kPrintOptionCount> options{true, true, false, true, true};
    std::array<int, kPageEdgeCount> margins{720, 720, 720, 720}; ///< twips
    QString header;                                              ///< in print codes
    PrintAction action = PrintAction::Plain;
    PageOrientation orientation = PageOrientation::Upright; ///< of plain printing

    bool Prints(PrintOption option) const { return options[static_cast<std::size_t>(option)]; }
    int Margin(PageEdge edge) const { return margins[static_cast<std::size_t>(edge)]; }

    bool operator==(const PrintSetup&) const = default;
};

/// Prints sheets: takes settings one by one, then the sheet. What is not set keeps its default.
class ISheetPrinter
{
public:
    virtual ~ISheetPrinter() = default;

    virtual void SetOption(PrintOption option, bool print) = 0;

    /// The header of every page, in print codes.
    virtual void SetHeader(const QString& codes) = 0;
    virtual void SetMargin(PageEdge edge, int twips) = 0;

    /// Throws `Error` when it cannot print. A user who cancels is no failure.
    virtual void Print(const Sheet& sheet, PrintAction action) = 0;
};

} // namespace schedules
