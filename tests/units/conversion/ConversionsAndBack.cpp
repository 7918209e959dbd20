#include "CoreTest.h"
#include "ExpectedConversions.h"
#include "TestHost.h"

#include <QHash>

#include <cmath>

using Expected::Digits;
using Expected::Unit;

namespace {

using TFactor = double (*)(float);

/// By name, since it is the names that promise to undo each other.
struct tagPair
{
    const char* there;
    const char* back;
};

// clang-format off
const tagPair Pairs[] = {
    {"ConvertMillimetersToInches", "ConvertInchesToMillimeters"},
    {"ConvertMetersToMillimeters", "ConvertMillimetersToMeters"},
    {"ConvertMetersToCentimeters", "ConvertCentimetersToMeters"},
    {"ConvertMetersToFeet", "ConvertFeetToMeters"},
    {"ConvertMetersToInches", "ConvertInchesToMeters"},
    {"ConvertMetersToMiles", "ConvertMilesToMeters"},
    {"ConvertKilometersToMiles", "ConvertMilesToKilometers"},
    {"ConvertKilometersPerHourToMilesPerHour", "ConvertMilesPerHourToKilometersPerHour"},
    {"ConvertHectaresToAcres", "ConvertAcresToHectares"},
    {"ConvertPerAcreToPerHectare", "ConvertPerHectareToPerAcre"},
    {"ConvertSqMetersToHectares", "ConvertHectaresToSqMeters"},
    {"ConvertLitersToMilliLiters", "ConvertMilliLitersToLiters"},
    {"ConvertPerMilliLiterToPerLiter", "ConvertPerLiterToPerMilliLiter"},
    {"ConvertCubicMetersToLiters", "ConvertLitersToCubicMeters"},
    {"ConvertTonnesToLiters", "ConvertLitersToTonnes"},
    {"ConvertPulsesPerLiterToPulsesPerCubicMeter", "ConvertPulsesPerCubicMeterToPulsesPerLiter"},
    {"ConvertPulsesPerLiterToPulsesPerTonne", "ConvertPulsesPerTonneToPulsesPerLiter"},
    {"ConvertKilogramsPerLiterToKilogramsPerCubicMeter", "ConvertKilogramsPerCubicMeterToKilogramsPerLiter"},
    {"ConvertLitersToCubicFeet", "ConvertCubicFeetToLiters"},
    {"ConvertCubicMetersToCubicFeet", "ConvertCubicFeetToCubicMeters"},
    {"ConvertPulsesPerCubicFootToPulsesPerCubicMeter", "ConvertPulsesPerCubicMeterToPulsesPerCubicFeet"},
    {"ConvertUSBushelsToLiters", "ConvertLitersToUSBushels"},
    {"ConvertKilogramsPerLiterToKilogramsPerUSBushel", "ConvertKilogramsPerUSBushelToKilogramsPerLiter"},
    {"ConvertUKBushelsToLiters", "ConvertLitersToUKBushels"},
    {"ConvertKilogramsPerLiterToKilogramsPerUKBushel", "ConvertKilogramsPerUKBushelToKilogramsPerLiter"},
    {"ConvertLitersToUSGallons", "ConvertUSGallonsToLiters"},
    {"ConvertPulsesPerUSGallonToPulsesPerLiter", "ConvertPulsesPerLiterToPulsesPerUSGallon"},
    {"ConvertLitersToEnglishGallons", "ConvertEnglishGallonsToLiters"},
    {"ConvertPulsesPerEnglishGallonToPulsesPerLiter", "ConvertPulsesPerLiterToPulsesPerEnglishGallon"},
    {"ConvertLitersToUSFluidOunces", "ConvertUSFluidOuncesToLiters"},
    {"ConvertPerUSFluidOunceToPerLiter", "ConvertPerLiterToPerUSFluidOunce"},
    {"ConvertMilliLitersToUSFluidOunces", "ConvertUSFluidOuncesToMilliLiters"},
    {"ConvertPerUSFluidOunceToPerMilliLiter", "ConvertPerMilliLiterToPerUSFluidOunce"},
    {"ConvertLitersToEnglishFluidOunces", "ConvertEnglishFluidOuncesToLiters"},
    {"ConvertPerEnglishFluidOunceToPerLiter", "ConvertPerLiterToPerEnglishFluidOunce"},
    {"ConvertMilliLitersToEnglishFluidOunces", "ConvertEnglishFluidOuncesToMilliLiters"},
    {"ConvertPerEnglishFluidOunceToPerMilliLiter", "ConvertPerMilliLiterToPerEnglishFluidOunce"},
    {"ConvertLitersPerHectareToUSGallonsPerAcre", "ConvertUSGallonsPerAcreToLitersPerHectare"},
    {"ConvertLitersPerHectareToEnglishGallonsPerAcre", "ConvertEnglishGallonsPerAcreToLitersPerHectare"},
    {"ConvertMilliLitersPerHectareToUSFluidOuncesPerAcre", "ConvertUSFluidOuncesPerAcreToMilliLitersPerHectare"},
    {"ConvertMilliLitersPerHectareToEnglishFluidOuncesPerAcre", "ConvertEnglishFluidOuncesPerAcreToMilliLitersPerHectare"},
    {"ConvertLitersPerHectareToUSFluidOuncesPerAcre", "ConvertUSFluidOuncesPerAcreToLitersPerHectare"},
    {"ConvertLitersPerHectareToEnglishFluidOuncesPerAcre", "ConvertEnglishFluidOuncesPerAcreToLitersPerHectare"},
    {"ConvertKilopascalsToPoundsPerSquareInch", "ConvertPoundsPerSquareInchToKilopascals"},
    {"ConvertKilopascalsToBar", "ConvertBarToKilopascals"},
    {"ConvertPulsesPerTonneToPulsesPerPound", "ConvertPulsesPerPoundToPulsesPerTonne"},
    {"ConvertPulsesPerKPHToPulsesPerMPH", "ConvertPulsesPerMPHToPulsesPerKPH"},
    {"ConvertKilogramsToPounds", "ConvertPoundsToKilograms"},
    {"ConvertTonnesToPounds", "ConvertPoundsToTonnes"},
    {"ConvertKilogramsPerHectareToPoundsPerAcre", "ConvertPoundsPerAcreToKilogramsPerHectare"},
    {"ConvertKilogramsPerLiterToPoundsPerGallon", "ConvertPoundsPerGallonToKilogramsPerLiter"},
    {"ConvertKilogramsPerLiterToPoundsPerUSGallon", "ConvertPoundsPerUSGallonToKilogramsPerLiter"},
    {"ConvertKilogramsPerCubicMeterToPoundsPerCubicFoot", "ConvertPoundsPerCubicFootToKilogramsPerCubicMeter"},
    {"ConvertKiloseedsPerHectareToKiloseedsPerAcre", "ConvertKiloseedsPerAcreToKiloseedsPerHectare"},
    {"ConvertCelsiusToFahrenheit", "ConvertFahrenheitToCelsius"},
    {"ConvertLitersToPounds", "ConvertPoundsToLiters"},
    {"ConvertLitersPerHectareToCubicMetersPerHectare", "ConvertCubicMetersPerHectareToLitersPerHectare"},
    {"ConvertLitersPerHectareToTonnesPerHectare", "ConvertTonnesPerHectareToLitersPerHectare"},
    {"ConvertCubicMetersPerHectareToCubicFeetPerAcre", "ConvertCubicFeetPerAcreToCubicMetersPerHectare"},
    {"ConvertLitersPerHectareToCubicFeetPerAcre", "ConvertCubicFeetPerAcreToLitersPerHectare"},
    {"ConvertTonnesPerHectareToPoundsPerAcre", "ConvertPoundsPerAcreToTonnesPerHectare"},
    {"ConvertLitersPerHectareToMilliLitersPerAcre", "ConvertMilliLitersPerAcreToLitersPerHectare"},
    {"ConvertLitersPerHectareToCubicMetersPerAcre", "ConvertCubicMetersPerAcreToLitersPerHectare"},
    {"ConvertLitersPerHectareToTonnesPerAcre", "ConvertTonnesPerAcreToLitersPerHectare"},
    {"ConvertLitersPerHectareToLitersPer100Meters", "ConvertLitersPer100MetersToLitersPerHectare"},
    {"ConvertLitersPerHectareToEnglishGallonsPer100Yards", "ConvertEnglishGallonsPer100YardsToLitersPerHectare"},
    {"ConvertLitersPerHectareToUSGallonsPer100Yards", "ConvertUSGallonsPer100YardsToLitersPerHectare"},
};

/// There is no function back.
const char* const OneWay[] = {
    "ConvertMetersToKilometers",
    "ConvertSqMetersToAcres",
    "ConvertMetersPerSecondToKilometersPerHour",
    "ConvertMetersPerSecondToMilesPerHour",
    "ConvertPerUSGallonToPerLiter",
    "ConvertPerEnglishGallonToPerLiter",
    "ConvertKilogramsPerLiterToPoundsPerCubicFoot",
    "ConvertKilogramsPerLiterToPoundsPerUSBushel",
    "ConvertKilogramsPerLiterToPoundsPerUKBushel",
    "ConvertLitersPerHectareToPoundsPerAcre",
};
// clang-format on

TFactor FunctionOf(const QByteArray& name)
{
    for (const Expected::tagFactor& factor : Expected::Factors()) {
        if (name == factor.name)
            return factor.function;
    }
    qFatal("no factor function %s", name.constData());
    return nullptr;
}

/// Two roundings to a float and constants of eight digits, some of them chosen apart for each way.
const double Tolerance = 2.5e-7;

bool IsBack(double value, double back) { return std::fabs(back - value) <= Tolerance * std::fabs(value); }

} // namespace

class ConversionsAndBack : public QObject
{
    Q_OBJECT

private slots:
    void everyFactorFunctionIsPairedOrOneWay();
    void aFactorFunctionIsUndoneByItsPartner_data();
    void aFactorFunctionIsUndoneByItsPartner();
    void aUnitConvertsToItsHubAndBack_data();
    void aUnitConvertsToItsHubAndBack();
};

void ConversionsAndBack::everyFactorFunctionIsPairedOrOneWay()
{
    QHash<QByteArray, int> mentions;
    for (const tagPair& pair : Pairs) {
        ++mentions[pair.there];
        ++mentions[pair.back];
    }
    for (const char* const name : OneWay)
        ++mentions[name];
    for (const Expected::tagFactor& factor : Expected::Factors())
        QVERIFY2(mentions.take(factor.name) == 1, factor.name);
    QVERIFY(mentions.isEmpty());
}

void ConversionsAndBack::aFactorFunctionIsUndoneByItsPartner_data()
{
    QTest::addColumn<QByteArray>("there");
    QTest::addColumn<QByteArray>("back");
    for (const tagPair& pair : Pairs) {
        QTest::newRow(pair.there) << QByteArray(pair.there) << QByteArray(pair.back);
        QTest::newRow(pair.back) << QByteArray(pair.back) << QByteArray(pair.there);
    }
}

void ConversionsAndBack::aFactorFunctionIsUndoneByItsPartner()
{
    QFETCH(QByteArray, there);
    QFETCH(QByteArray, back);
    const bool isTemperature = there.contains("Celsius"); // near the zero of a scale digits are lost
    for (const float value : {0.001f, 0.1f, 1.0f, 12.5f, 123.456f, 9999.0f, 1e6f, -7.25f}) {
        const double once = FunctionOf(there)(value);
        const double twice = FunctionOf(back)(static_cast<float>(once));
        const bool isBack = isTemperature ? qAbs(twice - static_cast<double>(value)) <= 1e-5 + 1e-7 * qAbs(once)
                                          : IsBack(static_cast<double>(value), twice);
        QVERIFY2(isBack, Digits(static_cast<double>(value)) + " comes back as " + Digits(twice));
    }
}

void ConversionsAndBack::aUnitConvertsToItsHubAndBack_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("measures");
    for (int unit = 0; unit < 115; ++unit) {
        for (int measures = 0; measures < 4; ++measures)
            QTest::newRow(QByteArray::number(unit) + ", " + Expected::AllMeasures[measures].name) << unit << measures;
    }
}

void ConversionsAndBack::aUnitConvertsToItsHubAndBack()
{
    QFETCH(int, unit);
    QFETCH(int, measures);
    TTestStore store;
    store.values[8953] = Expected::AllMeasures[measures].metric;
    store.values[8954] = Expected::AllMeasures[measures].us;
    for (int other = 0; other < 115; ++other) {
        QCOMPARE(TUnits::CanConvert(Unit(unit), Unit(other)), TUnits::CanConvert(Unit(other), Unit(unit)));
        for (const double value : {0.001, 1.0, 123.456, -7.25, 5e6}) {
            const double there = TUnits::ConvertUnit(value, Unit(unit), Unit(other));
            const double back = TUnits::ConvertUnit(there, Unit(other), Unit(unit));
            QVERIFY2(IsBack(value, back),
                     Digits(value) + " by " + QByteArray::number(other) + " comes back as " + Digits(back));
        }
    }
}

int main(int argc, char** argv) { return RunCoreTest<ConversionsAndBack>(argc, argv); }
#include "ConversionsAndBack.moc"
