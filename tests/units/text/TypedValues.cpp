#include "CoreTest.h"
#include "TChosenUnits.h"

#include <cmath>

namespace {

using U = TUnits;

/// How a quantity comes back into the unit in which it is stored.
struct tagTypedQuantity
{
    EUnitsType unit;
    double (*back)(double shown);
};

/// From the unit shown, as the display's choices name it.
template <EUnitsType Unit>
double FromShownUnit(double shown)
{
    return U::GetValueInDefaultUnit(shown, Unit);
}

/// From the imperial partner, or from a metric unit that is not the one stored.
template <EUnitsType Unit>
double FromEitherSystem(double shown)
{
    const bool metric = ConfigManager->GetParameter(PARAM_METRIC).toBool();
    return metric ? U::NormaliseMetricValue(shown, Unit) : U::ConvertToMetric(shown, Unit);
}

double FromSpeed(double shown)
{
    const bool metric = ConfigManager->GetParameter(PARAM_METRIC).toBool();
    return U::ConvertToMetersPerSecond(shown, metric ? UNITS_KPH : UNITS_MPH);
}

double FromSmallDistance(double shown)
{
    return U::ConvertToMeter(shown, U::GetShortDistanceUnits(true, UNITS_METERS));
}

double FromProductivity(double shown)
{
    const bool acres = ConfigManager->GetParameter(PARAM_AREA_UNIT).toInt() == 1;
    return acres ? U::ConvertAcresToHectares(static_cast<float>(shown)) : shown;
}

double FromTravel(double shown)
{
    const float value = static_cast<float>(shown);
    if (ConfigManager->GetParameter(PARAM_METRIC).toBool())
        return U::ConvertLitersPer100MetersToLitersPerHectare(value);
    return ConfigManager->GetParameter(PARAM_US_MEASURES).toBool()
               ? U::ConvertUSGallonsPer100YardsToLitersPerHectare(value)
               : U::ConvertEnglishGallonsPer100YardsToLitersPerHectare(value);
}

/// The general way back first. The others are shown by another way than the units' hubs go, on purpose: speeds are
/// stored in metres per second, productivity has no hub of its own, temperatures have none, pounds of a flow come back
/// as litres, and pounds per bushel belong to the bushel of the measures in use.
const tagTypedQuantity Quantities[] = {
    {UNITS_METERS, FromShownUnit<UNITS_METERS>},
    {UNITS_FEET, FromShownUnit<UNITS_FEET>},
    {UNITS_HECTARES, FromShownUnit<UNITS_HECTARES>},
    {UNITS_METERS_PER_MIN, FromShownUnit<UNITS_METERS_PER_MIN>},
    {UNITS_HZ_PER_KPH, FromShownUnit<UNITS_HZ_PER_KPH>},
    {UNITS_LITERS, FromShownUnit<UNITS_LITERS>},
    {UNITS_MILLILITERS, FromShownUnit<UNITS_MILLILITERS>},
    {UNITS_CUBIC_METERS, FromShownUnit<UNITS_CUBIC_METERS>},
    {UNITS_TONNES, FromShownUnit<UNITS_TONNES>},
    {UNITS_US_BUSHELS, FromShownUnit<UNITS_US_BUSHELS>},
    {UNITS_UK_BUSHELS, FromShownUnit<UNITS_UK_BUSHELS>},
    {UNITS_L_PER_HA, FromShownUnit<UNITS_L_PER_HA>},
    {UNITS_ML_PER_HA, FromShownUnit<UNITS_ML_PER_HA>},
    {UNITS_M3_PER_HA, FromShownUnit<UNITS_M3_PER_HA>},
    {UNITS_T_PER_HA, FromShownUnit<UNITS_T_PER_HA>},
    {UNITS_L_PER_MIN, FromShownUnit<UNITS_L_PER_MIN>},
    {UNITS_ML_PER_MIN, FromShownUnit<UNITS_ML_PER_MIN>},
    {UNITS_M3_PER_MIN, FromShownUnit<UNITS_M3_PER_MIN>},
    {UNITS_L_PER_REV, FromShownUnit<UNITS_L_PER_REV>},
    {UNITS_KPA, FromShownUnit<UNITS_KPA>},
    {UNITS_M_PER_PULSE, FromShownUnit<UNITS_M_PER_PULSE>},
    {UNITS_PULSES_PER_L, FromShownUnit<UNITS_PULSES_PER_L>},
    {UNITS_PULSES_PER_ML, FromShownUnit<UNITS_PULSES_PER_ML>},
    {UNITS_PULSES_PER_M3, FromShownUnit<UNITS_PULSES_PER_M3>},
    {UNITS_PULSES_PER_T, FromShownUnit<UNITS_PULSES_PER_T>},
    {UNITS_PULSES_PER_KG_N, FromShownUnit<UNITS_PULSES_PER_KG_N>},
    {UNITS_KG, FromShownUnit<UNITS_KG>},
    {UNITS_KG_N, FromShownUnit<UNITS_KG_N>},
    {UNITS_KG_PER_HA, FromShownUnit<UNITS_KG_PER_HA>},
    {UNITS_KG_N_PER_HA, FromShownUnit<UNITS_KG_N_PER_HA>},
    {UNITS_KG_PER_MIN, FromShownUnit<UNITS_KG_PER_MIN>},
    {UNITS_KG_N_PER_MIN, FromShownUnit<UNITS_KG_N_PER_MIN>},
    {UNITS_KG_PER_REV, FromShownUnit<UNITS_KG_PER_REV>},
    {UNITS_KG_PER_L, FromShownUnit<UNITS_KG_PER_L>},
    {UNITS_KG_PER_M3, FromShownUnit<UNITS_KG_PER_M3>},
    {UNITS_KSEEDS_PER_HA, FromShownUnit<UNITS_KSEEDS_PER_HA>},
    {UNITS_RPM, FromShownUnit<UNITS_RPM>},

    {UNITS_MILLIMETERS, FromSmallDistance},
    {UNITS_KPH, FromSpeed},
    {UNITS_HECTARES_PER_HOUR, FromProductivity},
    {UNITS_T_PER_MIN, FromEitherSystem<UNITS_T_PER_MIN>},
    {UNITS_KG_PER_US_BU, FromEitherSystem<UNITS_KG_PER_US_BU>},
    {UNITS_KG_PER_UK_BU, FromEitherSystem<UNITS_KG_PER_UK_BU>},
    {UNITS_CELSIUS, FromEitherSystem<UNITS_CELSIUS>},
};

/// The digits of the numbers typed; how many of them are decimals depends on the unit.
const int DigitsTyped[] = {0,   1,   7,   9,   10,  12,   25,   50,   99,    100,
                           101, 123, 250, 499, 999, 1234, 4567, 9999, 12345, 54321};

/// The number at the start of @p text.
QString NumberIn(const QString& text)
{
    int size = 0;
    while (size < static_cast<int>(text.size()) && QString::fromLatin1("-,0123456789").contains(text.at(size)))
        ++size;
    return text.left(size);
}

bool HasNoPoundsPerBushel(EUnitsType unit, bool us)
{
    return (unit == UNITS_KG_PER_US_BU && !us) || (unit == UNITS_KG_PER_UK_BU && us);
}

} // namespace

Q_DECLARE_METATYPE(const tagTypedQuantity*)

/// A number that the operator types is stored and shown again as he typed it.
class TypedValues : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_Store.values[PARAM_DECIMAL_POINT] = 1; }

    void whatIsTypedComesBack_data();
    void whatIsTypedComesBack();
    void ratesPerTravelComeBack();
    void ratesInAcresComeBackByTheUnitChosen_data();
    void ratesInAcresComeBackByTheUnitChosen();
    void plainUnitsComeBackAsTheyAre();

private:
    void CheckAll(EUnitsType unit, double (*back)(double));

    TChosenUnits m_Store;
};

/// Types each number with the decimals that the unit shows, and looks at what is shown in its place.
void TypedValues::CheckAll(EUnitsType unit, double (*back)(double))
{
    const QString sample = NumberIn(U::GetValueString(1.0, unit, -1, nullptr));
    const int comma = static_cast<int>(sample.indexOf(QLatin1Char(',')));
    const int decimals = comma < 0 ? 0 : static_cast<int>(sample.size()) - comma - 1;
    for (int digits : DigitsTyped) {
        const double magnitude = digits / std::pow(10.0, decimals);
        if (unit == UNITS_KPA && decimals == 1 && magnitude >= 100)
            continue; // shown without decimals from there
        for (const char* sign : {"", "-"}) {
            if (digits == 0 && *sign != 0)
                continue;
            const QString typed = QString::fromLatin1(sign) +
                                  QString::number(magnitude, 'f', decimals).replace(QLatin1Char('.'), QLatin1Char(','));
            bool isNumber = false;
            const double read = U::DisplayableToInternalFloatStr(typed).toDouble(&isNumber);
            QVERIFY2(isNumber, typed.toUtf8().constData());
            QCOMPARE(NumberIn(U::GetValueString(back(read), unit, -1, nullptr)), typed);
        }
    }
}

void TypedValues::whatIsTypedComesBack_data()
{
    QTest::addColumn<const tagTypedQuantity*>("quantity");
    QTest::addColumn<bool>("metric");
    QTest::addColumn<bool>("us");
    QTest::addColumn<int>("choice");
    for (const tagTypedQuantity& quantity : Quantities) {
        for (int measures = 0; measures < 4; ++measures) {
            const bool metric = (measures & 1) != 0;
            const bool us = (measures & 2) != 0;
            if (!metric && HasNoPoundsPerBushel(quantity.unit, us))
                continue;
            for (int choice = 0; choice < 3; ++choice) {
                const QString name = QString::fromLatin1("%1, metric %2, us %3, choice %4")
                                         .arg(static_cast<int>(quantity.unit))
                                         .arg(static_cast<int>(metric))
                                         .arg(static_cast<int>(us))
                                         .arg(choice);
                QTest::newRow(name.toLatin1().constData()) << &quantity << metric << us << choice;
            }
        }
    }
}

void TypedValues::whatIsTypedComesBack()
{
    QFETCH(const tagTypedQuantity*, quantity);
    QFETCH(bool, metric);
    QFETCH(bool, us);
    QFETCH(int, choice);
    m_Store.ChooseMeasures(metric, us);
    m_Store.ChooseArea(choice % 2);
    m_Store.ChooseRatesPerTravel(1, false);
    m_Store.values[PARAM_PRESSURE_UNIT] = choice;
    m_Store.values[PARAM_SHORT_DISTANCE_UNIT] = choice;
    CheckAll(quantity->unit, quantity->back);
}

void TypedValues::ratesPerTravelComeBack()
{
    m_Store.ChooseRatesPerTravel(0, true);
    for (int choices = 0; choices < 8; ++choices) {
        m_Store.ChooseMeasures((choices & 1) != 0, (choices & 2) != 0);
        m_Store.ChooseArea(choices / 4);
        CheckAll(UNITS_L_PER_HA, FromTravel);
    }
}

void TypedValues::ratesInAcresComeBackByTheUnitChosen_data()
{
    QTest::addColumn<int>("unit");
    for (int unit : {8, 28, 30, 40, 44, 75, 80, 100})
        QTest::newRow(QByteArray::number(unit).constData()) << unit;
}

/// In acres only: in hectares this pair leaves the volume or weight alone, both ways.
void TypedValues::ratesInAcresComeBackByTheUnitChosen()
{
    QFETCH(int, unit);
    m_Store.ChooseArea(1);
    const EUnitsType type = static_cast<EUnitsType>(unit);
    for (int choices = 0; choices < 8; ++choices) {
        m_Store.ChooseMeasures((choices & 1) != 0, (choices & 2) != 0);
        m_Store.ChooseRatesPerTravel(0, (choices & 4) != 0);
        for (int digits : DigitsTyped) {
            const double shown = U::ConvertSpecifiedAreaUnitIn(U::ConvertSpecifiedAreaUnitOut(digits, type), type);
            QCOMPARE(QString::number(shown, 'f', 1), QString::number(digits) + QLatin1String(".0"));
        }
    }
}

void TypedValues::plainUnitsComeBackAsTheyAre()
{
    for (int unit : {0, 2, 3, 6, 7, 9, 14, 17, 34, 102, 106, 110, 112}) {
        const QString shown = U::GetValueString(12.25, static_cast<EUnitsType>(unit), 2, nullptr);
        QCOMPARE(U::DisplayableToInternalFloatStr(NumberIn(shown)).toDouble(), 12.25);
    }
}

int main(int argc, char** argv) { return RunCoreTest<TypedValues>(argc, argv); }
#include "TypedValues.moc"
