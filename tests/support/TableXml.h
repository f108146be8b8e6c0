#pragma once

#include <QString>

namespace schedules::testing {

/// The XML of a schedule table that is drawn as text: a line is a `TR`, bars part its cells. Cells of the first line
/// and the first cell of each line are `TH`, all others `TD`. Behind a cell's text its attributes may stand in braces,
/// and in front of them another name for the element:
///
///     Table("Tag | Flow {hidden=-1 fontBold=-1} \n P-1 | 12 {TH dataType=' CHECKBOX '}")
QString Table(const char* drawing);

/// The `TR` elements alone, to be put into a document of the test's own.
QString TableRows(const char* drawing);

/// A document with this content in a `TABLE`.
QString InTable(const QString& content);

} // namespace schedules::testing
