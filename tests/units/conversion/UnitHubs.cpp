#include "CoreTest.h"
#include "ExpectedConversions.h"
#include "TestHost.h"

#include <cmath>
#include <limits>
#include <vector>

using Expected::AreSame;
using Expected::Digits;
using Expected::Unit;
using Expected::UnitNumbers;

namespace {

const double Values[] = {
    0.0,
    -0.0,
    1.0,
    -1.0,
    0.1,
    123.456,
    -9876.54321,
    1.0 / 3.0,
    1e-30,
    1e300,
    std::numeric_limits<double>::infinity(),
    -std::numeric_limits<double>::infinity(),
    std::numeric_limits<double>::quiet_NaN(),
};

/// Changed by every conversion there is.
const double Telling = 123.456;

/// Units whose hub is not their default unit: speeds convert by metres per second, and nitrogen is weighed apart.
struct tagOwnHub
{
    int first;
    int last;
    int hub;
};

const tagOwnHub OwnHubs[] = {{12, 14, 12}, {73, 74, 73}, {80, 83, 80}, {86, 87, 86}};

QByteArray Told(double value, int from, int to, double result, double expected)
{
    return Digits(value) + " from " + QByteArray::number(from) + " to " + QByteArray::number(to) + " gives " +
           Digits(result) + ", not " + Digits(expected);
}

} // namespace

class UnitHubs : public QObject
{
    Q_OBJECT

private slots:
    void aHubConvertsItsUnitsAndNoOthers_data();
    void aHubConvertsItsUnitsAndNoOthers();
    void unitsConvertByTheHubOfEither_data();
    void unitsConvertByTheHubOfEither();
    void aUnitCanBeConvertedWhenTheValueChanges_data() { unitsConvertByTheHubOfEither_data(); }
    void aUnitCanBeConvertedWhenTheValueChanges();
    void theMeasuresAreReadAtEveryCall();
    void onlyUnitsOfTwoSizesReadTheMeasures_data();
    void onlyUnitsOfTwoSizesReadTheMeasures();
    void singleConversionsThatSurprise_data();
    void singleConversionsThatSurprise();
    void everyUnitNamesItsHub_data() { onlyUnitsOfTwoSizesReadTheMeasures_data(); }
    void everyUnitNamesItsHub();

private:
    static void SetMeasures(TTestStore& store, int measures);
};

void UnitHubs::SetMeasures(TTestStore& store, int measures)
{
    store.values[8953] = Expected::AllMeasures[measures].metric;
    store.values[8954] = Expected::AllMeasures[measures].us;
}

void UnitHubs::aHubConvertsItsUnitsAndNoOthers_data()
{
    QTest::addColumn<int>("hub");
    QTest::addColumn<int>("measures");
    QCOMPARE(static_cast<int>(Expected::Hubs().size()), 17);
    for (int hub = 0; hub < 17; ++hub) {
        for (int measures = 0; measures < 4; ++measures) {
            const QByteArray name = Expected::Hubs()[static_cast<std::size_t>(hub)].name;
            QTest::newRow(name + ", " + Expected::AllMeasures[measures].name) << hub << measures;
        }
    }
}

void UnitHubs::aHubConvertsItsUnitsAndNoOthers()
{
    QFETCH(int, hub);
    QFETCH(int, measures);
    TTestStore store;
    SetMeasures(store, measures);
    const Expected::tagHub& tested = Expected::Hubs()[static_cast<std::size_t>(hub)];
    for (const int unit : UnitNumbers()) {
        for (const double value : Values) {
            const double out = tested.from(value, Unit(unit));
            const double expectedOut = Expected::FromHub(tested, value, Unit(unit), Expected::AllMeasures[measures]);
            QVERIFY2(AreSame(out, expectedOut), Told(value, tested.types[0], unit, out, expectedOut));
            const double in = tested.to(value, Unit(unit));
            const double expectedIn = Expected::ToHub(tested, value, Unit(unit), Expected::AllMeasures[measures]);
            QVERIFY2(AreSame(in, expectedIn), Told(value, unit, tested.types[0], in, expectedIn));
        }
    }
}

void UnitHubs::unitsConvertByTheHubOfEither_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("measures");
    for (const int from : UnitNumbers()) {
        for (int measures = 0; measures < 4; ++measures)
            QTest::newRow("from " + QByteArray::number(from) + ", " + Expected::AllMeasures[measures].name)
                << from << measures;
    }
}

void UnitHubs::unitsConvertByTheHubOfEither()
{
    QFETCH(int, from);
    QFETCH(int, measures);
    TTestStore store;
    SetMeasures(store, measures);
    for (const int to : UnitNumbers()) {
        for (const double value : {Telling, -0.0, 1e-30}) {
            const double result = TUnits::ConvertUnit(value, Unit(from), Unit(to));
            const double expected = Expected::ConvertUnit(value, Unit(from), Unit(to), Expected::AllMeasures[measures]);
            QVERIFY2(AreSame(result, expected), Told(value, from, to, result, expected));
        }
    }
}

void UnitHubs::aUnitCanBeConvertedWhenTheValueChanges()
{
    QFETCH(int, from);
    QFETCH(int, measures);
    TTestStore store;
    SetMeasures(store, measures);
    for (const int to : UnitNumbers()) {
        const bool changes = !AreSame(TUnits::ConvertUnit(Telling, Unit(from), Unit(to)), Telling);
        QVERIFY2(TUnits::CanConvert(Unit(from), Unit(to)) == (changes || from == to), QByteArray::number(to));
    }
}

void UnitHubs::theMeasuresAreReadAtEveryCall()
{
    TTestStore store;
    QCOMPARE(TUnits::ConvertFromLiter(1, UNITS_GALLONS), TUnits::ConvertLitersToEnglishGallons(1));
    store.values[8954] = true;
    QCOMPARE(TUnits::ConvertFromLiter(1, UNITS_GALLONS), TUnits::ConvertLitersToUSGallons(1));
    QVERIFY(TUnits::CanConvert(UNITS_LITERS, UNITS_GALLONS));
    store.values[8953] = true;
    QCOMPARE(TUnits::ConvertFromLiter(1, UNITS_GALLONS), 1.0);
    QVERIFY(!TUnits::CanConvert(UNITS_LITERS, UNITS_GALLONS));
    store.values[8953] = QString::fromLatin1("false");
    store.values[8954] = 0;
    QCOMPARE(TUnits::ConvertFromLiter(1, UNITS_GALLONS), TUnits::ConvertLitersToEnglishGallons(1));
}

void UnitHubs::onlyUnitsOfTwoSizesReadTheMeasures_data()
{
    QTest::addColumn<int>("unit");
    for (int unit = 0; unit < 115; ++unit)
        QTest::newRow(QByteArray::number(unit)) << unit;
}

void UnitHubs::onlyUnitsOfTwoSizesReadTheMeasures()
{
    QFETCH(int, unit);
    const QList<int> unitsOfTwoSizes = QList<int>()
                                       << 20 << 22 << 32 << 33 << 36 << 37 << 47 << 50 << 52 << 57 << 64 << 66 << 91;
    TTestStore store;
    for (const Expected::tagHub& hub : Expected::Hubs()) {
        hub.from(Telling, Unit(unit));
        hub.to(Telling, Unit(unit));
    }
    QCOMPARE(store.reads.isEmpty(), !unitsOfTwoSizes.contains(unit));
    QVERIFY(store.writes.isEmpty());
}

void UnitHubs::singleConversionsThatSurprise_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<double>("result");

    const auto add = [](const char* name, double value, EUnitsType from, EUnitsType to, double result) {
        QTest::newRow(name) << value << static_cast<int>(from) << static_cast<int>(to) << result;
    };
    add("areas per hour stay", 10, UNITS_HECTARES_PER_HOUR, UNITS_ACRES_PER_HOUR, 10);
    add("areas per hour stay, back", 10, UNITS_ACRES_PER_HOUR, UNITS_HECTARES_PER_HOUR, 10);
    add("two units that are no hub", 3, UNITS_FEET, UNITS_INCHES, 3);
    add("speeds do not meet in km/h", 36, UNITS_KPH, UNITS_MPH, 36);
    add("m/s to km/h by a float", 1, UNITS_METERS_PER_SECOND, UNITS_KPH, 3.5999999046325684);
    add("km/h to m/s by a double", 3.6, UNITS_KPH, UNITS_METERS_PER_SECOND, 1);
    add("a kilometre by the float 0.001", 1, UNITS_KILOMETERS, UNITS_METERS,
        static_cast<double>(1.0L / static_cast<long double>(0.001f)));
    add("psi by a double", 0.14504, UNITS_PSI, UNITS_KPA, 1);
    add("no rate per 100 m", 200, UNITS_L_PER_HA, UNITS_L_PER_100M, 200);
    add("no grams per hectare", 2, UNITS_KG_PER_HA, UNITS_G_PER_HA, 2);
    add("no temperatures", 100, UNITS_CELSIUS, UNITS_FAHRENHEIT, 100);
    add("no kilograms of nitrogen from kilograms", 2, UNITS_KG, UNITS_KG_N, 2);
    add("seeds by the hub of masses per area", 100, UNITS_KSEEDS_PER_HA, UNITS_KSEEDS_PER_AC,
        static_cast<double>(0.40468565f * 100.0L));
    add("even across quantities", 100, UNITS_KSEEDS_PER_HA, UNITS_LB_PER_HA, static_cast<double>(2.2046225f * 100.0L));
    add("pulses per pound, a smaller count", 2.2046225, UNITS_PULSES_PER_KG_N, UNITS_PULSES_PER_LB_N, 1);
    add("pulses per kilogram, a greater one", 1, UNITS_PULSES_PER_LB_N, UNITS_PULSES_PER_KG_N,
        static_cast<double>(2.2046225f));
}

void UnitHubs::singleConversionsThatSurprise()
{
    QFETCH(double, value);
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(double, result);
    TTestStore store;
    const double actual = TUnits::ConvertUnit(value, Unit(from), Unit(to));
    QVERIFY2(AreSame(actual, result), Told(value, from, to, actual, result));
}

void UnitHubs::everyUnitNamesItsHub()
{
    QFETCH(int, unit);
    int expected = TUnits::DetermineDefaultUnitFromUnitsType(Unit(unit));
    for (const tagOwnHub& own : OwnHubs)
        expected = unit >= own.first && unit <= own.last ? own.hub : expected;
    const QList<int> unconverted = QList<int>() << 17 << 46 << 79;
    const TTestStore store;
    const EUnitsType hub = TUnits::GetConversionHub(Unit(unit));
    QCOMPARE(static_cast<int>(hub), expected);
    QCOMPARE(TUnits::GetConversionHub(hub), hub);
    QCOMPARE(TUnits::CanConvert(Unit(unit), hub), !unconverted.contains(unit));
    QCOMPARE(TUnits::GetConversionHub(Unit(-1 - unit)), Unit(-1 - unit));
}

int main(int argc, char** argv) { return RunCoreTest<UnitHubs>(argc, argv); }
#include "UnitHubs.moc"
