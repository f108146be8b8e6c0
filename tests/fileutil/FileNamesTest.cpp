#include "fileutil/FileNames.h"

#include <QRandomGenerator>

#include <gtest/gtest.h>

using namespace schedules;

namespace {

QString Escaped(unsigned char byte)
{
    return QChar(0xDC00 + byte);
}

/// The bytes in hexadecimal digits; "none" when there are none.
std::string Encoded(const QString& path)
{
    const auto bytes = EncodedPath(path);
    return bytes ? bytes->toHex(' ').toStdString() : "none";
}

} // namespace

TEST(DecodedName, OfUtf8IsItsText)
{
    EXPECT_EQ(DecodedName("report.xml"), "report.xml");
    EXPECT_EQ(DecodedName("Насосы.xml"), QString::fromUtf8("Насосы.xml"));
    EXPECT_EQ(DecodedName("😀"), QString::fromUtf8("😀"));
    EXPECT_EQ(DecodedName(""), "");
}

TEST(DecodedName, KeepsAByteOrderMark)
{
    EXPECT_EQ(DecodedName("\xEF\xBB\xBF"
                          "a"),
              QChar(0xFEFF) + QString("a"));
    EXPECT_EQ(DecodedName("\xEF\xBB\xBF\xFF"), QChar(0xFEFF) + Escaped(0xFF));
}

TEST(DecodedName, HasASurrogateForEachByteThatCannotBeDecoded)
{
    EXPECT_EQ(DecodedName("a\xFF\xFE.xml"), "a" + Escaped(0xFF) + Escaped(0xFE) + ".xml");
    EXPECT_EQ(DecodedName("\xE4pfel"), Escaped(0xE4) + "pfel") << "Latin 1";
    EXPECT_EQ(DecodedName("\xC0\xAF"), Escaped(0xC0) + Escaped(0xAF)) << "an overlong slash";
    EXPECT_EQ(DecodedName("\xED\xB2\x80"), Escaped(0xED) + Escaped(0xB2) + Escaped(0x80)) << "an encoded surrogate";
    EXPECT_EQ(DecodedName("a\xE6\x97"), "a" + Escaped(0xE6) + Escaped(0x97)) << "a character cut short";
    EXPECT_EQ(DecodedName("ж\xFF😀"), QString::fromUtf8("ж") + Escaped(0xFF) + QString::fromUtf8("😀"));
}

TEST(DecodedName, HasASurrogateForABackslash)
{
    EXPECT_EQ(DecodedName("a\\b"), "a" + Escaped('\\') + "b");
    EXPECT_EQ(DecodedName("\xFF\\"), Escaped(0xFF) + Escaped('\\'));
}

TEST(EncodedPath, IsUtf8)
{
    EXPECT_EQ(Encoded("ab"), "61 62");
    EXPECT_EQ(Encoded(QString::fromUtf8("ж😀")), "d0 b6 f0 9f 98 80");
    EXPECT_EQ(Encoded(QChar(0xFEFF)), "ef bb bf");
    EXPECT_EQ(Encoded(""), "");
}

TEST(EncodedPath, TakesBothSeparators)
{
    EXPECT_EQ(Encoded("a\\b/c"), "61 2f 62 2f 63");
}

TEST(EncodedPath, TurnsSurrogatesBackIntoBytes)
{
    EXPECT_EQ(Encoded("a" + Escaped(0xFF) + Escaped(0x80) + Escaped('\\')), "61 ff 80 5c");
    EXPECT_EQ(Encoded(QString::fromUtf8("😀") + Escaped(0x80)), "f0 9f 98 80 80");
}

TEST(EncodedPath, IsNoneForWhatNoFileIsCalled)
{
    EXPECT_EQ(Encoded(QString("a.xml") + QChar(u'\0') + "b"), "none");
    EXPECT_EQ(Encoded(QChar(0xD83D)), "none") << "half a pair";
    EXPECT_EQ(Encoded(QChar(0xDD00)), "none") << "the other half";
    EXPECT_EQ(Encoded(Escaped('/')), "none") << "no byte that comes as itself";
    EXPECT_EQ(Encoded(Escaped('a')), "none");
    EXPECT_EQ(Encoded(Escaped('\0')), "none");
}

TEST(EncodedPath, GivesBackTheBytesOfAnyName)
{
    QRandomGenerator random(5);
    for (int round = 0; round < 20'000; ++round) {
        QByteArray name;
        for (int length = random.bounded(12); length >= 0; --length)
            name += static_cast<char>(random.bounded(4) == 0 ? random.bounded(1, 0x80) : random.bounded(0x80, 0x100));
        name.replace('/', '\\');
        ASSERT_EQ(EncodedPath(DecodedName(name)), name) << name.toHex().toStdString();
    }
}

TEST(FolderPart, EndsWithTheLastSeparator)
{
    EXPECT_EQ(FolderPart("/a/b.xml"), "/a/");
    EXPECT_EQ(FolderPart("a\\b\\*.xml"), "a\\b\\");
    EXPECT_EQ(FolderPart("a\\b/c"), "a\\b/");
    EXPECT_EQ(FolderPart("a/b\\c"), "a/b\\");
    EXPECT_EQ(FolderPart("b.xml"), "");
    EXPECT_EQ(FolderPart("/"), "/");
    EXPECT_EQ(FolderPart("a/"), "a/");
    EXPECT_EQ(FolderPart(""), "");
    EXPECT_EQ(FolderPart("a" + Escaped('\\') + "b"), "") << "the backslash of a name";
}

TEST(CleanedPath, HasNeitherDotsNorBackslashes)
{
    EXPECT_EQ(CleanedPath("/a\\b//./c/../d"), "/a/b/d");
    EXPECT_EQ(CleanedPath("/a/."), "/a");
    EXPECT_EQ(CleanedPath("\\\\a\\b"), "/a/b");
    EXPECT_EQ(CleanedPath("/a" + Escaped('\\') + "b"), "/a" + Escaped('\\') + "b");
    EXPECT_EQ(CleanedPath(""), "");
}

TEST(CleanedPath, StopsAtTheRoot)
{
    EXPECT_EQ(CleanedPath("/.."), "/");
    EXPECT_EQ(CleanedPath("/../../a"), "/a");
    EXPECT_EQ(CleanedPath("/..a"), "/..a");
    EXPECT_EQ(CleanedPath("/"), "/");
}
