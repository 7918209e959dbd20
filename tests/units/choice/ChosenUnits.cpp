#include "CoreTest.h"
#include "ExpectedConversions.h"
#include "Latin1.h"
#include "TestHost.h"

#include "units/TUnitAbbreviations.h"

#include <QHash>

#include <climits>

using Expected::AreSame;
using Expected::Digits;
using Expected::Unit;
using Expected::UnitNumbers;

namespace {

using TGetter = EUnitsType (*)();

/// Units @c first to @c last are kept in @c hub.
struct tagDefault
{
    int first;
    int last;
    int hub;
};

const tagDefault Defaults[] = {
    {2, 7, 1},    {9, 9, 8},    {11, 11, 10}, {12, 12, 13}, {14, 14, 13}, {16, 16, 15}, {17, 17, 18},
    {20, 27, 19}, {29, 48, 28}, {50, 55, 49}, {57, 57, 56}, {59, 60, 58}, {62, 62, 61}, {64, 70, 63},
    {72, 74, 71}, {76, 83, 75}, {85, 87, 84}, {89, 89, 88}, {91, 97, 90}, {99, 99, 98}, {101, 101, 100},
};

int ExpectedDefault(int unit)
{
    for (const tagDefault& row : Defaults) {
        if (unit >= row.first && unit <= row.last)
            return row.hub;
    }
    return unit;
}

/// What is shown in place of a metric unit when not metric, whatever is chosen.
const QHash<int, int>& ImperialPartners()
{
    static const QHash<int, int> partners = [] {
        const int pairs[][2] = {{4, 7},   {10, 11}, {13, 14}, {15, 16}, {19, 20},  {21, 22}, {23, 24}, {25, 72},
                                {71, 72}, {49, 50}, {51, 52}, {53, 54}, {55, 85},  {84, 85}, {56, 57}, {61, 62},
                                {63, 64}, {65, 66}, {67, 68}, {69, 70}, {73, 74},  {86, 87}, {88, 89}, {90, 91},
                                {92, 93}, {94, 96}, {95, 97}, {98, 99}, {107, 108}};
        QHash<int, int> all;
        for (const auto& pair : pairs)
            all[pair[0]] = pair[1];
        return all;
    }();
    return partners;
}

/// Units by area: hectare and acre, in the metric system and in the other.
struct tagByArea
{
    int unit;
    int metric[2];
    int imperial[2];
};

const tagByArea ByArea[] = {
    {8, {8, 9}, {8, 9}},      {100, {100, 101}, {100, 101}}, {28, {28, 29}, {32, 33}}, {30, {30, 31}, {37, 36}},
    {40, {40, 41}, {42, 43}}, {44, {44, 45}, {78, 77}},      {75, {75, 76}, {78, 77}}, {80, {80, 81}, {83, 82}},
};

/// What the operator has chosen.
struct tagChoice
{
    bool metric;
    bool us;
    int area;
    int pressure;
    int distance;
    int rateBasis;
    bool perTravel;

    void Store(TTestStore& store) const
    {
        store.values[8953] = metric;
        store.values[8954] = us;
        store.values[8960] = area;
        store.values[8957] = pressure;
        store.values[8961] = distance;
        store.values[1929] = rateBasis;
        store.values[8966] = perTravel;
    }

    QByteArray Name() const
    {
        return QByteArray(metric ? "metric" : "imperial") + (us ? " US" : "") + ", area " + QByteArray::number(area) +
               ", pressure " + QByteArray::number(pressure) + ", distance " + QByteArray::number(distance) +
               ", basis " + QByteArray::number(rateBasis) + (perTravel ? ", per travel" : "");
    }
};

int ExpectedShortDistance(bool small, int unit, int choice)
{
    if (unit == 7 && choice == 2)
        return 7;
    if (unit == 5 && choice == 1)
        return small ? 7 : 5;
    if (choice == 1)
        return 7;
    if (choice == 2)
        return small ? 7 : 5;
    return small ? 4 : 1;
}

int ExpectedActual(int unit, const tagChoice& choice)
{
    if (unit == 58)
        return choice.pressure >= 0 && choice.pressure <= 2 ? 58 + choice.pressure : 0;
    if (unit == 1 || unit == 5 || unit == 7)
        return ExpectedShortDistance(false, unit, choice.distance);
    if (unit == 28 && choice.rateBasis == 0 && choice.perTravel)
        return choice.metric ? 46 : 47;
    for (const tagByArea& row : ByArea) {
        if (row.unit == unit) {
            if (choice.area != 0 && choice.area != 1)
                return 0;
            return (choice.metric ? row.metric : row.imperial)[choice.area];
        }
    }
    return choice.metric ? unit : ImperialPartners().value(unit, unit);
}

/// Every combination that matters: the area with the way of rates, the pressure and the short distance apart.
std::vector<tagChoice> Choices()
{
    std::vector<tagChoice> choices;
    for (int system = 0; system < 4; ++system) {
        const bool metric = (system & 1) != 0;
        const bool us = (system & 2) != 0;
        for (const int area : {-1, 0, 1, 2, 3}) {
            choices.push_back({metric, us, area, 0, 0, 0, false});
            choices.push_back({metric, us, area, 1, 1, 0, true});
            choices.push_back({metric, us, area, 2, 2, 1, true});
            choices.push_back({metric, us, area, 3, 3, -1, true});
        }
        for (const int pressure : {-1, 4, INT_MAX})
            choices.push_back({metric, us, 0, pressure, -1, 0, false});
        for (const int distance : {-1, 4, INT_MIN})
            choices.push_back({metric, us, 1, 1, distance, 2, false});
    }
    return choices;
}

} // namespace

Q_DECLARE_METATYPE(tagChoice)
Q_DECLARE_METATYPE(TGetter)

class ChosenUnits : public QObject
{
    Q_OBJECT

private slots:
    void everyUnitIsKeptInItsDefaultUnit_data();
    void everyUnitIsKeptInItsDefaultUnit();
    void theUnitShownFollowsTheChoices_data();
    void theUnitShownFollowsTheChoices();
    void unitsMarkedUSAreNeverChosen_data() { theUnitShownFollowsTheChoices_data(); }
    void unitsMarkedUSAreNeverChosen();
    void absentChoicesAreImperialPerHectare();

    void shortDistancesHaveAUnitForEachSize_data();
    void shortDistancesHaveAUnitForEachSize();
    void someUnitsFollowAChoice_data();
    void someUnitsFollowAChoice();

    void aProductHasItsChosenUnit_data();
    void aProductHasItsChosenUnit();
    void aTankHasItsCalibrationUnit_data();
    void aTankHasItsCalibrationUnit();

    void valuesMoveBetweenDefaultAndShownUnit_data() { theUnitShownFollowsTheChoices_data(); }
    void valuesMoveBetweenDefaultAndShownUnit();
    void singleValuesShown_data();
    void singleValuesShown();
    void aFactorTurnsTheHubIntoTheUnit_data();
    void aFactorTurnsTheHubIntoTheUnit();
    void singleFactors_data();
    void singleFactors();
};

void ChosenUnits::everyUnitIsKeptInItsDefaultUnit_data()
{
    QTest::addColumn<int>("unit");
    for (const int unit : UnitNumbers())
        QTest::newRow(QByteArray::number(unit)) << unit;
}

void ChosenUnits::everyUnitIsKeptInItsDefaultUnit()
{
    QFETCH(int, unit);
    const EUnitsType hub = TUnits::DetermineDefaultUnitFromUnitsType(Unit(unit));
    QCOMPARE(static_cast<int>(hub), ExpectedDefault(unit));
    QCOMPARE(TUnits::DetermineDefaultUnitFromUnitsType(hub), hub);
}

void ChosenUnits::theUnitShownFollowsTheChoices_data()
{
    QTest::addColumn<tagChoice>("choice");
    for (const tagChoice& choice : Choices())
        QTest::newRow(choice.Name()) << choice;
}

void ChosenUnits::theUnitShownFollowsTheChoices()
{
    QFETCH(tagChoice, choice);
    TTestStore store;
    choice.Store(store);
    for (const int unit : UnitNumbers()) {
        const int shown = TUnits::DetermineActualUnitFromUnitsType(Unit(unit));
        const int expected = ExpectedActual(unit, choice);
        QVERIFY2(shown == expected, QByteArray::number(unit) + " is shown as " + QByteArray::number(shown) + ", not " +
                                        QByteArray::number(expected));
    }
    QVERIFY(store.writes.isEmpty());
}

void ChosenUnits::unitsMarkedUSAreNeverChosen()
{
    QFETCH(tagChoice, choice);
    TTestStore store;
    choice.Store(store);
    const QList<int> marked = QList<int>() << 34 << 35 << 38 << 39 << 48;
    for (const int unit : UnitNumbers()) {
        const int shown = TUnits::DetermineActualUnitFromUnitsType(Unit(unit));
        QVERIFY(shown == unit || !marked.contains(shown));
    }
}

void ChosenUnits::absentChoicesAreImperialPerHectare()
{
    const TTestStore store;
    QCOMPARE(TUnits::DetermineActualUnitFromUnitsType(UNITS_L_PER_HA), UNITS_GAL_PER_HA);
    QCOMPARE(TUnits::DetermineActualUnitFromUnitsType(UNITS_HECTARES), UNITS_HECTARES);
    QCOMPARE(TUnits::DetermineActualUnitFromUnitsType(UNITS_KPA), UNITS_KPA);
    QCOMPARE(TUnits::DetermineActualUnitFromUnitsType(UNITS_METERS), UNITS_METERS);
    QCOMPARE(TUnits::DetermineActualUnitFromUnitsType(UNITS_KG), UNITS_LB);
}

void ChosenUnits::shortDistancesHaveAUnitForEachSize_data()
{
    QTest::addColumn<int>("choice");
    QTest::addColumn<bool>("small");
    for (const int choice : {INT_MIN, -1, 0, 1, 2, 3, INT_MAX}) {
        QTest::newRow(QByteArray::number(choice)) << choice << false;
        QTest::newRow(QByteArray::number(choice) + ", small") << choice << true;
    }
}

void ChosenUnits::shortDistancesHaveAUnitForEachSize()
{
    QFETCH(int, choice);
    QFETCH(bool, small);
    TTestStore store;
    store.values[8961] = choice;
    for (const bool metric : {false, true}) { // of no consequence here
        store.values[8953] = metric;
        for (const int unit : UnitNumbers())
            QCOMPARE(static_cast<int>(TUnits::GetShortDistanceUnits(small, Unit(unit))),
                     ExpectedShortDistance(small, unit, choice));
    }
}

void ChosenUnits::someUnitsFollowAChoice_data() { everyUnitIsKeptInItsDefaultUnit_data(); }

void ChosenUnits::someUnitsFollowAChoice()
{
    QFETCH(int, unit);
    const QList<int> areas = QList<int>() << 8 << 28 << 30 << 40 << 44 << 75 << 80 << 100;
    const bool isArea = areas.contains(unit);
    QCOMPARE(TUnits::IsSpecifiedAreaUnit(Unit(unit)), isArea);
    QCOMPARE(TUnits::IsSpecifiedPressureUnit(Unit(unit)), unit == 58);
    QCOMPARE(TUnits::IsSpecifiedShortDistanceUnit(Unit(unit)), unit == 1 || unit == 5 || unit == 7);
}

void ChosenUnits::aProductHasItsChosenUnit_data()
{
    QTest::addColumn<TGetter>("getter");
    QTest::addColumn<int>("parameter");
    QTest::addColumn<int>("choice");
    QTest::addColumn<int>("unit");

    using TUnitsByChoice = QList<int>;
    const struct
    {
        const char* name;
        TGetter getter;
        int parameter;
        TUnitsByChoice units;
    } rows[] = {
        {"liquid volume", &TUnits::GetLiquidVolumeUnits, 8964, TUnitsByChoice() << 19 << 23 << 25},
        {"liquid flow rate", &TUnits::GetLiquidFlowRateUnits, 8964, TUnitsByChoice() << 49 << 53 << 55},
        {"liquid volume per area", &TUnits::GetLiquidVolumePerAreaUnits, 8964, TUnitsByChoice() << 28 << 40 << 44},
        {"liquid calibration", &TUnits::GetLiquidFlowCalFactorUnits, 8964, TUnitsByChoice() << 63 << 67 << 69},
        {"dry volume", &TUnits::GetDryVolumeUnits, 8962, TUnitsByChoice() << 19 << 71 << 23 << 26 << 27},
        {"dry density", &TUnits::GetDryDensityUnits, 8963, TUnitsByChoice() << 90 << 92 << 94 << 95},
    };
    for (const auto& row : rows) {
        for (const int choice : {INT_MIN, -1, 0, 1, 2, 3, 4, 5, 6, INT_MAX})
            QTest::newRow(QByteArray(row.name) + ' ' + QByteArray::number(choice))
                << row.getter << row.parameter << choice << row.units.value(choice, 0);
    }
    for (const int choice : {-1, 0, 3})
        QTest::newRow("liquid density " + QByteArray::number(choice))
            << TGetter(&TUnits::GetLiquidDensityUnits) << 8964 << choice << 90;
}

void ChosenUnits::aProductHasItsChosenUnit()
{
    QFETCH(TGetter, getter);
    QFETCH(int, parameter);
    QFETCH(int, choice);
    QFETCH(int, unit);
    TTestStore store;
    store.values[parameter] = choice;
    QCOMPARE(static_cast<int>(getter()), unit);
    for (const int read : store.reads)
        QCOMPARE(read, parameter);
    QVERIFY(store.reads.size() <= 1);

    store.values[parameter] = QString::number(choice); // afresh, and as a number whatever it is stored as
    QCOMPARE(static_cast<int>(getter()), unit);
}

void ChosenUnits::aTankHasItsCalibrationUnit_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("liquid");
    QTest::addColumn<int>("perMinute");
    QTest::addColumn<int>("perRevolution");

    for (const int liquid : {-1, 0, 1, 2, 3}) {
        const int byLiquid = liquid == 0 ? 63 : liquid == 1 ? 67 : liquid == 2 ? 69 : 0;
        QTest::newRow("0, liquid " + QByteArray::number(liquid)) << 0 << liquid << byLiquid << byLiquid;
    }
    const int rows[][3] = {{INT_MIN, 0, 0}, {-1, 0, 0},  {1, 65, 65}, {2, 0, 0},   {3, 0, 0}, {4, 84, 88},
                           {5, 0, 0},       {6, 88, 88}, {7, 63, 63}, {8, 98, 98}, {9, 0, 0}, {INT_MAX, 0, 0}};
    for (const auto& row : rows)
        QTest::newRow(QByteArray::number(row[0])) << row[0] << 1 << row[1] << row[2];
}

void ChosenUnits::aTankHasItsCalibrationUnit()
{
    QFETCH(int, kind);
    QFETCH(int, liquid);
    QFETCH(int, perMinute);
    QFETCH(int, perRevolution);
    TTestStore store;
    store.values[8964] = liquid;
    QCOMPARE(static_cast<int>(TUnits::GetTankCalFactorUnits(kind, true)), perMinute);
    QCOMPARE(static_cast<int>(TUnits::GetTankCalFactorUnits(kind, false)), perRevolution);
}

void ChosenUnits::valuesMoveBetweenDefaultAndShownUnit()
{
    QFETCH(tagChoice, choice);
    TTestStore store;
    choice.Store(store);
    const Expected::tagMeasures measures = {"", choice.metric, choice.us};
    for (const int unit : UnitNumbers()) {
        const EUnitsType hub = Unit(ExpectedDefault(unit));
        const EUnitsType shown = Unit(ExpectedActual(unit, choice));
        for (const double value : {123.456, -0.1, 0.0}) {
            const double current = TUnits::GetValueInCurrentUnit(value, Unit(unit));
            QVERIFY2(AreSame(current, Expected::ConvertUnit(value, hub, shown, measures)),
                     QByteArray::number(unit) + " gives " + Digits(current));
            const double stored = TUnits::GetValueInDefaultUnit(value, Unit(unit));
            QVERIFY2(AreSame(stored, Expected::ConvertUnit(value, shown, hub, measures)),
                     QByteArray::number(unit) + " is kept as " + Digits(stored));
        }
    }
}

void ChosenUnits::singleValuesShown_data()
{
    QTest::addColumn<tagChoice>("choice");
    QTest::addColumn<int>("unit");
    QTest::addColumn<double>("stored");
    QTest::addColumn<double>("shown");

    const tagChoice metricHectares = {true, false, 0, 0, 0, 1, false};
    const tagChoice metricAcres = {true, false, 1, 2, 0, 1, false};
    const tagChoice usAcres = {false, true, 1, 1, 2, 1, false};
    const tagChoice englishAcres = {false, false, 1, 1, 1, 1, false};
    const tagChoice usTravel = {false, true, 1, 1, 2, 0, true};
    QTest::newRow("hectares") << metricHectares << 8 << 10.0 << 10.0;
    QTest::newRow("acres") << metricAcres << 8 << 10.0 << 24.710538;
    QTest::newRow("L/ac") << metricAcres << 28 << 100.0 << 40.468565;
    QTest::newRow("US gal/ac") << usAcres << 28 << 100.0 << 10.69;
    QTest::newRow("English gal/ac") << englishAcres << 28 << 100.0 << 8.9018703;
    QTest::newRow("US gal/100yd") << usTravel << 28 << 100.0 << 0.24155703;
    QTest::newRow("lb/ac") << usAcres << 75 << 100.0 << 89.217907;
    QTest::newRow("psi") << usAcres << 58 << 300.0 << 43.512003;
    QTest::newRow("bar") << metricAcres << 58 << 300.0 << 3.0;
    QTest::newRow("feet") << usAcres << 1 << 1.0 << 3.2808399;
    QTest::newRow("inches") << englishAcres << 1 << 1.0 << 39.370079;
    QTest::newRow("kiloseeds per acre") << englishAcres << 100 << 80.0 << 32.374852;
    QTest::newRow("pounds") << usAcres << 71 << 100.0 << 220.46225;
    QTest::newRow("cubic feet kept in litres") << usAcres << 23 << 1000.0 << 35.314668;
}

void ChosenUnits::singleValuesShown()
{
    QFETCH(tagChoice, choice);
    QFETCH(int, unit);
    QFETCH(double, stored);
    QFETCH(double, shown);
    TTestStore store;
    choice.Store(store);
    const double current = TUnits::GetValueInCurrentUnit(stored, Unit(unit));
    QVERIFY2(qAbs(current - shown) <= 1e-7 * shown, Digits(current));
    const double back = TUnits::GetValueInDefaultUnit(shown, Unit(unit));
    QVERIFY2(qAbs(back - stored) <= 1e-6 * stored, Digits(back));
}

void ChosenUnits::aFactorTurnsTheHubIntoTheUnit_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("measures");
    for (const int type : UnitNumbers()) {
        for (int measures = 0; measures < 4; ++measures)
            QTest::newRow(QByteArray::number(type) + ", " + Expected::AllMeasures[measures].name) << type << measures;
    }
}

void ChosenUnits::aFactorTurnsTheHubIntoTheUnit()
{
    QFETCH(int, type);
    QFETCH(int, measures);
    TTestStore store;
    store.values[8953] = Expected::AllMeasures[measures].metric;
    store.values[8954] = Expected::AllMeasures[measures].us;
    TUnitAbbreviations::Initialize();

    const int kept = ExpectedDefault(type);
    const EUnitsType hub = kept == 13 ? UNITS_METERS_PER_SECOND : Unit(kept); // speeds convert by metres per second
    for (int unit = 0; unit < 115; ++unit) {
        const QString abbreviation = TUnitAbbreviations::UnitAbbreviations[unit];
        const int named = abbreviation.isEmpty() ? 0 : unit;
        const double expected = Expected::ConvertUnit(1, hub, Unit(named), Expected::AllMeasures[measures]);
        const double factor = TUnits::GetConversionFactor(type, abbreviation);
        QVERIFY2(AreSame(factor, expected), QByteArray::number(unit) + " by " + Digits(factor));
        QVERIFY(AreSame(TUnits::GetConversionFactor(type, abbreviation.toUpper()), expected));
    }
    QCOMPARE(TUnits::GetConversionFactor(type, Latin1("furlongs")), 1.0);
    QCOMPARE(TUnits::GetConversionFactor(type, QString()), 1.0);
}

void ChosenUnits::singleFactors_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("abbreviation");
    QTest::addColumn<double>("factor");
    QTest::newRow("feet of metres") << 1 << Latin1("'") << static_cast<double>(3.2808399f);
    QTest::newRow("feet of inches") << 7 << Latin1("'") << static_cast<double>(3.2808399f);
    QTest::newRow("km/h of m/s") << 12 << Latin1("kph") << static_cast<double>(3.6f);
    QTest::newRow("mph of km/h, from m/s") << 13 << Latin1("MPH") << static_cast<double>(2.2369363f);
    QTest::newRow("acres") << 8 << Latin1("ac") << static_cast<double>(2.4710538f);
    QTest::newRow("Fahrenheit") << 107
                                << Latin1("\xB0"
                                          "F")
                                << 1.0;
    QTest::newRow("acres per hour") << 18 << Latin1("ac/hr") << 1.0;
    QTest::newRow("a unit of another quantity") << 1 << Latin1("kg/m\xB3") << 1.0;
}

void ChosenUnits::singleFactors()
{
    QFETCH(int, type);
    QFETCH(QString, abbreviation);
    QFETCH(double, factor);
    TUnitAbbreviations::Initialize();
    const TTestStore store;
    QVERIFY(AreSame(TUnits::GetConversionFactor(type, abbreviation), factor));
}

int main(int argc, char** argv) { return RunCoreTest<ChosenUnits>(argc, argv); }
#include "ChosenUnits.moc"
