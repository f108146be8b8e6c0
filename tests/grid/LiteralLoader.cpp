#include "grid/LiteralLoader.h"

#include <QRegularExpression>

namespace schedules::testing {

namespace {

constexpr int kNotLoaded = 1064;
constexpr int kWithoutRows = 1066;

CellRange WholeRow(int row)
{
    return {{kAllColumns, Row(row)}, {kAllColumns, Row(row)}};
}

CellRange WholeColumn(int column)
{
    return {{Column(column), kAllRows}, {Column(column), kAllRows}};
}

bool IsTrue(const XmlNode& attribute)
{
    return attribute.WholeText() == QLatin1String("-1");
}

std::optional<std::uint32_t> ColorOf(const QString& text)
{
    static const QRegularExpression whole(QStringLiteral("^ *([+-]?[0-9]+) *$"));
    const auto match = whole.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const double number = match.captured(1).toDouble();
    if (number < -2147483648.0 || number > 4294967295.0)
        return std::nullopt;
    return static_cast<std::uint32_t>(static_cast<std::int64_t>(number));
}

template <class Value>
std::optional<Value> LastApplied(const std::vector<LiteralGrid::Setting<Value>>& settings, Cell cell)
{
    std::optional<Value> value;
    for (const auto& setting : settings) {
        if (setting.range.Contains(cell))
            value = setting.value;
    }
    return value;
}

} // namespace

int LiteralGrid::DataColumns() const
{
    int count = 0;
    for (const auto& [cell, text] : texts)
        count = cell.row > Row(0) ? std::max(count, cell.column.Value()) : count;
    return count;
}

int LiteralGrid::DataRows() const
{
    int count = 0;
    for (const auto& [cell, text] : texts)
        count = cell.column > Column(0) ? std::max(count, cell.row.Value()) : count;
    return count;
}

QString LiteralGrid::Text(Cell cell) const
{
    const auto found = texts.find(cell);
    return found == texts.end() ? QString() : found->second;
}

bool LiteralGrid::Bold(Cell cell) const
{
    return LastApplied(bold, cell).value_or(false);
}

std::optional<std::uint32_t> LiteralGrid::Color(Cell cell) const
{
    return LastApplied(colors, cell);
}

int LiteralLoader::Load(const QString& xml)
{
    const XmlDocument document = XmlDocument::FromText(xml);
    if (!document)
        return kNotLoaded;
    const auto rows = document.Select(QStringLiteral("//TABLE/TR"));
    if (rows.empty())
        return kWithoutRows;
    int r = 0;
    for (const XmlNode& row : rows)
        LoadRow(row, r++);
    int k = 0;
    for (const XmlNode& header : document.Select(QStringLiteral("//TR[1]/TH")))
        LoadHeader(header, k++);
    return 0;
}

void LiteralLoader::LoadRow(const XmlNode& row, int r)
{
    int c = 0;
    for (const XmlNode& cell : row.Children())
        LoadCell(cell, c++, r);

    const bool isBold = IsTrue(row.SelectOne(QStringLiteral("TH[1]/@fontBold")));
    const bool hasUserDefined = bool(row.SelectOne(QStringLiteral("TD[@UserDefined='-1']")));
    if (m_orientation == 1 && isBold && !hasUserDefined)
        m_grid.hiddenColumns.insert(r);
    if (IsTrue(row.SelectOne(QStringLiteral("TH[1]/@hidden"))))
        (m_orientation == 1 ? m_grid.hiddenColumns : m_grid.hiddenRows).insert(r);
    if (isBold && m_orientation == 1)
        m_grid.bold.push_back({WholeRow(r), true});
    SetColor(row.SelectOne(QStringLiteral("TH[1]/@bgColor")).WholeText(),
             m_orientation == 1 ? WholeRow(r) : WholeColumn(r));
}

void LiteralLoader::LoadCell(const XmlNode& cell, int c, int r)
{
    QString value = cell.FirstText();
    const QString dataType = cell.Attribute(QStringLiteral("dataType")).trimmed().toUpper();
    if (dataType == QLatin1String("CHECKBOX") && cell.NodeKind() == XmlNode::Kind::Element &&
        cell.SelectOne(QStringLiteral("self::TD")))
    {
        if (cell.Attribute(QStringLiteral("visible")) == QLatin1String("-1"))
            m_grid.checkBoxes.insert(Placed(c, r));
        else
            value.clear();
    }
    m_grid.texts[Placed(c, r)] = value;
}

void LiteralLoader::LoadHeader(const XmlNode& header, int k)
{
    if (IsTrue(header.SelectOne(QStringLiteral("@hidden")))) {
        if (m_orientation == 1)
            m_grid.hiddenColumns.insert(k);
        else if (m_orientation == 0)
            m_grid.hiddenRows.insert(k);
    }
    if (IsTrue(header.SelectOne(QStringLiteral("@fontBold"))))
        m_grid.bold.push_back({WholeColumn(k), true});
    SetColor(header.SelectOne(QStringLiteral("@bgColor")).WholeText(),
             m_orientation != 0 ? WholeColumn(k) : WholeRow(k));
}

Cell LiteralLoader::Placed(int c, int r) const
{
    return m_transpose ? Cell{Column(r), Row(c)} : Cell{Column(c), Row(r)};
}

void LiteralLoader::SetColor(const QString& number, const CellRange& range)
{
    if (const auto color = ColorOf(number))
        m_grid.colors.push_back({range, *color});
}

} // namespace schedules::testing
