// A project's templates as files.

#include "host/answers/LaidOutTemplates.h"

#include "SmallProject.h"
#include "host/base/HostError.h"

namespace schedules::host::testing {

namespace {

struct TemplateFolderTest : SmallProject
{
    /// As another start of the program finds it.
    void Restart() { folder = std::make_unique<LaidOutTemplates>(*project, Path(QStringLiteral("templates"))); }

    QString FileIn(const QString& name) const { return QDir(folder->Path()).filePath(name); }

    void Write(const QString& name, const QString& text) const { WriteXmlFile(FileIn(name), text); }

    std::string Text(const QString& name) const { return ReadXmlFile(FileIn(name)).toStdString(); }

    std::string Files() const { return QDir(folder->Path()).entryList({"*.xml"}).join(u' ').toStdString(); }

    void ChangedInProject(const QString& name, const QString& text) const
    {
        const auto shown = project->Templates();
        project->MergeTemplates(shown, shown, {{name, text}});
    }

    std::unique_ptr<LaidOutTemplates> folder =
        std::make_unique<LaidOutTemplates>(*project, Path(QStringLiteral("templates")));
    const QString changed = TemplateWith("Flow", {kHead});
};

} // namespace

TEST_F(TemplateFolderTest, HoldsWhatTheProjectHas)
{
    folder->LayOut();
    EXPECT_EQ(Files(), "Both.xml Flow.xml");
    EXPECT_EQ(Text("Flow.xml"), project->TemplateText("Flow.xml").toStdString());
}

TEST_F(TemplateFolderTest, FollowsTheProject)
{
    folder->LayOut();
    ChangedInProject("Flow.xml", changed);
    project->RemoveTemplate("Both.xml");
    folder->LayOut();
    EXPECT_EQ(Files(), "Flow.xml");
    EXPECT_EQ(Text("Flow.xml"), changed.toStdString());
}

TEST_F(TemplateFolderTest, FollowsTheProjectAfterAnotherStart)
{
    folder->LayOut();
    ChangedInProject("Flow.xml", changed);
    Restart();
    folder->LayOut();
    EXPECT_EQ(Files(), "Both.xml Flow.xml");
    EXPECT_EQ(Text("Flow.xml"), changed.toStdString());
}

TEST_F(TemplateFolderTest, RestoresAFileThatIsGone)
{
    folder->LayOut();
    QFile::remove(FileIn("Flow.xml"));
    folder->LayOut();
    EXPECT_EQ(Files(), "Both.xml Flow.xml");
}

TEST_F(TemplateFolderTest, TellsTheFilesThatWereChangedHere)
{
    folder->LayOut();
    Write("Flow.xml", changed);
    Write("New.xml", changed);
    Write("Other.xml", changed);
    const FileTexts expected{{"Flow.xml", changed}, {"New.xml", changed}};
    EXPECT_EQ(folder->Changed({"Both.xml", "Flow.xml", "New.xml"}), expected);
    folder->Remember(expected);
    ChangedInProject("Flow.xml", changed);
    EXPECT_EQ(folder->Changed({"Both.xml", "Flow.xml"}), FileTexts());
}

TEST_F(TemplateFolderTest, TellsWhatSomebodyElseHasChangedAsWell)
{
    folder->LayOut();
    const QString theirs = TemplateWith("Flow", {});
    const QString before = project->TemplateText("Flow.xml");
    const FileTexts mine{{"Flow.xml", changed}};
    EXPECT_EQ(folder->ChangedElsewhere({{"Flow.xml", before}}, mine), FileTexts());
    EXPECT_EQ(folder->ChangedElsewhere({{"Flow.xml", theirs}}, mine), (FileTexts{{"Flow.xml", theirs}}));
    EXPECT_EQ(folder->ChangedElsewhere(mine, mine), FileTexts()) << "both have made the same of it";
}

TEST_F(TemplateFolderTest, KeepsAChangeThatNeverReachedTheProject)
{
    folder->LayOut();
    Write("Flow.xml", changed);
    Restart();
    folder->LayOut();
    EXPECT_EQ(Files(), "Both.xml Flow (recovered).xml Flow.xml");
    EXPECT_EQ(Text("Flow (recovered).xml"), changed.toStdString());
    EXPECT_EQ(Text("Flow.xml"), project->TemplateText("Flow.xml").toStdString());
    EXPECT_EQ(folder->Orphans(), QStringList{"Flow (recovered).xml"});

    Write("Flow.xml", changed);
    folder->LayOut();
    EXPECT_EQ(folder->Orphans(), (QStringList{"Flow (recovered 2).xml", "Flow (recovered).xml"}));
}

TEST_F(TemplateFolderTest, AnOrphanStaysUntilItIsAdopted)
{
    folder->LayOut();
    Write("New.xml", TemplateWith("My pumps", {kFlow}));
    Restart();
    folder->LayOut();
    ASSERT_EQ(folder->Orphans(), QStringList{"New.xml"});
    folder->Adopt("New.xml");
    EXPECT_EQ(folder->Orphans(), QStringList());
    EXPECT_EQ(Drawn(project->Templates()), "Both Both.xml PUMPS default\nFlow Flow.xml PUMPS\nMy pumps New.xml PUMPS");
    EXPECT_EQ(project->TemplateText("New.xml"), TemplateWith("My pumps", {kFlow}));
}

TEST_F(TemplateFolderTest, AnOrphanWhoseNameIsTakenIsNamedAfterItsFile)
{
    folder->LayOut();
    Write("Flow (recovered).xml", changed);
    folder->Adopt("Flow (recovered).xml");
    EXPECT_EQ(Drawn(project->Templates()),
              "Both Both.xml PUMPS default\nFlow Flow.xml PUMPS\nFlow (recovered) Flow (recovered).xml PUMPS");
}

TEST_F(TemplateFolderTest, WhatIsNoTemplateIsNotAdopted)
{
    folder->LayOut();
    Write("Notes.xml", QStringLiteral("<notes/>"));
    EXPECT_THROW(folder->Adopt("Notes.xml"), HostError);
    EXPECT_EQ(project->Templates().size(), 2);
}

TEST_F(TemplateFolderTest, AFolderThatCannotBeMadeIsTold)
{
    WriteXmlFile(Path("file"), "<x/>");
    EXPECT_THROW(LaidOutTemplates(*project, Path("file/templates")), HostError);
}

} // namespace schedules::host::testing
