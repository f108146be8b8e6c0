#pragma once

#include <QString>

#include <array>
#include <vector>

namespace schedules {

/// How a text of a page's header looks.
struct HeaderLook
{
    QString font = QStringLiteral("Arial");
    double size = 10; ///< points
    bool bold = false;

    bool operator==(const HeaderLook&) const = default;
};

struct HeaderRun
{
    QString text;
    HeaderLook look;

    bool operator==(const HeaderRun&) const = default;
};

enum class HeaderPart
{
    Left,
    Center,
    Right
};
inline constexpr std::size_t kHeaderPartCount = 3;

/// A line of a page's header. Its three parts are set independently of each other.
struct HeaderLine
{
    std::array<std::vector<HeaderRun>, kHeaderPartCount> parts;
    HeaderLook look; ///< at the end of the line; gives a line without text its height

    const std::vector<HeaderRun>& Part(HeaderPart part) const { return parts[static_cast<std::size_t>(part)]; }
};

/// The lines of a header in print codes:
///
///     /fn"Arial"  font      /fz"12"  size in points      /fb1 /fb0  bold on, off
///     /l /c /r    what follows is the left, centre or right part of the line      /n  new line
///
/// A "/" that starts none of these is text. A line starts in its left part; fonts go on over lines. What follows the
/// last "/n" is a line only when there is something. Half a character is read as U+FFFD.
std::vector<HeaderLine> ReadPrintCodes(const QString& codes);

/// A text whose slashes `ReadPrintCodes` reads as nothing but slashes.
QString ProtectedFromCodes(QString text);

} // namespace schedules
