#include "webpage/PageTable.h"

#include "webpage/HtmlText.h"

#include <array>

namespace schedules {

namespace {

constexpr Column kRowHeaders{0};
constexpr Row kColumnHeaders{0};

/// A box that an assistive technology reads as a word.
std::string BoxOf(const char* box, const QString& label)
{
    return "<span role=\"img\" aria-label=\"" + HtmlOf(label.toStdString()) + "\">" + box + "</span>";
}

} // namespace

PageTable::PageTable(const Sheet& sheet, const PageInfo& page, const PageStyles& styles,
                     const std::vector<Column>& columns, BufferedOutput& output)
    : m_sheet(sheet),
      m_styles(styles),
      m_output(output),
      m_text(output.Text()),
      m_ticked(BoxOf("☑", page.ticked)),
      m_unticked(BoxOf("☐", page.unticked))
{
    for (const Column column : columns)
        m_columns.push_back({column, &TagOf({})});
}

void PageTable::Write()
{
    if (m_columns.empty())
        return;
    if (!m_sheet.Hidden(kColumnHeaders))
        WriteHead();
    WriteBody();
}

void PageTable::WriteHead()
{
    m_text += "<thead>\n";
    WriteRow(kColumnHeaders);
    m_text += "</thead>\n";
}

void PageTable::WriteBody()
{
    m_text += "<tbody>\n";
    for (int position = 1; position <= m_sheet.RowCount(); ++position) {
        if (const Row row{m_sheet.Rows().ItemAt(position)}; !m_sheet.Hidden(row))
            WriteRow(row);
    }
    m_text += "</tbody>\n";
}

void PageTable::WriteRow(Row row)
{
    m_text += "<tr>";
    for (ShownColumn& column : m_columns)
        AppendCell(column, row);
    m_text += "</tr>\n";
    m_output.FlushWhenFull();
}

void PageTable::AppendCell(ShownColumn& column, Row row)
{
    const Cell cell{column.number, row};
    const auto [text, style] = m_sheet.Content(cell);
    // An empty header would head nothing.
    const Element element = text.empty()                 ? Element::Data
                            : row == kColumnHeaders      ? Element::ColumnHeader
                            : cell.column == kRowHeaders ? Element::RowHeader
                                                         : Element::Data;
    const TagKind kind{element, LookOf(cell, style, text)};
    if (column.last->first != kind)
        column.last = &TagOf(kind);
    m_text += column.last->second;
    AppendContent(style, text);
    m_text += element == Element::Data ? "</td>" : "</th>";
}

void PageTable::AppendContent(CellStyle style, std::string_view text)
{
    if (KindOf(style).showsText)
        AppendHtml(m_text, text);
    else
        m_text += IsTicked(style, text) ? m_ticked : m_unticked;
}

PageLook PageTable::LookOf(Cell cell, CellStyle style, std::string_view text) const
{
    return {PageFill(m_sheet.BackColor(cell)), m_sheet.Bold(cell), EdgeOf(m_sheet.HAlign(cell), style, text),
            m_sheet.VAlign(cell)};
}

const PageTable::Tags::value_type& PageTable::TagOf(const TagKind& kind)
{
    const auto [tag, isNew] = m_tags.try_emplace(kind);
    if (!isNew)
        return *tag;
    constexpr std::array kStarts{"<th scope=\"col\"", "<th scope=\"row\"", "<td"};
    tag->second = kStarts[static_cast<std::size_t>(kind.element)];
    const std::string classes = m_styles.ClassesOf(kind.look);
    if (!classes.empty())
        tag->second += " class=\"" + classes + '"';
    tag->second += '>';
    return *tag;
}

} // namespace schedules
