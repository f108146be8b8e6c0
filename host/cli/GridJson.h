#pragma once

#include <QByteArray>

namespace schedules {
class Sheet;
}

namespace schedules::host {

/// A sheet as a JSON document in UTF-8, with a line of its own for every cell. Cells are those within the sheet's size,
/// headers included, that have a text, are a check box, are bold or have a colour, row by row. Rows that are shown in
/// an order of their own, such as sorted ones, keep their numbers and are listed in that order.
QByteArray GridJson(const Sheet& sheet, int orientation, bool transposed);

} // namespace schedules::host
