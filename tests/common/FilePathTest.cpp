#include "common/FilePath.h"

#include <gtest/gtest.h>

using namespace schedules;

TEST(PlatformPath, SeparatesFoldersAsTheFileSystemDoes)
{
    EXPECT_EQ(PlatformPath(QStringLiteral("\\srv\\templates\\Pumps.xml")), QStringLiteral("/srv/templates/Pumps.xml"));
    EXPECT_EQ(PlatformPath(QStringLiteral("/srv/templates\\Pumps.xml")), QStringLiteral("/srv/templates/Pumps.xml"));
    EXPECT_EQ(PlatformPath(QStringLiteral("Насос 1.xml")), QStringLiteral("Насос 1.xml"));
    EXPECT_EQ(PlatformPath({}), QString());
}
