#include "workbook/OleContainer.h"

#include "common/Error.h"

#include <QDir>
#include <QTemporaryFile>

#include <gtest/gtest.h>

using namespace schedules;

namespace {

qsizetype OpenHandles()
{
    return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::System | QDir::AllEntries).size();
}

struct OleContainerTest : ::testing::Test
{
    void SetUp() override { ASSERT_TRUE(made.open()); }

    QTemporaryFile made;
};

} // namespace

TEST_F(OleContainerTest, AFileThatIsNotOpenIsAnError)
{
    QFile file(made.fileName());
    EXPECT_THROW(OleContainer{file}, Error);
}

TEST_F(OleContainerTest, AFileThatCannotBeWrittenIsAnErrorThatLeavesNothingOpen)
{
    QFile file(made.fileName());
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    const qsizetype before = OpenHandles();
    EXPECT_THROW(OleContainer{file}, Error);
    EXPECT_EQ(OpenHandles(), before);
}

TEST_F(OleContainerTest, AContainerThatIsGivenUpLeavesNothingOpen)
{
    const qsizetype before = OpenHandles();
    OleContainer(made).Write("begun");
    EXPECT_EQ(OpenHandles(), before);
}

TEST(OleContainer, SaysWhyTheSystemRefused)
{
    EXPECT_EQ(ReasonOf(ENOSPC), QStringLiteral("No space left on device"));
    EXPECT_EQ(ReasonOf(0), QStringLiteral("The file takes no more, and the system does not say why."));
}
