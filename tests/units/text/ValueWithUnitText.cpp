#include "CoreTest.h"
#include "TChosenUnits.h"

#include <cfloat>
#include <cmath>
#include <limits>

/// A value with a text for its unit; two texts stand for a time of day and a date.
class ValueWithUnitText : public QObject
{
    Q_OBJECT

private slots:
    void numbersHaveTheDecimalsAskedFor_data();
    void numbersHaveTheDecimalsAskedFor();
    void aThresholdChangesTheDecimals_data();
    void aThresholdChangesTheDecimals();
    void hoursAreShownAsATimeOfDay_data();
    void hoursAreShownAsATimeOfDay();
    void aJulianDayIsShownAsADate_data();
    void aJulianDayIsShownAsADate();
    void everyDayOfFourCenturiesIsShown();
    void precisionAndThresholdDoNotTouchTimesAndDates();
    void theTextIsSplitAtItsFirstBlank_data();
    void theTextIsSplitAtItsFirstBlank();
    void quantitiesAreSplitToo_data();
    void quantitiesAreSplitToo();
};

namespace {

using Spec = TUnits::tagThresholdSpec;

const double NaN = std::numeric_limits<double>::quiet_NaN();
const double Infinity = std::numeric_limits<double>::infinity();

} // namespace

void ValueWithUnitText::numbersHaveTheDecimalsAskedFor_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<int>("precision");
    QTest::addColumn<QString>("text");

    const double pi = 3.14159265358979;
    const struct
    {
        const char* name;
        double value;
        const char* unit;
        int precision;
        const char* text;
    } rows[] = {
        {"general notation", 2.5, "", -1, "2.5"},
        {"general notation, a million", 1e6, "", -1, "1e+06"},
        {"general notation, below a million", 999999, "", -1, "999999"},
        {"general notation, six digits", pi, "", -1, "3.14159"},
        {"general notation, whole", 100, "", -1, "100"},
        {"general notation, small", 0.0001, "", -1, "0.0001"},
        {"general notation, smaller", 0.00001, "", -1, "1e-05"},
        {"general notation, negative", -2.5, "", -1, "-2.5"},
        {"general notation, unit close behind", 2.5, "kg", -1, "2.5kg"},
        {"general notation, unit with a blank", 2.5, " kg", -1, "2.5 kg"},
        {"general notation, further below zero", 2.5, "", -7, "2.5"},
        {"no decimals", pi, "", 0, "3"},
        {"1", pi, "", 1, "3.1"},
        {"2", pi, "", 2, "3.14"},
        {"3", pi, "", 3, "3.142"},
        {"4", pi, "", 4, "3.1416"},
        {"5", pi, "", 5, "3.14159"},
        {"6", pi, "", 6, "3.141593"},
        {"7", pi, "", 7, "3.1415927"},
        {"8", pi, "", 8, "3.14159265"},
        {"9", pi, "", 9, "3.141592654"},
        {"10", pi, "", 10, "3.1415926536"},
        {"zeros are kept", 2, "", 10, "2.0000000000"},
        {"two decimals and nothing behind", 2.5, "", 2, "2.50"},
        {"unit close behind", 12.345, "kg/ha", 1, "12.3kg/ha"},
        {"unit with a blank", 12.345, " kg/ha", 1, "12.3 kg/ha"},
        {"unit of blanks", 1, " ", 0, "1 "},
        {"unit beyond Latin 1", 1, " \u043a\u0433", 0, "1 \u043a\u0433"},
        {"unit with percent signs", 50, "%1 %n %", 0, "50%1 %n %"},
        {"time in another spelling is a unit", 7.5, "hh:mm:ss", 1, "7.5hh:mm:ss"},
        {"date in another spelling is a unit", 7.5, "dd/mm/yyyy", 1, "7.5dd/mm/yyyy"},
        {"time with a blank is a unit", 7.5, " HH:mm:ss", 1, "7.5 HH:mm:ss"},
        {"negative", -1.005e3, "", 1, "-1005.0"},
        {"rounding up a digit", 9.96, "", 1, "10.0"},
        {"large", 1e15, "", 1, "1000000000000000.0"},
        {"NaN", NaN, " kg", 2, "nan kg"},
        {"infinity", Infinity, " kg", 2, "inf kg"},
        {"negative infinity", -Infinity, " kg", -1, "-inf kg"},
    };
    for (const auto& row : rows)
        QTest::newRow(row.name) << row.value << Utf8(row.unit) << row.precision << Utf8(row.text);
}

void ValueWithUnitText::numbersHaveTheDecimalsAskedFor()
{
    QFETCH(double, value);
    QFETCH(QString, unit);
    QFETCH(int, precision);
    QFETCH(QString, text);
    const TChosenUnits store;
    QCOMPARE(TUnits::GetValueString(value, unit, precision, nullptr), text);
}

void ValueWithUnitText::aThresholdChangesTheDecimals_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("threshold");
    QTest::addColumn<int>("then");
    QTest::addColumn<int>("precision");
    QTest::addColumn<QString>("text");

    QTest::newRow("below") << 99.5 << 100.0 << 0 << 2 << Utf8("99.50");
    QTest::newRow("just below") << 99.99 << 100.0 << 0 << 2 << Utf8("99.99");
    QTest::newRow("at") << 100.0 << 100.0 << 0 << 2 << Utf8("100");
    QTest::newRow("above") << 1234.6 << 100.0 << 0 << 2 << Utf8("1235");
    QTest::newRow("to more decimals") << 100.0 << 100.0 << 4 << 2 << Utf8("100.0000");
    QTest::newRow("from none to some decimals") << 123.456 << 100.0 << 2 << 0 << Utf8("123.46");
    QTest::newRow("negative") << -200.0 << 100.0 << 0 << 2 << Utf8("-200.00");
    QTest::newRow("negative threshold") << -200.0 << -250.0 << 0 << 2 << Utf8("-200");
    QTest::newRow("not in general notation") << 1234.5678 << 100.0 << 1 << -1 << Utf8("1234.57");
    QTest::newRow("NaN") << NaN << 100.0 << 0 << 2 << Utf8("nan");
    QTest::newRow("infinity") << Infinity << 100.0 << 0 << 2 << Utf8("inf");
}

void ValueWithUnitText::aThresholdChangesTheDecimals()
{
    QFETCH(double, value);
    QFETCH(double, threshold);
    QFETCH(int, then);
    QFETCH(int, precision);
    QFETCH(QString, text);
    const TChosenUnits store;
    const Spec spec = {static_cast<float>(threshold), then};
    QCOMPARE(TUnits::GetValueString(value, QString(), precision, &spec), text);
    QCOMPARE(TUnits::GetValueString(value, Utf8(" kg"), precision, &spec), text + Utf8(" kg"));
}

void ValueWithUnitText::hoursAreShownAsATimeOfDay_data()
{
    QTest::addColumn<double>("hours");
    QTest::addColumn<QString>("of24");
    QTest::addColumn<QString>("of12");

    const struct
    {
        const char* name;
        double hours;
        const char* of24;
        const char* of12;
    } rows[] = {
        {"half past seven", 7.5, "7:30", "7:30 am"},
        {"midnight", 0.0, "0:00", "12:00 am"},
        {"negative zero", -0.0, "0:00", "12:00 am"},
        {"a quarter past one", 13.25, "13:15", "1:15 pm"},
        {"noon", 12.0, "12:00", "12:00 pm"},
        {"before noon", 11.75, "11:45", "11:45 am"},
        {"a quarter past noon", 12.25, "12:15", "12:15 pm"},
        {"a quarter past midnight", 0.25, "0:15", "12:15 am"},
        {"late", 23.5, "23:30", "11:30 pm"},
        {"minutes are padded", 9.05, "9:03", "9:03 am"},
        {"minutes round up", 6.009, "6:01", "6:01 am"},
        {"minutes round down", 6.008, "6:00", "6:00 am"},
        {"no carry into the hour", 7.999, "7:60", "7:60 am"},
        {"no carry before noon", 11.999, "11:60", "11:60 am"},
        {"the last minute of the day", 23.999, "23:60", "11:60 pm"},
        {"the next midnight", 24.0, "24:00", "12:00 pm"},
        {"two days", 49.5, "49:30", "1:30 pm"},
        {"negative", -1.5, "-1:-30", "-1:-30 am"},
        {"negative minutes only", -0.25, "0:-15", "12:-15 am"},
        {"less than half a minute back", -0.0075, "0:00", "12:00 am"},
        {"half a day back", -12.0, "-12:00", "12:00 am"},
        {"NaN", NaN, "0:00", "12:00 am"},
        {"infinity", Infinity, nullptr, nullptr},
        {"huge", DBL_MAX, nullptr, nullptr},
        {"hugely negative", -DBL_MAX, nullptr, nullptr},
        {"beyond an int", 3e9, nullptr, nullptr},
        {"denormal", 4.9e-324, "0:00", "12:00 am"},
    };
    for (const auto& row : rows)
        QTest::newRow(row.name) << row.hours << Utf8(row.of24) << Utf8(row.of12);
}

void ValueWithUnitText::hoursAreShownAsATimeOfDay()
{
    QFETCH(double, hours);
    QFETCH(QString, of24);
    QFETCH(QString, of12);
    TChosenUnits store;
    store.values[9011] = true;
    const QString in24 = TUnits::GetValueString(hours, Utf8("HH:mm:ss"), -1, nullptr);
    store.values[9011] = false;
    const QString in12 = TUnits::GetValueString(hours, Utf8("HH:mm:ss"), -1, nullptr);
    store.values.remove(9011);
    QCOMPARE(TUnits::GetValueString(hours, Utf8("HH:mm:ss"), -1, nullptr), in12);
    if (of24.isEmpty()) { // no time at all, but a text all the same
        QVERIFY(in24.contains(QLatin1Char(':')));
        QVERIFY(in12.endsWith(QLatin1Char('m')));
        return;
    }
    QCOMPARE(in24, of24);
    QCOMPARE(in12, of12);
}

void ValueWithUnitText::aJulianDayIsShownAsADate_data()
{
    QTest::addColumn<double>("day");
    QTest::addColumn<QString>("dayFirst");
    QTest::addColumn<QString>("monthFirst");

    QTest::newRow("3 March 2014") << 2456720.0 << Utf8("3/3/2014") << Utf8("3/3/2014");
    QTest::newRow("the turn of the century") << 2451545.0 << Utf8("1/1/2000") << Utf8("1/1/2000");
    QTest::newRow("the last of a year") << 2457023.0 << Utf8("31/12/2014") << Utf8("12/31/2014");
    QTest::newRow("leap day") << 2460370.0 << Utf8("29/2/2024") << Utf8("2/29/2024");
    QTest::newRow("part of a day is cut") << 2460370.99 << Utf8("29/2/2024") << Utf8("2/29/2024");
    QTest::newRow("the first second of the system clock") << 2440588.0 << Utf8("1/1/1970") << Utf8("1/1/1970");
    QTest::newRow("NaN") << NaN << QString() << QString();
    QTest::newRow("infinity") << Infinity << QString() << QString();
    QTest::newRow("negative infinity") << -Infinity << QString() << QString();
    QTest::newRow("zero") << 0.0 << QString() << QString();
    QTest::newRow("negative") << -5.0 << QString() << QString();
    QTest::newRow("huge") << DBL_MAX << QString() << QString();
}

void ValueWithUnitText::aJulianDayIsShownAsADate()
{
    QFETCH(double, day);
    QFETCH(QString, dayFirst);
    QFETCH(QString, monthFirst);
    TChosenUnits store;
    store.values[9012] = false;
    const QString byDay = TUnits::GetValueString(day, Utf8("DD/MM/YYYY"), -1, nullptr);
    store.values[9012] = true;
    const QString byMonth = TUnits::GetValueString(day, Utf8("DD/MM/YYYY"), -1, nullptr);
    store.values.remove(9012);
    QCOMPARE(TUnits::GetValueString(day, Utf8("DD/MM/YYYY"), -1, nullptr), byDay);
    QCOMPARE(byDay.count(QLatin1Char('/')), byMonth.count(QLatin1Char('/')));
    if (dayFirst.isEmpty()) { // no date that a calendar knows, but three numbers all the same
        QCOMPARE(static_cast<int>(byDay.count(QLatin1Char('/'))), 2);
        return;
    }
    QCOMPARE(byDay, dayFirst);
    QCOMPARE(byMonth, monthFirst);
}

void ValueWithUnitText::everyDayOfFourCenturiesIsShown()
{
    TChosenUnits store;
    const int daysOfMonths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    int julianDay = 2378497; // 1 January 1800
    for (int year = 1800; year < 2200; ++year) {
        const bool isLeap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
        for (int month = 1; month <= 12; ++month) {
            const int days = daysOfMonths[month - 1] + (isLeap && month == 2 ? 1 : 0);
            for (int day = 1; day <= days; ++day, ++julianDay)
                QCOMPARE(TUnits::GetValueString(julianDay, Utf8("DD/MM/YYYY"), 0, nullptr),
                         QString::number(day) + QLatin1Char('/') + QString::number(month) + QLatin1Char('/') +
                             QString::number(year));
        }
    }
}

void ValueWithUnitText::precisionAndThresholdDoNotTouchTimesAndDates()
{
    TChosenUnits store;
    store.values[9011] = true;
    const Spec spec = {0.0F, 3};
    for (int precision : {-1, 0, 2, 100}) {
        QCOMPARE(TUnits::GetValueString(7.5, Utf8("HH:mm:ss"), precision, &spec), Utf8("7:30"));
        QCOMPARE(TUnits::GetValueString(2460370, Utf8("DD/MM/YYYY"), precision, &spec), Utf8("29/2/2024"));
    }
}

void ValueWithUnitText::theTextIsSplitAtItsFirstBlank_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("rest");

    QTest::newRow("unit") << 12.5 << Utf8(" kg") << Utf8("12.50") << Utf8("kg");
    QTest::newRow("unit with blanks") << 12.5 << Utf8(" gal/ac (US)") << Utf8("12.50") << Utf8("gal/ac (US)");
    QTest::newRow("two blanks") << 12.5 << Utf8("  kg") << Utf8("12.50") << Utf8(" kg");
    QTest::newRow("no blank") << 12.5 << Utf8("kg") << Utf8("12.50kg") << QString();
    QTest::newRow("no unit") << 12.5 << QString() << Utf8("12.50") << QString();
    QTest::newRow("blank only") << 12.5 << Utf8(" ") << Utf8("12.50") << QString();
    QTest::newRow("time") << 13.25 << Utf8("HH:mm:ss") << Utf8("1:15") << Utf8("pm");
    QTest::newRow("date") << 2460370.0 << Utf8("DD/MM/YYYY") << Utf8("29/2/2024") << QString();
}

void ValueWithUnitText::theTextIsSplitAtItsFirstBlank()
{
    QFETCH(double, value);
    QFETCH(QString, unit);
    QFETCH(QString, number);
    QFETCH(QString, rest);
    const TChosenUnits store;
    QString valueText = Utf8("old");
    QString unitText = Utf8("old");
    TUnits::GetValueUnitString(value, valueText, unitText, unit, 2, nullptr);
    QCOMPARE(valueText, number);
    QCOMPARE(unitText, rest);

    const Spec spec = {0.0F, 2};
    TUnits::GetValueUnitString(value, valueText, unitText, unit, 5, &spec);
    QCOMPARE(valueText, number);
    QCOMPARE(unitText, rest);
}

void ValueWithUnitText::quantitiesAreSplitToo_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("precision");
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("rest");

    QTest::newRow("kilograms") << 12.5 << int(UNITS_KG) << 2 << Utf8("12.50") << Utf8("kg");
    QTest::newRow("default precision") << 12.25 << int(UNITS_HECTARES) << -1 << Utf8("12.25") << Utf8("ha");
    QTest::newRow("by value") << 12.26 << int(UNITS_L_PER_HA) << 100 << Utf8("12.3") << Utf8("L/ha");
    QTest::newRow("unit with blanks") << 12.5 << int(UNITS_US_GAL_PER_AC) << 1 << Utf8("12.5") << Utf8("gal/ac (US)");
    QTest::newRow("bushels") << 352.39071 << int(UNITS_US_BUSHELS) << -1 << Utf8("10.0") << Utf8("US bu");
    QTest::newRow("no unit") << 12.5 << int(UNITS_NONE) << 1 << Utf8("12.5") << QString();
    QTest::newRow("close unit") << 12.5 << int(UNITS_LATITUDE) << 1 << Utf8("12.50000000") << QString();
    QTest::newRow("temperature") << 12.4 << int(UNITS_CELSIUS) << -1 << Utf8("12") << Utf8("\u00b0C");
    QTest::newRow("number that is no unit") << 12.5 << 115 << -1 << Utf8("12.5") << QString();
}

void ValueWithUnitText::quantitiesAreSplitToo()
{
    QFETCH(double, value);
    QFETCH(int, unit);
    QFETCH(int, precision);
    QFETCH(QString, number);
    QFETCH(QString, rest);
    TChosenUnits store;
    store.ChooseMeasures(true, false);
    QString valueText = Utf8("old");
    QString unitText = Utf8("old");
    TUnits::GetValueUnitString(value, valueText, unitText, static_cast<EUnitsType>(unit), precision, nullptr);
    QCOMPARE(valueText, number);
    QCOMPARE(unitText, rest);
}

int main(int argc, char** argv) { return RunCoreTest<ValueWithUnitText>(argc, argv); }
#include "ValueWithUnitText.moc"
