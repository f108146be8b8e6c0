#include "controls/cells/CellContent.h"

#include "controls/DrawnSheet.h"

#include <gtest/gtest.h>

namespace schedules::testing {

TEST(CellContent, DigitsWithPointsCommasAndASignAreANumber)
{
    for (const char* number : {"0", "12", "-12.5", "+3,25", "1,234.56", ".5", " 7 "})
        EXPECT_TRUE(ReadsAsNumber(QString::fromLatin1(number))) << number;
    for (const char* text : {"", "-", ".", "P-12", "12 m", "1e5", "--1", "1-2", "n/a"})
        EXPECT_FALSE(ReadsAsNumber(QString::fromLatin1(text))) << text;
}

TEST(CellContent, ANumericTypeMakesANumberOfAnyText)
{
    CellContent content;
    content.text = QStringLiteral("n/a");
    EXPECT_FALSE(IsNumber(content));
    for (const DataType type :
         {DataType::Integer, DataType::Long, DataType::Single, DataType::Double, DataType::Currency, DataType::Number})
    {
        content.style.dataType = type;
        EXPECT_TRUE(IsNumber(content));
    }
    content.style.dataType = DataType::CheckBox;
    EXPECT_FALSE(IsNumber(content));
}

TEST(CellContent, LineBreaksAreBlanksUnlessTheCellWraps)
{
    Sheet sheet;
    sheet.SetSize(1, 1);
    sheet.SetText(At(1, 1), QStringLiteral("Flow\n(m3/h)\there"));
    EXPECT_EQ(ContentOf(sheet, At(1, 1)).text, QStringLiteral("Flow (m3/h) here"));
    sheet.SetWraps(Block(1, 1, 1, 1), true);
    EXPECT_EQ(ContentOf(sheet, At(1, 1)).text, QStringLiteral("Flow\n(m3/h)\there"));
}

TEST(CellContent, ACheckBoxIsTickedWhenItReadsOne)
{
    const auto sheet = DrawnSheet(QStringLiteral(" | a   | b   | c\n"
                                                 "1| [x] | [ ] | 1"));
    EXPECT_TRUE(ContentOf(*sheet, At(1, 1)).Ticked());
    EXPECT_FALSE(ContentOf(*sheet, At(2, 1)).Ticked());
    EXPECT_TRUE(ContentOf(*sheet, At(2, 1)).IsCheckBox());
    EXPECT_FALSE(ContentOf(*sheet, At(3, 1)).Ticked());
}

} // namespace schedules::testing
