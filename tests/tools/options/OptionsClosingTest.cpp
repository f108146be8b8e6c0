// OK and Cancel.

#include "SavingTest.h"

namespace schedules::testing {

namespace {

using OptionsClosing = SavingTest;

} // namespace

TEST_F(OptionsClosing, CancelTellsTheHostToUnloadAndNothingElse)
{
    Start();
    Click("cmdCancel");
    EXPECT_EQ(Log(), kUnload);
}

TEST_F(OptionsClosing, TheMessageTravelsAsAnEventToTheOwner)
{
    editor->IToolUI_Initialize(&host, "Another owner");
    editor->IToolUI_Activate();
    Show();
    Forget();
    Click("cmdCancel");
    ASSERT_EQ(host.sent.size(), 1U);
    const auto& [envelope, message, reply] = host.sent.front();
    EXPECT_EQ(envelope.recipient, "Another owner");
    EXPECT_EQ(envelope.sender, "ctlSchedOptions");
    EXPECT_EQ(envelope.kind, MessageKind::Event);
    EXPECT_EQ(message->firstCode, 8);
    EXPECT_EQ(message->secondCode, 9);
    ASSERT_EQ(message->parameters.Items().size(), 1);
    EXPECT_EQ(message->parameters.Items()[0], (Parameter{ParameterType::Flag, "Cancel", "True"}));
}

TEST_F(OptionsClosing, CancelDropsEditsWithoutAQuestion)
{
    Start();
    const std::string before = Content("pumps.xml");
    Edit();
    Click("cmdCancel");
    EXPECT_EQ(Log(), kUnload);
    EXPECT_EQ(Boxes(), "");
    EXPECT_EQ(Content("pumps.xml"), before);
    EXPECT_TRUE(IsDirty()) << "the host can still see that there were some";
}

TEST_F(OptionsClosing, OkTellsTheTemplateFirst)
{
    Start();
    Click("cmdOK");
    EXPECT_EQ(Names(), "SETCURRENTSCHEDTEMPLATE UnloadScheduleOptions");
}

TEST_F(OptionsClosing, AHostThatDoesNotListenToTheTemplateIsToldToUnload)
{
    Start();
    host.failing = {"SETCURRENTSCHEDTEMPLATE"};
    Click("cmdOK");
    EXPECT_EQ(Names(), "SETCURRENTSCHEDTEMPLATE ErrorMessage UnloadScheduleOptions");
}

TEST_F(OptionsClosing, AHostThatDoesNotListenToTheUnloadingIsToldSo)
{
    Start();
    host.failing = {"UnloadScheduleOptions"};
    for (const char* button : {"cmdCancel", "cmdOK"}) {
        Forget();
        Click(button);
        EXPECT_EQ(host.Log().last().toStdString(),
                  "event ctlSchedOptions -> Framework: ErrorMessage 20 9 [2 ErrorDescription=The "
                  "host does not listen to UnloadScheduleOptions] "
                  "[2 ErrorSource=Schedules.ctlSchedOptions.UnloadUserControl] [3 ErrorNumber=51] "
                  "[2 ProcName=Schedules.ctlSchedOptions.UnloadUserControl]");
    }
}

TEST_F(OptionsClosing, AHostMayKeepTheEditorAndTheUserGoOn)
{
    Start();
    Click("cmdCancel");
    Edit();
    Click("cmdOK");
    EXPECT_EQ(host.Names().first(), "UnloadScheduleOptions");
    EXPECT_EQ(host.Names().last(), "UnloadScheduleOptions");
    EXPECT_EQ(ReadBack("pumps.xml").substr(0, 10), "[ ] Design");
}

TEST_F(OptionsClosing, BothCloseBeforeTheFirstActivation)
{
    Initialize();
    Show();
    Forget();
    Click("cmdOK");
    Click("cmdCancel");
    EXPECT_EQ(Log(), std::string(kUnload) + '\n' + kUnload);
}

TEST_F(OptionsClosing, WithoutAHostNothingHappens)
{
    Show();
    Click("cmdOK");
    Click("cmdCancel");
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(Boxes(), "");
}

TEST_F(OptionsClosing, ADeactivatedEditorIsNotClosedByItsButtons)
{
    Start();
    editor->IToolUI_Deactivate(true);
    Click("cmdOK");
    Click("cmdCancel");
    EXPECT_EQ(Log(), "");
}

TEST_F(OptionsClosing, TheHostMayDeleteTheEditorWhenItIsTold)
{
    for (const char* button : {"cmdOK", "cmdCancel"}) {
        editor = std::make_unique<ctlSchedOptions>(&watched);
        Start();
        inside = [this](const QString& name) {
            if (name == "UnloadScheduleOptions")
                editor.reset();
        };
        Click(button);
        EXPECT_FALSE(editor);
        EXPECT_EQ(host.Names().last(), "UnloadScheduleOptions");
    }
}

TEST_F(OptionsClosing, TheHostMayHideTheEditorAndShowItAgain)
{
    Start();
    inside = [this](const QString& name) {
        if (name == "UnloadScheduleOptions")
            editor->hide();
    };
    Edit();
    const std::string before = Screen();
    Click("cmdCancel");
    EXPECT_FALSE(editor->isVisible());
    editor->IToolUI_Activate();
    editor->show();
    EXPECT_EQ(Screen(), before) << "a second activation asks for nothing";
    EXPECT_EQ(Log(), kUnload);
}

} // namespace schedules::testing
