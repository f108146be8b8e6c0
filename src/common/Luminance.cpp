#include "common/Luminance.h"

#include <algorithm>
#include <cmath>

namespace schedules {

namespace {

constexpr double kBlack = 0;
constexpr double kWhite = 1;
constexpr double kFlare = 0.05; ///< light that any screen reflects

double Linear(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

} // namespace

double Luminance(double red, double green, double blue)
{
    return 0.2126 * Linear(red) + 0.7152 * Linear(green) + 0.0722 * Linear(blue);
}

double Contrast(double one, double other)
{
    return (std::max(one, other) + kFlare) / (std::min(one, other) + kFlare);
}

bool IsDark(double luminance)
{
    return Contrast(luminance, kBlack) < Contrast(luminance, kWhite);
}

} // namespace schedules
