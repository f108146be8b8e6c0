#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace schedules::bench {

/// What a figure must not fall below, or exceed.
struct Promise
{
    enum class Bound
    {
        AtLeast,
        AtMost
    };

    Bound bound;
    double limit;

    bool HeldBy(double figure) const { return bound == Bound::AtLeast ? figure >= limit : figure <= limit; }
    std::string Text() const;
};

/// What is promised of a peer's time as a multiple of the component's own, or of a counter; nothing for figures that
/// are only told. `group` and `peer` are the two parts of a benchmark's name: what is done, and who does it.
std::optional<Promise> PromiseOf(std::string_view group, std::string_view peer);

} // namespace schedules::bench
