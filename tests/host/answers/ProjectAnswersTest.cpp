// What the host answers to each message, and what it does in the project.

#include "host/answers/ProjectAnswers.h"

#include "SmallProject.h"
#include "framework/MessageTable.h"
#include "host/base/HostError.h"
#include "host/tools/HostRouter.h"

namespace schedules::host::testing {

namespace {

struct ProjectAnswersTest : SmallProject
{
    ProjectAnswersTest()
    {
        answers.WorkOn(QStringLiteral("PUMPS"));
        QObject::connect(&answers, &ProjectAnswers::TemplateChosen, [this](const QString& xml, const QString& file) {
            told << QStringLiteral("template %1 %2").arg(file).arg(xml.size());
        });
        QObject::connect(&answers, &ProjectAnswers::TemplatesChanged, [this] { told << "templates"; });
        QObject::connect(&answers, &ProjectAnswers::TemplateKept,
                         [this](const QString& name) { told << "kept " + name; });
        QObject::connect(&answers, &ProjectAnswers::OptionsWanted, [this] { told << "options"; });
        QObject::connect(&answers, &ProjectAnswers::OptionsDone, [this] { told << "options done"; });
        QObject::connect(&answers, &ProjectAnswers::ScheduleDone, [this] { told << "schedule done"; });
        QObject::connect(&answers, &ProjectAnswers::TagsPicked,
                         [this](const QStringList& tags) { told << "picked " + tags.join(u','); });
        QObject::connect(&answers, &ProjectAnswers::TagsToPrint,
                         [this](const QStringList& tags) { told << "print " + tags.join(u','); });
        QObject::connect(&answers, &ProjectAnswers::Saved, [this](const QList<ValueEdit>&, int stored, bool differs) {
            told << QStringLiteral("saved %1%2").arg(stored).arg(differs ? ", differs" : "");
        });
        QObject::connect(&answers, &ProjectAnswers::HelpWanted,
                         [this](const QString& page) { told << "help " + page; });
        QObject::connect(&answers, &ProjectAnswers::ErrorTold,
                         [this](const QString& text) { told << "error " + text; });
    }

    /// Sends a message as a tool does, through its text.
    QString Sent(const char* name, std::initializer_list<QVariant> values)
    {
        const MessageForm& form = MessageFormOf(QString::fromLatin1(name));
        return router.Send({"tool", "schedhost", form.kind, BuildMessage(form, values).Text()});
    }

    std::string Reply(const char* name, std::initializer_list<QVariant> values = {})
    {
        return Sent(name, values).toStdString();
    }

    QString List() { return Sent("GETTEMPLATELIST", {""}); }

    /// Sends the list with a change, as the editor does: it has asked for the list and saved the file before.
    void SendList(const QString& list) { Sent("UPDATESCHEDCONFIG", {list}); }

    void WriteFile(const QString& name, const QString& text) const
    {
        WriteXmlFile(QDir(folder.Path()).filePath(name), text);
    }

    QString Edited(const QString& text, int version) const
    {
        return QStringLiteral("<TABLE><TR><TH/><TH tag=\"P-1\">P-1</TH></TR><TR><TH item=\"%1\" unit=\"m³/h\">Flow</TH>"
                              "<TD AllowEdit=\"-1\" Dirty=\"-1\" version=\"%3\">%2</TD></TR></TABLE>")
            .arg(kFlow, text)
            .arg(version);
    }

    QStringList told;
    QList<Conflict> conflicts; ///< that were asked about last
    bool decides = true;
    std::function<bool()> insists = [] { return false; };
    HostRouter router;
    LaidOutTemplates folder{*project, Path(QStringLiteral("templates"))};
    ProjectAnswers answers{router, *project, folder, [this](const QList<Conflict>& found) {
                               conflicts = found;
                               if (!decides)
                                   return std::optional<QList<ValueEdit>>();
                               QList<ValueEdit> insisted;
                               for (const Conflict& conflict : found) {
                                   ValueEdit edit = conflict.edit;
                                   edit.version = conflict.stored.version;
                                   if (insists())
                                       insisted << edit;
                               }
                               return std::optional(insisted);
                           }};
};

constexpr auto kList =
    R"(<Templates><Template name="Both" filename="Both.xml" pdsg="" readonly="0" category="PUMPS" defaultforcategory="-1"/>)"
    R"(<Template name="Flow" filename="Flow.xml" pdsg="" readonly="0" category="PUMPS" defaultforcategory="0"/></Templates>)";

} // namespace

TEST_F(ProjectAnswersTest, EachMessageOfTheToolsButTheModuleIsAnswered)
{
    QStringList missing;
    for (const MessageForm& form : MessageTable()) {
        if (!router.IsAnswered(QLatin1String(form.name)))
            missing << QLatin1String(form.name);
    }
    EXPECT_EQ(missing, QStringList{"GetResourceModule"}) << "which the session answers";
}

TEST_F(ProjectAnswersTest, AnnouncementsGetNothing)
{
    EXPECT_EQ(Reply("InitializeSchedule", {""}), "");
    EXPECT_EQ(Reply("INITIALIZESCHEDOPTIONS", {""}), "");
    EXPECT_EQ(told, QStringList());
}

TEST_F(ProjectAnswersTest, HelpOpensThePageOfItsContext)
{
    EXPECT_EQ(Reply("ProcessSubscriberEvent", {"cmdHelp", "23", "ctlSchedule"}), "");
    EXPECT_EQ(told, QStringList{"help 23"});
}

TEST_F(ProjectAnswersTest, TheListHasAllSixAttributesOfEachTemplate)
{
    EXPECT_EQ(List().simplified().replace("> <", "><").toStdString(), kList);
}

TEST_F(ProjectAnswersTest, TheListOfAProjectWithoutTemplatesIsNotEmpty)
{
    project->RemoveTemplate("Both.xml");
    project->RemoveTemplate("Flow.xml");
    EXPECT_EQ(List().simplified().remove(u' ').replace("<Templates></Templates>", "<Templates/>"), "<Templates/>");
}

TEST_F(ProjectAnswersTest, TheFolderIsLaidOutBeforeItIsNamed)
{
    EXPECT_EQ(Sent("GETBUILDERPATH", {""}), folder.Path());
    EXPECT_EQ(QDir(folder.Path()).entryList({"*.xml"}), (QStringList{"Both.xml", "Flow.xml"}));
}

TEST_F(ProjectAnswersTest, CategoriesAreListedWithNameDisplayNameAndPdsg)
{
    EXPECT_EQ(Sent("GETTEMPLATECATEGORIES", {}).simplified().replace("> <", "><").toStdString(),
              R"(<Categories><Category name="PUMPS" displayname="Pumps" pdsg="P"/>)"
              R"(<Category name="FANS" displayname="Fans" pdsg="F"/></Categories>)");
}

TEST_F(ProjectAnswersTest, TheCurrentTemplateIsThatOfTheCategoryBeingWorkedOn)
{
    EXPECT_EQ(Reply("GETCURRENTSCHEDTEMPLATE"), "Both.xml") << "the default";
    project->SetCurrentTemplate("PUMPS", "Flow.xml");
    EXPECT_EQ(Reply("GETCURRENTSCHEDTEMPLATE"), "Flow.xml");
    answers.WorkOn("FANS");
    EXPECT_EQ(Reply("GETCURRENTSCHEDTEMPLATE"), "");
}

TEST_F(ProjectAnswersTest, ATemplateThatIsSetIsRememberedAndBuilt)
{
    EXPECT_EQ(Reply("SETCURRENTSCHEDTEMPLATE", {"<Template/>", "Flow.xml"}), "");
    EXPECT_EQ(project->CurrentTemplate("PUMPS"), "Flow.xml");
    EXPECT_EQ(told, QStringList{"template Flow.xml 11"});
}

TEST_F(ProjectAnswersTest, ANewTemplateIsStoredBeforeTheAnswer)
{
    Sent("GETBUILDERPATH", {""});
    const QString text = TemplateWith("Mine", {kHead});
    WriteFile("Mine.xml", text);
    SendList(List().replace("</Templates>", "<Template pdsg=\"\" name=\"Mine\" filename=\"Mine.xml\" "
                                            "defaultforcategory=\"False\" readonly=\"False\"/></Templates>"));
    EXPECT_EQ(Drawn(project->Templates()), "Both Both.xml PUMPS default\nFlow Flow.xml PUMPS\nMine Mine.xml PUMPS")
        << "the category is that of the file";
    EXPECT_EQ(project->TemplateText("Mine.xml"), text);
    EXPECT_EQ(told, QStringList{"templates"});
    Sent("GETBUILDERPATH", {""});
    EXPECT_EQ(folder.Orphans(), QStringList());
}

TEST_F(ProjectAnswersTest, AChangedFileIsStoredWithTheListAsItWas)
{
    Sent("GETBUILDERPATH", {""});
    const QString text = TemplateWith("Flow", {kHead});
    WriteFile("Flow.xml", text);
    SendList(List());
    EXPECT_EQ(project->TemplateText("Flow.xml"), text);
    EXPECT_EQ(Drawn(project->Templates()), "Both Both.xml PUMPS default\nFlow Flow.xml PUMPS");
}

TEST_F(ProjectAnswersTest, AttributesThatTheHostDoesNotKnowAreKept)
{
    SendList(List().replace("name=\"Flow\"", "name=\"Flow\" colour=\"red\""));
    EXPECT_TRUE(List().contains("colour=\"red\""));
}

TEST_F(ProjectAnswersTest, EntriesOfOthersSurviveAListThatDoesNotHaveThem)
{
    const QString list = List();
    const auto other = Project::Open(Address());
    const auto shown = other->Templates();
    other->MergeTemplates(shown, shown + QList{TemplateEntry{.name = "Theirs", .fileName = "Theirs.xml"}},
                          {{"Theirs.xml", TemplateWith("Theirs", {kFlow})}});
    SendList(list);
    EXPECT_EQ(project->Templates().size(), 3);
    EXPECT_TRUE(List().contains("Theirs.xml"));
}

TEST_F(ProjectAnswersTest, ATemplateThatSomebodyElseHasChangedAsWellIsKeptUnderAnotherName)
{
    Sent("GETBUILDERPATH", {""});
    const QString list = List();
    const QString theirs = TemplateWith("Flow", {});
    const auto shown = project->Templates();
    Project::Open(Address())->MergeTemplates(shown, shown, {{"Flow.xml", theirs}});
    const QString mine = TemplateWith("Flow", {kHead});
    WriteFile("Flow.xml", mine);
    SendList(list);
    EXPECT_EQ(project->TemplateText("Flow.xml"), mine);
    EXPECT_EQ(project->TemplateText("Flow (2).xml"), theirs);
    EXPECT_EQ(told, (QStringList{"kept Flow (2)", "templates"}));
}

TEST_F(ProjectAnswersTest, AListThatIsNoXmlFailsAndChangesNothing)
{
    EXPECT_THROW(SendList("<Templates>"), HostError);
    EXPECT_EQ(project->Templates().size(), 2);
}

TEST_F(ProjectAnswersTest, ARemovedTemplateIsGoneAndTheDefaultBecomesCurrent)
{
    project->SetCurrentTemplate("PUMPS", "Flow.xml");
    EXPECT_EQ(Reply("REMOVECONFIGENTRY", {"FLOW.XML"}), "");
    EXPECT_EQ(Drawn(project->Templates()), "Both Both.xml PUMPS default");
    EXPECT_EQ(project->CurrentTemplate("PUMPS"), "Both.xml");
    EXPECT_EQ(told, QStringList{"templates"});
}

TEST_F(ProjectAnswersTest, ToolsAreOpenedAndClosedOnRequest)
{
    Sent("ShowOptions", {""});
    Sent("UnloadScheduleOptions", {true});
    Sent("UnloadSchedule", {true});
    EXPECT_EQ(told, (QStringList{"options", "options done", "schedule done"}));
}

TEST_F(ProjectAnswersTest, PickedTagsAreTold)
{
    const QString tags = QStringLiteral("<Tags><Tag><Id>P-2</Id></Tag><Tag><Id>P-1</Id></Tag></Tags>");
    Sent("ContinueButton", {tags});
    Sent("PrintSelections", {tags, ""});
    EXPECT_EQ(told, (QStringList{"picked P-2,P-1", "print P-2,P-1"}));
}

TEST_F(ProjectAnswersTest, EditedCellsAreStored)
{
    EXPECT_EQ(Reply("UpdateTagScheduleData", {"", Edited("12.5", 1)}), "");
    EXPECT_EQ(Stored("P-1", kFlow), "12.5 v2");
    EXPECT_EQ(told, QStringList{"saved 1"});
}

TEST_F(ProjectAnswersTest, StoringTwiceChangesNothing)
{
    Sent("UpdateTagScheduleData", {"", Edited("12.5", 1)});
    Sent("UpdateTagScheduleData", {"", Edited("12.5", 1)});
    EXPECT_EQ(Stored("P-1", kFlow), "12.5 v2");
    EXPECT_EQ(told, (QStringList{"saved 1", "saved 0"}));
}

TEST_F(ProjectAnswersTest, AValueStoredElsewhereIsKeptUnlessTheUserInsists)
{
    StoredElsewhere("P-1", kFlow, "99");
    Sent("UpdateTagScheduleData", {"", Edited("12.5", 1)});
    ASSERT_EQ(conflicts.size(), 1);
    EXPECT_EQ(conflicts[0].edit.text, "12.5");
    EXPECT_EQ(conflicts[0].stored.text, "99");
    EXPECT_EQ(Stored("P-1", kFlow), "99 v2");
    EXPECT_EQ(told, QStringList{"saved 0, differs"});
}

TEST_F(ProjectAnswersTest, AnInsistingUserHasHisValueStored)
{
    StoredElsewhere("P-1", kFlow, "99");
    insists = [] { return true; };
    Sent("UpdateTagScheduleData", {"", Edited("12.5", 1)});
    EXPECT_EQ(Stored("P-1", kFlow), "12.5 v3");
    EXPECT_EQ(told, QStringList{"saved 1"});
}

TEST_F(ProjectAnswersTest, AnUndecidedUserMakesTheSaveFailForTheseValuesAlone)
{
    StoredElsewhere("P-1", kFlow, "99");
    decides = false;
    EXPECT_THROW(Sent("UpdateTagScheduleData", {"", Edited("12.5", 1)}), HostError);
    EXPECT_EQ(Stored("P-1", kFlow), "99 v2");
    EXPECT_EQ(told, QStringList());
}

TEST_F(ProjectAnswersTest, AValueStoredWhileTheUserDecidesIsAskedAboutAgain)
{
    StoredElsewhere("P-1", kFlow, "99");
    int asked = 0;
    insists = [&] {
        if (++asked == 1)
            StoredElsewhere("P-1", kFlow, "100");
        return true;
    };
    Sent("UpdateTagScheduleData", {"", Edited("12.5", 1)});
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(conflicts[0].stored.text, "100");
    EXPECT_EQ(Stored("P-1", kFlow), "12.5 v4");
}

TEST_F(ProjectAnswersTest, AScheduleThatIsNoXmlFailsSoThatTheViewStaysUnsaved)
{
    EXPECT_THROW(Sent("UpdateTagScheduleData", {"", "<TABLE>"}), HostError);
    EXPECT_EQ(told, QStringList());
}

TEST_F(ProjectAnswersTest, ErrorsAreTold)
{
    EXPECT_EQ(Reply("ErrorMessage", {"it broke", "source", 5, "procedure"}), "");
    EXPECT_EQ(told, QStringList{"error it broke"});
}

} // namespace schedules::host::testing
