#include "CoreTest.h"
#include "TChosenUnits.h"

#include <cfloat>
#include <climits>
#include <cmath>
#include <limits>

/// Numbers that no sensor should send: every function has a text for them.
class OddNumbers : public QObject
{
    Q_OBJECT

private slots:
    void everyFunctionHasAText_data();
    void everyFunctionHasAText();
    void theyAreShownAsTheyAre();
    void precisionsThatAreNoneShowSixDecimals_data();
    void precisionsThatAreNoneShowSixDecimals();
    void noMoreThanAMillionDecimalsAreShown_data();
    void noMoreThanAMillionDecimalsAreShown();
};

namespace {

using U = TUnits;
using Spec = TUnits::tagThresholdSpec;

/// Every function that shows one number, for each choice of its flags.
QStringList TextsOf(double value, bool metric, bool us, int precision, const Spec* spec)
{
    const float narrow = static_cast<float>(value);
    QStringList texts;
    for (int unit = -1; unit <= 115; ++unit)
        texts << U::GetValueString(value, static_cast<EUnitsType>(unit), precision, spec);
    for (const char* unit : {"", " kg", "HH:mm:ss", "DD/MM/YYYY"})
        texts << U::GetValueString(value, Utf8(unit), precision, spec);
    for (bool flag : {false, true}) {
        texts << U::GetDistanceStringAdaptive(metric, narrow, us, flag);
        texts << U::GetDischargeRateAndRelativeErrorString(metric, flag, narrow, narrow);
        for (EUnitsType product : {UNITS_L_PER_HA, UNITS_KG_N_PER_HA, UNITS_M3_PER_HA, UNITS_T_PER_HA, UNITS_NONE})
            texts << U::GetFlowRateAndRelativeErrorString(metric, us, flag, narrow, narrow, true, product);
    }
    texts << U::GetWeightPerAreaStringDynamicPrecision(value) << U::GetSprayerRequestedRateString(value)
          << U::GetNitrogenWeightPerAreaStringDynamicPrecision(value);
    texts << U::GetLatitudeString(value) << U::GetLongitudeString(value) << U::GetDurationString(narrow)
          << U::GetFormattedDurationString(value);
    return texts;
}

} // namespace

void OddNumbers::everyFunctionHasAText_data()
{
    QTest::addColumn<double>("value");
    QTest::newRow("NaN") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("NaN with a sign") << -std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("infinity") << std::numeric_limits<double>::infinity();
    QTest::newRow("negative infinity") << -std::numeric_limits<double>::infinity();
    QTest::newRow("negative zero") << -0.0;
    QTest::newRow("greatest float") << static_cast<double>(FLT_MAX);
    QTest::newRow("least float") << -static_cast<double>(FLT_MAX);
    QTest::newRow("smallest float") << static_cast<double>(std::numeric_limits<float>::denorm_min());
    QTest::newRow("smallest normal float") << static_cast<double>(FLT_MIN);
    QTest::newRow("greatest double") << DBL_MAX;
    QTest::newRow("smallest double") << std::numeric_limits<double>::denorm_min();
    QTest::newRow("beyond an int") << 2147483648.0;
    QTest::newRow("below an int") << -2147483649.0;
    QTest::newRow("beyond a long") << 1e19;
}

void OddNumbers::everyFunctionHasAText()
{
    QFETCH(double, value);
    TChosenUnits store;
    const Spec spec = {0.0F, 3};
    const Spec* const none = nullptr;
    for (int choices = 0; choices < 48; ++choices) {
        const bool metric = (choices & 1) != 0;
        const bool us = (choices & 2) != 0;
        store.ChooseMeasures(metric, us);
        store.ChooseRatesPerTravel(0, (choices & 4) != 0);
        store.values[PARAM_DEGREES_MINUTES_SECONDS] = (choices & 8) != 0;
        store.ChooseArea(choices / 16);
        store.values[PARAM_PRESSURE_UNIT] = choices / 16;
        store.values[PARAM_SHORT_DISTANCE_UNIT] = choices / 16;
        for (int precision : {-1, 0, 2, 100}) {
            for (const Spec* rule : {none, &spec}) {
                const QStringList texts = TextsOf(value, metric, us, precision, rule);
                for (int i = 0; i < static_cast<int>(texts.size()); ++i)
                    QVERIFY2(!texts[i].isEmpty(), QByteArray::number(i).constData());
            }
        }
    }
}

void OddNumbers::theyAreShownAsTheyAre()
{
    TChosenUnits store;
    store.ChooseMeasures(true, false);
    const double NaN = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const Spec spec = {0.0F, 3};
    QCOMPARE(U::GetValueString(NaN, UNITS_KG, -1, &spec), Utf8("nan kg"));
    QCOMPARE(U::GetValueString(infinity, UNITS_KG, -1, &spec), Utf8("inf kg"));
    QCOMPARE(U::GetValueString(-infinity, UNITS_KG, 2, nullptr), Utf8("-inf kg"));
    QCOMPARE(U::GetValueString(NaN, UNITS_KPA, -1, nullptr), Utf8("nan kPa"));
    QCOMPARE(U::GetValueString(NaN, UNITS_L_PER_HA, 100, nullptr), Utf8("nan L/ha"));
    QCOMPARE(U::GetValueString(-infinity, UNITS_KG_PER_HA, 100, nullptr), Utf8("-inf kg/ha"));
    QCOMPARE(U::GetValueString(-5.0, UNITS_KG_PER_HA, 100, nullptr), Utf8("-5.0 kg/ha"));
    QCOMPARE(U::GetValueString(static_cast<double>(FLT_MAX), UNITS_KG, -1, nullptr),
             Utf8("340282346638528859811704183484516925440 kg"));
    QCOMPARE(U::GetValueString(static_cast<double>(std::numeric_limits<float>::denorm_min()), UNITS_LITERS, 2, nullptr),
             Utf8("0.00 L"));
    store.ChooseMeasures(false, false);
    QCOMPARE(U::GetValueString(NaN, UNITS_KG, -1, nullptr), Utf8("nan lb"));
    // A value beyond every float is infinite where the quantity is stored in 32 bits.
    QCOMPARE(U::GetValueString(DBL_MAX, UNITS_KG, -1, nullptr), Utf8("inf lb"));
}

void OddNumbers::precisionsThatAreNoneShowSixDecimals_data()
{
    QTest::addColumn<int>("precision");
    for (const int precision : {-2, -100, -127, -128, -129, INT_MIN}) // Qt takes -128 for as few digits as will do
        QTest::newRow(QByteArray::number(precision).constData()) << precision;
}

void OddNumbers::precisionsThatAreNoneShowSixDecimals()
{
    QFETCH(int, precision);
    TChosenUnits store;
    store.ChooseMeasures(true, false);
    const Spec spec = {0.0F, precision};
    QCOMPARE(U::GetAreaString(1.25F, precision, nullptr), Utf8("1.250000 ha"));
    QCOMPARE(U::GetAreaString(1.25F, 1, &spec), Utf8("1.250000 ha"));
    QCOMPARE(U::GetDistanceString(1e30F, false, precision, nullptr),
             QString::number(static_cast<double>(1e30F), 'f', 6) + Utf8(" m"));
    QCOMPARE(U::GetVolumeString(true, false, 1.25F, false, UNITS_LITERS, precision, nullptr), Utf8("1.250000 L"));
    QCOMPARE(U::GetWeightPerAreaString(true, 1.25F, precision, nullptr), Utf8("1.250000 kg/ha"));
    QCOMPARE(U::GetValueString(1.25, UNITS_RPM, precision, nullptr), Utf8("1.250000 rpm"));
    QCOMPARE(U::GetValueString(1.25, UNITS_ACRES, precision, nullptr), Utf8("1.25 ac")); // in general notation
}

void OddNumbers::noMoreThanAMillionDecimalsAreShown_data()
{
    const int million = 1000000;
    QTest::addColumn<int>("precision");
    QTest::addColumn<int>("decimals");
    QTest::newRow("one less") << million - 1 << million - 1;
    QTest::newRow("a million") << million << million;
    QTest::newRow("one more") << million + 1 << million;
    QTest::newRow("the greatest int") << INT_MAX << million;
}

void OddNumbers::noMoreThanAMillionDecimalsAreShown()
{
    QFETCH(int, precision);
    QFETCH(int, decimals);
    TChosenUnits store;
    store.ChooseMeasures(true, false);
    const Spec spec = {0.0F, precision};
    const QString shown = Utf8("1.25") + QString(decimals - 2, QLatin1Char('0'));
    // Compared without QCOMPARE, which would print both texts.
    QVERIFY(U::GetValueString(1.25, UNITS_RPM, precision, nullptr) == shown + Utf8(" rpm"));
    QVERIFY(U::GetAreaString(1.25F, precision, nullptr) == shown + Utf8(" ha"));
    QVERIFY(U::GetAreaString(1.25F, 1, &spec) == shown + Utf8(" ha"));
}

int main(int argc, char** argv) { return RunCoreTest<OddNumbers>(argc, argv); }
#include "OddNumbers.moc"
