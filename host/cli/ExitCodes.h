#pragma once

namespace schedules::host {

// What a command returns. Each needs an application, and throws `HostError` when it cannot do what it was asked; the
// program returns `kFailed` then.

inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;
inline constexpr int kWrongUsage = 2;
inline constexpr int kInConflict = 3;

} // namespace schedules::host
