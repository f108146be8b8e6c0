#include "host/files/XmlFile.h"

#include "host/base/HostError.h"

#include <QFile>
#include <QStringConverter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace schedules::host {

namespace {

const QString kText = QStringLiteral("<a>Ж λ 水 é 𝄞</a>");
const QString kNotXml(QChar(0xFFFF));

QByteArray Encoded(const QString& text, QStringConverter::Encoding encoding, bool withMark)
{
    QStringEncoder encoder(encoding, withMark ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default);
    return encoder(text);
}

QString Declared(const char* encoding, const QString& rest)
{
    return QStringLiteral("<?xml version=\"1.0\" encoding=\"%1\"?>").arg(QLatin1String(encoding)) + rest;
}

struct Unicode
{
    QStringConverter::Encoding encoding;
    const char* name;
};

class XmlFileUnicode : public ::testing::TestWithParam<Unicode>
{
};

} // namespace

TEST_P(XmlFileUnicode, AMarkDecidesTheEncoding)
{
    EXPECT_EQ(DecodedXml(Encoded(kText, GetParam().encoding, true)), kText);
}

TEST_P(XmlFileUnicode, AMarkWinsOverTheDeclaration)
{
    const QString text = Declared("ISO-8859-1", kText);
    EXPECT_EQ(DecodedXml(Encoded(text, GetParam().encoding, true)), text);
}

TEST_P(XmlFileUnicode, WithoutAMarkTheFirstBytesTell)
{
    EXPECT_EQ(DecodedXml(Encoded(kText, GetParam().encoding, false)), kText);
    const QString text = Declared(GetParam().name, kText);
    EXPECT_EQ(DecodedXml(Encoded(text, GetParam().encoding, false)), text);
}

INSTANTIATE_TEST_SUITE_P(Encodings, XmlFileUnicode,
                         ::testing::Values(Unicode{QStringConverter::Utf8, "UTF-8"},
                                           Unicode{QStringConverter::Utf16LE, "UTF-16"},
                                           Unicode{QStringConverter::Utf16BE, "UTF-16"},
                                           Unicode{QStringConverter::Utf32LE, "UTF-32"},
                                           Unicode{QStringConverter::Utf32BE, "UTF-32"}));

TEST(XmlFile, WithoutMarkAndDeclarationItIsUtf8)
{
    EXPECT_EQ(DecodedXml("<a>\xC3\xA9</a>"), QStringLiteral("<a>é</a>"));
    EXPECT_EQ(DecodedXml("<?xml version='1.0'?><a>\xC3\xA9</a>"), QStringLiteral("<?xml version='1.0'?><a>é</a>"));
}

TEST(XmlFile, TheDeclarationDecidesAmongSingleByteEncodings)
{
    const auto decoded = [](const char* encoding, const QByteArray& bytes) {
        const QString text = DecodedXml(Declared(encoding, {}).toLatin1() + bytes);
        return text.mid(text.indexOf(QLatin1String("?>")) + 2);
    };
    EXPECT_EQ(decoded("ISO-8859-1", "<a>\xE9</a>"), QStringLiteral("<a>é</a>"));
    EXPECT_EQ(decoded("iso-8859-1", "<a>\xE9</a>"), QStringLiteral("<a>é</a>"));
    EXPECT_EQ(decoded("windows-1251", "<a>\xC6</a>"), QStringLiteral("<a>Ж</a>"));
    EXPECT_EQ(decoded("windows-1252", "<a>\x80</a>"), QStringLiteral("<a>€</a>"));
    EXPECT_EQ(decoded("windows-1253", "<a>\xEB</a>"), QStringLiteral("<a>λ</a>"));
    EXPECT_EQ(decoded("KOI8-R", "<a>\xF6</a>"), QStringLiteral("<a>Ж</a>"));
    EXPECT_EQ(decoded("ISO-8859-15", "<a>\xA4</a>"), QStringLiteral("<a>€</a>"));
    EXPECT_EQ(decoded("US-ASCII", "<a>e</a>"), QStringLiteral("<a>e</a>"));
}

TEST(XmlFile, TheDeclarationDecidesAmongMultiByteEncodings)
{
    const QByteArray shiftJis = "<?xml version='1.0' encoding='Shift_JIS'?><a>\x90\x85</a>";
    EXPECT_EQ(DecodedXml(shiftJis), QStringLiteral("<?xml version='1.0' encoding='Shift_JIS'?><a>水</a>"));
    const QByteArray gb = "<?xml version='1.0' encoding='GB18030'?><a>\xCB\xAE</a>";
    EXPECT_EQ(DecodedXml(gb), QStringLiteral("<?xml version='1.0' encoding='GB18030'?><a>水</a>"));
}

TEST(XmlFile, ALetterThatTheConverterHoldsBackAtTheEndArrives)
{
    // Vietnamese text composes a letter with the mark that may follow it.
    EXPECT_TRUE(DecodedXml("<?xml version='1.0' encoding='windows-1258'?>a").endsWith(QLatin1Char('a')));
}

TEST(XmlFile, BytesThatAreNotOfTheEncodingEndTheText)
{
    EXPECT_EQ(DecodedXml("<a>\xE9</a>"), QStringLiteral("<a>") + kNotXml);
    EXPECT_EQ(DecodedXml("<a>\xC3"), QStringLiteral("<a>") + kNotXml) << "cut off inside a character";
    EXPECT_EQ(DecodedXml("<a>\xC0\xAF</a>"), QStringLiteral("<a>") + kNotXml) << "an overlong form";
    EXPECT_EQ(DecodedXml("<a>\xED\xA0\x80</a>"), QStringLiteral("<a>") + kNotXml) << "half a surrogate pair";
    EXPECT_EQ(DecodedXml("<a>\xF4\x90\x80\x80</a>"), QStringLiteral("<a>") + kNotXml) << "beyond Unicode";
    EXPECT_TRUE(DecodedXml(Declared("US-ASCII", {}).toLatin1() + "<a>\xE9</a>").endsWith(kNotXml));
    EXPECT_TRUE(DecodedXml(Declared("windows-1252", {}).toLatin1() + "<a>\x81</a>").endsWith(kNotXml));
    EXPECT_TRUE(DecodedXml(Encoded(kText, QStringConverter::Utf16LE, true).chopped(1)).endsWith(kNotXml));
}

TEST(XmlFile, AnEncodingThatNobodyKnowsIsNoXml)
{
    EXPECT_EQ(DecodedXml(Declared("nonsense", "<a/>").toLatin1()), kNotXml);
}

TEST(XmlFile, ADeclarationThatItsOwnEncodingCannotReadIsNoXml)
{
    EXPECT_EQ(DecodedXml(Declared("UTF-16", "<a/>").toLatin1()), kNotXml);
    EXPECT_EQ(DecodedXml(Declared("UTF-32", "<a/>").toLatin1()), kNotXml);
    EXPECT_EQ(DecodedXml(Declared("IBM037", "<a/>").toLatin1()), kNotXml);
}

TEST(XmlFile, AWordThatIsNoEncodingNameIsLeftToTheLoader)
{
    const QByteArray odd = "<?xml version='1.0' encoding='a/b'?><a/>";
    EXPECT_EQ(DecodedXml(odd), QString::fromLatin1(odd));
}

TEST(XmlFile, LongTextsAreDecodedInFull)
{
    const QString text = QStringLiteral("<a>%1</a>").arg(QString(100'000, QChar(u'水')));
    EXPECT_EQ(DecodedXml(text.toUtf8()), text);
}

TEST(XmlFile, AnEmptyFileIsAnEmptyText)
{
    EXPECT_EQ(DecodedXml({}), QString());
}

TEST(XmlFile, IsReadFromDisk)
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("Ж.xml")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(kText.toUtf8());
    file.close();
    EXPECT_EQ(ReadXmlFile(file.fileName()), kText);
}

TEST(XmlFile, AFileThatCannotBeReadIsToldWithItsName)
{
    QTemporaryDir folder;
    EXPECT_THROW(ReadXmlFile(folder.path()), HostError);
    try {
        ReadXmlFile(QStringLiteral("/nowhere/a.xml"));
        FAIL() << "no error";
    } catch (const HostError& error) {
        EXPECT_EQ(error.Line(), "cannot read /nowhere/a.xml: No such file or directory");
    }
}

TEST(EncodedXml, IsTheTextInUtf8)
{
    EXPECT_EQ(EncodedXml(QStringLiteral("<a>é\r\n</a>")), "<a>\xC3\xA9\r\n</a>");
    EXPECT_EQ(EncodedXml(QStringLiteral("<?xml version='1.0'?><a/>")), "<?xml version='1.0'?><a/>");
}

TEST(EncodedXml, ADeclarationNamesNoOtherEncoding)
{
    EXPECT_EQ(EncodedXml(QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-16\" standalone=\"yes\"?><a/>")),
              "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?><a/>");
    EXPECT_EQ(EncodedXml(QStringLiteral("<?xml version='1.1'  encoding = 'latin1'?><a/>")),
              "<?xml version='1.1'  encoding = 'UTF-8'?><a/>");
    const QString right = QStringLiteral("<?xml version='1.0' encoding='utf-8'?><a/>");
    EXPECT_EQ(EncodedXml(right), right.toUtf8()) << "what is right stays as it is written";
    const QString inside = QStringLiteral("<a><!-- <?xml version='1.0' encoding='latin1'?> --></a>");
    EXPECT_EQ(EncodedXml(inside), inside.toUtf8()) << "only the declaration counts";
}

TEST(WriteXmlFile, WhatIsWrittenIsReadBack)
{
    QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("a.xml"));
    const QString text = QStringLiteral("<?xml version='1.0' encoding='UTF-8'?>\r\n<a>é 水 𝄞</a>\n");
    WriteXmlFile(name, text);
    EXPECT_EQ(ReadXmlFile(name), text);
}

} // namespace schedules::host
