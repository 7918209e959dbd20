// A value and its unit as one text.

#include "units/TUnitAbbreviations.h"
#include "units/TUnits.h"
#include "units/conversion/Measures.h"
#include "units/table/UnitTable.h"
#include "units/text/DecimalPoint.h"
#include "units/text/NumberText.h"
#include "units/text/QuantityText.h"
#include "units/text/TFixedNumber.h"

#include <QDate>

#include <utility>

namespace {

const char* const TimeOfDay = "HH:mm:ss";      // the value is a time of day in hours
const char* const CalendarDate = "DD/MM/YYYY"; // the value is a Julian day
const int HoursOnTheDial = 12;

/// 7.5 as 7:30, 7:30 am. Minutes are not carried: 7.999 is 7:60.
QString TimeText(double hours)
{
    const int hour = NumberText::Truncated(hours);
    const double minutes = (hours - hour) * 60;
    const QString minuteText =
        NumberText::TwoDigits(NumberText::Truncated(minutes > 0 ? minutes + 0.5 : minutes - 0.5));
    if (Parameters::ReadBool(PARAM_24_HOUR_CLOCK))
        return QString::number(hour) + QLatin1Char(':') + minuteText;
    const int onDial = hour % HoursOnTheDial;
    return QString::number(onDial == 0 ? HoursOnTheDial : onDial) + QLatin1Char(':') + minuteText + QLatin1Char(' ') +
           QLatin1String(hour < HoursOnTheDial ? "am" : "pm");
}

QString DateText(double julianDay)
{
    const QDate date = QDate::fromJulianDay(NumberText::Truncated(julianDay));
    const bool monthFirst = Parameters::ReadBool(PARAM_MONTH_FIRST);
    return QString::fromLatin1("%1/%2/%3")
        .arg(monthFirst ? date.month() : date.day())
        .arg(monthFirst ? date.day() : date.month())
        .arg(date.year());
}

/// The number and the text behind it. Without a precision the number is in general notation with 6 digits.
template <class Text>
QString NumberAnd(double value, int precision, const Text& text)
{
    return precision < 0 ? QString(QString::number(value) % text) : QString(TFixedNumber(value, precision) % text);
}

/// The arguments of the functions that show a quantity.
struct tagRequest
{
    double value;
    bool metric;
    bool us;
    int precision;
    const TUnits::tagThresholdSpec* spec;

    float Narrow() const { return static_cast<float>(value); }
};

using TQuantityText = QString (*)(const tagRequest& request);

struct tagQuantityRow
{
    EUnitsType type;
    TQuantityText text;
};

using U = TUnits;
using R = tagRequest;

template <EUnitsType Product, bool Small>
QString VolumeText(const R& r)
{
    return U::GetVolumeString(r.metric, r.us, r.Narrow(), Small, Product, r.precision, r.spec);
}

template <EUnitsType Product, bool Small>
QString FlowText(const R& r)
{
    return U::GetFlowRateString(r.metric, r.us, r.Narrow(), Small, Product, r.precision, r.spec);
}

template <EUnitsType Product, bool Small>
QString VolumePerAreaText(const R& r)
{
    return U::GetVolumePerAreaString(r.metric, r.us, r.Narrow(), Small, Product, r.precision, r.spec);
}

template <EUnitsType Product>
QString FlowCalText(const R& r)
{
    return U::GetFlowCalFactorString(r.metric, r.us, r.Narrow(), Product);
}

/// The rate with the given precision, or with decimals that depend on its value.
template <QString (*Dynamic)(double), QString (*Plain)(const R&)>
QString RateText(const R& r)
{
    return r.precision == U::DynamicPrecision ? Dynamic(r.value) : Plain(r);
}

QString WeightPerAreaText(const R& r) { return U::GetWeightPerAreaString(r.metric, r.Narrow(), r.precision, r.spec); }

QString RpmText(const R& r)
{
    return QuantityText::WithDecimals({r.value, UNITS_RPM}, U::GetUnitPrecision(UNITS_RPM, r.precision));
}

// The units that are shown as a quantity. All others show the value as it is. Nitrogen per area is shown as a rate of
// volume, as it always was.
// clang-format off
constexpr tagQuantityRow QuantityRows[] = {
    {UNITS_METERS,            [](const R& r) { return U::GetDistanceString(r.Narrow(), false, r.precision, r.spec); }},
    {UNITS_MILLIMETERS,       [](const R& r) { return U::GetDistanceString(r.Narrow(), true, r.precision, r.spec); }},
    {UNITS_FEET,              [](const R& r) { return U::GetDistanceStringInMetricOrImperialFeet(r.Narrow(), r.precision, r.spec); }},
    {UNITS_HECTARES,          [](const R& r) { return U::GetAreaString(r.Narrow(), r.precision, r.spec); }},
    {UNITS_METERS_PER_MIN,    [](const R& r) { return U::GetSpeedStringForMetersPerMinute(r.metric, r.Narrow(), r.precision, r.spec); }},
    {UNITS_KPH,               [](const R& r) { return U::GetSpeedString(r.metric, r.Narrow(), true); }},
    {UNITS_HZ_PER_KPH,        [](const R& r) { return U::GetPulsesPerSpeedUnitString(r.metric, r.Narrow()); }},
    {UNITS_HECTARES_PER_HOUR, [](const R& r) { return U::GetProductivityString(r.Narrow(), r.precision, r.spec); }},
    {UNITS_LITERS,            VolumeText<UNITS_LITERS, false>},
    {UNITS_MILLILITERS,       VolumeText<UNITS_MILLILITERS, true>},
    {UNITS_CUBIC_METERS,      [](const R& r) { return U::GetVolumeStringInCubicMeterOrCubicFeet(r.metric, r.Narrow(), r.precision, r.spec); }},
    {UNITS_TONNES,            [](const R& r) { return U::GetVolumeStringInTonnes(r.metric, r.Narrow(), r.precision, r.spec); }},
    {UNITS_US_BUSHELS,        [](const R& r) { return U::GetVolumeStringInUSBushels(r.Narrow(), r.precision, r.spec); }},
    {UNITS_UK_BUSHELS,        [](const R& r) { return U::GetVolumeStringInUKBushels(r.Narrow(), r.precision, r.spec); }},
    {UNITS_L_PER_HA,          RateText<U::GetSprayerRequestedRateString, VolumePerAreaText<UNITS_L_PER_HA, false>>},
    {UNITS_ML_PER_HA,         VolumePerAreaText<UNITS_ML_PER_HA, true>},
    {UNITS_M3_PER_HA,         [](const R& r) { return U::GetVolumePerAreaStringInCubicMetersPerSpecifiedAreaUnit(r.metric, r.Narrow(), r.precision, r.spec); }},
    {UNITS_T_PER_HA,          [](const R& r) { return U::GetVolumePerAreaStringInTonnesPerSpecifiedAreaUnit(r.metric, r.Narrow(), r.precision, r.spec); }},
    {UNITS_L_PER_MIN,         FlowText<UNITS_L_PER_MIN, false>},
    {UNITS_ML_PER_MIN,        FlowText<UNITS_ML_PER_MIN, true>},
    {UNITS_M3_PER_MIN,        [](const R& r) { return U::GetFlowRateStringInCubicMetersPerMinute(r.metric, r.Narrow(), r.precision, r.spec); }},
    {UNITS_T_PER_MIN,         [](const R& r) { return U::GetFlowRateStringInTonnesPerMinute(r.metric, r.Narrow(), r.precision, r.spec); }},
    {UNITS_L_PER_REV,         [](const R& r) { return U::GetVolumePerRevolutionString(r.metric, r.us, r.value, r.precision, r.spec); }},
    {UNITS_KPA,               [](const R& r) { return U::GetPressureString(r.Narrow()); }},
    {UNITS_M_PER_PULSE,       [](const R& r) { return U::GetWheelCalFactorString(r.metric, r.Narrow()); }},
    {UNITS_PULSES_PER_L,      FlowCalText<UNITS_PULSES_PER_L>},
    {UNITS_PULSES_PER_ML,     FlowCalText<UNITS_PULSES_PER_ML>},
    {UNITS_PULSES_PER_M3,     FlowCalText<UNITS_PULSES_PER_M3>},
    {UNITS_PULSES_PER_T,      FlowCalText<UNITS_PULSES_PER_T>},
    {UNITS_PULSES_PER_KG_N,   FlowCalText<UNITS_PULSES_PER_KG_N>},
    {UNITS_KG,                [](const R& r) { return U::GetWeightString(r.metric, r.Narrow(), r.precision, r.spec); }},
    {UNITS_KG_N,              [](const R& r) { return U::GetNitrogenWeightString(r.metric, r.Narrow(), r.precision, r.spec); }},
    {UNITS_KG_PER_HA,         RateText<U::GetWeightPerAreaStringDynamicPrecision, WeightPerAreaText>},
    {UNITS_KG_N_PER_HA,       RateText<U::GetNitrogenWeightPerAreaStringDynamicPrecision, VolumePerAreaText<UNITS_KG_N_PER_HA, false>>},
    {UNITS_KG_PER_MIN,        [](const R& r) { return U::GetDischargeRateString(r.metric, r.Narrow(), r.precision, r.spec); }},
    {UNITS_KG_N_PER_MIN,      FlowText<UNITS_KG_N_PER_MIN, false>},
    {UNITS_KG_PER_REV,        [](const R& r) { return U::GetWeightPerRevolutionString(r.metric, r.value, r.precision, r.spec); }},
    {UNITS_KG_PER_L,          [](const R& r) { return U::GetDensityString(r.metric, r.us, r.value, r.precision, r.spec); }},
    {UNITS_KG_PER_M3,         [](const R& r) { return U::GetDensityStringInKilogramsPerCubicMeter(r.metric, r.value, r.precision, r.spec); }},
    {UNITS_KG_PER_US_BU,      [](const R& r) { return U::GetDensityStringInKilogramsPerUSBushel(r.metric, r.us, r.value, r.precision, r.spec); }},
    {UNITS_KG_PER_UK_BU,      [](const R& r) { return U::GetDensityStringInKilogramsPerUKBushel(r.metric, r.us, r.value, r.precision, r.spec); }},
    {UNITS_KSEEDS_PER_HA,     [](const R& r) { return U::GetKiloseedsPerAreaString(r.value, r.precision, r.spec); }},
    {UNITS_CELSIUS,           [](const R& r) { return U::GetTemperatureString(r.metric, r.value, r.precision, r.spec); }},
    {UNITS_RPM,               RpmText},
    {UNITS_LATITUDE,          [](const R& r) { return U::InternalToDisplayableFloatStr(U::GetLatitudeString(r.value)); }},
    {UNITS_LONGITUDE,         [](const R& r) { return U::InternalToDisplayableFloatStr(U::GetLongitudeString(r.value)); }},
};
// clang-format on

/// The rows by the number of their unit. Null for a unit without a row.
struct tagQuantityTexts
{
    TQuantityText of[UnitCount] = {};

    constexpr tagQuantityTexts()
    {
        for (const tagQuantityRow& row : QuantityRows)
            of[row.type] = row.text;
    }
};

constexpr tagQuantityTexts QuantityTexts;

void Split(const QString& text, QString& valueText, QString& unitText)
{
    const auto blank = text.indexOf(QLatin1Char(' '));
    valueText = text.left(blank);
    unitText = blank < 0 ? QString() : text.mid(blank + 1);
}

} // namespace

QString TUnits::GetValueString(double value, const QString& unit, int precision, const tagThresholdSpec* spec)
{
    QString text;
    if (unit == QLatin1String(TimeOfDay))
        text = TimeText(value);
    else if (unit == QLatin1String(CalendarDate))
        text = DateText(value);
    else if (precision < 0)
        text = NumberAnd(value, precision, unit);
    else
        text = NumberAnd(value, GetThresholdPrecision(static_cast<float>(value), spec, precision), unit);
    return DecimalPoint::Shown(std::move(text));
}

QString TUnits::GetValueString(double value, EUnitsType type, int precision, const tagThresholdSpec* spec)
{
    const tagRequest request = {value, Measures::IsMetric(), Measures::IsUS(), precision, spec};
    if (!FindUnit(type))
        return DecimalPoint::Shown(NumberAnd(value, precision, QString()));
    if (QuantityTexts.of[type])
        return QuantityTexts.of[type](request);
    const QString& abbreviation = TUnitAbbreviations::UnitAbbreviations[type];
    return DecimalPoint::Shown(abbreviation.isEmpty() ? NumberAnd(value, precision, abbreviation)
                                                      : NumberAnd(value, precision, QLatin1Char(' ') % abbreviation));
}

void TUnits::GetValueUnitString(double value, QString& valueText, QString& unitText, const QString& unit, int precision,
                                const tagThresholdSpec* spec)
{
    Split(GetValueString(value, unit, precision, spec), valueText, unitText);
}

void TUnits::GetValueUnitString(double value, QString& valueText, QString& unitText, EUnitsType type, int precision,
                                const tagThresholdSpec* spec)
{
    Split(GetValueString(value, type, precision, spec), valueText, unitText);
}
