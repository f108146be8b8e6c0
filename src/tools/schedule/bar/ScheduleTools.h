#pragma once

#include <QString>

#include <vector>

namespace schedules {

/// A tool that the view itself puts into its tool bar.
struct ScheduleTool
{
    const char* key;
    const char* caption; ///< the same in every language
    int image;           ///< as `ImageFile` counts
    int tooltip;         ///< number of the localised text
};

/// Whether a key is that of one of the view's own tools, in whatever type of view.
bool IsScheduleTool(const QString& key);

/// The tools of a view type, in the order in which they are added; none for a type that is neither of the two.
/// `printsSelections` says whether the selector view has Print.
std::vector<ScheduleTool> ScheduleToolsOf(int viewType, bool printsSelections);

/// The drawing of a number in the view's list of images: 1 Print, 2 Export, 3 Customize, 4 Help, 5 Transpose, 6 Save.
/// Empty for 0 and for every other number.
QString ImageFile(int image);

} // namespace schedules
