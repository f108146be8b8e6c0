#include "grid/ScheduleTable.h"

#include "common/PlainXml.h"
#include "common/XmlReader.h"
#include "grid/ScheduleReader.h"

namespace schedules {

ParsedTable ParseScheduleTable(const QString& xml)
{
    const auto utf8 = XmlUtf8(xml);
    auto reader = utf8 ? ReadEitherWay<ScheduleReader>(*utf8) : std::nullopt;
    if (!reader)
        return {TableFault::NotWellFormed, {}};
    if (!reader->SawRoot())
        return {TableFault::Empty, {}};
    if (reader->RowCount() == 0)
        return {TableFault::NoRows, {}};
    return {TableFault::None, reader->Take()};
}

} // namespace schedules
