#pragma once

#include <QColor>
#include <QPalette>

#include <cstdint>

namespace schedules {

/// The color of a sheet's color number: 0x00BBGGRR, or, with the top bit set, the number of a system color, which
/// follows the palette. A system color that does not exist is the palette's base.
QColor ColorOf(std::uint32_t number, const QPalette& palette);

/// How well two colors stand out from each other, from 1 (not at all) to 21, as accessibility guidelines compute it.
double Contrast(const QColor& one, const QColor& other);

/// What text needs at least to be read with ease.
inline constexpr double kLegibleContrast = 4.5;

/// What a mark needs to be seen.
inline constexpr double kMarkContrast = 3;

/// The preferred color if it has that contrast to the background, else black or white.
QColor LegibleOn(const QColor& background, const QColor& preferred, double contrast = kLegibleContrast);

/// `top` laid over `bottom`; a share of 0 leaves the bottom, 1 the top.
QColor Blend(const QColor& bottom, const QColor& top, double share);

} // namespace schedules
