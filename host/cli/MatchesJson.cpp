#include "host/cli/MatchesJson.h"

#include "fileutil/CFileUtility.h"
#include "host/base/Json.h"

namespace schedules::host {

namespace {

QByteArray MatchJson(const CFileUtility& match)
{
    return JsonObject({{"name", JsonText(match.GetFileName())},
                       {"title", JsonText(match.GetFileTitle())},
                       {"path", JsonText(match.GetFilePath())},
                       {"url", JsonText(match.GetFileURL())},
                       {"attributes", QByteArray::number(match.GetAttributes())},
                       {"length", QByteArray::number(match.GetLength())},
                       {"lastWrite", JsonText(match.GetLastWriteTime())}});
}

} // namespace

QByteArray MatchesJson(const QString& pattern)
{
    CFileUtility files;
    QByteArrayList matches;
    for (bool found = files.FindFile(pattern); found; found = files.FindNextFile())
        matches << MatchJson(files);
    return JsonLines(matches) + '\n';
}

} // namespace schedules::host
