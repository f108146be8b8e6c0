#include "webpage/PaperColumns.h"

#include <QFontInfo>

#include <algorithm>

namespace schedules {

namespace {

constexpr Column kRowHeaders{0};
constexpr double kTwipsPerPoint = 20;
constexpr double kPaperWidth = 720; ///< in points: the smaller of the two common papers across, without its margins
constexpr double kText = 7;
constexpr double kSmallestText = 5;
constexpr double kRoom = 1.1; ///< for faces that are a little wider than the one on the screen
constexpr double kNarrowest = 2 * kText;
constexpr double kWidestHeader = kPaperWidth / 3;

/// What the columns' widths are on paper when the texts have their usual size.
class PaperWidths
{
public:
    explicit PaperWidths(const Sheet& sheet)
        : m_sheet(sheet), m_share(kRoom * kText / (kTwipsPerPoint * QFontInfo(sheet.Font()).pointSizeF()))
    {
    }

    double Of(Column column) const
    {
        const double widest = column == kRowHeaders ? kWidestHeader : kPaperWidth;
        return std::clamp(m_sheet.ColumnWidth(column) * m_share, kNarrowest, widest);
    }

private:
    const Sheet& m_sheet;
    double m_share;
};

void Add(ColumnGroup& group, Column column, double width)
{
    group.columns.push_back(column);
    group.widths.push_back(width);
    group.width += width;
}

ColumnGroup OneGroup(const std::vector<Column>& columns, const PaperWidths& widths)
{
    ColumnGroup group;
    for (const Column column : columns)
        Add(group, column, widths.Of(column));
    return group;
}

std::vector<ColumnGroup> SeveralGroups(const std::vector<Column>& columns, const PaperWidths& widths)
{
    const bool hasHeaders = columns.front() == kRowHeaders;
    const ColumnGroup start = OneGroup({columns.begin(), columns.begin() + (hasHeaders ? 1 : 0)}, widths);
    std::vector<ColumnGroup> groups{start};
    for (const Column column : columns) {
        if (column == kRowHeaders)
            continue;
        const double width = widths.Of(column);
        const bool isBegun = groups.back().columns.size() > start.columns.size();
        if (isBegun && groups.back().width + width > kPaperWidth)
            groups.push_back(start);
        Add(groups.back(), column, width);
    }
    return groups;
}

} // namespace

std::vector<Column> ShownColumns(const Sheet& sheet)
{
    std::vector<Column> columns;
    for (int position = 0; position <= sheet.ColumnCount(); ++position) {
        if (const Column column{sheet.Columns().ItemAt(position)}; !sheet.Hidden(column))
            columns.push_back(column);
    }
    return columns;
}

PaperColumns PaperColumnsOf(const Sheet& sheet)
{
    const std::vector<Column> columns = ShownColumns(sheet);
    const PaperWidths widths(sheet);
    ColumnGroup all = OneGroup(columns, widths);
    const double scale = std::min(1.0, kPaperWidth / std::max(all.width, 1.0));
    if (scale * kText < kSmallestText && columns.size() > 2)
        return {kText, SeveralGroups(columns, widths)};
    for (double& width : all.widths)
        width *= scale;
    all.width *= scale;
    return {std::max(scale * kText, kSmallestText), {all}};
}

} // namespace schedules
