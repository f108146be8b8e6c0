#pragma once

#include "host/base/HostError.h"
#include "host/import/Import.h"
#include "host/project/Project.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace schedules::host::testing {

/// A project in a folder of its own, and the tables that are imported into it.
class ImportedProject : public ::testing::Test
{
protected:
    ImportedProject() { QDir::setCurrent(m_folder.path()); }
    ~ImportedProject() override { QDir::setCurrent(QDir::rootPath()); }
    Q_DISABLE_COPY_MOVE(ImportedProject)

    Project& OwnProject() { return *m_project; }

    ImportResult Imported(const QByteArray& table)
    {
        QFile file(QStringLiteral("tags.csv"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(table);
        file.close();
        return ImportTable(*m_project, file.fileName());
    }

    /// What an import is refused with; empty when it is not.
    QString Refusal(const QByteArray& table)
    {
        try {
            Imported(table);
        } catch (const HostError& error) {
            return error.Line();
        }
        return {};
    }

    /// A line for each thing that the project knows.
    QStringList Drawn() const
    {
        QStringList lines;
        for (const Category& category : m_project->Categories())
            lines << QStringList{"category", category.name, category.displayName, category.pdsg}.join('|');
        const QList<DataItem> items = m_project->Items();
        for (const DataItem& item : items)
            lines << DrawnItem(item);
        for (const Tag& tag : m_project->Tags())
            lines << QStringList{"tag", tag.name, tag.category}.join('|') + DrawnValues(tag, items);
        return lines;
    }

private:
    static QString DrawnItem(const DataItem& item)
    {
        const QString flags = QString(item.editable ? " editable" : "") + (item.userDefined ? " userdefined" : "");
        return QStringList{"item", item.location, item.name, item.group, item.dataType, item.unit}.join('|') + flags;
    }

    QString DrawnValues(const Tag& tag, const QList<DataItem>& items) const
    {
        QString drawn;
        for (const DataItem& item : items) {
            const QString text = m_project->Values({tag.name}, {item.location})[0][0].text;
            if (!text.isEmpty())
                drawn += ' ' + item.name + '=' + text;
        }
        return drawn;
    }

    QTemporaryDir m_folder;
    std::unique_ptr<Project> m_project = Project::Create(m_folder.filePath(QStringLiteral("plant.schedules")));
};

} // namespace schedules::host::testing
