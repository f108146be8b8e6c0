// A host that calls a tool in any order.

#include "TemplateHost.h"
#include "support/ScriptedUserInterface.h"

namespace schedules::testing {

namespace {

enum class Call
{
    Initialize,
    GiveText,
    GiveBrokenText,
    Activate,
    Deactivate
};

constexpr int kCalls = 5;
constexpr int kLength = 4;

/// Every order of so many calls, with repetitions: a number in base 5 for each.
int OrderCount()
{
    int count = 1;
    for (int place = 0; place < kLength; ++place)
        count *= kCalls;
    return count;
}

void Make(Call call, const HostedTool& tool, IMsgRouter& host, const QString& text)
{
    switch (call) {
    case Call::Initialize:
        return tool.Ui().IToolUI_Initialize(&host, QStringLiteral("Host"));
    case Call::GiveText:
        return tool.Ui().IToolUI_XML(text);
    case Call::GiveBrokenText:
        return tool.Ui().IToolUI_XML(kBroken);
    case Call::Activate:
        return tool.Ui().IToolUI_Activate();
    case Call::Deactivate:
        return tool.Ui().IToolUI_Deactivate(false);
    }
}

void MakeAll(int order, const HostedTool& tool, IMsgRouter& host, const QString& text)
{
    for (int place = 0; place < kLength; ++place, order /= kCalls)
        Make(static_cast<Call>(order % kCalls), tool, host, text);
}

struct HostileOrder : ::testing::Test
{
    TemplateHost host;
    ScriptedUserInterface user;
};

struct HostileViewOrder : HostileOrder, ::testing::WithParamInterface<int>
{
};

} // namespace

TEST_P(HostileViewOrder, OfCallsLeavesTheViewWorking)
{
    const QString text = GetParam() == kSelectorView ? kSelection : kSchedule;
    for (int order = 0; order < OrderCount(); ++order) {
        SCOPED_TRACE(order);
        const HostedView view(&user);
        view.Widget().setProperty("ViewType", GetParam());
        MakeAll(order, view, host, text);
        view.Widget().setProperty("ViewType", kScheduleView);
        view.Ui().IToolUI_XML(kSchedule);
        view.Ui().IToolUI_Activate();
        ASSERT_EQ(view.Drawn(), kDrawnSchedule);
    }
}

INSTANTIATE_TEST_SUITE_P(ViewType, HostileViewOrder, ::testing::Values(-1, 0, kScheduleView, kSelectorView, 99),
                         [](const auto& type) { return "Number" + std::to_string(type.param + 1); });

/// A deactivated editor stays as it is, and one is activated once. So another one is looked at in the end.
TEST_F(HostileOrder, OfCallsLeavesTheEditorToBeClosedAndAnotherOneWorking)
{
    for (int order = 0; order < OrderCount(); ++order) {
        SCOPED_TRACE(order);
        const HostedEditor editor(&user);
        MakeAll(order, editor, host, kSchedule);
        editor.Ui().IToolUI_Initialize(&host, QStringLiteral("Host"));
        editor.ExpectLeft(host);
        const HostedEditor another(&user);
        another.Start(host);
        ASSERT_EQ(another.Templates(), 3);
    }
    EXPECT_TRUE(user.boxes.empty());
}

} // namespace schedules::testing
