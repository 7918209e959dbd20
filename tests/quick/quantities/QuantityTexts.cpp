#include "TQuickTerminal.h"
#include "TestSeed.h"

#include "platform/EDecimalPoint.h"
#include "units/TUnitAbbreviations.h"
#include "units/TUnits.h"

#include <QAbstractListModel>
#include <QMetaProperty>
#include <QRegularExpression>

#include <cmath>
#include <limits>
#include <random>

/// `Quantity` shows what the library shows, in every unit, and reads back what it shows.
class QuantityTexts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { m_Terminal.reset(); }

    void everyKindIsTested();
    void textIsTheLibrarys_data() { AddKinds(false); }
    void textIsTheLibrarys();
    void whatIsNotANumberIsDashes_data() { AddKinds(false); }
    void whatIsNotANumberIsDashes();
    void whatIsShownIsReadBack_data() { AddKinds(true); }
    void whatIsShownIsReadBack();
    void typedNumbersAreRead_data();
    void typedNumbersAreRead();
    void otherTextsAreNotNumbers_data();
    void otherTextsAreNotNumbers();
    void aKindThatIsNotTypedReadsNothing();
    void textsFollowEveryChoiceOfUnits_data();
    void textsFollowEveryChoiceOfUnits();
    void aTextThatStaysIsNotTold();
    void decimalsAreThoseAskedFor();
    void theListShowsEveryKind();

private:
    static void AddKinds(bool typedAlone);
    static int Number(const char* kind);
    std::unique_ptr<QObject> Make(const QString& kind) const;
    void ChooseUnits(std::mt19937& random) const;

    static std::unique_ptr<TQuickTerminal> m_Terminal;
};

std::unique_ptr<TQuickTerminal> QuantityTexts::m_Terminal;

namespace {

using U = TUnits;

QString Latin(const char* text) { return QString::fromLatin1(text); }

/// A value under the choices of the moment.
struct tagCase
{
    double value;
    double error;
    bool metric;
    bool us;

    float Narrow() const { return static_cast<float>(value); }
};

struct tagKind
{
    const char* name;
    bool isTyped;
    double least;
    double greatest;
    QString (*text)(const tagCase& c);
};

EUnitsType GranularVolumeUnit()
{
    const EUnitsType unit = U::GetDryVolumeUnits();
    return unit == UNITS_KG ? UNITS_LITERS : unit;
}

QString GranularDensity(const tagCase& c)
{
    const EUnitsType unit = U::GetDryDensityUnits();
    if (unit == UNITS_KG_PER_M3)
        return U::GetDensityStringInKilogramsPerCubicMeter(c.metric, c.value, -1, nullptr);
    if (unit == UNITS_KG_PER_US_BU)
        return U::GetDensityStringInKilogramsPerUSBushel(c.metric, c.us, c.value, -1, nullptr);
    if (unit == UNITS_KG_PER_UK_BU)
        return U::GetDensityStringInKilogramsPerUKBushel(c.metric, c.us, c.value, -1, nullptr);
    return U::GetDensityString(c.metric, c.us, c.value, -1, nullptr);
}

// clang-format off
const tagKind Kinds[] = {
    {"Area", true, 0, 5000, [](const tagCase& c) { return U::GetAreaString(c.Narrow(), -1, nullptr); }},
    {"Productivity", false, 0, 50, [](const tagCase& c) { return U::GetProductivityString(c.Narrow(), -1, nullptr); }},
    {"Speed", true, -5, 20, [](const tagCase& c) { return U::GetSpeedString(c.metric, c.Narrow(), false); }},
    {"Distance", true, -100, 1000, [](const tagCase& c) { return U::GetDistanceString(c.Narrow(), false, -1, nullptr); }},
    {"SmallDistance", true, -5, 5, [](const tagCase& c) { return U::GetDistanceString(c.Narrow(), true, -1, nullptr); }},
    {"AdaptiveDistance", false, -5000, 5000, [](const tagCase& c) { return U::GetDistanceStringAdaptive(c.metric, c.Narrow(), true, false); }},
    {"Altitude", true, -100, 4000, [](const tagCase& c) { return U::GetDistanceStringInMetricOrImperialFeet(c.Narrow(), -1, nullptr); }},
    {"Temperature", true, -40, 60, [](const tagCase& c) { return U::GetTemperatureString(c.metric, c.value, -1, nullptr); }},
    {"Pressure", true, 0, 1000, [](const tagCase& c) { return U::GetPressureString(c.Narrow()); }},
    {"Rate", true, 0, 2000, [](const tagCase& c) { return U::GetVolumePerAreaString(c.metric, c.us, c.Narrow(), false, U::GetLiquidVolumePerAreaUnits(), -1, nullptr); }},
    {"RequestedRate", true, 0, 2000, [](const tagCase& c) { return U::GetSprayerRequestedRateString(c.value); }},
    {"RateError", false, 0, 2000, [](const tagCase& c) { return U::GetFlowRateAndRelativeErrorString(c.metric, c.us, false, c.Narrow(), static_cast<float>(c.error), false, U::GetLiquidVolumePerAreaUnits()); }},
    {"SmallRate", true, 0, 50, [](const tagCase& c) { return U::GetVolumePerAreaString(c.metric, c.us, c.Narrow(), true, UNITS_L_PER_HA, -1, nullptr); }},
    {"Flow", true, 0, 500, [](const tagCase& c) { return U::GetFlowRateString(c.metric, c.us, c.Narrow(), false, U::GetLiquidFlowRateUnits(), -1, nullptr); }},
    {"SmallFlow", true, 0, 5, [](const tagCase& c) { return U::GetFlowRateString(c.metric, c.us, c.Narrow(), true, UNITS_L_PER_MIN, -1, nullptr); }},
    {"Volume", true, 0, 9000, [](const tagCase& c) { return U::GetVolumeString(c.metric, c.us, c.Narrow(), false, U::GetLiquidVolumeUnits(), -1, nullptr); }},
    {"SmallVolume", true, 0, 5, [](const tagCase& c) { return U::GetVolumeString(c.metric, c.us, c.Narrow(), true, UNITS_LITERS, -1, nullptr); }},
    {"GranularVolume", false, 0, 9000, [](const tagCase& c) { return U::GetVolumeString(c.metric, c.us, c.Narrow(), false, GranularVolumeUnit(), -1, nullptr); }},
    {"Weight", true, 0, 9000, [](const tagCase& c) { return U::GetWeightString(c.metric, c.Narrow(), -1, nullptr); }},
    {"WeightPerArea", true, 0, 999, [](const tagCase& c) { return U::GetWeightPerAreaString(c.metric, c.Narrow(), -1, nullptr); }},
    {"WeightPerAreaError", false, 0, 999, [](const tagCase& c) { return U::GetDischargeRateAndRelativeErrorString(c.metric, true, c.Narrow(), static_cast<float>(c.error)); }},
    {"Discharge", true, 0, 500, [](const tagCase& c) { return U::GetDischargeRateString(c.metric, c.Narrow(), -1, nullptr); }},
    {"NitrogenWeight", true, 0, 9000, [](const tagCase& c) { return U::GetNitrogenWeightString(c.metric, c.Narrow(), -1, nullptr); }},
    {"NitrogenPerArea", true, 0, 500, [](const tagCase& c) { return U::GetNitrogenWeightPerAreaStringDynamicPrecision(c.value); }},
    {"SeedsPerArea", true, 0, 900, [](const tagCase& c) { return U::GetKiloseedsPerAreaString(c.value, -1, nullptr); }},
    {"Density", true, 0, 3, [](const tagCase& c) { return U::GetDensityString(c.metric, c.us, c.value, -1, nullptr); }},
    {"GranularDensity", false, 0, 3, GranularDensity},
    {"VolumePerRevolution", true, 0, 20, [](const tagCase& c) { return U::GetVolumePerRevolutionString(c.metric, c.us, c.value, -1, nullptr); }},
    {"WeightPerRevolution", true, 0, 20, [](const tagCase& c) { return U::GetWeightPerRevolutionString(c.metric, c.value, -1, nullptr); }},
    {"FlowFactor", true, 0, 50, [](const tagCase& c) { return U::GetFlowCalFactorString(c.metric, c.us, c.Narrow(), U::GetLiquidFlowCalFactorUnits()); }},
    {"WheelFactor", true, 0, 2, [](const tagCase& c) { return U::GetWheelCalFactorString(c.metric, c.Narrow()); }},
    {"SpeedFactor", true, 0, 100, [](const tagCase& c) { return U::GetPulsesPerSpeedUnitString(c.metric, c.Narrow()); }},
    {"Latitude", false, -90, 90, [](const tagCase& c) { return U::GetLatitudeString(c.value); }},
    {"Longitude", false, -180, 180, [](const tagCase& c) { return U::GetLongitudeString(c.value); }},
    {"Duration", false, 0, 20, [](const tagCase& c) { return U::GetDurationString(c.Narrow()); }},
    {"Percent", true, -100, 100, [](const tagCase& c) { return U::GetValueString(c.value, Latin(" %"), 0, nullptr); }},
};
// clang-format on

const tagKind& Kind(const QString& name)
{
    return *std::find_if(std::begin(Kinds), std::end(Kinds),
                         [&name](const tagKind& kind) { return name == Latin(kind.name); });
}

/// Every choice of a unit, with the number of its values.
struct tagUnitChoice
{
    EParamID parameter;
    int count;
    bool isSwitch;
};

const tagUnitChoice UnitChoices[] = {
    {PARAM_METRIC, 2, true},           {PARAM_US_MEASURES, 2, true},          {PARAM_AREA_UNIT, 2, false},
    {PARAM_PRESSURE_UNIT, 3, false},   {PARAM_SHORT_DISTANCE_UNIT, 3, false}, {PARAM_LIQUID_UNIT, 3, false},
    {PARAM_DRY_VOLUME_UNIT, 5, false}, {PARAM_DRY_DENSITY_UNIT, 4, false},    {PARAM_DEGREES_MINUTES_SECONDS, 2, true},
    {PARAM_RATE_PER_TRAVEL, 2, true},  {PARAM_SPRAYER_RATE_BASIS, 2, false},
};

QVariant ChoiceValue(const tagUnitChoice& choice, int value)
{
    return choice.isSwitch ? QVariant(value != 0) : QVariant(value);
}

double Between(double least, double greatest, std::mt19937& random)
{
    return std::uniform_real_distribution<double>(least, greatest)(random);
}

QChar DecimalSign() { return CABSETTINGS_DECIMAL_POINT == DECIMAL_POINT_COMMA ? QLatin1Char(',') : QLatin1Char('.'); }

/// @p text with the decimal sign of the display in place of a full stop.
QString Signed(const char* text) { return Latin(text).replace(QLatin1Char('.'), DecimalSign()); }

/// NaN when it is none.
double AsNumber(QString text)
{
    bool isNumber = false;
    const double number = text.replace(DecimalSign(), QLatin1Char('.')).toDouble(&isNumber);
    return isNumber ? number : std::numeric_limits<double>::quiet_NaN();
}

double Parse(QObject* quantity, const QString& typed)
{
    double value = 0;
    QMetaObject::invokeMethod(quantity, "parse", Q_RETURN_ARG(double, value), Q_ARG(QString, typed));
    return value;
}

QString Format(QObject* quantity, double value)
{
    QString number;
    QMetaObject::invokeMethod(quantity, "format", Q_RETURN_ARG(QString, number), Q_ARG(double, value));
    return number;
}

QString Text(const QObject* quantity, const char* property) { return quantity->property(property).toString(); }

} // namespace

void QuantityTexts::initTestCase()
{
    TestSeed();
    m_Terminal =
        std::make_unique<TQuickTerminal>(QMap<int, QVariant>{{PARAM_DECIMAL_POINT, int{CABSETTINGS_DECIMAL_POINT}}});
}

void QuantityTexts::AddKinds(bool typedAlone)
{
    QTest::addColumn<QString>("kind");
    for (const tagKind& kind : Kinds) {
        if (kind.isTyped || !typedAlone)
            QTest::newRow(kind.name) << Latin(kind.name);
    }
}

int QuantityTexts::Number(const char* kind)
{
    const std::unique_ptr<QObject> quantity = m_Terminal->Make("Quantity {}");
    const QMetaObject* const meta = quantity->metaObject();
    return meta->property(meta->indexOfProperty("kind")).enumerator().keyToValue(kind);
}

std::unique_ptr<QObject> QuantityTexts::Make(const QString& kind) const
{
    return m_Terminal->Make("Quantity { kind: Quantity." + kind.toLatin1() + " }");
}

void QuantityTexts::ChooseUnits(std::mt19937& random) const
{
    for (const tagUnitChoice& choice : UnitChoices) {
        const int value = std::uniform_int_distribution<int>(0, choice.count - 1)(random);
        m_Terminal->Store().SetParameter(choice.parameter, ChoiceValue(choice, value), false);
    }
}

void QuantityTexts::everyKindIsTested()
{
    const int count = Number("KindCount");
    QCOMPARE(static_cast<int>(std::size(Kinds)), count);
    for (int i = 0; i < count; ++i)
        QCOMPARE(Number(Kinds[i].name), i);
}

void QuantityTexts::textIsTheLibrarys()
{
    QFETCH(QString, kind);
    const tagKind& row = Kind(kind);
    const std::unique_ptr<QObject> quantity = Make(kind);
    QCOMPARE(quantity->property("canBeTyped").toBool(), row.isTyped);
    QVERIFY(!Text(quantity.get(), "title").isEmpty());

    QSet<QString> units = {QString(), Latin("%")};
    for (int unit = 0; unit < UNITS_COUNT; ++unit)
        units.insert(TUnitAbbreviations::UnitAbbreviations[unit]);
    const QRegularExpression plain(Latin("\\A-?\\d+([.,]\\d+)?\\z"));
    const bool isPosition = kind == Latin("Latitude") || kind == Latin("Longitude");

    std::mt19937 random(TestSeed());
    for (int system = 0; system < 100; ++system) {
        ChooseUnits(random);
        const bool metric = m_Terminal->Store().GetParameter(PARAM_METRIC).toBool();
        const bool us = m_Terminal->Store().GetParameter(PARAM_US_MEASURES).toBool();
        for (int i = 0; i < 20; ++i) {
            const tagCase value = {Between(row.least, row.greatest, random), Between(-1500, 1500, random), metric, us};
            quantity->setProperty("error", value.error);
            quantity->setProperty("value", value.value);
            const QString text = Text(quantity.get(), "text");
            QCOMPARE(text, row.text(value));

            // The parts make the whole, and each is what it should be.
            const QString number = Text(quantity.get(), "number");
            const QString unit = Text(quantity.get(), "unit");
            const QString error = Text(quantity.get(), "errorText");
            const QString behind = error.isEmpty() ? unit : unit + Latin(" (") + error + Latin(")");
            QVERIFY2(text == number + behind || text == number + QLatin1Char(' ') + behind, qPrintable(text));
            QVERIFY2(units.contains(unit), qPrintable(text));
            const bool isFeetAndInches = kind == Latin("AdaptiveDistance") && unit.isEmpty();
            QVERIFY2(isPosition || isFeetAndInches || plain.match(number).hasMatch(), qPrintable(text));
            QCOMPARE(error.isEmpty(), !kind.endsWith(Latin("Error")));
            QVERIFY(error.isEmpty() || error.endsWith(QLatin1Char('%')));
            QCOMPARE(Format(quantity.get(), value.value), number);
        }
    }
}

void QuantityTexts::whatIsNotANumberIsDashes()
{
    QFETCH(QString, kind);
    const std::unique_ptr<QObject> quantity = Make(kind);
    std::mt19937 random(TestSeed());
    ChooseUnits(random);
    quantity->setProperty("value", 0.0);
    const QString unit = Text(quantity.get(), "unit");
    const bool hasError = kind.endsWith(Latin("Error"));
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double value : {std::numeric_limits<double>::quiet_NaN(), infinity, -infinity, 1e300}) {
        quantity->setProperty("value", value);
        QCOMPARE(Text(quantity.get(), "number"), Latin("----"));
        QCOMPARE(Text(quantity.get(), "unit"), unit);
        QCOMPARE(Text(quantity.get(), "errorText"), hasError ? Latin("----%") : QString());
        QVERIFY(Text(quantity.get(), "text").startsWith(Latin("----")));
        QCOMPARE(Format(quantity.get(), value), Latin("----"));
    }
}

void QuantityTexts::whatIsShownIsReadBack()
{
    QFETCH(QString, kind);
    const tagKind& row = Kind(kind);
    const std::unique_ptr<QObject> quantity = Make(kind);
    std::mt19937 random(TestSeed());
    for (int system = 0; system < 200; ++system) {
        ChooseUnits(random);
        for (int i = 0; i < 20; ++i) {
            const double value = Between(row.least, row.greatest, random);
            const QString shown = Format(quantity.get(), value);
            const double read = Parse(quantity.get(), shown);
            const QString again = Format(quantity.get(), read);
            quantity->setProperty("value", value);
            // The same number: -0 may come back as 0, and 9.99, shown as 10.0, as 10.
            QVERIFY2(AsNumber(again) == AsNumber(shown),
                     qPrintable(Latin("%1, typed as %2, is %3").arg(Text(quantity.get(), "text"), shown, again)));
        }
    }
}

void QuantityTexts::typedNumbersAreRead_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("value");
    QTest::newRow("whole") << Latin("12") << 12.0;
    QTest::newRow("decimals") << Signed("12.5") << 12.5;
    QTest::newRow("sign at the end") << Signed("12.") << 12.0;
    QTest::newRow("sign at the beginning") << Signed(".5") << 0.5;
    QTest::newRow("negative") << Signed("-1.25") << -1.25;
    QTest::newRow("plus") << Latin("+3") << 3.0;
    QTest::newRow("blanks around it") << Latin(" 7 ") << 7.0;
    QTest::newRow("leading zeros") << Signed("007.10") << 7.1;
}

void QuantityTexts::typedNumbersAreRead()
{
    QFETCH(QString, typed);
    QTEST(Parse(Make(Latin("Percent")).get(), typed), "value");
}

void QuantityTexts::otherTextsAreNotNumbers_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("empty") << QString();
    QTest::newRow("blank") << Latin(" ");
    QTest::newRow("sign alone") << QString(DecimalSign());
    QTest::newRow("minus alone") << Latin("-");
    QTest::newRow("two signs") << Signed("1.2.3");
    QTest::newRow("the other sign") << (DecimalSign() == QLatin1Char(',') ? Latin("12.5") : Latin("12,5"));
    QTest::newRow("both signs") << Latin("1.234,5");
    QTest::newRow("exponent") << Latin("1e3");
    QTest::newRow("hexadecimal") << Latin("0x10");
    QTest::newRow("letters") << Latin("12a");
    QTest::newRow("blank within") << Latin("1 2");
    QTest::newRow("digits of another script") << QString::fromUtf8("۱۲");
    QTest::newRow("too large for the library") << QString(40, QLatin1Char('9'));
    QTest::newRow("too large for a number") << QString(400, QLatin1Char('9'));
    QTest::newRow("not a number") << Latin("nan");
}

void QuantityTexts::otherTextsAreNotNumbers()
{
    QFETCH(QString, typed);
    QVERIFY(std::isnan(Parse(Make(Latin("Percent")).get(), typed)));
}

void QuantityTexts::aKindThatIsNotTypedReadsNothing()
{
    QVERIFY(std::isnan(Parse(Make(Latin("Duration")).get(), Latin("2"))));
}

void QuantityTexts::textsFollowEveryChoiceOfUnits_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("parameter");
    const auto row = [](const char* kind, EParamID parameter) { QTest::newRow(kind) << Latin(kind) << int{parameter}; };
    row("Speed", PARAM_METRIC);
    row("Area", PARAM_AREA_UNIT);
    row("Pressure", PARAM_PRESSURE_UNIT);
    row("Distance", PARAM_SHORT_DISTANCE_UNIT);
    row("Volume", PARAM_LIQUID_UNIT);
    row("GranularVolume", PARAM_DRY_VOLUME_UNIT);
    row("GranularDensity", PARAM_DRY_DENSITY_UNIT);
    row("Latitude", PARAM_DEGREES_MINUTES_SECONDS);
}

void QuantityTexts::textsFollowEveryChoiceOfUnits()
{
    QFETCH(QString, kind);
    QFETCH(int, parameter);
    const auto* const choice =
        std::find_if(std::begin(UnitChoices), std::end(UnitChoices),
                     [parameter](const tagUnitChoice& row) { return row.parameter == parameter; });
    m_Terminal->Store().SetParameter(PARAM_METRIC, true, false);
    const std::unique_ptr<QObject> quantity = Make(kind);
    quantity->setProperty("value", 2.5);
    const std::unique_ptr<QObject> setting = m_Terminal->Make("Parameter {}");
    setting->setProperty("name", QString::number(parameter));
    QCoreApplication::processEvents();
    for (int value = 0; value < choice->count; ++value) {
        setting->setProperty("value", ChoiceValue(*choice, value));
        // Nothing else is set: the text changes by itself.
        const double stored = 2.5;
        const tagCase now = {stored, 0, m_Terminal->Store().GetParameter(PARAM_METRIC).toBool(),
                             m_Terminal->Store().GetParameter(PARAM_US_MEASURES).toBool()};
        QTRY_COMPARE_WITH_TIMEOUT(Text(quantity.get(), "text"), Kind(kind).text(now), Patience);
    }
}

void QuantityTexts::aTextThatStaysIsNotTold()
{
    const std::unique_ptr<QObject> quantity = Make(Latin("Area"));
    quantity->setProperty("value", 8.37);
    QCoreApplication::processEvents();
    QSignalSpy texts(quantity.get(), SIGNAL(textChanged()));
    quantity->setProperty("value", 8.3700001);
    QCOMPARE(static_cast<int>(texts.size()), 0);
    quantity->setProperty("value", 8.47);
    QCOMPARE(static_cast<int>(texts.size()), 1);
}

void QuantityTexts::decimalsAreThoseAskedFor()
{
    for (const tagUnitChoice& choice : UnitChoices)
        m_Terminal->Store().SetParameter(choice.parameter, ChoiceValue(choice, choice.isSwitch ? 1 : 0), false);
    m_Terminal->Store().SetParameter(PARAM_SPRAYER_RATE_BASIS, 1, false);
    const std::unique_ptr<QObject> rate = m_Terminal->Make("Quantity { kind: Quantity.Rate; value: 182.44 }");
    QCOMPARE(Text(rate.get(), "text"), Latin("182 L/ha"));
    rate->setProperty("precision", 1);
    QCOMPARE(Text(rate.get(), "text"), Signed("182.4 L/ha"));
    rate->setProperty("precision", 4);
    QCOMPARE(Text(rate.get(), "text"), Signed("182.4400 L/ha"));
    rate->setProperty("precision", 99);
    QCOMPARE(rate->property("precision").toInt(), 9);
    rate->setProperty("precision", -7);
    QCOMPARE(rate->property("precision").toInt(), -1);
    QCOMPARE(Text(rate.get(), "decimalSign"), QString(DecimalSign()));
}

void QuantityTexts::theListShowsEveryKind()
{
    const std::unique_ptr<QObject> object = m_Terminal->Make("QuantityModel {}");
    const auto* const model = qobject_cast<QAbstractItemModel*>(object.get());
    const auto cell = [model](int row, const char* role) {
        return model->index(row, 0).data(model->roleNames().key(role));
    };
    QCOMPARE(model->rowCount(), static_cast<int>(std::size(Kinds)));
    m_Terminal->Store().SetParameter(PARAM_AREA_UNIT, 0, false);
    QTRY_COMPARE_WITH_TIMEOUT(cell(0, "unit").toString(), Latin("ha"), Patience);
    QSignalSpy changes(model, &QAbstractItemModel::dataChanged);
    m_Terminal->Store().SetParameter(PARAM_AREA_UNIT, 1, false);
    QTRY_COMPARE_WITH_TIMEOUT(cell(0, "unit").toString(), Latin("ac"), Patience);
    QVERIFY(!changes.isEmpty());
    for (int row = 0; row < model->rowCount(); ++row) {
        QCOMPARE(cell(row, "kind").toInt(), row);
        QVERIFY(!cell(row, "title").toString().isEmpty());
        QVERIFY(!cell(row, "number").toString().isEmpty());
        QVERIFY(cell(row, "text").toString().contains(cell(row, "unit").toString()));
        QVERIFY(!cell(row, "number").toString().startsWith(Latin("--")));
    }
}

QTEST_GUILESS_MAIN(QuantityTexts)
#include "QuantityTexts.moc"
