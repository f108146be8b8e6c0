#include "StoredProject.h"
#include "host/project/Transaction.h"

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace schedules::host::testing {

namespace {

/// Runs a step in a process of its own, which ends without any clean-up.
template <typename Step>
pid_t Process(Step step)
{
    const pid_t child = ::fork();
    if (child == 0) {
        step();
        ::_exit(0);
    }
    return child;
}

int EndOf(pid_t child)
{
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
}

const QStringList kTags{"P-1", "P-2", "F-1"};

Project::Content Generation(int number)
{
    Project::Content content;
    for (const QString& tag : kTags) {
        for (const char* item : {"Design/Flow", "Design/Head"})
            content.values.append({tag, item, QString::number(number)});
    }
    return content;
}

/// The number of the generation that is stored; -1 when it is there in part.
int StoredGeneration(const Project& project)
{
    const ValueTable table = project.Values(kTags, {"Design/Flow", "Design/Head"});
    const QString text = table[0][0].text;
    for (const auto& line : table) {
        for (const StoredValue& value : line) {
            if (value.text != text)
                return -1;
        }
    }
    return text.toInt();
}

/// A process that stores one generation after the other, and is killed once some are stored.
class Saver
{
public:
    Saver(const QString& address, int first)
    {
        EXPECT_EQ(::pipe(m_pipe), 0);
        m_process = Process([&] {
            const auto project = Project::Open(address);
            for (int number = first;; ++number) {
                project->Put(Generation(number));
                if (::write(m_pipe[1], "x", 1) != 1)
                    ::_exit(1);
            }
        });
        ::close(m_pipe[1]);
    }

    void KillAfter(int generations)
    {
        char told = 0;
        for (int count = 0; count < generations; ++count)
            EXPECT_EQ(::read(m_pipe[0], &told, 1), 1);
        ::kill(m_process, SIGKILL);
        EXPECT_EQ(EndOf(m_process), SIGKILL);
        ::close(m_pipe[0]);
    }

private:
    int m_pipe[2]{};
    pid_t m_process = 0;
};

} // namespace

using ProjectKilled = StoredProject;

INSTANTIATE_TEST_SUITE_P(In, ProjectKilled, ::testing::ValuesIn(Places()), PlaceName);

TEST_P(ProjectKilled, InATransactionLeavesTheOldContent)
{
    Plant();
    const QString address = Address();
    const pid_t child = Process([&] {
        Database database{ProjectAddress(address)};
        Transaction transaction(database, Transaction::Purpose::Writing);
        database.Run("UPDATE value SET text = 'half'");
        ::raise(SIGKILL);
    });
    EXPECT_EQ(EndOf(child), SIGKILL);
    EXPECT_EQ(Shown(*Opened()), kSmallPlantValues);
}

TEST_P(ProjectKilled, RightAfterASaveLeavesTheNewContent)
{
    Plant();
    const QString address = Address();
    const pid_t child = Process([&] {
        const auto project = Project::Open(address);
        project->Save({{"P-1", "Design/Flow", "13", 1}, {"P-1", "Design/Head", "50", 1}});
        ::raise(SIGKILL);
    });
    EXPECT_EQ(EndOf(child), SIGKILL);
    EXPECT_EQ(Shown(*Opened()), "13 v2 | 14 v1 | -\n50 v2 | - | -\n- | - | -");
}

TEST_P(ProjectKilled, AtAnyMomentLeavesAWholeSave)
{
    Plant()->Put(Generation(0));
    int stored = 0;
    for (int round = 1; round <= 12; ++round) {
        Saver(Address(), stored + 1).KillAfter(round);
        const int now = StoredGeneration(*Opened());
        EXPECT_GE(now, stored + round);
        stored = now;
    }
}

} // namespace schedules::host::testing
