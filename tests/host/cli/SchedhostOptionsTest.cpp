// The options editor in the real program.

#include "host/HostProgram.h"
#include "host/TemplateFolderFiles.h"

#include <QFileInfo>
#include <QImage>

#include <functional>

namespace schedules::host::testing {

namespace {

class SchedhostOptions : public HostProgram
{
protected:
    /// On the samples as they are delivered.
    QStringList OnSamples(const QStringList& more = {}) const
    {
        return QStringList{"options",      Sample(QStringLiteral("templates")),
                           "--list",       Sample(QStringLiteral("lists/template-list.xml")),
                           "--categories", Sample(QStringLiteral("lists/category-list.xml")),
                           "--current",    "PumpSchedule.xml"} +
               more;
    }

    QImage Drawn(const QStringList& options = {})
    {
        const Outcome run = Schedhost(OnSamples(options + QStringList{"--png", "out.png"}));
        EXPECT_EQ(run.exitCode, 0) << run.err.constData();
        EXPECT_EQ(run.err, "");
        EXPECT_EQ(run.out, "out.png\n");
        return QImage(Path(QStringLiteral("out.png")), "png");
    }

    QProcessEnvironment Own() const
    {
        auto environment = Bare();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), Path(QStringLiteral("data")));
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), Path(QStringLiteral("config")));
        return environment;
    }

    Outcome DrawOwn() { return Schedhost({"options", "--png", "out.png"}, Own()); }

    QByteArray Bytes(const QString& file) const
    {
        QFile bytes(file);
        EXPECT_TRUE(bytes.open(QIODevice::ReadOnly)) << qPrintable(file);
        return bytes.readAll();
    }

    QString Failed(const QStringList& arguments)
    {
        const Outcome run = Schedhost(arguments);
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err.count('\n'), 1) << run.err.constData();
        EXPECT_FALSE(QFile::exists(Path(QStringLiteral("out.png"))));
        return QString::fromLocal8Bit(run.err).chopped(1);
    }

    const QString ownTemplates = QStringLiteral("data/schedhost/templates/");
    const QString ownList = QStringLiteral("data/schedhost/lists/template-list.xml");
};

} // namespace

TEST_F(SchedhostOptions, ThePictureShowsTheEditorAndIsTheSameEachTime)
{
    const QImage first = Drawn();
    ASSERT_FALSE(first.isNull());
    EXPECT_GE(first.width(), 480);
    EXPECT_EQ(Drawn(), first);
}

TEST_F(SchedhostOptions, ThePictureShowsWhatIsChosen)
{
    QList<QImage> pictures{Drawn()};
    for (const QStringList& choice : {QStringList{"--select", "ControlValves.xml"},
                                      {"--group", "Design"},
                                      {"--palette", "dark"},
                                      {"--language", "de"},
                                      {"--right-to-left"}})
    {
        const QImage picture = Drawn(choice);
        EXPECT_FALSE(pictures.contains(picture)) << qPrintable(choice.join(u' '));
        pictures.append(picture);
    }
}

TEST_F(SchedhostOptions, APictureTellsTheHostOnlyWhatShowingTheTemplatesTakes)
{
    Drawn({"--select", "ControlValves.xml", "--messages", "messages"});
    QStringList names;
    for (const QByteArray& line : Read(QStringLiteral("messages")).split('\n')) {
        const qsizetype begin = line.indexOf("<message name=\"") + 15;
        if (!line.isEmpty())
            names.append(line.mid(begin, line.indexOf('"', begin) - begin));
    }
    EXPECT_EQ(names, (QStringList{"GetResourceModule", "GetResourceModule", "INITIALIZESCHEDOPTIONS", "GETTEMPLATELIST",
                                  "GETBUILDERPATH", "GETTEMPLATECATEGORIES", "GETCURRENTSCHEDTEMPLATE"}));
}

TEST_F(SchedhostOptions, WhatTheEditorReportsIsToldAndTheRestDrawn)
{
    Written(QStringLiteral("list.xml"), "<Templates>");
    Written(QStringLiteral("categories.xml"), kCategoryList);
    const Outcome run =
        Schedhost({"options", ".", "--list", "list.xml", "--categories", "categories.xml", "--png", "out.png"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.err.contains("(1062)")) << run.err.constData();
    EXPECT_FALSE(QImage(Path(QStringLiteral("out.png")), "png").isNull());
}

TEST_F(SchedhostOptions, WhatIsNotThereIsToldInOneLineAndNothingDrawn)
{
    EXPECT_EQ(Failed({"options", "absent", "--list", "l", "--categories", "c", "--png", "out.png"}),
              "there is no folder absent");
    EXPECT_TRUE(Failed({"options", ".", "--list", "l", "--categories", "c", "--png", "out.png"})
                    .startsWith(QStringLiteral("cannot read l: ")));
    EXPECT_EQ(Failed(OnSamples({"--png", "out.png", "--select", "Motors.xml"})),
              "there is no template Motors.xml in the list");
    EXPECT_EQ(Failed(OnSamples({"--png", "out.png", "--group", "Absent"})),
              "there is no group 'Absent' in PumpSchedule.xml");
    EXPECT_EQ(Failed(OnSamples({"--png", "out.png", "--group", "Design", "--item", "Absent"})),
              "there is no data item 'Absent' in PumpSchedule.xml");
}

TEST_F(SchedhostOptions, FilesThatAreReadAreNotWrittenOver)
{
    const QString list = Written(QStringLiteral("list.xml"), kTemplateList);
    const QString categories = Written(QStringLiteral("categories.xml"), kCategoryList);
    const QString source = Written(QStringLiteral("Pumps.xml"), kPumpTemplate);
    for (const QString& file : {list, categories, source}) {
        const QStringList files{"options", ".", "--list", list, "--categories", categories};
        const QString why = file + QStringLiteral(" is the file to be read, and is not written");
        EXPECT_EQ(Failed(files + QStringList{"--png", file}), why);
        EXPECT_EQ(Failed(files + QStringList{"--png", "out.png", "--messages", file}), why);
    }
    EXPECT_EQ(Read(source), kPumpTemplate);
}

TEST_F(SchedhostOptions, APictureThatCannotBeWrittenIsTold)
{
    EXPECT_TRUE(Failed(OnSamples({"--png", "absent/out.png"})).startsWith("cannot write absent/out.png: "));
}

TEST_F(SchedhostOptions, AWindowOpensOnTheFilesAndStays)
{
    QProcess window;
    window.setProcessEnvironment(Bare());
    const QString messages = Path(QStringLiteral("messages"));
    window.start(QStringLiteral(SCHEDULES_BIN_DIR "/schedhost"), OnSamples({"--messages", messages}));
    const auto isShown = [&messages] {
        QFile file(messages);
        return file.open(QIODevice::ReadOnly) && file.readAll().contains("<reply>PumpSchedule.xml</reply>");
    };
    for (QDeadlineTimer deadline(60'000); !isShown() && !deadline.hasExpired();)
        window.waitForFinished(20);
    EXPECT_TRUE(isShown());
    EXPECT_EQ(window.state(), QProcess::Running);
    window.kill();
    window.waitForFinished();
}

TEST_F(SchedhostOptions, AWindowThatCannotShowWhatIsChosenDoesNotStay)
{
    const Outcome run = Schedhost(OnSamples({"--group", "Absent"}));
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.err.endsWith("there is no group 'Absent' in PumpSchedule.xml\n")) << run.err.constData();
}

TEST_F(SchedhostOptions, TheFirstStartCopiesTheSamplesForTheUserToEdit)
{
    EXPECT_EQ(DrawOwn().err, "");
    const QDir samples(Sample(QStringLiteral("templates")));
    for (const QString& name : samples.entryList(QDir::Files)) {
        EXPECT_EQ(Read(ownTemplates + name), Bytes(samples.filePath(name)));
        EXPECT_TRUE(QFileInfo(Path(ownTemplates + name)).isWritable());
    }
    EXPECT_EQ(Read(ownList), Bytes(Sample(QStringLiteral("lists/template-list.xml"))));
    EXPECT_EQ(Read(QStringLiteral("data/schedhost/lists/category-list.xml")),
              Bytes(Sample(QStringLiteral("lists/category-list.xml"))));
    EXPECT_FALSE(QFile::exists(Path(QStringLiteral("config")))) << "nothing is kept before a template is applied";
}

TEST_F(SchedhostOptions, LaterStartsLeaveTheCopiesAsTheyAre)
{
    DrawOwn();
    Written(ownTemplates + QStringLiteral("PumpSchedule.xml"), kPumpTemplate);
    ASSERT_TRUE(QFile::remove(Path(ownTemplates + QStringLiteral("FanSchedule.xml"))));
    Written(ownList, "<Templates/>");
    EXPECT_EQ(DrawOwn().exitCode, 0);
    EXPECT_EQ(Read(ownTemplates + QStringLiteral("PumpSchedule.xml")), kPumpTemplate);
    EXPECT_FALSE(QFile::exists(Path(ownTemplates + QStringLiteral("FanSchedule.xml"))));
    EXPECT_EQ(Read(ownList), "<Templates/>");
}

TEST_F(SchedhostOptions, ACopyThatWasBrokenOffIsCompleted)
{
    DrawOwn();
    ASSERT_TRUE(QFile::remove(Path(ownList)) && QFile::remove(Path(ownTemplates + QStringLiteral("FanSchedule.xml"))));
    Written(ownTemplates + QStringLiteral("PumpSchedule.xml"), kPumpTemplate);
    DrawOwn();
    EXPECT_TRUE(QFile::exists(Path(ownTemplates + QStringLiteral("FanSchedule.xml"))));
    EXPECT_TRUE(QFile::exists(Path(ownList)));
    EXPECT_EQ(Read(ownTemplates + QStringLiteral("PumpSchedule.xml")), kPumpTemplate);
}

TEST_F(SchedhostOptions, TheOwnCopyOpensWithTheTemplateThatWasKept)
{
    DrawOwn();
    const QByteArray first = Read(QStringLiteral("out.png"));
    ASSERT_TRUE(QDir(Path(QString())).mkpath(QStringLiteral("config/schedhost")));
    Written(QStringLiteral("config/schedhost/options.ini"), "[General]\nCurrentTemplate=FanSchedule.xml\n");
    DrawOwn();
    const QByteArray kept = Read(QStringLiteral("out.png"));
    EXPECT_NE(kept, first);
    Schedhost({"options", "--current", "PumpSchedule.xml", "--png", "out.png"}, Own());
    EXPECT_EQ(Read(QStringLiteral("out.png")), first) << "the one that is named comes first";
}

TEST_F(SchedhostOptions, AFolderThatCannotBeMadeIsTold)
{
    const QString file = Path(Written(QStringLiteral("file"), "x"));
    auto environment = Bare();
    environment.insert(QStringLiteral("XDG_DATA_HOME"), file);
    const Outcome run = Schedhost({"options", "--png", "out.png"}, environment);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, ("cannot make the folder " + file + "/schedhost/templates\n").toLocal8Bit());
}

} // namespace schedules::host::testing
