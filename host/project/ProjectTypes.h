#pragma once

#include <QList>
#include <QPair>
#include <QString>

namespace schedules::host {

/// A kind of equipment. Its name is known without regard to letter case.
struct Category
{
    QString name;
    QString displayName;
    QString pdsg;

    bool operator==(const Category&) const = default;
};

/// A piece of equipment. Its name is known in the whole project, without regard to letter case.
struct Tag
{
    QString name;
    QString category; ///< the name of one

    bool operator==(const Tag&) const = default;
};

/// What can be known of a tag. Templates name it by its location, which is known without regard to letter case.
struct DataItem
{
    QString location; ///< such as "PUMPS/Design/Flow"
    QString name;
    QString group;
    QString dataType; ///< as a schedule's cells have it: "DOUBLE", "CHECKBOX"...; "TEXT" for plain text
    QString unit;     ///< in which values are stored; empty for none
    bool editable = true;
    bool userDefined = false;

    bool operator==(const DataItem&) const = default;
};

/// A value as it is stored. Each storing of another text raises the version by 1; 0 means that none is stored.
struct StoredValue
{
    QString text;
    qint64 version = 0;

    bool operator==(const StoredValue&) const = default;
};

/// A line for each item, and in it a value for each tag, both in the order in which they were asked for.
using ValueTable = QList<QList<StoredValue>>;

/// What is to be stored in place of the value that was shown.
struct ValueEdit
{
    QString tag;
    QString item;       ///< its location
    QString text;       ///< in the unit of the item
    qint64 version = 0; ///< of the value that was shown

    bool operator==(const ValueEdit&) const = default;
};

/// An edit that was not stored, because another value was stored since.
struct Conflict
{
    ValueEdit edit;
    StoredValue stored;

    bool operator==(const Conflict&) const = default;
};

struct SaveResult
{
    int stored = 0; ///< how many values are other than they were
    QList<Conflict> conflicts;

    bool operator==(const SaveResult&) const = default;
};

/// A template as the list of templates names it. Names and file names are known without regard to letter case.
struct TemplateEntry
{
    QString name;
    QString fileName;
    QString pdsg;
    bool readOnly = false;
    QString category;
    bool defaultForCategory = false;
    QList<QPair<QString, QString>> others; ///< attributes that this host does not know, in their order

    bool operator==(const TemplateEntry&) const = default;
};

} // namespace schedules::host
