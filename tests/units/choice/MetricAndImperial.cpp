#include "CoreTest.h"
#include "ExpectedConversions.h"
#include "TestHost.h"

#include <limits>

using Expected::AreSame;
using Expected::Digits;
using Expected::Unit;
using Expected::UnitNumbers;

namespace {

const double Values[] = {0.0,
                         -0.0,
                         1.0,
                         -17.5,
                         0.1,
                         123.456,
                         1.0 / 3.0,
                         1e300,
                         std::numeric_limits<double>::infinity(),
                         std::numeric_limits<double>::quiet_NaN()};

struct tagNormalised
{
    int unit;
    const char* in;
    const char* out;
};

const tagNormalised NormalisedRows[] = {
    {4, "ConvertMillimetersToMeters", "ConvertMetersToMillimeters"},
    {21, "ConvertMilliLitersToLiters", "ConvertLitersToMilliLiters"},
    {51, "ConvertMilliLitersToLiters", "ConvertLitersToMilliLiters"},
    {23, "ConvertCubicMetersToLiters", "ConvertLitersToCubicMeters"},
    {53, "ConvertCubicMetersToLiters", "ConvertLitersToCubicMeters"},
    {25, "ConvertTonnesToLiters", "ConvertLitersToTonnes"},
    {55, "ConvertTonnesToLiters", "ConvertLitersToTonnes"},
    {26, "ConvertUSBushelsToLiters", "ConvertLitersToUSBushels"},
    {27, "ConvertUKBushelsToLiters", "ConvertLitersToUKBushels"},
    {65, "ConvertPerMilliLiterToPerLiter", "ConvertPerLiterToPerMilliLiter"},
    {67, "ConvertPulsesPerCubicMeterToPulsesPerLiter", "ConvertPulsesPerLiterToPulsesPerCubicMeter"},
    {69, "ConvertPulsesPerTonneToPulsesPerLiter", "ConvertPulsesPerLiterToPulsesPerTonne"},
    {92, "ConvertKilogramsPerCubicMeterToKilogramsPerLiter", "ConvertKilogramsPerLiterToKilogramsPerCubicMeter"},
    {94, "ConvertKilogramsPerUSBushelToKilogramsPerLiter", "ConvertKilogramsPerLiterToKilogramsPerUSBushel"},
    {95, "ConvertKilogramsPerUKBushelToKilogramsPerLiter", "ConvertKilogramsPerLiterToKilogramsPerUKBushel"},
};

/// Steps in, or the hub and its unit that stand for them; the same out.
struct tagPartner
{
    int unit;
    const char* in;
    int inBy;
    const char* out;
    int outBy;
};

const int Directly = -1;

const tagPartner PartnerRows[] = {
    {4, "ConvertInchesToMeters", Directly, "ConvertMetersToInches", Directly},
    {10, "ConvertFeetToMeters", Directly, "ConvertMetersToFeet", Directly},
    {61, "ConvertFeetToMeters", Directly, "ConvertMetersToFeet", Directly},
    {13, "ConvertMilesPerHourToKilometersPerHour", Directly, "ConvertKilometersPerHourToMilesPerHour", Directly},
    {15, "ConvertPulsesPerMPHToPulsesPerKPH", Directly, "ConvertPulsesPerKPHToPulsesPerMPH", Directly},
    {19, "Liter", 20, "Liter", 20},
    {49, "Liter", 20, "Liter", 20},
    {56, "Liter", 20, "Liter", 20},
    {21, "LitersPerMinute", 52, "Liter", 22},
    {51, "LitersPerMinute", 52, "Liter", 22},
    {23, "ConvertCubicFeetToLiters", Directly, "ConvertLitersToCubicFeet", Directly},
    {53, "ConvertCubicFeetToLiters", Directly, "ConvertLitersToCubicFeet", Directly},
    {25, "ConvertPoundsToLiters", Directly, "ConvertLitersToPounds", Directly},
    {55, "ConvertPoundsToLiters", Directly, "ConvertLitersToPounds", Directly},
    {26, "ConvertUSBushelsToLiters", Directly, "ConvertLitersToUSBushels", Directly},
    {27, "ConvertUKBushelsToLiters", Directly, "ConvertLitersToUKBushels", Directly},
    {63, "PulsesPerLiter", 64, "PulsesPerLiter", 64},
    {65, "PulsesPerLiter", 66, "PulsesPerLiter", 66},
    {67, "PulsesPerLiter", 68, "PulsesPerLiter", 68},
    {69, "PulsesPerLiter", 70, "PulsesPerLiter", 70},
    {71, "ConvertPoundsToKilograms", Directly, "ConvertKilogramsToPounds", Directly},
    {73, "ConvertPoundsToKilograms", Directly, "ConvertKilogramsToPounds", Directly},
    {84, "ConvertPoundsToKilograms", Directly, "ConvertKilogramsToPounds", Directly},
    {86, "ConvertPoundsToKilograms", Directly, "ConvertKilogramsToPounds", Directly},
    {88, "ConvertPoundsToKilograms", Directly, "ConvertKilogramsToPounds", Directly},
    {80, "ConvertPoundsPerAcreToKilogramsPerHectare", Directly, "ConvertKilogramsPerHectareToPoundsPerAcre", Directly},
    {90, "KilogramsPerLiter", 91, "KilogramsPerLiter", 91},
    {92, "KilogramsPerLiter", 93, "ConvertKilogramsPerLiterToPoundsPerCubicFoot", Directly},
    {94, "KilogramsPerLiter", 96, "ConvertKilogramsPerLiterToPoundsPerUSBushel", Directly},
    {95, "KilogramsPerLiter", 97, "ConvertKilogramsPerLiterToPoundsPerUKBushel", Directly},
    {98, "ConvertKilogramsToPounds", Directly, "ConvertPoundsToKilograms", Directly},
    {107, "ConvertFahrenheitToCelsius", Directly, "ConvertCelsiusToFahrenheit", Directly},
};

using THubWay = double (*)(const Expected::tagHub&, double, EUnitsType, const Expected::tagMeasures&);

double By(const char* steps, int unit, THubWay way, double value, const Expected::tagMeasures& measures)
{
    if (unit == Directly)
        return Expected::Evaluate(steps, value);
    for (const Expected::tagHub& hub : Expected::Hubs()) {
        if (qstrcmp(hub.name, steps) == 0)
            return way(hub, value, Unit(unit), measures);
    }
    qFatal("no hub %s", steps);
    return value;
}

template <class Row, std::size_t Count>
const Row* Find(const Row (&rows)[Count], int unit)
{
    for (const Row& row : rows) {
        if (row.unit == unit)
            return &row;
    }
    return nullptr;
}

QByteArray Told(double value, double result, double expected)
{
    return Digits(value) + " gives " + Digits(result) + ", not " + Digits(expected);
}

} // namespace

class MetricAndImperial : public QObject
{
    Q_OBJECT

private slots:
    void metricValuesAreNormalisedWhileMetric_data() { AddUnits(); }
    void metricValuesAreNormalisedWhileMetric();
    void imperialValuesAreKeptInMetric_data() { AddUnits(); }
    void imperialValuesAreKeptInMetric();
    void singleValues_data();
    void singleValues();
    void millilitresAreKeptInLitres();
    void gallonsStayWhileMetric();

private:
    static void AddUnits();
};

void MetricAndImperial::AddUnits()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("measures");
    for (const int unit : UnitNumbers()) {
        for (int measures = 0; measures < 4; ++measures)
            QTest::newRow(QByteArray::number(unit) + ", " + Expected::AllMeasures[measures].name) << unit << measures;
    }
}

void MetricAndImperial::metricValuesAreNormalisedWhileMetric()
{
    QFETCH(int, unit);
    QFETCH(int, measures);
    const Expected::tagMeasures& chosen = Expected::AllMeasures[measures];
    TTestStore store;
    store.values[8953] = chosen.metric;
    store.values[8954] = chosen.us;
    const tagNormalised* const row = chosen.metric ? Find(NormalisedRows, unit) : nullptr;
    for (const double value : Values) {
        const double in = TUnits::NormaliseMetricValue(value, Unit(unit));
        const double expectedIn = row ? Expected::Evaluate(row->in, value) : value;
        QVERIFY2(AreSame(in, expectedIn), Told(value, in, expectedIn));
        const double out = TUnits::DenormaliseMetricValue(value, Unit(unit));
        const double expectedOut = row ? Expected::Evaluate(row->out, value) : value;
        QVERIFY2(AreSame(out, expectedOut), Told(value, out, expectedOut));
    }
    const double back = TUnits::NormaliseMetricValue(TUnits::DenormaliseMetricValue(12.5, Unit(unit)), Unit(unit));
    QVERIFY2(qAbs(back - 12.5) <= 12.5e-7, Digits(back));
}

void MetricAndImperial::imperialValuesAreKeptInMetric()
{
    QFETCH(int, unit);
    QFETCH(int, measures);
    const Expected::tagMeasures& chosen = Expected::AllMeasures[measures];
    TTestStore store;
    store.values[8953] = chosen.metric;
    store.values[8954] = chosen.us;
    const tagPartner* const row = Find(PartnerRows, unit);
    for (const double value : Values) {
        const double in = TUnits::ConvertToMetric(value, Unit(unit));
        const double expectedIn = row ? By(row->in, row->inBy, Expected::ToHub, value, chosen) : value;
        QVERIFY2(AreSame(in, expectedIn), Told(value, in, expectedIn));
        const double out = TUnits::ConvertToImperial(value, Unit(unit));
        const double expectedOut = row ? By(row->out, row->outBy, Expected::FromHub, value, chosen) : value;
        QVERIFY2(AreSame(out, expectedOut), Told(value, out, expectedOut));
    }
    const double back = TUnits::ConvertToMetric(TUnits::ConvertToImperial(12.5, Unit(unit)), Unit(unit));
    QVERIFY2(qAbs(back - 12.5) <= 5e-6, Digits(back));
}

void MetricAndImperial::singleValues_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<double>("metric");
    QTest::addColumn<double>("imperial");
    QTest::newRow("row width, in metres and inches") << 4 << 0.762 << 30.0;
    QTest::newRow("speed") << 13 << 16.09344 << 10.0;
    QTest::newRow("speed calibration, a greater count") << 15 << 62.137121 << 100.0;
    QTest::newRow("tank") << 19 << 1000.0 << 219.96924;
    QTest::newRow("chemical, in litres and fluid ounces") << 21 << 1.0 << 35.19508;
    QTest::newRow("flow of a chemical, in litres and fluid ounces") << 51 << 1.0 << 35.19508;
    QTest::newRow("bin, in litres and cubic feet") << 23 << 1000.0 << 35.314668;
    QTest::newRow("mass of a liquid") << 25 << 1000.0 << 2204.6226;
    QTest::newRow("bushels") << 26 << 35.239071 << 1.0;
    QTest::newRow("pulses per gallon") << 63 << 21.996924 << 100.0;
    QTest::newRow("mass") << 71 << 100.0 << 220.46225;
    QTest::newRow("nitrogen per area") << 80 << 100.0 << 89.217907;
    QTest::newRow("density") << 90 << 1.0 << 10.0224125;
    QTest::newRow("density in cubic feet") << 92 << 1.0 << 62.427956;
    QTest::newRow("pulses per nitrogen, a smaller count") << 98 << 2.2046225 << 1.0;
    QTest::newRow("temperature") << 107 << 37.0 << 98.6;
}

void MetricAndImperial::singleValues()
{
    QFETCH(int, unit);
    QFETCH(double, metric);
    QFETCH(double, imperial);
    const TTestStore store;
    const double out = TUnits::ConvertToImperial(metric, Unit(unit));
    QVERIFY2(qAbs(out - imperial) <= 2e-7 * imperial, Digits(out));
    const double in = TUnits::ConvertToMetric(imperial, Unit(unit));
    QVERIFY2(qAbs(in - metric) <= 2e-7 * metric, Digits(in));
}

void MetricAndImperial::millilitresAreKeptInLitres()
{
    TTestStore store;
    store.values[8953] = true;
    QCOMPARE(TUnits::NormaliseMetricValue(250, UNITS_MILLILITERS), 0.25);
    QCOMPARE(TUnits::DenormaliseMetricValue(0.25, UNITS_MILLILITERS), 250.0);
    store.values[8953] = false;
    QCOMPARE(TUnits::NormaliseMetricValue(5, UNITS_MILLIMETERS), 5.0);
    QCOMPARE(TUnits::ConvertToImperial(0.25, UNITS_MILLILITERS), TUnits::ConvertLitersToEnglishFluidOunces(0.25f));
}

void MetricAndImperial::gallonsStayWhileMetric()
{
    TTestStore store;
    store.values[8953] = true;
    for (const int unit : {19, 49, 56, 21, 51, 63, 65, 90}) {
        QCOMPARE(TUnits::ConvertToImperial(12.5, Unit(unit)), 12.5);
        QCOMPARE(TUnits::ConvertToMetric(12.5, Unit(unit)), 12.5);
    }
    QVERIFY(TUnits::ConvertToImperial(12.5, UNITS_KG) != 12.5); // others do not ask
}

int main(int argc, char** argv) { return RunCoreTest<MetricAndImperial>(argc, argv); }
#include "MetricAndImperial.moc"
