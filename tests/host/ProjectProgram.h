#pragma once

#include "host/HostOutputs.h"
#include "host/answers/SmallProject.h"
#include "host/project/Project.h"

namespace schedules::host::testing {

/// The real program on a small project beside it: two pumps and a fan. Two data items of pumps have one name, and one
/// may not be edited. There is a template in US units beside the one that pumps use.
class ProjectProgram : public HostOutputs
{
protected:
    ProjectProgram()
    {
        const auto project = Project::Create(Path(kProject));
        project->Put({.categories = {{"PUMPS", "Pumps", "P"}, {"FANS", "", "F"}},
                      .tags = {{"P-1", "PUMPS"}, {"P-2", "PUMPS"}, {"F-1", "FANS"}},
                      .items = Items(),
                      .values = {{"P-1", kFlow, "12"},
                                 {"P-2", kFlow, "13"},
                                 {"P-1", kHead, "48"},
                                 {"P-2", kHead, "49"},
                                 {"P-1", kService, "Füllen"}}});
        project->MergeTemplates(
            {},
            {{.name = "Both", .fileName = "Both.xml", .category = "PUMPS", .defaultForCategory = true},
             {.name = "US units", .fileName = "PumpsUS.xml", .category = "PUMPS"}},
            {{"Both.xml", TemplateWith("Both", {kFlow, kHead})}, {"PumpsUS.xml", UsTemplate()}});
    }

    /// As it is now.
    std::unique_ptr<Project> Stored() const { return Project::Open(Path(kProject)); }

    std::string StoredText(const QString& tag, const QString& item) const
    {
        return Stored()->Values({tag}, {item}).first().first().text.toStdString();
    }

    /// Runs a command on the project, with what follows its address.
    Outcome On(const QString& command, const QStringList& more = {})
    {
        return Schedhost(QStringList{command, kProject} + more);
    }

    /// What a command that succeeds prints.
    std::string Printed(const QString& command, const QStringList& more = {})
    {
        const Outcome run = On(command, more);
        EXPECT_EQ(run.exitCode, 0);
        EXPECT_EQ(run.err, "");
        return run.out.toStdString();
    }

    /// The one line of a command that fails.
    std::string Failed(const QString& command, const QStringList& more = {})
    {
        const Outcome run = On(command, more);
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err.count('\n'), 1) << run.err.constData();
        return run.err.chopped(1).toStdString();
    }

    static inline const QString kProject = QStringLiteral("small.schedules");
    static inline const QString kFlow = QStringLiteral("PUMPS/Design/Flow");
    static inline const QString kHead = QStringLiteral("PUMPS/Design/Head");
    static inline const QString kService = QStringLiteral("PUMPS/Design/Service");
    static inline const QString kMotorNote = QStringLiteral("PUMPS/Motor/Note");

private:
    static QList<DataItem> Items()
    {
        return {
            {kFlow, "Flow", "Design", "DOUBLE", "m³/h"},         {kHead, "Head", "Design", "DOUBLE", "m"},
            {kService, "Service", "Design", "TEXT", "", false},  {kMotorNote, "Note", "Motor", "TEXT", ""},
            {"PUMPS/Vendor/Note", "Note", "Vendor", "TEXT", ""}, {"FANS/Air/Flow", "Flow", "Air", "DOUBLE", "m³/h"}};
    }

    static QString UsTemplate()
    {
        return QStringLiteral(
                   "<Template Name=\"US units\" DisplayName=\"US units\" Category=\"PUMPS\" AllowEdit=\"-1\">"
                   "<Group Name=\"Design\" DisplayName=\"Design\" ShowThisGroup=\"-1\">"
                   "<Item Name=\"Flow\" DisplayName=\"Flow\" ShowThisItem=\"-1\" ShowUnitLabel=\"-1\""
                   " UnitID=\"gpm\" DataType=\"DOUBLE\" DataFormat=\"0.0\"><Location>%1</Location></Item>"
                   "</Group></Template>")
            .arg(kFlow);
    }
};

} // namespace schedules::host::testing
