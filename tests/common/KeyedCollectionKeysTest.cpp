// Keys without regard to case: few are compared with one another, many are looked up by their folded form. Both must
// take the same keys for the same.

#include "common/KeyedCollection.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace schedules;

namespace {

constexpr uint kCodePoints = 0x110000;

using Texts = KeyedCollection<QString>;

QString Text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

QString TextOf(uint codePoint)
{
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(&codePoint), 1);
}

bool Add(Texts& texts, const QString& key)
{
    return texts.Append(key, std::make_shared<QString>(key));
}

/// So many of which nobody asks, and one key.
Texts With(int others, const QString& key)
{
    Texts texts;
    for (int number = 0; number < others; ++number)
        Add(texts, QStringLiteral("other %1").arg(number));
    Add(texts, key);
    return texts;
}

/// Whether the one key finds the other, told by a few and by many.
std::string Finds(const QString& key, const QString& asked)
{
    const bool amongFew = With(3, key).Item(asked) != nullptr;
    const bool amongMany = With(30, key).Item(asked) != nullptr;
    return amongFew == amongMany ? amongFew ? "yes" : "no" : "differs";
}

std::vector<QString> AllCharacters()
{
    std::vector<QString> characters(kCodePoints);
    for (uint codePoint = 0; codePoint < kCodePoints; ++codePoint)
        characters[codePoint] = TextOf(codePoint);
    return characters;
}

std::string Hex(const QString& text)
{
    return text.toUtf8().toHex(' ').toStdString() + " (" + QString::number(text.front().unicode(), 16).toStdString() +
           ")";
}

} // namespace

TEST(KeyedCollectionKeys, ComparingAndFoldingAgreeForEveryCodePoint)
{
    const auto isBefore = [](const QString& left, const QString& right) {
        return left.compare(right, Qt::CaseInsensitive) < 0;
    };
    std::vector<QString> characters = AllCharacters();
    std::ranges::sort(characters, isBefore);
    for (std::size_t index = 1; index < characters.size(); ++index) {
        const bool alike = !isBefore(characters[index - 1], characters[index]);
        ASSERT_EQ(alike, FoldedKey(characters[index - 1]) == FoldedKey(characters[index]))
            << Hex(characters[index - 1]) << " and " << Hex(characters[index]);
    }
}

TEST(KeyedCollectionKeys, FewAndManyFindEveryCharacterInItsOtherCases)
{
    int withCases = 0;
    for (uint codePoint = 0; codePoint < kCodePoints; ++codePoint) {
        const uint folded = QChar::toCaseFolded(codePoint);
        if (folded == codePoint)
            continue;
        ++withCases;
        ASSERT_EQ(Finds(TextOf(codePoint), TextOf(folded)), "yes") << codePoint;
        ASSERT_EQ(Finds(TextOf(folded), TextOf(codePoint)), "yes") << codePoint;
    }
    EXPECT_GT(withCases, 1000);
}

TEST(KeyedCollectionKeys, AreComparedWithoutRegardToCaseInEveryScript)
{
    EXPECT_EQ(Finds(Text("Pumps"), Text("pUMPS")), "yes");
    EXPECT_EQ(Finds(Text("Насос"), Text("нАСОС")), "yes");
    EXPECT_EQ(Finds(Text("Αντλίας"), Text("ΑΝΤΛΊΑΣ")), "yes") << "both forms of sigma";
    EXPECT_EQ(Finds(Text("Übertrager"), Text("üBERTRAGER")), "yes");
    EXPECT_EQ(Finds(Text("\U00010400"), Text("\U00010428")), "yes") << "beyond the first plane";
    EXPECT_EQ(Finds(Text("水"), Text("水")), "yes");
}

TEST(KeyedCollectionKeys, DifferWhereNoCaseDoes)
{
    EXPECT_EQ(Finds(Text("P"), Text("Р")), "no") << "the latter is Cyrillic";
    EXPECT_EQ(Finds(Text("\u00DF"), Text("SS")), "no") << "one character is never two";
    EXPECT_EQ(Finds(Text("\uFB01"), Text("FI")), "no");
    EXPECT_EQ(Finds(Text("\u00E9"), Text("e\u0301")), "no");
    EXPECT_EQ(Finds(Text("a"), Text("á")), "no");
    EXPECT_EQ(Finds(Text("1"), Text("１")), "no");
    EXPECT_EQ(Finds(Text("I"), Text("\u0131")), "no") << "the dotless i";
}

TEST(KeyedCollectionKeys, MayHoldWhatIsNoCharacter)
{
    const QString high(QChar(0xD801));
    const QString low(QChar(0xDC00));
    for (const QString& key : {high, low, high + high, low + high, QString(QChar(0)), QString(QChar(0xFFFF))}) {
        EXPECT_EQ(Finds(key, key), "yes");
        EXPECT_EQ(Finds(key, QString(QChar(0xFFFD))), "no");
        EXPECT_EQ(Finds(key, QString()), "no");
        EXPECT_EQ(Finds(key + u'A', key + u'a'), "yes");
    }
    EXPECT_EQ(Finds(high, low), "no");
    EXPECT_EQ(Finds(high + high + low, high + Text("\U00010428")), "yes") << "a pair behind a half";
    EXPECT_EQ(Finds(high + low, high + QChar(0xDC28)), "yes");
}

TEST(KeyedCollectionKeys, ManyThatAreNoCharactersStayApart)
{
    Texts texts = With(20, Text("X"));
    for (char16_t half = 0xD800; half < 0xD810; ++half)
        ASSERT_TRUE(Add(texts, QString(QChar(half)))) << int(half);
    for (char16_t half = 0xD800; half < 0xD810; ++half)
        ASSERT_EQ(*texts.Item(QString(QChar(half))), QString(QChar(half)));
    EXPECT_TRUE(texts.Remove(QString(QChar(0xD805))));
    EXPECT_FALSE(texts.Item(QString(QChar(0xD805))));
    EXPECT_TRUE(texts.Item(QString(QChar(0xD806))));
}

TEST(KeyedCollectionKeys, LongOnesAreFound)
{
    const QString name = Text("Насос ").repeated(20'000);
    EXPECT_EQ(Finds(name, name.toUpper()), "yes");
    EXPECT_EQ(Finds(name, name.toUpper().chopped(1)), "no");
}

TEST(FoldedKey, IsTheSameForAllCasesOfAText)
{
    EXPECT_EQ(FoldedKey(Text("PUMPS Насос Σ ς")), FoldedKey(Text("pumps нАСОС σ σ")));
    EXPECT_EQ(FoldedKey({}), QString());
    EXPECT_EQ(FoldedKey(FoldedKey(Text("Ж\u212A\U00010400"))), FoldedKey(Text("Ж\u212A\U00010400")));
}
