#include "workbook/PlainNumber.h"

#include <algorithm>
#include <charconv>

namespace schedules {

namespace {

/// As many as a double tells apart, and spreadsheets show.
constexpr std::size_t kMostDigits = 15;
constexpr std::size_t kLongest = kMostDigits + 2;

bool AllDigits(std::string_view text)
{
    return !text.empty() && std::ranges::all_of(text, [](char byte) { return byte >= '0' && byte <= '9'; });
}

bool IsWholePart(std::string_view digits)
{
    return AllDigits(digits) && (digits.size() == 1 || digits.front() != '0');
}

double ValueOf(std::string_view text)
{
    double value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

} // namespace

std::optional<PlainNumber> PlainNumberIn(std::string_view utf8)
{
    if (utf8.size() > kLongest)
        return std::nullopt;
    const bool isNegative = utf8.starts_with('-');
    const std::string_view digits = utf8.substr(isNegative ? 1 : 0);
    const std::size_t mark = digits.find('.');
    const bool isWhole = mark == digits.npos;
    const std::string_view whole = digits.substr(0, mark);
    const std::string_view decimals = isWhole ? std::string_view() : digits.substr(mark + 1);
    if (!IsWholePart(whole) || whole.size() + decimals.size() > kMostDigits)
        return std::nullopt;
    if (!isWhole && !AllDigits(decimals))
        return std::nullopt;
    const double value = ValueOf(utf8);
    if (isNegative && value == 0)
        return std::nullopt;
    return PlainNumber{value, static_cast<int>(decimals.size())};
}

} // namespace schedules
