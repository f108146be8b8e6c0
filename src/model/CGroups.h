#pragma once

#include "model/CGroup.h"
#include "model/NamedMembers.h"

namespace schedules {

/// The groups of a template, in the order in which a schedule shows them.
class CGroups : public NamedMembers<CGroup>
{
public:
    /// Failures are reported to the user, who must outlive it.
    explicit CGroups(UserInterface& userInterface, IdCounter ids = IdCounter())
        : NamedMembers(userInterface, "CGroups", ids)
    {
    }

    /// The first in order with that number; nothing when there is none.
    std::shared_ptr<CGroup> ItemByGroupID(int id) const noexcept { return ItemById(id); }

    /// Its place, counted from 1; -1 when there is none.
    int GetGroupPosition(int id) const noexcept { return PositionOfId(id); }
};

} // namespace schedules
