#pragma once

#include "TestServer.h"
#include "host/base/HostError.h"
#include "host/project/Project.h"

#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <memory>
#include <optional>

namespace schedules::host::testing {

enum class Place
{
    File,
    Server
};

/// Where projects are stored in this run: on a server as well, when there is one for the tests.
inline std::vector<Place> Places()
{
    return TestServer().isEmpty() ? std::vector{Place::File} : std::vector{Place::File, Place::Server};
}

/// For tests that need a server. There are none without one.
inline std::vector<Place> Servers()
{
    return TestServer().isEmpty() ? std::vector<Place>() : std::vector{Place::Server};
}

inline std::string PlaceName(const ::testing::TestParamInfo<Place>& info)
{
    return info.param == Place::Server ? "Server" : "File";
}

/// The line that a step fails with.
template <typename Step>
std::string Failure(Step step)
{
    try {
        step();
    } catch (const HostError& error) {
        EXPECT_FALSE(error.Line().contains('\n'));
        return error.what();
    }
    return "no failure";
}

inline Project::Content SmallPlant()
{
    return {{{"PUMPS", "Pumps", "PDSG-10"}, {"FANS", "Fans", "PDSG-20"}},
            {{"P-1", "PUMPS"}, {"P-2", "PUMPS"}, {"F-1", "FANS"}},
            {{"Design/Flow", "Flow", "Design", "DOUBLE", "m3/h", true, false},
             {"Design/Head", "Head", "Design", "DOUBLE", "m", true, true},
             {"Design/Id", "Id", "Design", "TEXT", "", false, false}},
            {{"P-1", "Design/Flow", "12.5"}, {"P-2", "Design/Flow", "14"}, {"P-1", "Design/Head", "48"}}};
}

/// "12.5 v1 | -": each value with its version, a line for each item.
inline std::string Drawn(const ValueTable& table)
{
    QStringList lines;
    for (const auto& line : table) {
        QStringList values;
        for (const StoredValue& value : line)
            values.append(value == StoredValue() ? "-" : QString("%1 v%2").arg(value.text).arg(value.version));
        lines.append(values.join(" | "));
    }
    return lines.join('\n').toStdString();
}

/// "2 stored; P-1 Design/Flow: 13, not 12 v2"
inline std::string Drawn(const SaveResult& result)
{
    QStringList parts{QString("%1 stored").arg(result.stored)};
    for (const auto& [edit, stored] : result.conflicts)
        parts.append(
            QString("%1 %2: %3, not %4 v%5").arg(edit.tag, edit.item, edit.text, stored.text).arg(stored.version));
    return parts.join("; ").toStdString();
}

/// A place for a project: a file in a folder of its own, or an empty database.
struct StoredProject : ::testing::TestWithParam<Place>
{
    StoredProject()
    {
        if (GetParam() == Place::Server)
            m_database.emplace();
    }

    bool OnServer() const { return m_database.has_value(); }
    QString Address() const { return OnServer() ? m_database->Address() : m_folder.filePath("plant.schedules"); }

    /// A project with `SmallPlant`.
    std::unique_ptr<Project> Plant() const
    {
        auto project = Project::Create(Address());
        project->Put(SmallPlant());
        return project;
    }

    std::unique_ptr<Project> Opened() const { return Project::Open(Address()); }

    /// Another program at the database.
    Database Raw() const { return Database{ProjectAddress(Address())}; }

    ServerDatabase& OfServer() { return *m_database; }

private:
    QTemporaryDir m_folder;
    std::optional<ServerDatabase> m_database;
};

/// What the small plant's items are for its tags.
inline std::string Shown(const Project& project)
{
    return Drawn(project.Values({"P-1", "P-2", "F-1"}, {"Design/Flow", "Design/Head", "Design/Id"}));
}

constexpr const char* kSmallPlantValues = "12.5 v1 | 14 v1 | -\n48 v1 | - | -\n- | - | -";

} // namespace schedules::host::testing
