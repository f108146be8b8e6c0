#pragma once

#include <QString>

#include <optional>

namespace schedules::host {

/// A number as values have it: digits, perhaps a sign, a point and an exponent. Nothing groups the digits.
struct NumberText
{
    double value = 0;
    int decimals = 0; ///< of its last digit: 1 for "412.0", 0 for "412", 6 for "1.2E-05", -5 for "1.5E+06"
};

/// The number that a text is, blanks around it not counted; nothing for any other text.
std::optional<NumberText> NumberIn(QStringView text);

/// How numbers are written.
struct NumberFormat
{
    int decimals = 0;
    bool grouped = false;    ///< with a comma for each thousand
    bool scientific = false; ///< with an exponent
};

/// The format that a text such as "0", "0.00", "#,##0.0" or "0.00E+00" stands for; nothing for any other text.
std::optional<NumberFormat> NumberFormatOf(const QString& format);

/// The number with these decimals. A half goes away from zero, and what comes out as zero has no sign.
QString Written(double number, const NumberFormat& format);

/// A number without its commas, when they stand where a grouped format puts them; any other text as it is.
QString WithoutGrouping(const QString& text);

} // namespace schedules::host
