#include "workbook/SharedStrings.h"

#include "workbook/ReadBack.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

std::vector<ReadRecord> TableOf(const std::vector<std::string>& texts)
{
    SharedStrings strings;
    for (const std::string& text : texts)
        strings.NumberOf(text);
    MemoryStream stream;
    RecordWriter records(stream);
    strings.WriteTo(records);
    records.Flush();
    return stream.Records();
}

std::string Repeated(const std::string& text, int count)
{
    std::string repeated;
    for (int times = 0; times < count; ++times)
        repeated += text;
    return repeated;
}

/// A strict reader of the table: what it tells of any split that is not allowed.
class StrictReader
{
public:
    explicit StrictReader(const std::vector<ReadRecord>& records) : m_records(records)
    {
        m_at = 8;
        while (m_record + 1 < m_records.size())
            ReadString();
    }

    std::vector<std::string> texts;

private:
    std::size_t Left() const { return m_records[m_record].data.size() - m_at; }

    void ReadString()
    {
        ASSERT_GE(Left(), 4u) << "a header is split, or parted from its text";
        int units = m_records[m_record].At<Word>(m_at);
        Byte flags = m_records[m_record].At<Byte>(m_at + 2);
        m_at += 3;
        QString text;
        while (true) {
            const std::size_t width = flags & 1 ? 2 : 1;
            const int here = std::min<int>(units, static_cast<int>(Left() / width));
            AppendUnits(text, here, width);
            units -= here;
            if (units == 0)
                break;
            ASSERT_EQ(Left(), width == 2 && text.back().isLowSurrogate() ? Left() : Left() % width);
            ASSERT_FALSE(text.back().isHighSurrogate()) << "a character is split";
            NextRecord();
            flags = m_records[m_record].At<Byte>(m_at++);
            ASSERT_LE(flags, 1);
        }
        texts.push_back(text.toStdString());
        if (Left() == 0)
            NextRecord();
    }

    void AppendUnits(QString& text, int count, std::size_t width)
    {
        for (int unit = 0; unit < count; ++unit, m_at += width) {
            const auto& record = m_records[m_record];
            text += QChar(width == 2 ? record.At<Word>(m_at) : Word{record.At<Byte>(m_at)});
        }
    }

    void NextRecord()
    {
        ++m_record;
        m_at = 0;
    }

    const std::vector<ReadRecord>& m_records;
    std::size_t m_record = 0;
    std::size_t m_at = 0;
};

} // namespace

TEST(SharedStrings, EqualTextsHaveOneNumber)
{
    SharedStrings strings;
    EXPECT_EQ(strings.NumberOf("a"), 0u);
    EXPECT_EQ(strings.NumberOf("b"), 1u);
    EXPECT_EQ(strings.NumberOf("a"), 0u);
    EXPECT_EQ(strings.Count(), 2u);
}

TEST(SharedStrings, NumbersStayWhileTheTableGrows)
{
    std::vector<std::string> texts;
    for (int number = 0; number < 50'000; ++number)
        texts.push_back("text " + std::to_string(number));
    SharedStrings strings;
    for (int time = 0; time < 2; ++time) {
        for (std::size_t number = 0; number < texts.size(); ++number)
            ASSERT_EQ(strings.NumberOf(texts[number]), number);
    }
}

TEST(SharedStrings, AnEmptyTableIsATable)
{
    const auto records = TableOf({});
    ASSERT_EQ(records.size(), 2u);
    EXPECT_EQ(records[0].data, std::string(8, '\0'));
}

TEST(SharedStrings, LatinTextsTakeABytePerCharacterAndOthersTwo)
{
    const auto records = TableOf({"Öl", "масло", "𝄞"});
    EXPECT_EQ(records[0].data.substr(8), std::string("\x02\0\0\xD6l", 5) +
                                             std::string("\x05\0\x01\x3C\x04\x30\x04\x41\x04\x3B\x04\x3E\x04", 13) +
                                             std::string("\x02\0\x01\x34\xD8\x1E\xDD", 7));
}

TEST(SharedStrings, ALongTextHasAFlagAgainAfterEachContinuation)
{
    const auto records = TableOf({std::string(20'000, 'x')});
    ASSERT_EQ(records.size(), 4u);
    EXPECT_EQ(records[0].data.size(), 8'224u);
    EXPECT_EQ(records[1].type, RecordType::Continue);
    EXPECT_EQ(records[1].data, std::string(1, '\0') + std::string(8'223, 'x'));
    EXPECT_EQ(records[2].data, std::string(1, '\0') + std::string(20'000 - 8'213 - 8'223, 'x'));
}

TEST(SharedStrings, ATextBehindAFullRecordBeginsWithoutAFlag)
{
    const auto records = TableOf({std::string(8'213, 'x'), "next"});
    ASSERT_EQ(records.size(), 3u);
    EXPECT_EQ(records[0].data.size(), 8'224u);
    EXPECT_EQ(records[1].data, std::string("\x04\0\0next", 7));
}

/// Texts of each kind whose ends fall on every place around the end of a record.
TEST(SharedStrings, AreSplitAsTheFormatAllowsWhereverTheyEnd)
{
    for (const std::string unit : {"x", "я", "𝄞"}) {
        for (int length = 8'190; length <= 8'230; ++length) {
            const int units = unit == "x" ? length : length / 2;
            const std::vector<std::string> texts{Repeated("a", length % 2 ? 1 : 2) + Repeated(unit, units / 2),
                                                 Repeated(unit, units - units / 2), "behind " + unit, "end"};
            const auto records = TableOf(texts);
            EXPECT_EQ(StrictReader(records).texts, texts) << unit << ' ' << length;
            if (HasFailure())
                return;
        }
    }
}

TEST(SharedStrings, ThatEndOnEveryByteOfARecordAreRead)
{
    WrittenSheet written;
    std::vector<std::vector<std::string>> rows;
    int number = 0;
    for (int length = 8'224 * 2; length >= 8'000; length -= 3) {
        const std::string kind = number % 3 == 0 ? "x" : number % 3 == 1 ? "ж" : "𝄞";
        rows.push_back({std::to_string(++number) + Repeated(kind, length % 1'999)});
    }
    Fill(written.sheet, rows);
    const std::string expected = Joined(written.sheet);
    EXPECT_TRUE(written.Read("texts") == expected);
    EXPECT_TRUE(ReadByFreexl(written.FileName()) == expected);
}

/// One filler text, then a short one that begins at each place before a boundary.
TEST(SharedStrings, ThatBeginOnEveryPlaceBeforeABoundaryAreRead)
{
    for (const std::string kind : {"x", "ж", "𝄞"}) {
        for (int before = 0; before <= 24; ++before) {
            WrittenSheet written;
            Fill(written.sheet, {{std::string(static_cast<std::size_t>(8'213 - before), 'f'), Repeated(kind, 9), "z"}});
            const std::string expected = Joined(written.sheet);
            written.Read("texts");
            EXPECT_TRUE(ReadByFreexl(written.FileName()) == expected) << kind << ' ' << before;
        }
    }
}

TEST(SharedStrings, TheIndexPointsToEveryEighthText)
{
    std::vector<std::string> texts;
    for (int number = 0; number < 20; ++number)
        texts.push_back(std::string(1'000, 'x') + std::to_string(number));
    const auto records = TableOf(texts);
    const ReadRecord& index = records.back();
    ASSERT_EQ(index.type, RecordType::ExtSST);
    EXPECT_EQ(index.At<Word>(0), 8);
    ASSERT_EQ(index.data.size(), 2u + 3 * 8);
    for (std::size_t bucket = 0; bucket < 3; ++bucket) {
        const auto inStream = index.At<DWord>(2 + 8 * bucket);
        const auto inRecord = index.At<Word>(6 + 8 * bucket);
        const auto record = std::ranges::find(records, inStream - inRecord, &ReadRecord::position);
        ASSERT_NE(record, records.end());
        EXPECT_EQ(record->At<Word>(inRecord - 4u), texts[bucket * 8].size());
    }
}

TEST(SharedStrings, TheIndexFitsARecordHoweverManyTextsThereAre)
{
    std::vector<std::string> texts;
    for (int number = 0; number < 100'000; ++number)
        texts.push_back(std::to_string(number));
    const auto records = TableOf(texts);
    EXPECT_LE(records.back().data.size(), 8'224u);
    EXPECT_EQ(records.back().At<Word>(0), 98);
}
