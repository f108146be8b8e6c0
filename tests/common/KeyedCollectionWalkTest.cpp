// Random walks: whatever is done to a collection, it is what a plain vector would be.

#include "common/KeyedCollection.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

using namespace schedules;

namespace {

struct Valve
{
    const MemberId& Identity() const { return id; }

    MemberId id;
};

using Pointer = std::shared_ptr<Valve>;
using Place = std::optional<Position>;

/// A collection in the plainest way.
class Plain
{
public:
    std::size_t Size() const { return m_entries.size(); }

    bool Insert(std::size_t index, const QString& key, const Pointer& member)
    {
        if (IndexOf(key))
            return false;
        m_entries.insert(m_entries.begin() + static_cast<std::ptrdiff_t>(index), {key.toLower(), member});
        return true;
    }

    bool Remove(const QString& key)
    {
        return std::erase_if(m_entries, [&](const Entry& entry) { return entry.key == key.toLower(); }) != 0;
    }

    void Clear() { m_entries.clear(); }

    std::optional<std::size_t> IndexOf(const QString& key) const
    {
        return Where([wanted = key.toLower()](const Entry& entry) { return entry.key == wanted; });
    }

    std::optional<std::size_t> IndexOfId(int id) const
    {
        return Where([id](const Entry& entry) { return entry.member->id.Value() == id; });
    }

    const QString& Key(std::size_t index) const { return m_entries[index].key; }

    Pointer Item(std::optional<std::size_t> index) const
    {
        return index && *index < Size() ? m_entries[*index].member : Pointer();
    }

    std::vector<Pointer> Members() const
    {
        std::vector<Pointer> members;
        for (const Entry& entry : m_entries)
            members.push_back(entry.member);
        return members;
    }

private:
    struct Entry
    {
        QString key;
        Pointer member;
    };

    template <class Condition>
    std::optional<std::size_t> Where(Condition&& isWanted) const
    {
        const auto found = std::ranges::find_if(m_entries, isWanted);
        return found == m_entries.end() ? std::nullopt
                                        : std::optional(static_cast<std::size_t>(found - m_entries.begin()));
    }

    std::vector<Entry> m_entries;
};

Place PlaceAt(std::optional<std::size_t> index)
{
    return index ? Place(Position::OfIndex(*index)) : std::nullopt;
}

struct WalkKind
{
    const char* name;
    unsigned keys; ///< the fewer, the smaller the collection stays
    unsigned numbers;
    int steps;
    int filled;
};

void PrintTo(const WalkKind& kind, std::ostream* out)
{
    *out << kind.name;
}

/// Two collections that share members, and what they should be.
class Walk
{
public:
    explicit Walk(const WalkKind& kind) : m_kind(kind), m_random(kind.keys)
    {
        for (unsigned number = 0; number < kind.keys; ++number) {
            m_members.push_back(std::make_shared<Valve>());
            m_members.back()->id.Set(RandomNumber());
        }
        for (int step = 0; step < kind.filled; ++step)
            Insert();
    }

    void Step()
    {
        m_side = m_random() % 2;
        switch (m_random() % 16) {
        case 0:
        case 1:
        case 2:
        case 3:
        case 4:
            return Insert();
        case 5:
        case 6:
        case 7:
            return Remove();
        case 8:
        case 9:
            return Move();
        case 10:
        case 11:
            return RandomMember()->id.Set(RandomNumber());
        case 12:
            return Renew();
        case 13:
            return RarelyClear();
        default:
            return ExpectLookupsAlike();
        }
    }

    void ExpectAlike()
    {
        for (m_side = 0; m_side < 2; ++m_side) {
            ASSERT_EQ(Tested().Members(), Expected().Members());
            ASSERT_EQ(Tested().Count(), static_cast<int>(Expected().Size()));
            for (int count = 0; count < 20; ++count)
                ExpectLookupsAlike();
        }
    }

private:
    KeyedCollection<Valve>& Tested() { return m_tested[m_side]; }
    Plain& Expected() { return m_expected[m_side]; }

    QString RandomKey()
    {
        const QString key = QStringLiteral("Клапан %1").arg(m_random() % m_kind.keys);
        return m_random() % 2 ? key : key.toUpper();
    }

    int RandomNumber() { return static_cast<int>(m_random() % m_kind.numbers); }
    Pointer RandomMember() { return m_members[m_random() % m_members.size()]; }
    std::size_t RandomIndex() { return m_random() % (Expected().Size() + 1); }

    void Insert() { InsertAs(RandomIndex(), RandomKey(), RandomMember()); }

    void InsertAs(std::size_t index, const QString& key, const Pointer& member)
    {
        const bool isNew = Expected().Insert(index, key, member);
        ASSERT_EQ(Tested().Insert(Position::OfIndex(index), key, member), isNew);
    }

    void Remove()
    {
        const QString key = RandomKey();
        ASSERT_EQ(Tested().Remove(key), Expected().Remove(key));
    }

    void Move()
    {
        const std::size_t from = RandomIndex();
        if (from == Expected().Size())
            return;
        const QString key = Expected().Key(from);
        const Pointer member = Expected().Item(from);
        ASSERT_TRUE(Tested().Remove(key) && Expected().Remove(key));
        InsertAs(RandomIndex(), key, member);
    }

    /// A member that nobody else holds any more may end.
    void Renew()
    {
        Pointer& member = m_members[m_random() % m_members.size()];
        member = std::make_shared<Valve>();
        member->id.Set(RandomNumber());
    }

    void RarelyClear()
    {
        if (m_random() % 200 != 0)
            return;
        Tested().Clear();
        Expected().Clear();
    }

    void ExpectLookupsAlike()
    {
        const QString key = RandomKey();
        ASSERT_EQ(Tested().PlaceOf(key), PlaceAt(Expected().IndexOf(key)));
        ASSERT_EQ(Tested().Item(key), Expected().Item(Expected().IndexOf(key)));
        const int id = RandomNumber();
        ASSERT_EQ(Tested().PlaceOfId(id), PlaceAt(Expected().IndexOfId(id)));
        ASSERT_EQ(Tested().ItemById(id), Expected().Item(Expected().IndexOfId(id)));
        const std::size_t index = RandomIndex();
        ASSERT_EQ(Tested().Item(Position::OfIndex(index)), Expected().Item(index));
    }

    WalkKind m_kind;
    std::mt19937 m_random;
    std::vector<Pointer> m_members;
    KeyedCollection<Valve> m_tested[2];
    Plain m_expected[2];
    std::size_t m_side = 0;
};

class KeyedCollectionWalk : public ::testing::TestWithParam<WalkKind>
{
};

} // namespace

TEST_P(KeyedCollectionWalk, IsWhatAPlainVectorWouldBe)
{
    Walk walk(GetParam());
    for (int step = 0; step < GetParam().steps; ++step) {
        walk.Step();
        if (step % 100 == 0)
            walk.ExpectAlike();
        ASSERT_FALSE(HasFatalFailure()) << "in step " << step;
    }
    walk.ExpectAlike();
}

INSTANTIATE_TEST_SUITE_P(Sizes, KeyedCollectionWalk,
                         ::testing::Values(WalkKind{"AFew", 6, 4, 20'000, 0},
                                           WalkKind{"AroundTheFirstIndex", 28, 12, 40'000, 10},
                                           WalkKind{"FewNumbers", 60, 3, 20'000, 0},
                                           WalkKind{"ManyNumbers", 60, 100'000, 20'000, 0},
                                           WalkKind{"OverSeveralPieces", 2'000, 1'000, 10'000, 1'500}),
                         [](const auto& tested) { return std::string(tested.param.name); });
