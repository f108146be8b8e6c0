#include "StoredProject.h"
#include "host/base/HostError.h"

#include <algorithm>

namespace schedules::host::testing {

namespace {

const TemplateEntry kDuty{"Duty", "Duty.xml", "PDSG-1", false, "PUMPS", true, {}};
const TemplateEntry kSheet{"Sheet", "Sheet.xml", "PDSG-2", true, "PUMPS", false, {{"owner", "A \"b\" é"}, {"z", ""}}};
const TemplateEntry kFans{"Fans", "Fans.xml", "", false, "FANS", false, {}};

TemplateEntry Renamed(TemplateEntry entry, const QString& name)
{
    entry.name = name;
    return entry;
}

/// "Duty=Duty.xml Sheet=Sheet.xml"
std::string Drawn(const QList<TemplateEntry>& entries)
{
    QStringList names;
    for (const TemplateEntry& entry : entries)
        names.append(entry.name + '=' + entry.fileName);
    return names.join(' ').toStdString();
}

struct ProjectTemplates : StoredProject
{
    ProjectTemplates() : project(Project::Create(Address()))
    {
        project->MergeTemplates({}, {kDuty, kSheet}, {{"Duty.xml", "<Template/>"}});
    }

    std::string Listed() const { return Drawn(project->Templates()); }

    const QList<TemplateEntry> shown{kDuty, kSheet};
    std::unique_ptr<Project> project;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(In, ProjectTemplates, ::testing::ValuesIn(Places()), PlaceName);

TEST_P(ProjectTemplates, ComeBackWhole)
{
    EXPECT_EQ(Opened()->Templates(), shown);
}

TEST_P(ProjectTemplates, TextsAreFoundByFileNameInAnyLetterCase)
{
    EXPECT_EQ(project->TemplateText("DUTY.xml"), "<Template/>");
    EXPECT_EQ(project->TemplateText("Sheet.xml"), "");
    EXPECT_EQ(project->TemplateText("absent.xml"), "");
}

TEST_P(ProjectTemplates, ThatHeChangedAreChangedInTheirPlace)
{
    project->MergeTemplates(shown, {Renamed(kDuty, "Duties"), kSheet}, {});
    EXPECT_EQ(Listed(), "Duties=Duty.xml Sheet=Sheet.xml");
    EXPECT_EQ(project->TemplateText("Duty.xml"), "<Template/>");
}

TEST_P(ProjectTemplates, ThatHeNoLongerHasAreRemoved)
{
    project->MergeTemplates(shown, {kSheet}, {});
    EXPECT_EQ(Listed(), "Sheet=Sheet.xml");
}

TEST_P(ProjectTemplates, ThatOthersAddedAndChangedSinceStay)
{
    const auto other = Opened();
    other->MergeTemplates(shown, {kDuty, Renamed(kSheet, "Data sheet"), kFans}, {});
    project->MergeTemplates(shown, {Renamed(kDuty, "Duties"), kSheet, {"Mine", "Mine.xml"}}, {});
    EXPECT_EQ(Drawn(other->Templates()), "Duties=Duty.xml Data sheet=Sheet.xml Fans=Fans.xml Mine=Mine.xml");
}

TEST_P(ProjectTemplates, ThatOthersRemovedSinceStayRemovedUnlessHeChangedOrWroteThem)
{
    Opened()->MergeTemplates(shown, {}, {});
    project->MergeTemplates(shown, shown, {});
    EXPECT_EQ(Listed(), "");
    project->MergeTemplates(shown, {Renamed(kDuty, "Duties"), kSheet}, {{"Sheet.xml", "<new/>"}});
    EXPECT_EQ(Listed(), "Duties=Duty.xml Sheet=Sheet.xml");
    EXPECT_EQ(project->TemplateText("Sheet.xml"), "<new/>");
}

TEST_P(ProjectTemplates, WhoseFileIsNewInBothListsClashUnlessTheyAreTheSame)
{
    Opened()->MergeTemplates(shown, {kDuty, kSheet, kFans}, {});
    const QList<TemplateEntry> other{kDuty, kSheet, {"Blowers", "FANS.xml"}};
    EXPECT_EQ(Failure([&] { project->MergeTemplates(shown, other, {}); }),
              "there is a template with the file name FANS.xml already");
    EXPECT_EQ(Failure([&] {
                  project->MergeTemplates(shown, {kDuty, kSheet, kFans}, {{"Fans.xml", "<x/>"}});
              }),
              "there is a template with the file name Fans.xml already");
    project->MergeTemplates(shown, {kDuty, kSheet, kFans}, {});
    EXPECT_EQ(Listed(), "Duty=Duty.xml Sheet=Sheet.xml Fans=Fans.xml");
}

TEST_P(ProjectTemplates, OfOneNameFailAndChangeNothing)
{
    EXPECT_EQ(Failure([&] {
                  project->MergeTemplates(shown, {Renamed(kDuty, "SHEET"), kSheet}, {});
              }),
              "there is a template named Sheet already");
    Opened()->MergeTemplates(shown, {kDuty, kSheet, kFans}, {});
    EXPECT_EQ(Failure([&] {
                  project->MergeTemplates(shown, {kDuty, kSheet, {"FANS", "Other.xml"}}, {});
              }),
              "there is a template named FANS already");
    EXPECT_EQ(Listed(), "Duty=Duty.xml Sheet=Sheet.xml Fans=Fans.xml");
}

TEST_P(ProjectTemplates, OfOneFileNameOrOfNoneFail)
{
    EXPECT_EQ(Failure([&] {
                  project->MergeTemplates(shown, {kDuty, Renamed(kDuty, "Other")}, {});
              }),
              "there is a template with the file name Duty.xml already");
    EXPECT_EQ(Failure([&] {
                  project->MergeTemplates(shown, {{"Name", ""}}, {});
              }),
              "a template has no name or no file name");
    EXPECT_EQ(Listed(), "Duty=Duty.xml Sheet=Sheet.xml");
}

TEST_P(ProjectTemplates, MayChangeNamesWithEachOther)
{
    project->MergeTemplates(shown, {Renamed(kDuty, "Sheet"), Renamed(kSheet, "Duty")}, {});
    EXPECT_EQ(Listed(), "Sheet=Duty.xml Duty=Sheet.xml");
}

TEST_P(ProjectTemplates, ThatHeWroteAloneGetTheText)
{
    project->MergeTemplates(shown, shown, {{"SHEET.xml", "<Sheet/>"}});
    EXPECT_EQ(project->Templates(), shown);
    EXPECT_EQ(project->TemplateText("Sheet.xml"), "<Sheet/>");
}

TEST_P(ProjectTemplates, ATextOfNoTemplateFailsAndChangesNothing)
{
    EXPECT_EQ(Failure([&] {
                  project->MergeTemplates(shown, {kDuty}, {{"Other.xml", "<x/>"}});
              }),
              "there is no template Other.xml");
    EXPECT_EQ(project->Templates(), shown);
}

TEST_P(ProjectTemplates, RemovedAreGoneWithTheirTexts)
{
    project->RemoveTemplate("DUTY.XML");
    project->RemoveTemplate("absent.xml");
    EXPECT_EQ(Listed(), "Sheet=Sheet.xml");
    EXPECT_EQ(project->TemplateText("Duty.xml"), "");
}

TEST_P(ProjectTemplates, TheCurrentOneIsTheDefaultUntilAnotherIsSet)
{
    EXPECT_EQ(project->CurrentTemplate("pumps"), "Duty.xml");
    EXPECT_EQ(project->CurrentTemplate("FANS"), "");
    project->SetCurrentTemplate("Pumps", "sheet.XML");
    EXPECT_EQ(Opened()->CurrentTemplate("PUMPS"), "Sheet.xml");
    project->SetCurrentTemplate("PUMPS", "Duty.xml");
    EXPECT_EQ(project->CurrentTemplate("PUMPS"), "Duty.xml");
}

TEST_P(ProjectTemplates, TheDefaultIsCurrentAgainOnceTheCurrentOneIsRemoved)
{
    project->SetCurrentTemplate("PUMPS", "Sheet.xml");
    project->SetCurrentTemplate("FANS", "Sheet.xml");
    project->RemoveTemplate("Sheet.xml");
    EXPECT_EQ(project->CurrentTemplate("PUMPS"), "Duty.xml");
    EXPECT_EQ(project->CurrentTemplate("FANS"), "");
}

TEST_P(ProjectTemplates, TheCurrentOneStaysWhenItIsRenamedOrItsFileInLetterCase)
{
    project->SetCurrentTemplate("PUMPS", "Sheet.xml");
    TemplateEntry other = Renamed(kSheet, "Data");
    other.fileName = "SHEET.xml";
    project->MergeTemplates(shown, {kDuty, other}, {});
    EXPECT_EQ(project->CurrentTemplate("PUMPS"), "SHEET.xml");
}

TEST_P(ProjectTemplates, OneThatIsNotThereCannotBeCurrent)
{
    EXPECT_EQ(Failure([&] { project->SetCurrentTemplate("PUMPS", "absent.xml"); }), "there is no template absent.xml");
    EXPECT_EQ(project->CurrentTemplate("PUMPS"), "Duty.xml");
}

TEST_P(ProjectTemplates, TextsThatSomebodyElseHasChangedSinceTheyWereLookedAtAreNotReplaced)
{
    const QString seen = project->TemplateText("Duty.xml");
    Project::Open(Address())->MergeTemplates(shown, shown, {{"Duty.xml", "<Template theirs='1'/>"}});
    EXPECT_THROW(project->MergeTemplates(shown, shown, {{"Duty.xml", "<Template/>"}}, {{"Duty.xml", seen}}),
                 TextsChanged);
    EXPECT_EQ(project->TemplateText("Duty.xml"), "<Template theirs='1'/>");
    project->MergeTemplates(shown, shown, {{"Duty.xml", "<Template/>"}}, {{"Duty.xml", "<Template theirs='1'/>"}});
    EXPECT_EQ(project->TemplateText("Duty.xml"), "<Template/>");
}

} // namespace schedules::host::testing
