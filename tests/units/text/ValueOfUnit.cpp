#include "CoreTest.h"
#include "TChosenUnits.h"

#include <climits>

/// A stored value, shown as its unit asks.
class ValueOfUnit : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_Store = new TChosenUnits; }
    void cleanup() { delete m_Store; }

    void everyUnitGoesItsOwnWay_data();
    void everyUnitGoesItsOwnWay();
    void everyQuantityIsShownInTheMeasuresChosen_data();
    void everyQuantityIsShownInTheMeasuresChosen();
    void ratesAreShownWithTheDecimalsThatSuitThem_data();
    void ratesAreShownWithTheDecimalsThatSuitThem();
    void plainUnitsFollowNoThreshold();

private:
    TChosenUnits* m_Store;
};

namespace {

using U = TUnits;
using Spec = TUnits::tagThresholdSpec;

float N(double value) { return static_cast<float>(value); }

/// A unit whose values are shown as a quantity: what shows it, and how 1234.567 looks in hectares.
struct tagUnitOfQuantity
{
    EUnitsType unit;
    QString (*text)(bool metric, bool us, double value, int precision, const Spec* spec);
    const char* metric;
    const char* us;
    const char* english;
};

/// A unit whose values are shown as they are.
struct tagPlainUnit
{
    EUnitsType unit;
    const char* abbreviation;
};

// clang-format off
const tagUnitOfQuantity Quantities[] = {
    {UNITS_METERS,            [](bool, bool, double v, int p, const Spec* s) { return U::GetDistanceString(N(v), false, p, s); }, "1234.567 m", "1234.567 m", "1234.567 m"},
    {UNITS_MILLIMETERS,       [](bool, bool, double v, int p, const Spec* s) { return U::GetDistanceString(N(v), true, p, s); }, "1234567 mm", "1234567 mm", "1234567 mm"},
    {UNITS_FEET,              [](bool, bool, double v, int p, const Spec* s) { return U::GetDistanceStringInMetricOrImperialFeet(N(v), p, s); }, "1234.567 m", "1234.567 m", "1234.567 m"},
    {UNITS_HECTARES,          [](bool, bool, double v, int p, const Spec* s) { return U::GetAreaString(N(v), p, s); }, "1234.57 ha", "1234.57 ha", "1234.57 ha"},
    {UNITS_METERS_PER_MIN,    [](bool m, bool, double v, int p, const Spec* s) { return U::GetSpeedStringForMetersPerMinute(m, N(v), p, s); }, "1234.6 m/min", "4050.4 ft/min", "4050.4 ft/min"},
    {UNITS_KPH,               [](bool m, bool, double v, int, const Spec*) { return U::GetSpeedString(m, N(v), true); }, "4444.4 kph", "2761.6 mph", "2761.6 mph"},
    {UNITS_HZ_PER_KPH,        [](bool m, bool, double v, int, const Spec*) { return U::GetPulsesPerSpeedUnitString(m, N(v)); }, "1234.57 Hz/kph", "1986.84 Hz/mph", "1986.84 Hz/mph"},
    {UNITS_HECTARES_PER_HOUR, [](bool, bool, double v, int p, const Spec* s) { return U::GetProductivityString(N(v), p, s); }, "1234.57 ha/hr", "1234.57 ha/hr", "1234.57 ha/hr"},
    {UNITS_LITERS,            [](bool m, bool u, double v, int p, const Spec* s) { return U::GetVolumeString(m, u, N(v), false, UNITS_LITERS, p, s); }, "1234.6 L", "326.1 gal", "271.6 gal"},
    {UNITS_MILLILITERS,       [](bool m, bool u, double v, int p, const Spec* s) { return U::GetVolumeString(m, u, N(v), true, UNITS_MILLILITERS, p, s); }, "1234567.0 mL", "41745.7 fl.oz", "43450.7 fl.oz"},
    {UNITS_CUBIC_METERS,      [](bool m, bool, double v, int p, const Spec* s) { return U::GetVolumeStringInCubicMeterOrCubicFeet(m, N(v), p, s); }, "1.23 m\u00b3", "43.60 ft\u00b3", "43.60 ft\u00b3"},
    {UNITS_TONNES,            [](bool m, bool, double v, int p, const Spec* s) { return U::GetVolumeStringInTonnes(m, N(v), p, s); }, "1.23 t", "2722 lb", "2722 lb"},
    {UNITS_US_BUSHELS,        [](bool, bool, double v, int p, const Spec* s) { return U::GetVolumeStringInUSBushels(N(v), p, s); }, "35.0 US bu", "35.0 US bu", "35.0 US bu"},
    {UNITS_UK_BUSHELS,        [](bool, bool, double v, int p, const Spec* s) { return U::GetVolumeStringInUKBushels(N(v), p, s); }, "33.9 UK bu", "33.9 UK bu", "33.9 UK bu"},
    {UNITS_L_PER_HA,          [](bool m, bool u, double v, int p, const Spec* s) { return p == 100 ? U::GetSprayerRequestedRateString(v) : U::GetVolumePerAreaString(m, u, N(v), false, UNITS_L_PER_HA, p, s); }, "1235 L/ha", "326.1 gal/ha", "271.6 gal/ha"},
    {UNITS_ML_PER_HA,         [](bool m, bool u, double v, int p, const Spec* s) { return U::GetVolumePerAreaString(m, u, N(v), true, UNITS_ML_PER_HA, p, s); }, "1234567 mL/ha", "41745.7 fl.oz/ha", "43450.7 fl.oz/ha"},
    {UNITS_M3_PER_HA,         [](bool m, bool, double v, int p, const Spec* s) { return U::GetVolumePerAreaStringInCubicMetersPerSpecifiedAreaUnit(m, N(v), p, s); }, "1.23 m\u00b3/ha", "43.60 ft\u00b3/ha", "43.60 ft\u00b3/ha"},
    {UNITS_T_PER_HA,          [](bool m, bool, double v, int p, const Spec* s) { return U::GetVolumePerAreaStringInTonnesPerSpecifiedAreaUnit(m, N(v), p, s); }, "1.23 t/ha", "2721.75 lb/ha", "2721.75 lb/ha"},
    {UNITS_L_PER_MIN,         [](bool m, bool u, double v, int p, const Spec* s) { return U::GetFlowRateString(m, u, N(v), false, UNITS_L_PER_MIN, p, s); }, "1234.57 L/min", "326.14 gal/min", "271.57 gal/min"},
    {UNITS_ML_PER_MIN,        [](bool m, bool u, double v, int p, const Spec* s) { return U::GetFlowRateString(m, u, N(v), true, UNITS_ML_PER_MIN, p, s); }, "1234567.02 mL/min", "41745.68 fl.oz/min", "43450.68 fl.oz/min"},
    {UNITS_M3_PER_MIN,        [](bool m, bool, double v, int p, const Spec* s) { return U::GetFlowRateStringInCubicMetersPerMinute(m, N(v), p, s); }, "1.23 m\u00b3/min", "43.60 ft\u00b3/min", "43.60 ft\u00b3/min"},
    {UNITS_T_PER_MIN,         [](bool m, bool, double v, int p, const Spec* s) { return U::GetFlowRateStringInTonnesPerMinute(m, N(v), p, s); }, "1.23 t/min", "2721.8 lb/min", "2721.8 lb/min"},
    {UNITS_L_PER_REV,         [](bool m, bool u, double v, int p, const Spec* s) { return U::GetVolumePerRevolutionString(m, u, v, p, s); }, "1234.6 L/rev", "326.1 gal/rev", "271.6 gal/rev"},
    {UNITS_KPA,               [](bool, bool, double v, int, const Spec*) { return U::GetPressureString(N(v)); }, "1235 kPa", "1235 kPa", "1235 kPa"},
    {UNITS_M_PER_PULSE,       [](bool m, bool, double v, int, const Spec*) { return U::GetWheelCalFactorString(m, N(v)); }, "1234.567 m/pulse", "4050.417 ft/pulse", "4050.417 ft/pulse"},
    {UNITS_PULSES_PER_L,      [](bool m, bool u, double v, int, const Spec*) { return U::GetFlowCalFactorString(m, u, N(v), UNITS_PULSES_PER_L); }, "1234.57 pulses/L", "4673.38 pulses/gal", "5612.45 pulses/gal"},
    {UNITS_PULSES_PER_ML,     [](bool m, bool u, double v, int, const Spec*) { return U::GetFlowCalFactorString(m, u, N(v), UNITS_PULSES_PER_ML); }, "1.23 pulses/mL", "36.51 pulses/fl.oz", "35.08 pulses/fl.oz"},
    {UNITS_PULSES_PER_M3,     [](bool m, bool u, double v, int, const Spec*) { return U::GetFlowCalFactorString(m, u, N(v), UNITS_PULSES_PER_M3); }, "1234567.02 pulses/m\u00b3", "34959.04 pulses/ft\u00b3", "34959.04 pulses/ft\u00b3"},
    {UNITS_PULSES_PER_T,      [](bool m, bool u, double v, int, const Spec*) { return U::GetFlowCalFactorString(m, u, N(v), UNITS_PULSES_PER_T); }, "1234567.02 pulses/t", "559.99 pulses/lb", "559.99 pulses/lb"},
    {UNITS_KG,                [](bool m, bool, double v, int p, const Spec* s) { return U::GetWeightString(m, N(v), p, s); }, "1235 kg", "2722 lb", "2722 lb"},
    {UNITS_KG_N,              [](bool m, bool, double v, int p, const Spec* s) { return U::GetNitrogenWeightString(m, N(v), p, s); }, "1235 kgN", "2722 lbN", "2722 lbN"},
    {UNITS_KG_PER_HA,         [](bool m, bool, double v, int p, const Spec* s) { return p == 100 ? U::GetWeightPerAreaStringDynamicPrecision(v) : U::GetWeightPerAreaString(m, N(v), p, s); }, "1234.57 kg/ha", "2721.75 lb/ha", "2721.75 lb/ha"},
    {UNITS_KG_N_PER_HA,       [](bool m, bool u, double v, int p, const Spec* s) { return p == 100 ? U::GetNitrogenWeightPerAreaStringDynamicPrecision(v) : U::GetVolumePerAreaString(m, u, N(v), false, UNITS_KG_N_PER_HA, p, s); }, "1234.6 kgN/ha", "2721.8 lbN/ha", "2721.8 lbN/ha"},
    {UNITS_KG_PER_MIN,        [](bool m, bool, double v, int p, const Spec* s) { return U::GetDischargeRateString(m, N(v), p, s); }, "1234.6 kg/min", "2721.8 lb/min", "2721.8 lb/min"},
    {UNITS_KG_N_PER_MIN,      [](bool m, bool u, double v, int p, const Spec* s) { return U::GetFlowRateString(m, u, N(v), false, UNITS_KG_N_PER_MIN, p, s); }, "1234.6 kgN/min", "2721.8 lbN/min", "2721.8 lbN/min"},
    {UNITS_KG_PER_REV,        [](bool m, bool, double v, int p, const Spec* s) { return U::GetWeightPerRevolutionString(m, v, p, s); }, "1234.57 kg/rev", "2721.75 lb/rev", "2721.75 lb/rev"},
    {UNITS_KG_PER_L,          [](bool m, bool u, double v, int p, const Spec* s) { return U::GetDensityString(m, u, v, p, s); }, "1234.6 kg/L", "10303.0 lb/gal", "12373.3 lb/gal"},
    {UNITS_KG_PER_M3,         [](bool m, bool, double v, int p, const Spec* s) { return U::GetDensityStringInKilogramsPerCubicMeter(m, v, p, s); }, "1234567.0 kg/m\u00b3", "77071.5 lb/ft\u00b3", "77071.5 lb/ft\u00b3"},
    {UNITS_KG_PER_US_BU,      [](bool m, bool u, double v, int p, const Spec* s) { return U::GetDensityStringInKilogramsPerUSBushel(m, u, v, p, s); }, "43505.0 kg/US bu", "95912.1 lb/US bu", "1235 "},
    {UNITS_KG_PER_UK_BU,      [](bool m, bool u, double v, int p, const Spec* s) { return U::GetDensityStringInKilogramsPerUKBushel(m, u, v, p, s); }, "44899.6 kg/UK bu", "1235 ", "98986.8 lb/UK bu"},
    {UNITS_PULSES_PER_KG_N,   [](bool m, bool u, double v, int, const Spec*) { return U::GetFlowCalFactorString(m, u, N(v), UNITS_PULSES_PER_KG_N); }, "1234.57 pulses/kgN", "559.99 pulses/lbN", "559.99 pulses/lbN"},
    {UNITS_KSEEDS_PER_HA,     [](bool, bool, double v, int p, const Spec* s) { return U::GetKiloseedsPerAreaString(v, p, s); }, "1235 KS/ha", "1235 KS/ha", "1235 KS/ha"},
    {UNITS_CELSIUS,           [](bool m, bool, double v, int p, const Spec* s) { return U::GetTemperatureString(m, v, p, s); }, "1235 \u00b0C", "2254 \u00b0F", "2254 \u00b0F"},
    {UNITS_RPM,               [](bool, bool, double v, int p, const Spec*) { return QString::number(v, 'f', p == -1 ? 0 : p) + Utf8(" rpm"); }, "1235 rpm", "1235 rpm", "1235 rpm"},
    {UNITS_LATITUDE,          [](bool, bool, double v, int, const Spec*) { return U::GetLatitudeString(v); }, "1234.56700000", "1234.56700000", "1234.56700000"},
    {UNITS_LONGITUDE,         [](bool, bool, double v, int, const Spec*) { return U::GetLongitudeString(v); }, "1234.56700000", "1234.56700000", "1234.56700000"},
};

const tagPlainUnit PlainUnits[] = {
    {UNITS_NONE,              ""},
    {UNITS_KILOMETERS,        "km"},
    {UNITS_CENTIMETERS,       "cm"},
    {UNITS_MILES,             "miles"},
    {UNITS_INCHES,            "\""},
    {UNITS_ACRES,             "ac"},
    {UNITS_FEET_PER_MIN,      "ft/min"},
    {UNITS_METERS_PER_SECOND, ""},
    {UNITS_MPH,               "mph"},
    {UNITS_HZ_PER_MPH,        "Hz/mph"},
    {UNITS_ACRES_PER_HOUR,    "ac/hr"},
    {UNITS_GALLONS,           "gal"},
    {UNITS_FLUID_OUNCES,      "fl.oz"},
    {UNITS_CUBIC_FEET,        "ft\u00b3"},
    {UNITS_L_PER_AC,          "L/ac"},
    {UNITS_ML_PER_AC,         "mL/ac"},
    {UNITS_GAL_PER_HA,        "gal/ha"},
    {UNITS_GAL_PER_AC,        "gal/ac"},
    {UNITS_US_GAL_PER_HA,     "gal/ha (US)"},
    {UNITS_US_GAL_PER_AC,     "gal/ac (US)"},
    {UNITS_FLOZ_PER_AC,       "fl.oz/ac"},
    {UNITS_FLOZ_PER_HA,       "fl.oz/ha"},
    {UNITS_US_FLOZ_PER_AC,    "fl.oz/ac (US)"},
    {UNITS_US_FLOZ_PER_HA,    "fl.oz/ha (US)"},
    {UNITS_M3_PER_AC,         "m\u00b3/ac"},
    {UNITS_FT3_PER_HA,        "ft\u00b3/ha"},
    {UNITS_FT3_PER_AC,        "ft\u00b3/ac"},
    {UNITS_T_PER_AC,          "t/ac"},
    {UNITS_L_PER_100M,        "L/100m"},
    {UNITS_GAL_PER_100YD,     "gal/100yd"},
    {UNITS_US_GAL_PER_100YD,  "gal/100yd (US)"},
    {UNITS_GAL_PER_MIN,       "gal/min"},
    {UNITS_FLOZ_PER_MIN,      "fl.oz/min"},
    {UNITS_FT3_PER_MIN,       "ft\u00b3/min"},
    {UNITS_GAL_PER_REV,       "gal/rev"},
    {UNITS_PSI,               "psi"},
    {UNITS_BAR,               "bar"},
    {UNITS_FT_PER_PULSE,      "ft/pulse"},
    {UNITS_PULSES_PER_GAL,    "pulses/gal"},
    {UNITS_PULSES_PER_FLOZ,   "pulses/fl.oz"},
    {UNITS_PULSES_PER_FT3,    "pulses/ft\u00b3"},
    {UNITS_PULSES_PER_LB,     "pulses/lb"},
    {UNITS_LB,                "lb"},
    {UNITS_LB_N,              "lbN"},
    {UNITS_KG_PER_AC,         "kg/ac"},
    {UNITS_LB_PER_AC,         "lb/ac"},
    {UNITS_LB_PER_HA,         "lb/ha"},
    {UNITS_G_PER_HA,          "g/ha"},
    {UNITS_KG_N_PER_AC,       "kgN/ac"},
    {UNITS_LB_N_PER_AC,       "lbN/ac"},
    {UNITS_LB_N_PER_HA,       "lbN/ha"},
    {UNITS_LB_PER_MIN,        "lb/min"},
    {UNITS_LB_N_PER_MIN,      "lbN/min"},
    {UNITS_LB_PER_REV,        "lb/rev"},
    {UNITS_LB_PER_GAL,        "lb/gal"},
    {UNITS_LB_PER_FT3,        "lb/ft\u00b3"},
    {UNITS_LB_PER_US_BU,      "lb/US bu"},
    {UNITS_LB_PER_UK_BU,      "lb/UK bu"},
    {UNITS_PULSES_PER_LB_N,   "pulses/lbN"},
    {UNITS_KSEEDS_PER_AC,     "KS/ac"},
    {UNITS_SECONDS,           "s"},
    {UNITS_MILLISECONDS,      "ms"},
    {UNITS_MINUTES,           "min"},
    {UNITS_HOURS,             "hrs"},
    {UNITS_HERTZ,             "Hz"},
    {UNITS_FAHRENHEIT,        "\u00b0F"},
    {UNITS_AMPERES,           "A"},
    {UNITS_WATTS,             "W"},
    {UNITS_MILLIWATTS,        "mW"},
};
// clang-format on

/// General notation where no decimals are asked for.
QString PlainText(double value, int precision, const QString& abbreviation)
{
    const QString number = precision < 0 ? QString::number(value, 'g', 6) : QString::number(value, 'f', precision);
    return abbreviation.isEmpty() ? number : number + QLatin1Char(' ') + abbreviation;
}

} // namespace

Q_DECLARE_METATYPE(const tagUnitOfQuantity*)

void ValueOfUnit::everyUnitGoesItsOwnWay_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<const tagUnitOfQuantity*>("quantity"); // null: shown as it is
    QTest::addColumn<QString>("abbreviation");
    const tagUnitOfQuantity* const none = nullptr;
    QList<int> units;
    for (const tagUnitOfQuantity& quantity : Quantities) {
        QTest::newRow(QByteArray::number(quantity.unit).constData()) << int(quantity.unit) << &quantity << QString();
        units << quantity.unit;
    }
    for (const tagPlainUnit& plain : PlainUnits) {
        QTest::newRow(QByteArray::number(plain.unit).constData())
            << int(plain.unit) << none << Utf8(plain.abbreviation);
        units << plain.unit;
    }
    for (int unit = 0; unit < 115; ++unit)
        QVERIFY2(units.count(unit) == 1, QByteArray::number(unit).constData());
    QCOMPARE(static_cast<int>(units.size()), 115);
    for (int unit : {115, 116, 1000, -1, -5, INT_MAX, INT_MIN})
        QTest::newRow(QByteArray::number(unit).constData()) << unit << none << QString();
}

void ValueOfUnit::everyUnitGoesItsOwnWay()
{
    QFETCH(int, unit);
    QFETCH(const tagUnitOfQuantity*, quantity);
    QFETCH(QString, abbreviation);
    const EUnitsType type = static_cast<EUnitsType>(unit);
    const Spec met = {0.001F, 4};
    const Spec notMet = {1e9F, 4};
    const Spec* const none = nullptr;
    for (int choices = 0; choices < 96; ++choices) {
        const bool metric = (choices & 1) != 0;
        const bool us = (choices & 2) != 0;
        m_Store->ChooseMeasures(metric, us);
        m_Store->ChooseRatesPerTravel(0, (choices & 4) != 0);
        m_Store->values[PARAM_DEGREES_MINUTES_SECONDS] = (choices & 8) != 0;
        m_Store->ChooseArea(choices / 16 % 3);
        m_Store->values[PARAM_PRESSURE_UNIT] = choices / 16 % 3;
        m_Store->values[PARAM_SHORT_DISTANCE_UNIT] = choices / 16 % 3;
        for (int precision : {-2, -1, 0, 1, 2, 3, 10, 100}) {
            for (const Spec* spec : {none, &met, &notMet}) {
                for (double value : {0.0, 0.5, 12.3456789, -12.3456789, 123456.789}) {
                    const QString expected = quantity ? quantity->text(metric, us, value, precision, spec)
                                                      : PlainText(value, precision, abbreviation);
                    QCOMPARE(U::GetValueString(value, type, precision, spec), expected);
                }
            }
        }
    }
}

void ValueOfUnit::everyQuantityIsShownInTheMeasuresChosen_data()
{
    QTest::addColumn<const tagUnitOfQuantity*>("quantity");
    for (const tagUnitOfQuantity& quantity : Quantities)
        QTest::newRow(quantity.metric) << &quantity;
}

void ValueOfUnit::everyQuantityIsShownInTheMeasuresChosen()
{
    QFETCH(const tagUnitOfQuantity*, quantity);
    const double value = 1234.567;
    m_Store->ChooseMeasures(true, false);
    QCOMPARE(U::GetValueString(value, quantity->unit, -1, nullptr), Utf8(quantity->metric));
    m_Store->ChooseMeasures(true, true);
    QCOMPARE(U::GetValueString(value, quantity->unit, -1, nullptr), Utf8(quantity->metric));
    m_Store->ChooseMeasures(false, true);
    QCOMPARE(U::GetValueString(value, quantity->unit, -1, nullptr), Utf8(quantity->us));
    m_Store->ChooseMeasures(false, false);
    QCOMPARE(U::GetValueString(value, quantity->unit, -1, nullptr), Utf8(quantity->english));
}

void ValueOfUnit::ratesAreShownWithTheDecimalsThatSuitThem_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<bool>("metric");
    QTest::addColumn<int>("area");
    QTest::addColumn<QString>("byValue");
    QTest::addColumn<QString>("byDefault");
    const int liquid = UNITS_L_PER_HA;
    const int granular = UNITS_KG_PER_HA;
    const int nitrogen = UNITS_KG_N_PER_HA;
    QTest::newRow("liquid") << liquid << true << 0 << Utf8("55.6 L/ha") << Utf8("56 L/ha");
    QTest::newRow("liquid per acre") << liquid << true << 1 << Utf8("22.5 L/ac") << Utf8("22 L/ac");
    QTest::newRow("liquid, imperial") << liquid << false << 0 << Utf8("12.2 gal/ha") << Utf8("12.2 gal/ha");
    QTest::newRow("liquid, another area") << liquid << true << 2 << Utf8("0.00 ") << Utf8("56 ");
    QTest::newRow("granular") << granular << true << 0 << Utf8("55.6 kg/ha") << Utf8("55.56 kg/ha");
    QTest::newRow("granular per acre") << granular << true << 1 << Utf8("22.5 kg/ac") << Utf8("22.48 kg/ac");
    QTest::newRow("granular, imperial") << granular << false << 0 << Utf8("122 lb/ha") << Utf8("122.49 lb/ha");
    QTest::newRow("granular, another area") << granular << true << 2 << Utf8("0.0 ") << Utf8("55.56 ");
    QTest::newRow("nitrogen") << nitrogen << true << 0 << Utf8("55.6 kgN/ha") << Utf8("55.6 kgN/ha");
    QTest::newRow("nitrogen per acre") << nitrogen << true << 1 << Utf8("22.5 kgN/ac") << Utf8("22.5 kgN/ac");
    QTest::newRow("nitrogen, imperial") << nitrogen << false << 0 << Utf8("122 lbN/ha") << Utf8("122.5 lbN/ha");
    QTest::newRow("nitrogen, another area") << nitrogen << true << 2 << Utf8("0.0 ") << Utf8("56 ");
}

void ValueOfUnit::ratesAreShownWithTheDecimalsThatSuitThem()
{
    QFETCH(int, unit);
    QFETCH(bool, metric);
    QFETCH(int, area);
    QFETCH(QString, byValue);
    QFETCH(QString, byDefault);
    m_Store->ChooseMeasures(metric, false);
    m_Store->ChooseArea(area);
    const EUnitsType type = static_cast<EUnitsType>(unit);
    const Spec spec = {0.0F, 4};
    QCOMPARE(U::GetValueString(55.56, type, 100, nullptr), byValue);
    QCOMPARE(U::GetValueString(55.56, type, 100, &spec), byValue);
    QCOMPARE(U::GetValueString(55.56, type, -1, nullptr), byDefault);
    QVERIFY(U::GetValueString(55.56, type, -1, &spec) != byDefault);
}

void ValueOfUnit::plainUnitsFollowNoThreshold()
{
    const Spec spec = {0.0F, 4};
    QCOMPARE(U::GetValueString(12.5, UNITS_ACRES, 1, &spec), Utf8("12.5 ac"));
    QCOMPARE(U::GetValueString(12.5, UNITS_MPH, -1, &spec), Utf8("12.5 mph"));
    QCOMPARE(U::GetValueString(1234567.0, UNITS_HERTZ, -1, nullptr), Utf8("1.23457e+06 Hz"));
    QCOMPARE(U::GetValueString(12.5, UNITS_METERS_PER_SECOND, -1, nullptr), Utf8("12.5"));
    QCOMPARE(U::GetValueString(12.5, UNITS_FEET_PER_MIN, 100, nullptr),
             Utf8("12.5") + QString(99, QLatin1Char('0')) + Utf8(" ft/min"));
    QCOMPARE(U::GetValueString(12.5, UNITS_INCHES, 1, nullptr), Utf8("12.5 \""));
    QCOMPARE(U::GetValueString(1500.4, UNITS_RPM, 1, &spec), Utf8("1500.4 rpm"));
}

int main(int argc, char** argv) { return RunCoreTest<ValueOfUnit>(argc, argv); }
#include "ValueOfUnit.moc"
