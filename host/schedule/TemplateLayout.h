#pragma once

#include <QList>
#include <QString>

namespace schedules::host {

/// A data item as a template shows it.
struct ItemLayout
{
    QString location;
    QString caption; ///< the display name, else the name
    bool shown = true;
    bool unitShown = false;
    QString unit;     ///< in which its values are shown; empty for that in which they are stored
    QString dataType; ///< empty for the item's own
    QString format;   ///< such as "0.0" or "#,##0"; empty for as it is stored
    bool userDefined = false;
};

struct GroupLayout
{
    QString caption;
    bool shown = true;
    bool nameShown = false;
    bool bold = false;
    QString color; ///< decimal, as the table has it; empty for none
    QList<ItemLayout> items;
};

/// What of a template makes a schedule.
struct TemplateLayout
{
    bool tagsAsRows = false;
    bool editable = true; ///< whether the template allows that values are edited
    QList<GroupLayout> groups;
};

/// Reads the text of a template as the template model does (docs/template-xml.md): names that are taken are skipped,
/// blanks around names do not count. A flag that is missing, or is none, is as the members above have it at first.
/// Throws `HostError` for a text that is no XML or has a document type declaration, that holds no template, or a group
/// or an item without a name.
TemplateLayout ReadTemplateLayout(const QString& xml);

} // namespace schedules::host
