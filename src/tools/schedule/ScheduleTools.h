#pragma once

#include <vector>

namespace schedules {

/// A tool that the view itself puts into its tool bar.
struct ScheduleTool
{
    const char* key;
    const char* caption; ///< the same in every language
    int image;           ///< number in the view's list of images
    int tooltip;         ///< number of the localised text
};

/// The tools of a view type, in the order in which they are added; none for a type that is neither of the two.
/// `printsSelections` says whether the selector view has Print.
std::vector<ScheduleTool> ScheduleToolsOf(int viewType, bool printsSelections);

} // namespace schedules
