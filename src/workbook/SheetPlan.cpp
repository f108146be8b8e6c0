#include "workbook/SheetPlan.h"

#include "common/Error.h"
#include "common/Utf8.h"

#include <QFontInfo>

namespace schedules {

namespace {

[[noreturn]] void ThrowTooLarge(const QString& description)
{
    throw Error(kOverflowError, description);
}

qsizetype UnitsOf(std::string_view utf8)
{
    return FromUtf8(utf8).size();
}

} // namespace

SheetPlan::SheetPlan(const Sheet& sheet, Qt::LayoutDirection direction)
    : m_sheet(sheet), m_styles(QFontInfo(sheet.Font()).pointSizeF(), direction)
{
    RequireSize();
    m_lastLooks.resize(static_cast<std::size_t>(sheet.ColumnCount()) + 1);
    m_formats.reserve(static_cast<std::size_t>(sheet.ColumnCount()) * sheet.RowCount());
    for (Row row{1}; row.Value() <= sheet.RowCount(); ++row) {
        for (Column column{1}; column.Value() <= sheet.ColumnCount(); ++column)
            Add({column, row});
    }
}

void SheetPlan::RequireSize() const
{
    if (m_sheet.RowCount() > kMostRows || m_sheet.ColumnCount() > kMostColumns) {
        ThrowTooLarge(QStringLiteral("A workbook of this format holds %1 rows and %2 columns, not %3 and %4.")
                          .arg(kMostRows)
                          .arg(kMostColumns)
                          .arg(m_sheet.RowCount())
                          .arg(m_sheet.ColumnCount()));
    }
}

void SheetPlan::Add(Cell cell)
{
    const WorkbookCell content = WorkbookCellOf(m_sheet, cell);
    m_formats.push_back(FormatOf(WorkbookLookOf(m_sheet, cell, content), m_lastLooks[cell.column.Value()]));
    if (content.kind == WorkbookCell::Kind::Text)
        AddText(cell, content.text);
}

void SheetPlan::AddText(Cell cell, std::string_view text)
{
    if (std::ssize(text) > kLongestText && UnitsOf(text) > kLongestText) {
        ThrowTooLarge(QStringLiteral("A cell of a workbook holds %1 characters; that in column %2, row %3 has %4.")
                          .arg(kLongestText)
                          .arg(cell.column.Value())
                          .arg(cell.row.Value())
                          .arg(UnitsOf(text)));
    }
    m_stringNumbers.push_back(m_strings.NumberOf(text));
}

Word SheetPlan::FormatOf(const WorkbookLook& look, KnownLook& last)
{
    if (last.format == 0 || last.look != look)
        last = {look, m_styles.FormatOf(look)};
    return last.format;
}

} // namespace schedules
