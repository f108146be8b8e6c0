#pragma once

#include <optional>
#include <string_view>

namespace schedules {

/// A number as a text shows it.
struct PlainNumber
{
    double value = 0;
    int decimals = 0;

    bool operator==(const PlainNumber&) const = default;
};

/// The number in a text that a spreadsheet shows just so when it is given the value and the number of decimals: digits,
/// with a minus sign in front and a decimal point within at most. Nothing for any other text, such as "007", "+5",
/// "-0",
/// ".5" or one of more than 15 digits; nor for one with a comma, which the reader's system would show as a point, or
/// which parts thousands.
std::optional<PlainNumber> PlainNumberIn(std::string_view utf8);

} // namespace schedules
