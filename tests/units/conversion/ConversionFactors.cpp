#include "CoreTest.h"
#include "ExpectedConversions.h"
#include "TestSeed.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

using Expected::AreSame;
using Expected::Digits;

namespace {

using TFactor = double (*)(float);

/// From nothing to the greatest, with every kind of number that is none.
const std::vector<float>& Arguments()
{
    using TLimits = std::numeric_limits<float>;
    static const std::vector<float> arguments = {0.0f,
                                                 -0.0f,
                                                 1.0f,
                                                 -1.0f,
                                                 0.1f,
                                                 -0.1f,
                                                 123.456f,
                                                 -123.456f,
                                                 16777217.0f,
                                                 32.0f,
                                                 100.0f,
                                                 -40.0f,
                                                 1e-30f,
                                                 -1e-30f,
                                                 3e38f,
                                                 -3e38f,
                                                 TLimits::min(),
                                                 TLimits::denorm_min(),
                                                 -TLimits::denorm_min(),
                                                 1e-40f,
                                                 TLimits::max(),
                                                 TLimits::lowest(),
                                                 TLimits::epsilon(),
                                                 TLimits::infinity(),
                                                 -TLimits::infinity(),
                                                 TLimits::quiet_NaN()};
    return arguments;
}

float FloatOfBits(std::uint32_t bits)
{
    float value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

} // namespace

Q_DECLARE_METATYPE(TFactor)

class ConversionFactors : public QObject
{
    Q_OBJECT

private slots:
    void theResultIsExact_data();
    void theResultIsExact();
    void theResultIsExactForAnyFloat_data() { theResultIsExact_data(); }
    void theResultIsExactForAnyFloat();
    void theResultIsThatOfTheFieldBook_data();
    void theResultIsThatOfTheFieldBook();
    void theFloatOfKilometresPerHourIsTheOneNearest();
    void theArgumentIsNarrowedToAFloat();
    void litresAndMillilitresDifferInTheSixthDigit();
};

void ConversionFactors::theResultIsExact_data()
{
    QTest::addColumn<TFactor>("function");
    QTest::addColumn<QByteArray>("steps");
    for (const Expected::tagFactor& factor : Expected::Factors())
        QTest::newRow(factor.name) << factor.function << QByteArray(factor.steps);
}

void ConversionFactors::theResultIsExact()
{
    QFETCH(TFactor, function);
    QFETCH(QByteArray, steps);
    for (const float argument : Arguments()) {
        const double result = function(argument);
        const double expected = Expected::Evaluate(steps, static_cast<double>(argument));
        QVERIFY2(AreSame(result, expected),
                 Digits(static_cast<double>(argument)) + " gives " + Digits(result) + ", not " + Digits(expected));
    }
}

void ConversionFactors::theResultIsExactForAnyFloat()
{
    QFETCH(TFactor, function);
    QFETCH(QByteArray, steps);
    std::mt19937 bits(TestSeed());
    for (int i = 0; i < 500; ++i) {
        const float argument = FloatOfBits(static_cast<std::uint32_t>(bits()));
        const double result = function(argument);
        const double expected = Expected::Evaluate(steps, static_cast<double>(argument));
        QVERIFY2(AreSame(result, expected),
                 Digits(static_cast<double>(argument)) + " gives " + Digits(result) + ", not " + Digits(expected));
    }
}

// Figures from elsewhere, so that no constant is right only because it stands in both places. The US gallon is the
// coarsest of them: 3.78544 litres for 3.78541.
void ConversionFactors::theResultIsThatOfTheFieldBook_data()
{
    QTest::addColumn<TFactor>("function");
    QTest::addColumn<float>("argument");
    QTest::addColumn<double>("result");

    using U = TUnits;
    const struct
    {
        const char* name;
        TFactor function;
        float argument;
        double result;
    } rows[] = {
        {"a 24 m boom in feet", &U::ConvertMetersToFeet, 24.0f, 78.7402},
        {"a 120 ft boom in metres", &U::ConvertFeetToMeters, 120.0f, 36.576},
        {"30 inch rows in metres", &U::ConvertInchesToMeters, 30.0f, 0.762},
        {"30 inch rows in millimetres", &U::ConvertInchesToMillimeters, 30.0f, 762},
        {"a marathon in miles", &U::ConvertMetersToMiles, 42195.0f, 26.21876},
        {"a mile in metres", &U::ConvertMilesToMeters, 1.0f, 1609.344},
        {"640 acres in hectares", &U::ConvertAcresToHectares, 640.0f, 258.99881},
        {"an acre in square metres and back", &U::ConvertSqMetersToAcres, 4046.8564f, 1},
        {"100 L/ha by the acre", &U::ConvertPerHectareToPerAcre, 100.0f, 40.468564},
        {"8 m/s in km/h", &U::ConvertMetersPerSecondToKilometersPerHour, 8.0f, 28.8},
        {"8 m/s in miles per hour", &U::ConvertMetersPerSecondToMilesPerHour, 8.0f, 17.8954904},
        {"a US gallon", &U::ConvertUSGallonsToLiters, 1.0f, 3.785412},
        {"an English gallon", &U::ConvertEnglishGallonsToLiters, 1.0f, 4.54609},
        {"a litre in US fluid ounces", &U::ConvertLitersToUSFluidOunces, 1.0f, 33.814022},
        {"a litre in English fluid ounces", &U::ConvertLitersToEnglishFluidOunces, 1.0f, 35.19508},
        {"a US bushel", &U::ConvertUSBushelsToLiters, 1.0f, 35.23907},
        {"an English bushel", &U::ConvertUKBushelsToLiters, 1.0f, 36.36872},
        {"a cubic foot", &U::ConvertCubicFeetToLiters, 1.0f, 28.316847},
        {"200 L/ha in US gallons per acre", &U::ConvertLitersPerHectareToUSGallonsPerAcre, 200.0f, 21.38},
        {"200 L/ha in gallons per acre", &U::ConvertLitersPerHectareToEnglishGallonsPerAcre, 200.0f, 17.80373},
        {"10 US gallons per acre", &U::ConvertUSGallonsPerAcreToLitersPerHectare, 10.0f, 93.54536},
        {"1 L/ha in US fluid ounces per acre", &U::ConvertLitersPerHectareToUSFluidOuncesPerAcre, 1.0f, 13.6832},
        {"16 US fluid ounces per acre", &U::ConvertUSFluidOuncesPerAcreToLitersPerHectare, 16.0f, 1.169317},
        {"3 bar in psi", &U::ConvertKilopascalsToPoundsPerSquareInch, 300.0f, 43.512},
        {"3 bar", &U::ConvertKilopascalsToBar, 300.0f, 3},
        {"a tonne in pounds", &U::ConvertTonnesToPounds, 1.0f, 2204.6226},
        {"50 pounds", &U::ConvertPoundsToKilograms, 50.0f, 22.679618},
        {"200 kg/ha in pounds per acre", &U::ConvertKilogramsPerHectareToPoundsPerAcre, 200.0f, 178.4358},
        {"150 pounds per acre", &U::ConvertPoundsPerAcreToKilogramsPerHectare, 150.0f, 168.12767},
        {"water in pounds per US gallon", &U::ConvertKilogramsPerLiterToPoundsPerUSGallon, 1.0f, 8.345469},
        {"water in pounds per gallon", &U::ConvertKilogramsPerLiterToPoundsPerGallon, 1.0f, 10.022413},
        {"water in pounds per cubic foot", &U::ConvertKilogramsPerLiterToPoundsPerCubicFoot, 1.0f, 62.427964},
        {"wheat in pounds per US bushel", &U::ConvertKilogramsPerLiterToPoundsPerUSBushel, 0.772f, 59.976},
        {"80 kiloseeds per hectare by the acre", &U::ConvertKiloseedsPerHectareToKiloseedsPerAcre, 80.0f, 32.37485},
        {"boiling water", &U::ConvertCelsiusToFahrenheit, 100.0f, 212},
        {"a winter's day", &U::ConvertFahrenheitToCelsius, -40.0f, -40},
        {"200 L/ha on 100 m", &U::ConvertLitersPerHectareToLitersPer100Meters, 200.0f, 2},
        {"200 L/ha on 100 yd, US", &U::ConvertLitersPerHectareToUSGallonsPer100Yards, 200.0f, 0.48311445},
        {"200 L/ha on 100 yd, English", &U::ConvertLitersPerHectareToEnglishGallonsPer100Yards, 200.0f, 0.40228},
        {"2 t/ha of liquid in pounds per acre", &U::ConvertLitersPerHectareToPoundsPerAcre, 2000.0f, 1784.3579},
        {"20 m3/ha in cubic feet per acre", &U::ConvertCubicMetersPerHectareToCubicFeetPerAcre, 20.0f, 285.8268},
    };
    for (const auto& row : rows)
        QTest::newRow(row.name) << row.function << row.argument << row.result;
}

void ConversionFactors::theResultIsThatOfTheFieldBook()
{
    QFETCH(TFactor, function);
    QFETCH(float, argument);
    QFETCH(double, result);
    const double difference = std::fabs(function(argument) - result);
    QVERIFY2(difference <= 1e-5 * std::fabs(result), Digits(function(argument)));
}

void ConversionFactors::theFloatOfKilometresPerHourIsTheOneNearest()
{
    QCOMPARE(TUnits::ConvertMetersPerSecondToKilometersPerHour(1.0f), static_cast<double>(3.6f));
    QVERIFY(TUnits::ConvertMetersPerSecondToKilometersPerHour(1.0f) != 3.6);
    QVERIFY(TUnits::ConvertMetersToFeet(1.0f) != 1 / 0.3048);
}

void ConversionFactors::theArgumentIsNarrowedToAFloat()
{
    QVERIFY(AreSame(TUnits::ConvertMetersToCentimeters(static_cast<float>(0.1)), 10.000000149011612));
    QVERIFY(AreSame(TUnits::ConvertMetersToMillimeters(0.1f), 100.00000149011612));
}

void ConversionFactors::litresAndMillilitresDifferInTheSixthDigit()
{
    QVERIFY(TUnits::ConvertLitersToUSFluidOunces(1.0f) != TUnits::ConvertMilliLitersToUSFluidOunces(1000.0f));
    QVERIFY(TUnits::ConvertLitersToEnglishFluidOunces(1.0f) != TUnits::ConvertMilliLitersToEnglishFluidOunces(1000.0f));
}

int main(int argc, char** argv) { return RunCoreTest<ConversionFactors>(argc, argv); }
#include "ConversionFactors.moc"
