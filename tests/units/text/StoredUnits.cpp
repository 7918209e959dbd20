#include "CoreTest.h"
#include "TChosenUnits.h"

#include <cmath>

/// The unit of the value that each unit's text is made of, and which units depend on the measures.
class StoredUnits : public QObject
{
    Q_OBJECT

private slots:
    void everyUnitNamesTheUnitOfItsValue_data();
    void everyUnitNamesTheUnitOfItsValue();
    void theTextShowsTheValueConvertedFromThatUnit_data() { everyUnitNamesTheUnitOfItsValue_data(); }
    void theTextShowsTheValueConvertedFromThatUnit();
    void gallonsAndFluidOuncesDependOnTheMeasures_data() { everyUnitNamesTheUnitOfItsValue_data(); }
    void gallonsAndFluidOuncesDependOnTheMeasures();
    void numbersThatAreNoUnitHaveNeither();
};

namespace {

struct tagStored
{
    EUnitsType unit;
    EUnitsType stored;
};

/// Every other unit takes its values in itself.
const tagStored StoredElsewhere[] = {
    {UNITS_MILLIMETERS, UNITS_METERS},         {UNITS_FEET, UNITS_METERS},
    {UNITS_KPH, UNITS_METERS_PER_SECOND},      {UNITS_MILLILITERS, UNITS_LITERS},
    {UNITS_CUBIC_METERS, UNITS_LITERS},        {UNITS_TONNES, UNITS_LITERS},
    {UNITS_US_BUSHELS, UNITS_LITERS},          {UNITS_UK_BUSHELS, UNITS_LITERS},
    {UNITS_ML_PER_HA, UNITS_L_PER_HA},         {UNITS_M3_PER_HA, UNITS_L_PER_HA},
    {UNITS_T_PER_HA, UNITS_L_PER_HA},          {UNITS_ML_PER_MIN, UNITS_L_PER_MIN},
    {UNITS_M3_PER_MIN, UNITS_L_PER_MIN},       {UNITS_T_PER_MIN, UNITS_L_PER_MIN},
    {UNITS_PULSES_PER_ML, UNITS_PULSES_PER_L}, {UNITS_PULSES_PER_M3, UNITS_PULSES_PER_L},
    {UNITS_PULSES_PER_T, UNITS_PULSES_PER_L},  {UNITS_KG_PER_M3, UNITS_KG_PER_L},
    {UNITS_KG_PER_US_BU, UNITS_KG_PER_L},      {UNITS_KG_PER_UK_BU, UNITS_KG_PER_L},
};

EUnitsType ExpectedStored(EUnitsType unit)
{
    for (const tagStored& row : StoredElsewhere) {
        if (row.unit == unit)
            return row.stored;
    }
    return unit;
}

const EUnitsType OfUSOrEnglishMeasures[] = {
    UNITS_GALLONS,        UNITS_FLUID_OUNCES,    UNITS_GAL_PER_HA,  UNITS_GAL_PER_AC,   UNITS_FLOZ_PER_AC,
    UNITS_FLOZ_PER_HA,    UNITS_GAL_PER_100YD,   UNITS_GAL_PER_MIN, UNITS_FLOZ_PER_MIN, UNITS_GAL_PER_REV,
    UNITS_PULSES_PER_GAL, UNITS_PULSES_PER_FLOZ, UNITS_LB_PER_GAL,
};

EUnitsType Unit(int number) { return static_cast<EUnitsType>(number); }

} // namespace

void StoredUnits::everyUnitNamesTheUnitOfItsValue_data()
{
    QTest::addColumn<int>("number");
    for (int number = 0; number < TUnitAbbreviations::UnitCount; ++number)
        QTest::newRow(QByteArray::number(number).constData()) << number;
}

void StoredUnits::everyUnitNamesTheUnitOfItsValue()
{
    QFETCH(int, number);
    QCOMPARE(TUnits::GetStoredUnit(Unit(number)), ExpectedStored(Unit(number)));
}

void StoredUnits::theTextShowsTheValueConvertedFromThatUnit()
{
    QFETCH(int, number);
    TChosenUnits store;
    store.ChooseMeasures(true, false);
    const double value = 5000;
    QString text;
    QString unitText;
    TUnits::GetValueUnitString(value, text, unitText, Unit(number), -1, nullptr);
    const EUnitsType named = TUnitAbbreviations::GetUnitTypeFromString(unitText, true);
    const EUnitsType shown = named == UNITS_NONE ? Unit(number) : named;
    const int decimals = static_cast<int>(text.section(QLatin1Char('.'), 1).size());
    const double expected = TUnits::ConvertUnit(value, TUnits::GetStoredUnit(Unit(number)), shown);
    QVERIFY2(std::fabs(text.toDouble() - expected) <= 0.5 * std::pow(10.0, -decimals), qPrintable(text));
}

void StoredUnits::gallonsAndFluidOuncesDependOnTheMeasures()
{
    QFETCH(int, number);
    bool isListed = false;
    for (const EUnitsType unit : OfUSOrEnglishMeasures)
        isListed = isListed || unit == number;
    QCOMPARE(TUnits::DependsOnUSMeasures(Unit(number)), isListed);

    // A unit that a switch of the measures makes larger or smaller is listed, and no other.
    TChosenUnits store;
    const EUnitsType hub = TUnits::DetermineDefaultUnitFromUnitsType(Unit(number));
    store.ChooseMeasures(false, true);
    const double us = TUnits::ConvertUnit(1, Unit(number), hub);
    store.ChooseMeasures(false, false);
    const double english = TUnits::ConvertUnit(1, Unit(number), hub);
    QCOMPARE(us < english || us > english, isListed);
}

void StoredUnits::numbersThatAreNoUnitHaveNeither()
{
    for (const int number : {-1, static_cast<int>(TUnitAbbreviations::UnitCount), 1000}) {
        QCOMPARE(TUnits::GetStoredUnit(Unit(number)), Unit(number));
        QVERIFY(!TUnits::DependsOnUSMeasures(Unit(number)));
    }
}

int main(int argc, char** argv) { return RunCoreTest<StoredUnits>(argc, argv); }
#include "StoredUnits.moc"
