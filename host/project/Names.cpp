#include "host/project/Names.h"

namespace schedules::host {

namespace {

template <class Record>
QStringList TextsOf(const QList<Record>& records, QString Record::*text)
{
    QStringList texts;
    for (const Record& record : records)
        texts << record.*text;
    return texts;
}

} // namespace

QStringList Names(const QList<Tag>& tags)
{
    return TextsOf(tags, &Tag::name);
}

QStringList Locations(const QList<DataItem>& items)
{
    return TextsOf(items, &DataItem::location);
}

QStringList FileNames(const QList<TemplateEntry>& entries)
{
    return TextsOf(entries, &TemplateEntry::fileName);
}

} // namespace schedules::host
