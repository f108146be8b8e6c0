#include "FolderFiles.h"

#include "host/base/HostError.h"
#include "host/project/Project.h"
#include "host/project/Transaction.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QSqlRecord>

#include <gtest/gtest.h>
#include <regex>

namespace schedules::host::testing {

namespace {

QByteArray ContentOf(const QString& fileName)
{
    QFile file(fileName);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(fileName);
    return file.readAll();
}

void Write(const QString& fileName, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(fileName).path());
    QFile file(fileName);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(fileName);
    EXPECT_EQ(file.write(content), content.size());
}

/// What a program prints; `kDamaged` when it fails.
std::string Output(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << qPrintable(program);
    const bool isDone = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return isDone ? process.readAllStandardOutput().toStdString() : kDamaged;
}

/// Each page says when it was printed.
std::string WithoutTime(const std::string& text)
{
    return std::regex_replace(text, std::regex("[0-9]+:[0-9]+:[0-9]+"), "time");
}

std::string DrawnTable(Database& database, const QString& table)
{
    std::string drawn = table.toStdString() + '\n';
    database.Run("SELECT * FROM " + table + " ORDER BY 1, 2", {}, [&](const QSqlQuery& row) {
        for (int field = 0; field < row.record().count(); ++field)
            drawn += row.value(field).toString().toStdString() + '|';
        drawn += '\n';
    });
    return drawn;
}

/// All that it holds but its own number, which is another one in each project.
std::string DrawnProject(const QString& fileName)
{
    try {
        Project::Open(fileName);
        Database database{ProjectAddress(fileName)};
        if (database.Text("PRAGMA integrity_check") != "ok")
            return kDamaged;
        std::string drawn;
        for (const char* table : {"category", "tag", "item", "value", "template", "current_template"})
            drawn += DrawnTable(database, table);
        return drawn;
    } catch (const HostError& error) {
        return kDamaged + (": " + error.Line().toStdString());
    }
}

std::string Drawn(const QString& fileName)
{
    const QByteArray content = ContentOf(fileName);
    if (content.startsWith("%PDF"))
        return WithoutTime(Output("pdftotext", {"-layout", fileName, "-"}));
    if (content.startsWith("PK"))
        return Output("unzip", {"-p", fileName, "xl/*", "*Content_Types*"});
    return content.toStdString();
}

template <typename Step>
void ForEachIn(const QString& folder, Step step)
{
    QDirIterator found(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (found.hasNext()) {
        found.next();
        step(found.fileInfo(), QDir(folder).relativeFilePath(found.filePath()));
    }
}

} // namespace

FolderFiles FilesIn(const QString& folder)
{
    FolderFiles files;
    ForEachIn(folder, [&](const QFileInfo& info, const QString& name) {
        if (info.isDir())
            files.insert({name + '/', {}});
        else
            files.insert({name, ContentOf(info.filePath())});
    });
    return files;
}

void Restore(const QString& folder, const FolderFiles& files)
{
    if (FilesIn(folder) == files)
        return;
    EXPECT_TRUE(QDir(folder).removeRecursively() && QDir().mkpath(folder));
    for (const auto& [name, content] : files) {
        if (name.endsWith('/'))
            QDir().mkpath(folder + '/' + name);
        else
            Write(folder + '/' + name, content);
    }
}

std::map<std::string, std::string> DrawnFilesIn(const QString& folder)
{
    std::map<std::string, std::string> files;
    const QString project = folder + "/plant.schedules";
    // First: whoever opens a database takes away what another program has left beside it.
    if (QFileInfo::exists(project))
        files["plant.schedules"] = DrawnProject(project);
    ForEachIn(folder, [&](const QFileInfo& info, const QString& name) {
        if (info.isDir())
            files.insert({name.toStdString() + '/', "a folder"});
        else if (info.filePath() != project)
            files.insert({name.toStdString(), Drawn(info.filePath())});
    });
    return files;
}

} // namespace schedules::host::testing
