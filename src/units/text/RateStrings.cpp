// Application rates: amounts per area, or per travelled distance.

#include "units/TUnitAbbreviations.h"
#include "units/TUnits.h"
#include "units/choice/Choices.h"
#include "units/choice/ShownUnits.h"
#include "units/conversion/Measures.h"
#include "units/table/Conversions.h"
#include "units/text/DecimalPoint.h"
#include "units/text/QuantityText.h"
#include "units/text/TFixedNumber.h"

#include <cmath>

namespace {

using namespace QuantityText;
using Conversions::PoundsByKilogramsPerAcre;
using ShownUnits::PerArea;

// US gallons and fluid ounces have the plain abbreviations, without "(US)": the operator chose the measures.

tagShown WeightRate(bool metric, double value) { return PerArea(UNITS_KG_PER_HA, metric, value); }

tagShown LiquidRate(bool metric, bool us, double value)
{
    return Choices::ShowsRatesPerTravel() ? ShownUnits::InUnit(UNITS_L_PER_HA, Choices::PerTravel(metric), us, value)
                                          : PerArea(UNITS_L_PER_HA, metric, us, value);
}

/// Nitrogen among the rates of volume. Its pounds per acre are computed from the kilograms per acre.
tagShown NitrogenRate(bool metric, double value)
{
    const tagShown shown = PerArea(UNITS_KG_N_PER_HA, metric, value);
    return shown.unit == UNITS_LB_N_PER_AC ? tagShown{PoundsByKilogramsPerAcre.out(value), shown.unit} : shown;
}

tagShown VolumeRate(bool metric, bool us, double value, bool smallVolume, EUnitsType product)
{
    if (smallVolume)
        return PerArea(UNITS_ML_PER_HA, metric, us, value);
    const int area = Choices::Area();
    if (area != AREA_UNIT_HECTARE && area != AREA_UNIT_ACRE)
        return {value, UNITS_NONE}; // rates per travelled distance, too
    switch (product) {
    case UNITS_L_PER_HA:
        return LiquidRate(metric, us, value);
    case UNITS_KG_N_PER_HA:
        return NitrogenRate(metric, value);
    case UNITS_M3_PER_HA:
    case UNITS_T_PER_HA:
        return PerArea(product, metric, us, value);
    default:
        return {value, UNITS_NONE};
    }
}

/// A rate without a unit is shown as 0, so that it is not taken for the applied rate.
tagShown OrZero(const tagShown& shown) { return shown.unit == UNITS_NONE ? tagShown{0.0, UNITS_NONE} : shown; }

QString Dynamic(const tagShown& shown, int (*precision)(float))
{
    return WithDecimals(shown, precision(static_cast<float>(shown.value)));
}

const double GreatestErrorShown = 999;

/// Decimals of a rate or an error in percent, by its magnitude.
int DecimalsByMagnitude(double value)
{
    const double magnitude = std::fabs(value);
    return magnitude < 100 ? 2 : magnitude < 1000 ? 1 : 0;
}

QString NumberOrDashes(double value)
{
    static const QString dashes = QLatin1String("----");
    return std::isfinite(value) ? TFixedNumber(value, DecimalsByMagnitude(value)).Text() : dashes;
}

QString ErrorText(double percent)
{
    static const QString above = QLatin1Char('>') + QString::number(GreatestErrorShown);
    static const QString below = QLatin1Char('<') + QString::number(-GreatestErrorShown);
    if (std::isfinite(percent) && percent > GreatestErrorShown)
        return above;
    if (std::isfinite(percent) && percent < -GreatestErrorShown)
        return below;
    return NumberOrDashes(percent);
}

QString WithRelativeError(const tagShown& rate, float percent)
{
    return DecimalPoint::Shown(NumberOrDashes(rate.value) % QLatin1Char(' ') %
                               TUnitAbbreviations::UnitAbbreviations[rate.unit] % QLatin1String(" (") %
                               ErrorText(static_cast<double>(percent)) % QLatin1String("%)"));
}

} // namespace

double TUnits::GetWeightPerAreaValue(EUnitsType& unit, bool metric, float kilogramsPerHectare)
{
    const tagShown shown = WeightRate(metric, static_cast<double>(kilogramsPerHectare));
    unit = shown.unit;
    return shown.value;
}

double TUnits::GetVolumePerAreaValue(EUnitsType& unit, bool metric, bool us, float litersPerHectare, bool smallVolume,
                                     EUnitsType product)
{
    const tagShown shown = VolumeRate(metric, us, static_cast<double>(litersPerHectare), smallVolume, product);
    unit = shown.unit;
    return shown.value;
}

QString TUnits::GetVolumePerAreaString(bool metric, bool us, float litersPerHectare, bool small, EUnitsType product,
                                       int precision, const tagThresholdSpec* spec)
{
    return WithPrecision(VolumeRate(metric, us, static_cast<double>(litersPerHectare), small, product), precision,
                         spec);
}

QString TUnits::GetVolumePerAreaStringInCubicMetersPerSpecifiedAreaUnit(bool metric, float litersPerHectare,
                                                                        int precision, const tagThresholdSpec* spec)
{
    const tagShown shown = VolumeRate(metric, false, static_cast<double>(litersPerHectare), false, UNITS_M3_PER_HA);
    return WithPrecisionOf(UNITS_M3_PER_HA, shown, precision, spec);
}

QString TUnits::GetVolumePerAreaStringInTonnesPerSpecifiedAreaUnit(bool metric, float litersPerHectare, int precision,
                                                                   const tagThresholdSpec* spec)
{
    const tagShown shown = VolumeRate(metric, false, static_cast<double>(litersPerHectare), false, UNITS_T_PER_HA);
    return WithPrecisionOf(UNITS_T_PER_HA, shown, precision, spec);
}

QString TUnits::GetWeightPerAreaString(bool metric, float kilogramsPerHectare, int precision,
                                       const tagThresholdSpec* spec)
{
    const tagShown shown = WeightRate(metric, static_cast<double>(kilogramsPerHectare));
    return WithPrecisionOf(UNITS_KG_PER_HA, shown, precision, spec);
}

QString TUnits::GetWeightPerAreaStringDynamicPrecision(double kilogramsPerHectare)
{
    return Dynamic(OrZero(WeightRate(Measures::IsMetric(), kilogramsPerHectare)),
                   CalculateGranularRateDynamicPrecision);
}

QString TUnits::GetNitrogenWeightPerAreaStringDynamicPrecision(double kilogramsPerHectare)
{
    return Dynamic(OrZero(PerArea(UNITS_KG_N_PER_HA, Measures::IsMetric(), kilogramsPerHectare)),
                   CalculateNH3RateDynamicPrecision);
}

QString TUnits::GetSprayerRequestedRateString(double litersPerHectare)
{
    const bool metric = Measures::IsMetric();
    const bool us = Measures::IsUS();
    return Dynamic(OrZero(LiquidRate(metric, us, litersPerHectare)), CalculateLiquidRateDynamicPrecision);
}

QString TUnits::GetDischargeRateAndRelativeErrorString(bool metric, bool perArea, float rate,
                                                       float relativeErrorPercent)
{
    const double value = static_cast<double>(rate);
    return WithRelativeError(perArea ? WeightRate(metric, value) : tagShown{value, UNITS_NONE}, relativeErrorPercent);
}

QString TUnits::GetFlowRateAndRelativeErrorString(bool metric, bool us, bool smallVolume, float rate,
                                                  float relativeErrorPercent, bool, EUnitsType product)
{
    return WithRelativeError(VolumeRate(metric, us, static_cast<double>(rate), smallVolume, product),
                             relativeErrorPercent);
}
