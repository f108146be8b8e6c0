#pragma once

#include "host/project/ProjectTypes.h"

namespace schedules::host {

class Database;

/// The templates of a project's tables, within a transaction of the caller. All throw `HostError`. What each does is
/// told in `Project`.
class TemplateStore
{
public:
    explicit TemplateStore(Database& database) : m_database(database) {}

    QList<TemplateEntry> Templates() const;
    QString Text(const QString& fileName) const;
    void Merge(const QList<TemplateEntry>& shown, const QList<TemplateEntry>& wanted,
               const QList<QPair<QString, QString>>& texts, const QList<QPair<QString, QString>>& known);
    void Remove(const QString& fileName);
    QString Current(const QString& category) const;
    void SetCurrent(const QString& category, const QString& fileName);

private:
    int Required(const QString& fileName) const;
    void Replace(const QList<TemplateEntry>& before, const QList<TemplateEntry>& after);
    void Put(const QList<TemplateEntry>& entries);
    void PutText(const QString& fileName, const QString& text);

    Database& m_database;
};

} // namespace schedules::host
