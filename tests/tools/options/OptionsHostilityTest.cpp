// What a host and a user may do while the editor waits for their answer: delete it, deactivate it, activate it, fail.

#include "OptionsTest.h"

#include <functional>

namespace schedules::testing {

namespace {

/// A user who does something when he is shown a box.
class BusyUser : public ScriptedUserInterface
{
public:
    Answer Show(const MessageBox& box) override
    {
        const Answer answer = ScriptedUserInterface::Show(box);
        if (onShow)
            onShow();
        return answer;
    }

    std::function<void()> onShow;
};

} // namespace

class OptionsHostility : public OptionsTest
{
protected:
    using Deed = std::function<void()>;
    using Life = std::function<void()>;

    OptionsHostility()
    {
        host.replies["GetResourceModule"] = "1";
        m_pumps = TemplateText("Name='Pumps' DisplayName='Pump schedule' Category='PUMPS'", kPumps).toUtf8();
    }

    /// Lives one life after the other, and in each does the deed within one message more, until a life has no more.
    /// Returns how many messages there are.
    int AtEachMessage(const Life& life, const Deed& deed)
    {
        for (int at = 1;; ++at) {
            int sent = 0;
            WriteFile("pumps.xml", m_pumps);
            user.answers = {Answer::Yes};
            editor = std::make_unique<ctlSchedOptions>(&user);
            host.onSend = [&](const QString& name) {
                if (name == "GetResourceModule")
                    host.replies["GetResourceModule"] = "0";
                if (++sent == at)
                    deed();
            };
            life();
            UseFurther();
            host.onSend = nullptr;
            SetResourceModule(0);
            host.replies["GetResourceModule"] = "1";
            if (sent < at)
                return at - 1;
        }
    }

    void Begin()
    {
        Initialize();
        if (editor)
            editor->IToolUI_Activate();
    }

    void Press(const char* button)
    {
        if (editor)
            Click(button);
    }

    void Edit()
    {
        if (editor && Groups().Count() > 0)
            MarkGroup(Groups().Text(0));
    }

    void UseFurther()
    {
        Edit();
        if (editor && Items().Count() > 0)
            MarkItem(Items().Text(0));
        if (editor)
            editor->IToolUI_Activate();
        Press("cmdCancel");
    }

    std::vector<std::pair<const char*, Life>> Lives()
    {
        return {{"OK", [this] { Begin(), Press("cmdOK"); }},
                {"Cancel", [this] { Begin(), Press("cmdCancel"); }},
                {"Apply", [this] { Begin(), Edit(), Press("cmdApply"); }},
                {"Edit and OK", [this] { Begin(), Edit(), Press("cmdOK"); }},
                {"Delete", [this] { Begin(), Press("cmdDelete"); }},
                {"Fail", [this] {
                     host.failing = {"GetResourceModule", "GETTEMPLATELIST", "GETCURRENTSCHEDTEMPLATE",
                                     "SETCURRENTSCHEDTEMPLATE", "UnloadScheduleOptions"};
                     Begin(), Edit(), Press("cmdOK");
                     host.failing.clear();
                 }}};
    }

    void InEveryLife(const Deed& deed)
    {
        for (const auto& [name, life] : Lives()) {
            SCOPED_TRACE(name);
            EXPECT_GE(AtEachMessage(life, deed), 8);
        }
    }

private:
    QByteArray m_pumps;
};

TEST_F(OptionsHostility, AHostMayDeleteTheEditorInEachMessage)
{
    InEveryLife([this] { editor.reset(); });
}

TEST_F(OptionsHostility, AHostMayThrowInEachMessage)
{
    InEveryLife([] { throw std::runtime_error("no"); });
}

TEST_F(OptionsHostility, AHostMayThrowAnythingInEachMessage)
{
    InEveryLife([] { throw 1; });
}

TEST_F(OptionsHostility, AHostMayDeleteTheEditorAndThrowInEachMessage)
{
    InEveryLife([this] {
        editor.reset();
        throw std::runtime_error("no");
    });
}

TEST_F(OptionsHostility, AHostMayDeactivateTheEditorInEachMessage)
{
    InEveryLife([this] { editor->IToolUI_Deactivate(false); });
}

TEST_F(OptionsHostility, AHostMayActivateTheEditorAgainInEachMessage)
{
    InEveryLife([this] { editor->IToolUI_Activate(); });
}

TEST_F(OptionsHostility, AHostMayDeactivateAndActivateTheEditorInEachMessage)
{
    InEveryLife([this] {
        editor->IToolUI_Deactivate(true);
        editor->IToolUI_Activate();
    });
}

TEST_F(OptionsHostility, AHostMayInitialiseTheEditorAgainInEachMessage)
{
    InEveryLife([this] { Initialize(); });
}

TEST_F(OptionsHostility, AHostMayLetTheUserPressEverythingInEachMessage)
{
    InEveryLife([this] {
        if (!IsEnabled("cmdDelete")) // a protected template would be saved under a name that the user is asked for
            return;
        Edit();
        for (const char* button : {"cmdCancel", "cmdOK", "cmdApply"})
            Click(button);
    });
}

TEST_F(OptionsHostility, AHostMayAnswerNonsenseToEachMessage)
{
    for (const char* nonsense : {"nonsense", "-1", "<a>", "<a/>", "<Template/>", "\n", "/",
                                 "<Templates><Template name='x' "
                                 "filename='/etc/passwd'/><Template name='y' filename='..'/></Templates>"})
    {
        SCOPED_TRACE(nonsense);
        for (const char* name : {"GETTEMPLATELIST", "GETBUILDERPATH", "GETTEMPLATECATEGORIES",
                                 "GETCURRENTSCHEDTEMPLATE", "INITIALIZESCHEDOPTIONS"})
        {
            const QString before = std::exchange(host.replies[name], nonsense);
            editor = std::make_unique<ctlSchedOptions>(&user);
            Begin();
            UseFurther();
            Press("cmdOK");
            host.replies[name] = before;
        }
    }
}

TEST_F(OptionsHostility, ADeactivatedEditorDoesNotComeBackInAnyMessage)
{
    for (const char* name : {"GETTEMPLATELIST", "GETBUILDERPATH", "GETTEMPLATECATEGORIES", "GETCURRENTSCHEDTEMPLATE"}) {
        editor = std::make_unique<ctlSchedOptions>(&user);
        Initialize();
        host.sent.clear();
        host.onSend = [&](const QString& sent) {
            if (sent == name)
                editor->IToolUI_Deactivate(false);
        };
        editor->IToolUI_Activate();
        EXPECT_EQ(host.sent.back().message->name, name);
        EXPECT_EQ(Enabled(), "");
        EXPECT_FALSE(editor->HasUnsavedEdits());
    }
}

TEST_F(OptionsHostility, ADeactivationWithinTheStartUpEndsNothingOfIt)
{
    host.onSend = [this](const QString& name) {
        host.replies["GetResourceModule"] = "0";
        if (name == "GetResourceModule")
            editor->IToolUI_Deactivate(false);
    };
    Initialize();
    EXPECT_EQ(Names(), "GetResourceModule GetResourceModule INITIALIZESCHEDOPTIONS");
}

TEST_F(OptionsHostility, TheEditorMayGoOrBeDeactivatedWhileABoxIsShown)
{
    WriteFile("bad.xml", "<Template><Group/></Template>");
    const QStringList lists[] = {{"name='Bad' filename='bad.xml'", "name='Pumps' filename='pumps.xml'"}, {"x='"}};
    for (const QStringList& list : lists) {
        for (const bool isDeleted : {true, false}) {
            List(list);
            BusyUser busy;
            editor = std::make_unique<ctlSchedOptions>(&busy);
            busy.onShow = [&] {
                if (isDeleted)
                    editor.reset();
                else
                    editor->IToolUI_Deactivate(false);
            };
            Begin();
            EXPECT_EQ(busy.boxes.size(), 1U);
            UseFurther();
            editor.reset();
        }
    }
}

TEST_F(OptionsHostility, AUserInterfaceThatThrowsIsNoMatter)
{
    WriteFile("bad.xml", "<Template><Group/></Template>");
    List({"name='Bad' filename='bad.xml'", "name='Pumps' filename='pumps.xml'"});
    BusyUser busy;
    busy.onShow = [] { throw std::runtime_error("no screen"); };
    editor = std::make_unique<ctlSchedOptions>(&busy);
    Begin();
    EXPECT_EQ(Templates().count(), 2);
    EXPECT_EQ(Templates().currentIndex(), 1);
    editor.reset();
}

TEST_F(OptionsHostility, WithoutARouterNothingHappens)
{
    editor->IToolUI_Initialize(nullptr, {});
    editor->IToolUI_Activate();
    EXPECT_EQ(Templates().count(), 0);
    Click("cmdCancel");
    Click("cmdOK");
    EXPECT_EQ(Boxes(), "");
}

} // namespace schedules::testing
