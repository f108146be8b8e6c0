#include "host/HostProgram.h"

#include <QDeadlineTimer>
#include <QXmlStreamReader>

#include <tuple>

namespace schedules::host::testing {

namespace {

/// A line of the message file, read by another reader than the one that wrote it.
struct Sent
{
    QString from;
    QString to;
    QString kind;
    QString name;
    QString codes;
    QStringList parameters; ///< "type name=value"
    QString reply;
};

void ReadElement(QXmlStreamReader& reader, Sent& sent)
{
    const auto attributes = reader.attributes();
    const auto value = [&](const char* name) { return attributes.value(QLatin1String(name)).toString(); };
    if (reader.name() == QLatin1String("sent"))
        std::tie(sent.from, sent.to, sent.kind) = std::tuple(value("from"), value("to"), value("kind"));
    if (reader.name() == QLatin1String("message"))
        std::tie(sent.name, sent.codes) = std::tuple(value("name"), value("code1") + u' ' + value("code2"));
    if (reader.name() == QLatin1String("param"))
        sent.parameters.append(value("type") + u' ' + value("name") + u'=' + reader.readElementText());
    if (reader.name() == QLatin1String("reply") && reader.isStartElement())
        sent.reply = reader.readElementText();
}

Sent Parsed(const QByteArray& line)
{
    QXmlStreamReader reader(line);
    Sent sent;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement)
            ReadElement(reader, sent);
    }
    EXPECT_FALSE(reader.hasError()) << qPrintable(reader.errorString()) << " in " << line.constData();
    return sent;
}

struct SchedhostMessages : HostProgram
{
    QList<Sent> Messages(const QStringList& arguments)
    {
        EXPECT_EQ(Schedhost(arguments + QStringList{"--messages", "messages"}).exitCode, 0);
        QList<Sent> messages;
        const QByteArray text = Read(QStringLiteral("messages"));
        EXPECT_TRUE(text.endsWith('\n'));
        for (const QByteArray& line : text.chopped(1).split('\n'))
            messages.append(Parsed(line));
        return messages;
    }

    QString Table() { return Written(QStringLiteral("a.xml"), kSmallTable); }
};

} // namespace

TEST_F(SchedhostMessages, AStartAsksForTheModuleAndAnnouncesTheView)
{
    const QList<Sent> messages = Messages({"dump", Table()});
    ASSERT_EQ(messages.size(), 2);

    EXPECT_EQ(messages[0].from, "ctlSchedule");
    EXPECT_EQ(messages[0].to, "schedhost");
    EXPECT_EQ(messages[0].kind, "2");
    EXPECT_EQ(messages[0].name, "GetResourceModule");
    EXPECT_EQ(messages[0].codes, "0 3");
    EXPECT_EQ(messages[0].parameters, QStringList());
    EXPECT_GT(messages[0].reply.toInt(), 0) << "a handle as decimal text";

    EXPECT_EQ(messages[1].name, "InitializeSchedule");
    EXPECT_EQ(messages[1].parameters, QStringList{"2 Caller="});
    EXPECT_EQ(messages[1].reply, "");
}

TEST_F(SchedhostMessages, RenderWritesThemToo)
{
    EXPECT_EQ(Messages({"render", Table()}).size(), 2);
}

TEST_F(SchedhostMessages, TheFileIsAppendedTo)
{
    Messages({"dump", Table()});
    EXPECT_EQ(Messages({"dump", Table()}).size(), 4);
}

TEST_F(SchedhostMessages, AFailedLoadLeavesThemThere)
{
    const QString file = Written(QStringLiteral("bad.xml"), "<TABLE>");
    EXPECT_EQ(Schedhost({"dump", file, "--messages", "messages"}).exitCode, 1);
    EXPECT_GE(Read(QStringLiteral("messages")).count('\n'), 2);
}

TEST_F(SchedhostMessages, AFullDiskIsTold)
{
    const Outcome run = Schedhost({"dump", Table(), "--messages", "/dev/full"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "cannot write /dev/full: No space left on device\n");
}

TEST_F(SchedhostMessages, AWindowOnAFileThatIsNotThereEndsTheProgram)
{
    const Outcome run = Schedhost({"absent.xml"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.err.endsWith("cannot read absent.xml: No such file or directory\n")) << run.err.constData();
}

TEST_F(SchedhostMessages, AFileThatCannotBeWrittenEndsTheProgram)
{
    const Outcome run = Schedhost({"dump", Table(), "--messages", "absent/messages"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "cannot write absent/messages: No such file or directory\n");
}

TEST_F(SchedhostMessages, AWindowWritesThemAsTheyCross)
{
    QProcess window;
    window.setProcessEnvironment(Bare());
    window.setProgram(QStringLiteral(SCHEDULES_BIN_DIR "/schedhost"));
    window.setArguments({Sample(QStringLiteral("pumps.xml")), "--messages", Path(QStringLiteral("messages"))});
    window.start();
    const auto lines = [this] {
        QFile file(Path(QStringLiteral("messages")));
        return file.open(QIODevice::ReadOnly) ? file.readAll().count('\n') : 0;
    };
    for (QDeadlineTimer deadline(60'000); lines() < 2 && !deadline.hasExpired();)
        window.waitForFinished(20);
    EXPECT_EQ(lines(), 2);
    EXPECT_EQ(window.state(), QProcess::Running) << "without a display the window is offscreen, and stays";
    window.kill();
    window.waitForFinished();
}

} // namespace schedules::host::testing
