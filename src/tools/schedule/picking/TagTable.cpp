#include "tools/schedule/picking/TagTable.h"

#include "common/Module1.h"
#include "framework/Message.h"

namespace schedules {

namespace {

constexpr auto kTicked = "1";

constexpr int kIdentifierLine = 1;
constexpr int kCheckBoxLine = 2;

Cell CellOf(int tag, int line, Tags tags)
{
    return tags == Tags::AreColumns ? Cell{Column(tag), Row(line)} : Cell{Column(line), Row(tag)};
}

int CountOf(const Sheet& sheet, Tags tags)
{
    return tags == Tags::AreColumns ? sheet.ColumnCount() : sheet.RowCount();
}

QString TagElement(const QString& identifier)
{
    return ElementText(QStringLiteral("Tag"), ElementText(QStringLiteral("Id"), EscapedXml(identifier)));
}

} // namespace

bool IsTicked(const Sheet& sheet, Cell cell)
{
    return sheet.Utf8(cell) == kTicked;
}

std::optional<Cell> CheckBoxOf(const Sheet& sheet, Tags tags, const QString& identifier)
{
    for (int tag = 1; tag <= CountOf(sheet, tags); ++tag) {
        if (sheet.Text(CellOf(tag, kIdentifierLine, tags)) == identifier)
            return CellOf(tag, kCheckBoxLine, tags);
    }
    return std::nullopt;
}

SelectedTags TickedTags(const Sheet& sheet, Tags tags)
{
    int count = 0;
    QString elements;
    for (int tag = 1; tag <= CountOf(sheet, tags); ++tag) {
        const QString identifier = sheet.Text(CellOf(tag, kIdentifierLine, tags));
        if (identifier.isEmpty() || !IsTicked(sheet, CellOf(tag, kCheckBoxLine, tags)))
            continue;
        elements += TagElement(identifier);
        ++count;
    }
    return {count, ElementText(QStringLiteral("Tags"), elements)};
}

} // namespace schedules
