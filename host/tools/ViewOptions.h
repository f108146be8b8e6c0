#pragma once


namespace schedules::host {

/// The numbers are those of the tool's property `ViewType`.
enum class View
{
    Schedule = 1,
    Selector = 2
};

/// How a table is shown.
struct ViewOptions
{
    View view = View::Schedule;
    bool selectAll = false;
    bool transpose = false;

    bool operator==(const ViewOptions&) const = default;
};

} // namespace schedules::host
