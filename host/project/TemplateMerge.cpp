#include "host/project/TemplateMerge.h"

#include "host/base/HostError.h"
#include "host/project/NamedRows.h"

#include <QHash>

namespace schedules::host {

namespace {

using EntriesByKey = QHash<QString, TemplateEntry>;

EntriesByKey ByKey(const QList<TemplateEntry>& entries)
{
    EntriesByKey byKey;
    for (const TemplateEntry& entry : entries)
        byKey.insert(NameKey(entry.fileName), entry);
    return byKey;
}

void RequireUnique(const QList<TemplateEntry>& entries)
{
    QSet<QString> names;
    QSet<QString> files;
    for (const TemplateEntry& entry : entries) {
        if (entry.name.isEmpty() || entry.fileName.isEmpty())
            throw HostError(QStringLiteral("a template has no name or no file name"));
        if (files.contains(NameKey(entry.fileName)))
            throw HostError(QStringLiteral("there is a template with the file name %1 already").arg(entry.fileName));
        if (names.contains(NameKey(entry.name)))
            throw HostError(QStringLiteral("there is a template named %1 already").arg(entry.name));
        files.insert(NameKey(entry.fileName));
        names.insert(NameKey(entry.name));
    }
}

class Merge
{
public:
    Merge(const QList<TemplateEntry>& stored, const QList<TemplateEntry>& shown, const QList<TemplateEntry>& wanted,
          const QSet<QString>& written)
        : m_stored(ByKey(stored)), m_shown(ByKey(shown)), m_wanted(ByKey(wanted)), m_written(written)
    {
    }

    void AddStored(const TemplateEntry& entry)
    {
        const QString key = NameKey(entry.fileName);
        const bool isHis = m_wanted.contains(key);
        if (!m_shown.contains(key) && (!isHis || Clashes(key)))
            m_merged.append(entry); // another one's
        if (isHis)
            m_merged.append(Changed(key) ? m_wanted.value(key) : entry);
    }

    void AddWanted(const TemplateEntry& entry)
    {
        const QString key = NameKey(entry.fileName);
        if (!m_stored.contains(key) && (Changed(key) || m_written.contains(key)))
            m_merged.append(entry);
    }

    const QList<TemplateEntry>& Merged() const { return m_merged; }

private:
    bool Changed(const QString& key) const
    {
        return !m_shown.contains(key) || m_shown.value(key) != m_wanted.value(key);
    }

    /// Two have made a template of that file name, and not the same.
    bool Clashes(const QString& key) const
    {
        return m_stored.value(key) != m_wanted.value(key) || m_written.contains(key);
    }

    EntriesByKey m_stored;
    EntriesByKey m_shown;
    EntriesByKey m_wanted;
    QSet<QString> m_written;
    QList<TemplateEntry> m_merged;
};

} // namespace

QList<TemplateEntry> MergedTemplates(const QList<TemplateEntry>& stored, const QList<TemplateEntry>& shown,
                                     const QList<TemplateEntry>& wanted, const QSet<QString>& written)
{
    RequireUnique(wanted);
    Merge merge(stored, shown, wanted, written);
    for (const TemplateEntry& entry : stored)
        merge.AddStored(entry);
    for (const TemplateEntry& entry : wanted)
        merge.AddWanted(entry);
    RequireUnique(merge.Merged());
    return merge.Merged();
}

} // namespace schedules::host
