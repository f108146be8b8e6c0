#include "workbook/CsvWriter.h"

#include "common/Error.h"
#include "workbook/ReadBack.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

TEST(CsvField, APlainTextStaysAsItIs)
{
    EXPECT_EQ(CsvField(""), "");
    EXPECT_EQ(CsvField("P-101A"), "P-101A");
    EXPECT_EQ(CsvField("насос; вода"), "насос; вода");
    EXPECT_EQ(CsvField("007"), "007");
}

TEST(CsvField, CommasQuotesAndLineBreaksAreQuoted)
{
    EXPECT_EQ(CsvField("a,b"), "\"a,b\"");
    EXPECT_EQ(CsvField("3\" pipe"), "\"3\"\" pipe\"");
    EXPECT_EQ(CsvField("two\nlines"), "\"two\nlines\"");
    EXPECT_EQ(CsvField("two\r\nlines"), "\"two\r\nlines\"");
}

TEST(CsvField, WhatWouldRunAsAFormulaGetsAnApostrophe)
{
    EXPECT_EQ(CsvField("=1+1"), "'=1+1");
    EXPECT_EQ(CsvField("+cmd|' /C calc'!A0"), "'+cmd|' /C calc'!A0");
    EXPECT_EQ(CsvField("-2+3"), "'-2+3");
    EXPECT_EQ(CsvField("@SUM(1,2)"), "\"'@SUM(1,2)\"");
    EXPECT_EQ(CsvField("\t=1"), "'\t=1");
    EXPECT_EQ(CsvField("\r=1"), "\"'\r=1\"");
    EXPECT_EQ(CsvField("-"), "'-");
}

TEST(CsvField, PlainNumbersGetNone)
{
    EXPECT_EQ(CsvField("-5"), "-5");
    EXPECT_EQ(CsvField("+12.5"), "+12.5");
    EXPECT_EQ(CsvField("-12,5"), "\"-12,5\"");
}

TEST(CsvWriter, WritesRowsOfFields)
{
    WrittenSheet written;
    Fill(written.sheet, {{"Tag", "Flow (m³/h)"}, {"P-1", ""}, {"=P", "1,5"}});
    WriteCsv(written.sheet, written.FileName());
    QFile file(written.FileName());
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    EXPECT_EQ(file.readAll(), "Tag,Flow (m³/h)\r\nP-1,\r\n'=P,\"1,5\"\r\n");
}

namespace {

/// The rows that a reader of another making finds in the file.
std::string ReadCsv(const WrittenSheet& written)
{
    WriteCsv(written.sheet, written.FileName());
    return Printed("workbook/read_csv.py", {written.FileName()}).toStdString();
}

} // namespace

TEST(CsvWriter, AnotherReaderFindsTheSameRows)
{
    WrittenSheet written;
    Fill(written.sheet, {{"Tag", "Note"}, {"P-1", "3\" pipe, steel"}, {"", ""}, {"насос", "two\nlines"}});
    EXPECT_EQ(ReadCsv(written), "['Tag', 'Note']\n"
                                "['P-1', '3\" pipe, steel']\n"
                                "['', '']\n"
                                "['насос', 'two\\nlines']");
}

TEST(CsvWriter, AnEmptyTextInItsOnlyColumnIsARowAllTheSame)
{
    WrittenSheet written;
    Fill(written.sheet, {{"Tag"}, {""}, {"P-2"}, {""}});
    EXPECT_EQ(ReadCsv(written), "['Tag']\n['']\n['P-2']\n['']");
}

TEST(CsvWriter, ASheetWithoutCellsIsAnEmptyFile)
{
    WrittenSheet written;
    EXPECT_EQ(ReadCsv(written), "");
    written.sheet.SetSize(0, 3);
    EXPECT_EQ(ReadCsv(written), "") << "rows without columns";
    written.sheet.SetSize(3, 0);
    EXPECT_EQ(ReadCsv(written), "") << "columns without rows";
}

TEST(CsvWriter, AFolderThatIsGoneIsAnError)
{
    WrittenSheet written;
    EXPECT_THROW(WriteCsv(written.sheet, written.folder.filePath(QStringLiteral("gone/a.csv"))), Error);
}
