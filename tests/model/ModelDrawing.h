#pragma once

#include "model/CTemplates.h"
#include "support/ScriptedUserInterface.h"

#include <QStringList>

namespace schedules::testing {

/// A text in which line breaks and tabs can be seen.
inline QString Visible(QString text)
{
    return text.replace('\\', "\\\\").replace('\n', "\\n").replace('\r', "\\r").replace('\t', "\\t");
}

/// "Name='Design' ShowThisGroup='-1'"
inline QString DrawnProperties(const CProperties& properties)
{
    QStringList drawn;
    for (const auto& property : properties.NewEnum())
        drawn += Visible(QString("%1='%2'").arg(property->Name(), TextOf(property->Value())));
    return drawn.join(' ');
}

/// "  1 Flow: Name='Flow' -> PUMPS/Flow", the number being the item's own.
inline QString DrawnItem(const CElement& item)
{
    const QString line = QString("    %1 %2: ").arg(item.ID()).arg(Visible(item.Name()));
    return line + DrawnProperties(item.Properties()) + " -> " + Visible(item.Location()) + '\n';
}

inline QString DrawnGroup(const CGroup& group)
{
    const QString line = QString("  %1 %2: ").arg(group.ID()).arg(Visible(group.Name()));
    QString drawn = line + DrawnProperties(group.Properties()) + '\n';
    for (const auto& item : group.Elements().NewEnum())
        drawn += DrawnItem(*item);
    return drawn;
}

/// A template with all that its file holds, a line each: its properties, its groups, their items.
inline QString DrawnTemplate(const CTemplate& drawn)
{
    QString text = DrawnProperties(drawn.Properties()) + '\n';
    for (const auto& group : drawn.Groups().NewEnum())
        text += DrawnGroup(*group);
    return text;
}

inline std::string Drawn(const CProperties& properties)
{
    return DrawnProperties(properties).toStdString();
}

inline std::string Drawn(const CTemplate& drawn)
{
    return DrawnTemplate(drawn).toStdString();
}

/// "1 Design, 2 Motor": members of a collection with their numbers.
template <class Collection>
std::string Listed(const Collection& collection)
{
    QStringList listed;
    for (const auto& member : collection.NewEnum())
        listed += QString("%1 %2").arg(member->ID()).arg(member->Name());
    return listed.join(", ").toStdString();
}

/// The name of a member; "nothing" without one.
template <class Pointer>
std::string NameOf(const Pointer& member)
{
    return member ? member->Name().toStdString() : "nothing";
}

/// What the user saw, a line each: "style|title|text|number|subject".
inline std::string Seen(const ScriptedUserInterface& user)
{
    std::string seen;
    for (const MessageBox& box : user.boxes) {
        const QStringList fields{QString::number(box.style), box.title, box.text, QString::number(box.number),
                                 box.subject};
        seen += (fields.join('|') + '\n').toStdString();
    }
    return seen;
}

} // namespace schedules::testing
