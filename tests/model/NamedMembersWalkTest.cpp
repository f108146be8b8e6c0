#include "model/MemberKinds.h"

#include <algorithm>
#include <random>

using namespace schedules;
using namespace schedules::testing;

namespace {

/// What a collection must do, done in the simplest way.
template <class Kind>
class NaiveMembers
{
public:
    using Member = typename Kind::Member;
    using Pointer = std::shared_ptr<Member>;
    struct Entry
    {
        QString key;
        Pointer member;
    };

    std::vector<Entry> entries;

    /// -1 when there is none.
    std::ptrdiff_t IndexOf(const MemberKey& key) const
    {
        const auto* name = std::get_if<QString>(&key);
        if (!name) {
            const int place = std::get<Position>(key).Value();
            return place >= 1 && place <= std::ssize(entries) ? place - 1 : -1;
        }
        return First([&](const Entry& entry) { return entry.key.toLower() == name->toLower(); });
    }

    std::ptrdiff_t IndexOfId(int id) const
    {
        return First([&](const Entry& entry) { return entry.member->ID() == id; });
    }

    Pointer At(std::ptrdiff_t index) const
    {
        return index < 0 ? nullptr : entries[static_cast<std::size_t>(index)].member;
    }

    void Add(const Pointer& member, const std::optional<MemberKey>& before, const std::optional<MemberKey>& after)
    {
        if (IndexOf(member->Name()) >= 0)
            return;
        std::ptrdiff_t place = std::ssize(entries);
        if (before || after) {
            const std::ptrdiff_t other = IndexOf(before ? *before : *after);
            if (other < 0)
                return;
            place = before ? other : other + 1;
        }
        entries.insert(entries.begin() + place, {member->Name(), member});
    }

    void Remove(const MemberKey& key)
    {
        const Pointer member = At(IndexOf(key));
        const std::ptrdiff_t index = member ? IndexOf(member->Name()) : -1;
        if (index >= 0)
            entries.erase(entries.begin() + index);
    }

private:
    template <class Matches>
    std::ptrdiff_t First(Matches&& matches) const
    {
        const auto found = std::ranges::find_if(entries, matches);
        return found == entries.end() ? -1 : found - entries.begin();
    }
};

/// Does the same at random to a collection and to its simple likeness.
template <class Kind>
class Walk
{
public:
    using Pointer = std::shared_ptr<typename Kind::Member>;
    using Place = std::optional<MemberKey>;

    Walk(unsigned seed, int names) : m_random(seed), m_names(names) {}

    void Step()
    {
        switch (UpTo(11)) {
        case 0:
        case 1:
        case 2:
        case 3:
            return AddNew();
        case 4:
        case 5:
            return Add();
        case 6:
            return Remove();
        case 7:
        case 8:
            return Move();
        case 9:
            return Rename();
        case 10:
            return Renumber();
        default:
            return UpTo(60) == 0 ? Clear() : Step();
        }
    }

    void Compare()
    {
        std::vector<Pointer> expected;
        for (const auto& entry : m_naive.entries)
            expected.push_back(entry.member);
        ASSERT_EQ(m_members.NewEnum(), expected);
        ASSERT_EQ(m_members.Count(), std::ssize(expected));
        for (int number = 0; number < 4; ++number) {
            const MemberKey key = Key();
            ASSERT_EQ(m_members.Item(key), m_naive.At(m_naive.IndexOf(key)));
            const std::ptrdiff_t index = m_naive.IndexOfId(UpTo(m_lastId + 1));
            const int id = index < 0 ? -1000 : m_naive.At(index)->ID();
            ASSERT_EQ(Kind::ById(m_members, id), m_naive.At(index));
            ASSERT_EQ(Kind::PositionOf(m_members, id), index < 0 ? -1 : index + 1);
        }
    }

    void NothingWasReported() const { EXPECT_EQ(Seen(m_user), ""); }

private:
    int UpTo(int most) { return std::uniform_int_distribution(0, most)(m_random); }

    QString Name()
    {
        const QString name = QString("%1 %2").arg(UpTo(1) == 0 ? "Насос" : "pump").arg(UpTo(m_names));
        return UpTo(1) == 0 ? name : name.toUpper();
    }

    MemberKey Key()
    {
        if (UpTo(1) == 0)
            return Name();
        return Position(UpTo(m_members.Count() + 2) - 1);
    }

    Pointer AnyMember() { return m_members.Item(Position(UpTo(m_members.Count()))); }

    void AddNew()
    {
        const QString name = Name();
        const Pointer added = m_members.AddNew(' ' + name);
        ASSERT_EQ(added == nullptr, m_naive.IndexOf(name) >= 0);
        if (!added)
            return;
        ASSERT_EQ(added->ID(), ++m_lastId);
        m_naive.Add(added, {}, {});
    }

    void AddBoth(Pointer member, const Place& before, const Place& after)
    {
        m_members.Add(member, before, after);
        m_naive.Add(member, before, after);
    }

    /// A new one, or one that is there already, perhaps under another name.
    void Add()
    {
        Pointer member = UpTo(1) == 0 ? AnyMember() : nullptr;
        if (!member) {
            member = std::make_shared<typename Kind::Member>(m_user);
            member->SetName(Name());
        }
        AddBoth(member, UpTo(2) == 0 ? Place(Key()) : Place(), UpTo(2) == 0 ? Place(Key()) : Place());
    }

    void Remove()
    {
        const MemberKey key = Key();
        m_members.Remove(key);
        m_naive.Remove(key);
    }

    void Move()
    {
        const Pointer moved = AnyMember();
        if (!moved)
            return;
        m_members.Remove(moved->Name());
        m_naive.Remove(moved->Name());
        const Place place = Position(UpTo(m_members.Count()) + 1);
        AddBoth(moved, UpTo(1) == 0 ? place : Place(), place);
    }

    void Rename()
    {
        if (const Pointer member = AnyMember())
            member->SetName(Name());
    }

    void Renumber()
    {
        if (const Pointer member = AnyMember())
            Kind::SetId(*member, UpTo(m_lastId + 1));
    }

    void Clear()
    {
        m_members.Clear();
        m_naive.entries.clear();
    }

    std::mt19937 m_random;
    int m_names;
    ScriptedUserInterface m_user;
    typename Kind::Collection m_members{m_user};
    NaiveMembers<Kind> m_naive;
    int m_lastId = 0;
};

template <class Kind>
struct NamedMembersWalk : MembersFixture<Kind>
{
    void WalkFrom(unsigned seed, int names, int steps)
    {
        Walk<Kind> walk(seed, names);
        for (int step = 0; step < steps; ++step) {
            walk.Step();
            walk.Compare();
            if (this->HasFatalFailure())
                FAIL() << "seed " << seed << ", step " << step;
        }
        walk.NothingWasReported();
    }
};

constexpr int kMany = 10'000;

} // namespace

TYPED_TEST_SUITE(NamedMembersWalk, MemberKinds, MemberKindNames);

TYPED_TEST(NamedMembersWalk, SmallCollectionsDoWhatTheSimplestOneDoes)
{
    for (const unsigned seed : {1U, 2U, 3U, 4U, 5U})
        this->WalkFrom(seed, 5, 3000);
}

TYPED_TEST(NamedMembersWalk, CollectionsOfAFewDozenDoWhatTheSimplestOneDoes)
{
    for (const unsigned seed : {11U, 12U, 13U, 14U, 15U})
        this->WalkFrom(seed, 25, 3000);
}

TYPED_TEST(NamedMembersWalk, LargeCollectionsDoWhatTheSimplestOneDoes)
{
    this->WalkFrom(21, 3000, 4000);
}

TYPED_TEST(NamedMembersWalk, TenThousandAreFoundByNameNumberAndPlace)
{
    for (int number = 1; number <= kMany; ++number)
        ASSERT_TRUE(this->members.AddNew(QString("Group %1").arg(number)));
    for (int number = 1; number <= kMany; ++number) {
        const auto member = this->members.Item(Position(number));
        ASSERT_EQ(member->ID(), number);
        ASSERT_EQ(this->members.Item(QString("GROUP %1").arg(number)), member);
        ASSERT_EQ(TypeParam::ById(this->members, number), member);
        ASSERT_EQ(TypeParam::PositionOf(this->members, number), number);
    }
}

TYPED_TEST(NamedMembersWalk, TenThousandMovedToTheFrontOneByOneStandTheOtherWayRound)
{
    for (int number = 1; number <= kMany; ++number)
        this->members.AddNew(QString::number(number));
    for (int number = 1; number <= kMany; ++number) {
        auto moved = this->Taken(QString::number(number));
        this->members.Add(moved, this->members.Count() == 0 ? std::nullopt : std::optional<MemberKey>(Position(1)));
        ASSERT_EQ(TypeParam::PositionOf(this->members, number), 1);
    }
    int expected = kMany;
    for (const auto& member : this->members.NewEnum())
        ASSERT_EQ(member->ID(), expected--);
    EXPECT_EQ(expected, 0);
}
