#include "quantities/Quantities.h"

#include "platform/EParamID.h"
#include "platform/TConfigManager.h"
#include "units/TUnits.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace {

using U = TUnits;
using Q = TQuantity;

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();

/// What the functions of the table get: a value with the operator's system of measures.
struct tagRequest
{
    double value;
    double relativeError;
    int precision;
    bool metric;
    bool us;

    float Narrow() const { return static_cast<float>(value); }
    float NarrowError() const { return static_cast<float>(relativeError); }
};

// ---- Texts of kinds whose unit a parameter chooses ------------------------------------------------------------------

using R = tagRequest;

QString GranularVolumeText(const R& r)
{
    const EUnitsType unit = U::GetDryVolumeUnits();
    const bool isWeighed = unit == UNITS_KG; // a volume has no weight without a density
    return U::GetVolumeString(r.metric, r.us, r.Narrow(), false, isWeighed ? UNITS_LITERS : unit, r.precision, nullptr);
}

QString GranularDensityText(const R& r)
{
    switch (int{U::GetDryDensityUnits()}) {
    case UNITS_KG_PER_M3:
        return U::GetDensityStringInKilogramsPerCubicMeter(r.metric, r.value, r.precision, nullptr);
    case UNITS_KG_PER_US_BU:
        return U::GetDensityStringInKilogramsPerUSBushel(r.metric, r.us, r.value, r.precision, nullptr);
    case UNITS_KG_PER_UK_BU:
        return U::GetDensityStringInKilogramsPerUKBushel(r.metric, r.us, r.value, r.precision, nullptr);
    default:
        return U::GetDensityString(r.metric, r.us, r.value, r.precision, nullptr);
    }
}

// ---- Typed values ---------------------------------------------------------------------------------------------------

/// From the unit @p shown to the stored unit. NaN where the library has no conversion.
double FromShown(double value, EUnitsType shown, EUnitsType stored)
{
    return U::CanConvert(shown, stored) ? U::ConvertUnit(value, shown, stored) : NaN;
}

/// For a quantity that is shown in the metric unit @p type, or in its imperial partner.
double InSystem(const R& r, EUnitsType type)
{
    if (type == UNITS_NONE)
        return NaN;
    return r.metric ? U::NormaliseMetricValue(r.value, type) : U::ConvertToMetric(r.value, type);
}

template <EUnitsType Type>
double Typed(const R& r)
{
    return InSystem(r, Type);
}

template <EUnitsType Type>
double TypedPerArea(const R& r)
{
    return FromShown(r.value, U::DetermineActualUnitFromUnitsType(Type), Type);
}

template <bool Small, EUnitsType Type>
double TypedDistance(const R& r)
{
    return U::ConvertToMeter(r.value, U::GetShortDistanceUnits(Small, Type));
}

double TypedSpeed(const R& r) { return FromShown(r.value, r.metric ? UNITS_KPH : UNITS_MPH, UNITS_METERS_PER_SECOND); }

double TypedTemperature(const R& r)
{
    return r.metric ? r.value : U::ConvertFahrenheitToCelsius(static_cast<float>(r.value));
}

double TypedPressure(const R& r) { return U::ConvertSpecifiedPressureUnitOut(r.value); }

double TypedRateIn(const R& r, bool isSmall, EUnitsType product)
{
    EUnitsType shown = UNITS_NONE;
    U::GetVolumePerAreaValue(shown, r.metric, r.us, 0, isSmall, product);
    if (shown == UNITS_L_PER_100M)
        return U::ConvertLitersPer100MetersToLitersPerHectare(static_cast<float>(r.value));
    return FromShown(r.value, shown, UNITS_L_PER_HA);
}

double TypedRate(const R& r) { return TypedRateIn(r, false, U::GetLiquidVolumePerAreaUnits()); }
double TypedRequestedRate(const R& r) { return TypedRateIn(r, false, UNITS_L_PER_HA); }
double TypedSmallRate(const R& r) { return TypedRateIn(r, true, UNITS_L_PER_HA); }
double TypedFlow(const R& r) { return InSystem(r, U::GetLiquidFlowRateUnits()); }
double TypedVolume(const R& r) { return InSystem(r, U::GetLiquidVolumeUnits()); }
double TypedFlowFactor(const R& r) { return InSystem(r, U::GetLiquidFlowCalFactorUnits()); }
double TypedAsItIs(const R& r) { return r.value; }

// ---- The kinds ------------------------------------------------------------------------------------------------------

struct tagKind
{
    TQuantity::EKind kind;
    const char* title;
    double preview;
    QString (*text)(const R& r);
    double (*typed)(const R& r); ///< null: not one to type
    bool hasError;
};

// clang-format off
constexpr tagKind Kinds[] = {
    {Q::Area,                QT_TRANSLATE_NOOP("Quantities", "Area"), 8.37,
     [](const R& r) { return U::GetAreaString(r.Narrow(), r.precision, nullptr); },
     TypedPerArea<UNITS_HECTARES>, false},
    {Q::Productivity,        QT_TRANSLATE_NOOP("Quantities", "Productivity"), 9.12,
     [](const R& r) { return U::GetProductivityString(r.Narrow(), r.precision, nullptr); },
     nullptr, false},
    {Q::Speed,               QT_TRANSLATE_NOOP("Quantities", "Speed"), 3.4444,
     [](const R& r) { return U::GetSpeedString(r.metric, r.Narrow(), false); },
     TypedSpeed, false},
    {Q::Distance,            QT_TRANSLATE_NOOP("Quantities", "Distance"), 24,
     [](const R& r) { return U::GetDistanceString(r.Narrow(), false, r.precision, nullptr); },
     TypedDistance<false, UNITS_METERS>, false},
    {Q::SmallDistance,       QT_TRANSLATE_NOOP("Quantities", "Small distance"), 0.08,
     [](const R& r) { return U::GetDistanceString(r.Narrow(), true, r.precision, nullptr); },
     TypedDistance<true, UNITS_METERS>, false},
    {Q::AdaptiveDistance,    QT_TRANSLATE_NOOP("Quantities", "Travelled distance"), 1830,
     [](const R& r) { return U::GetDistanceStringAdaptive(r.metric, r.Narrow(), true, r.precision == 0); },
     nullptr, false},
    {Q::Altitude,            QT_TRANSLATE_NOOP("Quantities", "Altitude"), 212.4,
     [](const R& r) { return U::GetDistanceStringInMetricOrImperialFeet(r.Narrow(), r.precision, nullptr); },
     TypedDistance<false, UNITS_FEET>, false},
    {Q::Temperature,         QT_TRANSLATE_NOOP("Quantities", "Temperature"), 21,
     [](const R& r) { return U::GetTemperatureString(r.metric, r.value, r.precision, nullptr); },
     TypedTemperature, false},
    {Q::Pressure,            QT_TRANSLATE_NOOP("Quantities", "Pressure"), 252,
     [](const R& r) { return U::GetPressureString(r.Narrow()); },
     TypedPressure, false},
    {Q::Rate,                QT_TRANSLATE_NOOP("Quantities", "Rate"), 182.4,
     [](const R& r) { return U::GetVolumePerAreaString(r.metric, r.us, r.Narrow(), false, U::GetLiquidVolumePerAreaUnits(), r.precision, nullptr); },
     TypedRate, false},
    {Q::RequestedRate,       QT_TRANSLATE_NOOP("Quantities", "Requested rate"), 180,
     [](const R& r) { return U::GetSprayerRequestedRateString(r.value); },
     TypedRequestedRate, false},
    {Q::RateError,           QT_TRANSLATE_NOOP("Quantities", "Rate and error"), 182.4,
     [](const R& r) { return U::GetFlowRateAndRelativeErrorString(r.metric, r.us, false, r.Narrow(), r.NarrowError(), false, U::GetLiquidVolumePerAreaUnits()); },
     nullptr, true},
    {Q::SmallRate,           QT_TRANSLATE_NOOP("Quantities", "Small rate"), 0.75,
     [](const R& r) { return U::GetVolumePerAreaString(r.metric, r.us, r.Narrow(), true, UNITS_L_PER_HA, r.precision, nullptr); },
     TypedSmallRate, false},
    {Q::Flow,                QT_TRANSLATE_NOOP("Quantities", "Flow"), 90.4,
     [](const R& r) { return U::GetFlowRateString(r.metric, r.us, r.Narrow(), false, U::GetLiquidFlowRateUnits(), r.precision, nullptr); },
     TypedFlow, false},
    {Q::SmallFlow,           QT_TRANSLATE_NOOP("Quantities", "Small flow"), 0.45,
     [](const R& r) { return U::GetFlowRateString(r.metric, r.us, r.Narrow(), true, UNITS_L_PER_MIN, r.precision, nullptr); },
     Typed<UNITS_ML_PER_MIN>, false},
    {Q::Volume,              QT_TRANSLATE_NOOP("Quantities", "Volume"), 2400,
     [](const R& r) { return U::GetVolumeString(r.metric, r.us, r.Narrow(), false, U::GetLiquidVolumeUnits(), r.precision, nullptr); },
     TypedVolume, false},
    {Q::SmallVolume,         QT_TRANSLATE_NOOP("Quantities", "Small volume"), 0.35,
     [](const R& r) { return U::GetVolumeString(r.metric, r.us, r.Narrow(), true, UNITS_LITERS, r.precision, nullptr); },
     Typed<UNITS_MILLILITERS>, false},
    {Q::GranularVolume,      QT_TRANSLATE_NOOP("Quantities", "Granular volume"), 1800,
     GranularVolumeText, nullptr, false},
    {Q::Weight,              QT_TRANSLATE_NOOP("Quantities", "Weight"), 1500,
     [](const R& r) { return U::GetWeightString(r.metric, r.Narrow(), r.precision, nullptr); },
     Typed<UNITS_KG>, false},
    {Q::WeightPerArea,       QT_TRANSLATE_NOOP("Quantities", "Weight per area"), 140.5,
     [](const R& r) { return U::GetWeightPerAreaString(r.metric, r.Narrow(), r.precision, nullptr); },
     TypedPerArea<UNITS_KG_PER_HA>, false},
    {Q::WeightPerAreaError,  QT_TRANSLATE_NOOP("Quantities", "Weight per area and error"), 140.5,
     [](const R& r) { return U::GetDischargeRateAndRelativeErrorString(r.metric, true, r.Narrow(), r.NarrowError()); },
     nullptr, true},
    {Q::Discharge,           QT_TRANSLATE_NOOP("Quantities", "Discharge"), 38.5,
     [](const R& r) { return U::GetDischargeRateString(r.metric, r.Narrow(), r.precision, nullptr); },
     Typed<UNITS_KG_PER_MIN>, false},
    {Q::NitrogenWeight,      QT_TRANSLATE_NOOP("Quantities", "Nitrogen"), 320,
     [](const R& r) { return U::GetNitrogenWeightString(r.metric, r.Narrow(), r.precision, nullptr); },
     Typed<UNITS_KG_N>, false},
    {Q::NitrogenPerArea,     QT_TRANSLATE_NOOP("Quantities", "Nitrogen per area"), 110,
     [](const R& r) { return U::GetNitrogenWeightPerAreaStringDynamicPrecision(r.value); },
     TypedPerArea<UNITS_KG_N_PER_HA>, false},
    {Q::SeedsPerArea,        QT_TRANSLATE_NOOP("Quantities", "Seeds per area"), 85,
     [](const R& r) { return U::GetKiloseedsPerAreaString(r.value, r.precision, nullptr); },
     TypedPerArea<UNITS_KSEEDS_PER_HA>, false},
    {Q::Density,             QT_TRANSLATE_NOOP("Quantities", "Density"), 1.2,
     [](const R& r) { return U::GetDensityString(r.metric, r.us, r.value, r.precision, nullptr); },
     Typed<UNITS_KG_PER_L>, false},
    {Q::GranularDensity,     QT_TRANSLATE_NOOP("Quantities", "Granular density"), 0.78,
     GranularDensityText, nullptr, false},
    {Q::VolumePerRevolution, QT_TRANSLATE_NOOP("Quantities", "Volume per revolution"), 0.95,
     [](const R& r) { return U::GetVolumePerRevolutionString(r.metric, r.us, r.value, r.precision, nullptr); },
     Typed<UNITS_L_PER_REV>, false},
    {Q::WeightPerRevolution, QT_TRANSLATE_NOOP("Quantities", "Weight per revolution"), 0.65,
     [](const R& r) { return U::GetWeightPerRevolutionString(r.metric, r.value, r.precision, nullptr); },
     Typed<UNITS_KG_PER_REV>, false},
    {Q::FlowFactor,          QT_TRANSLATE_NOOP("Quantities", "Flow meter"), 600,
     [](const R& r) { return U::GetFlowCalFactorString(r.metric, r.us, r.Narrow(), U::GetLiquidFlowCalFactorUnits()); },
     TypedFlowFactor, false},
    {Q::WheelFactor,         QT_TRANSLATE_NOOP("Quantities", "Wheel sensor"), 0.125,
     [](const R& r) { return U::GetWheelCalFactorString(r.metric, r.Narrow()); },
     Typed<UNITS_M_PER_PULSE>, false},
    {Q::SpeedFactor,         QT_TRANSLATE_NOOP("Quantities", "Speed sensor"), 36.1,
     [](const R& r) { return U::GetPulsesPerSpeedUnitString(r.metric, r.Narrow()); },
     Typed<UNITS_HZ_PER_KPH>, false},
    {Q::Latitude,            QT_TRANSLATE_NOOP("Quantities", "Latitude"), 52.51627,
     [](const R& r) { return U::GetLatitudeString(r.value); },
     nullptr, false},
    {Q::Longitude,           QT_TRANSLATE_NOOP("Quantities", "Longitude"), 13.37771,
     [](const R& r) { return U::GetLongitudeString(r.value); },
     nullptr, false},
    {Q::Duration,            QT_TRANSLATE_NOOP("Quantities", "Duration"), 2.5,
     [](const R& r) { return U::GetDurationString(r.Narrow()); },
     nullptr, false},
    {Q::Percent,             QT_TRANSLATE_NOOP("Quantities", "Percent"), 30,
     [](const R& r) { return U::GetValueString(r.value, QLatin1String(" %"), r.precision < 0 ? 0 : r.precision, nullptr); },
     TypedAsItIs, false},
};
// clang-format on

constexpr bool AreInOrder()
{
    for (std::size_t i = 0; i < std::size(Kinds); ++i)
        if (Kinds[i].kind != static_cast<int>(i))
            return false;
    return std::size(Kinds) == TQuantity::KindCount;
}

static_assert(AreInOrder(), "one row for each kind, in its order");

const tagKind& Row(TQuantity::EKind kind) { return Kinds[kind]; }

bool IsDigit(QChar character) { return character >= QLatin1Char('0') && character <= QLatin1Char('9'); }

bool IsOfNumber(QChar character)
{
    return IsDigit(character) || character == QLatin1Char('.') || character == QLatin1Char(',') ||
           character == QLatin1Char('-');
}

/// Takes "12.50 L/ha (3.20%)" apart. Without a blank the unit begins behind the number, as in 12.50", unless more
/// numbers follow it, as in a position.
tagQuantityText Split(const QString& text, bool hasError)
{
    tagQuantityText split = {text, text, QString(), QString()};
    int end = static_cast<int>(text.indexOf(QLatin1Char(' ')));
    if (end < 0) {
        end = static_cast<int>(std::distance(text.begin(), std::find_if_not(text.begin(), text.end(), IsOfNumber)));
        if (std::any_of(text.begin() + end, text.end(), IsDigit))
            return split;
    }
    split.number = text.left(end);
    split.unit = text.mid(end).trimmed();
    if (hasError) {
        const auto bracket = split.unit.lastIndexOf(QLatin1Char('('));
        split.error = split.unit.mid(bracket + 1).chopped(1);
        split.unit = split.unit.left(bracket).trimmed();
    }
    return split;
}

/// Whether the library, which takes most values as floats, can show @p value.
bool IsShown(double value)
{
    return std::isfinite(value) && std::fabs(value) <= static_cast<double>(std::numeric_limits<float>::max());
}

/// The number that was typed, with the decimal sign of the display; NaN when it is none.
double Number(const QString& typed)
{
    const QChar sign = U::DisplayableDecimalPointChar();
    static const QRegularExpression form(QLatin1String("\\A[+-]?(\\d+\\.?\\d*|\\.\\d+)\\z"));
    QString number = typed.trimmed();
    if (sign != U::InternalDecimalPointChar() && number.contains(U::InternalDecimalPointChar()))
        return NaN; // it would be read as a thousand by one operator, and as a decimal sign by another
    number.replace(sign, U::InternalDecimalPointChar());
    return form.match(number).hasMatch() ? number.toDouble() : NaN;
}

tagRequest Request(double value, double relativeError, int precision)
{
    return {value, relativeError, precision, ConfigManager->GetParameter(PARAM_METRIC).toBool(),
            ConfigManager->GetParameter(PARAM_US_MEASURES).toBool()};
}

} // namespace

QString Quantities::Title(TQuantity::EKind kind) { return QCoreApplication::translate("Quantities", Row(kind).title); }

double Quantities::Preview(TQuantity::EKind kind) { return Row(kind).preview; }

tagQuantityText Quantities::Show(TQuantity::EKind kind, double value, double relativeError, int precision)
{
    const tagKind& row = Row(kind);
    if (row.hasError || IsShown(value)) // with an error, the library writes the dashes itself
        return Split(row.text(Request(value, relativeError, precision)), row.hasError);
    tagQuantityText none = Split(row.text(Request(0, relativeError, precision)), false);
    none.number = QLatin1String("----");
    none.text = none.unit.isEmpty() ? none.number : none.number + QLatin1Char(' ') + none.unit;
    return none;
}

bool Quantities::CanBeTyped(TQuantity::EKind kind) { return Row(kind).typed; }

double Quantities::Parse(TQuantity::EKind kind, const QString& typed)
{
    const double number = Number(typed);
    const auto stored = Row(kind).typed;
    const double value = stored && std::isfinite(number) ? stored(Request(number, NaN, U::DefaultPrecision)) : NaN;
    return IsShown(value) ? value : NaN;
}
