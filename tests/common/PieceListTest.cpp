#include "common/PieceList.h"

#include <gtest/gtest.h>
#include <random>
#include <string>

using namespace schedules;

namespace {

using List = PieceList<int>;

/// One more and one less than these are where pieces split and vanish.
constexpr std::size_t kPiece = 512;

List Counting(std::size_t count)
{
    List list;
    for (std::size_t index = 0; index < count; ++index)
        list.Insert(index, static_cast<int>(index));
    return list;
}

std::vector<int> Elements(const List& list)
{
    std::vector<int> elements;
    for (const List::Node& node : list)
        elements.push_back(node.element);
    return elements;
}

/// What the list is, asked in each way.
void ExpectIs(const List& list, const std::vector<int>& expected)
{
    ASSERT_EQ(list.Size(), expected.size());
    ASSERT_EQ(Elements(list), expected);
    for (std::size_t index = 0; index < expected.size(); ++index) {
        const List::Node& node = list.At(index);
        ASSERT_EQ(node.element, expected[index]) << index;
        ASSERT_EQ(list.IndexOf(node), index);
    }
}

/// A list and what it should be.
class Both
{
public:
    void Insert(std::size_t index, int element)
    {
        m_list.Insert(index, element);
        m_expected.insert(m_expected.begin() + static_cast<std::ptrdiff_t>(index), element);
    }

    void Remove(std::size_t index)
    {
        m_list.Remove(m_list.At(index));
        m_expected.erase(m_expected.begin() + static_cast<std::ptrdiff_t>(index));
    }

    std::size_t Size() const { return m_expected.size(); }
    void ExpectAlike() const { ExpectIs(m_list, m_expected); }

private:
    List m_list;
    std::vector<int> m_expected;
};

} // namespace

TEST(PieceList, StartsEmpty)
{
    ExpectIs(List(), {});
}

TEST(PieceList, InsertsAnywhere)
{
    List list;
    list.Insert(0, 2);
    list.Insert(0, 1);
    list.Insert(2, 4);
    list.Insert(2, 3);
    ExpectIs(list, {1, 2, 3, 4});
}

TEST(PieceList, GivesTheNodeThatItInserted)
{
    List list = Counting(3);
    const List::Node& node = list.Insert(1, 7);
    EXPECT_EQ(node.element, 7);
    EXPECT_EQ(list.IndexOf(node), 1U);
}

TEST(PieceList, RemovesAnywhere)
{
    List list = Counting(5);
    list.Remove(list.At(4));
    list.Remove(list.At(0));
    list.Remove(list.At(1));
    ExpectIs(list, {1, 3});
}

TEST(PieceList, IsFilledAgainAfterItWasEmptied)
{
    List list = Counting(2);
    list.Remove(list.At(0));
    list.Remove(list.At(0));
    ExpectIs(list, {});
    list.Insert(0, 9);
    ExpectIs(list, {9});
}

TEST(PieceList, GrowsAtTheFrontOverManyPieces)
{
    Both both;
    for (int number = 0; number < 1600; ++number)
        both.Insert(0, number);
    both.ExpectAlike();
}

TEST(PieceList, InsertsAtEveryPlaceOfAFullPiece)
{
    for (std::size_t index = 0; index <= kPiece; ++index) {
        Both both;
        for (std::size_t filled = 0; filled < kPiece; ++filled)
            both.Insert(filled, static_cast<int>(filled));
        both.Insert(index, -1);
        both.ExpectAlike();
        ASSERT_FALSE(::testing::Test::HasFailure()) << index;
    }
}

TEST(PieceList, InsertsAtTheBordersOfPieces)
{
    for (const std::size_t size : {kPiece - 1, kPiece, kPiece + 1, 2 * kPiece, 2 * kPiece + 1, 3 * kPiece + 1}) {
        for (const std::size_t index : {kPiece / 2 - 1, kPiece / 2, kPiece / 2 + 1, size - 1, size}) {
            Both both;
            for (std::size_t filled = 0; filled < size; ++filled)
                both.Insert(filled, static_cast<int>(filled));
            both.Insert(index, -1);
            both.ExpectAlike();
        }
    }
}

TEST(PieceList, ForgetsPiecesThatAreEmpty)
{
    Both both;
    for (std::size_t filled = 0; filled < 3 * kPiece; ++filled)
        both.Insert(filled, static_cast<int>(filled));
    while (both.Size() > 2 * kPiece) // those in the middle first
        both.Remove(kPiece / 2);
    both.ExpectAlike();
    while (both.Size() > 1)
        both.Remove(0);
    both.ExpectAlike();
    both.Remove(0);
    both.ExpectAlike();
    both.Insert(0, 1);
    both.ExpectAlike();
}

TEST(PieceList, NodesStayWhereTheyAre)
{
    List list;
    std::vector<const List::Node*> nodes;
    for (int number = 0; number < 2000; ++number)
        nodes.push_back(&list.Insert(list.Size() / 2, number));
    for (std::size_t index = 0; index < 2000; ++index)
        EXPECT_EQ(nodes[index]->element, static_cast<int>(index));
    for (std::size_t index = 0; index < nodes.size(); index += 2)
        list.Remove(*nodes[index]);
    for (std::size_t index = 1; index < nodes.size(); index += 2) {
        ASSERT_EQ(nodes[index]->element, static_cast<int>(index));
        ASSERT_EQ(&list.At(list.IndexOf(*nodes[index])), nodes[index]);
    }
}

TEST(PieceList, ElementsNeedOnlyBeMovable)
{
    PieceList<std::unique_ptr<std::string>> list;
    for (std::size_t index = 0; index < kPiece + 1; ++index)
        list.Insert(0, std::make_unique<std::string>(std::to_string(index)));
    EXPECT_EQ(*list.At(0).element, "512");
    EXPECT_EQ(*list.At(kPiece).element, "0");
}

TEST(PieceList, EndsItsElements)
{
    const auto watched = std::make_shared<int>(1);
    {
        PieceList<std::shared_ptr<int>> list;
        for (int count = 0; count < 3; ++count)
            list.Insert(0, watched);
        list.Remove(list.At(1));
        EXPECT_EQ(watched.use_count(), 3);
    }
    EXPECT_EQ(watched.use_count(), 1);
}

TEST(PieceList, IsWhatAPlainListIsAfterAnyWalk)
{
    std::mt19937 random(7);
    Both both;
    // It grows over several pieces and shrinks to nothing, twice.
    for (int step = 0; step < 40'000; ++step) {
        const bool grows = step / 10'000 % 2 == 0;
        const bool inserts = both.Size() == 0 || random() % 8 < (grows ? 5U : 3U);
        if (inserts)
            both.Insert(random() % (both.Size() + 1), step);
        else
            both.Remove(random() % both.Size());
        if (step % 500 == 0)
            both.ExpectAlike();
        ASSERT_FALSE(::testing::Test::HasFailure()) << step;
    }
    both.ExpectAlike();
}
