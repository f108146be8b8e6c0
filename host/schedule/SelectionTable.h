#pragma once

#include "host/schedule/ScheduleBuilder.h"

namespace schedules::host {

/// What stands before the rows of a selection that no item makes.
struct SelectionCaptions
{
    QString number;
    QString tag;
    QString select;
};

/// The table of a selector view: tags one beside the other, a check box for each, and below them what `content` knows,
/// in the units in which it is stored. What the user may tick are these check boxes alone: an item of this type is
/// shown as a mark.
QString SelectionXml(const SelectionCaptions& captions, const ScheduleContent& content);

} // namespace schedules::host
