#include "CoreTest.h"
#include "Latin1.h"

#include "units/TUnitAbbreviations.h"
#include "units/TUnits.h"

/// In a process of its own, since nothing empties the abbreviations again.
class UnitAbbreviationsBeforeStart : public QObject
{
    Q_OBJECT

private slots:
    void everyAbbreviationIsEmpty();
    void everyTextIsNoUnit_data();
    void everyTextIsNoUnit();
    void spacesAreTheSameAsLater();
    void everyConversionFactorIsOne();
};

void UnitAbbreviationsBeforeStart::everyAbbreviationIsEmpty()
{
    for (int unit = 0; unit < 115; ++unit) {
        QVERIFY(TUnitAbbreviations::UnitAbbreviations[unit].isEmpty());
        QVERIFY(TUnitAbbreviations::GetStringFromUnitType(static_cast<EUnitsType>(unit), true).isEmpty());
    }
    for (const QString& month : TUnitAbbreviations::Months)
        QVERIFY(month.isEmpty());
}

void UnitAbbreviationsBeforeStart::everyTextIsNoUnit_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QString();
    QTest::newRow("metres") << Latin1("m");
    QTest::newRow("inches") << Latin1("\"");
    QTest::newRow("speed calibration") << Latin1("Hz/kph");
    QTest::newRow("degrees") << Latin1("\xB0"
                                       "C");
}

void UnitAbbreviationsBeforeStart::everyTextIsNoUnit()
{
    QFETCH(QString, text);
    QCOMPARE(TUnitAbbreviations::GetUnitTypeFromString(text, false), UNITS_NONE);
}

void UnitAbbreviationsBeforeStart::spacesAreTheSameAsLater()
{
    QVERIFY(!TUnitAbbreviations::UnitTypeRequiresSpacing(UNITS_FEET));
    QVERIFY(!TUnitAbbreviations::UnitTypeRequiresSpacing(UNITS_CELSIUS));
    QVERIFY(TUnitAbbreviations::UnitTypeRequiresSpacing(UNITS_METERS));
    QVERIFY(TUnitAbbreviations::UnitTypeRequiresSpacing(UNITS_LONGITUDE));
}

void UnitAbbreviationsBeforeStart::everyConversionFactorIsOne()
{
    for (int unit = 0; unit < 115; ++unit)
        QCOMPARE(TUnits::GetConversionFactor(unit, Latin1("'")), 1.0);
}

int main(int argc, char** argv) { return RunCoreTest<UnitAbbreviationsBeforeStart>(argc, argv); }
#include "UnitAbbreviationsBeforeStart.moc"
