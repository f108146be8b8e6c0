#include "spread/NumberReader.h"

#include "common/Utf8.h"

#include <QString>

#include <algorithm>
#include <charconv>

namespace schedules {

namespace {

constexpr std::string_view kBlanks = " \t\r\n\f\v";
constexpr char kNoMark = '\0';

bool IsAscii(std::string_view text)
{
    return std::ranges::none_of(text, [](char byte) { return (byte & 0x80) != 0; });
}

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool IsDecimalMark(char character)
{
    return character == '.' || character == ',';
}

/// The ASCII character that means the same in a number; `kNoMark` when there is none.
char InAscii(char32_t character)
{
    if (const int digit = QChar::digitValue(character); digit >= 0)
        return static_cast<char>('0' + digit);
    if (QChar::isSpace(character))
        return ' ';
    switch (character) {
    case U'\u2212': // minus sign
        return '-';
    case U'\u2019': // right single quotation mark
        return '\'';
    case U'\u066B': // Arabic decimal separator
        return '.';
    case U'\u066C': // Arabic thousands separator
    case U'\u2E41': // reversed comma
        return ',';
    default:
        return character < 0x80 ? static_cast<char>(character) : kNoMark;
    }
}

/// Empty for a text with a character that no number has. Marks that steer the direction of writing stand around the
/// signs of numbers in scripts that run leftwards; they are left out.
std::string InAscii(const QString& text)
{
    std::string plain;
    for (const char32_t character : text.toUcs4()) {
        if (QChar::category(character) == QChar::Other_Format)
            continue;
        plain += InAscii(character);
        if (plain.back() == kNoMark)
            return {};
    }
    return plain;
}

std::string_view Trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(kBlanks);
    return first == text.npos ? std::string_view() : text.substr(first, text.find_last_not_of(kBlanks) + 1 - first);
}

/// Only then is the text worth a conversion.
bool MayHaveOtherSpaceAround(std::string_view trimmed)
{
    return !trimmed.empty() && !(IsAscii(trimmed.substr(0, 1)) && IsAscii(trimmed.substr(trimmed.size() - 1)));
}

bool IsNumberText(std::string_view digits)
{
    if (digits.starts_with('+') || digits.starts_with('-'))
        digits.remove_prefix(1);
    const auto isPart = [](char character) { return IsDigit(character) || IsDecimalMark(character); };
    return std::ranges::all_of(digits, isPart) && std::ranges::any_of(digits, IsDigit);
}

bool IsDecimal(std::string_view mantissa)
{
    const auto digits = std::ranges::count_if(mantissa, IsDigit);
    const auto marks = std::ranges::count_if(mantissa, IsDecimalMark);
    return digits > 0 && marks <= 1 && digits + marks == std::ssize(mantissa);
}

/// "e" or "E", perhaps a sign, and digits; or nothing at all.
bool IsExponent(std::string_view text)
{
    if (text.empty())
        return true;
    text.remove_prefix(1);
    if (text.starts_with('+') || text.starts_with('-'))
        text.remove_prefix(1);
    return !text.empty() && std::ranges::all_of(text, IsDigit);
}

double ValueOf(const std::string& number)
{
    double value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    // Only Qt tells a number that is too large from one that is too small.
    return error == std::errc() ? value : QString::fromStdString(number).toDouble();
}

} // namespace

bool ReadsAsNumber(std::string_view utf8)
{
    const std::string_view text = Trimmed(utf8);
    if (MayHaveOtherSpaceAround(text))
        return IsNumberText(FromUtf8(text).trimmed().toStdString());
    return IsNumberText(text);
}

NumberReader::NumberReader(const QLocale& locale)
{
    const std::string mark = InAscii(locale.groupSeparator());
    m_groupMark = mark.size() == 1 ? mark.front() : kNoMark;
}

std::optional<double> NumberReader::Read(std::string_view utf8, Exponents exponents) const
{
    if (!IsAscii(utf8))
        return Read(InAscii(QString::fromUtf8(utf8.data(), std::ssize(utf8))), exponents);
    const std::string_view text = Trimmed(utf8);
    if (text.starts_with('+'))
        return ReadUnsigned(text.substr(1), exponents);
    if (!text.starts_with('-'))
        return ReadUnsigned(text, exponents);
    const std::optional<double> value = ReadUnsigned(text.substr(1), exponents);
    return value ? std::optional(-*value) : std::nullopt;
}

std::optional<double> NumberReader::ReadUnsigned(std::string_view text, Exponents exponents) const
{
    if (text.empty() || !(IsDigit(text.front()) || IsDecimalMark(text.front())))
        return std::nullopt;
    const std::size_t end = exponents == Exponents::Allowed ? text.find_first_of("eE") : text.npos;
    const std::string_view exponent = end == text.npos ? std::string_view() : text.substr(end);
    std::string number = WithoutGroups(text.substr(0, end));
    if (!IsDecimal(number) || !IsExponent(exponent))
        return std::nullopt;
    std::ranges::replace(number, ',', '.');
    return ValueOf(number.append(exponent));
}

std::string NumberReader::WithoutGroups(std::string_view mantissa) const
{
    const auto isDecimalMark = [this](char character) { return IsDecimalMark(character) && character != m_groupMark; };
    const auto decimals = std::ranges::find_if(mantissa, isDecimalMark);
    std::string number(mantissa.begin(), decimals);
    if (IsGrouped(number))
        std::erase(number, m_groupMark);
    return number.append(decimals, mantissa.end());
}

/// One to three digits without a zero in front, then groups, the last one of three digits. India parts two by two
/// before that.
bool NumberReader::IsGrouped(std::string_view whole) const
{
    if (whole.starts_with('0') || whole.starts_with(m_groupMark))
        return false;
    bool marked = false;
    int digits = 0;
    for (const char character : whole) {
        if (character != m_groupMark) {
            ++digits;
            continue;
        }
        if (digits > 3 || (marked && digits < 2))
            return false;
        marked = true;
        digits = 0;
    }
    return marked && digits == 3;
}

} // namespace schedules
