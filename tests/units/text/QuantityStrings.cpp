#include "CoreTest.h"
#include "QuantityLook.h"
#include "TChosenUnits.h"

namespace {

using U = TUnits;

/// A quantity that follows the measures it is asked in.
struct tagQuantity
{
    const char* name;
    QString (*text)(bool metric, bool us, int precision, const Spec* spec);
    tagLook metric;
    tagLook us;
    tagLook english;
};

/// A quantity that follows the area chosen, by the three values that the choice may have.
struct tagAreaQuantity
{
    const char* name;
    QString (*text)(int precision, const Spec* spec);
    tagLook looks[3];
};

// clang-format off
const tagQuantity Quantities[] = {
    {"temperature",             [](bool m, bool, int p, const Spec* s) { return U::GetTemperatureString(m, 21.54, p, s); },                      {21.54, "22 \u00b0C"}, {70.7719998, "71 \u00b0F"}, {70.7719998, "71 \u00b0F"}},
    {"temperature below zero",  [](bool m, bool, int p, const Spec* s) { return U::GetTemperatureString(m, -21.54, p, s); },                     {-21.54, "-22 \u00b0C"}, {-6.77199975, "-7 \u00b0F"}, {-6.77199975, "-7 \u00b0F"}},
    {"speed in a minute",       [](bool m, bool, int p, const Spec* s) { return U::GetSpeedStringForMetersPerMinute(m, 123.456F, p, s); },       {123.456, "123.5 m/min"}, {405.039377, "405.0 ft/min"}, {405.039377, "405.0 ft/min"}},
    {"cubic volume",            [](bool m, bool, int p, const Spec* s) { return U::GetVolumeStringInCubicMeterOrCubicFeet(m, 4567.89F, p, s); }, {4.56789014, "4.57 m\u00b3"}, {161.313524, "161.31 ft\u00b3"}, {161.313524, "161.31 ft\u00b3"}},
    {"volume in tonnes",        [](bool m, bool, int p, const Spec* s) { return U::GetVolumeStringInTonnes(m, 4567.89F, p, s); },                {4.56789014, "4.57 t"}, {10070.4737, "10070 lb"}, {10070.4737, "10070 lb"}},
    {"volume in US bushels",    [](bool, bool, int p, const Spec* s) { return U::GetVolumeStringInUSBushels(4567.89F, p, s); },                  {129.625726, "129.6 US bu"}, {129.625726, "129.6 US bu"}, {129.625726, "129.6 US bu"}},
    {"volume in UK bushels",    [](bool, bool, int p, const Spec* s) { return U::GetVolumeStringInUKBushels(4567.89F, p, s); },                  {125.599364, "125.6 UK bu"}, {125.599364, "125.6 UK bu"}, {125.599364, "125.6 UK bu"}},
    {"cubic flow",              [](bool m, bool, int p, const Spec* s) { return U::GetFlowRateStringInCubicMetersPerMinute(m, 4567.89F, p, s); }, {4.56789014, "4.57 m\u00b3/min"}, {161.313524, "161.31 ft\u00b3/min"}, {161.313524, "161.31 ft\u00b3/min"}},
    {"flow in tonnes",          [](bool m, bool, int p, const Spec* s) { return U::GetFlowRateStringInTonnesPerMinute(m, 4567.89F, p, s); },     {4.56789014, "4.57 t/min"}, {10070.4737, "10070.5 lb/min"}, {10070.4737, "10070.5 lb/min"}},
    {"weight",                  [](bool m, bool, int p, const Spec* s) { return U::GetWeightString(m, 123.456F, p, s); },                        {123.456, "123 kg"}, {272.173879, "272 lb"}, {272.173879, "272 lb"}},
    {"nitrogen weight",         [](bool m, bool, int p, const Spec* s) { return U::GetNitrogenWeightString(m, 123.456F, p, s); },                {123.456, "123 kgN"}, {272.173879, "272 lbN"}, {272.173879, "272 lbN"}},
    {"discharge rate",          [](bool m, bool, int p, const Spec* s) { return U::GetDischargeRateString(m, 123.456F, p, s); },                 {123.456, "123.5 kg/min"}, {272.173879, "272.2 lb/min"}, {272.173879, "272.2 lb/min"}},
    {"weight per revolution",   [](bool m, bool, int p, const Spec* s) { return U::GetWeightPerRevolutionString(m, 123.456, p, s); },            {123.456, "123.46 kg/rev"}, {272.173879, "272.17 lb/rev"}, {272.173879, "272.17 lb/rev"}},
    {"volume per revolution",   [](bool m, bool u, int p, const Spec* s) { return U::GetVolumePerRevolutionString(m, u, 123.456, p, s); },       {123.456, "123.5 L/rev"}, {32.6133707, "32.6 gal/rev"}, {27.1565231, "27.2 gal/rev"}},
    {"density",                 [](bool m, bool u, int p, const Spec* s) { return U::GetDensityString(m, u, 1.23456, p, s); },                   {1.23456, "1.2 kg/L"}, {10.3029825, "10.3 lb/gal"}, {12.3732698, "12.4 lb/gal"}},
    {"density per cubic measure", [](bool m, bool, int p, const Spec* s) { return U::GetDensityStringInKilogramsPerCubicMeter(m, 1.23456, p, s); }, {1234.56001, "1234.6 kg/m\u00b3"}, {77.0710571, "77.1 lb/ft\u00b3"}, {77.0710571, "77.1 lb/ft\u00b3"}},
    {"density per US bushel",   [](bool m, bool u, int p, const Spec* s) { return U::GetDensityStringInKilogramsPerUSBushel(m, u, 1.23456, p, s); }, {43.5047478, "43.5 kg/US bu"}, {95.9115462, "95.9 lb/US bu"}, {1.23456, "1 "}},
    {"density per UK bushel",   [](bool m, bool u, int p, const Spec* s) { return U::GetDensityStringInKilogramsPerUKBushel(m, u, 1.23456, p, s); }, {44.8993875, "44.9 kg/UK bu"}, {1.23456, "1 "}, {98.9862003, "99.0 lb/UK bu"}},

    {"volume",                  [](bool m, bool u, int p, const Spec* s) { return U::GetVolumeString(m, u, 123.456F, false, UNITS_LITERS, p, s); },     {123.456, "123.5 L"}, {32.6133707, "32.6 gal"}, {27.1565231, "27.2 gal"}},
    {"small volume",            [](bool m, bool u, int p, const Spec* s) { return U::GetVolumeString(m, u, 1.23456F, true, UNITS_MILLILITERS, p, s); }, {1234.56001, "1234.6 mL"}, {41.7454395, "41.7 fl.oz"}, {43.4504382, "43.5 fl.oz"}},
    {"small volume of another product", [](bool m, bool u, int p, const Spec* s) { return U::GetVolumeString(m, u, 1.23456F, true, UNITS_TONNES, p, s); }, {1234.56001, "1234.6 mL"}, {41.7454395, "41.7 fl.oz"}, {43.4504382, "43.5 fl.oz"}},
    {"volume of another product", [](bool m, bool u, int p, const Spec* s) { return U::GetVolumeString(m, u, 123.456F, false, UNITS_MILLILITERS, p, s); }, {123.456, "123 "}, {123.456, "123 "}, {123.456, "123 "}},
    {"volume of no product",    [](bool m, bool u, int p, const Spec* s) { return U::GetVolumeString(m, u, 123.456F, false, static_cast<EUnitsType>(-1), p, s); }, {123.456, "123 "}, {123.456, "123 "}, {123.456, "123 "}},

    {"flow",                    [](bool m, bool u, int p, const Spec* s) { return U::GetFlowRateString(m, u, 123.456F, false, UNITS_L_PER_MIN, p, s); }, {123.456, "123.46 L/min"}, {32.6133707, "32.61 gal/min"}, {27.1565231, "27.16 gal/min"}},
    {"small flow",              [](bool m, bool u, int p, const Spec* s) { return U::GetFlowRateString(m, u, 1.23456F, true, UNITS_ML_PER_MIN, p, s); }, {1234.56001, "1234.56 mL/min"}, {41.7454395, "41.75 fl.oz/min"}, {43.4504382, "43.45 fl.oz/min"}},
    {"small flow of another product", [](bool m, bool u, int p, const Spec* s) { return U::GetFlowRateString(m, u, 1.23456F, true, UNITS_M3_PER_MIN, p, s); }, {1234.56001, "1234.56 mL/min"}, {41.7454395, "41.75 fl.oz/min"}, {43.4504382, "43.45 fl.oz/min"}},
    {"nitrogen flow",           [](bool m, bool u, int p, const Spec* s) { return U::GetFlowRateString(m, u, 123.456F, false, UNITS_KG_N_PER_MIN, p, s); }, {123.456, "123.5 kgN/min"}, {272.173879, "272.2 lbN/min"}, {272.173879, "272.2 lbN/min"}},
    {"flow of another product", [](bool m, bool u, int p, const Spec* s) { return U::GetFlowRateString(m, u, 123.456F, false, UNITS_ML_PER_MIN, p, s); }, {123.456, "123 "}, {123.456, "123 "}, {123.456, "123 "}},
    {"flow of a volume's unit", [](bool m, bool u, int p, const Spec* s) { return U::GetFlowRateString(m, u, 123.456F, false, UNITS_LITERS, p, s); }, {123.456, "123 "}, {123.456, "123 "}, {123.456, "123 "}},
};

const tagAreaQuantity AreaQuantities[] = {
    {"area",                  [](int p, const Spec* s) { return U::GetAreaString(123.456F, p, s); },            {{123.456, "123.46 ha"},    {305.066426, "305.07 ac"},    {123.456, "123 "}}},
    {"productivity",          [](int p, const Spec* s) { return U::GetProductivityString(123.456F, p, s); },    {{123.456, "123.46 ha/hr"}, {305.066426, "305.07 ac/hr"}, {123.456, "123 "}}},
    {"kiloseeds per area",    [](int p, const Spec* s) { return U::GetKiloseedsPerAreaString(123.456, p, s); }, {{123.456, "123 KS/ha"},    {49.9608717, "50 KS/ac"},     {123.456, "123 "}}},
};

/// Products whose volumes and flows are handed on, dropping the threshold and, for flows, the precision.
const tagQuantity HandedOn[] = {
    {"volume in cubic measures", [](bool m, bool u, int p, const Spec* s) { return U::GetVolumeString(m, u, 4567.89F, false, UNITS_CUBIC_METERS, p, s); }, {4.56789014, "4.57 m\u00b3"}, {161.313524, "161.31 ft\u00b3"}, {161.313524, "161.31 ft\u00b3"}},
    {"volume in tonnes",         [](bool m, bool u, int p, const Spec* s) { return U::GetVolumeString(m, u, 4567.89F, false, UNITS_TONNES, p, s); },       {4.56789014, "4.57 t"}, {10070.4737, "10070 lb"}, {10070.4737, "10070 lb"}},
    {"volume in US bushels",     [](bool m, bool u, int p, const Spec* s) { return U::GetVolumeString(m, u, 4567.89F, false, UNITS_US_BUSHELS, p, s); },   {129.625726, "129.6 US bu"}, {129.625726, "129.6 US bu"}, {129.625726, "129.6 US bu"}},
    {"volume in UK bushels",     [](bool m, bool u, int p, const Spec* s) { return U::GetVolumeString(m, u, 4567.89F, false, UNITS_UK_BUSHELS, p, s); },   {125.599364, "125.6 UK bu"}, {125.599364, "125.6 UK bu"}, {125.599364, "125.6 UK bu"}},
};

const tagQuantity HandedOnByDefaultPrecision[] = {
    {"flow in cubic measures", [](bool m, bool u, int p, const Spec* s) { return U::GetFlowRateString(m, u, 4567.89F, false, UNITS_M3_PER_MIN, p, s); }, {4.56789014, "4.57 m\u00b3/min"}, {161.313524, "161.31 ft\u00b3/min"}, {161.313524, "161.31 ft\u00b3/min"}},
    {"flow in tonnes",         [](bool m, bool u, int p, const Spec* s) { return U::GetFlowRateString(m, u, 4567.89F, false, UNITS_T_PER_MIN, p, s); },  {4.56789014, "4.57 t/min"}, {10070.4737, "10070.5 lb/min"}, {10070.4737, "10070.5 lb/min"}},
};

/// Quantities without a precision of their caller's.
const tagQuantity ByDefaultPrecision[] = {
    {"speed",                  [](bool m, bool u, int, const Spec*) { return U::GetSpeedString(m, 3.21F, u); },              {11.5559996, "11.6 kph"}, {7.18056563, "7.2 mph"}, {7.18056563, "7.2 mph"}},
    {"speed backwards",        [](bool m, bool u, int, const Spec*) { return U::GetSpeedString(m, -3.21F, u); },             {-11.5559996, "-11.6 kph"}, {-7.18056563, "-7.2 mph"}, {-7.18056563, "-7.2 mph"}},
    {"pulses per speed unit",  [](bool m, bool, int, const Spec*) { return U::GetPulsesPerSpeedUnitString(m, 12.345678F); }, {12.345678, "12.35 Hz/kph"}, {19.8684428, "19.87 Hz/mph"}, {19.8684428, "19.87 Hz/mph"}},
    {"wheel factor",           [](bool m, bool, int, const Spec*) { return U::GetWheelCalFactorString(m, 0.123456F); },      {0.123456, "0.123 m/pulse"}, {0.405039377, "0.405 ft/pulse"}, {0.405039377, "0.405 ft/pulse"}},

    {"pulses per litre",       [](bool m, bool u, int, const Spec*) { return U::GetFlowCalFactorString(m, u, 123.456F, UNITS_PULSES_PER_L); },    {123.456, "123.46 pulses/L"}, {467.335449, "467.34 pulses/gal"}, {561.242107, "561.24 pulses/gal"}},
    {"pulses per millilitre",  [](bool m, bool u, int, const Spec*) { return U::GetFlowCalFactorString(m, u, 4567.89F, UNITS_PULSES_PER_ML); },   {4.56789014, "4.57 pulses/mL"}, {135.088637, "135.09 pulses/fl.oz"}, {129.787748, "129.79 pulses/fl.oz"}},
    {"pulses per cubic measure", [](bool m, bool u, int, const Spec*) { return U::GetFlowCalFactorString(m, u, 1.23456F, UNITS_PULSES_PER_M3); }, {1234.56001, "1234.56 pulses/m\u00b3"}, {34.9588464, "34.96 pulses/ft\u00b3"}, {34.9588464, "34.96 pulses/ft\u00b3"}},
    {"pulses per tonne",       [](bool m, bool u, int, const Spec*) { return U::GetFlowCalFactorString(m, u, 1.23456F, UNITS_PULSES_PER_T); },    {1234.56001, "1234.56 pulses/t"}, {0.559987017, "0.56 pulses/lb"}, {0.559987017, "0.56 pulses/lb"}},
    {"pulses per nitrogen weight", [](bool m, bool u, int, const Spec*) { return U::GetFlowCalFactorString(m, u, 123.456F, UNITS_PULSES_PER_KG_N); }, {123.456, "123.46 pulses/kgN"}, {55.9987031, "56.00 pulses/lbN"}, {55.9987031, "56.00 pulses/lbN"}},
    {"pulses of an imperial product", [](bool m, bool u, int, const Spec*) { return U::GetFlowCalFactorString(m, u, 123.456F, UNITS_PULSES_PER_GAL); }, {123.456, "123 "}, {123.456, "123 "}, {123.456, "123 "}},
    {"pulses of no product",   [](bool m, bool u, int, const Spec*) { return U::GetFlowCalFactorString(m, u, 123.456F, static_cast<EUnitsType>(115)); }, {123.456, "123 "}, {123.456, "123 "}, {123.456, "123 "}},
};
// clang-format on

template <std::size_t Count>
void AddQuantities(const tagQuantity (&quantities)[Count])
{
    QTest::addColumn<const tagQuantity*>("quantity");
    QTest::addColumn<bool>("metric");
    QTest::addColumn<bool>("us");
    for (const tagQuantity& quantity : quantities) {
        const QByteArray name = quantity.name;
        QTest::newRow((name + ", metric").constData()) << &quantity << true << false;
        QTest::newRow((name + ", metric beside US").constData()) << &quantity << true << true;
        QTest::newRow((name + ", US").constData()) << &quantity << false << true;
        QTest::newRow((name + ", English").constData()) << &quantity << false << false;
    }
}

} // namespace

Q_DECLARE_METATYPE(const tagQuantity*)
Q_DECLARE_METATYPE(const tagAreaQuantity*)

class QuantityStrings : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aQuantityFollowsMeasuresPrecisionAndThreshold_data() { AddQuantities(Quantities); }
    void aQuantityFollowsMeasuresPrecisionAndThreshold();
    void aQuantityPerAreaFollowsTheAreaChosen_data();
    void aQuantityPerAreaFollowsTheAreaChosen();
    void volumesHandedOnFollowNoThreshold_data() { AddQuantities(HandedOn); }
    void volumesHandedOnFollowNoThreshold();
    void flowsHandedOnShowTheirDefaultPrecision_data() { AddQuantities(HandedOnByDefaultPrecision); }
    void flowsHandedOnShowTheirDefaultPrecision();
    void quantitiesWithoutPrecisionShowTheirDefault_data() { AddQuantities(ByDefaultPrecision); }
    void quantitiesWithoutPrecisionShowTheirDefault();
    void theThirdArgumentOfSpeedChangesNothing();

    void shortDistancesFollowTheUnitChosen_data();
    void shortDistancesFollowTheUnitChosen();
    void pressureFollowsTheUnitChosen_data();
    void pressureFollowsTheUnitChosen();

    void knownExamples();
    void theThresholdIsComparedWithTheValueShown();
    void parametersAreReadAfreshAtEveryCall();
    void measuresOfTheDisplayDoNotTouchThoseAskedFor();
    void abbreviationsFollowTheLanguage();

private:
    TChosenUnits* m_Store;
};

void QuantityStrings::init() { m_Store = new TChosenUnits; }
void QuantityStrings::cleanup() { delete m_Store; }

static const tagLook& LookOf(const tagQuantity& quantity, bool metric, bool us)
{
    return metric ? quantity.metric : us ? quantity.us : quantity.english;
}

void QuantityStrings::aQuantityFollowsMeasuresPrecisionAndThreshold()
{
    QFETCH(const tagQuantity*, quantity);
    QFETCH(bool, metric);
    QFETCH(bool, us);
    CheckPrecisions(LookOf(*quantity, metric, us),
                    [&](int precision, const Spec* spec) { return quantity->text(metric, us, precision, spec); });
}

void QuantityStrings::aQuantityPerAreaFollowsTheAreaChosen_data()
{
    QTest::addColumn<const tagAreaQuantity*>("quantity");
    QTest::addColumn<int>("area");
    QTest::addColumn<int>("look");
    for (const tagAreaQuantity& quantity : AreaQuantities) {
        const QByteArray name = quantity.name;
        QTest::newRow((name + ", hectares").constData()) << &quantity << 0 << 0;
        QTest::newRow((name + ", acres").constData()) << &quantity << 1 << 1;
        QTest::newRow((name + ", another").constData()) << &quantity << 2 << 2;
        QTest::newRow((name + ", negative").constData()) << &quantity << -1 << 2;
    }
}

void QuantityStrings::aQuantityPerAreaFollowsTheAreaChosen()
{
    QFETCH(const tagAreaQuantity*, quantity);
    QFETCH(int, area);
    QFETCH(int, look);
    m_Store->ChooseArea(area);
    CheckPrecisions(quantity->looks[look], quantity->text);
}

void QuantityStrings::volumesHandedOnFollowNoThreshold()
{
    QFETCH(const tagQuantity*, quantity);
    QFETCH(bool, metric);
    QFETCH(bool, us);
    const tagLook& look = LookOf(*quantity, metric, us);
    const Spec met = Rule(look.value - 0.5, 3);
    QCOMPARE(quantity->text(metric, us, -1, nullptr), Utf8(look.text));
    QCOMPARE(quantity->text(metric, us, -1, &met), Utf8(look.text));
    QCOMPARE(quantity->text(metric, us, 1, &met), WithDecimals(look, 1));
    QCOMPARE(quantity->text(metric, us, 0, &met), WithDecimals(look, 0));
}

void QuantityStrings::flowsHandedOnShowTheirDefaultPrecision()
{
    QFETCH(const tagQuantity*, quantity);
    QFETCH(bool, metric);
    QFETCH(bool, us);
    const tagLook& look = LookOf(*quantity, metric, us);
    const Spec met = Rule(look.value - 0.5, 3);
    for (int precision : {-1, 0, 3, 100}) {
        QCOMPARE(quantity->text(metric, us, precision, nullptr), Utf8(look.text));
        QCOMPARE(quantity->text(metric, us, precision, &met), Utf8(look.text));
    }
}

void QuantityStrings::quantitiesWithoutPrecisionShowTheirDefault()
{
    QFETCH(const tagQuantity*, quantity);
    QFETCH(bool, metric);
    QFETCH(bool, us);
    const tagLook& look = LookOf(*quantity, metric, us);
    QCOMPARE(quantity->text(metric, us, -1, nullptr), Utf8(look.text));
}

void QuantityStrings::theThirdArgumentOfSpeedChangesNothing()
{
    for (bool metric : {false, true})
        QCOMPARE(U::GetSpeedString(metric, 3.21F, true), U::GetSpeedString(metric, 3.21F, false));
}

void QuantityStrings::shortDistancesFollowTheUnitChosen_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<QString>("large");
    QTest::addColumn<QString>("small");
    QTest::addColumn<QString>("inFeet");
    QTest::addColumn<QString>("withOneDecimal");
    QTest::newRow("metric") << 0 << Utf8("1.235 m") << Utf8("1235 mm") << Utf8("1.235 m") << Utf8("1.2 m");
    QTest::newRow("inches") << 1 << Utf8("48.61\"") << Utf8("48.61\"") << Utf8("4.05'") << Utf8("48.6\"");
    QTest::newRow("feet") << 2 << Utf8("4.05'") << Utf8("48.61\"") << Utf8("4.05'") << Utf8("4.1'");
    QTest::newRow("another") << 3 << Utf8("1.235 m") << Utf8("1235 mm") << Utf8("1.235 m") << Utf8("1.2 m");
    QTest::newRow("negative") << -1 << Utf8("1.235 m") << Utf8("1235 mm") << Utf8("1.235 m") << Utf8("1.2 m");
}

void QuantityStrings::shortDistancesFollowTheUnitChosen()
{
    QFETCH(int, unit);
    QFETCH(QString, large);
    QFETCH(QString, small);
    QFETCH(QString, inFeet);
    QFETCH(QString, withOneDecimal);
    m_Store->values[PARAM_SHORT_DISTANCE_UNIT] = unit;
    const float meters = 1.2345678F;
    QCOMPARE(U::GetDistanceString(meters, false, -1, nullptr), large);
    QCOMPARE(U::GetDistanceString(meters, true, -1, nullptr), small);
    QCOMPARE(U::GetDistanceStringInMetricOrImperialFeet(meters, -1, nullptr), inFeet);
    QCOMPARE(U::GetDistanceString(-meters, false, -1, nullptr), QLatin1Char('-') + large);

    QCOMPARE(U::GetDistanceString(meters, false, 1, nullptr), withOneDecimal);
    const Spec met = {1.0F, 1};
    const Spec notMet = {10000.0F, 1};
    QCOMPARE(U::GetDistanceString(meters, false, 3, &met), withOneDecimal);
    QCOMPARE(U::GetDistanceString(meters, false, -1, &notMet), large);
    QCOMPARE(U::GetDistanceString(meters, true, -1, &notMet), small);
    QCOMPARE(U::GetDistanceStringInMetricOrImperialFeet(meters, -1, &notMet), inFeet);
    QVERIFY(U::GetDistanceString(meters, true, -1, &met) != small);
    QVERIFY(U::GetDistanceStringInMetricOrImperialFeet(meters, -1, &met) != inFeet);
}

void QuantityStrings::pressureFollowsTheUnitChosen_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<double>("kilopascals");
    QTest::addColumn<QString>("text");

    const struct
    {
        const char* name;
        int unit;
        double kilopascals;
        const char* text;
    } rows[] = {
        {"kPa", 0, 12.34, "12.3 kPa"},
        {"kPa just below a hundred", 0, 99.94, "99.9 kPa"},
        {"kPa that round to a hundred", 0, 99.96, "100.0 kPa"},
        {"a hundred kPa", 0, 100, "100 kPa"},
        {"kPa above a hundred", 0, 1234.56, "1235 kPa"},
        {"negative kPa", 0, -12.34, "-12.3 kPa"},
        {"kPa below minus a hundred", 0, -500.26, "-500.3 kPa"},
        {"no pressure", 0, 0, "0.0 kPa"},
        {"psi", 1, 100, "14.5 psi"},
        {"psi by their own magnitude", 1, 500, "72.5 psi"},
        {"psi just below a hundred", 1, 689, "99.9 psi"},
        {"psi above a hundred", 1, 700, "102 psi"},
        {"negative psi", 1, -700, "-101.5 psi"},
        {"bar", 2, 250, "2.50 bar"},
        {"a hundred bar", 2, 10000, "100.00 bar"},
        {"bar above a hundred", 2, 12345.6, "123.46 bar"},
        {"negative bar", 2, -250, "-2.50 bar"},
        {"another unit", 3, 12.34, "12 "},
        {"another unit, above a hundred", 3, 1234.56, "1235 "},
        {"negative unit", -1, 12.34, "12 "},
    };
    for (const auto& row : rows)
        QTest::newRow(row.name) << row.unit << row.kilopascals << Utf8(row.text);
}

void QuantityStrings::pressureFollowsTheUnitChosen()
{
    QFETCH(int, unit);
    QFETCH(double, kilopascals);
    QFETCH(QString, text);
    m_Store->values[PARAM_PRESSURE_UNIT] = unit;
    QCOMPARE(U::GetPressureString(static_cast<float>(kilopascals)), text);
}

void QuantityStrings::knownExamples()
{
    m_Store->ChooseArea(1);
    QCOMPARE(U::GetAreaString(2.0F, -1, nullptr), Utf8("4.94 ac"));
    m_Store->ChooseArea(2);
    QCOMPARE(U::GetAreaString(50.0F, -1, nullptr), Utf8("50 "));
    QCOMPARE(U::GetTemperatureString(false, 100, -1, nullptr), Utf8("212 \u00b0F"));
    QCOMPARE(U::GetTemperatureString(false, -40, -1, nullptr), Utf8("-40 \u00b0F"));
}

void QuantityStrings::theThresholdIsComparedWithTheValueShown()
{
    const Spec spec = {100.0F, 0}; // pounds, when pounds are shown
    QCOMPARE(U::GetWeightString(true, 50.0F, 2, &spec), Utf8("50.00 kg"));
    QCOMPARE(U::GetWeightString(false, 50.0F, 2, &spec), Utf8("110 lb"));
    QCOMPARE(U::GetWeightString(true, 100.0F, 2, &spec), Utf8("100 kg"));
    QCOMPARE(U::GetVolumeString(false, true, 300.0F, false, UNITS_LITERS, 2, &spec), Utf8("79.25 gal"));
    m_Store->values[PARAM_SHORT_DISTANCE_UNIT] = 1;
    QCOMPARE(U::GetDistanceString(3.0F, false, 2, &spec), Utf8("118\""));
    QCOMPARE(U::GetDistanceString(2.0F, false, 2, &spec), Utf8("78.74\""));
}

void QuantityStrings::parametersAreReadAfreshAtEveryCall()
{
    QStringList texts;
    for (int choice : {0, 1, 0, 2}) {
        m_Store->ChooseArea(choice);
        m_Store->values[PARAM_PRESSURE_UNIT] = choice;
        texts << U::GetAreaString(1.0F, -1, nullptr) << U::GetPressureString(50.0F);
    }
    QCOMPARE(texts, QStringList() << Utf8("1.00 ha") << Utf8("50.0 kPa") << Utf8("2.47 ac") << Utf8("7.3 psi")
                                  << Utf8("1.00 ha") << Utf8("50.0 kPa") << Utf8("1 ") << Utf8("0.50 bar"));
}

void QuantityStrings::measuresOfTheDisplayDoNotTouchThoseAskedFor()
{
    for (bool stored : {false, true}) {
        m_Store->ChooseMeasures(stored, stored);
        QCOMPARE(U::GetVolumeString(false, true, 123.456F, false, UNITS_LITERS, -1, nullptr), Utf8("32.6 gal"));
        QCOMPARE(U::GetVolumeString(false, false, 123.456F, false, UNITS_LITERS, -1, nullptr), Utf8("27.2 gal"));
        QCOMPARE(U::GetVolumeString(true, false, 123.456F, false, UNITS_LITERS, -1, nullptr), Utf8("123.5 L"));
    }
}

void QuantityStrings::abbreviationsFollowTheLanguage()
{
    m_Store->ChooseMeasures(true, false);
    const QString english = TUnitAbbreviations::UnitAbbreviations[UNITS_KG];
    TUnitAbbreviations::UnitAbbreviations[UNITS_KG] = Utf8("\u043a\u0433 %1");
    const QString text = U::GetWeightString(true, 5.0F, 1, nullptr);
    const QString ofUnit = U::GetValueString(5.0, UNITS_KG, 1, nullptr);
    TUnitAbbreviations::UnitAbbreviations[UNITS_KG] = english;
    QCOMPARE(text, Utf8("5.0 \u043a\u0433 %1"));
    QCOMPARE(ofUnit, text);
}

int main(int argc, char** argv) { return RunCoreTest<QuantityStrings>(argc, argv); }
#include "QuantityStrings.moc"
