#include <QApplication>

#include <gtest/gtest.h>

namespace {

/// A program that a test starts runs all that it is asked for, not its share of it.
struct WholePrograms : testing::Environment
{
    void SetUp() override
    {
        qunsetenv("GTEST_TOTAL_SHARDS");
        qunsetenv("GTEST_SHARD_INDEX");
    }
};

} // namespace

/// Tests run on real widgets, so all of them get an application; the offscreen platform unless another one is named.
int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    testing::AddGlobalTestEnvironment(new WholePrograms);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
