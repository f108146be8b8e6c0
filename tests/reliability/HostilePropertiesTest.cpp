// A host that sets properties of a tool in any order, at any time, to any value.

#include "OddValues.h"
#include "TemplateHost.h"
#include "support/ScriptedUserInterface.h"

#include <QCoreApplication>

#include <random>

namespace schedules::testing {

namespace {

constexpr unsigned kWalks = 12;
constexpr int kSteps = 250;

/// As wide as a toolkit still draws its own controls in no time.
constexpr int kWide = 20'000;

/// As far away as a toolkit's own rectangles do not overflow.
constexpr int kFar = std::numeric_limits<int>::max() / 4;

/// Sizes and places are in no value of `OddValues.h`: those of a window are the system's.
QVariantList OddValues()
{
    return EmptyValues() + NegativeValues() + HugeValues() + ValuesOfOtherKinds() +
           QVariantList{QSize(-1, kWide), QSize(kWide, kWide), QRect(-kFar, 0, kWide, 1), QPoint(kFar, -kFar)};
}

/// What a host may do with either tool beside setting properties.
void CallSomething(const HostedTool& tool, IMsgRouter& host, std::uint_fast32_t number)
{
    switch (number % 8) {
    case 0:
        return tool.Ui().IToolUI_XML(kSchedule);
    case 1:
        return tool.Ui().IToolUI_XML(kSelection);
    case 2:
        return tool.Ui().IToolUI_XML(kBroken);
    case 3:
        return tool.Ui().IToolUI_Initialize(&host, QStringLiteral("Host"));
    case 4:
        return tool.Ui().IToolUI_Deactivate(true);
    case 5:
        QMetaObject::invokeMethod(&tool.Widget(), "ab_ToolClick", Q_ARG(QString, "btnTranspose"));
        return;
    case 6:
        QCoreApplication::processEvents();
        return;
    default:
        return tool.Ui().IToolUI_Activate();
    }
}

/// A tool in a window that has no layout, so that only the tool is as large as it is said to be.
void Walk(const HostedTool& tool, IMsgRouter& host, unsigned seed)
{
    const auto names = WritableProperties(tool.Widget());
    const auto values = OddValues();
    std::mt19937 random(seed);
    for (int step = 0; step < kSteps; ++step) {
        const char* const name = names[random() % names.size()];
        tool.Widget().setProperty(name, values[static_cast<qsizetype>(random() % values.size())]);
        if (random() % 4 == 0)
            CallSomething(tool, host, random());
    }
}

struct HostileProperties : ::testing::Test
{
    HostileProperties()
    {
        window.resize(600, 400);
        window.show();
    }

    void PutIntoWindow(const HostedTool& tool)
    {
        tool.Widget().setParent(&window);
        tool.Widget().show();
    }

    QWidget window;
    TemplateHost host;
    ScriptedUserInterface user;
};

void BackToSense(QWidget& tool)
{
    tool.setEnabled(true);
    tool.setMinimumSize(0, 0);
    tool.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    tool.setGeometry(0, 0, 600, 400);
    tool.setUpdatesEnabled(true);
    tool.show();
    QCoreApplication::processEvents();
}

} // namespace

TEST_F(HostileProperties, OfTheViewLeaveItWorking)
{
    for (unsigned seed = 1; seed <= kWalks; ++seed) {
        SCOPED_TRACE(seed);
        const HostedView view(&user);
        PutIntoWindow(view);
        Walk(view, host, seed);
        BackToSense(view.Widget());
        view.Widget().setProperty("ViewType", kScheduleView);
        view.Ui().IToolUI_Initialize(&host, "Host");
        view.Ui().IToolUI_XML(kSchedule);
        view.Ui().IToolUI_Activate();
        ASSERT_EQ(view.Drawn(), kDrawnSchedule);
        view.Edit(1, 1, "20");
        view.Save();
        EXPECT_EQ(host.Names().constLast(), "UpdateTagScheduleData");
        EXPECT_FALSE(view.HasUnsavedEdits());
    }
}

TEST_F(HostileProperties, OfTheEditorLeaveItToBeClosed)
{
    for (unsigned seed = 1; seed <= kWalks; ++seed) {
        SCOPED_TRACE(seed);
        const HostedEditor editor(&user);
        PutIntoWindow(editor);
        Walk(editor, host, seed);
        BackToSense(editor.Widget());
        editor.ExpectLeft(host);
    }
}

/// Were each line of a word that never ends to cost as much as all of the word, this would not end within an hour.
TEST_F(HostileProperties, OfMegabytesAreShown)
{
    const QString megabyte(1 << 20, u'W');
    for (const QString& message : {megabyte, "{\\rtf1 " + megabyte + '}'}) {
        const HostedView view(&user);
        PutIntoWindow(view);
        view.Widget().resize(600, 400);
        view.Widget().setProperty("ViewType", kScheduleView);
        view.Widget().setProperty("BuilderPdsg", megabyte);
        view.Widget().setProperty("CustomMsg", message);
        view.Ui().IToolUI_Initialize(&host, "Host");
        view.Ui().IToolUI_XML(kSchedule);
        view.Ui().IToolUI_Activate();
        QCoreApplication::processEvents();
        EXPECT_TRUE(view.Find("rtbCustomMsg").isVisible());
    }
}

TEST_F(HostileProperties, FrozenCountsOfAnyNumberAreShownSortedAndPrinted)
{
    using Limits = std::numeric_limits<int>;
    const HostedView view(&user);
    PutIntoWindow(view);
    view.Widget().setProperty("ViewType", kScheduleView);
    view.Ui().IToolUI_XML(kSchedule);
    for (const int rows : {Limits::max(), Limits::min(), -1, 3, 0}) {
        for (const int columns : {Limits::max(), Limits::min(), -1, 3, 0}) {
            view.Widget().setProperty("RowsFrozen", rows);
            view.Widget().setProperty("ColsFrozen", columns);
            view.Ui().IToolUI_Activate();
            EXPECT_FALSE(view.Widget().grab().isNull());
            QMetaObject::invokeMethod(&view.Widget(), "DoColSort");
            for (const char* format : {"xls", "xlsx", "csv", "html"})
                view.WriteFile(format, host.PathOf("schedule"));
            view.WritePdf(host.PathOf("schedule.pdf"));
            EXPECT_EQ(view.Widget().property("RowsFrozen"), rows);
            EXPECT_EQ(view.Widget().property("ColsFrozen"), columns);
            EXPECT_EQ(view.Drawn(), kDrawnSchedule);
        }
    }
}

} // namespace schedules::testing
