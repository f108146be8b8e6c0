#include "tools/options/saving/FileNameFlaw.h"

#include "common/Blanks.h"
#include "common/modResource.h"
#include "fileutil/FileNames.h"

#include <algorithm>

namespace schedules {

namespace {

constexpr qsizetype kLongestName = 255; // bytes, on all common file systems

bool IsSeparator(QChar character)
{
    return character == u'/' || character == u'\\';
}

bool IsControl(QChar character)
{
    return character < u' ';
}

} // namespace

QString FileNameFlaw(const QString& fileName)
{
    if (TrimmedOfBlanks(fileName).isEmpty())
        return ComponentText("Enter a name.");
    if (fileName == QStringLiteral(".") || fileName == QStringLiteral(".."))
        return ComponentText("A name cannot be one or two dots alone.");
    if (std::ranges::any_of(fileName, IsSeparator))
        return ComponentText("A name cannot contain a slash or a backslash.");
    const auto encoded = EncodedPath(fileName);
    if (!encoded || std::ranges::any_of(fileName, IsControl))
        return ComponentText("The name contains a character that no file name can have.");
    return encoded->size() > kLongestName ? ComponentText("The name is too long for a file.") : QString();
}

} // namespace schedules
