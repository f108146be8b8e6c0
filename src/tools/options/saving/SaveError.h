#pragma once

#include "common/Error.h"
#include "common/StringNumbers.h"
#include "common/modResource.h"

namespace schedules {

/// The number of the errors that end the saving or deleting of a template.
inline constexpr int kSaveError = static_cast<int>(0x80047FFFU);

/// Such an error with a localised text.
inline Error SaveError(StringNumber text)
{
    return Error(kSaveError, LoadResString(text));
}

} // namespace schedules
