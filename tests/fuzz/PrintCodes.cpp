// Print codes of headers: what they say can be written again and reads the same; a protected text is nothing but text.

#include "spread/PrintCodes.h"

#include "fuzz/Input.h"

#include <QLocale>

#include <gtest/gtest.h>

namespace schedules {

/// In the namespace of its type, where the comparison of lists looks for it.
static bool operator==(const HeaderLine& one, const HeaderLine& other)
{
    return one.parts == other.parts && one.look == other.look;
}

} // namespace schedules

using namespace schedules;
using namespace schedules::testing;

namespace {

QString CodesOf(const HeaderLook& look)
{
    const QString size = QString::number(look.size, 'f', QLocale::FloatingPointShortest);
    return QStringLiteral("/fn\"") + look.font + QStringLiteral("\"/fz\"") + size +
           (look.bold ? QStringLiteral("\"/fb1") : QStringLiteral("\"/fb0"));
}

QString CodesOf(const HeaderLine& line)
{
    QString codes;
    for (std::size_t part = 0; part < kHeaderPartCount; ++part) {
        codes += u'/' + QStringLiteral("lcr").at(static_cast<qsizetype>(part));
        for (const HeaderRun& run : line.parts[part])
            codes += CodesOf(run.look) + ProtectedFromCodes(run.text);
    }
    return codes + CodesOf(line.look) + QStringLiteral("/n");
}

QString CodesOf(const std::vector<HeaderLine>& lines)
{
    QString codes;
    for (const HeaderLine& line : lines)
        codes += CodesOf(line);
    return codes;
}

void ExpectPrintable(const HeaderLook& look)
{
    EXPECT_GE(look.size, 1);
    EXPECT_LT(look.size, 1000);
    EXPECT_FALSE(look.font.contains(u'"'));
}

void ExpectPrintable(const HeaderRun& run)
{
    ExpectPrintable(run.look);
    EXPECT_FALSE(run.text.isEmpty());
    EXPECT_TRUE(std::ranges::all_of(run.text, [](QChar character) { return character >= u' '; }));
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString codes = Input(data, size).Text();
    const auto lines = ReadPrintCodes(codes);
    for (const HeaderLine& line : lines) {
        ExpectPrintable(line.look);
        for (const auto& runs : line.parts)
            std::ranges::for_each(runs, [](const HeaderRun& run) { ExpectPrintable(run); });
    }
    EXPECT_TRUE(ReadPrintCodes(CodesOf(lines)) == lines);

    const auto asText = ReadPrintCodes(ProtectedFromCodes(codes));
    EXPECT_EQ(asText.size(), codes.isEmpty() ? 0U : 1U);
    EXPECT_TRUE(asText.empty() || asText.front().Part(HeaderPart::Left).front().text.size() == codes.size());
    return 0;
}
