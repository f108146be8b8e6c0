#include "model/NamedMembers.h"

#include "common/Blanks.h"
#include "model/CElement.h"
#include "model/CGroup.h"
#include "model/Inside.h"

namespace schedules {

namespace {

void GiveId(CGroup& group, int id)
{
    group.SetID(id, Inside());
}

void GiveId(CElement& element, int id)
{
    element.SetID(id);
}

} // namespace

template <class Member>
auto NamedMembers<Member>::AddNew(const QString& name) -> Pointer
{
    return Reported(m_userInterface, m_source.In(__func__), Pointer(), [&] {
        const QString key = TrimmedOfBlanks(name);
        if (key.isEmpty() || Item(key))
            return Pointer();
        const Pointer member = Made();
        member->SetName(key);
        GiveId(*member, m_ids.Next());
        m_members.Append(key, member);
        return member;
    });
}

template <class Member>
void NamedMembers<Member>::Add(Pointer& member, const Neighbour& before, const Neighbour& after)
{
    Reported(m_userInterface, m_source.In(__func__), [&] {
        if (!member)
            member = Made();
        if (Item(member->Name()))
            return;
        if (const auto place = PlaceFor(before, after))
            m_members.Insert(*place, member->Name(), member);
    });
}

template <class Member>
std::optional<Position> NamedMembers<Member>::PlaceFor(const Neighbour& before, const Neighbour& after) const
{
    if (before)
        return m_members.PlaceOf(*before);
    if (!after)
        return Position(Count()).Next();
    const auto place = m_members.PlaceOf(*after);
    return place ? std::optional(place->Next()) : std::nullopt;
}

template <class Member>
void NamedMembers<Member>::Clear()
{
    IgnoringErrors([this] { m_members.Clear(); });
}

template <class Member>
void NamedMembers<Member>::Remove(const MemberKey& key)
{
    IgnoringErrors([&] {
        if (const Pointer member = Item(key))
            m_members.Remove(member->Name());
    });
}

template <class Member>
int NamedMembers<Member>::PositionOfId(int id) const noexcept
{
    const auto place = m_members.PlaceOfId(id);
    return place ? place->Value() : -1;
}

template class NamedMembers<CGroup>;
template class NamedMembers<CElement>;

} // namespace schedules
