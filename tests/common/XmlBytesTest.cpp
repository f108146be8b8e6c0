#include "common/XmlBytes.h"

#include "common/XmlRecorder.h"
#include "support/OrdinaryUser.h"

#include <QDir>
#include <QFile>
#include <QStringEncoder>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

using Encoding = QStringConverter::Encoding;

/// The bytes as UTF-8; "nothing" when there is none.
std::string Utf8(const QByteArray& bytes)
{
    const auto utf8 = XmlUtf8FromBytes(bytes);
    return utf8 ? utf8->toStdString() : "nothing";
}

/// What a parser tells of them.
std::string Told(const QByteArray& bytes)
{
    const auto utf8 = XmlUtf8FromBytes(bytes);
    return utf8 ? ToldBy(ReadXml, *utf8) : "nothing";
}

/// A document that declares an encoding, with bytes as its text.
QByteArray Declared(const char* encoding, const QByteArray& text)
{
    return QByteArray("<?xml version=\"1.0\" encoding=\"") + encoding + "\"?><a>" + text + "</a>";
}

QByteArray Encoded(const char* text, Encoding encoding, bool withMark)
{
    QStringEncoder encoder(encoding, withMark ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default);
    return encoder(QString::fromUtf8(text));
}

struct EncodedText
{
    const char* encoding;
    QByteArray bytes;
    const char* text;
};

void PrintTo(const EncodedText& encoded, std::ostream* out)
{
    *out << encoded.encoding;
}

class XmlBytesEncoding : public ::testing::TestWithParam<EncodedText>
{
};

class XmlFileBytes : public ::testing::Test
{
protected:
    QString In(const char* name) const { return m_folder.filePath(QString::fromUtf8(name)); }

    QString Written(const QByteArray& bytes, const char* name = "Pumps.xml") const
    {
        QFile file(In(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }

    QTemporaryDir m_folder;
};

constexpr qint64 kEnough = 1 << 20;

} // namespace

TEST(XmlBytes, WithoutAMarkOrADeclarationIsUtf8)
{
    EXPECT_EQ(Utf8("<a>Насос 水 𝄞</a>"), "<a>Насос 水 𝄞</a>");
    EXPECT_EQ(Utf8("<?xml version='1.0'?><a>Ж</a>"), "<?xml version='1.0'?><a>Ж</a>");
    EXPECT_EQ(Utf8(""), "");
    EXPECT_EQ(Utf8("<"), "<");
}

TEST(XmlBytes, DeclaredUtf8StaysAsItIs)
{
    for (const char* encoding : {"UTF-8", "utf-8", "Utf-8"})
        EXPECT_EQ(Utf8(Declared(encoding, "Ж")), Declared(encoding, "Ж").toStdString());
    EXPECT_EQ(Told(Declared("UTF8", "Ж")), "<a|Ж>");
}

TEST(XmlBytes, BytesThatAreNoUtf8AreNothing)
{
    for (const char* wrong : {"\xE9", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xD0", "\x80", "\xFF"}) {
        EXPECT_EQ(Utf8(QByteArray("<a>") + wrong + "</a>"), "nothing");
        EXPECT_EQ(Utf8(Declared("UTF-8", wrong)), "nothing");
        EXPECT_EQ(Utf8(Declared("UTF8", wrong)), "nothing");
        EXPECT_EQ(Utf8(QByteArray("\xEF\xBB\xBF<a>") + wrong + "</a>"), "nothing");
    }
    EXPECT_EQ(Utf8("<a/>\xD0"), "nothing") << "cut off within a character";
}

TEST(XmlBytes, AByteOrderMarkSaysTheEncoding)
{
    const char* text = "<a>Насос 水 𝄞</a>";
    for (const Encoding encoding :
         {Encoding::Utf8, Encoding::Utf16LE, Encoding::Utf16BE, Encoding::Utf32LE, Encoding::Utf32BE})
        EXPECT_EQ(Told(Encoded(text, encoding, true)), "<a|Насос 水 𝄞>") << QStringConverter::nameForEncoding(encoding);
}

TEST(XmlBytes, Utf16AndUtf32AreSeenWithoutAMark)
{
    for (const Encoding encoding : {Encoding::Utf16LE, Encoding::Utf16BE, Encoding::Utf32LE, Encoding::Utf32BE}) {
        const char* name = QStringConverter::nameForEncoding(encoding);
        EXPECT_EQ(Told(Encoded("<a>Насос 水 𝄞</a>", encoding, false)), "<a|Насос 水 𝄞>") << name;
        EXPECT_EQ(Utf8(Encoded("<a/>", encoding, false)), "<a/>") << name;
    }
}

TEST(XmlBytes, TheMarkHasTheWordOverTheDeclaration)
{
    for (const char* encoding : {"UTF-8", "UTF-16", "windows-1251", "nonsense"}) {
        const QByteArray document = Declared(encoding, "Ж");
        EXPECT_EQ(Told("\xEF\xBB\xBF" + document), "<a|Ж>") << encoding;
        EXPECT_EQ(Told(Encoded(document.constData(), Encoding::Utf16LE, true)), "<a|Ж>") << encoding;
        EXPECT_EQ(Told(Encoded(document.constData(), Encoding::Utf16BE, false)), "<a|Ж>") << encoding;
    }
}

TEST(XmlBytes, CutOffUnicodeIsNothing)
{
    for (const Encoding encoding : {Encoding::Utf16LE, Encoding::Utf16BE, Encoding::Utf32LE, Encoding::Utf32BE}) {
        for (const bool withMark : {false, true}) {
            const QByteArray bytes = Encoded("<a>Ж</a>", encoding, withMark);
            EXPECT_EQ(Utf8(bytes.chopped(1)), "nothing") << QStringConverter::nameForEncoding(encoding);
            EXPECT_EQ(Utf8(bytes + '\0'), "nothing") << QStringConverter::nameForEncoding(encoding);
        }
    }
    for (const Encoding encoding : {Encoding::Utf32LE, Encoding::Utf32BE}) {
        for (const int missing : {2, 3})
            EXPECT_EQ(Utf8(Encoded("<a>Ж</a>", encoding, true).chopped(missing)), "nothing");
    }
}

TEST(XmlBytes, HalvesOfPairsAreNothing)
{
    EXPECT_EQ(Utf8(QByteArray("<\0a\0>\0\x3D\xD8<\0/\0a\0>\0", 16)), "nothing");
    EXPECT_EQ(Utf8(QByteArray("\xFF\xFE<\0a\0>\0\x42\xDE<\0/\0a\0>\0", 18)), "nothing");
    EXPECT_EQ(Utf8(QByteArray("\xFF\xFE<\0a\0/\0>\0\x3D\xD8", 12)), "nothing") << "at the end";
}

TEST(XmlBytes, BeyondUnicodeIsNothing)
{
    EXPECT_EQ(Utf8(QByteArray("<\0\0\0\0\0\x11\0", 8)), "nothing");
    EXPECT_EQ(Utf8(QByteArray("\xFF\xFE\0\0<\0\0\0\xFF\xFF\xFF\xFF", 12)), "nothing");
}

TEST_P(XmlBytesEncoding, IsReadWhenItIsDeclared)
{
    const auto& [encoding, bytes, text] = GetParam();
    EXPECT_EQ(Told(Declared(encoding, bytes)), std::string("<a|") + text + ">");
    EXPECT_EQ(Told(Declared(QByteArray(encoding).toLower(), bytes)), std::string("<a|") + text + ">");
    EXPECT_EQ(Told(Declared(QByteArray(encoding).toUpper(), bytes)), std::string("<a|") + text + ">");
}

TEST_P(XmlBytesEncoding, IsReadHoweverLongTheDocumentIs)
{
    constexpr int kCopies = 100'000;
    const auto& [encoding, bytes, text] = GetParam();
    const std::string expected = QByteArray(text).repeated(kCopies).toStdString();
    EXPECT_TRUE(Told(Declared(encoding, bytes.repeated(kCopies))) == "<a|" + expected + ">");
    EXPECT_TRUE(Told(Declared(encoding, "-" + bytes.repeated(kCopies))) == "<a|-" + expected + ">");
}

INSTANTIATE_TEST_SUITE_P(
    XmlBytes, XmlBytesEncoding,
    ::testing::Values(EncodedText{"windows-1251", "\xCD\xE0\xF1\xEE\xF1", "Насос"},
                      EncodedText{"windows-1252", "\x80 \xE9", "€ é"}, EncodedText{"windows-1253", "\xC1\xE2", "Αβ"},
                      EncodedText{"KOI8-R", "\xEE\xC1\xD3\xCF\xD3", "Насос"},
                      EncodedText{"ISO-8859-1", "\xE9\xFF", "éÿ"}, EncodedText{"ISO-8859-15", "\xA4", "€"},
                      EncodedText{"US-ASCII", "Pump", "Pump"}, EncodedText{"Shift_JIS", "\x90\x85", "水"},
                      EncodedText{"EUC-JP", "\xBF\xE5", "水"}, EncodedText{"ISO-2022-JP", "\x1B$B?e\x1B(B", "水"},
                      EncodedText{"GBK", "\xCB\xAE", "水"}, EncodedText{"GB18030", "\xCB\xAE\x94\x32\xBE\x34", "水𝄞"},
                      EncodedText{"Big5", "\xA4\xF4", "水"}));

TEST(XmlBytes, TheDeclarationMayBeWrittenInAnyWay)
{
    const char* declarations[] = {"<?xml version='1.0' encoding='windows-1251'?>",
                                  "<?xml version=\"1.0\" encoding = \"windows-1251\" standalone='yes'?>",
                                  "<?xml\tversion='1.0'\r\nencoding\n=\t'windows-1251' ?>"};
    for (const char* declaration : declarations)
        EXPECT_EQ(Told(QByteArray(declaration) + "<a>\xC6</a>"), "<a|Ж>") << declaration;
}

TEST(XmlBytes, OnlyTheDeclarationDeclares)
{
    for (const char* start :
         {"<a encoding='windows-1251'>", "<!-- <?xml version='1.0' encoding='windows-1251'?> --><a>",
          "<?xml version='1.0'?><a encoding='windows-1251'>", "<?xml-style version='1.0' encoding='windows-1251'?><a>",
          "<?xml version='1.0' noencoding='windows-1251'?><a>"})
    {
        EXPECT_EQ(Utf8(QByteArray(start) + "Ж</a>"), std::string(start) + "Ж</a>");
        EXPECT_EQ(Utf8(QByteArray(start) + "\xC6</a>"), "nothing") << start;
    }
}

TEST(XmlBytes, UnknownEncodingsAreNothing)
{
    for (const char* encoding : {"nonsense", "x-pumps", "UTF-9", "windows-9999", "HTML", "1"})
        EXPECT_EQ(Utf8(Declared(encoding, "a")), "nothing") << encoding;
}

TEST(XmlBytes, WrongBytesOfADeclaredEncodingAreNothing)
{
    EXPECT_EQ(Utf8(Declared("US-ASCII", "\xE9")), "nothing");
    EXPECT_EQ(Utf8(Declared("windows-1251", "\x98")), "nothing");
    EXPECT_EQ(Utf8(Declared("Shift_JIS", "\x90\x20")), "nothing");
    EXPECT_EQ(Utf8(Declared("GB18030", "\xFF\xFF")), "nothing");
    EXPECT_EQ(Utf8(Declared("EUC-JP", "\xBF<")), "nothing");
    EXPECT_EQ(Utf8(Declared("Shift_JIS", QByteArray(100'000, 'x') + "\xFF\xFF")), "nothing");
}

TEST(XmlBytes, CutOffCharactersOfADeclaredEncodingAreNothing)
{
    EXPECT_EQ(Utf8(Declared("Shift_JIS", "") + "\x90"), "nothing");
    EXPECT_EQ(Utf8(Declared("GB18030", "") + "\x94\x32\xBE"), "nothing");
}

TEST(XmlBytes, BytesThatOnlyDeclareUtf16AreNoDocument)
{
    EXPECT_TRUE(Told(Declared("UTF-16", "a")) == "nothing" || Told(Declared("UTF-16", "a")) == "refused");
    EXPECT_TRUE(Told(Declared("UTF-32", "abc")) == "nothing" || Told(Declared("UTF-32", "abc")) == "refused");
}

TEST(XmlBytes, NothingIsPrinted)
{
    ::testing::internal::CaptureStderr();
    ::testing::internal::CaptureStdout();
    for (const char* encoding : {"nonsense", "US-ASCII", "Shift_JIS", "GB18030", "UTF-8", "UTF-16", "HTML"})
        XmlUtf8FromBytes(Declared(encoding, "\x90\xFF\xFF"));
    XmlUtf8FromBytes(QByteArray("\xFF\xFE<\0\x3D\xD8", 6));
    XmlUtf8FromFile(QStringLiteral("/nowhere/Pumps.xml"), kEnough);
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

TEST(XmlBytes, LinesEndInLineFeedsInEveryEncoding)
{
    const char* text = "<a>1\r\n2\r3\n4\n\r5\r\r\n</a>";
    const std::string expected = "<a>1\n2\n3\n4\n\n5\n\n</a>";
    EXPECT_EQ(Utf8(text), expected);
    EXPECT_EQ(Utf8(QByteArray("\xEF\xBB\xBF") + text), Utf8(QByteArray("\xEF\xBB\xBF") + expected.c_str()));
    for (const Encoding encoding : {Encoding::Utf16LE, Encoding::Utf16BE, Encoding::Utf32LE})
        EXPECT_EQ(Utf8(Encoded(text, encoding, false)), expected);
    EXPECT_EQ(Utf8(Declared("windows-1251", "\r\n\xC6\r")), Declared("windows-1251", "\nЖ\n").toStdString());
    EXPECT_EQ(Utf8("<a/>\r"), "<a/>\n");
}

TEST(XmlBytes, CarriageReturnsThatAreReferencesStay)
{
    const char* text = "<a b='&#13;&#xD;&#10;'>&#13;\n</a>";
    EXPECT_EQ(Utf8(text), text);
    EXPECT_EQ(Told(text), "<a b=\r\r\n|\r\n>");
}

TEST(XmlBytes, NullCharactersAreNothing)
{
    EXPECT_EQ(Utf8(QByteArray("<\0a\0>\0\0\0<\0/\0a\0>\0", 16)), "nothing");
    EXPECT_EQ(Utf8(QByteArray("<a>\0</a>", 8)), "nothing");
    EXPECT_EQ(Utf8(QByteArray("<a/>\0", 5)), "nothing");
    EXPECT_EQ(Utf8(Declared("windows-1251", QByteArray(1, '\0'))), "nothing");
}

TEST_F(XmlFileBytes, ReadsAFileLikeItsBytes)
{
    EXPECT_EQ(XmlUtf8FromFile(Written("<a>Ж\r\n</a>"), kEnough), QByteArray("<a>Ж\n</a>"));
    EXPECT_EQ(XmlUtf8FromFile(Written(Encoded("<a>Ж</a>", Encoding::Utf16BE, false)), kEnough), QByteArray("<a>Ж</a>"));
    EXPECT_EQ(XmlUtf8FromFile(Written(""), kEnough), QByteArray());
    EXPECT_EQ(XmlUtf8FromFile(Written("\xFF"), kEnough), std::nullopt);
    EXPECT_EQ(XmlUtf8FromFile(Written("<a/>", "Насос 1.xml"), kEnough), QByteArray("<a/>"));
}

TEST_F(XmlFileBytes, ReadsUpToTheLimit)
{
    const QString fileName = Written("<a/>");
    EXPECT_EQ(XmlUtf8FromFile(fileName, 5), QByteArray("<a/>"));
    EXPECT_EQ(XmlUtf8FromFile(fileName, 4), QByteArray("<a/>"));
    EXPECT_EQ(XmlUtf8FromFile(fileName, 3), std::nullopt);
    EXPECT_EQ(XmlUtf8FromFile(fileName, 0), std::nullopt);
    EXPECT_EQ(XmlUtf8FromFile(Written(""), 0), QByteArray());
}

TEST_F(XmlFileBytes, AFileFarBeyondTheLimitIsNotRead)
{
    const QString fileName = Written("<a/>");
    ASSERT_TRUE(QFile::resize(fileName, qint64(1) << 40)); // with a hole, on the disk it takes next to nothing
    EXPECT_EQ(XmlUtf8FromFile(fileName, kEnough), std::nullopt);
}

TEST_F(XmlFileBytes, WhatIsNoFileIsNothing)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral("folder.xml")));
    ASSERT_EQ(::mkfifo(In("pipe.xml").toLocal8Bit().constData(), 0600), 0);
    ASSERT_TRUE(QFile::link(In("pipe.xml"), In("link to a pipe.xml")));
    ASSERT_TRUE(QFile::link(In("loop.xml"), In("loop.xml")));
    ASSERT_TRUE(QFile::link(In("missing.xml"), In("link to nothing.xml")));
    for (const char* name :
         {"folder.xml", "pipe.xml", "link to a pipe.xml", "loop.xml", "link to nothing.xml", "missing.xml", ""})
        EXPECT_EQ(XmlUtf8FromFile(In(name), kEnough), std::nullopt) << name;
    EXPECT_EQ(XmlUtf8FromFile({}, kEnough), std::nullopt);
    EXPECT_EQ(XmlUtf8FromFile(QStringLiteral("/dev/zero"), kEnough), std::nullopt);
}

TEST_F(XmlFileBytes, FollowsLinksToFiles)
{
    Written("<a/>");
    ASSERT_TRUE(QFile::link(In("Pumps.xml"), In("link.xml")));
    EXPECT_EQ(XmlUtf8FromFile(In("link.xml"), kEnough), QByteArray("<a/>"));
}

TEST_F(XmlFileBytes, AFileThatMayNotBeReadIsNothing)
{
    const QString fileName = Written("<a/>");
    ASSERT_TRUE(QFile::setPermissions(fileName, {}));
    const OrdinaryUser user;
    EXPECT_EQ(XmlUtf8FromFile(fileName, kEnough), std::nullopt);
}
