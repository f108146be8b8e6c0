#include "fileutil/NamePattern.h"

#include "support/ProcessorTime.h"

#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

struct Case
{
    const char16_t* pattern;
    const char16_t* name;
    bool matches;
};

const Case kCases[]{
    {u"*", u"a", true},
    {u"*", u".", true},
    {u"*.*", u"a.b", true},
    {u"*.*", u"name without a dot", true},
    {u"**", u"anything", true},
    {u"***", u"x", true},
    {u"*.xml", u"a.xml", true},
    {u"*.xml", u".xml", true},
    {u"*.xml", u"a.xml.xml", true},
    {u"*.xml", u"a.xmlx", false},
    {u"*.xml", u"a.XML", false},
    {u"*.xml", u"xml", false},
    {u"x.*", u"x.", true},
    {u"x.*", u"x.y.z", true},
    {u"x.*", u"x", false},
    {u"x.*", u"xx.y", false},
    {u"a?c*", u"abc", true},
    {u"a?c*", u"abcdef", true},
    {u"a?c*", u"ac", false},
    {u"a?c*", u"abbc", false},
    {u"?", u"a", true},
    {u"?", u"", false},
    {u"?", u"ab", false},
    {u"??*", u"a", false},
    {u"??*", u"ab", true},
    {u"*?", u"a", true},
    {u"*a", u"banana", true},
    {u"*an*", u"banana", true},
    {u"*ana", u"banana", true},
    {u"b*n*a", u"banana", true},
    {u"*aa*", u"abaca", false},
    {u"a*b", u"acbcbd", false},
    {u"abc", u"abc", true},
    {u"abc", u"ABC", false},
    {u"[a]*", u"[a].xml", true},
    {u"[a]*", u"a.xml", false},
    {u"{a,b}*", u"a", false},
    {u"Насос?.xml", u"Насосы.xml", true},
    {u"НАСОС*", u"насос", false},
    {u"?.xml", u"é.xml", true},
    {u"?.xml", u"😀.xml", true},
    {u"??.xml", u"😀.xml", false},
    {u"*??", u"😀", false},
    {u"*?", u"a😀", true},
    {u"*😀", u"😀😀", true},
    {u"?", u"\xDCFF", true},
    {u"??", u"\xDCE6\xDC97", true},
    {u"a\xDCFF*", u"a\xDCFF.xml", true},
    {u"a\xDCFF*", u"a\xDCFE.xml", false},
    {u"*\xDC80", u"\xD83D\xDC80", false},
};

} // namespace

TEST(NamePattern, MatchesByTheTable)
{
    for (const Case& row : kCases) {
        const QString pattern = QString::fromUtf16(row.pattern);
        const QString name = QString::fromUtf16(row.name);
        EXPECT_EQ(NamePattern(pattern).Matches(name), row.matches)
            << pattern.toStdString() << " and " << name.toStdString();
    }
}

TEST(NamePattern, HasWildcardsWhenThereIsAStarOrAQuestionMark)
{
    EXPECT_TRUE(NamePattern("*").HasWildcards());
    EXPECT_TRUE(NamePattern("*.*").HasWildcards());
    EXPECT_TRUE(NamePattern("a?").HasWildcards());
    EXPECT_FALSE(NamePattern("a.xml").HasWildcards());
    EXPECT_FALSE(NamePattern("[a]").HasWildcards());
    EXPECT_FALSE(NamePattern("").HasWildcards());
}

TEST(NamePattern, OfManyStarsTakesLinearTime)
{
    const QString name(255, u'a');
    const auto match = [&](int stars) {
        const NamePattern pattern(QStringLiteral("*a").repeated(stars) + "*b");
        for (int round = 0; round < 1000; ++round)
            EXPECT_FALSE(pattern.Matches(name));
        EXPECT_TRUE(pattern.Matches(name + 'b'));
    };
    EXPECT_LT(CostOfFourTimes(25, match), kLinear);
}
