#pragma once

#include "host/files/XmlFile.h"
#include "host/project/Project.h"
#include "host/project/TemplateListXml.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace schedules::host::testing {

/// The text of a template with one group of items, named by their locations.
inline QString TemplateWith(const QString& name, const QStringList& locations,
                            const QString& category = QStringLiteral("PUMPS"))
{
    QString items;
    for (const QString& location : locations)
        items +=
            QStringLiteral("<Item Name=\"%1\" DisplayName=\"%1\" ShowThisItem=\"-1\"><Location>%2</Location></Item>")
                .arg(location.section(u'/', -1), location);
    return QStringLiteral("<Template Name=\"%1\" DisplayName=\"%1\" Category=\"%2\" AllowEdit=\"-1\">"
                          "<Group Name=\"Design\" DisplayName=\"Design\" ShowThisGroup=\"-1\">%3</Group></Template>")
        .arg(name, category, items);
}

/// A list of templates as lines, with what is not as usual behind the file.
inline std::string Drawn(const QList<TemplateEntry>& entries)
{
    QStringList lines;
    for (const TemplateEntry& entry : entries) {
        QStringList words{entry.name, entry.fileName, entry.category};
        if (entry.readOnly)
            words << QStringLiteral("read-only");
        if (entry.defaultForCategory)
            words << QStringLiteral("default");
        for (const auto& [name, value] : entry.others)
            words << name + u'=' + value;
        lines << words.join(u' ');
    }
    return lines.join(u'\n').toStdString();
}

/// A project in a file of its own: two pumps and a fan, two data items, two templates for pumps.
class SmallProject : public ::testing::Test
{
protected:
    SmallProject() { Fill(); }

    QString Path(const QString& name) const { return m_folder.filePath(name); }

    QString Address() const { return Path(QStringLiteral("small.schedules")); }

    std::string Stored(const QString& tag, const QString& item) const
    {
        const StoredValue value = project->Values({tag}, {item}).first().first();
        return QStringLiteral("%1 v%2").arg(value.text).arg(value.version).toStdString();
    }

    /// What somebody else stores meanwhile.
    void StoredElsewhere(const QString& tag, const QString& item, const QString& text) const
    {
        const auto other = Project::Open(Address());
        const StoredValue now = other->Values({tag}, {item}).first().first();
        other->Save({{tag, item, text, now.version}});
    }

    static inline const QString kFlow = QStringLiteral("PUMPS/Design/Flow");
    static inline const QString kHead = QStringLiteral("PUMPS/Design/Head");

private:
    void Fill() const
    {
        project->Put(
            {.categories = {{"PUMPS", "Pumps", "P"}, {"FANS", "Fans", "F"}},
             .tags = {{"P-1", "PUMPS"}, {"P-2", "PUMPS"}, {"F-1", "FANS"}},
             .items = {{kFlow, "Flow", "Design", "DOUBLE", "m³/h"}, {kHead, "Head", "Design", "DOUBLE", "m"}},
             .values = {{"P-1", kFlow, "12"}, {"P-2", kFlow, "13"}, {"P-1", kHead, "48"}, {"P-2", kHead, "49"}}});
        project->MergeTemplates(
            {},
            {{.name = "Both", .fileName = "Both.xml", .category = "PUMPS", .defaultForCategory = true},
             {.name = "Flow", .fileName = "Flow.xml", .category = "PUMPS"}},
            {{"Both.xml", TemplateWith("Both", {kFlow, kHead})}, {"Flow.xml", TemplateWith("Flow", {kFlow})}});
    }

    QTemporaryDir m_folder;

protected:
    std::unique_ptr<Project> project = Project::Create(Address());
};

} // namespace schedules::host::testing
