#include "CoreTest.h"
#include "TestHost.h"

#include "units/TUnitAbbreviations.h"
#include "units/TUnits.h"

#include <cmath>

/// The units with one more among them, which has an enumerator and a row and nothing else.
class AddedUnit : public QObject
{
    Q_OBJECT

private slots:
    void init() { TUnitAbbreviations::Initialize(); }

    void itIsCounted();
    void itIsFoundByItsAbbreviation();
    void itIsConverted();
    void itIsShown();
    void allOthersAreAsTheyWere();
};

void AddedUnit::itIsCounted()
{
    QCOMPARE(static_cast<int>(UNITS_CHAINS), 115);
    QCOMPARE(static_cast<int>(TUnitAbbreviations::UnitCount), 116);
}

void AddedUnit::itIsFoundByItsAbbreviation()
{
    QCOMPARE(TUnitAbbreviations::GetStringFromUnitType(UNITS_CHAINS, true), QString::fromLatin1("ch"));
    QCOMPARE(TUnitAbbreviations::GetUnitTypeFromString(QString::fromLatin1("CH"), true), UNITS_CHAINS);
    QVERIFY(TUnitAbbreviations::UnitTypeRequiresSpacing(UNITS_CHAINS));
}

void AddedUnit::itIsConverted()
{
    const double metersPerChain = 20.1168;
    QVERIFY(TUnits::CanConvert(UNITS_CHAINS, UNITS_METERS));
    QVERIFY(std::fabs(TUnits::ConvertUnit(1, UNITS_CHAINS, UNITS_METERS) - metersPerChain) < 1e-5);
    QVERIFY(std::fabs(TUnits::ConvertFromMeter(metersPerChain, UNITS_CHAINS) - 1) < 1e-6);
    QVERIFY(!TUnits::CanConvert(UNITS_CHAINS, UNITS_FEET));
    QCOMPARE(TUnits::GetConversionHub(UNITS_CHAINS), UNITS_METERS);
    QCOMPARE(TUnits::DetermineDefaultUnitFromUnitsType(UNITS_CHAINS), UNITS_METERS);
    QCOMPARE(TUnits::GetConversionFactor(UNITS_METERS, QString::fromLatin1("ch")),
             TUnits::ConvertUnit(1, UNITS_METERS, UNITS_CHAINS));
    QVERIFY(!TUnits::DependsOnUSMeasures(UNITS_CHAINS));
}

void AddedUnit::itIsShown()
{
    const TTestStore store;
    QCOMPARE(TUnits::GetDefaultPrecision(UNITS_CHAINS), 3);
    QCOMPARE(TUnits::GetStoredUnit(UNITS_CHAINS), UNITS_CHAINS);
    QCOMPARE(TUnits::DetermineActualUnitFromUnitsType(UNITS_CHAINS), UNITS_CHAINS);
    QCOMPARE(TUnits::GetValueString(2.5, UNITS_CHAINS, 2, nullptr), QString::fromLatin1("2.50 ch"));
}

void AddedUnit::allOthersAreAsTheyWere()
{
    QCOMPARE(static_cast<int>(UNITS_LONGITUDE), 114);
    QCOMPARE(TUnitAbbreviations::GetStringFromUnitType(UNITS_MILLIWATTS, true), QString::fromLatin1("mW"));
    QCOMPARE(TUnits::ConvertUnit(1, UNITS_METERS, UNITS_FEET), TUnits::ConvertMetersToFeet(1));
    const EUnitsType none = static_cast<EUnitsType>(116);
    QVERIFY(!TUnits::CanConvert(none, UNITS_METERS));
    QCOMPARE(TUnits::GetDefaultPrecision(none), -1);
    QCOMPARE(TUnits::GetConversionHub(none), none);
}

int main(int argc, char** argv) { return RunCoreTest<AddedUnit>(argc, argv); }
#include "AddedUnit.moc"
