// The fast reader of plain documents against the full parser: what it reads, the full parser reads alike; whatever is
// not plain it leaves alone.

#include "common/PlainXml.h"

#include "common/XmlRecorder.h"

#include <gtest/gtest.h>
#include <random>
#include <string>

using namespace schedules;
using namespace schedules::testing;

namespace {

/// Documents that are mostly right, made of the pieces that matter.
class RandomDocuments
{
public:
    QByteArray Next()
    {
        QByteArray document =
            OneOf({"", "<?xml version=\"1.0\"?>", "\xEF\xBB\xBF", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"});
        document += Element(0);
        return Damaged(document);
    }

private:
    QByteArray OneOf(const std::vector<QByteArray>& pieces) { return pieces[m_random() % pieces.size()]; }
    bool Rarely(unsigned oneIn) { return m_random() % oneIn == 0; }

    QByteArray Element(int depth)
    {
        const QByteArray name = OneOf({"TR", "TD", "T-1._x", "a"});
        QByteArray element = "<" + name;
        for (auto count = m_random() % 3; count > 0; --count)
            element += OneOf({" ", "\n", "  "}) + OneOf({"x", "y", "z_1", "w"}) + Value();
        if (Rarely(4))
            return element + OneOf({"/>", " />"});
        element += ">";
        for (auto count = m_random() % 4; count > 0; --count)
            element += depth < 5 && !Rarely(3) ? Element(depth + 1) : Text();
        return element + "</" + name + OneOf({">", " >", "\n>"});
    }

    QByteArray Value() { return OneOf({"=\"\"", "='-1'", "=\"a>b'c]]>\"", "=\"Насос\"", "='12 \"'"}); }

    QByteArray Text()
    {
        return OneOf(
            {"12.5", " \n", "Насос", "备用\xEF\xBC\x81", "&amp;", "&lt;x&gt;", "&quot;&apos;", "a]b]]c", "\t"});
    }

    QByteArray Damaged(QByteArray document)
    {
        if (!Rarely(3))
            return document;
        static const std::vector<QByteArray> damages{"<",    ">",        "&",       "\"",           "]]>",       "\r",
                                                     "\x01", "<!-- -->", "&#65;",   "\xEF\xBF\xBF", "xmlns='a'", ":",
                                                     "/",    "=",        "x=\"1\"", "</a>"};
        const auto at = static_cast<qsizetype>(m_random() % static_cast<unsigned>(document.size() + 1));
        if (at < document.size() && (static_cast<unsigned char>(document[at]) & 0xC0) == 0x80)
            return document; // within a character
        return Rarely(2) ? document.insert(at, OneOf(damages)) : document.left(at);
    }

    std::mt19937 m_random{20};
};

class NotPlain : public ::testing::TestWithParam<const char*>
{
};

} // namespace

TEST(PlainXml, TellsWhatTheFullParserTells)
{
    RandomDocuments documents;
    int plain = 0;
    for (int count = 0; count < 20'000; ++count) {
        const QByteArray document = documents.Next();
        const std::string told = ToldBy(ReadPlainXml, document);
        if (told == "refused")
            continue;
        ++plain;
        ASSERT_EQ(told, ToldBy(ReadXml, document)) << document.toStdString();
        ASSERT_EQ(ElementsBy(ReadPlainXml, document), ElementsBy(ReadXml, document)) << document.toStdString();
    }
    EXPECT_GT(plain, 10'000);
}

TEST(PlainXml, ReadsElementsAttributesAndText)
{
    EXPECT_EQ(ToldBy(ReadPlainXml, "<?xml version=\"1.0\"?>\n<a x='1' y=\"2\"><b/>t &lt;&amp; u<c>\xD0\x9D</c ></a>\n"),
              "<a x=1 y=2<b>|t <& u<c|\xD0\x9D>>");
}

TEST_P(NotPlain, IsLeftToTheFullParser)
{
    EXPECT_EQ(ToldBy(ReadPlainXml, GetParam()), "refused");
}

INSTANTIATE_TEST_SUITE_P(PlainXml, NotPlain,
                         ::testing::Values("", " ", "text", "<a>", "<a></b>", "<a></ab>", "<a/><b/>", "<a/>text",
                                           "<a><!-- --></a>", "<a><![CDATA[x]]></a>", "<a><?p?></a>",
                                           "<!DOCTYPE a><a/>", "<p:a/>", "<a xmlns='b'/>", "<a p:x='1'/>",
                                           "<a x='1' x='2'/>", "<a x='&lt;'/>", "<a x='<'/>", "<a x=\"1'/>", "<a x=1/>",
                                           "<a x/>", "<a x='1'y='2'/>", "<a>&#65;</a>", "<a>&b;</a>", "<a>&</a>",
                                           "<a>]]></a>", "<a>\r</a>", "<a>\x01</a>", "<a x='\t'/>",
                                           "<a>\xEF\xBF\xBF</a>", "<a>\xEF\xBF\xBE</a>", "<\xC3\xA4/>", "<1/>", "< a/>",
                                           "<a / >", "<?xml version=\"1.1\"?><a/>", " <?xml version=\"1.0\"?><a/>"));

TEST(PlainXml, LeavesDeepNestingLongTagsAndLongNamesToTheFullParser)
{
    EXPECT_EQ(ToldBy(ReadPlainXml, QByteArray("<a>").repeated(300) + QByteArray("</a>").repeated(300)), "refused");
    EXPECT_EQ(ToldBy(ReadPlainXml, "<a x='" + QByteArray(20'000, 'v') + "'/>"), "refused");
    EXPECT_EQ(ToldBy(ReadPlainXml, "<" + QByteArray(65, 'n') + "/>"), "refused");
}

namespace {

/// Remembers what it was made of, and is told by which way it was read.
class Labelled : public Recorder
{
public:
    explicit Labelled(const char* label, int number = 0)
    {
        told = std::string(label) + std::to_string(number) + ":";
        ++made;
    }

    static inline int made = 0;
};

/// What a handler of that label makes of a document, and how many handlers it took.
std::string ReadInEitherWay(const QByteArray& document)
{
    Labelled::made = 0;
    const auto read = ReadEitherWay<Labelled>(document, "pumps", 7);
    return (read ? read->told : "nothing") + " " + std::to_string(Labelled::made);
}

} // namespace

TEST(ReadEitherWay, ReadsPlainDocumentsOnce)
{
    EXPECT_EQ(ReadInEitherWay("<a x='1'>t</a>"), "pumps7:<a x=1|t> 1");
}

TEST(ReadEitherWay, StartsAnewWithTheSameArgumentsWhenADocumentIsNotPlain)
{
    EXPECT_EQ(ReadInEitherWay("<a x='1'>t<b>&#65;</b></a>"), "pumps7:<a x=1|t<b|A>> 2");
    EXPECT_EQ(ReadInEitherWay("<!-- c --><a/>"), "pumps7:*<a> 2");
}

TEST(ReadEitherWay, GivesNothingForWhatTheFullParserRefuses)
{
    EXPECT_EQ(ReadInEitherWay("<a>"), "nothing 2");
    EXPECT_EQ(ReadInEitherWay(""), "nothing 2");
}

TEST(ReadEitherWay, TakesHandlersWithoutArguments)
{
    EXPECT_EQ(ReadEitherWay<Recorder>("<a/>")->told, "<a>");
    EXPECT_EQ(ReadEitherWay<Labelled>("<a/>", "x")->told, "x0:<a>");
}
