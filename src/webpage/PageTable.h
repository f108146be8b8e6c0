#pragma once

#include "common/BufferedOutput.h"
#include "webpage/PageStyles.h"
#include "webpage/WebPage.h"

#include <vector>

namespace schedules {

/// Writes the rows of a table of some columns: those that the sheet shows, in the order in which it shows them.
class PageTable
{
public:
    PageTable(const Sheet& sheet, const PageInfo& page, const PageStyles& styles, const std::vector<Column>& columns,
              BufferedOutput& output);

    void Write();

private:
    enum class Element
    {
        ColumnHeader,
        RowHeader,
        Data
    };

    /// What decides on a start tag.
    struct TagKind
    {
        Element element = Element::Data;
        PageLook look;

        auto operator<=>(const TagKind&) const = default;
    };

    using Tags = std::map<TagKind, std::string>;

    /// A column that is visible, and the tag of its last cell, since the next one is much like it.
    struct ShownColumn
    {
        Column number;
        const Tags::value_type* last;
    };

    void WriteHead();
    void WriteBody();
    void WriteRow(Row row);
    void AppendCell(ShownColumn& column, Row row);
    void AppendContent(CellStyle style, std::string_view text);
    PageLook LookOf(Cell cell, CellStyle style, std::string_view text) const;
    const Tags::value_type& TagOf(const TagKind& kind);

    const Sheet& m_sheet;
    const PageStyles& m_styles;
    BufferedOutput& m_output;
    std::string& m_text; ///< of the output
    std::string m_ticked;
    std::string m_unticked;
    Tags m_tags;
    std::vector<ShownColumn> m_columns;
};

} // namespace schedules
