#pragma once

#include "host/project/ProjectTypes.h"
#include "host/schedule/TemplateLayout.h"

#include <QStringList>

#include <string>

namespace schedules::host::testing {

/// The words for what is set, in their order, each with a blank before it.
inline QString Words(const QList<QPair<QString, bool>>& flags)
{
    QString words;
    for (const auto& [word, isSet] : flags)
        words += isSet ? ' ' + word : QString();
    return words;
}

inline QString DrawnItem(const ItemLayout& item)
{
    QString line = QStringLiteral("  %1 -> %2:").arg(item.caption, item.location);
    for (const QString& text : {item.unit, item.dataType, item.format})
        line += text.isEmpty() ? QString() : ' ' + text;
    return line + Words({{"hidden", !item.shown}, {"unit", item.unitShown}, {"user-defined", item.userDefined}});
}

inline QString DrawnGroup(const GroupLayout& group)
{
    const QString color = group.color.isEmpty() ? QString() : ' ' + group.color;
    QString lines = group.caption + ':' + color +
                    Words({{"hidden", !group.shown}, {"named", group.nameShown}, {"bold", group.bold}});
    for (const ItemLayout& item : group.items)
        lines += '\n' + DrawnItem(item);
    return lines;
}

/// The layout, a line for itself and for each group and item.
inline std::string Drawn(const TemplateLayout& layout)
{
    QStringList lines{QStringLiteral("template:") +
                      Words({{"tags as rows", layout.tagsAsRows}, {"fixed", !layout.editable}})};
    for (const GroupLayout& group : layout.groups)
        lines += DrawnGroup(group);
    return lines.join('\n').toStdString();
}

/// Each edit on a line: "P-101A PUMPS/Design/Flow = 412.0 (3)", in brackets the version.
inline std::string Drawn(const QList<ValueEdit>& edits)
{
    QStringList lines;
    for (const ValueEdit& edit : edits)
        lines += QStringLiteral("%1 %2 = %3 (%4)").arg(edit.tag, edit.item, edit.text).arg(edit.version);
    return lines.join('\n').toStdString();
}

/// A table with each of its rows on a line of its own.
inline std::string Rows(QString xml)
{
    return xml.replace("<TR>", "\n<TR>").replace("</TABLE>", "\n</TABLE>").toStdString();
}

} // namespace schedules::host::testing
