#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace schedules::testing {

/// A file that was there before somebody tries to replace it.
inline void WriteFormerFile(const QString& fileName)
{
    QFile old(fileName);
    EXPECT_TRUE(old.open(QFile::WriteOnly));
    old.write("old");
}

/// It is as it was, and nothing else is in its folder.
inline void ExpectFormerFile(const QString& fileName)
{
    QFile file(fileName);
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    EXPECT_EQ(file.readAll(), "old");
    EXPECT_EQ(QFileInfo(fileName).dir().entryList(QDir::Files | QDir::Hidden).size(), 1);
}

} // namespace schedules::testing
