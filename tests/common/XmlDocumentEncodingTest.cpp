#include "common/XmlDocument.h"

#include <QStringConverter>

#include <gtest/gtest.h>

using namespace schedules;

namespace {

QString Text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

/// The text of the root of a file's bytes; "refused" when they are not read.
std::string FromBytes(const QByteArray& bytes)
{
    const XmlDocument document = XmlDocument::FromBytes(bytes);
    return document ? document.Root().WholeText().toStdString() : "refused";
}

} // namespace

TEST(XmlDocumentEncoding, ADeclaredEncodingOfATextIsIgnoredAndOfAFileHonoured)
{
    const char* const declaration = "<?xml version='1.0' encoding='windows-1251'?>";
    EXPECT_EQ(XmlDocument::FromText(Text(declaration) + Text("<a>Ж</a>")).Root().WholeText(), Text("Ж"));
    EXPECT_EQ(FromBytes(QByteArray(declaration) + "<a>\xC6</a>"), "Ж");
    EXPECT_EQ(FromBytes("<a>Ж</a>"), "Ж");
    EXPECT_EQ(FromBytes("<?xml version='1.0' encoding='ISO-8859-1'?><a>\xE9</a>"), "é");
}

TEST(XmlDocumentEncoding, AByteOrderMarkOrTheFirstBytesTellUnicodeEncodings)
{
    for (const auto encoding : {QStringConverter::Utf8, QStringConverter::Utf16LE, QStringConverter::Utf16BE,
                                QStringConverter::Utf32LE, QStringConverter::Utf32BE})
    {
        QStringEncoder plain(encoding);
        QStringEncoder marked(encoding, QStringConverter::Flag::WriteBom);
        EXPECT_EQ(FromBytes(plain(Text("<a>Ж 𝄞</a>"))), "Ж 𝄞");
        EXPECT_EQ(FromBytes(marked(Text("<?xml version='1.0' encoding='UTF-16'?><a>Ж</a>"))), "Ж");
    }
}

TEST(XmlDocumentEncoding, BytesThatAreNotOfTheirEncodingAreRefused)
{
    EXPECT_EQ(FromBytes({}), "refused");
    EXPECT_EQ(FromBytes("<a>\xE9</a>"), "refused");
    EXPECT_EQ(FromBytes("<?xml version='1.0' encoding='US-ASCII'?><a>\xE9</a>"), "refused");
    EXPECT_EQ(FromBytes("<?xml version='1.0' encoding='nonsense'?><a/>"), "refused");
    EXPECT_EQ(FromBytes("<?xml version='1.0' encoding='UTF-16'?><a/>"), "refused");
    EXPECT_EQ(FromBytes("\xEF\xBB\xBF<a>\xE9</a>"), "refused");
    EXPECT_EQ(FromBytes(QByteArray("\xFF\xFE<\0a\0/\0>", 9)), "refused");
    EXPECT_EQ(FromBytes(QByteArray("\xFF\xFE<\0a\0/\0>\0!", 11)), "refused");
    EXPECT_EQ(FromBytes("\xEF\xBB\xBF<a/>\xC3"), "refused");
}
