#include "fileutil/CFileUtility.h"

#include "common/Blanks.h"
#include "common/Error.h"
#include "fileutil/FileNames.h"

#include <QDateTime>
#include <QDir>

namespace schedules {

namespace {

QString Absolute(const QString& folder)
{
    const QString cleaned = CleanedPath(folder);
    return QDir::isAbsolutePath(cleaned) ? cleaned : CurrentFolder() + u'/' + cleaned;
}

QDateTime ToLocalTime(FileTime time)
{
    constexpr FileTime kPerMillisecond = kFileTimesPerSecond / 1000;
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(time / kPerMillisecond) - kSecondsFrom1601To1970 * 1000);
}

QString TwoDigits(int number)
{
    return QStringLiteral("%1").arg(number, 2, 10, QChar(u'0'));
}

int High(std::uint64_t number)
{
    return static_cast<int>(number >> 32);
}

int Low(std::uint64_t number)
{
    return static_cast<int>(number);
}

} // namespace

CFileUtility::~CFileUtility() = default;

bool CFileUtility::FindFile(const QString& strName)
{
    FindClose();
    bool found = false;
    IgnoringErrors([&] {
        BeginSearch(strName.isEmpty() ? QStringLiteral("*.*") : strName);
        found = MoveToNext();
    });
    if (!found)
        FindClose();
    return found;
}

bool CFileUtility::FindNextFile()
{
    bool found = false;
    IgnoringErrors([&] { found = MoveToNext(); });
    return found;
}

bool CFileUtility::DeleteFile(const QString& strfilename)
{
    bool deleted = false;
    IgnoringErrors([&] { deleted = RemoveFile(strfilename); });
    return deleted;
}

void CFileUtility::FindClose()
{
    m_search.reset();
}

void CFileUtility::BeginSearch(const QString& pattern)
{
    const QString folder = FolderPart(pattern);
    m_folder = {folder, Absolute(folder)};
    m_search.emplace(folder, pattern.mid(folder.size()));
}

bool CFileUtility::MoveToNext()
{
    auto record = m_search ? m_search->Next() : std::nullopt;
    if (!record)
        return false;
    m_match = Match{m_folder, std::move(*record)};
    return true;
}

unsigned CFileUtility::GetAttributes() const
{
    return Told(&FindRecord::attributes);
}

bool CFileUtility::IsReadOnly() const
{
    return MatchesMask(kReadOnlyFile);
}

bool CFileUtility::IsHidden() const
{
    return MatchesMask(kHiddenFile);
}

bool CFileUtility::IsSystem() const
{
    return MatchesMask(kSystemFile);
}

bool CFileUtility::IsDirectory() const
{
    return MatchesMask(kDirectoryFile);
}

bool CFileUtility::IsArchived() const
{
    return MatchesMask(kArchivedFile);
}

bool CFileUtility::IsNormal() const
{
    return MatchesMask(kNormalFile);
}

bool CFileUtility::IsTemporary() const
{
    return MatchesMask(kTemporaryFile);
}

bool CFileUtility::IsCompressed() const
{
    return MatchesMask(kCompressedFile);
}

bool CFileUtility::IsDots() const
{
    const QString name = GetFileName();
    return name == QLatin1String(".") || name == QLatin1String("..");
}

bool CFileUtility::MatchesMask(unsigned dwMask) const
{
    return (GetAttributes() & dwMask) != 0;
}

QString CFileUtility::GetLastWriteTime() const
{
    return TimeText(&FindRecord::written);
}

QString CFileUtility::GetLastAccessTime() const
{
    return TimeText(&FindRecord::accessed);
}

QString CFileUtility::GetCreationDate() const
{
    return TimeText(&FindRecord::created);
}

QString CFileUtility::TimeText(FileTime FindRecord::*time) const
{
    if (!m_match)
        return {};
    const QDateTime local = ToLocalTime(Told(time));
    const QDate day = local.date();
    const QTime hour = local.time();
    return QString::number(day.year()) + ", " + TwoDigits(day.month()) + ", " + TwoDigits(day.day()) + ' ' +
           TwoDigits(hour.hour()) + ':' + TwoDigits(hour.minute()) + ':' + TwoDigits(hour.second());
}

int CFileUtility::GetLastWriteTimeHigh() const
{
    return High(Told(&FindRecord::written));
}

int CFileUtility::GetLastWriteTimeLow() const
{
    return Low(Told(&FindRecord::written));
}

int CFileUtility::GetLastAccessTimeHigh() const
{
    return High(Told(&FindRecord::accessed));
}

int CFileUtility::GetLastAccessTimeLow() const
{
    return Low(Told(&FindRecord::accessed));
}

int CFileUtility::GetCreationDateHigh() const
{
    return High(Told(&FindRecord::created));
}

int CFileUtility::GetCreationDateLow() const
{
    return Low(Told(&FindRecord::created));
}

QString CFileUtility::GetRoot() const
{
    return TrimmedOfBlanks(m_folder.asWritten);
}

QString CFileUtility::GetFileURL() const
{
    return m_match ? "file://" + CleanedPath(m_match->folder.absolute + u'/' + GetFileName()) : QString();
}

QString CFileUtility::GetFileTitle() const
{
    return GetFileName().section(u'.', 0, 0);
}

QString CFileUtility::GetFilePath() const
{
    return m_match ? m_match->folder.asWritten + GetFileName() : QString();
}

QString CFileUtility::GetFileName() const
{
    return Told(&FindRecord::name);
}

QString CFileUtility::GetShortPath() const
{
    return GetFilePath();
}

QString CFileUtility::GetShortName() const
{
    return GetFileName();
}

int CFileUtility::GetLength() const
{
    return Low(Told(&FindRecord::size));
}

double CFileUtility::GetLength64() const
{
    constexpr double kHighPart = 2E+32;
    return High(Told(&FindRecord::size)) * kHighPart + GetLength();
}

} // namespace schedules
