#pragma once

#include "host/schedule/ScheduleBuilder.h"

namespace schedules::host::testing {

/// Two pumps, and what a project knows of them.
inline ScheduleContent Pumps()
{
    const auto item = [](const char* name, const char* type, const char* unit) {
        return DataItem{.location = QStringLiteral("PUMPS/Design/") + name,
                        .name = name,
                        .group = "Design",
                        .dataType = type,
                        .unit = QString::fromUtf8(unit)};
    };
    ScheduleContent content;
    content.tags = {{"P-101A", "PUMPS"}, {"P-101B", "PUMPS"}};
    content.items = {item("Service", "TEXT", ""), item("Flow", "DOUBLE", "m³/h"), item("Running", "CHECKBOX", ""),
                     item("Temperature", "DOUBLE", "°C")};
    content.items[0].editable = false;
    content.values = {{{"Crude & charge", 1}, {"", 0}},
                      {{"412.0", 3}, {"about 400", 12}},
                      {{"1", 2}, {"", 0}},
                      {{"36.5", 1}, {"-40", 1}}};
    return content;
}

/// An item of `Pumps` as a template shows it.
inline ItemLayout Shown(const char* name, const char* unit = "", const char* format = "")
{
    return {.location = QStringLiteral("PUMPS/Design/") + name,
            .caption = name,
            .unitShown = true,
            .unit = QString::fromUtf8(unit),
            .dataType = {},
            .format = format};
}

inline GroupLayout Group(const char* caption, const QList<ItemLayout>& items)
{
    return {.caption = caption, .nameShown = true, .color = {}, .items = items};
}

} // namespace schedules::host::testing
