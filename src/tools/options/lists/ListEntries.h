#pragma once

#include "common/MemberKey.h"

#include <array>
#include <memory>

class QPushButton;

namespace schedules {

class CheckList;

/// The row of the neighbour that the selected entry changes places with when the button with that index is pressed; the
/// entry's own at the ends of the list.
int NeighbourOf(const CheckList& list, int index);

/// The row of the entry with that text; -1 when there is none, and when the user could not select it now.
int RowToSelect(const CheckList& list, const QString& text);

/// Enables the buttons that can move the selected entry.
void EnableMoves(const CheckList& list, const std::array<QPushButton*, 2>& buttons);

/// Takes a member out of its collection and puts it directly before or behind another one; members that are not listed
/// may stand between two that are. False, and nothing has changed, when one of the two is missing or both are the same.
template <class Members, class Member>
bool MoveMember(Members& members, std::shared_ptr<Member> member, const std::shared_ptr<Member>& neighbour, bool before)
{
    if (!member || !neighbour || member == neighbour)
        return false;
    members.Remove(member->Name());
    const MemberKey place = neighbour->Name();
    if (before)
        members.Add(member, place);
    else
        members.Add(member, {}, place);
    return true;
}

} // namespace schedules
