#include "Matches.h"
#include "TestFolder.h"

#include <ctime>
#include <limits>
#include <optional>

using namespace schedules;
using namespace schedules::testing;

namespace {

/// Central European time, as long as it lives: an hour ahead of UTC, two from the last Sunday of March to that of
/// October.
class CentralEurope
{
public:
    CentralEurope() : m_before(qgetenv("TZ")), m_wasSet(qEnvironmentVariableIsSet("TZ"))
    {
        qputenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
        ::tzset();
    }
    ~CentralEurope()
    {
        if (m_wasSet)
            qputenv("TZ", m_before);
        else
            qunsetenv("TZ");
        ::tzset();
    }
    Q_DISABLE_COPY_MOVE(CentralEurope)

private:
    QByteArray m_before;
    bool m_wasSet;
};

struct CFileUtilityTimes : ::testing::Test
{
    /// A file that was last read and written then.
    void Find(timespec accessed, timespec written)
    {
        folder.File("a.xml");
        folder.Times("a.xml", accessed, written);
        ASSERT_TRUE(file.FindFile(folder.Text("a.xml")));
    }

    /// The text of the time that many seconds after 1970 began, UTC.
    std::string Text(std::int64_t seconds, long nanoseconds = 0)
    {
        Find({}, {seconds, nanoseconds});
        return file.GetLastWriteTime().toStdString();
    }

    TestFolder folder;
    CFileUtility file;
    CentralEurope here;
};

std::uint64_t Joined(int high, int low)
{
    return static_cast<std::uint64_t>(static_cast<std::uint32_t>(high)) << 32 | static_cast<std::uint32_t>(low);
}

std::uint64_t Written(const CFileUtility& file)
{
    return Joined(file.GetLastWriteTimeHigh(), file.GetLastWriteTimeLow());
}

std::uint64_t Created(const CFileUtility& file)
{
    return Joined(file.GetCreationDateHigh(), file.GetCreationDateLow());
}

/// When a file was made, and when its status was last changed.
struct Origin
{
    statx_timestamp made;
    statx_timestamp changed;

    bool AreAlike() const { return made.tv_sec == changed.tv_sec && made.tv_nsec == changed.tv_nsec; }
};

/// None where the file system does not keep the time of making.
std::optional<Origin> OriginOf(const std::string& path)
{
    struct statx status;
    EXPECT_EQ(::statx(AT_FDCWD, path.c_str(), 0, STATX_BASIC_STATS | STATX_BTIME, &status), 0);
    if ((status.stx_mask & STATX_BTIME) == 0)
        return std::nullopt;
    return Origin{status.stx_btime, status.stx_ctime};
}

constexpr std::uint64_t k1970 = 116'444'736'000'000'000;
constexpr std::uint64_t kSecond = 10'000'000;

} // namespace

TEST_F(CFileUtilityTimes, WithoutAMatchAreNone)
{
    EXPECT_EQ(file.GetLastWriteTime(), "");
    EXPECT_EQ(file.GetLastAccessTime(), "");
    EXPECT_EQ(file.GetCreationDate(), "");
    EXPECT_EQ(file.GetLastWriteTimeHigh(), 0);
    EXPECT_EQ(file.GetLastWriteTimeLow(), 0);
    EXPECT_EQ(file.GetLastAccessTimeHigh(), 0);
    EXPECT_EQ(file.GetLastAccessTimeLow(), 0);
    EXPECT_EQ(file.GetCreationDateHigh(), 0);
    EXPECT_EQ(file.GetCreationDateLow(), 0);
}

TEST_F(CFileUtilityTimes, AreLocalAndHaveTwoDigitsEach)
{
    EXPECT_EQ(Text(1704423845), "2024, 01, 05 04:04:05");
    EXPECT_EQ(Text(1703977200), "2023, 12, 31 00:00:00");
}

TEST_F(CFileUtilityTimes, KnowSummerTime)
{
    EXPECT_EQ(Text(1719837296), "2024, 07, 01 14:34:56");
    EXPECT_EQ(Text(1711846799), "2024, 03, 31 01:59:59") << "the last second of winter";
    EXPECT_EQ(Text(1711846800), "2024, 03, 31 03:00:00") << "the first of summer";
    EXPECT_EQ(Text(1729987200 + 1800), "2024, 10, 27 02:30:00") << "in summer";
    EXPECT_EQ(Text(1729987200 + 5400), "2024, 10, 27 02:30:00") << "in winter, an hour later";
}

TEST_F(CFileUtilityTimes, LeaveOutPartsOfASecond)
{
    EXPECT_EQ(Text(1704423845, 999'999'999), "2024, 01, 05 04:04:05");
    EXPECT_EQ(Text(-1, 500'000'000), "1970, 01, 01 00:59:59");
}

TEST_F(CFileUtilityTimes, GoBackBefore1970)
{
    EXPECT_EQ(Text(0), "1970, 01, 01 01:00:00");
    EXPECT_EQ(Text(-157'766'400), "1965, 01, 01 01:00:00");
}

TEST_F(CFileUtilityTimes, CountFrom1601InHundredsOfNanoseconds)
{
    Find({1, 300}, {0, 700});
    EXPECT_EQ(file.GetLastWriteTimeHigh(), 27111902);
    EXPECT_EQ(file.GetLastWriteTimeLow(), static_cast<int>(0xD53E8000) + 7);
    EXPECT_EQ(Written(file), k1970 + 7);
    EXPECT_EQ(Joined(file.GetLastAccessTimeHigh(), file.GetLastAccessTimeLow()), k1970 + kSecond + 3);
}

TEST_F(CFileUtilityTimes, OfLastWriteAndLastAccessDiffer)
{
    Find({1704423845, 0}, {1719837296, 0});
    EXPECT_EQ(file.GetLastAccessTime(), "2024, 01, 05 04:04:05");
    EXPECT_EQ(file.GetLastWriteTime(), "2024, 07, 01 14:34:56");
}

TEST_F(CFileUtilityTimes, OfCreationIsWhenTheFileWasMade)
{
    Find({1704423845, 0}, {1704423845, 0});
    auto origin = OriginOf(folder.Bytes("a.xml"));
    if (!origin)
        GTEST_SKIP() << "this file system does not keep it";
    for (; origin->AreAlike(); origin = OriginOf(folder.Bytes("a.xml")))
        folder.Mode("a.xml", 0644);

    ASSERT_TRUE(file.FindFile(folder.Text("a.xml")));
    const std::time_t seconds = origin->made.tv_sec;
    EXPECT_EQ(Created(file), k1970 + static_cast<std::uint64_t>(seconds) * kSecond + origin->made.tv_nsec / 100);
    char text[64];
    std::strftime(text, sizeof text, "%Y, %m, %d %H:%M:%S", std::localtime(&seconds));
    EXPECT_EQ(file.GetCreationDate(), text);
}

TEST_F(CFileUtilityTimes, OfCreationIsThatOfTheLastWriteWhereItIsNotKept)
{
    if (OriginOf("/proc/version"))
        GTEST_SKIP() << "this file system keeps it";
    ASSERT_TRUE(file.FindFile("/proc/version"));
    EXPECT_GT(Created(file), k1970);
    EXPECT_EQ(Created(file), Written(file));
    EXPECT_EQ(file.GetCreationDate(), file.GetLastWriteTime());
}

TEST_F(CFileUtilityTimes, OfALinkAreThoseOfWhatItLeadsTo)
{
    folder.File("target");
    folder.Times("target", {}, {1704423845, 0});
    folder.Link("target", "link");
    folder.Times("link", {}, {1719837296, 0});
    ASSERT_TRUE(file.FindFile(folder.Text("link")));
    EXPECT_EQ(file.GetLastWriteTime(), "2024, 01, 05 04:04:05");
    folder.Remove("target");
    ASSERT_TRUE(file.FindFile(folder.Text("link")));
    EXPECT_EQ(file.GetLastWriteTime(), "2024, 07, 01 14:34:56") << "its own when that is gone";
}

TEST_F(CFileUtilityTimes, ThatCannotBeCountedAreTheNearest)
{
    const QTemporaryDir memory("/dev/shm/times-XXXXXX");
    if (!memory.isValid())
        GTEST_SKIP() << "no file system here takes such times";
    const QByteArray path = memory.filePath("a").toUtf8();
    ::close(::open(path.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644));
    const timespec times[]{{std::numeric_limits<time_t>::max() / 2, 0}, {-20'000'000'000, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.constData(), times, 0), 0);
    ASSERT_TRUE(file.FindFile(QString::fromUtf8(path)));
    EXPECT_EQ(Written(file), 0U);
    EXPECT_EQ(file.GetLastWriteTime(), "1601, 01, 01 01:00:00");
    EXPECT_EQ(file.GetLastAccessTimeHigh(), std::numeric_limits<int>::max());
    EXPECT_NE(file.GetLastAccessTime(), "");
}
