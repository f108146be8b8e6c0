#include "host/import/CsvTable.h"

#include "host/base/HostError.h"

#include <gtest/gtest.h>

namespace schedules::host {

namespace {

/// A line for each row: its fields in brackets, each with its place.
QString Drawn(const CsvRow& row)
{
    QString drawn;
    for (const CsvField& field : row) {
        QString text = field.text;
        drawn += QStringLiteral("%1:%2[%3]").arg(field.place.line).arg(field.place.column).arg(text.replace('\n', '~'));
    }
    return drawn;
}

/// The table as it is read, or what is wrong with it.
QString Read(const QByteArray& bytes)
{
    TableErrors errors;
    const CsvTable table(bytes, errors);
    try {
        errors.ThrowIfAny(QStringLiteral("t.csv"));
    } catch (const HostError& error) {
        return error.Line();
    }
    QStringList lines{Drawn(table.Headings())};
    for (const CsvRow& row : table.Rows())
        lines << Drawn(row);
    return lines.join('\n');
}

struct Case
{
    const char* rule;
    QByteArray bytes;
    const char* read;
};

void PrintTo(const Case& sample, std::ostream* stream)
{
    *stream << sample.rule;
}

class CsvTableReads : public ::testing::TestWithParam<Case>
{
};

} // namespace

TEST_P(CsvTableReads, Table)
{
    EXPECT_EQ(Read(GetParam().bytes).toStdString(), GetParam().read) << GetParam().rule;
}

INSTANTIATE_TEST_SUITE_P(
    WellFormed, CsvTableReads,
    ::testing::Values(Case{"fields between commas", "a,b\n1,2\n", "1:1[a]1:3[b]\n2:1[1]2:3[2]"},
                      Case{"no line break at the end", "a,b\n1,2", "1:1[a]1:3[b]\n2:1[1]2:3[2]"},
                      Case{"carriage returns and line feeds", "a,b\r\n1,2\r\n", "1:1[a]1:3[b]\n2:1[1]2:3[2]"},
                      Case{"carriage returns alone", "a,b\r1,2\r", "1:1[a]1:3[b]\n2:1[1]2:3[2]"},
                      Case{"empty fields", "a,b,c\n,,\n", "1:1[a]1:3[b]1:5[c]\n2:1[]2:2[]2:3[]"},
                      Case{"blanks are kept", "a,b\n 1 ,\n", "1:1[a]1:3[b]\n2:1[ 1 ]2:5[]"},
                      Case{"a separator in quotes", "a,b\n\"1,2\",3\n", "1:1[a]1:3[b]\n2:1[1,2]2:7[3]"},
                      Case{"doubled quotes", "a,b\n\"1\"\"2\",\"\"\"\"\n", "1:1[a]1:3[b]\n2:1[1\"2]2:8[\"]"},
                      Case{"nothing in quotes", "a,b\n\"\",\"\"\n", "1:1[a]1:3[b]\n2:1[]2:4[]"},
                      Case{"a line break in quotes", "a,b\n\"1\n2\",3\n4,5\n",
                           "1:1[a]1:3[b]\n2:1[1~2]3:4[3]\n4:1[4]4:3[5]"},
                      Case{"a carriage return in quotes", "a,b\n\"1\r\n2\",3\n", "1:1[a]1:3[b]\n2:1[1~2]3:4[3]"},
                      Case{"a quote within a field is a character", "a,b\n1\"2,3\n", "1:1[a]1:3[b]\n2:1[1\"2]2:5[3]"},
                      Case{"empty lines do not count", "\n\na,b\n\n1,2\n\n", "3:1[a]3:3[b]\n5:1[1]5:3[2]"},
                      Case{"a byte-order mark",
                           "\xEF\xBB\xBF"
                           "a,b\n1,2\n",
                           "1:1[a]1:3[b]\n2:1[1]2:3[2]"},
                      Case{"semicolons", "a;b\n1,5;2\n", "1:1[a]1:3[b]\n2:1[1,5]2:5[2]"},
                      Case{"tabs", "a\tb\n1,5\t2;3\n", "1:1[a]1:3[b]\n2:1[1,5]2:5[2;3]"},
                      Case{"the headings decide on the separator", "a,b,c;d\n;;;,1,2\n",
                           "1:1[a]1:3[b]1:5[c;d]\n2:1[;;;]2:5[1]2:7[2]"},
                      Case{"one column", "a\n1\n", "1:1[a]\n2:1[1]"}, Case{"headings alone", "a,b\n", "1:1[a]1:3[b]"},
                      Case{"characters are counted, not bytes", "Жé,b\n𝄞水,2\n", "1:1[Жé]1:4[b]\n2:1[𝄞水]2:4[2]"}));

INSTANTIATE_TEST_SUITE_P(
    Wrong, CsvTableReads,
    ::testing::Values(
        Case{"nothing", "", "t.csv:1:1: there is nothing in this file"},
        Case{"a mark alone", "\xEF\xBB\xBF", "t.csv:1:1: there is nothing in this file"},
        Case{"line breaks alone", "\n\r\n", "t.csv:1:1: there is nothing in this file"},
        Case{"an open quote", "a,b\n1,\"2\n3,4\n", "t.csv:2:3: this quote is not closed"},
        Case{"text after a quote", "a,b\n\"1\"x,2\n", "t.csv:2:4: there is text after a closing quote"},
        Case{"a blank after a quote", "a,b\n\"1\" ,2\n", "t.csv:2:4: there is text after a closing quote"},
        Case{"a field too few", "a,b\n1\n",
             "t.csv:2:1: this row has another number of fields (1) than the headings (2)"},
        Case{"a field too many", "a,b\n1,2,\n",
             "t.csv:2:1: this row has another number of fields (3) than the headings (2)"},
        Case{"bytes of another encoding", "a,b\n1,\xC4rger\n", "t.csv:2:3: this is not UTF-8"},
        Case{"bytes of another encoding after other letters", "a,b\n\xC3\xA9\xE6\xB0\xB4,\xFF\n",
             "t.csv:2:4: this is not UTF-8"},
        Case{"a cut-off letter at the end", "a,b\n1,\xE6\xB0", "t.csv:2:3: this is not UTF-8"},
        Case{"UTF-16",
             QByteArray("\xFF\xFE"
                        "a\0",
                        4),
             "t.csv:1:1: this is not UTF-8"},
        Case{"a NUL", QByteArray("a,b\n1,2\0003\n", 10), "t.csv:2:4: a text cannot hold a NUL character"}));

TEST(CsvTable, TellsAllThatIsWrongInTheOrderOfPlaces)
{
    EXPECT_EQ(Read("a,b\n1\n\"2\"x,3\n4,\"5").toStdString(),
              "t.csv:2:1: this row has another number of fields (1) than the headings (2)\n"
              "t.csv:3:4: there is text after a closing quote\n"
              "t.csv:4:3: this quote is not closed");
}

TEST(CsvTable, TellsTwentyErrorsAndTheNumberOfFurtherOnes)
{
    const QStringList lines = Read("a,b\n" + QByteArray("1\n").repeated(51)).split('\n');
    ASSERT_EQ(lines.size(), 21);
    EXPECT_EQ(lines[19], "t.csv:21:1: this row has another number of fields (1) than the headings (2)");
    EXPECT_EQ(lines[20], "and 31 more");
}

TEST(CsvTable, TellsExactlyTwentyErrorsWithoutMore)
{
    EXPECT_EQ(Read("a,b\n" + QByteArray("1\n").repeated(20)).split('\n').size(), 20);
}

} // namespace schedules::host
