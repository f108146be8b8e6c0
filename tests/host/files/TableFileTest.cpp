#include "host/files/TableFile.h"

#include "host/base/HostError.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace schedules::host {

namespace {

struct TableFileTest : ::testing::Test
{
    TableFileTest() { Write("<TABLE><TR><TD>1</TD></TR></TABLE>"); }

    void Write(const QByteArray& bytes)
    {
        QFile file(name);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QByteArray Bytes() const
    {
        QFile file(name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QTemporaryDir folder;
    QString name = folder.filePath(QStringLiteral("table.xml"));
};

} // namespace

TEST_F(TableFileTest, HoldsWhatTheFileHolds)
{
    const TableFile file(name);
    EXPECT_EQ(file.Name(), name);
    EXPECT_EQ(file.ShortName(), "table.xml");
    EXPECT_EQ(file.Xml(), "<TABLE><TR><TD>1</TD></TR></TABLE>");
}

TEST_F(TableFileTest, SavesAndCountsFromWhatItSavedLast)
{
    TableFile file(name);
    const QString changed = QStringLiteral("<TABLE><TR><TD Dirty='-1'>é</TD></TR></TABLE>");
    EXPECT_EQ(file.Save(changed), 1);
    EXPECT_EQ(Bytes(), changed.toUtf8());
    EXPECT_EQ(file.Xml(), changed);
    EXPECT_EQ(file.Save(changed), 0);
}

TEST_F(TableFileTest, AFileInAnotherEncodingIsInUtf8AfterSaving)
{
    Write("<?xml version='1.0' encoding='ISO-8859-1'?><TABLE><TR><TD>\xE9</TD></TR></TABLE>");
    TableFile file(name);
    file.Save(file.Xml());
    EXPECT_EQ(Bytes(), "<?xml version='1.0' encoding='UTF-8'?><TABLE><TR><TD>\xC3\xA9</TD></TR></TABLE>");
    EXPECT_EQ(TableFile(name).Xml().count(u'\u00E9'), 1);
}

TEST_F(TableFileTest, AFailureThrowsAndForgetsNothing)
{
    TableFile file(name);
    ASSERT_TRUE(QFile::remove(name) && QDir().rmdir(folder.path()));
    EXPECT_THROW(file.Save(QStringLiteral("<TABLE/>")), HostError);
    EXPECT_EQ(file.Xml(), "<TABLE><TR><TD>1</TD></TR></TABLE>");
}

TEST_F(TableFileTest, AFileThatCannotBeReadThrows)
{
    EXPECT_THROW(TableFile(folder.filePath(QStringLiteral("absent"))), HostError);
}

} // namespace schedules::host
