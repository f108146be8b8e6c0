#pragma once

#include "host/import/SampleProject.h"
#include "host/project/NamedRows.h"
#include "host/project/Project.h"
#include "support/TraceLog.h"

#include <QHash>
#include <QTemporaryDir>

#include <algorithm>
#include <gtest/gtest.h>

namespace schedules::host::testing {

/// The sample plant in a project, and its values by tag and location.
class SamplePlant
{
public:
    SamplePlant()
    {
        const schedules::testing::TraceLog statements("schedhost.statements");
        FillWithSample(*m_project);
        m_statements = statements.lines.size();
        ReadValues();
    }

    const Project& Held() const { return *m_project; }

    /// How many statements filled it.
    qsizetype Statements() const { return m_statements; }

    QString Text(const QString& tag, const QString& location) const
    {
        return m_values.value({NameKey(tag), NameKey(location)});
    }

    /// Tags of a category that have all of the values.
    QStringList TagsWith(const QString& category, const QStringList& locations) const
    {
        QStringList names;
        for (const Tag& tag : m_project->Tags(category)) {
            if (std::ranges::none_of(locations, [&](const QString& place) { return Text(tag.name, place).isEmpty(); }))
                names << tag.name;
        }
        return names;
    }

private:
    void ReadValues()
    {
        QStringList tags;
        QStringList items;
        for (const Tag& tag : m_project->Tags())
            tags << tag.name;
        for (const DataItem& item : m_project->Items())
            items << item.location;
        const ValueTable values = m_project->Values(tags, items);
        for (qsizetype item = 0; item < items.size(); ++item) {
            for (qsizetype tag = 0; tag < tags.size(); ++tag)
                m_values.insert({NameKey(tags[tag]), NameKey(items[item])}, values[item][tag].text);
        }
    }

    QTemporaryDir m_folder;
    std::unique_ptr<Project> m_project = Project::Create(m_folder.filePath(QStringLiteral("sample.schedules")));
    qsizetype m_statements = 0;
    QHash<QPair<QString, QString>, QString> m_values;
};

class SampleProject : public ::testing::Test
{
protected:
    static void SetUpTestSuite() { s_plant = std::make_unique<SamplePlant>(); }
    static void TearDownTestSuite() { s_plant.reset(); }

    static const SamplePlant& Plant() { return *s_plant; }
    static const Project& Held() { return s_plant->Held(); }

    static double Number(const QString& tag, const QString& location)
    {
        bool isNumber = false;
        const double number = Plant().Text(tag, location).toDouble(&isNumber);
        EXPECT_TRUE(isNumber) << qPrintable(tag + ' ' + location + ": " + Plant().Text(tag, location));
        return number;
    }

private:
    static inline std::unique_ptr<SamplePlant> s_plant;
};

} // namespace schedules::host::testing
