#include "host/HostProgram.h"

namespace schedules::host::testing {

using SchedhostUsage = HostProgram;

TEST_F(SchedhostUsage, WrongUsageIsExitCode2AndOneLine)
{
    const QList<QStringList> wrong{{"dump"},
                                   {"render"},
                                   {"template"},
                                   {"template", "a", "--transpose"},
                                   {"catalogue", "a", "b"},
                                   {"find"},
                                   {"find", "a", "b"},
                                   {"dump", "a", "b"},
                                   {"dump", "a", "--view", "x"},
                                   {"--odd"},
                                   {"dump", "a", "--png", "p"},
                                   {"a", "--transpose"},
                                   {"options", "folder"},
                                   {"options", "--list", "l"}};
    for (const QStringList& arguments : wrong) {
        const Outcome run = Schedhost(arguments);
        EXPECT_EQ(run.exitCode, 2) << qPrintable(arguments.join(u' '));
        EXPECT_EQ(run.out, "");
        EXPECT_TRUE(run.err.startsWith("schedhost: ")) << run.err.constData();
        EXPECT_EQ(run.err.count('\n'), 1) << run.err.constData();
    }
}

TEST_F(SchedhostUsage, HelpGoesToStandardOutput)
{
    const Outcome run = Schedhost({"--help"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.out.contains("schedhost dump FILE.xml"));
    EXPECT_EQ(run.err, "");
}

TEST_F(SchedhostUsage, VersionIsNameAndNumber)
{
    const Outcome run = Schedhost({"--version"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.out.startsWith("schedhost ")) << run.out.constData();
    EXPECT_EQ(run.out.count('\n'), 1);
    EXPECT_EQ(run.err, "");
}

} // namespace schedules::host::testing
