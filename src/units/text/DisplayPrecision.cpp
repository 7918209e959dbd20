// How many decimals a value is shown with.

#include "units/TUnits.h"
#include "units/conversion/Measures.h"
#include "units/table/UnitTable.h"
#include "units/text/TFixedNumber.h"

#include <cmath>

namespace {

/// Whether @p value, which is 1 to 100, has the first decimal 0 when it is rounded to one decimal.
///
/// The float is widened by the shortest decimal text that names it: the float 99.95 counts as 99.95, which is printed
/// as 100.0, although its bits are 99.94999… Only a name of two decimals matters. With more decimals, no rounding limit
/// lies between the name and the float.
bool RoundsToWhole(float value)
{
    const double exact = static_cast<double>(value);
    const double name = Stored(std::round(exact * 100) / 100);
    const TFixedNumber number(static_cast<float>(name) == value ? name : exact, 1);
    return *(number.End() - 1) == QLatin1Char('0');
}

/// Decimals between the two bounds of a rule.
int UpToOneDecimal(float value) { return RoundsToWhole(value) ? 0 : 1; }

/// A rate whose decimals depend on its value.
struct tagDynamicRule
{
    EUnitsType rate;
    int (*decimals)(float value);
};

constexpr tagDynamicRule DynamicRules[] = {
    {UNITS_L_PER_HA, TUnits::CalculateLiquidRateDynamicPrecision},
    {UNITS_KG_PER_HA, TUnits::CalculateGranularRateDynamicPrecision},
    {UNITS_KG_N_PER_HA, TUnits::CalculateNH3RateDynamicPrecision},
};

const tagDynamicRule* FindRule(EUnitsType rate)
{
    for (const tagDynamicRule& rule : DynamicRules) {
        if (rule.rate == rate)
            return &rule;
    }
    return nullptr;
}

} // namespace

int TUnits::GetThresholdPrecision(float value, const tagThresholdSpec* spec, int precision)
{
    return spec && value >= spec->threshold ? spec->precision : precision;
}

int TUnits::GetDefaultPrecision(EUnitsType type)
{
    const tagUnit* const unit = FindUnit(type);
    return unit ? unit->decimals : DefaultPrecision;
}

int TUnits::GetUnitPrecision(EUnitsType type, int precision)
{
    return precision != DefaultPrecision ? precision : GetDefaultPrecision(type);
}

bool TUnits::IsUnitAbbrDynamicPrecisionSupported(EUnitsType type) { return FindRule(type) != nullptr; }

int TUnits::GetDynamicPrecision(float value, EUnitsType type)
{
    const tagDynamicRule* const rule = FindRule(type);
    return rule ? rule->decimals(value) : 0;
}

// NaN is not below any number: the comparisons are written so that it gets 0 decimals.

int TUnits::CalculateLiquidRateDynamicPrecision(float value)
{
    if (value < 1.0f)
        return 2;
    if (!(value < 100.0f))
        return 0;
    return Measures::IsMetric() ? UpToOneDecimal(value) : 1;
}

// 100 is included here, unlike in the others. It makes no difference: 100.0 has the first decimal 0.
int TUnits::CalculateNH3RateDynamicPrecision(float value)
{
    if (value < 10.0f)
        return 1;
    return value <= 100.0f ? UpToOneDecimal(value) : 0;
}

int TUnits::CalculateGranularRateDynamicPrecision(float value)
{
    if (value < 10.0f)
        return 1;
    return value < 100.0f ? UpToOneDecimal(value) : 0;
}
