#pragma once

#include "model/CElement.h"
#include "model/NamedMembers.h"

namespace schedules {

/// The data items of a group, in the order in which a schedule shows them.
class CElements : public NamedMembers<CElement>
{
public:
    /// Failures are reported to the user, who must outlive it.
    explicit CElements(UserInterface& userInterface, IdCounter ids = IdCounter())
        : NamedMembers(userInterface, "CElements", ids)
    {
    }

    /// The first in order with that number, also when it was written later; nothing when there is none.
    std::shared_ptr<CElement> ItemByElementID(int id) const noexcept { return ItemById(id); }

    /// Its place, counted from 1; -1 when there is none.
    int GetElementPosition(int id) const noexcept { return PositionOfId(id); }
};

} // namespace schedules
