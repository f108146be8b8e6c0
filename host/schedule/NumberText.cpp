#include "host/schedule/NumberText.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace schedules::host {

namespace {

constexpr int kMostDecimals = 15; ///< more than a double holds would be noise

bool StandsInNumbers(QChar character)
{
    return (character >= u'0' && character <= u'9') || character == u'.' || character == u'-' || character == u'+' ||
           character == u'E' || character == u'e';
}

int DecimalsOf(QStringView number)
{
    const auto exponent = std::ranges::find_if(number, [](QChar each) { return each == u'E' || each == u'e'; });
    const QStringView digits(number.begin(), exponent);
    const qsizetype point = digits.indexOf(u'.');
    const qsizetype decimals = point < 0 ? 0 : digits.size() - point - 1;
    const int shift = exponent == number.end() ? 0 : QStringView(exponent + 1, number.end()).toInt();
    return static_cast<int>(decimals) - shift;
}

/// A half that a person reads, such as 0.15, may lie a little below it as a double, and one that lies exactly there
/// would go to the even digit.
double WithHalvesRaised(double number)
{
    constexpr double kHair = 1e-15;
    constexpr double kMost = 1e12; // beyond it a hair is as much as a digit
    return std::abs(number) < kMost ? number + number * kHair : number;
}

bool IsZero(const QString& written)
{
    return std::ranges::none_of(written, [](QChar each) { return each >= u'1' && each <= u'9'; });
}

QString Fixed(double number, int decimals)
{
    QString text = QString::number(WithHalvesRaised(number), 'f', decimals);
    if (text.startsWith(u'-') && IsZero(text))
        text.remove(0, 1);
    return text;
}

QString Grouped(QString text)
{
    const qsizetype first = text.startsWith(u'-') ? 1 : 0;
    const qsizetype point = text.indexOf(u'.');
    for (qsizetype place = (point < 0 ? text.size() : point) - 3; place > first; place -= 3)
        text.insert(place, u',');
    return text;
}

} // namespace

std::optional<NumberText> NumberIn(QStringView text)
{
    const QStringView number = text.trimmed();
    if (!std::ranges::all_of(number, StandsInNumbers))
        return std::nullopt;
    bool isNumber = false;
    const double value = number.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value))
        return std::nullopt;
    return NumberText{value, DecimalsOf(number)};
}

std::optional<NumberFormat> NumberFormatOf(const QString& format)
{
    static const QRegularExpression kForm(QStringLiteral(R"(^(#,##)?0(?:\.(0+))?(E\+00)?$)"));
    const auto parts = kForm.match(format);
    if (!parts.hasMatch())
        return std::nullopt;
    const int decimals = static_cast<int>(std::min<qsizetype>(parts.capturedLength(2), kMostDecimals));
    return NumberFormat{decimals, parts.capturedLength(1) > 0, parts.capturedLength(3) > 0};
}

QString Written(double number, const NumberFormat& format)
{
    if (format.scientific)
        return QString::number(number, 'E', format.decimals);
    const QString text = Fixed(number, std::clamp(format.decimals, 0, kMostDecimals));
    return format.grouped ? Grouped(text) : text;
}

QString WithoutGrouping(const QString& text)
{
    static const QRegularExpression kGrouped(QStringLiteral(R"(^\s*[+-]?[0-9]{1,3}(,[0-9]{3})+(\.[0-9]*)?\s*$)"));
    return kGrouped.match(text).hasMatch() ? QString(text).remove(u',') : text;
}

} // namespace schedules::host
