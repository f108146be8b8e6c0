#include "workbook/Styles.h"

#include "common/Error.h"

#include <cmath>
#include <vector>

namespace schedules {

namespace {

constexpr std::size_t kMostCellFormats = 4000;
constexpr Word kFirstFormat = kDefaultCellFormat + 1;

// Fonts are numbered 0 to 3; there is no font 4 in any workbook.
constexpr std::string_view kFontName = "Arial";
constexpr double kDigitWidth = 0.556; ///< of this font, as a share of its size
constexpr double kPixelsPerPoint = 4.0 / 3;
constexpr Word kBoldFont = 1;
constexpr Word kWhiteFont = 2;
constexpr Word kAutomaticColor = 0x7FFF;
constexpr Word kRegularWeight = 400;
constexpr Word kBoldWeight = 700;
constexpr Byte kSwissFamily = 2;
constexpr Byte kDefaultCharacters = 1;

// Formats of the program's own have numbers of their own; those of a workbook begin behind them.
constexpr Word kGeneralFormat = 0;
constexpr Word kWholeFormat = 1;
constexpr Word kTwoDecimalsFormat = 2;
constexpr Word kFirstOwnFormat = 164;

// Parts of a cell format.
constexpr Word kLocked = 0x0001;
constexpr Word kIsStyle = 0xFFF4; ///< without a parent
constexpr Byte kBottom = 0x20;
constexpr Byte kUsesAll = 0xF8;
constexpr Byte kStyleUsesNothing = 0xF4;
constexpr DWord kSolid = 0x04000000;
constexpr Word kNoFillColors = 0x20C0;
constexpr Word kSystemBackground = 65 << 7;

Word FontOf(const WorkbookLook& look)
{
    return static_cast<Word>((look.bold ? kBoldFont : 0) + (look.WhiteText() ? kWhiteFont : 0));
}

Word NumberFormatOf(int decimals)
{
    switch (decimals) {
    case WorkbookLook::kGeneral:
        return kGeneralFormat;
    case 0:
        return kWholeFormat;
    case 2:
        return kTwoDecimalsFormat;
    default:
        return static_cast<Word>(kFirstOwnFormat + decimals);
    }
}

Byte Alignment(const WorkbookLook& look, Qt::LayoutDirection direction)
{
    constexpr std::array<Byte, 3> kHorizontal{1, 2, 3}; // left, center, right
    constexpr std::array<Byte, 3> kVertical{0x00, kBottom, 0x10};
    const Byte wrap = look.wraps ? 0x08 : 0;
    const auto side = static_cast<std::size_t>(SideOf(look.edge, direction));
    return kHorizontal[side] | wrap | kVertical[static_cast<std::size_t>(look.vAlign)];
}

} // namespace

Word Styles::FormatOf(const WorkbookLook& look)
{
    const auto known = m_formats.find(look);
    if (known != m_formats.end())
        return known->second.number;
    if (m_formats.size() >= kMostCellFormats)
        throw Error(kOverflowError, QStringLiteral("A workbook of this format holds 4,000 different looks of cells."));
    const auto number = static_cast<Word>(kFirstFormat + m_formats.size());
    const Word fill = look.fill == WorkbookLook::kNoFill ? Word{0} : m_palette.NumberOf(look.fill);
    m_formats.emplace(look, CellFormat{number, fill});
    return number;
}

double Styles::WidthOfPixel() const
{
    return 256 / std::max(1.0, std::round(std::round(m_points * kPixelsPerPoint) * kDigitWidth));
}

void Styles::WriteTo(RecordWriter& records) const
{
    WriteFonts(records);
    WriteNumberFormats(records);
    WriteStyleFormats(records);
    WriteCellFormats(records);
    records.Write(RecordType::Style, Word{0x8000}, Byte{0}, Byte{0xFF}); // "Normal", which comes with the program
    m_palette.WriteTo(records);
}

void Styles::WriteFonts(RecordWriter& records) const
{
    for (const Word color : {kAutomaticColor, Palette::kWhite}) {
        for (const Word weight : {kRegularWeight, kBoldWeight}) {
            std::string data;
            Append(data, static_cast<Word>(std::lround(m_points * kTwipsPerPoint)), Word{0}, color, weight, Word{0});
            Append(data, Byte{0}, kSwissFamily, kDefaultCharacters, Byte{0});
            Append(data, static_cast<Byte>(kFontName.size()), Byte{0});
            records.WriteData(RecordType::Font, data += kFontName);
        }
    }
}

void Styles::WriteNumberFormats(RecordWriter& records) const
{
    std::set<int> decimals;
    for (const auto& [look, format] : m_formats)
        decimals.insert(look.decimals);
    for (const int count : decimals) {
        const Word number = NumberFormatOf(count);
        if (number < kFirstOwnFormat)
            continue;
        const std::string format = NumberFormat(count);
        std::string data;
        Append(data, number, static_cast<Word>(format.size()), Byte{0});
        records.WriteData(RecordType::Format, data += format);
    }
}

/// The fifteen that every workbook has, and the format of cells without any.
void Styles::WriteStyleFormats(RecordWriter& records) const
{
    for (Word number = 0; number < kDefaultCellFormat; ++number) {
        const Byte uses = number == 0 ? Byte{0} : kStyleUsesNothing;
        records.Write(RecordType::XF, Word{0}, kGeneralFormat, static_cast<Word>(kIsStyle | kLocked), kBottom, Byte{0},
                      Byte{0}, uses, DWord{0}, DWord{0}, kNoFillColors);
    }
    records.Write(RecordType::XF, Word{0}, kGeneralFormat, kLocked, kBottom, Byte{0}, Byte{0}, Byte{0}, DWord{0},
                  DWord{0}, kNoFillColors);
}

void Styles::WriteCellFormats(RecordWriter& records) const
{
    std::vector<const std::pair<const WorkbookLook, CellFormat>*> inOrder(m_formats.size());
    for (const auto& format : m_formats)
        inOrder[format.second.number - kFirstFormat] = &format;
    for (const auto* format : inOrder)
        WriteCellFormat(records, format->first, format->second.fill);
}

void Styles::WriteCellFormat(RecordWriter& records, const WorkbookLook& look, Word fill) const
{
    const bool isFilled = look.fill != WorkbookLook::kNoFill;
    const Word colors = isFilled ? static_cast<Word>(fill | kSystemBackground) : kNoFillColors;
    records.Write(RecordType::XF, FontOf(look), NumberFormatOf(look.decimals), kLocked, Alignment(look, m_direction),
                  Byte{0}, Byte{0}, kUsesAll, DWord{0}, isFilled ? kSolid : DWord{0}, colors);
}

} // namespace schedules
