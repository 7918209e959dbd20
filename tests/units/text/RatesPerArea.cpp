#include "CoreTest.h"
#include "QuantityLook.h"

namespace {

using U = TUnits;

/// What a rate is shown in.
struct tagShownRate
{
    EUnitsType unit;
    tagLook look;
};

/// A rate of 123.456 per hectare in hectares and in acres, each in metric, US and English measures.
struct tagVolumeRate
{
    const char* name;
    bool small;
    EUnitsType product;
    bool perTravel;
    tagShownRate shown[2][3];
};

const float Rate = 123.456F;

// clang-format off
const tagVolumeRate VolumeRates[] = {
    {"small volumes", true, UNITS_ML_PER_HA, false,
     {{{UNITS_ML_PER_HA, {123456.001, "123456 mL/ha"}}, {UNITS_FLOZ_PER_HA, {4174.54395, "4174.5 fl.oz/ha"}}, {UNITS_FLOZ_PER_HA, {4345.04382, "4345.0 fl.oz/ha"}}},
      {{UNITS_ML_PER_AC, {49960.8717, "49961 mL/ac"}},  {UNITS_FLOZ_PER_AC, {1689.27314, "1689.3 fl.oz/ac"}}, {UNITS_FLOZ_PER_AC, {1758.38289, "1758.4 fl.oz/ac"}}}}},
    {"small volumes of another product, in spite of travel", true, UNITS_L_PER_HA, true,
     {{{UNITS_ML_PER_HA, {123456.001, "123456 mL/ha"}}, {UNITS_FLOZ_PER_HA, {4174.54395, "4174.5 fl.oz/ha"}}, {UNITS_FLOZ_PER_HA, {4345.04382, "4345.0 fl.oz/ha"}}},
      {{UNITS_ML_PER_AC, {49960.8717, "49961 mL/ac"}},  {UNITS_FLOZ_PER_AC, {1689.27314, "1689.3 fl.oz/ac"}}, {UNITS_FLOZ_PER_AC, {1758.38289, "1758.4 fl.oz/ac"}}}}},
    {"liquid", false, UNITS_L_PER_HA, false,
     {{{UNITS_L_PER_HA, {123.456, "123 L/ha"}},   {UNITS_GAL_PER_HA, {32.6133707, "32.6 gal/ha"}}, {UNITS_GAL_PER_HA, {27.1565231, "27.2 gal/ha"}}},
      {{UNITS_L_PER_AC, {49.9608717, "50 L/ac"}}, {UNITS_GAL_PER_AC, {13.1974464, "13.2 gal/ac"}}, {UNITS_GAL_PER_AC, {10.9898931, "11.0 gal/ac"}}}}},
    {"liquid per travel", false, UNITS_L_PER_HA, true,
     {{{UNITS_L_PER_100M, {1.23456001, "1.23 L/100m"}}, {UNITS_GAL_PER_100YD, {0.298216667, "0.30 gal/100yd"}}, {UNITS_GAL_PER_100YD, {0.248319251, "0.25 gal/100yd"}}},
      {{UNITS_L_PER_100M, {1.23456001, "1.23 L/100m"}}, {UNITS_GAL_PER_100YD, {0.298216667, "0.30 gal/100yd"}}, {UNITS_GAL_PER_100YD, {0.248319251, "0.25 gal/100yd"}}}}},
    {"nitrogen", false, UNITS_KG_N_PER_HA, false,
     {{{UNITS_KG_N_PER_HA, {123.456, "123.5 kgN/ha"}},   {UNITS_LB_N_PER_HA, {272.173879, "272.2 lbN/ha"}}, {UNITS_LB_N_PER_HA, {272.173879, "272.2 lbN/ha"}}},
      {{UNITS_KG_N_PER_AC, {49.9608717, "50.0 kgN/ac"}}, {UNITS_LB_N_PER_AC, {110.144864, "110.1 lbN/ac"}}, {UNITS_LB_N_PER_AC, {110.144864, "110.1 lbN/ac"}}}}},
    {"nitrogen, in spite of travel", false, UNITS_KG_N_PER_HA, true,
     {{{UNITS_KG_N_PER_HA, {123.456, "123.5 kgN/ha"}},   {UNITS_LB_N_PER_HA, {272.173879, "272.2 lbN/ha"}}, {UNITS_LB_N_PER_HA, {272.173879, "272.2 lbN/ha"}}},
      {{UNITS_KG_N_PER_AC, {49.9608717, "50.0 kgN/ac"}}, {UNITS_LB_N_PER_AC, {110.144864, "110.1 lbN/ac"}}, {UNITS_LB_N_PER_AC, {110.144864, "110.1 lbN/ac"}}}}},
    {"cubic", false, UNITS_M3_PER_HA, true,
     {{{UNITS_M3_PER_HA, {0.123456001, "0.12 m\u00b3/ha"}},  {UNITS_FT3_PER_HA, {4.35980769, "4.36 ft\u00b3/ha"}}, {UNITS_FT3_PER_HA, {4.35980769, "4.36 ft\u00b3/ha"}}},
      {{UNITS_M3_PER_AC, {0.0499608717, "0.05 m\u00b3/ac"}}, {UNITS_FT3_PER_AC, {1.76435159, "1.76 ft\u00b3/ac"}}, {UNITS_FT3_PER_AC, {1.76435159, "1.76 ft\u00b3/ac"}}}}},
    {"tonnes", false, UNITS_T_PER_HA, false,
     {{{UNITS_T_PER_HA, {0.123456001, "0.12 t/ha"}},  {UNITS_LB_PER_HA, {272.173885, "272.17 lb/ha"}}, {UNITS_LB_PER_HA, {272.173885, "272.17 lb/ha"}}},
      {{UNITS_T_PER_AC, {0.0499608717, "0.05 t/ac"}}, {UNITS_LB_PER_AC, {110.144865, "110.14 lb/ac"}}, {UNITS_LB_PER_AC, {110.144865, "110.14 lb/ac"}}}}},
    {"another product", false, UNITS_KG_PER_HA, true,
     {{{UNITS_NONE, {123.456, "123 "}}, {UNITS_NONE, {123.456, "123 "}}, {UNITS_NONE, {123.456, "123 "}}},
      {{UNITS_NONE, {123.456, "123 "}}, {UNITS_NONE, {123.456, "123 "}}, {UNITS_NONE, {123.456, "123 "}}}}},
    {"no product", false, UNITS_NONE, false,
     {{{UNITS_NONE, {123.456, "123 "}}, {UNITS_NONE, {123.456, "123 "}}, {UNITS_NONE, {123.456, "123 "}}},
      {{UNITS_NONE, {123.456, "123 "}}, {UNITS_NONE, {123.456, "123 "}}, {UNITS_NONE, {123.456, "123 "}}}}},
};

const tagShownRate WeightRates[2][2] = {
    {{UNITS_KG_PER_HA, {123.456, "123.46 kg/ha"}},   {UNITS_LB_PER_HA, {272.173879, "272.17 lb/ha"}}},
    {{UNITS_KG_PER_AC, {49.9608717, "49.96 kg/ac"}}, {UNITS_LB_PER_AC, {110.14486, "110.14 lb/ac"}}},
};
// clang-format on

const tagShownRate AsItIs = {UNITS_NONE, {123.456, "123 "}};

/// Six digits, more than any text of a rate shows.
bool IsClose(double value, double expected) { return qAbs(value - expected) <= 1e-6 * qAbs(expected); }

} // namespace

Q_DECLARE_METATYPE(const tagVolumeRate*)

class RatesPerArea : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_Store = new TChosenUnits; }
    void cleanup() { delete m_Store; }

    void aVolumeFollowsProductMeasuresAndArea_data();
    void aVolumeFollowsProductMeasuresAndArea();
    void aWeightFollowsMeasuresAndArea_data();
    void aWeightFollowsMeasuresAndArea();
    void cubicAndTonneRatesKeepTheDecimalsOfTheirMetricUnit_data();
    void cubicAndTonneRatesKeepTheDecimalsOfTheirMetricUnit();
    void travelCountsOnlyOnTheBasisThatPermitsIt_data();
    void travelCountsOnlyOnTheBasisThatPermitsIt();

    void requestedRatesHaveTheDecimalsThatSuitThem_data();
    void requestedRatesHaveTheDecimalsThatSuitThem();
    void sprayersFollowTravelMeasuresAndArea_data();
    void sprayersFollowTravelMeasuresAndArea();

private:
    TChosenUnits* m_Store;
};

void RatesPerArea::aVolumeFollowsProductMeasuresAndArea_data()
{
    QTest::addColumn<const tagVolumeRate*>("rate");
    QTest::addColumn<int>("area");
    QTest::addColumn<bool>("metric");
    QTest::addColumn<bool>("us");
    for (const tagVolumeRate& rate : VolumeRates) {
        for (int area : {0, 1, 2, -1}) {
            for (int measures = 0; measures < 4; ++measures) {
                const bool metric = (measures & 1) != 0;
                const bool us = (measures & 2) != 0;
                const QString name = QString::fromLatin1("%1, area %2, metric %3, us %4")
                                         .arg(Utf8(rate.name))
                                         .arg(area)
                                         .arg(int(metric))
                                         .arg(int(us));
                QTest::newRow(name.toLatin1().constData()) << &rate << area << metric << us;
            }
        }
    }
}

void RatesPerArea::aVolumeFollowsProductMeasuresAndArea()
{
    QFETCH(const tagVolumeRate*, rate);
    QFETCH(int, area);
    QFETCH(bool, metric);
    QFETCH(bool, us);
    m_Store->ChooseArea(area);
    m_Store->ChooseRatesPerTravel(0, rate->perTravel);
    m_Store->ChooseMeasures(!metric, !us); // of the display; the caller's count
    const bool isKnownArea = area == 0 || area == 1;
    const tagShownRate& shown = isKnownArea ? rate->shown[area][metric ? 0 : us ? 1 : 2] : AsItIs;

    EUnitsType unit = UNITS_WATTS;
    const double value = U::GetVolumePerAreaValue(unit, metric, us, Rate, rate->small, rate->product);
    QCOMPARE(int(unit), int(shown.unit));
    QVERIFY2(IsClose(value, shown.look.value), QByteArray::number(value, 'g', 12).constData());

    CheckPrecisions(shown.look, [&](int precision, const Spec* spec) {
        return U::GetVolumePerAreaString(metric, us, Rate, rate->small, rate->product, precision, spec);
    });
}

void RatesPerArea::aWeightFollowsMeasuresAndArea_data()
{
    QTest::addColumn<int>("area");
    QTest::addColumn<bool>("metric");
    QTest::newRow("kilograms per hectare") << 0 << true;
    QTest::newRow("pounds per hectare") << 0 << false;
    QTest::newRow("kilograms per acre") << 1 << true;
    QTest::newRow("pounds per acre") << 1 << false;
    QTest::newRow("kilograms per another area") << 2 << true;
    QTest::newRow("pounds per another area") << 2 << false;
    QTest::newRow("negative area") << -1 << false;
}

void RatesPerArea::aWeightFollowsMeasuresAndArea()
{
    QFETCH(int, area);
    QFETCH(bool, metric);
    m_Store->ChooseArea(area);
    const bool isKnownArea = area == 0 || area == 1;
    const tagShownRate& shown = isKnownArea ? WeightRates[area][metric ? 0 : 1] : AsItIs;

    EUnitsType unit = UNITS_WATTS;
    const double value = U::GetWeightPerAreaValue(unit, metric, Rate);
    QCOMPARE(int(unit), int(shown.unit));
    QVERIFY2(IsClose(value, shown.look.value), QByteArray::number(value, 'g', 12).constData());

    // By default with the decimals of kilograms per hectare, whatever the unit.
    const tagLook look = isKnownArea ? shown.look : tagLook{123.456, "123.46 "};
    CheckPrecisions(look, [metric](int precision, const Spec* spec) {
        return U::GetWeightPerAreaString(metric, Rate, precision, spec);
    });
}

void RatesPerArea::cubicAndTonneRatesKeepTheDecimalsOfTheirMetricUnit_data()
{
    QTest::addColumn<int>("area");
    QTest::addColumn<bool>("metric");
    QTest::addColumn<double>("cubic");
    QTest::addColumn<QString>("cubicText");
    QTest::addColumn<double>("tonnes");
    QTest::addColumn<QString>("tonnesText");
    QTest::newRow("metric, hectares") << 0 << true << 0.123456001 << Utf8("0.12 m\u00b3/ha") << 0.123456001
                                      << Utf8("0.12 t/ha");
    QTest::newRow("imperial, hectares") << 0 << false << 4.35980769 << Utf8("4.36 ft\u00b3/ha") << 272.173885
                                        << Utf8("272.17 lb/ha");
    QTest::newRow("metric, acres") << 1 << true << 0.0499608717 << Utf8("0.05 m\u00b3/ac") << 0.0499608717
                                   << Utf8("0.05 t/ac");
    QTest::newRow("imperial, acres") << 1 << false << 1.76435159 << Utf8("1.76 ft\u00b3/ac") << 110.144865
                                     << Utf8("110.14 lb/ac");
    QTest::newRow("metric, another") << 2 << true << 123.456 << Utf8("123.46 ") << 123.456 << Utf8("123.46 ");
    QTest::newRow("imperial, another") << 2 << false << 123.456 << Utf8("123.46 ") << 123.456 << Utf8("123.46 ");
}

void RatesPerArea::cubicAndTonneRatesKeepTheDecimalsOfTheirMetricUnit()
{
    QFETCH(int, area);
    QFETCH(bool, metric);
    QFETCH(double, cubic);
    QFETCH(QString, cubicText);
    QFETCH(double, tonnes);
    QFETCH(QString, tonnesText);
    m_Store->ChooseArea(area);
    const QByteArray cubicLook = cubicText.toUtf8();
    const QByteArray tonnesLook = tonnesText.toUtf8();
    CheckPrecisions(tagLook{cubic, cubicLook.constData()}, [metric](int precision, const Spec* spec) {
        return U::GetVolumePerAreaStringInCubicMetersPerSpecifiedAreaUnit(metric, Rate, precision, spec);
    });
    CheckPrecisions(tagLook{tonnes, tonnesLook.constData()}, [metric](int precision, const Spec* spec) {
        return U::GetVolumePerAreaStringInTonnesPerSpecifiedAreaUnit(metric, Rate, precision, spec);
    });
}

void RatesPerArea::travelCountsOnlyOnTheBasisThatPermitsIt_data()
{
    QTest::addColumn<QVariant>("basis");
    QTest::addColumn<QVariant>("perTravel");
    QTest::addColumn<int>("area");
    QTest::addColumn<QString>("requested");
    QTest::addColumn<QString>("volume");
    QTest::newRow("permitted and chosen")
        << QVariant(0) << QVariant(true) << 0 << Utf8("2 L/100m") << Utf8("2.00 L/100m");
    QTest::newRow("permitted by an absent basis")
        << QVariant() << QVariant(true) << 0 << Utf8("2 L/100m") << Utf8("2.00 L/100m");
    QTest::newRow("not chosen") << QVariant(0) << QVariant(false) << 0 << Utf8("200 L/ha") << Utf8("200 L/ha");
    QTest::newRow("never chosen") << QVariant(0) << QVariant() << 0 << Utf8("200 L/ha") << Utf8("200 L/ha");
    QTest::newRow("not permitted") << QVariant(1) << QVariant(true) << 0 << Utf8("200 L/ha") << Utf8("200 L/ha");
    QTest::newRow("not permitted by a negative basis")
        << QVariant(-1) << QVariant(true) << 0 << Utf8("200 L/ha") << Utf8("200 L/ha");
    QTest::newRow("chosen in acres") << QVariant(0) << QVariant(true) << 1 << Utf8("2 L/100m") << Utf8("2.00 L/100m");
    // A requested rate per travel needs no area; the other rates are shown as they are without one.
    QTest::newRow("chosen in another area") << QVariant(0) << QVariant(true) << 2 << Utf8("2 L/100m") << Utf8("200 ");
    QTest::newRow("not chosen in another area") << QVariant(0) << QVariant(false) << 2 << Utf8("0.00 ") << Utf8("200 ");
}

void RatesPerArea::travelCountsOnlyOnTheBasisThatPermitsIt()
{
    QFETCH(QVariant, basis);
    QFETCH(QVariant, perTravel);
    QFETCH(int, area);
    QFETCH(QString, requested);
    QFETCH(QString, volume);
    m_Store->ChooseMeasures(true, false);
    m_Store->ChooseArea(area);
    if (basis.isValid())
        m_Store->values[1929] = basis;
    if (perTravel.isValid())
        m_Store->values[8966] = perTravel;
    QCOMPARE(U::GetSprayerRequestedRateString(200), requested);
    QCOMPARE(U::GetVolumePerAreaString(true, false, 200.0F, false, UNITS_L_PER_HA, -1, nullptr), volume);
    const bool asksForTravel = m_Store->reads.contains(8966);
    QCOMPARE(asksForTravel, basis.toInt() == 0);
}

void RatesPerArea::requestedRatesHaveTheDecimalsThatSuitThem_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<int>("area");
    QTest::addColumn<bool>("metric");
    QTest::addColumn<QString>("granular");
    QTest::addColumn<QString>("nitrogen");

    const struct
    {
        const char* name;
        double rate;
        int area;
        bool metric;
        const char* granular;
        const char* nitrogen;
    } rows[] = {
        {"nothing", 0, 0, true, "0.0 kg/ha", "0.0 kgN/ha"},
        {"below ten", 5.56, 0, true, "5.6 kg/ha", "5.6 kgN/ha"},
        {"just below ten", 9.99, 0, true, "10.0 kg/ha", "10.0 kgN/ha"},
        {"ten", 10, 0, true, "10 kg/ha", "10 kgN/ha"},
        {"no first decimal", 10.04, 0, true, "10 kg/ha", "10 kgN/ha"},
        {"a first decimal", 10.26, 0, true, "10.3 kg/ha", "10.3 kgN/ha"},
        {"in the middle", 55.5, 0, true, "55.5 kg/ha", "55.5 kgN/ha"},
        {"rounding to a whole", 12.96, 0, true, "13 kg/ha", "13 kgN/ha"},
        {"rounding to a hundred", 99.95, 0, true, "100 kg/ha", "100 kgN/ha"},
        {"a hundred", 100, 0, true, "100 kg/ha", "100 kgN/ha"},
        {"above a hundred", 100.6, 0, true, "101 kg/ha", "101 kgN/ha"},
        {"negative", -55.55, 0, true, "-55.5 kg/ha", "-55.5 kgN/ha"},
        {"pounds per hectare", 55.5, 0, false, "122 lb/ha", "122 lbN/ha"},
        {"pounds per hectare, below ten", 4.5, 0, false, "9.9 lb/ha", "9.9 lbN/ha"},
        {"kilograms per acre", 55.5, 1, true, "22.5 kg/ac", "22.5 kgN/ac"},
        {"kilograms per acre, below ten", 20, 1, true, "8.1 kg/ac", "8.1 kgN/ac"},
        {"kilograms per acre, above a hundred", 900, 1, true, "364 kg/ac", "364 kgN/ac"},
        {"pounds per acre", 55.5, 1, false, "49.5 lb/ac", "49.5 lbN/ac"},
        {"pounds per acre, above a hundred", 200, 1, false, "178 lb/ac", "178 lbN/ac"},
        {"another area", 50, 2, true, "0.0 ", "0.0 "},
        {"another area, imperial", 50, 2, false, "0.0 ", "0.0 "},
        {"negative area", 500, -1, true, "0.0 ", "0.0 "},
    };
    for (const auto& row : rows)
        QTest::newRow(row.name) << row.rate << row.area << row.metric << Utf8(row.granular) << Utf8(row.nitrogen);
}

void RatesPerArea::requestedRatesHaveTheDecimalsThatSuitThem()
{
    QFETCH(double, rate);
    QFETCH(int, area);
    QFETCH(bool, metric);
    QFETCH(QString, granular);
    QFETCH(QString, nitrogen);
    m_Store->ChooseMeasures(metric, false);
    m_Store->ChooseArea(area);
    QCOMPARE(U::GetWeightPerAreaStringDynamicPrecision(rate), granular);
    QCOMPARE(U::GetNitrogenWeightPerAreaStringDynamicPrecision(rate), nitrogen);
    m_Store->ChooseMeasures(metric, true);
    QCOMPARE(U::GetWeightPerAreaStringDynamicPrecision(rate), granular);
    QCOMPARE(U::GetNitrogenWeightPerAreaStringDynamicPrecision(rate), nitrogen);
}

void RatesPerArea::sprayersFollowTravelMeasuresAndArea_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<int>("area");
    QTest::addColumn<bool>("perTravel");
    QTest::addColumn<QString>("metric");
    QTest::addColumn<QString>("us");
    QTest::addColumn<QString>("english");

    const struct
    {
        const char* name;
        double rate;
        int area;
        bool perTravel;
        const char* metric;
        const char* us;
        const char* english;
    } rows[] = {
        {"hectares", 200, 0, false, "200 L/ha", "52.8 gal/ha", "44.0 gal/ha"},
        {"hectares, a small rate", 0.5, 0, false, "0.50 L/ha", "0.13 gal/ha", "0.11 gal/ha"},
        {"hectares, no first decimal", 12, 0, false, "12 L/ha", "3.2 gal/ha", "2.6 gal/ha"},
        {"hectares, a first decimal", 12.3, 0, false, "12.3 L/ha", "3.2 gal/ha", "2.7 gal/ha"},
        {"hectares, one", 1, 0, false, "1 L/ha", "0.26 gal/ha", "0.22 gal/ha"},
        {"hectares, just below one", 0.999, 0, false, "1.00 L/ha", "0.26 gal/ha", "0.22 gal/ha"},
        {"hectares, rounding to a hundred", 99.95, 0, false, "100 L/ha", "26.4 gal/ha", "22.0 gal/ha"},
        {"hectares, large", 900, 0, false, "900 L/ha", "238 gal/ha", "198 gal/ha"},
        {"hectares, negative", -5.5, 0, false, "-5.50 L/ha", "-1.45 gal/ha", "-1.21 gal/ha"},
        {"acres", 200, 1, false, "80.9 L/ac", "21.4 gal/ac", "17.8 gal/ac"},
        {"acres, a small rate", 5.55, 1, false, "2.2 L/ac", "0.59 gal/ac", "0.49 gal/ac"},
        {"acres, large", 900, 1, false, "364 L/ac", "96.2 gal/ac", "80.1 gal/ac"},
        {"travel", 200, 0, true, "2 L/100m", "0.48 gal/100yd", "0.40 gal/100yd"},
        {"travel in acres", 900, 1, true, "9 L/100m", "2.2 gal/100yd", "1.8 gal/100yd"},
        {"travel in another area", 555, 2, true, "5.5 L/100m", "1.3 gal/100yd", "1.1 gal/100yd"},
        {"another area", 200, 2, false, "0.00 ", "0.00 ", "0.00 "},
        {"negative area", 200, -1, false, "0.00 ", "0.00 ", "0.00 "},
    };
    for (const auto& row : rows)
        QTest::newRow(row.name) << row.rate << row.area << row.perTravel << Utf8(row.metric) << Utf8(row.us)
                                << Utf8(row.english);
}

void RatesPerArea::sprayersFollowTravelMeasuresAndArea()
{
    QFETCH(double, rate);
    QFETCH(int, area);
    QFETCH(bool, perTravel);
    QFETCH(QString, metric);
    QFETCH(QString, us);
    QFETCH(QString, english);
    m_Store->ChooseArea(area);
    m_Store->ChooseRatesPerTravel(0, perTravel);
    m_Store->ChooseMeasures(true, false);
    QCOMPARE(U::GetSprayerRequestedRateString(rate), metric);
    m_Store->ChooseMeasures(true, true);
    QCOMPARE(U::GetSprayerRequestedRateString(rate), metric);
    m_Store->ChooseMeasures(false, true);
    QCOMPARE(U::GetSprayerRequestedRateString(rate), us);
    m_Store->ChooseMeasures(false, false);
    QCOMPARE(U::GetSprayerRequestedRateString(rate), english);
}

int main(int argc, char** argv) { return RunCoreTest<RatesPerArea>(argc, argv); }
#include "RatesPerArea.moc"
