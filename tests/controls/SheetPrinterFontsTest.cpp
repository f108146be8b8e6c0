#include "controls/paper/SheetPrinterFonts.h"

#include "common/Error.h"

#include <gtest/gtest.h>

namespace schedules::testing {

TEST(SheetPrinterFonts, TheFamilyIsTheOneAskedForWhenItIsThere)
{
    EXPECT_EQ(PrintFamily("Times New Roman", {"Arial", "Times New Roman"}), "Times New Roman");
    EXPECT_EQ(PrintFamily("arial", {"Arial", "Liberation Sans"}), "arial");
}

TEST(SheetPrinterFonts, ElseOneOfTheSameWidths)
{
    EXPECT_EQ(PrintFamily("Arial", {"DejaVu Sans", "Liberation Sans"}), "Liberation Sans");
    EXPECT_EQ(PrintFamily("Courier New", {"Arial", "Liberation Mono"}), "Liberation Mono");
    EXPECT_EQ(PrintFamily("Unheard of", {"DejaVu Sans", "Arimo"}), "Arimo");
}

TEST(SheetPrinterFonts, ElseAnyThatIsThere)
{
    EXPECT_EQ(PrintFamily("Arial", {"DejaVu Sans"}), "DejaVu Sans");
}

TEST(SheetPrinterFonts, WithoutAnyFontNothingIsPrinted)
{
    EXPECT_THROW(PrintFamily("Arial", {}), Error);
}

TEST(SheetPrinterFonts, CellsAreInArialNoWiderThanOnScreen)
{
    const QFont cells = PrintedCellFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    EXPECT_EQ(cells.families().first(), PrintFamily("Arial"));
    EXPECT_EQ(cells.pointSizeF(), 9) << "the screen's face is the wider one";
    const QFont narrow(QStringLiteral("DejaVu Sans Condensed"), 9);
    EXPECT_LE(PrintedCellFont(narrow).pointSizeF(), 9);
}

TEST(SheetPrinterFonts, AMuchNarrowerFaceOnScreenIsKept)
{
    const QFont narrow(QStringLiteral("Liberation Sans Narrow"), 9);
    EXPECT_EQ(PrintedCellFont(narrow).families().first(), PrintFamily("Arial"));
    QFont squeezed(QStringLiteral("Liberation Sans"), 9);
    squeezed.setStretch(60);
    EXPECT_EQ(PrintedCellFont(squeezed), squeezed);
}

} // namespace schedules::testing
