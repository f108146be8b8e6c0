#include "host/project/TemplateStore.h"

#include "host/base/HostError.h"
#include "host/project/Database.h"
#include "host/project/NamedRows.h"
#include "host/project/TemplateMerge.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace schedules::host {

namespace {

using Attributes = QList<QPair<QString, QString>>;

QString JsonOf(const Attributes& attributes)
{
    QJsonArray pairs;
    for (const auto& [name, value] : attributes)
        pairs.append(QJsonArray{name, value});
    return QString::fromUtf8(QJsonDocument(pairs).toJson(QJsonDocument::Compact));
}

Attributes AttributesOf(const QString& json)
{
    Attributes attributes;
    const QJsonArray pairs = QJsonDocument::fromJson(json.toUtf8()).array();
    for (const QJsonValue& pair : pairs)
        attributes.append({pair[0].toString(), pair[1].toString()});
    return attributes;
}

TemplateEntry EntryOf(const QSqlQuery& row)
{
    const auto text = [&](int column) { return row.value(column).toString(); };
    return {text(0), text(1), text(2), row.value(3).toBool(), text(4), row.value(5).toBool(), AttributesOf(text(6))};
}

QSet<QString> KeysOf(const QList<QPair<QString, QString>>& texts)
{
    QSet<QString> keys;
    for (const auto& [fileName, text] : texts)
        keys.insert(NameKey(fileName));
    return keys;
}

QSet<QString> KeysOf(const QList<TemplateEntry>& entries)
{
    QSet<QString> keys;
    for (const TemplateEntry& entry : entries)
        keys.insert(NameKey(entry.fileName));
    return keys;
}

} // namespace

QList<TemplateEntry> TemplateStore::Templates() const
{
    QList<TemplateEntry> entries;
    m_database.Run(QStringLiteral("SELECT name, file_name, pdsg, read_only, category, is_default, others"
                                  " FROM template ORDER BY id"),
                   {}, [&](const QSqlQuery& row) { entries.append(EntryOf(row)); });
    return entries;
}

QString TemplateStore::Text(const QString& fileName) const
{
    return m_database.Text(QStringLiteral("SELECT text FROM template WHERE key = ?"), {NameKey(fileName)});
}

void TemplateStore::Merge(const QList<TemplateEntry>& shown, const QList<TemplateEntry>& wanted,
                          const QList<QPair<QString, QString>>& texts, const QList<QPair<QString, QString>>& known)
{
    for (const auto& [fileName, text] : known) {
        if (Text(fileName) != text)
            throw TextsChanged(QStringLiteral("somebody else has changed %1 at the same moment").arg(fileName));
    }
    const QList<TemplateEntry> before = Templates();
    Replace(before, MergedTemplates(before, shown, wanted, KeysOf(texts)));
    for (const auto& [fileName, text] : texts)
        PutText(fileName, text);
}

void TemplateStore::Replace(const QList<TemplateEntry>& before, const QList<TemplateEntry>& after)
{
    const QSet<QString> kept = KeysOf(after);
    for (const TemplateEntry& entry : before) {
        if (!kept.contains(NameKey(entry.fileName)))
            Remove(entry.fileName);
    }
    QList<TemplateEntry> changed;
    std::ranges::copy_if(after, std::back_inserter(changed),
                         [&](const TemplateEntry& entry) { return !before.contains(entry); });
    Put(changed);
}

void TemplateStore::Put(const QList<TemplateEntry>& entries)
{
    QList<QVariantList> rows;
    for (const TemplateEntry& entry : entries) {
        const QString key = NameKey(entry.fileName);
        // Out of the way first: two templates may change names with each other.
        m_database.Run(QStringLiteral("UPDATE template SET name_key = ? WHERE key = ?"), {'\n' + key, key});
        rows.append({key, entry.fileName, NameKey(entry.name), entry.name, entry.pdsg, int(entry.readOnly),
                     NameKey(entry.category), entry.category, int(entry.defaultForCategory), JsonOf(entry.others)});
    }
    const QStringList columns{QStringLiteral("file_name"), QStringLiteral("name_key"),   QStringLiteral("name"),
                              QStringLiteral("pdsg"),      QStringLiteral("read_only"),  QStringLiteral("category_key"),
                              QStringLiteral("category"),  QStringLiteral("is_default"), QStringLiteral("others")};
    PutRows(m_database, {QStringLiteral("template"), columns}, rows);
}

void TemplateStore::PutText(const QString& fileName, const QString& text)
{
    m_database.Run(QStringLiteral("UPDATE template SET text = ? WHERE id = ?"), {text, Required(fileName)});
}

int TemplateStore::Required(const QString& fileName) const
{
    const int id =
        m_database.Text(QStringLiteral("SELECT id FROM template WHERE key = ?"), {NameKey(fileName)}).toInt();
    if (id == 0)
        throw HostError(QStringLiteral("there is no template %1").arg(fileName));
    return id;
}

void TemplateStore::Remove(const QString& fileName)
{
    m_database.Run(QStringLiteral("DELETE FROM template WHERE key = ?"), {NameKey(fileName)});
}

QString TemplateStore::Current(const QString& category) const
{
    const QString set = m_database.Text(QStringLiteral("SELECT file_name FROM template JOIN current_template"
                                                       " ON template_id = template.id"
                                                       " WHERE current_template.category_key = ?"),
                                        {NameKey(category)});
    if (!set.isEmpty())
        return set;
    return m_database.Text(QStringLiteral("SELECT file_name FROM template WHERE category_key = ? AND is_default = 1"
                                          " ORDER BY id LIMIT 1"),
                           {NameKey(category)});
}

void TemplateStore::SetCurrent(const QString& category, const QString& fileName)
{
    m_database.Run(QStringLiteral("INSERT INTO current_template (category_key, template_id) VALUES (?, ?)"
                                  " ON CONFLICT (category_key) DO UPDATE SET template_id = excluded.template_id"),
                   {NameKey(category), Required(fileName)});
}

} // namespace schedules::host
