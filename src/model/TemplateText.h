#pragma once

#include "common/XmlReader.h"

#include <QString>

#include <optional>
#include <vector>

namespace schedules {

/// A template file as it is written: nothing has been looked at yet but what stands where.
struct TemplateText
{
    using Attributes = std::vector<XmlWrittenAttribute>;

    struct Item
    {
        Attributes attributes;
        QString location;
    };

    struct Group
    {
        Attributes attributes;
        std::vector<Item> items;
    };

    bool found = false;   ///< whether there is a template in the document
    std::size_t mark = 0; ///< the file's mark, see `FileMark`
    Attributes attributes;
    std::vector<Group> groups;
};

/// The value of the attribute "Name", trimmed of blanks; empty when there is none.
QString NameIn(const TemplateText::Attributes& attributes);

/// The first element "Template" of a file, with its groups, their items and locations. Nothing when the file cannot be
/// read, has more than 64 MiB, is not well-formed or out of the bounds of `ReadXml`. Both separators of folders can
/// stand in the name.
std::optional<TemplateText> ReadTemplateFile(const QString& path);

/// A number that changes when the content of a file changes: 0 when it cannot be read, nothing when there is none.
std::optional<std::size_t> FileMark(const QString& path);

} // namespace schedules
