#include "common/Blanks.h"

#include <algorithm>

namespace schedules {

namespace {

constexpr bool IsWhiteSpace(char16_t character)
{
    return character == u' ' || character == u'\t' || character == u'\n' || character == u'\r';
}

} // namespace

QString TrimmedOfBlanks(const QString& text)
{
    constexpr QChar kBlank = u' ';
    qsizetype start = 0;
    qsizetype end = text.size();
    while (end > start && text.at(end - 1) == kBlank)
        --end;
    while (start < end && text.at(start) == kBlank)
        ++start;
    return end - start == text.size() ? text : text.mid(start, end - start);
}

bool IsWhiteSpaceAlone(std::string_view utf8)
{
    return std::ranges::all_of(utf8, [](char byte) { return IsWhiteSpace(static_cast<unsigned char>(byte)); });
}

bool IsWhiteSpaceAlone(QStringView text)
{
    return std::ranges::all_of(text, [](QChar character) { return IsWhiteSpace(character.unicode()); });
}

} // namespace schedules
