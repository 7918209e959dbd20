#include "CoreTest.h"
#include "ExpectedConversions.h"
#include "TestHost.h"

#include <climits>
#include <limits>

using Expected::AreSame;
using Expected::Digits;
using Expected::Evaluate;
using Expected::Unit;
using Expected::UnitNumbers;

namespace {

using TConversion = double (*)(double);

const double Values[] = {0.0,
                         -0.0,
                         1.0,
                         -1.0,
                         0.1,
                         123.456,
                         1.0 / 3.0,
                         1e300,
                         std::numeric_limits<double>::infinity(),
                         std::numeric_limits<double>::quiet_NaN()};

/// Per hectare to per area chosen and back, with the steps of each while acres are chosen.
struct tagPair
{
    const char* name;
    TConversion in;
    const char* stepsIn;
    TConversion out;
    const char* stepsOut;
};

using U = TUnits;

// clang-format off
const tagPair Pairs[] = {
    {"plain", &U::ConvertPerHectareToPerSpecifiedAreaUnit, "ConvertPerHectareToPerAcre",
              &U::ConvertPerSpecifiedAreaUnitToPerHectare, "ConvertPerAcreToPerHectare"},
    {"US gallons", &U::ConvertLitersPerHectareToUSGallonsPerSpecifiedAreaUnit, "ConvertLitersPerHectareToUSGallonsPerAcre",
                   &U::ConvertUSGallonsPerSpecifiedAreaUnitToLitersPerHectare, "ConvertUSGallonsPerAcreToLitersPerHectare"},
    {"English gallons", &U::ConvertLitersPerHectareToEnglishGallonsPerSpecifiedAreaUnit, "ConvertLitersPerHectareToEnglishGallonsPerAcre",
                        &U::ConvertEnglishGallonsPerSpecifiedAreaUnitToLitersPerHectare, "ConvertEnglishGallonsPerAcreToLitersPerHectare"},
    {"millilitres", &U::ConvertLitersPerHectareToMilliLitersPerSpecifiedAreaUnit, "ConvertLitersPerHectareToMilliLitersPerAcre",
                    &U::ConvertMilliLitersPerSpecifiedAreaUnitToLitersPerHectare, "ConvertMilliLitersPerAcreToLitersPerHectare"},
    {"US fluid ounces", &U::ConvertLitersPerHectareToUSFluidOuncesPerSpecifiedAreaUnit, "ConvertLitersPerHectareToUSFluidOuncesPerAcre",
                        &U::ConvertUSFluidOuncesPerSpecifiedAreaUnitToLitersPerHectare, "ConvertUSFluidOuncesPerAcreToLitersPerHectare"},
    {"English fluid ounces", &U::ConvertLitersPerHectareToEnglishFluidOuncesPerSpecifiedAreaUnit, "ConvertLitersPerHectareToEnglishFluidOuncesPerAcre",
                             &U::ConvertEnglishFluidOuncesPerSpecifiedAreaUnitToLitersPerHectare, "ConvertEnglishFluidOuncesPerAcreToLitersPerHectare"},
    {"cubic metres", &U::ConvertLitersPerHectareToCubicMetersPerSpecifiedAreaUnit, "ConvertLitersPerHectareToCubicMetersPerAcre",
                     &U::ConvertCubicMetersPerSpecifiedAreaUnitToLitersPerHectare, "ConvertCubicMetersPerAcreToLitersPerHectare"},
    {"cubic feet", &U::ConvertLitersPerHectareToCubicFeetPerSpecifiedAreaUnit, "ConvertLitersPerHectareToCubicFeetPerAcre",
                   &U::ConvertCubicFeetPerSpecifiedAreaUnitToLitersPerHectare, "ConvertCubicFeetPerAcreToLitersPerHectare"},
    {"tonnes", &U::ConvertLitersPerHectareToTonnesPerSpecifiedAreaUnit, "ConvertLitersPerHectareToTonnesPerAcre",
               &U::ConvertTonnesPerSpecifiedAreaUnitToLitersPerHectare, "ConvertTonnesPerAcreToLitersPerHectare"},
    {"pounds of liquid", &U::ConvertLitersPerHectareToPoundsPerSpecifiedAreaUnit, "ConvertLitersPerHectareToPoundsPerAcre",
                         &U::ConvertPoundsPerSpecifiedAreaUnitToLitersPerHectare, "ConvertPoundsPerAcreToTonnesPerHectare ConvertTonnesPerHectareToLitersPerHectare"},
    {"pounds", &U::ConvertKilogramsPerHectareToPoundsPerSpecifiedAreaUnit, "ConvertKilogramsPerHectareToPoundsPerAcre",
               &U::ConvertPoundsPerSpecifiedAreaUnitToKilogramsPerHectare, "ConvertPoundsPerAcreToKilogramsPerHectare"},
};

/// The pair by which a unit per area is shown, by measures.
struct tagShownBy
{
    int unit;
    const char* metric;
    const char* us;
    const char* english;
};

const tagShownBy ShownBy[] = {
    {28,  "plain",        "US gallons",       "English gallons"},
    {30,  "millilitres",  "US fluid ounces",  "English fluid ounces"},
    {40,  "cubic metres", "cubic feet",       "cubic feet"},
    {44,  "tonnes",       "pounds of liquid", "pounds of liquid"},
    {75,  "plain",        "pounds",           "pounds"},
    {80,  "plain",        "pounds",           "pounds"},
    {100, "plain",        "plain",            "plain"},
};
// clang-format on

const tagPair& PairOf(const char* name)
{
    for (const tagPair& pair : Pairs) {
        if (qstrcmp(pair.name, name) == 0)
            return pair;
    }
    qFatal("no pair %s", name);
    return Pairs[0];
}

struct tagSteps
{
    QByteArray in;
    QByteArray out;
};

/// The steps of ConvertSpecifiedAreaUnitIn() and ~Out(), none for a unit that is left alone.
tagSteps ExpectedSteps(int unit, const Expected::tagMeasures& measures, int area, bool perTravel)
{
    if (unit == 8)
        return area == 0 ? tagSteps() : tagSteps{"ConvertHectaresToAcres", "ConvertAcresToHectares"};
    if (unit == 28 && perTravel) {
        if (measures.metric)
            return {"ConvertLitersPerHectareToLitersPer100Meters", "ConvertLitersPer100MetersToLitersPerHectare"};
        if (measures.us)
            return {"ConvertLitersPerHectareToUSGallonsPer100Yards", "ConvertUSGallonsPer100YardsToLitersPerHectare"};
        return {"ConvertLitersPerHectareToEnglishGallonsPer100Yards",
                "ConvertEnglishGallonsPer100YardsToLitersPerHectare"};
    }
    for (const tagShownBy& row : ShownBy) {
        if (row.unit == unit && area == 1) {
            const tagPair& pair = PairOf(measures.metric ? row.metric : measures.us ? row.us : row.english);
            return {pair.stepsIn, pair.stepsOut};
        }
    }
    return tagSteps();
}

QByteArray Told(int unit, double value, double result, double expected)
{
    return "unit " + QByteArray::number(unit) + ": " + Digits(value) + " gives " + Digits(result) + ", not " +
           Digits(expected);
}

} // namespace

class ChosenConversions : public QObject
{
    Q_OBJECT

private slots:
    void aPairConvertsInAcresOnly_data();
    void aPairConvertsInAcresOnly();
    void unitsPerAreaFollowTheChoices_data();
    void unitsPerAreaFollowTheChoices();
    void singleRates_data();
    void singleRates();
    void pressuresFollowTheChoice_data();
    void pressuresFollowTheChoice();
    void shortDistancesFollowTheChoice_data();
    void shortDistancesFollowTheChoice();
    void choicesAreReadAtEveryCall();
    void nothingIsWritten();
};

void ChosenConversions::aPairConvertsInAcresOnly_data()
{
    QTest::addColumn<int>("pair");
    QTest::addColumn<int>("area");
    int index = 0;
    for (const tagPair& pair : Pairs) {
        for (const int area : {INT_MIN, -1, 0, 1, 2, INT_MAX})
            QTest::newRow(QByteArray(pair.name) + ", area " + QByteArray::number(area)) << index << area;
        ++index;
    }
    QCOMPARE(index, 11);
}

void ChosenConversions::aPairConvertsInAcresOnly()
{
    QFETCH(int, pair);
    QFETCH(int, area);
    const tagPair& tested = Pairs[pair];
    TTestStore store;
    store.values[8960] = area;
    for (const double value : Values) {
        const double in = area == 1 ? Evaluate(tested.stepsIn, value) : value;
        const double out = area == 1 ? Evaluate(tested.stepsOut, value) : value;
        QVERIFY2(AreSame(tested.in(value), in), Digits(value));
        QVERIFY2(AreSame(tested.out(value), out), Digits(value));
    }
    for (const int read : store.reads)
        QCOMPARE(read, 8960);
}

void ChosenConversions::unitsPerAreaFollowTheChoices_data()
{
    QTest::addColumn<int>("measures");
    QTest::addColumn<int>("area");
    QTest::addColumn<int>("rateBasis");
    QTest::addColumn<bool>("perTravel");
    for (int measures = 0; measures < 4; ++measures) {
        for (const int area : {-1, 0, 1, 2, 3}) {
            for (const int rateBasis : {0, 1, -1}) {
                for (const bool perTravel : {false, true})
                    QTest::newRow(QByteArray(Expected::AllMeasures[measures].name) + ", area " +
                                  QByteArray::number(area) + ", basis " + QByteArray::number(rateBasis) +
                                  (perTravel ? ", per travel" : ""))
                        << measures << area << rateBasis << perTravel;
            }
        }
    }
}

void ChosenConversions::unitsPerAreaFollowTheChoices()
{
    QFETCH(int, measures);
    QFETCH(int, area);
    QFETCH(int, rateBasis);
    QFETCH(bool, perTravel);
    const Expected::tagMeasures& chosen = Expected::AllMeasures[measures];
    TTestStore store;
    store.values[8953] = chosen.metric;
    store.values[8954] = chosen.us;
    store.values[8960] = area;
    store.values[1929] = rateBasis;
    store.values[8966] = perTravel;
    for (const int unit : UnitNumbers()) {
        const tagSteps steps = ExpectedSteps(unit, chosen, area, perTravel && rateBasis == 0);
        for (const double value : Values) {
            const double in = TUnits::ConvertSpecifiedAreaUnitIn(value, Unit(unit));
            QVERIFY2(AreSame(in, Evaluate(steps.in, value)), Told(unit, value, in, Evaluate(steps.in, value)));
            const double out = TUnits::ConvertSpecifiedAreaUnitOut(value, Unit(unit));
            QVERIFY2(AreSame(out, Evaluate(steps.out, value)), Told(unit, value, out, Evaluate(steps.out, value)));
        }
        const double back =
            TUnits::ConvertSpecifiedAreaUnitOut(TUnits::ConvertSpecifiedAreaUnitIn(200, Unit(unit)), Unit(unit));
        QVERIFY2(qAbs(back - 200) <= 1e-4, Digits(back));
    }
}

void ChosenConversions::singleRates_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("measures");
    QTest::addColumn<int>("area");
    QTest::addColumn<double>("stored");
    QTest::addColumn<double>("shown");
    QTest::newRow("acres for anything but hectares") << 8 << 0 << 2 << 1.0 << 2.4710538;
    QTest::newRow("L/ac") << 28 << 0 << 1 << 200.0 << 80.93713;
    QTest::newRow("US gal/ac") << 28 << 3 << 1 << 200.0 << 21.38;
    QTest::newRow("gal/ac") << 28 << 2 << 1 << 200.0 << 17.8037406;
    QTest::newRow("mL/ac from L/ha") << 30 << 0 << 1 << 1.0 << 404.68565;
    QTest::newRow("L/ha where mL/ha are shown") << 30 << 0 << 0 << 1.0 << 1.0;
    QTest::newRow("t/ac from L/ha") << 44 << 0 << 1 << 1000.0 << 0.40468565;
    QTest::newRow("lb/ac from L/ha") << 44 << 2 << 1 << 1000.0 << 892.17913;
    QTest::newRow("lb/ac") << 75 << 2 << 1 << 200.0 << 178.435814;
    QTest::newRow("lbN/ac") << 80 << 3 << 1 << 100.0 << 89.217907;
    QTest::newRow("kiloseeds per acre") << 100 << 2 << 1 << 80.0 << 32.374852;
}

void ChosenConversions::singleRates()
{
    QFETCH(int, unit);
    QFETCH(int, measures);
    QFETCH(int, area);
    QFETCH(double, stored);
    QFETCH(double, shown);
    TTestStore store;
    store.values[8953] = Expected::AllMeasures[measures].metric;
    store.values[8954] = Expected::AllMeasures[measures].us;
    store.values[8960] = area;
    const double in = TUnits::ConvertSpecifiedAreaUnitIn(stored, Unit(unit));
    QVERIFY2(qAbs(in - shown) <= 1e-7 * shown, Digits(in));
    const double out = TUnits::ConvertSpecifiedAreaUnitOut(shown, Unit(unit));
    QVERIFY2(qAbs(out - stored) <= 5e-7 * stored, Digits(out));
}

void ChosenConversions::pressuresFollowTheChoice_data()
{
    QTest::addColumn<int>("choice");
    QTest::addColumn<QByteArray>("in");
    QTest::addColumn<QByteArray>("out");
    for (const int choice : {INT_MIN, -1, 0, 3, 4, INT_MAX})
        QTest::newRow(QByteArray::number(choice)) << choice << QByteArray() << QByteArray();
    QTest::newRow("psi") << 1 << QByteArray("ConvertKilopascalsToPoundsPerSquareInch")
                         << QByteArray("ConvertPoundsPerSquareInchToKilopascals");
    QTest::newRow("bar") << 2 << QByteArray("ConvertKilopascalsToBar") << QByteArray("ConvertBarToKilopascals");
}

void ChosenConversions::pressuresFollowTheChoice()
{
    QFETCH(int, choice);
    QFETCH(QByteArray, in);
    QFETCH(QByteArray, out);
    TTestStore store;
    store.values[8957] = choice;
    for (const double value : Values) {
        QVERIFY2(AreSame(TUnits::ConvertSpecifiedPressureUnitIn(value), Evaluate(in, value)), Digits(value));
        QVERIFY2(AreSame(TUnits::ConvertSpecifiedPressureUnitOut(value), Evaluate(out, value)), Digits(value));
    }
}

void ChosenConversions::shortDistancesFollowTheChoice_data()
{
    QTest::addColumn<int>("choice");
    for (const int choice : {INT_MIN, -1, 0, 1, 2, 3, INT_MAX})
        QTest::newRow(QByteArray::number(choice)) << choice;
}

void ChosenConversions::shortDistancesFollowTheChoice()
{
    QFETCH(int, choice);
    const bool isImperial = choice == 1 || choice == 2;
    TTestStore store;
    store.values[8961] = choice;
    for (const int unit : UnitNumbers()) {
        const bool isFeet = (unit == 5 && isImperial) || (unit == 1 && choice == 2);
        const bool isInches = (unit == 7 && isImperial) || (unit == 1 && choice == 1);
        const QByteArray in = isFeet ? "ConvertMetersToFeet" : isInches ? "ConvertMetersToInches" : "";
        const QByteArray out = isFeet ? "ConvertFeetToMeters" : isInches ? "ConvertInchesToMeters" : "";
        for (const double value : Values) {
            const double shown = TUnits::ConvertSpecifiedShortDistanceUnitIn(value, Unit(unit));
            QVERIFY2(AreSame(shown, Evaluate(in, value)), Told(unit, value, shown, Evaluate(in, value)));
            const double stored = TUnits::ConvertSpecifiedShortDistanceUnitOut(value, Unit(unit));
            QVERIFY2(AreSame(stored, Evaluate(out, value)), Told(unit, value, stored, Evaluate(out, value)));
        }
    }
}

void ChosenConversions::choicesAreReadAtEveryCall()
{
    TTestStore store;
    store.values[8953] = true;
    QCOMPARE(TUnits::ConvertSpecifiedAreaUnitIn(100, UNITS_L_PER_HA), 100.0);
    store.values[8960] = 1;
    QCOMPARE(TUnits::ConvertSpecifiedAreaUnitIn(100, UNITS_L_PER_HA), TUnits::ConvertPerHectareToPerAcre(100));
    store.values[8966] = true;
    QCOMPARE(TUnits::ConvertSpecifiedAreaUnitIn(100, UNITS_L_PER_HA), 1.0);
    store.values[1929] = 1;
    store.values[8953] = false;
    QCOMPARE(TUnits::ConvertSpecifiedAreaUnitIn(100, UNITS_L_PER_HA),
             TUnits::ConvertLitersPerHectareToEnglishGallonsPerAcre(100));
    store.values[8954] = true;
    QCOMPARE(TUnits::ConvertSpecifiedAreaUnitIn(100, UNITS_L_PER_HA),
             TUnits::ConvertLitersPerHectareToUSGallonsPerAcre(100));

    QCOMPARE(TUnits::ConvertSpecifiedPressureUnitIn(100), 100.0);
    store.values[8957] = 1;
    QCOMPARE(TUnits::ConvertSpecifiedPressureUnitIn(100), TUnits::ConvertKilopascalsToPoundsPerSquareInch(100));
    QCOMPARE(TUnits::ConvertSpecifiedShortDistanceUnitIn(1, UNITS_METERS), 1.0);
    store.values[8961] = 1;
    QCOMPARE(TUnits::ConvertSpecifiedShortDistanceUnitIn(1, UNITS_METERS), TUnits::ConvertMetersToInches(1));
}

void ChosenConversions::nothingIsWritten()
{
    TTestStore store;
    for (const int unit : UnitNumbers()) {
        TUnits::ConvertSpecifiedAreaUnitIn(1, Unit(unit));
        TUnits::ConvertSpecifiedAreaUnitOut(1, Unit(unit));
        TUnits::ConvertSpecifiedShortDistanceUnitIn(1, Unit(unit));
        TUnits::ConvertSpecifiedShortDistanceUnitOut(1, Unit(unit));
    }
    TUnits::ConvertSpecifiedPressureUnitIn(1);
    TUnits::ConvertSpecifiedPressureUnitOut(1);
    QVERIFY(store.writes.isEmpty());
}

int main(int argc, char** argv) { return RunCoreTest<ChosenConversions>(argc, argv); }
#include "ChosenConversions.moc"
