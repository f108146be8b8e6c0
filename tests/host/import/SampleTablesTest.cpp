#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace schedules::host::testing {

namespace {

const QDir kSamples(QStringLiteral(SCHEDULES_SOURCE_DIR "/samples"));

QByteArray ContentOf(const QString& fileName)
{
    QFile file(fileName);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(fileName);
    return file.readAll();
}

QStringList TablesIn(const QDir& samples)
{
    return QDir(samples.filePath("plant")).entryList({"*.csv"}, QDir::Files, QDir::Name);
}

void CopyInto(const QDir& target, const QString& folder, const QString& pattern)
{
    ASSERT_TRUE(target.mkpath(folder));
    for (const QString& name : QDir(kSamples.filePath(folder)).entryList({pattern}, QDir::Files))
        ASSERT_TRUE(QFile::copy(kSamples.filePath(folder + '/' + name), target.filePath(folder + '/' + name)));
}

void ExpectPlantOf(const QDir& samples)
{
    EXPECT_EQ(TablesIn(samples), TablesIn(kSamples));
    for (const QString& name : TablesIn(kSamples))
        EXPECT_EQ(ContentOf(samples.filePath("plant/" + name)), ContentOf(kSamples.filePath("plant/" + name)))
            << qPrintable(name);
}

} // namespace

TEST(SampleTables, IsWhatTheScriptMakesOfTheTables)
{
    const QTemporaryDir folder;
    const QDir copy(folder.path());
    CopyInto(copy, ".", "make_*.py");
    CopyInto(copy, "tables", "*.csv");
    CopyInto(copy, "plant_rules", "*.py");
    ASSERT_EQ(QProcess::execute("python3", {copy.filePath("make_plant.py")}), 0);
    ExpectPlantOf(copy);
}

TEST(SampleTables, LiesBesideTheProgram)
{
    EXPECT_EQ(TablesIn(kSamples), (QStringList{"airhandling.csv", "categories.csv", "controlvalves.csv", "general.csv",
                                               "heatexchangers.csv", "instruments.csv", "items.csv", "pumps.csv"}));
    ExpectPlantOf(QDir(QStringLiteral(SCHEDULES_BIN_DIR "/samples")));
}

} // namespace schedules::host::testing
