#pragma once

#include "common/XmlDocument.h"
#include "framework/Message.h"

#include <QRegularExpression>
#include <QStringList>

#include <string>

// A template drawn as text, a group or a data item a line:
//
//     [x] Design {ShowGroupName=-1}
//       [ ] Flow
//       [x] *Duty (Note)
//       [-] ~Head {UnitID='m m'}
//
// The mark is "ShowThisGroup" or "ShowThisItem": "x" for "-1", a blank for "0", a hyphen for none. "*" is a
// "UserDefined" of "-1". What follows is "DisplayName", and behind it, where it is another one, "Name"; behind "~" it
// is "Name" alone. Braces hold all other attributes.

namespace schedules::testing {

inline QString Written(const QString& name, const QString& value)
{
    return QStringLiteral(" %1=\"%2\"").arg(name, EscapedXml(value));
}

/// The attributes of a drawn line, as XML.
inline QString AttributesOf(const QString& line, const QString& showThis)
{
    static const QRegularExpression form(
        QStringLiteral(R"(^ *\[(.)\] ([*~]?)(.*?)(?: \(([^)]*)\))?(?: \{([^}]*)\})?$)"));
    static const QRegularExpression others(QStringLiteral(R"((\w+)=(?:'([^']*)'|(\S*)))"));
    const auto parts = form.match(line);
    Q_ASSERT(parts.hasMatch());
    const QString shown = parts.captured(3);
    QString xml = Written(QStringLiteral("Name"), parts.hasCaptured(4) ? parts.captured(4) : shown);
    if (parts.captured(2) != QStringLiteral("~"))
        xml += Written(QStringLiteral("DisplayName"), shown);
    if (parts.captured(1) != QStringLiteral("-"))
        xml += Written(showThis, parts.captured(1) == QStringLiteral("x") ? QStringLiteral("-1") : QStringLiteral("0"));
    if (parts.captured(2) == QStringLiteral("*"))
        xml += Written(QStringLiteral("UserDefined"), QStringLiteral("-1"));
    for (auto each = others.globalMatch(parts.captured(5)); each.hasNext();) {
        const auto other = each.next();
        xml += Written(other.captured(1), other.captured(2) + other.captured(3));
    }
    return xml;
}

/// A file whose root has these attributes, as XML, and whose groups are drawn.
inline QString TemplateText(const QString& rootAttributes, const QString& drawing)
{
    QString xml;
    for (const QString& line : drawing.split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith(u' '))
            xml += QStringLiteral("<Item%1/>").arg(AttributesOf(line, QStringLiteral("ShowThisItem")));
        else
            xml += QStringLiteral("</Group><Group%1>").arg(AttributesOf(line, QStringLiteral("ShowThisGroup")));
    }
    const qsizetype firstEnd = xml.isEmpty() ? 0 : QStringLiteral("</Group>").size();
    return QStringLiteral("<Template %1>").arg(rootAttributes) + xml.mid(firstEnd) +
           (firstEnd ? QStringLiteral("</Group></Template>") : QStringLiteral("</Template>"));
}

/// "DisplayName (Name)", as above.
inline QString DrawnName(const XmlNode& node)
{
    const QString name = node.Attribute(QStringLiteral("Name"));
    if (!node.HasAttribute(QStringLiteral("DisplayName")))
        return u'~' + name;
    const QString shown = node.Attribute(QStringLiteral("DisplayName"));
    const QString mark =
        node.Attribute(QStringLiteral("UserDefined")) == QStringLiteral("-1") ? QStringLiteral("*") : QString();
    return mark + shown + (shown == name ? QString() : QStringLiteral(" (%1)").arg(name));
}

/// What a line has in braces.
inline QString DrawnOthers(const XmlNode& node, const QString& showThis, bool isMarkDrawn)
{
    const bool isUserDefinedDrawn = DrawnName(node).startsWith(u'*');
    QStringList others;
    for (const XmlNode& attribute : node.Select(QStringLiteral("@*"))) {
        const QString name = attribute.Name();
        const bool isDrawn = name == QStringLiteral("Name") || name == QStringLiteral("DisplayName") ||
                             (name == showThis && isMarkDrawn) ||
                             (name == QStringLiteral("UserDefined") && isUserDefinedDrawn);
        if (!isDrawn)
            others += name + u'=' + attribute.WholeText();
    }
    return others.isEmpty() ? QString() : QStringLiteral(" {%1}").arg(others.join(u' '));
}

inline QString DrawnLine(const XmlNode& node, const QString& showThis)
{
    const QString value = node.Attribute(showThis);
    const QString mark = value == QStringLiteral("-1")  ? QStringLiteral("[x] ")
                         : value == QStringLiteral("0") ? QStringLiteral("[ ] ")
                                                        : QStringLiteral("[-] ");
    return mark + DrawnName(node) + DrawnOthers(node, showThis, !mark.startsWith(QStringLiteral("[-")));
}

/// The groups of a template's text, drawn.
inline std::string DrawnGroups(const QString& templateXml)
{
    QStringList lines;
    const auto document = XmlDocument::FromText(templateXml);
    for (const XmlNode& node : document.Select(QStringLiteral("//Group | //Item"))) {
        const bool isItem = node.Name() == QStringLiteral("Item");
        const QString line = DrawnLine(node, isItem ? QStringLiteral("ShowThisItem") : QStringLiteral("ShowThisGroup"));
        lines += isItem ? QStringLiteral("  ") + line : line;
    }
    return lines.join(u'\n').toStdString();
}

} // namespace schedules::testing
