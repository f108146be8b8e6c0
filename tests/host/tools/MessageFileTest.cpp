#include "host/tools/MessageFile.h"

#include "host/base/HostError.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace schedules::host {

namespace {

Crossing CrossingWithReply(const QString& reply)
{
    return {QDateTime::currentDateTime(), {}, Message{}, reply, {}};
}

QByteArray ContentsOf(const QString& fileName)
{
    QFile file(fileName);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

} // namespace

TEST(MessageFile, EachMessageIsALineThatIsThereAtOnce)
{
    QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("messages"));
    MessageFile file(name);
    file.Append(CrossingWithReply(QStringLiteral("水")));
    EXPECT_EQ(ContentsOf(name), LogLine(CrossingWithReply(QStringLiteral("水"))).toUtf8() + '\n');
    file.Append(CrossingWithReply(QStringLiteral("b")));
    EXPECT_EQ(ContentsOf(name).count('\n'), 2);
}

TEST(MessageFile, IsAppendedTo)
{
    QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("messages"));
    MessageFile(name).Append(CrossingWithReply(QStringLiteral("a")));
    MessageFile(name).Append(CrossingWithReply(QStringLiteral("b")));
    EXPECT_EQ(ContentsOf(name).count('\n'), 2);
}

TEST(MessageFile, OneThatCannotBeWrittenIsToldWithItsName)
{
    try {
        MessageFile file(QStringLiteral("/nowhere/messages"));
        FAIL() << "no error";
    } catch (const HostError& error) {
        EXPECT_EQ(error.Line(), "cannot write /nowhere/messages: No such file or directory");
    }
}

} // namespace schedules::host
