#include "SamplePlant.h"

#include <cmath>
#include <utility>

namespace schedules::host::testing {

namespace {

class Plausible : public SampleProject
{
protected:
    /// What a tag's items are as numbers: `pump("Design/Head")`.
    class Numbers
    {
    public:
        Numbers(const QString& category, const QString& tag) : m_category(category), m_tag(tag) {}
        double operator()(const char* place) const { return Number(m_tag, m_category + '/' + place); }

    private:
        QString m_category;
        QString m_tag;
    };

    /// Calls `check` with the numbers of each tag that has all of these items.
    template <typename Check>
    static void ForEach(const QString& category, std::initializer_list<const char*> places, Check check)
    {
        QStringList locations;
        for (const char* place : places)
            locations << category + '/' + place;
        const QStringList tags = Plant().TagsWith(category, locations);
        EXPECT_GE(tags.size(), 6) << qPrintable(locations.join(' '));
        for (const QString& tag : tags) {
            SCOPED_TRACE(tag.toStdString());
            check(Numbers(category, tag));
        }
    }
};

} // namespace

TEST_F(Plausible, PumpsRaiseThePressureByTheirHead)
{
    ForEach("PUMPS", {"Design/Head", "Design/Density"}, [](const Numbers& pump) {
        const double rise = pump("Design/Density") * 9.81 * pump("Design/Head") / 1e5;
        EXPECT_NEAR(pump("Design/DischargePressure") - pump("Design/SuctionPressure"), rise, 0.02 * rise + 0.1);
    });
}

TEST_F(Plausible, MotorsOfPumpsHaveAMarginOverTheShaftPower)
{
    ForEach("PUMPS", {"Performance/Efficiency"}, [](const Numbers& pump) {
        const double hydraulic =
            pump("Design/Flow") / 3600 * pump("Design/Head") * pump("Design/Density") * 9.81 / 1000;
        const double shaft = hydraulic / pump("Performance/Efficiency") * 100;
        EXPECT_GT(pump("Motor/RatedPower"), 1.1 * shaft);
        EXPECT_LT(pump("Motor/RatedPower"), 1.6 * shaft);
    });
}

TEST_F(Plausible, PumpsHaveAMarginOfSuctionHead)
{
    ForEach("PUMPS", {"Performance/NPSHr"}, [](const Numbers& pump) {
        EXPECT_GE(pump("Design/NPSHa") - pump("Performance/NPSHr"), 0.5);
        EXPECT_GT(pump("Performance/ShutoffHead"), pump("Design/Head"));
        EXPECT_GT(pump("Performance/MaximumImpeller"), pump("Performance/RatedImpeller"));
        EXPECT_LT(pump("Performance/MinimumFlow"), pump("Design/Flow"));
    });
}

TEST_F(Plausible, MotorsOfFansHaveAMarginOverTheShaftPower)
{
    ForEach("AIRHANDLING", {"FanDuty/Flow", "FanDrive/MotorPower"}, [](const Numbers& fan) {
        const double air = fan("FanDuty/Flow") / 3600 * fan("FanDuty/TotalPressure") / 1000;
        const double shaft = fan("FanDrive/ShaftPower");
        EXPECT_NEAR(air / shaft, fan("FanDuty/Efficiency") / 100, 0.06);
        EXPECT_GT(fan("FanDrive/MotorPower"), 1.05 * shaft);
        EXPECT_GT(fan("FanDuty/TotalPressure"), fan("FanDuty/StaticPressure"));
    });
}

TEST_F(Plausible, ExchangersHaveTheMeanTemperatureDifferenceOfTheirTemperatures)
{
    ForEach("HEATEXCHANGERS", {"ShellSide/ShellInlet", "TubeSide/TubeInlet"}, [](const Numbers& exchanger) {
        const bool hotShell = exchanger("ShellSide/ShellInlet") > exchanger("TubeSide/TubeInlet");
        const char* hot[] = {"ShellSide/ShellInlet", "ShellSide/ShellOutlet"};
        const char* cold[] = {"TubeSide/TubeInlet", "TubeSide/TubeOutlet"};
        if (!hotShell)
            std::swap(hot, cold);
        const double one = exchanger(hot[0]) - exchanger(cold[1]);
        const double other = exchanger(hot[1]) - exchanger(cold[0]);
        ASSERT_GT(std::min(one, other), 3);
        const double mean = std::abs(one - other) < 0.01 ? one : (one - other) / std::log(one / other);
        EXPECT_NEAR(exchanger("Duty/LMTD"), mean, 0.15);
    });
}

TEST_F(Plausible, ExchangersHaveTheAreaThatTheirDutyTakes)
{
    ForEach("HEATEXCHANGERS", {"Duty/Duty"}, [](const Numbers& exchanger) {
        const double able = exchanger("Duty/Area") * exchanger("Duty/ServiceCoefficient") *
                            exchanger("Duty/CorrectionFactor") * exchanger("Duty/LMTD") / 1000;
        const double wanted = exchanger("Duty/Duty") * (1 + exchanger("Duty/Overdesign") / 100);
        EXPECT_NEAR(able / wanted, 1, 0.02);
        EXPECT_GT(exchanger("Duty/CleanCoefficient"), exchanger("Duty/ServiceCoefficient"));
        EXPECT_GT(exchanger("Duty/Overdesign"), 5);
        EXPECT_LT(exchanger("Duty/Overdesign"), 20);
    });
}

TEST_F(Plausible, BothSidesOfAnExchangerCarryItsDuty)
{
    QHash<QString, double> heats;
    const QString category = QStringLiteral("HEATEXCHANGERS");
    for (const QString& tag : Plant().TagsWith(category, {category + "/ShellSide/ShellFlow"})) {
        const Numbers exchanger(category, tag);
        for (const QString& side : {QStringLiteral("Shell"), QStringLiteral("Tube")}) {
            const auto number = [&](const char* item) {
                return exchanger(qPrintable(QStringLiteral("%1Side/%1%2").arg(side, QLatin1String(item))));
            };
            const QString fluid = Plant().Text(tag, QStringLiteral("%1/%2Side/%2Fluid").arg(category, side));
            const double difference = std::abs(number("Inlet") - number("Outlet"));
            const double perKilogram = exchanger("Duty/Duty") * 3600 / number("Flow");
            const double heat = difference > 0 ? perKilogram / difference : perKilogram;
            const double same = heats.value(fluid, heat);
            EXPECT_NEAR(heat / same, 1, 0.02) << qPrintable(tag + ' ' + fluid);
            heats.insert(fluid, same);
        }
    }
    EXPECT_NEAR(heats.value("Cooling water"), 4.18, 0.05);
    EXPECT_NEAR(heats.value("Crude oil"), 2.2, 0.05);
}

TEST_F(Plausible, TubesAreNeitherTooFastNorTooSlow)
{
    ForEach("HEATEXCHANGERS", {"Construction/TubeCount", "TubeSide/TubeVelocity"}, [](const Numbers& exchanger) {
        EXPECT_GT(exchanger("TubeSide/TubeVelocity"), 0.7);
        EXPECT_LT(exchanger("TubeSide/TubeVelocity"), 10);
        EXPECT_LT(exchanger("TubeSide/TubePressureDrop"), 130);
        EXPECT_GT(exchanger("TubeSide/TubeDesignPressure"), exchanger("TubeSide/TubePressure"));
        EXPECT_GT(exchanger("ShellSide/ShellDesignPressure"), exchanger("ShellSide/ShellPressure"));
    });
}

TEST_F(Plausible, RangesOfTransmittersHoldTheOperatingValueAndTheAlarms)
{
    ForEach("INSTRUMENTS", {"Range/UpperRange", "Range/Operating"}, [](const Numbers& transmitter) {
        EXPECT_LT(transmitter("Range/LowerRange"), transmitter("Range/Operating"));
        EXPECT_LT(transmitter("Range/Operating"), transmitter("Range/UpperRange"));
        EXPECT_LE(transmitter("Range/UpperRange"), transmitter("Range/UpperLimit"));
        EXPECT_LE(transmitter("Range/LowerLimit"), transmitter("Range/LowerRange"));
    });
    ForEach("INSTRUMENTS", {"Alarms/LowLow", "Alarms/HighHigh"}, [](const Numbers& transmitter) {
        EXPECT_LT(transmitter("Alarms/LowLow"), transmitter("Alarms/Low"));
        EXPECT_LT(transmitter("Alarms/Low"), transmitter("Range/Operating"));
        EXPECT_LT(transmitter("Range/Operating"), transmitter("Alarms/High"));
        EXPECT_LT(transmitter("Alarms/High"), transmitter("Alarms/HighHigh"));
        EXPECT_LT(transmitter("Alarms/HighHigh"), transmitter("Range/UpperRange"));
    });
}

TEST_F(Plausible, SafetyFunctionsFailAsSeldomAsTheirLevelWants)
{
    ForEach("INSTRUMENTS", {"Safety/SIL", "Safety/PFD"}, [](const Numbers& loop) {
        const double level = loop("Safety/SIL");
        EXPECT_LE(loop("Safety/PFD"), 1.1 * std::pow(10, -level));
        EXPECT_GE(loop("Safety/PFD"), std::pow(10, -level - 1));
    });
}

TEST_F(Plausible, ValvesHaveRoomOverTheFlowThatTheyNeed)
{
    ForEach("CONTROLVALVES", {"Sizing/FlowCoefficient", "Sizing/RatedCoefficient"}, [](const Numbers& valve) {
        EXPECT_GT(valve("Sizing/RatedCoefficient"), valve("Sizing/FlowCoefficient"));
        EXPECT_GT(valve("Sizing/FlowMax"), valve("Sizing/FlowMin"));
        EXPECT_GT(valve("Sizing/InletPressure"), valve("Sizing/PressureDrop"));
        EXPECT_LE(valve("Trim/SeatDiameter"), valve("Body/Size"));
    });
}

TEST_F(Plausible, VesselsWeighMoreTheFullerTheyAre)
{
    ForEach("GENERAL", {"Size/TestWeight"}, [](const Numbers& vessel) {
        EXPECT_LE(vessel("Size/EmptyWeight"), vessel("Size/OperatingWeight"));
        EXPECT_LT(vessel("Size/EmptyWeight"), vessel("Size/TestWeight"));
        EXPECT_LE(vessel("Size/OperatingWeight"), 1.01 * vessel("Size/TestWeight"));
    });
    ForEach("GENERAL", {"Power/Supply"},
            [](const Numbers& machine) { EXPECT_LT(machine("Power/AbsorbedPower"), machine("Power/InstalledPower")); });
}

} // namespace schedules::host::testing
