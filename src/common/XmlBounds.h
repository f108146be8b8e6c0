#pragma once

#include <string_view>

namespace schedules {

/// Whether every tag keeps within the bounds on its attributes and its length. Looked at before parsing, since the
/// parser compares all attributes of a tag with each other before it tells of any.
bool WithinTagBounds(std::string_view xml);

} // namespace schedules
