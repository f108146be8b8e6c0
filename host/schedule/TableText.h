#pragma once

#include <QString>

namespace schedules::host {

/// The attributes of a table that this host adds for itself; views ignore them.
inline constexpr QLatin1String kTagAttribute("tag");         ///< on a header cell: the name of the tag
inline constexpr QLatin1String kItemAttribute("item");       ///< on a header cell: the location of the data item
inline constexpr QLatin1String kUnitAttribute("unit");       ///< beside it: the unit in which its values are shown
inline constexpr QLatin1String kFormatAttribute("format");   ///< beside it: the format in which they are written
inline constexpr QLatin1String kVersionAttribute("version"); ///< on a cell that may be edited; 0 when it is missing

/// What is true in a table.
inline constexpr QLatin1String kTrue("-1");

/// ` name="value"`, as it stands in a start tag; nothing for no value.
QString AttributeText(QLatin1String name, const QString& value);

/// Ends a cell that was begun without its ">": with a text, or as an empty element.
void AppendEnd(QString& xml, QLatin1String element, const QString& text);

/// A header cell with attributes as `AttributeText` writes them.
QString HeaderCell(const QString& attributes, const QString& text);

/// "Design flow (m³/h)"; the caption alone when there is no unit.
QString CaptionWithUnit(const QString& caption, const QString& unit);

/// Whether the text of a value ticks a check box.
bool IsTicked(const QString& text);

} // namespace schedules::host
