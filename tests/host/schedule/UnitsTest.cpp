#include "host/schedule/Units.h"

#include "host/schedule/NumberText.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>

namespace schedules::host {

namespace {

struct Known
{
    const char* from;
    const char* to;
    double value;
    double converted;
};

// Taken from tables of conversion factors, or by definition.
constexpr std::array kKnown{
    Known{"m³/h", "gpm", 1, 4.402867539},
    Known{"gpm", "l/min", 1, 3.785411784},
    Known{"m³/h", "cfm", 1, 0.5885777786},
    Known{"m³/h", "l/min", 6, 100},
    Known{"ft", "m", 1, 0.3048},
    Known{"mm", "in", 25.4, 1},
    Known{"ft", "in", 1, 12},
    Known{"°C", "°F", 100, 212},
    Known{"°C", "°F", -40, -40},
    Known{"°F", "°C", 32, 0},
    Known{"K", "°F", 10, 18},
    Known{"°F", "K", 18, 10},
    Known{"bar", "psi", 1, 14.50377377},
    Known{"bar g", "psig", 10, 145.0377377},
    Known{"kPa", "psi", 6.894757293168361, 1},
    Known{"bar", "kPa", 1, 100},
    Known{"in w.g.", "Pa", 1, 249.08891},
    Known{"kg", "lb", 0.45359237, 1},
    Known{"kg/h", "lb/h", 100, 220.4622622},
    Known{"kg/m³", "lb/ft³", 1, 0.06242796058},
    Known{"hp", "kW", 1, 0.7456998716},
    Known{"MBH", "kW", 1, 0.2930710702},
    Known{"MMBtu/h", "kW", 1, 293.0710702},
    Known{"MMBtu/h", "MBH", 1, 1000},
    Known{"m/s", "ft/s", 1, 3.280839895},
    Known{"mm/s", "in/s", 25.4, 1},
    Known{"m²", "ft²", 1, 10.76391042},
    Known{"Btu/(h·ft²·°F)", "W/(m²·K)", 1, 5.678263341},
    Known{"h·ft²·°F/Btu", "m²·K/kW", 1, 176.1101837},
    Known{"kW/(m³/s)", "W/cfm", 1, 0.4719474432},
    Known{"gpm/psi½", "m³/h", 1, 0.8649777},
    Known{"m³/h", "gpm/psi½", 1, 1.1560992},
    Known{"gal", "l", 1, 3.785411784},
    Known{"m³", "ft³", 1, 35.31466672},
};

std::string Shown(const char* text, const char* from, const char* to)
{
    return Converted(QString::fromUtf8(text), QString::fromUtf8(from), QString::fromUtf8(to)).toStdString();
}

/// The text converted, and back, with the digits that it has.
std::string ThereAndBack(const QString& text, const QString& from, const QString& to)
{
    const auto there = NumberIn(Converted(text, from, to));
    const double back = ConversionBetween(from, to)->Backward(there.value().value);
    return Written(back, {NumberIn(text)->decimals}).toStdString();
}

} // namespace

TEST(Units, ConvertByTheKnownFactors)
{
    for (const Known& known : kKnown) {
        const auto conversion = ConversionBetween(QString::fromUtf8(known.from), QString::fromUtf8(known.to));
        ASSERT_TRUE(conversion) << known.from << " to " << known.to;
        const double tolerance = std::abs(known.converted) * 2e-7;
        EXPECT_NEAR(conversion->Forward(known.value), known.converted, tolerance) << known.from << " to " << known.to;
        EXPECT_NEAR(conversion->Backward(known.converted), known.value, std::abs(known.value) * 2e-7) << known.from;
    }
}

TEST(Units, TheWayBackIsTheSameConversion)
{
    for (const Known& known : kKnown) {
        const auto back = ConversionBetween(QString::fromUtf8(known.to), QString::fromUtf8(known.from));
        ASSERT_TRUE(back) << known.to << " to " << known.from;
        EXPECT_NEAR(back->Forward(known.converted), known.value, std::abs(known.value) * 2e-7) << known.to;
    }
}

TEST(Units, WhatDoesNotMeasureTheSameHasNoConversion)
{
    const QList<QPair<QString, QString>> kPairs{{"m³/h", "kg/h"}, {"bar", "bar g"},   {"bar g", "psi"}, {"K", "°C"},
                                                {"EUR", "USD"},   {"in", "DN"},       {"", "m"},        {"m", ""},
                                                {"M", "ft"},      {"gpm", "gpm/psi½"}};
    for (const auto& [from, to] : kPairs)
        EXPECT_FALSE(ConversionBetween(from, to)) << qPrintable(from + " to " + to);
}

TEST(Units, EveryUnitIsTheSameAsItself)
{
    for (const QString& unit : {QStringLiteral("rpm"), QStringLiteral("°F"), QString()}) {
        const auto conversion = ConversionBetween(unit, unit);
        ASSERT_TRUE(conversion);
        EXPECT_EQ(conversion->Forward(12.5), 12.5);
    }
}

TEST(Converted, KeepsThePrecisionOfTheValue)
{
    EXPECT_EQ(Shown("412.0", "m³/h", "gpm"), "1814.0");
    EXPECT_EQ(Shown("412", "m³/h", "gpm"), "1814");
    EXPECT_EQ(Shown("1814", "gpm", "m³/h"), "412.0");
    EXPECT_EQ(Shown("100", "°C", "°F"), "212");
    EXPECT_EQ(Shown("36.6", "°C", "°F"), "97.9");
    EXPECT_EQ(Shown("412", "mm", "m"), "0.412");
    EXPECT_EQ(Shown("0.412", "m", "mm"), "412");
    EXPECT_EQ(Shown("0.00017", "h·ft²·°F/Btu", "m²·K/kW"), "0.030");
    EXPECT_EQ(Shown("-40", "°C", "°F"), "-40");
    EXPECT_EQ(Shown("1.5E+06", "Pa", "bar"), "15");
}

TEST(Converted, OtherTextsStayAsTheyAre)
{
    EXPECT_EQ(Shown("about 400", "m³/h", "gpm"), "about 400");
    EXPECT_EQ(Shown("", "m³/h", "gpm"), "");
    EXPECT_EQ(Shown("12.50", "EUR", "USD"), "12.50");
    EXPECT_EQ(Shown(" 12.50", "m", "m"), " 12.50");
    EXPECT_EQ(Shown("1e308", "bar", "Pa"), "1e308") << "no number that could be written";
}

TEST(Converted, TheWayBackRestoresTheDigitsThatTheValueHad)
{
    for (const Known& known : kKnown) {
        const QString from = QString::fromUtf8(known.from);
        const QString to = QString::fromUtf8(known.to);
        for (const int decimals : {0, 1, 2, 3, 4}) {
            for (int step = -500; step <= 5000; step += 37) {
                const QString text = Written(step / std::pow(10, decimals), {decimals});
                ASSERT_EQ(ThereAndBack(text, from, to), text.toStdString()) << known.from << " to " << known.to;
            }
        }
    }
}

TEST(Converted, HasNoMoreDigitsThanThePrecisionAsksFor)
{
    for (const Known& known : kKnown) {
        const QString from = QString::fromUtf8(known.from);
        const QString to = QString::fromUtf8(known.to);
        const auto number = NumberIn(Converted(QStringLiteral("411.5"), from, to));
        ASSERT_TRUE(number);
        const double stepBefore = 0.1 * ConversionBetween(from, to)->factor;
        EXPECT_TRUE(number->decimals == 0 || std::pow(10, -number->decimals) > stepBefore / 10.01)
            << known.from << " to " << known.to;
    }
}

} // namespace schedules::host
