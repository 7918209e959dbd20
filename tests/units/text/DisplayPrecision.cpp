#include "CoreTest.h"
#include "ExpectedConversions.h"
#include "TestHost.h"
#include "TestSeed.h"

#include <QList>

#include <climits>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>

using Expected::Unit;
using Expected::UnitNumbers;

namespace {

using TLimits = std::numeric_limits<float>;
using TRule = int (*)(float);
using TSpec = TUnits::tagThresholdSpec;

const float Infinity = TLimits::infinity();
const float NaN = TLimits::quiet_NaN();

struct tagRange
{
    int first;
    int last;
    int decimals;
};

const tagRange DefaultPrecisions[] = {
    {0, 0, 0},   {1, 1, 3},   {2, 3, 1},   {4, 4, 0},   {5, 5, 2},   {6, 6, 1},     {7, 9, 2},
    {10, 14, 1}, {15, 18, 2}, {19, 22, 1}, {23, 25, 2}, {26, 27, 1}, {28, 31, 0},   {32, 39, 1},
    {40, 55, 2}, {56, 59, 1}, {60, 60, 2}, {61, 62, 3}, {63, 70, 2}, {71, 74, 0},   {75, 78, 2},
    {79, 79, 0}, {80, 87, 1}, {88, 89, 2}, {90, 97, 1}, {98, 99, 2}, {100, 110, 0},
};

int ExpectedDefaultPrecision(int unit)
{
    for (const tagRange& range : DefaultPrecisions) {
        if (unit >= range.first && unit <= range.last)
            return range.decimals;
    }
    return -1;
}

/// The shortest decimal text that names @p value, widened to a double and printed with one decimal by the C library:
/// a way that shares nothing with the one tested.
bool HasNoFirstDecimal(float value)
{
    char text[64];
    double named = 0;
    int digits = 1;
    do {
        std::snprintf(text, sizeof text, "%.*e", digits - 1, static_cast<double>(value));
        named = std::strtod(text, nullptr);
    } while (std::strtof(text, nullptr) != value && ++digits <= 9);
    const int length = std::snprintf(text, sizeof text, "%.1f", named);
    return text[length - 1] == '0';
}

float Below(float value) { return std::nextafter(value, -Infinity); }
float Above(float value) { return std::nextafter(value, Infinity); }

QByteArray Named(float value) { return QByteArray::number(static_cast<double>(value), 'g', 9); }

} // namespace

class DisplayPrecision : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { std::setlocale(LC_NUMERIC, "C"); } // for the C library's numbers

    void everyUnitHasItsDefault_data();
    void everyUnitHasItsDefault();
    void onlyMinusOneAsksForTheDefault_data() { everyUnitHasItsDefault_data(); }
    void onlyMinusOneAsksForTheDefault();
    void aThresholdRuleWinsFromItsThresholdOn_data();
    void aThresholdRuleWinsFromItsThresholdOn();
    void withoutARuleThePrecisionStays_data();
    void withoutARuleThePrecisionStays();
    void aRuleComesBeforeThePrecisionGivenAndTheDefaultLast();
    void threeRatesHaveAPrecisionOfTheirOwn_data() { everyUnitHasItsDefault_data(); }
    void threeRatesHaveAPrecisionOfTheirOwn();

    void liquidRates_data();
    void liquidRates();
    void nh3Rates_data();
    void nh3Rates();
    void granularRates_data();
    void granularRates();
    void everyTenthIsJudgedByItsPrintedText();
    void anyRateIsJudgedByItsPrintedText();

    void onlyLiquidRatesReadAParameter();
    void theSystemIsReadAtEveryCall();

private:
    static void AddRates(const QList<QPair<float, int>>& rows);
};

void DisplayPrecision::everyUnitHasItsDefault_data()
{
    QTest::addColumn<int>("unit");
    for (const int unit : UnitNumbers())
        QTest::newRow(QByteArray::number(unit)) << unit;
}

void DisplayPrecision::everyUnitHasItsDefault()
{
    QFETCH(int, unit);
    QCOMPARE(TUnits::GetDefaultPrecision(Unit(unit)), ExpectedDefaultPrecision(unit));
}

void DisplayPrecision::onlyMinusOneAsksForTheDefault()
{
    QFETCH(int, unit);
    QCOMPARE(TUnits::GetUnitPrecision(Unit(unit), -1), ExpectedDefaultPrecision(unit));
    for (const int precision : {INT_MIN, -2, 0, 1, 3, 6, 100, INT_MAX})
        QCOMPARE(TUnits::GetUnitPrecision(Unit(unit), precision), precision);
}

void DisplayPrecision::aThresholdRuleWinsFromItsThresholdOn_data()
{
    QTest::addColumn<float>("value");
    QTest::addColumn<float>("threshold");
    QTest::addColumn<bool>("wins");
    QTest::newRow("at the threshold") << 5.0f << 5.0f << true;
    QTest::newRow("just below") << 4.99f << 5.0f << false;
    QTest::newRow("next float below") << Below(5.0f) << 5.0f << false;
    QTest::newRow("next float above") << Above(5.0f) << 5.0f << true;
    QTest::newRow("magnitude does not count") << -6.0f << 5.0f << false;
    QTest::newRow("negative threshold") << -4.0f << -5.0f << true;
    QTest::newRow("zero") << 0.0f << 0.0f << true;
    QTest::newRow("negative zero") << -0.0f << 0.0f << true;
    QTest::newRow("infinite value") << Infinity << 5.0f << true;
    QTest::newRow("infinite threshold") << TLimits::max() << Infinity << false;
    QTest::newRow("both infinite") << Infinity << Infinity << true;
    QTest::newRow("negative infinity") << -Infinity << 5.0f << false;
    QTest::newRow("no number") << NaN << 5.0f << false;
    QTest::newRow("threshold that is no number") << 5.0f << NaN << false;
    QTest::newRow("both no number") << NaN << NaN << false;
}

void DisplayPrecision::aThresholdRuleWinsFromItsThresholdOn()
{
    QFETCH(float, value);
    QFETCH(float, threshold);
    QFETCH(bool, wins);
    for (const int precision : {-1, 0, 1, 2, 100}) {
        for (const int ruled : {-1, 0, 3}) {
            const TSpec spec = {threshold, ruled};
            QCOMPARE(TUnits::GetThresholdPrecision(value, &spec, precision), wins ? ruled : precision);
        }
    }
}

void DisplayPrecision::withoutARuleThePrecisionStays_data()
{
    QTest::addColumn<int>("precision");
    for (const int precision : {INT_MIN, -1, 0, 1, 100, INT_MAX})
        QTest::newRow(QByteArray::number(precision)) << precision;
}

void DisplayPrecision::withoutARuleThePrecisionStays()
{
    QFETCH(int, precision);
    for (const float value : {0.0f, 5.0f, -5.0f, TLimits::max(), Infinity, -Infinity, NaN})
        QCOMPARE(TUnits::GetThresholdPrecision(value, nullptr, precision), precision);
}

void DisplayPrecision::aRuleComesBeforeThePrecisionGivenAndTheDefaultLast()
{
    const TSpec spec = {100.0f, 0};
    const auto precisionOf = [&spec](float hectares, int given) {
        return TUnits::GetUnitPrecision(UNITS_HECTARES, TUnits::GetThresholdPrecision(hectares, &spec, given));
    };
    QCOMPARE(precisionOf(99.5f, -1), 2);
    QCOMPARE(precisionOf(99.5f, 3), 3);
    QCOMPARE(precisionOf(100.0f, 3), 0);
    QCOMPARE(precisionOf(100.0f, -1), 0);
}

void DisplayPrecision::threeRatesHaveAPrecisionOfTheirOwn()
{
    QFETCH(int, unit);
    const bool has = unit == 28 || unit == 75 || unit == 80;
    QCOMPARE(TUnits::IsUnitAbbrDynamicPrecisionSupported(Unit(unit)), has);

    TTestStore store;
    for (const bool metric : {false, true}) {
        store.values[8953] = metric;
        for (const float value : {-1.0f, 0.5f, 5.0f, 9.99f, 12.0f, 12.3f, 99.95f, 100.0f, 1000.0f, Infinity, NaN}) {
            int expected = 0;
            if (unit == 28)
                expected = TUnits::CalculateLiquidRateDynamicPrecision(value);
            else if (unit == 75)
                expected = TUnits::CalculateGranularRateDynamicPrecision(value);
            else if (unit == 80)
                expected = TUnits::CalculateNH3RateDynamicPrecision(value);
            QCOMPARE(TUnits::GetDynamicPrecision(value, Unit(unit)), expected);
        }
    }
    QCOMPARE(TUnits::GetDynamicPrecision(5.0f, Unit(unit)), !has ? 0 : unit == 28 ? 0 : 1);
    QCOMPARE(TUnits::GetDynamicPrecision(0.5f, Unit(unit)), !has ? 0 : unit == 28 ? 2 : 1);
}

void DisplayPrecision::AddRates(const QList<QPair<float, int>>& rows)
{
    QTest::addColumn<float>("rate");
    QTest::addColumn<int>("decimals");
    for (const QPair<float, int>& row : rows)
        QTest::newRow(Named(row.first)) << row.first << row.second;
}

void DisplayPrecision::liquidRates_data()
{
    AddRates({{-Infinity, 2},
              {-100.0f, 2},
              {-0.5f, 2},
              {-0.0f, 2},
              {0.0f, 2},
              {TLimits::denorm_min(), 2},
              {0.5f, 2},
              {0.99f, 2},
              {Below(1.0f), 2},
              {1.0f, 0},
              {Above(1.0f), 0},
              {1.04f, 0},
              {1.05f, 1},
              {1.5f, 1},
              {1.95f, 1},
              {1.96f, 0},
              {1.94f, 1},
              {9.99f, 0},
              {12.0f, 0},
              {12.3f, 1},
              {12.96f, 0},
              {12.25f, 1},
              {12.75f, 1},
              {12.05f, 1},
              {10.95f, 1},
              {99.9f, 1},
              {99.94f, 1},
              {99.95f, 0},
              {99.96f, 0},
              {Below(99.95f), 1},
              {Below(100.0f), 0},
              {100.0f, 0},
              {Above(100.0f), 0},
              {123.4f, 0},
              {TLimits::max(), 0},
              {Infinity, 0},
              {NaN, 0}});
}

// What is printed decides, so the double beside the tie does: 99.95 is a little more, 1.95 a little less.
// In the metric system by the first decimal, otherwise always one between the bounds.
void DisplayPrecision::liquidRates()
{
    QFETCH(float, rate);
    QFETCH(int, decimals);
    TTestStore store;
    store.values[8953] = true;
    QCOMPARE(TUnits::CalculateLiquidRateDynamicPrecision(rate), decimals);
    QCOMPARE(TUnits::GetDynamicPrecision(rate, UNITS_L_PER_HA), decimals);

    const bool isBetween = rate >= 1.0f && rate < 100.0f;
    store.values[8953] = false;
    QCOMPARE(TUnits::CalculateLiquidRateDynamicPrecision(rate), isBetween ? 1 : decimals);
    QCOMPARE(TUnits::GetDynamicPrecision(rate, UNITS_L_PER_HA), isBetween ? 1 : decimals);
}

void DisplayPrecision::nh3Rates_data()
{
    AddRates({{-Infinity, 1},     {-100.0f, 1}, {-0.0f, 1},         {0.0f, 1},    {1.0f, 1},   {9.99f, 1},
              {Below(10.0f), 1},  {10.0f, 0},   {Above(10.0f), 0},  {10.04f, 0},  {10.05f, 1}, {10.25f, 1},
              {10.95f, 1},        {10.96f, 0},  {55.0f, 0},         {55.5f, 1},   {99.9f, 1},  {99.95f, 0},
              {Below(100.0f), 0}, {100.0f, 0},  {Above(100.0f), 0}, {100.01f, 0}, {100.5f, 0}, {1e6f, 0},
              {Infinity, 0},      {NaN, 0}});
}

void DisplayPrecision::nh3Rates()
{
    QFETCH(float, rate);
    QFETCH(int, decimals);
    const TTestStore store;
    QCOMPARE(TUnits::CalculateNH3RateDynamicPrecision(rate), decimals);
    QCOMPARE(TUnits::GetDynamicPrecision(rate, UNITS_KG_N_PER_HA), decimals);
}

// The bound at 100 differs, which shows in no result.
void DisplayPrecision::granularRates_data() { nh3Rates_data(); }

void DisplayPrecision::granularRates()
{
    QFETCH(float, rate);
    QFETCH(int, decimals);
    const TTestStore store;
    QCOMPARE(TUnits::CalculateGranularRateDynamicPrecision(rate), decimals);
    QCOMPARE(TUnits::GetDynamicPrecision(rate, UNITS_KG_PER_HA), decimals);
}

void DisplayPrecision::everyTenthIsJudgedByItsPrintedText()
{
    TTestStore store;
    store.values[8953] = true;
    for (int thousandths = 10000; thousandths < 100000; ++thousandths) {
        const float rate = static_cast<float>(thousandths / 1000.0);
        const int tenths = (thousandths + 50) / 100; // away from zero, unless the double beside the tie says otherwise
        const bool isTie = thousandths % 100 == 50;
        if (!isTie)
            QCOMPARE(TUnits::CalculateGranularRateDynamicPrecision(rate), tenths % 10 == 0 ? 0 : 1);
        QCOMPARE(TUnits::CalculateGranularRateDynamicPrecision(rate), HasNoFirstDecimal(rate) ? 0 : 1);
    }
}

void DisplayPrecision::anyRateIsJudgedByItsPrintedText()
{
    TTestStore store;
    store.values[8953] = true;
    std::mt19937 random(TestSeed());
    for (int i = 0; i < 100000; ++i) {
        const float rate = static_cast<float>(random()) / 4294967296.0f * 110.0f;
        const int decimals = HasNoFirstDecimal(rate) ? 0 : 1;
        const int liquid = rate < 1.0f ? 2 : rate >= 100.0f ? 0 : decimals;
        const int other = rate < 10.0f ? 1 : rate >= 100.0f ? 0 : decimals;
        QVERIFY2(TUnits::CalculateLiquidRateDynamicPrecision(rate) == liquid, Named(rate));
        QVERIFY2(TUnits::CalculateNH3RateDynamicPrecision(rate) == other, Named(rate));
        QVERIFY2(TUnits::CalculateGranularRateDynamicPrecision(rate) == other, Named(rate));
    }
}

void DisplayPrecision::onlyLiquidRatesReadAParameter()
{
    TTestStore store;
    const float rates[] = {-1.0f, 0.5f, 5.0f, 50.5f, 500.0f, NaN};
    for (const float rate : rates) {
        TUnits::CalculateNH3RateDynamicPrecision(rate);
        TUnits::CalculateGranularRateDynamicPrecision(rate);
        for (int unit = 0; unit < 115; ++unit) {
            const TSpec spec = {1.0f, 2};
            TUnits::GetUnitPrecision(Unit(unit), TUnits::GetThresholdPrecision(rate, &spec, -1));
            if (unit != 28)
                TUnits::GetDynamicPrecision(rate, Unit(unit));
        }
    }
    QVERIFY(store.reads.isEmpty());
    TUnits::CalculateLiquidRateDynamicPrecision(50.5f);
    QCOMPARE(store.reads, QList<int>() << 8953);
    QVERIFY(store.writes.isEmpty());
}

void DisplayPrecision::theSystemIsReadAtEveryCall()
{
    TTestStore store;
    QCOMPARE(TUnits::CalculateLiquidRateDynamicPrecision(12.0f), 1);
    store.values[8953] = true;
    QCOMPARE(TUnits::CalculateLiquidRateDynamicPrecision(12.0f), 0);
    store.values[8953] = false;
    QCOMPARE(TUnits::CalculateLiquidRateDynamicPrecision(12.0f), 1);
}

int main(int argc, char** argv) { return RunCoreTest<DisplayPrecision>(argc, argv); }
#include "DisplayPrecision.moc"
