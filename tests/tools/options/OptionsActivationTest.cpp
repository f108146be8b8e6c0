// The first activation asks the host for everything and shows the template that the schedule uses; later ones do
// nothing.

#include "OptionsTest.h"

namespace schedules::testing {

using OptionsActivation = OptionsTest;

namespace {

const std::string kRequests = "request ctlSchedOptions -> Host: GETTEMPLATELIST 0 0 [2 Caller=]\n"
                              "request ctlSchedOptions -> Host: GETBUILDERPATH 0 0 [2 Caller=]\n"
                              "request ctlSchedOptions -> Host: GETTEMPLATECATEGORIES 0 0\n"
                              "request ctlSchedOptions -> Host: GETCURRENTSCHEDTEMPLATE 0 0";

/// Templates are listed, but none is the current one.
const std::string kNothingSelected = " / \n\nMissing: 1040 / [ ]\n\n\ncboTemplates cmdOK cmdCancel";

/// Nothing is listed.
const std::string kNothing = " / \n\nMissing: 1040 / [ ]\n\n\ncmdOK cmdCancel";

const std::string kPumpsShown = "Pump schedule - Pumps / Missing: 3077  Pumps\n"
                                "[x] Design | [x] Motor | [ ] Vendor\n"
                                "Missing: 1040 / [ ]\n"
                                "\n"
                                "\n"
                                "cboTemplates lstGroups cmdSaveAs cmdDelete cmdOK cmdCancel";

} // namespace

TEST_F(OptionsActivation, AsksInThisOrder)
{
    Initialize();
    host.sent.clear();
    editor->IToolUI_Activate();
    EXPECT_EQ(Log(), kRequests);
}

TEST_F(OptionsActivation, ShowsTheTemplateOfTheSchedule)
{
    Start();
    EXPECT_EQ(Screen(), kPumpsShown);
    EXPECT_EQ(Boxes(), "");
    EXPECT_FALSE(editor->HasUnsavedEdits());
    EXPECT_FALSE(editor->property("HasUnsavedEdits").toBool());
}

TEST_F(OptionsActivation, ASecondOneSendsAndChangesNothing)
{
    Start();
    ClickGroup("Design");
    MarkItem("Flow");
    const std::string before = Screen();
    editor->IToolUI_Activate();
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(Screen(), before);
}

TEST_F(OptionsActivation, WithoutInitialisationShowsNothing)
{
    editor->IToolUI_Activate();
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(Find<QComboBox>("cboTemplates")->count(), 0);
}

TEST_F(OptionsActivation, AnEmptyListShowsNothingAndStillAsksForTheCurrentTemplate)
{
    host.replies["GETTEMPLATELIST"] = QString();
    Initialize();
    host.sent.clear();
    editor->IToolUI_Activate();
    EXPECT_EQ(Log(), kRequests);
    EXPECT_EQ(Screen(), kNothing);
    EXPECT_EQ(Boxes(), "");
}

TEST_F(OptionsActivation, AnEmptyPathShowsNothing)
{
    host.replies["GETBUILDERPATH"] = QString();
    Start();
    EXPECT_EQ(Screen(), kNothing);
    EXPECT_EQ(Boxes(), "");
}

TEST_F(OptionsActivation, EmptyCategoriesShowNothing)
{
    host.replies["GETTEMPLATECATEGORIES"] = QString();
    Start();
    EXPECT_EQ(Screen(), kNothing);
    EXPECT_EQ(Boxes(), "");
}

TEST_F(OptionsActivation, BlankRepliesShowNothing)
{
    for (const char* name : {"GETTEMPLATELIST", "GETBUILDERPATH", "GETTEMPLATECATEGORIES"}) {
        OptionsTest::host.sent.clear();
        const QString before = std::exchange(host.replies[name], "  ");
        editor = std::make_unique<ctlSchedOptions>(&user);
        Start();
        EXPECT_EQ(Screen(), kNothing) << name;
        EXPECT_EQ(Boxes(), "");
        host.replies[name] = before;
    }
}

TEST_F(OptionsActivation, AListWithoutTemplatesShowsNothing)
{
    List({});
    Start();
    EXPECT_EQ(Screen(), kNothing);
}

TEST_F(OptionsActivation, AnEmptyReplyToTheCurrentTemplateSelectsNothing)
{
    host.replies["GETCURRENTSCHEDTEMPLATE"] = QString();
    Start();
    EXPECT_EQ(Templates().count(), 3);
    EXPECT_EQ(Screen(), kNothingSelected);
    EXPECT_EQ(Boxes(), "");
}

TEST_F(OptionsActivation, AnEmptyReplyToTheCurrentTemplateDoesNotSelectATemplateWithoutAFile)
{
    List({"name='Lost'", "name='Pumps' filename='pumps.xml'"});
    host.replies["GETCURRENTSCHEDTEMPLATE"] = QString();
    Start();
    EXPECT_EQ(Templates().count(), 2);
    EXPECT_EQ(Screen(), kNothingSelected);
}

TEST_F(OptionsActivation, AnUnknownCurrentTemplateSelectsNothing)
{
    host.replies["GETCURRENTSCHEDTEMPLATE"] = "pumps";
    Start();
    EXPECT_EQ(Screen(), kNothingSelected);
}

TEST_F(OptionsActivation, FindsTheCurrentTemplateInAnyLetterCase)
{
    host.replies["GETCURRENTSCHEDTEMPLATE"] = "PuMPS.XML";
    Start();
    EXPECT_EQ(Screen(), kPumpsShown);
}

TEST_F(OptionsActivation, TakesTheFirstOfTwoTemplatesOfTheSameFile)
{
    List(
        {"name='Fans' filename='fans.xml'", "name='First' filename='Pumps.xml'", "name='Second' filename='pumps.xml'"});
    WriteFile("Pumps.xml", TemplateText("DisplayName='The first'", kPumps).toUtf8());
    Start();
    EXPECT_EQ(Templates().currentIndex(), 1);
    EXPECT_EQ(Find<QGroupBox>("fraTemplate")->title(), "Missing: 3077  First");
}

TEST_F(OptionsActivation, AnUnparsableListIsToldOnceAndShowsNothing)
{
    host.replies["GETTEMPLATELIST"] = "<Templates>";
    Start();
    editor->IToolUI_Activate();
    editor.reset();
    editor = std::make_unique<ctlSchedOptions>(&user);
    Initialize();
    editor->IToolUI_Activate();
    EXPECT_EQ(Boxes(), "Missing: 1062 (16) Schedules.CTemplates.CreateObjects");
    EXPECT_EQ(Screen(), kNothing);
}

TEST_F(OptionsActivation, UnparsableCategoriesGiveTemplatesWithoutCategories)
{
    host.replies["GETTEMPLATECATEGORIES"] = "nonsense";
    Start();
    EXPECT_EQ(Templates().currentText(), "Pump schedule");
    EXPECT_EQ(Boxes(), "");
}

TEST_F(OptionsActivation, BadFilesAreNamedInOneBox)
{
    WriteFile("broken.xml", "<Template><Group>");
    WriteFile("nameless.xml", "<Template><Group Name='A'/><Group DisplayName='B'/></Template>");
    WriteFile("items.xml", "<Template><Group Name='A'><Item/></Group></Template>");
    WriteFile("other.xml", "<Template><Group/></Template>");
    WriteFile("foreign.xml", "<html/>");
    QStringList listed;
    for (const char* name : {"broken", "nameless", "items", "missing", "other", "foreign", "../pumps", "pumps"})
        listed += QString("name='%1' filename='%1.xml'").arg(name);
    List(listed);
    Initialize();
    editor->IToolUI_Activate();
    EXPECT_EQ(Boxes(), "Missing: 3023\r\nnameless.xml\r\nother.xml\r\n\r\nMissing: 3022\r\nitems.xml (16) "
                       "Schedules.CTemplate.XMLToObject");
    EXPECT_EQ(Templates().count(), 8);
    EXPECT_EQ(Templates().currentText(), "Pump schedule");
}

TEST_F(OptionsActivation, AFailedOneIsToldAndNotRetried)
{
    host.failing = {"GETTEMPLATELIST"};
    Start();
    EXPECT_EQ(Screen(), kNothing);
    host.failing.clear();
    editor->IToolUI_Activate();
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(Screen(), kNothing);
}

TEST_F(OptionsActivation, EachRequestThatFailsIsToldAndTheOthersFollow)
{
    Initialize();
    host.sent.clear();
    host.failing = {FakeHost::kEverything};
    editor->IToolUI_Activate();
    EXPECT_EQ(Names(), "GETTEMPLATELIST ErrorMessage GETBUILDERPATH ErrorMessage GETTEMPLATECATEGORIES ErrorMessage "
                       "GETCURRENTSCHEDTEMPLATE ErrorMessage");
    const auto& parameters = host.sent.at(1).message->parameters.Items();
    EXPECT_EQ(parameters.at(0).value.toString(), "The host does not listen to GETTEMPLATELIST");
    EXPECT_EQ(parameters.at(3).value.toString(), "Schedules.ctlSchedOptions.SendRequestToOwner");
    EXPECT_EQ(Screen(), kNothing);
}

TEST_F(OptionsActivation, AFlagInTheListThatIsNoneIsShownWithTheTemplatesBeforeIt)
{
    List({"name='Pumps' filename='pumps.xml'", "name='Fans' filename='fans.xml' readonly='perhaps'"});
    Start();
    EXPECT_EQ(Templates().count(), 1);
    EXPECT_EQ(Templates().currentIndex(), 0);
}

// Deactivation.

TEST_F(OptionsActivation, DeactivationDisablesEverything)
{
    Start();
    ClickGroup("Design");
    ClickItem("*Duty note");
    editor->IToolUI_Deactivate(false);
    EXPECT_EQ(Enabled(), "");
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(Boxes(), "");
}

TEST_F(OptionsActivation, DeactivationDropsUnsavedEdits)
{
    Start();
    MarkGroup("Motor");
    ASSERT_TRUE(editor->HasUnsavedEdits());
    editor->IToolUI_Deactivate(true);
    EXPECT_FALSE(editor->HasUnsavedEdits());
}

TEST_F(OptionsActivation, AfterDeactivationShowsNothingAndAsksNothing)
{
    Start();
    editor->IToolUI_Deactivate(false);
    const std::string before = Screen();
    editor->IToolUI_Activate();
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(Screen(), before);
    EXPECT_EQ(Enabled(), "");
}

TEST_F(OptionsActivation, AfterDeactivationNothingThatTheUserDoesMeansAnything)
{
    Start();
    ClickGroup("Design");
    editor->IToolUI_Deactivate(false);
    const std::string before = Screen();
    MarkGroup("Design");
    MarkItem("Flow");
    for (const char* button : {"cmdOK", "cmdCancel", "cmdApply", "cmdSaveAs", "cmdDelete"})
        Click(button);
    Click("cmdGroupMove", 1);
    EXPECT_EQ(Screen(), before);
    EXPECT_EQ(Log(), "");
}

TEST_F(OptionsActivation, AfterAnEarlyDeactivationTheFirstActivationIsAsEver)
{
    editor->IToolUI_Deactivate(false);
    Initialize();
    editor->IToolUI_Deactivate(false);
    host.sent.clear();
    editor->IToolUI_Activate();
    EXPECT_EQ(Log(), kRequests);
    EXPECT_EQ(Screen(), kPumpsShown);
}

TEST_F(OptionsActivation, AnEditorThatIsInitialisedAnewLosesItsCatalogue)
{
    Start();
    Initialize();
    ChooseTemplate(1);
    EXPECT_EQ(Screen(), "Fan schedule - Fans / \n\nMissing: 1040 / [ ]\n\n\ncboTemplates cmdOK cmdCancel");
    EXPECT_EQ(Boxes(), "");
}

} // namespace schedules::testing
