// A component that was loaded at run time, unloaded and loaded again.

#include "component/LoadedComponent.h"
#include "fileutil/CFileUtility.h"

#include <QFile>
#include <QTemporaryDir>
#include <QWidget>

#include <sys/mman.h>

namespace schedules {

namespace {

/// Where the component lies in memory, piece by piece: "7f00-7fff r-xp ... /libSchedules.so.0.1.0".
QByteArrayList Pieces()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    EXPECT_TRUE(maps.open(QFile::ReadOnly));
    QByteArrayList pieces = maps.readAll().split('\n');
    pieces.removeIf([](const QByteArray& line) { return !line.contains("/libSchedules.so"); });
    return pieces;
}

bool IsInProcess()
{
    return !Pieces().isEmpty();
}

/// Lets nothing lie where the component lay, so that it comes to another place, and whatever still looks for it at the
/// former one crashes.
void Block(const QByteArrayList& pieces)
{
    const auto start = pieces.front().left(pieces.front().indexOf('-')).toULongLong(nullptr, 16);
    const QByteArray range = pieces.back().left(pieces.back().indexOf(' '));
    const auto end = range.mid(range.indexOf('-') + 1).toULongLong(nullptr, 16);
    EXPECT_NE(::mmap(reinterpret_cast<void*>(start), end - start, PROT_NONE,
                     MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED_NOREPLACE, -1, 0),
              MAP_FAILED);
}

/// Shows a schedule in a window and writes it in each format.
void WorkWith(QWidget& view, const QString& folder)
{
    view.show();
    EXPECT_FALSE(view.grab().isNull());
    for (const char* format : {"xls", "xlsx", "csv", "html"}) {
        QString failure = QStringLiteral("not called");
        QMetaObject::invokeMethod(&view, "WriteFile", Q_RETURN_ARG(QString, failure), Q_ARG(QString, format),
                                  Q_ARG(QString, folder + QStringLiteral("/schedule.") + QLatin1String(format)));
        EXPECT_EQ(failure, QString()) << format;
    }
}

using UnloadTest = ComponentTest;

} // namespace

TEST_F(UnloadTest, AComponentThatHasCreatedNothingLeavesTheProcess)
{
    EXPECT_TRUE(factory->MayUnload());
    EXPECT_TRUE(loader.unload());
    EXPECT_FALSE(IsInProcess());
}

TEST_F(UnloadTest, MayNotBeUnloadedWhileAToolLives)
{
    for (const QString& name : factory->ToolNames()) {
        auto tool = Created(name);
        EXPECT_FALSE(factory->MayUnload()) << name.toStdString();
        tool.reset();
        EXPECT_TRUE(factory->MayUnload()) << name.toStdString();
    }
}

TEST_F(UnloadTest, EachToolCountsUntilItIsGone)
{
    auto first = Created(QStringLiteral("ctlSchedule"));
    const auto second = Created(QStringLiteral("ctlSchedule"));
    first.reset();
    EXPECT_FALSE(factory->MayUnload());
}

TEST_F(UnloadTest, AToolThatItsWindowDeletesCountsNoMore)
{
    auto window = std::make_unique<QWidget>();
    qobject_cast<QWidget*>(factory->CreateTool(QStringLiteral("ctlSchedule"), &user))->setParent(window.get());
    EXPECT_FALSE(factory->MayUnload());
    window.reset();
    EXPECT_TRUE(factory->MayUnload());
}

TEST_F(UnloadTest, MayNotBeUnloadedWhileAUtilityLives)
{
    auto search = factory->CreateUtility(QStringLiteral("CFileUtility"));
    EXPECT_FALSE(factory->MayUnload());
    search.reset();
    EXPECT_TRUE(factory->MayUnload());
}

TEST_F(UnloadTest, MayNotBeUnloadedWhileAResourceModuleIsOpen)
{
    const int texts = factory->OpenResourceModule(QStringLiteral(SCHEDULES_BIN_DIR "/languages/Schedules_en.qm"));
    EXPECT_FALSE(factory->MayUnload());
    factory->CloseResourceModule(texts);
    EXPECT_TRUE(factory->MayUnload());
}

TEST_F(UnloadTest, ANameThatIsUnknownKeepsNothing)
{
    EXPECT_FALSE(factory->CreateTool(QStringLiteral("unknown"), &user));
    EXPECT_FALSE(factory->CreateUtility(QStringLiteral("unknown")));
    EXPECT_EQ(factory->OpenResourceModule(QStringLiteral("/nowhere.qm")), 0);
    EXPECT_TRUE(factory->MayUnload());
}

TEST_F(UnloadTest, AComponentThatHasWorkedLeavesTheProcess)
{
    const QTemporaryDir folder;
    auto tool = Created(QStringLiteral("ctlSchedule"));
    Start(*tool);
    WorkWith(*qobject_cast<QWidget*>(tool.get()), folder.path());
    tool.reset();
    EXPECT_TRUE(factory->MayUnload());
    EXPECT_TRUE(loader.unload());
    EXPECT_FALSE(IsInProcess());
}

TEST_F(UnloadTest, AComponentThatIsLoadedAgainWorksAsBefore)
{
    const QTemporaryDir folder;
    for (int round = 0; round < 3; ++round) {
        auto tool = Created(QStringLiteral("ctlSchedule"));
        Start(*tool);
        WorkWith(*qobject_cast<QWidget*>(tool.get()), folder.path());
        tool.reset();
        const QByteArrayList formerPieces = Pieces();
        ASSERT_TRUE(loader.unload());
        ASSERT_FALSE(IsInProcess());
        Block(formerPieces);
        Load();
    }
    EXPECT_TRUE(user.boxes.empty());
}

TEST_F(UnloadTest, WhatTheComponentHasToldOutlivesIt)
{
    const QString version = factory->Version();
    const QStringList tools = factory->ToolNames() + factory->UtilityNames();
    auto tool = Created(QStringLiteral("ctlSchedule"));
    Start(*tool);
    tool.reset();
    ASSERT_TRUE(loader.unload());
    EXPECT_EQ(version.count(QLatin1Char('.')), 2);
    EXPECT_EQ(tools.join(QLatin1Char(' ')), QStringLiteral("ctlSchedule ctlSchedOptions CFileUtility"));
    EXPECT_TRUE(host.bodies.join(QLatin1Char(' ')).contains(QStringLiteral("InitializeSchedule")));
}

} // namespace schedules
