// The component starts no thread: everything happens on the one that calls it.

#include "TemplateHost.h"
#include "support/ScriptedUserInterface.h"

#include <QCoreApplication>
#include <QDir>

#include <functional>

namespace schedules::testing {

namespace {

/// Without those that the toolkit fills large areas with, which are told by their name.
int ThreadCount()
{
    int count = 0;
    for (const QString& thread : QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile name("/proc/self/task/" + thread + "/comm");
        count += name.open(QFile::ReadOnly) && name.readAll() != "Thread (pooled)\n" ? 1 : 0;
    }
    return count;
}

/// Several pages, and more cells than a toolkit would handle in one go if it could share the work.
QString LongSchedule()
{
    QString rows;
    for (int number = 1; number <= 2000; ++number)
        rows += QStringLiteral("<TR><TH>P-%1</TH><TD AllowEdit='-1'>%1</TD><TD>pump</TD></TR>").arg(number);
    return "<TABLE><TR><TH/><TH>Flow</TH><TH>Note</TH></TR>" + rows + "</TABLE>";
}

struct Threads : ::testing::Test
{
    /// Counts after each step, since a thread may end before the next one.
    void Step(const char* name, const std::function<void()>& step) const
    {
        step();
        QCoreApplication::processEvents();
        EXPECT_EQ(ThreadCount(), before) << name;
    }

    const int before = ThreadCount();
    TemplateHost host;
    ScriptedUserInterface user;
};

} // namespace

TEST_F(Threads, NoneIsStartedByTheView)
{
    const HostedView view(&user);
    view.Widget().setProperty("ViewType", kScheduleView);
    view.Widget().setProperty("CustomMsg", "{\\rtf1 These \\b pumps\\b0  are new.}");
    Step("start", [&] { view.Ui().IToolUI_Initialize(&host, "Host"); });
    Step("load", [&] { view.Ui().IToolUI_XML(LongSchedule()), view.Ui().IToolUI_Activate(); });
    Step("draw", [&] { view.Widget().resize(2000, 1500), view.Widget().show(), view.Widget().grab(); });
    Step("edit", [&] { view.Edit(1, 1, "20"); });
    Step("sort", [&] { QMetaObject::invokeMethod(&view.Widget(), "DoColSort"); });
    for (const char* format : {"xls", "xlsx", "csv", "html"})
        Step(format, [&] { view.WriteFile(format, host.PathOf("schedule")); });
    Step("pdf", [&] { view.WritePdf(host.PathOf("schedule.pdf")); });
    Step("transpose", [&] { view.Trigger("btnTranspose"); });
    Step("save", [&] { view.Trigger("btnSaveTag"); });
    Step("close", [&] { view.Press("cmdCancel"); });
    EXPECT_EQ(host.Names().constLast(), "UnloadSchedule");
}

TEST_F(Threads, NoneIsStartedByTheEditor)
{
    const HostedEditor editor(&user);
    Step("start", [&] { editor.Start(host); });
    Step("draw", [&] { editor.Widget().show(), editor.Widget().grab(); });
    Step("edit", [&] { EXPECT_TRUE(editor.Mark()); });
    Step("save and close", [&] { editor.Press("cmdOK"); });
    EXPECT_EQ(host.Names().constLast(), "UnloadScheduleOptions");
}

} // namespace schedules::testing
