#include "spread/CellStore.h"

#include "common/Error.h"

#include <gtest/gtest.h>
#include <limits>

using namespace schedules;

namespace {

constexpr CellStyle kPlain;
constexpr CellStyle kBox{.type = CellType::CheckBox, .dataType = DataType::CheckBox};

/// The lines of a store, cells parted by bars; "-" where nothing was placed, "[text]" for a check box.
std::string Drawn(const CellStore& store)
{
    std::string drawn;
    for (int line = 0; line < store.LineCount(); ++line) {
        drawn += line > 0 ? "\n" : "";
        for (int slot = 0; slot < store.SlotCount(line); ++slot) {
            const std::string text(store.Text(line, slot));
            const bool isBox = store.Style(line, slot).type == CellType::CheckBox;
            drawn += slot > 0 ? " | " : "";
            drawn += !store.Holds(line, slot) ? "-" : isBox ? "[" + text + "]" : text;
        }
    }
    return drawn;
}

std::string Extent(const CellStore& store)
{
    return std::to_string(store.LastDataLine()) + " x " + std::to_string(store.LastDataSlot());
}

} // namespace

TEST(CellStore, KeepsTextsAndStyles)
{
    CellStore store;
    store.Place(0, 0, "Tag", kPlain);
    store.Place(0, 1, "In service", kPlain);
    store.Place(1, 0, "P-1", kPlain);
    store.Place(1, 1, "1", kBox);
    EXPECT_EQ(Drawn(store), "Tag | In service\nP-1 | [1]");
    EXPECT_EQ(store.Style(1, 1), kBox);
    EXPECT_EQ(store.Style(0, 0), kPlain);
}

TEST(CellStore, AnotherTextReplacesTheFirst)
{
    CellStore store;
    store.Place(0, 0, "old", kBox);
    store.Place(0, 0, "something longer", kPlain);
    EXPECT_EQ(Drawn(store), "something longer");
}

TEST(CellStore, ATextThatIsNotLongerTakesThePlaceOfTheOneBefore)
{
    CellStore store;
    store.Place(0, 0, "before", kPlain);
    store.Place(0, 1, "12.50", kPlain);
    store.Place(0, 2, "behind", kPlain);
    const char* const place = store.Text(0, 1).data();
    for (const char* text : {"13.75", "7", ""}) {
        store.Place(0, 1, text, kBox);
        EXPECT_EQ(Drawn(store), "before | [" + std::string(text) + "] | behind");
        EXPECT_EQ(store.Text(0, 1).data(), place);
    }
    store.Place(0, 1, "12.50", kPlain);
    EXPECT_EQ(Drawn(store), "before | 12.50 | behind");
}

TEST(CellStore, TickingBoxesAgainAndAgainTakesNoMemory)
{
    constexpr int kBoxes = 100'000;
    CellStore store;
    for (int line = 0; line < kBoxes; ++line)
        store.Place(line, 0, "0", kBox);
    store.Squeeze();
    const std::size_t before = store.MemoryUse();
    for (const char* text : {"1", "0", "1", "1", "0"}) {
        for (int line = 0; line < kBoxes; ++line)
            store.Place(line, 0, text, {.type = CellType::CheckBox, .edited = true});
    }
    EXPECT_LE(store.MemoryUse(), before + 64) << "but for the new style";
}

TEST(CellStore, LongTextsAreReplacedInTheirPlaceByShorterOnes)
{
    for (const std::size_t length : {65'536U, 65'535U, 65'534U, 10U, 0U}) {
        CellStore store;
        store.Place(0, 0, std::string(65'536, 'x'), kPlain);
        store.Place(0, 1, "behind", kPlain);
        store.Squeeze();
        const std::size_t before = store.MemoryUse();
        const std::string text(length, 'y');
        store.Place(0, 0, text, kPlain);
        EXPECT_EQ(store.Text(0, 0), text);
        EXPECT_EQ(store.Text(0, 1), "behind");
        EXPECT_EQ(store.MemoryUse(), before) << length;
    }
}

TEST(CellStore, ALongerTextIsAppendedWhateverItsLength)
{
    CellStore store;
    for (const std::size_t length : {1U, 65'534U, 65'535U, 65'536U}) {
        const std::string text(length, 'x');
        store.Place(0, 0, text, kPlain);
        store.Place(1, 0, "behind", kPlain);
        ASSERT_EQ(store.Text(0, 0), text);
        ASSERT_EQ(store.Text(1, 0), "behind");
    }
}

TEST(CellStore, AReplacedTextLeavesCopiesAlone)
{
    CellStore store;
    store.Place(0, 0, "text", kPlain);
    const CellStore copy = store;
    const CellStore turned = store.Transposed();
    store.Place(0, 0, "new", kPlain);
    EXPECT_EQ(Drawn(copy), "text");
    EXPECT_EQ(Drawn(turned), "text");
}

TEST(CellStore, APartOfATextCanReplaceTheWhole)
{
    CellStore store;
    store.Place(0, 0, "P-101A/B", kPlain);
    store.Place(0, 0, store.Text(0, 0).substr(2, 4), kPlain);
    EXPECT_EQ(Drawn(store), "101A");
}

TEST(CellStore, SlotsInBetweenHoldNothing)
{
    CellStore store;
    store.Place(2, 2, "x", kPlain);
    EXPECT_EQ(Drawn(store), "\n\n- | - | x");
    EXPECT_FALSE(store.Holds(2, 0));
    EXPECT_TRUE(store.Holds(2, 2));
    EXPECT_EQ(store.Style(2, 0), kPlain);
}

TEST(CellStore, OutsideThereIsNothing)
{
    CellStore store;
    store.Place(0, 0, "x", kBox);
    for (const auto& [line, slot] : {std::pair{-1, 0}, {0, -1}, {1, 0}, {0, 1}}) {
        EXPECT_FALSE(store.Holds(line, slot));
        EXPECT_EQ(store.Text(line, slot), "");
        EXPECT_EQ(store.Style(line, slot), kPlain);
    }
    EXPECT_EQ(store.SlotCount(-1), 0);
    EXPECT_EQ(store.SlotCount(1), 0);
}

TEST(CellStore, EmptyTextsAreHeld)
{
    CellStore store;
    store.Place(0, 0, "", kPlain);
    EXPECT_TRUE(store.Holds(0, 0));
    EXPECT_EQ(store.Text(0, 0), "");
}

TEST(CellStore, TheExtentCountsPlacedCellsBeyondTheHeaders)
{
    CellStore store;
    store.Place(0, 9, "header", kPlain);
    store.Place(9, 0, "header", kPlain);
    EXPECT_EQ(Extent(store), "0 x 0");
    store.Place(2, 3, "", kPlain);
    EXPECT_EQ(Extent(store), "2 x 3");
    store.Place(4, 1, "x", kPlain);
    EXPECT_EQ(Extent(store), "4 x 3");
    store.AddLine(20);
    EXPECT_EQ(Extent(store), "4 x 3") << "a line without cells holds no data";
}

TEST(CellStore, RestylingKeepsTheText)
{
    CellStore store;
    store.Place(1, 1, "text", kPlain);
    store.Restyle(1, 1, kBox);
    store.Restyle(1, 2, kBox);
    EXPECT_EQ(Drawn(store), "\n- | [text] | []");
}

TEST(CellStore, LongTextsAreKeptWhole)
{
    CellStore store;
    for (const std::size_t length : {65'533U, 65'534U, 65'535U, 65'536U, 200'000U}) {
        std::string text(length, 'x');
        text.front() = '<';
        text.back() = '>';
        store.Place(0, static_cast<int>(length), text, kPlain);
        store.Place(1, 0, "after", kPlain);
        ASSERT_EQ(store.Text(0, static_cast<int>(length)), text) << length;
        ASSERT_EQ(store.Text(1, 0), "after");
    }
}

TEST(CellStore, LongTextsSurviveTransposingAndOverlaying)
{
    const std::string text(70'000, 'y');
    CellStore store;
    store.Place(1, 2, text, kPlain);
    EXPECT_EQ(store.Transposed().Text(2, 1), text);
    CellStore other;
    other.Overlay(store);
    EXPECT_EQ(other.Text(1, 2), text);
}

TEST(CellStore, LinesFilledInTurnsKeepTheirCells)
{
    CellStore store;
    for (int slot = 0; slot < 40; ++slot) {
        for (int line = 0; line < 7; ++line)
            store.Place(line, slot, std::to_string(line) + ":" + std::to_string(slot), kPlain);
    }
    for (int slot = 0; slot < 40; ++slot) {
        for (int line = 0; line < 7; ++line)
            ASSERT_EQ(store.Text(line, slot), std::to_string(line) + ":" + std::to_string(slot));
    }
}

TEST(CellStore, LinesFilledInTurnsTakeMemoryInProportionToTheirCells)
{
    constexpr int kLines = 200;
    constexpr int kSlots = 500;
    CellStore store;
    for (int slot = 0; slot < kSlots; ++slot) {
        for (int line = 0; line < kLines; ++line)
            store.Place(line, slot, {}, kPlain);
    }
    store.Squeeze();
    EXPECT_LT(store.MemoryUse(), 8U * 4U * kLines * kSlots + 4096U);
}

TEST(CellStore, LinesFilledInOrderTakeEightBytesACell)
{
    constexpr int kLines = 300;
    constexpr int kSlots = 300;
    CellStore store;
    for (int line = 0; line < kLines; ++line) {
        for (int slot = 0; slot < kSlots; ++slot)
            store.Place(line, slot, "12", kPlain);
    }
    store.Squeeze();
    EXPECT_LE(store.MemoryUse(), (8U + 2U) * kLines * kSlots + 12U * kLines + 4096U);
}

TEST(CellStore, TransposingExchangesLinesAndSlots)
{
    CellStore store;
    store.Place(0, 0, "a", kPlain);
    store.Place(0, 2, "b", kBox);
    store.Place(1, 0, "c", kPlain);
    store.Place(1, 1, "d", kPlain);
    const CellStore turned = store.Transposed();
    EXPECT_EQ(Drawn(turned), "a | c\n- | d\n[b]");
    EXPECT_EQ(Extent(turned), "1 x 1");
    EXPECT_EQ(Drawn(turned.Transposed()), Drawn(store));
}

TEST(CellStore, OverlayingReplacesOnlyWhatTheOtherHolds)
{
    CellStore store;
    store.Place(0, 0, "a", kPlain);
    store.Place(0, 1, "b", kPlain);
    store.Place(1, 1, "c", kBox);
    CellStore other;
    other.Place(0, 1, "B", kPlain);
    other.Place(2, 3, "D", kBox);
    store.Overlay(other);
    EXPECT_EQ(Drawn(store), "a | B\n- | [c]\n- | - | - | [D]");
    EXPECT_EQ(Extent(store), "2 x 3");
}

TEST(CellStore, OnlyAStoreWithoutLinesIsEmpty)
{
    CellStore store;
    EXPECT_TRUE(store.Empty());
    store.AddLine(0);
    EXPECT_FALSE(store.Empty());
}

TEST(CellStore, ASlotNumberThatPassesTheIntegerRangeIsAnOverflow)
{
    CellStore store;
    store.Place(0, 0, "kept", {});
    for (const int slot : {-1, std::numeric_limits<int>::max()})
        EXPECT_THROW(store.Place(0, slot, "text", {}), Error);
    EXPECT_EQ(store.Text(0, 0), "kept");
}

TEST(CellStore, ARaggedStoreIsTransposedAtTheCostOfItsCells)
{
    constexpr int kLong = 50'000;
    CellStore store;
    for (int slot = 0; slot < kLong; ++slot)
        store.Place(0, slot, "x", {});
    for (int line = 1; line < kLong; ++line)
        store.Place(line, 0, "y", {});
    const CellStore turned = store.Transposed();
    EXPECT_EQ(turned.Text(0, kLong - 1), "y");
    EXPECT_EQ(turned.Text(kLong - 1, 0), "x");
    EXPECT_LT(turned.MemoryUse(), std::size_t{kLong} * 200);
}

TEST(CellStore, ALineNumberThatPassesTheIntegerRangeIsAnOverflow)
{
    CellStore store;
    for (const int line : {-1, std::numeric_limits<int>::max()}) {
        try {
            store.AddLine(line);
            ADD_FAILURE() << line;
        } catch (const Error& error) {
            EXPECT_EQ(error.Number(), kOverflowError);
        }
    }
}
