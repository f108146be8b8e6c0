#pragma once

#include "framework/IScheduleView.h"

#include <QString>

#include <vector>

namespace schedules {

struct ViewSettings;

/// A tool that the view itself puts into its tool bar.
struct ViewTool
{
    ViewCommand command;
    const char* key;
    const char* caption; ///< the same in every language
    int image;           ///< as `ImageFile` counts
    int tooltip;         ///< number of the localised text
};

/// What the tool of that key does, in whatever type of view; none for a key of no tool of the view's own.
std::optional<ViewCommand> CommandOfKey(const QString& key);

/// The tools of a view type, in the order in which they are added; none for a type that is neither of the two.
std::vector<ViewTool> ViewToolsOf(const ViewSettings& settings);

/// The drawing of a number in the view's list of images: 1 Print, 2 Export, 3 Customize, 4 Help, 5 Transpose, 6 Save.
/// Empty for 0 and for every other number.
QString ImageFile(int image);

} // namespace schedules
