#pragma once

#include "spread/Sheet.h"

namespace schedules {

/// Copies what a sheet shows into another one, headers included: the visible columns from column 0 on become columns
/// 1, 2, ... there, and in each of them the visible rows from row 0 on, in the order in which they are shown, become
/// rows 1, 2, ... Texts, styles, looks, sizes and the font go along.
///
/// The target has that size afterwards and nothing frozen; its own row 0 and column 0 are empty.
void CopyVisible(const Sheet& source, Sheet& target);

} // namespace schedules
