#pragma once

#include <QLocale>

#include <optional>
#include <string>
#include <string_view>

namespace schedules {

/// Whether a text looks like a number wherever it is read: digits with points or commas between, and perhaps a sign.
/// Spaces of any kind may stand around it.
bool ReadsAsNumber(std::string_view utf8);

enum class Exponents
{
    Refused,
    Allowed
};

/// Reads numbers as people write them into cells: digits of any script with an optional sign in front, a point or a
/// comma before the decimals, and the locale's marks between groups of digits.
///
/// A mark that the locale puts between groups is one only where it does part groups: "1,234" is more than a thousand
/// where the comma parts groups, "12,5" and "0,125" are decimals everywhere.
class NumberReader
{
public:
    explicit NumberReader(const QLocale& locale);

    /// The value of a text that is a number and nothing else, blanks around it allowed; nothing for any other text.
    /// A number too large for a double is infinite.
    std::optional<double> Read(std::string_view utf8, Exponents exponents) const;

private:
    std::optional<double> ReadUnsigned(std::string_view text, Exponents exponents) const;
    std::string WithoutGroups(std::string_view mantissa) const;
    bool IsGrouped(std::string_view whole) const;

    char m_groupMark;
};

} // namespace schedules
