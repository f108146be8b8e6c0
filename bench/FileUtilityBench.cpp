// A search through a folder of many files, each asked for its attributes, size and name, against a bare read of the
// folder with status and sort.

#include "fileutil/CFileUtility.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <dirent.h>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace schedules::bench {

namespace {

constexpr int kFiles = 100'000;

struct FilledFolder
{
    FilledFolder()
    {
        for (int number = 0; number < kFiles; ++number) {
            QFile file(folder.filePath(QStringLiteral("template %1.xml").arg(number)));
            if (!file.open(QFile::WriteOnly))
                qFatal("The folder of many files cannot be filled.");
        }
    }

    QTemporaryDir folder;
};

QString TheFolder()
{
    static const FilledFolder filled;
    return filled.folder.path();
}

void OwnSearch(benchmark::State& state)
{
    const QString pattern = TheFolder() + "/*.*";
    for (auto _ : state) {
        CFileUtility file;
        for (bool found = file.FindFile(pattern); found; found = file.FindNextFile()) {
            benchmark::DoNotOptimize(file.GetAttributes());
            benchmark::DoNotOptimize(file.GetLength64());
            benchmark::DoNotOptimize(file.GetFileName());
        }
    }
}

void BareRead(benchmark::State& state)
{
    const std::string path = TheFolder().toStdString();
    for (auto _ : state) {
        DIR* folder = ::opendir(path.c_str());
        std::vector<std::string> names;
        while (const dirent* entry = ::readdir(folder))
            names.emplace_back(entry->d_name);
        std::sort(names.begin(), names.end());
        for (const std::string& name : names) {
            struct stat status;
            benchmark::DoNotOptimize(::fstatat(::dirfd(folder), name.c_str(), &status, 0));
        }
        ::closedir(folder);
    }
}

const bool kRegistered = [] {
    benchmark::RegisterBenchmark("fileutil/100000 files/own", OwnSearch)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("fileutil/100000 files/bare", BareRead)->Unit(benchmark::kMillisecond);
    return true;
}();

} // namespace

} // namespace schedules::bench
