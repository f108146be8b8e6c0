#include "host/HostProgram.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamReader>

#include <algorithm>

namespace schedules::host::testing {

namespace {

QStringList XmlFilesIn(const QString& root, const QString& folder)
{
    QStringList names;
    for (const QString& name : QDir(root + '/' + folder).entryList({"*.xml"}, QDir::Files, QDir::Name))
        names << folder + '/' + name;
    return names;
}

QStringList CommittedIn(const QString& folder)
{
    return XmlFilesIn(QStringLiteral(SCHEDULES_SOURCE_DIR "/samples"), folder);
}

QByteArray ContentOf(const QString& fileName)
{
    QFile file(fileName);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(fileName);
    return file.readAll();
}

struct Samples : HostProgram
{
    QJsonDocument Dumped(const QString& name, const QStringList& options = {})
    {
        const Outcome run = Schedhost(QStringList{"dump", Sample(name)} + options);
        EXPECT_EQ(run.exitCode, 0) << run.err.constData();
        return QJsonDocument::fromJson(run.out);
    }

    /// Runs a script that makes samples on a copy of its tables.
    void RunCopied(const QString& script)
    {
        const QDir source(Sample({}));
        ASSERT_TRUE(QDir().mkpath(Path("tables")));
        ASSERT_TRUE(QFile::copy(source.filePath(script), Path(script)));
        for (const QString& name : QDir(source.filePath("tables")).entryList(QDir::Files))
            ASSERT_TRUE(QFile::copy(source.filePath("tables/" + name), Path("tables/" + name)));
        ASSERT_EQ(QProcess::execute("python3", {Path(script)}), 0);
    }

    void ExpectAsCommitted(const QString& folder)
    {
        const QStringList committed = CommittedIn(folder);
        EXPECT_EQ(XmlFilesIn(Path({}), folder), committed);
        for (const QString& name : committed)
            EXPECT_EQ(Read(name), ContentOf(Sample(name))) << qPrintable(name);
    }
};

/// The catalogue of the samples as it is printed.
struct SampleCatalogue : Samples
{
    QJsonArray Printed()
    {
        const Outcome run = Schedhost(
            {"catalogue", Sample("lists/template-list.xml"), Sample("lists/category-list.xml"), Sample("templates")});
        EXPECT_EQ(run.exitCode, 0);
        EXPECT_EQ(run.err, "");
        return QJsonDocument::fromJson(run.out).array();
    }
};

/// A line for every start of an element, with its attributes in their order, for every end, and for every text but
/// layout.
QStringList Drawn(const QByteArray& xml)
{
    QStringList lines;
    QXmlStreamReader reader(xml);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            lines << reader.name().toString();
            for (const auto& attribute : reader.attributes())
                lines.last() += QStringLiteral(" %1='%2'").arg(attribute.qualifiedName(), attribute.value());
        } else if (reader.isEndElement()) {
            lines << "/";
        } else if (reader.isCharacters() && !reader.isWhitespace()) {
            lines << reader.text().toString();
        }
    }
    EXPECT_FALSE(reader.hasError()) << qPrintable(reader.errorString());
    return lines;
}

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

TEST_F(Samples, SchedulesAreWhatTheScriptMakesOfTheTables)
{
    ASSERT_NO_FATAL_FAILURE(RunCopied("make_samples.py"));
    EXPECT_EQ(CommittedIn("."), (QStringList{"./air-handling.xml", "./pumps.xml", "./selection.xml", "./valves.xml"}));
    ExpectAsCommitted(".");
}

TEST_F(Samples, TemplatesAndListsAreWhatTheScriptMakesOfTheTables)
{
    ASSERT_NO_FATAL_FAILURE(RunCopied("make_templates.py"));
    EXPECT_EQ(CommittedIn("lists"), (QStringList{"lists/category-list.xml", "lists/template-list.xml"}));
    EXPECT_GE(CommittedIn("templates").size(), 12);
    ExpectAsCommitted("lists");
    ExpectAsCommitted("templates");
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

TEST_F(Samples, EveryTemplateIsPrintedWithTheElementsAndAttributesOfItsFile)
{
    for (const QString& name : CommittedIn("templates")) {
        const Outcome run = Schedhost({"template", Sample(name)});
        EXPECT_EQ(run.exitCode, 0) << qPrintable(name);
        EXPECT_EQ(run.err, "") << qPrintable(name);
        EXPECT_EQ(Drawn(run.out), Drawn(ContentOf(Sample(name)))) << qPrintable(name);
    }
}

TEST_F(SampleCatalogue, HasEveryTemplateThatThereIs)
{
    QStringList files;
    for (const QJsonValue listed : Printed()) {
        EXPECT_EQ(listed["id"].toInt(), files.size() + 1);
        EXPECT_FALSE(listed["groups"].toArray().isEmpty()) << qPrintable(listed["name"].toString());
        files << "templates/" + listed["filename"].toString();
    }
    files.sort();
    EXPECT_EQ(files, CommittedIn("templates"));
}

TEST_F(SampleCatalogue, EveryCategoryHasTemplatesAndOneDefault)
{
    QHash<QString, int> defaults;
    for (const QJsonValue listed : Printed()) {
        EXPECT_FALSE(listed["categoryDisplayName"].toString().isEmpty()) << qPrintable(listed["name"].toString());
        defaults[listed["category"].toString()] += listed["defaultForCategory"].toBool() ? 1 : 0;
    }
    EXPECT_EQ(defaults.size(), 6);
    for (auto category = defaults.cbegin(); category != defaults.cend(); ++category)
        EXPECT_EQ(category.value(), 1) << qPrintable(category.key());
}

TEST_F(SampleCatalogue, HasAProtectedTemplateAndADefaultTemplate)
{
    const QJsonArray catalogue = Printed();
    for (const char* flag : {"protected", "isDefaultTemplate"}) {
        const auto isSet = [flag](const QJsonValue& listed) { return listed[QLatin1String(flag)].toBool(); };
        EXPECT_TRUE(std::any_of(catalogue.begin(), catalogue.end(), isSet)) << flag;
        EXPECT_FALSE(std::all_of(catalogue.begin(), catalogue.end(), isSet)) << flag;
    }
}

TEST_F(Samples, LieBesideTheProgram)
{
    const QString beside = QStringLiteral(SCHEDULES_BIN_DIR "/samples");
    for (const char* folder : {".", "templates", "lists"}) {
        for (const QString& name : CommittedIn(QLatin1String(folder)))
            EXPECT_EQ(ContentOf(beside + '/' + name), ContentOf(Sample(name))) << qPrintable(name);
    }
}

} // namespace schedules::host::testing
