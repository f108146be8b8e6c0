#pragma once

namespace schedules {

/// How bright a colour looks, from 0 for black to 1 for white: the relative luminance of WCAG 2. Its parts are those of
/// sRGB, from 0 to 1.
double Luminance(double red, double green, double blue);

/// How well two colours of these luminances can be told apart, from 1 to 21: the contrast ratio of WCAG 2.
double Contrast(double one, double other);

/// Whether white text is easier to read on a ground of this luminance than black text.
bool IsDark(double luminance);

} // namespace schedules
