#include "host/schedule/Units.h"

#include "host/schedule/NumberText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace schedules::host {

namespace {

enum class Quantity
{
    Length,
    Area,
    Volume,
    Mass,
    Density,
    Speed,
    VolumeFlow,
    MassFlow,
    FlowCoefficient,
    Temperature,
    TemperatureDifference,
    Pressure,
    GaugePressure,
    Power,
    HeatTransferCoefficient,
    FoulingResistance,
    SpecificFanPower
};

/// A value in the unit, times `factor` plus `offset`, is one in the SI unit of the quantity.
struct Unit
{
    std::u16string_view name;
    Quantity quantity;
    double factor;
    double offset = 0;
};

// All of these are exact by definition; the British thermal unit is that of the International Table, the horsepower
// the mechanical one, the gallon that of the United States, and the inch of water the conventional one.
constexpr double kMinute = 60;
constexpr double kHour = 3600;
constexpr double kInch = 0.0254;
constexpr double kFoot = 0.3048;
constexpr double kSquareFoot = kFoot * kFoot;
constexpr double kCubicFoot = kFoot * kFoot * kFoot;
constexpr double kLitre = 1e-3;
constexpr double kGallon = 3.785411784e-3;
constexpr double kPound = 0.45359237;
constexpr double kGravity = 9.80665;
constexpr double kPsi = kPound * kGravity / (kInch * kInch);
constexpr double kBar = 1e5;
constexpr double kInchOfWater = kInch * 1000 * kGravity;
constexpr double kBtu = 1055.05585262;
constexpr double kHorsepower = 550 * kFoot * kPound * kGravity;
constexpr double kFahrenheit = 5.0 / 9;
constexpr double kFahrenheitZero = -32 * kFahrenheit; ///< in °C

/// How many m³/h go through a valve at 1 bar that passes one gallon a minute at 1 psi: flow goes with the square root
/// of the pressure drop.
const double kKvOfCv = kGallon / kMinute * kHour * std::sqrt(kBar / kPsi);

const std::array kUnits{
    Unit{u"m", Quantity::Length, 1},
    Unit{u"mm", Quantity::Length, 1e-3},
    Unit{u"in", Quantity::Length, kInch},
    Unit{u"ft", Quantity::Length, kFoot},
    Unit{u"m²", Quantity::Area, 1},
    Unit{u"ft²", Quantity::Area, kSquareFoot},
    Unit{u"m³", Quantity::Volume, 1},
    Unit{u"l", Quantity::Volume, kLitre},
    Unit{u"gal", Quantity::Volume, kGallon},
    Unit{u"ft³", Quantity::Volume, kCubicFoot},
    Unit{u"kg", Quantity::Mass, 1},
    Unit{u"lb", Quantity::Mass, kPound},
    Unit{u"kg/m³", Quantity::Density, 1},
    Unit{u"lb/ft³", Quantity::Density, kPound / kCubicFoot},
    Unit{u"m/s", Quantity::Speed, 1},
    Unit{u"mm/s", Quantity::Speed, 1e-3},
    Unit{u"ft/s", Quantity::Speed, kFoot},
    Unit{u"in/s", Quantity::Speed, kInch},
    Unit{u"m³/h", Quantity::VolumeFlow, 1 / kHour},
    Unit{u"l/min", Quantity::VolumeFlow, kLitre / kMinute},
    Unit{u"gpm", Quantity::VolumeFlow, kGallon / kMinute},
    Unit{u"cfm", Quantity::VolumeFlow, kCubicFoot / kMinute},
    Unit{u"kg/h", Quantity::MassFlow, 1 / kHour},
    Unit{u"lb/h", Quantity::MassFlow, kPound / kHour},
    Unit{u"m³/h", Quantity::FlowCoefficient, 1},
    Unit{u"gpm/psi½", Quantity::FlowCoefficient, kKvOfCv},
    Unit{u"°C", Quantity::Temperature, 1},
    Unit{u"°F", Quantity::Temperature, kFahrenheit, kFahrenheitZero},
    Unit{u"K", Quantity::TemperatureDifference, 1},
    Unit{u"°F", Quantity::TemperatureDifference, kFahrenheit},
    Unit{u"Pa", Quantity::Pressure, 1},
    Unit{u"kPa", Quantity::Pressure, 1e3},
    Unit{u"bar", Quantity::Pressure, kBar},
    Unit{u"psi", Quantity::Pressure, kPsi},
    Unit{u"in w.g.", Quantity::Pressure, kInchOfWater},
    Unit{u"bar g", Quantity::GaugePressure, kBar},
    Unit{u"psig", Quantity::GaugePressure, kPsi},
    Unit{u"kW", Quantity::Power, 1e3},
    Unit{u"hp", Quantity::Power, kHorsepower},
    Unit{u"MBH", Quantity::Power, 1e3 * kBtu / kHour},
    Unit{u"MMBtu/h", Quantity::Power, 1e6 * kBtu / kHour},
    Unit{u"W/(m²·K)", Quantity::HeatTransferCoefficient, 1},
    Unit{u"Btu/(h·ft²·°F)", Quantity::HeatTransferCoefficient, kBtu / (kHour * kSquareFoot * kFahrenheit)},
    Unit{u"m²·K/kW", Quantity::FoulingResistance, 1e-3},
    Unit{u"h·ft²·°F/Btu", Quantity::FoulingResistance, kHour* kSquareFoot* kFahrenheit / kBtu},
    Unit{u"kW/(m³/s)", Quantity::SpecificFanPower, 1e3},
    Unit{u"W/cfm", Quantity::SpecificFanPower, kMinute / kCubicFoot},
};

bool IsCalled(const Unit& unit, const QString& name)
{
    return name == QStringView(unit.name);
}

/// What keeps a step of the last digit of a number apart from the next one.
int DecimalsFor(const NumberText& number, const UnitConversion& conversion)
{
    constexpr double kSlack = 1e-9; // a step of exactly 0.001 needs three decimals, not four
    const double wanted = number.decimals - std::log10(std::abs(conversion.factor)) - kSlack;
    return static_cast<int>(std::ceil(std::max(wanted, 0.0)));
}

} // namespace

std::optional<UnitConversion> ConversionBetween(const QString& from, const QString& to)
{
    if (from == to)
        return UnitConversion();
    for (const Unit& one : kUnits) {
        const auto other = std::ranges::find_if(
            kUnits, [&](const Unit& unit) { return IsCalled(unit, to) && unit.quantity == one.quantity; });
        if (IsCalled(one, from) && other != kUnits.end())
            return UnitConversion{one.factor / other->factor, (one.offset - other->offset) / other->factor};
    }
    return std::nullopt;
}

QString Converted(const QString& text, const QString& from, const QString& to)
{
    const auto conversion = ConversionBetween(from, to);
    return from == to || !conversion ? text : Converted(text, *conversion);
}

QString Converted(const QString& text, const UnitConversion& conversion)
{
    const auto number = NumberIn(text);
    if (!number)
        return text;
    const double converted = conversion.Forward(number->value);
    return std::isfinite(converted) ? Written(converted, {DecimalsFor(*number, conversion)}) : text;
}

} // namespace schedules::host
