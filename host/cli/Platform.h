#pragma once

namespace schedules::host {

/// Settles, before there is an application, on which platform it runs: offscreen for what needs no window and
/// where there is no display. A platform that the user has named stays. Also makes sure of a locale in UTF-8, and that
/// commands without a window print nothing but their results.
void ChoosePlatform(bool window);

} // namespace schedules::host
