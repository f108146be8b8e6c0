#include "HostProgram.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace schedules::host::testing {

namespace {

struct Samples : HostProgram
{
    QJsonDocument Dumped(const QString& name, const QStringList& options = {})
    {
        const Outcome run = Schedhost(QStringList{"dump", Sample(name)} + options);
        EXPECT_EQ(run.exitCode, 0) << run.err.constData();
        return QJsonDocument::fromJson(run.out);
    }
};

QJsonArray CellsOf(const QJsonDocument& dumped)
{
    return dumped[QStringLiteral("cells")].toArray();
}

int CountOf(const QJsonDocument& dumped, const QString& key, const QJsonValue& value)
{
    const QJsonArray cells = CellsOf(dumped);
    return static_cast<int>(
        std::count_if(cells.begin(), cells.end(), [&](const QJsonValue& cell) { return cell[key] == value; }));
}

bool HasScript(const QJsonDocument& dumped, QChar::Script script)
{
    for (const QJsonValue cell : CellsOf(dumped)) {
        for (const QChar letter : cell[QStringLiteral("text")].toString()) {
            if (letter.script() == script)
                return true;
        }
    }
    return false;
}

} // namespace

TEST_F(Samples, AreWhatTheScriptMakesOfTheTables)
{
    const QDir source(QStringLiteral(SCHEDULES_SOURCE_DIR "/samples"));
    ASSERT_TRUE(QDir().mkpath(Path(QStringLiteral("tables"))));
    ASSERT_TRUE(
        QFile::copy(source.filePath(QStringLiteral("make_samples.py")), Path(QStringLiteral("make_samples.py"))));
    const QDir tables(source.filePath(QStringLiteral("tables")));
    for (const QString& name : tables.entryList(QDir::Files))
        ASSERT_TRUE(QFile::copy(tables.filePath(name), Path(QStringLiteral("tables/") + name)));

    ASSERT_EQ(QProcess::execute(QStringLiteral("python3"), {Path(QStringLiteral("make_samples.py"))}), 0);
    const QStringList samples = source.entryList({"*.xml"}, QDir::Files, QDir::Name);
    EXPECT_EQ(samples, (QStringList{"air-handling.xml", "pumps.xml", "selection.xml", "valves.xml"}));
    for (const QString& name : samples) {
        QFile committed(source.filePath(name));
        ASSERT_TRUE(committed.open(QIODevice::ReadOnly));
        EXPECT_EQ(Read(name), committed.readAll()) << qPrintable(name);
    }
}

TEST_F(Samples, PumpsHaveFortyTagsInGroups)
{
    const auto pumps = Dumped(QStringLiteral("pumps.xml"));
    EXPECT_EQ(pumps[QStringLiteral("columns")].toInt(), 40);
    EXPECT_EQ(pumps[QStringLiteral("rows")].toInt(), 35);
    EXPECT_EQ(pumps[QStringLiteral("hiddenRows")].toArray().size(), 1);
    EXPECT_GT(CountOf(pumps, QStringLiteral("type"), QStringLiteral("checkbox")), 100);
    EXPECT_GT(CountOf(pumps, QStringLiteral("backColor"), 0xF5E6D2), 4 * 40 - 1);
    for (const char* group : {"DESIGN", "MOTOR", "CONSTRUCTION", "VENDOR"})
        EXPECT_EQ(CountOf(pumps, QStringLiteral("text"), QString::fromLatin1(group)), 1) << group;
    for (const auto script : {QChar::Script_Cyrillic, QChar::Script_Greek, QChar::Script_Han})
        EXPECT_TRUE(HasScript(pumps, script)) << script;
}

TEST_F(Samples, AirHandlingHasEighteenUnits)
{
    const auto air = Dumped(QStringLiteral("air-handling.xml"));
    EXPECT_EQ(air[QStringLiteral("columns")].toInt(), 18);
    EXPECT_EQ(CountOf(air, QStringLiteral("text"), QStringLiteral("Supply air (m³/h)")), 1);
    EXPECT_EQ(air[QStringLiteral("hiddenRows")].toArray().size(), 1);
}

TEST_F(Samples, ValvesHaveHundredsOfTagsWithColouredHeadings)
{
    const auto valves = Dumped(QStringLiteral("valves.xml"));
    EXPECT_EQ(valves[QStringLiteral("columns")].toInt(), 29);
    EXPECT_EQ(valves[QStringLiteral("rows")].toInt(), 368);
    EXPECT_EQ(valves[QStringLiteral("hiddenRows")].toArray().size(), 2);
    EXPECT_EQ(CountOf(valves, QStringLiteral("backColor"), 0xF5E6D2), 8 * 29) << "eight units";
}

TEST_F(Samples, TheSelectionHasATagPerColumn)
{
    const auto selection = Dumped(QStringLiteral("selection.xml"), {"--view", "selector", "--select-all"});
    EXPECT_EQ(selection[QStringLiteral("columns")].toInt(), 40);
    EXPECT_EQ(CountOf(selection, QStringLiteral("type"), QStringLiteral("checkbox")), 40);
    for (const QJsonValue cell : CellsOf(selection)) {
        const bool checkBox = cell[QStringLiteral("type")] == QStringLiteral("checkbox");
        EXPECT_EQ(checkBox, cell[QStringLiteral("row")] == 2 && cell[QStringLiteral("column")] != 0);
    }
}

TEST_F(Samples, LieBesideTheProgram)
{
    EXPECT_TRUE(QFile::exists(QStringLiteral(SCHEDULES_BIN_DIR "/samples/pumps.xml")));
}

} // namespace schedules::host::testing
