#include "workbook/XlsxWriter.h"

#include "common/FileReplacement.h"
#include "workbook/SheetName.h"
#include "workbook/WorkbookCell.h"
#include "workbook/XlsxCheck.h"

#include <QFile>
#include <QFontInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <xlsxwriter.h>

namespace schedules {

namespace {

constexpr auto kFontName = "Arial";
constexpr qint64 kChunk = 65536;

void Require(lxw_error error)
{
    if (error != LXW_NO_ERROR)
        throw Error(kFileNotWrittenError, QString::fromUtf8(lxw_strerror(error)));
}

bool IsHexDigit(char byte)
{
    return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'F') || (byte >= 'a' && byte <= 'f');
}

/// Whether a text begins like "_x0041_", by which the format means the character of that number.
bool BeginsLikeCode(std::string_view text)
{
    constexpr std::size_t kSize = 7;
    return text.size() >= kSize && text.starts_with("_x") && text[kSize - 1] == '_' &&
           std::ranges::all_of(text.substr(2, 4), IsHexDigit);
}

/// A text with the "_" of what only looks like a code given as a code.
std::string XlsxText(std::string_view text)
{
    std::string escaped;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (BeginsLikeCode(text.substr(at)))
            escaped += "_x005F";
        escaped += text[at];
    }
    return escaped;
}

/// The formats of the looks that have turned up.
class XlsxFormats
{
public:
    XlsxFormats(lxw_workbook* book, double points, Qt::LayoutDirection direction)
        : m_book(book), m_points(points), m_direction(direction)
    {
    }

    lxw_format* Of(const WorkbookLook& look)
    {
        lxw_format*& format = m_formats[look];
        if (!format)
            format = Made(look);
        return format;
    }

private:
    lxw_format* Made(const WorkbookLook& look) const
    {
        constexpr std::array<std::uint8_t, 3> kHorizontal{LXW_ALIGN_LEFT, LXW_ALIGN_CENTER, LXW_ALIGN_RIGHT};
        constexpr std::array<std::uint8_t, 3> kVertical{LXW_ALIGN_VERTICAL_TOP, LXW_ALIGN_VERTICAL_BOTTOM,
                                                        LXW_ALIGN_VERTICAL_CENTER};
        lxw_format* format = workbook_add_format(m_book);
        format_set_font_name(format, kFontName);
        format_set_font_size(format, m_points);
        format_set_align(format, kHorizontal[static_cast<std::size_t>(SideOf(look.edge, m_direction))]);
        format_set_align(format, kVertical[static_cast<std::size_t>(look.vAlign)]);
        if (look.bold)
            format_set_bold(format);
        if (look.wraps)
            format_set_text_wrap(format);
        if (look.fill != WorkbookLook::kNoFill)
            format_set_bg_color(format, RedAndBlueSwapped(look.fill));
        if (look.WhiteText())
            format_set_font_color(format, LXW_COLOR_WHITE);
        if (look.decimals != WorkbookLook::kGeneral)
            format_set_num_format(format, NumberFormat(look.decimals).c_str());
        return format;
    }

    lxw_workbook* m_book;
    double m_points;
    Qt::LayoutDirection m_direction;
    std::map<WorkbookLook, lxw_format*> m_formats;
};

class XlsxSheet
{
public:
    XlsxSheet(lxw_workbook* book, const Sheet& sheet, const QString& name, Qt::LayoutDirection direction)
        : m_sheet(sheet),
          m_formats(book, QFontInfo(sheet.Font()).pointSizeF(), direction),
          m_page(workbook_add_worksheet(book, name.toUtf8().constData()))
    {
        if (!m_page)
            throw Error(kFileNotWrittenError, QStringLiteral("The workbook cannot have a sheet \"%1\".").arg(name));
        if (direction == Qt::RightToLeft)
            worksheet_right_to_left(m_page);
    }

    void Write()
    {
        if (m_sheet.FrozenColumns() > 0 || m_sheet.FrozenRows() > 0)
            worksheet_freeze_panes(m_page, static_cast<lxw_row_t>(m_sheet.FrozenRows()),
                                   static_cast<lxw_col_t>(m_sheet.FrozenColumns()));
        for (Column column{1}; column.Value() <= m_sheet.ColumnCount(); ++column)
            WriteWidth(column);
        for (Row row{1}; row.Value() <= m_sheet.RowCount(); ++row)
            WriteRow(row);
    }

private:
    void WriteWidth(Column column)
    {
        const auto number = static_cast<lxw_col_t>(column.Value() - 1);
        const auto pixels = static_cast<uint32_t>(m_sheet.ColumnWidth(column) / kTwipsPerPixel);
        Require(worksheet_set_column_pixels(m_page, number, number, pixels, nullptr));
    }

    void WriteRow(Row row)
    {
        const auto number = static_cast<lxw_row_t>(row.Value() - 1);
        Require(worksheet_set_row(m_page, number, RowHeightOf(m_sheet, row) / kTwipsPerPoint, nullptr));
        for (Column column{1}; column.Value() <= m_sheet.ColumnCount(); ++column)
            WriteCell(number, static_cast<lxw_col_t>(column.Value() - 1), {column, row});
    }

    void WriteCell(lxw_row_t row, lxw_col_t column, Cell cell)
    {
        const WorkbookCell content = WorkbookCellOf(m_sheet, cell);
        lxw_format* format = m_formats.Of(WorkbookLookOf(m_sheet, cell, content));
        switch (content.kind) {
        case WorkbookCell::Kind::Blank:
            return Require(worksheet_write_blank(m_page, row, column, format));
        case WorkbookCell::Kind::Number:
            return Require(worksheet_write_number(m_page, row, column, content.number.value, format));
        case WorkbookCell::Kind::Text:
            return Require(worksheet_write_string(m_page, row, column, XlsxText(content.text).c_str(), format));
        }
    }

    const Sheet& m_sheet;
    XlsxFormats m_formats;
    lxw_worksheet* m_page;
};

struct Discard
{
    void operator()(lxw_workbook* book) const { lxw_workbook_free(book); }
};

void WriteBook(const Sheet& sheet, const QString& sheetName, Qt::LayoutDirection direction, const QString& folder,
               const QString& fileName)
{
    QByteArray folderName = QFile::encodeName(folder);
    lxw_workbook_options options{};
    options.constant_memory = LXW_TRUE;
    options.tmpdir = folderName.data();
    std::unique_ptr<lxw_workbook, Discard> book(workbook_new_opt(QFile::encodeName(fileName).constData(), &options));
    if (!book)
        throw Error(kFileNotWrittenError, QStringLiteral("The workbook cannot be begun."));
    XlsxSheet(book.get(), sheet, LegalSheetName(sheetName), direction).Write();
    Require(workbook_close(book.release()));
}

void Copy(const QString& fileName, QFileDevice& target)
{
    QFile source(fileName);
    if (!source.open(QFile::ReadOnly))
        throw Error(kFileNotWrittenError, source.errorString());
    for (QByteArray chunk = source.read(kChunk); !chunk.isEmpty(); chunk = source.read(kChunk))
        WriteAll(target, chunk);
    if (source.error() != QFileDevice::NoError)
        throw Error(kFileNotWrittenError, source.errorString());
}

} // namespace

void WriteXlsx(const Sheet& sheet, const QString& sheetName, const QString& fileName, Qt::LayoutDirection direction)
{
    // The library writes to files of its own.
    const QTemporaryDir folder;
    if (!folder.isValid())
        throw Error(kFileNotWrittenError, folder.errorString());
    const QString whole = folder.filePath(QStringLiteral("whole.xlsx"));
    WriteBook(sheet, sheetName, direction, folder.path(), whole);
    if (!IsWholeXlsx(whole, qint64(sheet.ColumnCount()) * sheet.RowCount()))
        throw Error(kFileNotWrittenError, QStringLiteral("%1: The workbook is not whole.").arg(folder.path()));
    ReplaceFile(fileName, [&](QFileDevice& file) { Copy(whole, file); });
}

} // namespace schedules
