// Tools that are opened and closed ten thousand times leave memory where it was, and no file open.

#include "TemplateHost.h"
#include "support/ScriptedUserInterface.h"

#include <QCoreApplication>
#include <QDir>

#include <malloc.h>

namespace schedules::testing {

namespace {

constexpr std::ptrdiff_t kMebibyte = 1024 * 1024;

// An allocator that keeps what was freed, to find who uses it still, tells nothing of memory, and takes its time.
#ifdef __SANITIZE_ADDRESS__
constexpr bool kIsMeasured = false;
constexpr int kCycles = 500;
#else
constexpr bool kIsMeasured = true;
constexpr int kCycles = 10'000;
#endif

std::ptrdiff_t AllocatedBytes()
{
    const auto info = ::mallinfo2();
    return static_cast<std::ptrdiff_t>(info.uordblks + info.hblkhd);
}

/// What this process has open.
QStringList OpenFiles()
{
    QStringList files;
    for (const QFileInfo& file : QDir("/proc/self/fd").entryInfoList(QDir::AllEntries | QDir::System))
        files += file.symLinkTarget();
    files.sort();
    return files;
}

/// Host and user live on, as they do in a program that opens a tool now and then.
struct Cycles : ::testing::Test
{
    template <class Cycle>
    void Run(Cycle&& cycle)
    {
        const auto times = [&](int count) {
            for (int number = 0; number < count; ++number) {
                cycle();
                QCoreApplication::processEvents();
                host.sent.clear();
                host.delivered.clear();
                user = {};
            }
        };
        times(warmUp);
        const std::ptrdiff_t before = AllocatedBytes();
        const QStringList files = OpenFiles();
        times(cycles);
        EXPECT_EQ(OpenFiles(), files);
        const std::ptrdiff_t grown = AllocatedBytes() - before;
        RecordProperty("grown_bytes", std::to_string(grown));
        EXPECT_LT(kIsMeasured ? grown : 0, kMebibyte);
    }

    int warmUp = 500;
    int cycles = kCycles;
    TemplateHost host;
    ScriptedUserInterface user;
};

} // namespace

TEST_F(Cycles, OfTheViewLeaveMemoryAndFilesAsTheyWere)
{
    Run([this] {
        const HostedView view(&user);
        view.Widget().setProperty("ViewType", kScheduleView);
        view.Ui().IToolUI_Initialize(&host, "Host");
        view.Ui().IToolUI_XML(kSchedule);
        view.Ui().IToolUI_Activate();
        view.Ui().IToolUI_Deactivate(false);
    });
}

TEST_F(Cycles, OfTheEditorLeaveMemoryAndFilesAsTheyWere)
{
    Run([this] {
        const HostedEditor editor(&user);
        editor.Start(host);
        editor.Ui().IToolUI_Deactivate(false);
    });
}

/// Less often, since each time is all that a user does.
TEST_F(Cycles, OfWorkLeaveMemoryAndFilesAsTheyWere)
{
    warmUp = 30;
    cycles = kIsMeasured ? 300 : 30;
    Run([this] {
        const HostedView view(&user);
        view.Widget().setProperty("ViewType", kScheduleView);
        view.Widget().setProperty("CustomMsg", "{\\rtf1 These \\b pumps\\b0  are new.}");
        view.Ui().IToolUI_Initialize(&host, "Host");
        view.Ui().IToolUI_XML(kSchedule);
        view.Ui().IToolUI_Activate();
        view.Widget().show();
        view.Edit(1, 1, "20");
        view.Trigger("btnTranspose");
        view.Trigger("btnSaveTag");
        for (const char* format : {"xls", "xlsx", "csv", "html"})
            view.WriteFile(format, host.PathOf("schedule"));
        view.WritePdf(host.PathOf("schedule"));
        const HostedEditor editor(&user);
        editor.Start(host);
        editor.Widget().show();
        editor.Mark();
        editor.Press("cmdOK");
    });
}

} // namespace schedules::testing
