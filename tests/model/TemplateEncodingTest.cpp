// Template files in every encoding that the parser knows.

#include "model/TemplatesFolder.h"

#include <QStringEncoder>

using namespace schedules;
using namespace schedules::testing;

namespace {

constexpr auto kText = "Größe Насос 水 𝄞";

QString Document(const QString& declaration, const QString& text)
{
    return declaration + QString("<Template Name='%1'><Group Name='%1'><Item Name='%1'><Location>%1</Location></Item>"
                                 "</Group></Template>")
                             .arg(text);
}

QString Declared(const QString& encoding)
{
    return QString("<?xml version=\"1.0\" encoding=\"%1\"?>\r\n").arg(encoding);
}

QByteArray Encoded(const QString& text, QStringConverter::Encoding encoding, bool withMark)
{
    QStringEncoder encoder(encoding, withMark ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default);
    return encoder(text);
}

struct TemplateEncoding : TemplateFixture
{
    /// The text that stands in all places of a file of these bytes; "unreadable" when the file is not read.
    std::string TextIn(const QByteArray& bytes)
    {
        if (!Read(bytes))
            return "unreadable";
        const QString name = TextOf(model.Properties().Item("Name")->Value());
        const QString expected = "Name='%1'\n  1 %1: Name='%1'\n    1 %1: Name='%1' -> %1\n";
        CTemplate fresh(user);
        fresh.SetFilePath(folder.Path());
        fresh.SetFilename("t.xml");
        EXPECT_TRUE(fresh.XMLToObject());
        EXPECT_EQ(Drawn(fresh), expected.arg(name).toStdString());
        return name.toStdString();
    }

    /// Whether a file of these bytes is no template, and the model stays as it was.
    bool IsRefused(const QByteArray& bytes)
    {
        ReadFormer();
        model.Groups().Clear();
        model.Groups().AddNew("kept");
        const std::string before = Drawn(model);
        return !Read(bytes) && Drawn(model) == before && user.boxes.empty();
    }
};

} // namespace

TEST_F(TemplateEncoding, Utf8NeedsNeitherAMarkNorADeclaration)
{
    for (const QString& declaration :
         {QString(), QString("<?xml version='1.0'?>"), Declared("UTF-8"), Declared("utf-8")}) {
        const QString document = Document(declaration, kText);
        EXPECT_EQ(TextIn(document.toUtf8()), kText) << declaration.toStdString();
        EXPECT_EQ(TextIn(Encoded(document, QStringConverter::Utf8, true)), kText) << declaration.toStdString();
    }
}

TEST_F(TemplateEncoding, Utf16OfBothByteOrdersWithAMark)
{
    for (const auto encoding : {QStringConverter::Utf16LE, QStringConverter::Utf16BE}) {
        for (const QString& declaration : {QString(), Declared("UTF-16"), Declared("utf-16")})
            EXPECT_EQ(TextIn(Encoded(Document(declaration, kText), encoding, true)), kText);
    }
}

TEST_F(TemplateEncoding, Utf16OfBothByteOrdersWithoutAMark)
{
    for (const auto encoding : {QStringConverter::Utf16LE, QStringConverter::Utf16BE}) {
        for (const QString& declaration : {QString(), Declared("UTF-16"), Declared("UTF-16LE")})
            EXPECT_EQ(TextIn(Encoded(Document(declaration, kText), encoding, false)), kText);
    }
}

TEST_F(TemplateEncoding, Windows1251)
{
    const QByteArray cyrillic = "\xCD\xE0\xF1\xEE\xF1 \xB9";
    const QByteArray document = Document(Declared("windows-1251"), "%").toLatin1().replace("%", cyrillic);
    EXPECT_EQ(TextIn(document), "Насос №");
    EXPECT_EQ(TextIn(QByteArray(document).replace("windows-1251", "Windows-1251")), "Насос №");
    EXPECT_EQ(TextIn(QByteArray(document).replace("\"windows-1251\"", "'WINDOWS-1251' standalone='yes'")), "Насос №");
}

TEST_F(TemplateEncoding, Iso88591)
{
    EXPECT_EQ(TextIn(Document(Declared("ISO-8859-1"), "Größe §").toLatin1()), "Größe §");
    EXPECT_EQ(TextIn(Document(Declared("iso-8859-1"), "Größe §").toLatin1()), "Größe §");
}

TEST_F(TemplateEncoding, Others)
{
    EXPECT_EQ(TextIn(Document(Declared("US-ASCII"), "Pump").toLatin1()), "Pump");
    EXPECT_EQ(TextIn(Document(Declared("Shift_JIS"), "%").toLatin1().replace("%", "\x83\x7C\x83\x93\x83\x76")),
              "ポンプ");
    EXPECT_EQ(TextIn(Document(Declared("GB18030"), "%").toLatin1().replace("%", "\xCB\xAE\xB1\xC3")), "水泵");
    EXPECT_EQ(TextIn(Document(Declared("KOI8-R"), "%").toLatin1().replace("%", "\xEE\xC1\xD3\xCF\xD3")), "Насос");
}

TEST_F(TemplateEncoding, ALongFileWhoseTextGrowsInUtf8IsReadWhole)
{
    const QByteArray numero(100'000, '\xB9');
    EXPECT_EQ(TextIn(Document(Declared("windows-1251"), "%").toLatin1().replace("%", numero)),
              QString(100'000, u'№').toStdString());
}

TEST_F(TemplateEncoding, AnUnknownEncodingIsRefused)
{
    for (const char* encoding : {"nonsense", "x", "UTF-9", "windows-125x"})
        EXPECT_TRUE(IsRefused(Document(Declared(encoding), "Pump").toUtf8())) << encoding;
}

TEST_F(TemplateEncoding, BytesThatAreNoUtf8AreRefused)
{
    for (const char* bytes : {"\xE4", "\xC3", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xFF", "a\x80"}) {
        EXPECT_TRUE(IsRefused(Document({}, "%").toLatin1().replace("%", bytes)));
        EXPECT_TRUE(IsRefused(Document(Declared("UTF-8"), "%").toLatin1().replace("%", bytes)));
    }
}

TEST_F(TemplateEncoding, BytesThatAreNotOfTheDeclaredEncodingAreRefused)
{
    EXPECT_TRUE(IsRefused(Document(Declared("UTF-16"), "Pump").toUtf8()));
    EXPECT_TRUE(IsRefused(Document(Declared("US-ASCII"), "Größe").toUtf8()));
    EXPECT_TRUE(IsRefused(Document(Declared("windows-1251"), "%").toLatin1().replace("%", "\x98")));
    EXPECT_TRUE(IsRefused(Document(Declared("Shift_JIS"), "%").toLatin1().replace("%", "\x83\x01")));
}

TEST_F(TemplateEncoding, BytesOfAnotherEncodingAreReadAsTheDeclarationSays)
{
    EXPECT_EQ(TextIn(Document(Declared("ISO-8859-1"), "Ä").toUtf8()), "\u00C3\u0084");
    EXPECT_EQ(TextIn(Document(Declared("windows-1251"), "Ж").toUtf8()), "Р–");
}

TEST_F(TemplateEncoding, Utf16WithHalfACharacterIsRefused)
{
    QByteArray cut = Encoded(Document({}, "Pump"), QStringConverter::Utf16LE, true);
    EXPECT_TRUE(IsRefused(cut + '\n'));
    EXPECT_TRUE(IsRefused(cut.chopped(1)));
    for (const char16_t half : {u'\xD83D', u'\xDE42'}) {
        QByteArray halved = Encoded(Document({}, "#"), QStringConverter::Utf16LE, true);
        const qsizetype place = halved.indexOf('#');
        halved[place] = static_cast<char>(half & 0xFF);
        halved[place + 1] = static_cast<char>(half >> 8);
        EXPECT_TRUE(IsRefused(halved));
    }
}

TEST_F(TemplateEncoding, TheByteOrderMarkIsStrongerThanTheDeclaration)
{
    EXPECT_EQ(TextIn(Encoded(Document(Declared("ISO-8859-1"), "Größe"), QStringConverter::Utf8, true)), "Größe");
    EXPECT_EQ(TextIn(Encoded(Document(Declared("UTF-8"), "Größe"), QStringConverter::Utf16BE, true)), "Größe");
}

TEST_F(TemplateEncoding, LineEndsAreTheSameInEveryEncoding)
{
    const QString document =
        "<?xml version=\"1.0\" encoding=\"%1\"?><Template a='1\r\n2\r3'><Group Name='A'><Item Name='I'>"
        "<Location>1\r\n2\r3&#13;</Location></Item></Group></Template>";
    const std::string expected = "a='1 2 3'\n  1 A: Name='A'\n    1 I: Name='I' -> 1\\n2\\n3\\r\n";
    for (const char* encoding : {"UTF-8", "ISO-8859-1", "windows-1251", "US-ASCII"}) {
        CTemplate fresh(user);
        folder.Write("t.xml", document.arg(encoding).toUtf8());
        fresh.SetFilePath(folder.Path());
        fresh.SetFilename("t.xml");
        EXPECT_TRUE(fresh.XMLToObject());
        EXPECT_EQ(Drawn(fresh), expected) << encoding;
    }
    EXPECT_EQ(DrawnFrom(Encoded(document.arg("UTF-16"), QStringConverter::Utf16LE, true)), expected);
}

TEST_F(TemplateEncoding, WhateverItWasReadFromIsWrittenAsText)
{
    EXPECT_EQ(Rewritten(Document(Declared("windows-1251"), "%").toLatin1().replace("%", "\xCD")),
              "<Template Name=\"Н\"><Group Name=\"Н\"><Item Name=\"Н\"><Location>Н</Location></Item></Group>"
              "</Template>");
}
