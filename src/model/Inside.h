#pragma once

namespace schedules {

/// Some members of the model are read by everybody and written inside of the component alone. Writing them asks for one
/// of these, and this header is not among those for hosts.
class Inside
{
public:
    explicit constexpr Inside() = default;
};

} // namespace schedules
