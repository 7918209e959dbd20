#include "CoreTest.h"
#include "TChosenUnits.h"

#include <cfloat>
#include <cmath>
#include <limits>

/// A rate that is applied, with its error in percent.
class RelativeErrors : public QObject
{
    Q_OBJECT

private slots:
    void decimalsFollowTheMagnitude_data();
    void decimalsFollowTheMagnitude();
    void ratesFollowMeasuresAndArea_data();
    void ratesFollowMeasuresAndArea();
    void theLastFlagChangesNothing();
};

void RelativeErrors::decimalsFollowTheMagnitude_data()
{
    QTest::addColumn<float>("rate");
    QTest::addColumn<float>("error");
    QTest::addColumn<QString>("text");

    const float NaN = std::numeric_limits<float>::quiet_NaN();
    const float infinity = std::numeric_limits<float>::infinity();
    const struct
    {
        const char* name;
        float rate;
        float error;
        const char* text;
    } rows[] = {
        {"nothing", 0, 0, "0.00  (0.00%)"},
        {"small", 12.5F, 3.2F, "12.50  (3.20%)"},
        {"negative", -12.5F, -3.2F, "-12.50  (-3.20%)"},
        {"just below a hundred", 99.99F, 99.99F, "99.99  (99.99%)"},
        {"a hundred", 100, 100, "100.0  (100.0%)"},
        {"minus a hundred", -100, -100, "-100.0  (-100.0%)"},
        {"just below a thousand", 999.9F, 998.9F, "999.9  (998.9%)"},
        {"a thousand", 1000, 50, "1000  (50.00%)"},
        {"above a thousand", 12345.6F, 50, "12346  (50.00%)"},
        {"minus a thousand", -1000, 50, "-1000  (50.00%)"},
        {"greatest error", 1, 999, "1.00  (999.0%)"},
        {"least error", 1, -999, "1.00  (-999.0%)"},
        {"just beyond the greatest", 1, std::nextafter(999.0F, 1000.0F), "1.00  (>999%)"},
        {"just beyond the least", 1, std::nextafter(-999.0F, -1000.0F), "1.00  (<-999%)"},
        {"far beyond the greatest", 1, 1500, "1.00  (>999%)"},
        {"far beyond the least", 1, -1500, "1.00  (<-999%)"},
        {"as far as it goes", 1, FLT_MAX, "1.00  (>999%)"},
        {"as far down as it goes", 1, -FLT_MAX, "1.00  (<-999%)"},
        {"error is no number", 1, NaN, "1.00  (----%)"},
        {"error is infinite", 1, infinity, "1.00  (----%)"},
        {"error is negative infinite", 1, -infinity, "1.00  (----%)"},
        {"rate is no number", NaN, 1, "----  (1.00%)"},
        {"rate is infinite", infinity, 1, "----  (1.00%)"},
        {"rate is negative infinite", -infinity, 1, "----  (1.00%)"},
        {"nothing is a number", NaN, NaN, "----  (----%)"},
    };
    for (const auto& row : rows)
        QTest::newRow(row.name) << row.rate << row.error << Utf8(row.text);
}

void RelativeErrors::decimalsFollowTheMagnitude()
{
    QFETCH(float, rate);
    QFETCH(float, error);
    QFETCH(QString, text);
    TChosenUnits store;
    QCOMPARE(TUnits::GetDischargeRateAndRelativeErrorString(true, false, rate, error), text);
    QCOMPARE(TUnits::GetDischargeRateAndRelativeErrorString(false, false, rate, error), text);
    QCOMPARE(TUnits::GetFlowRateAndRelativeErrorString(true, true, false, rate, error, true, UNITS_NONE), text);
    store.ChooseArea(2);
    QCOMPARE(TUnits::GetDischargeRateAndRelativeErrorString(false, true, rate, error), text);
    QCOMPARE(TUnits::GetFlowRateAndRelativeErrorString(false, true, true, rate, error, true, UNITS_L_PER_HA), text);
}

void RelativeErrors::ratesFollowMeasuresAndArea_data()
{
    QTest::addColumn<int>("product"); // UNITS_KG_PER_HA: discharged by weight
    QTest::addColumn<bool>("small");
    QTest::addColumn<int>("area");
    QTest::addColumn<bool>("perTravel");
    QTest::addColumn<QString>("metric");
    QTest::addColumn<QString>("us");
    QTest::addColumn<QString>("english");

    const struct
    {
        const char* name;
        EUnitsType product;
        bool small;
        int area;
        bool perTravel;
        const char* metric;
        const char* us;
        const char* english;
    } rows[] = {
        {"weight, hectares", UNITS_KG_PER_HA, false, 0, false, "123.5 kg/ha", "272.2 lb/ha", "272.2 lb/ha"},
        {"weight, acres", UNITS_KG_PER_HA, false, 1, false, "49.96 kg/ac", "110.1 lb/ac", "110.1 lb/ac"},
        {"weight, another area", UNITS_KG_PER_HA, false, 2, false, "123.5 ", "123.5 ", "123.5 "},
        {"liquid, hectares", UNITS_L_PER_HA, false, 0, false, "123.5 L/ha", "32.61 gal/ha", "27.16 gal/ha"},
        {"liquid, acres", UNITS_L_PER_HA, false, 1, false, "49.96 L/ac", "13.20 gal/ac", "10.99 gal/ac"},
        {"liquid, travel", UNITS_L_PER_HA, false, 1, true, "1.23 L/100m", "0.30 gal/100yd", "0.25 gal/100yd"},
        {"liquid, travel, another area", UNITS_L_PER_HA, false, 2, true, "123.5 ", "123.5 ", "123.5 "},
        {"small, hectares", UNITS_L_PER_HA, true, 0, true, "123456 mL/ha", "4175 fl.oz/ha", "4345 fl.oz/ha"},
        {"small, acres", UNITS_ML_PER_HA, true, 1, false, "49961 mL/ac", "1689 fl.oz/ac", "1758 fl.oz/ac"},
        {"nitrogen, hectares", UNITS_KG_N_PER_HA, false, 0, false, "123.5 kgN/ha", "272.2 lbN/ha", "272.2 lbN/ha"},
        {"nitrogen, acres", UNITS_KG_N_PER_HA, false, 1, false, "49.96 kgN/ac", "110.1 lbN/ac", "110.1 lbN/ac"},
        {"cubic, hectares", UNITS_M3_PER_HA, false, 0, false, "0.12 m\u00b3/ha", "4.36 ft\u00b3/ha",
         "4.36 ft\u00b3/ha"},
        {"cubic, acres", UNITS_M3_PER_HA, false, 1, false, "0.05 m\u00b3/ac", "1.76 ft\u00b3/ac", "1.76 ft\u00b3/ac"},
        {"tonnes, hectares", UNITS_T_PER_HA, false, 0, false, "0.12 t/ha", "272.2 lb/ha", "272.2 lb/ha"},
        {"tonnes, acres", UNITS_T_PER_HA, false, 1, false, "0.05 t/ac", "110.1 lb/ac", "110.1 lb/ac"},
    };
    for (const auto& row : rows)
        QTest::newRow(row.name) << int(row.product) << row.small << row.area << row.perTravel << Utf8(row.metric)
                                << Utf8(row.us) << Utf8(row.english);
}

void RelativeErrors::ratesFollowMeasuresAndArea()
{
    QFETCH(int, product);
    QFETCH(bool, small);
    QFETCH(int, area);
    QFETCH(bool, perTravel);
    QFETCH(QString, metric);
    QFETCH(QString, us);
    QFETCH(QString, english);
    TChosenUnits store;
    store.ChooseArea(area);
    store.ChooseRatesPerTravel(0, perTravel);
    const auto text = [product, small](bool isMetric, bool isUS) {
        return product == UNITS_KG_PER_HA
                   ? TUnits::GetDischargeRateAndRelativeErrorString(isMetric, true, 123.456F, -3.2F)
                   : TUnits::GetFlowRateAndRelativeErrorString(isMetric, isUS, small, 123.456F, -3.2F, false,
                                                               static_cast<EUnitsType>(product));
    };
    const QString error = Utf8(" (-3.20%)");
    QCOMPARE(text(true, false), metric + error);
    QCOMPARE(text(true, true), metric + error);
    QCOMPARE(text(false, true), us + error);
    QCOMPARE(text(false, false), english + error);
}

void RelativeErrors::theLastFlagChangesNothing()
{
    const TChosenUnits store;
    for (bool flag : {false, true})
        QCOMPARE(TUnits::GetFlowRateAndRelativeErrorString(true, false, false, 12.5F, 3.2F, flag, UNITS_L_PER_HA),
                 Utf8("12.50 L/ha (3.20%)"));
}

int main(int argc, char** argv) { return RunCoreTest<RelativeErrors>(argc, argv); }
#include "RelativeErrors.moc"
