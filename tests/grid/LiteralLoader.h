#pragma once

#include "common/XmlDocument.h"
#include "spread/Address.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <vector>

namespace schedules::testing {

/// A grid of maps and lists, with no idea of speed.
struct LiteralGrid
{
    template <class Value>
    struct Setting
    {
        CellRange range;
        Value value;
    };

    std::map<Cell, QString> texts;
    std::set<Cell> checkBoxes;
    std::set<int> hiddenColumns;
    std::set<int> hiddenRows;
    std::vector<Setting<bool>> bold;
    std::vector<Setting<std::uint32_t>> colors;

    int DataColumns() const;
    int DataRows() const;
    QString Text(Cell cell) const;
    bool Bold(Cell cell) const;
    std::optional<std::uint32_t> Color(Cell cell) const;
};

/// The loader as the format describes it, step by step: the whole document as a tree, every lookup an XPath selection.
/// Slow and plain; what the fast loader must agree with.
class LiteralLoader
{
public:
    LiteralLoader(LiteralGrid& grid, int orientation, bool transpose)
        : m_grid(grid), m_orientation(orientation), m_transpose(transpose)
    {
    }

    /// The number of the message that a failed load shows; 0 when the table was placed.
    int Load(const QString& xml);

private:
    void LoadRow(const XmlNode& row, int r);
    void LoadCell(const XmlNode& cell, int c, int r);
    void LoadHeader(const XmlNode& header, int k);
    Cell Placed(int c, int r) const;
    void SetColor(const QString& number, const CellRange& range);

    LiteralGrid& m_grid;
    int m_orientation;
    bool m_transpose;
};

} // namespace schedules::testing
