// How many decimals a value is shown with.

#include "units/NumberText.h"
#include "units/TFixedNumber.h"
#include "units/TUnits.h"
#include "units/UnitSystem.h"
#include "units/UnitTable.h"

#include <cmath>

namespace {

const int NotGiven = -1;

/// Whether @p value, 1 to 100, is shown without a first decimal. The float is widened by the decimal text that names
/// it: 99.95 is looked at as the 99.95 that will be printed, not as the 99.94999… that its bits are. Only a text of two
/// decimals can do that: between a float and a longer name of it lies none of the numbers at which rounding turns.
bool RoundsToWhole(float value)
{
    const double exact = static_cast<double>(value);
    const double name = NumberText::Stored(std::round(exact * 100) / 100);
    const TFixedNumber number(static_cast<float>(name) == value ? name : exact, 1);
    return *(number.End() - 1) == QLatin1Char('0');
}

/// Decimals between the two bounds of a rule.
int UpToOneDecimal(float value) { return RoundsToWhole(value) ? 0 : 1; }

} // namespace

int TUnits::GetThresholdPrecision(float value, const tagThresholdSpec* spec, int precision)
{
    return spec && value >= spec->threshold ? spec->precision : precision;
}

int TUnits::GetDefaultPrecision(EUnitsType type)
{
    const tagUnit* const unit = FindUnit(type);
    return unit ? unit->decimals : NotGiven;
}

int TUnits::GetUnitPrecision(EUnitsType type, int precision)
{
    return precision != NotGiven ? precision : GetDefaultPrecision(type);
}

bool TUnits::IsUnitAbbrDynamicPrecisionSupported(EUnitsType type)
{
    return type == UNITS_L_PER_HA || type == UNITS_KG_PER_HA || type == UNITS_KG_N_PER_HA;
}

int TUnits::GetDynamicPrecision(float value, EUnitsType type)
{
    switch (type) {
    case UNITS_L_PER_HA:
        return CalculateLiquidRateDynamicPrecision(value);
    case UNITS_KG_PER_HA:
        return CalculateGranularRateDynamicPrecision(value);
    case UNITS_KG_N_PER_HA:
        return CalculateNH3RateDynamicPrecision(value);
    default:
        return 0;
    }
}

// Written so that NaN, which is below nothing, gets no decimals.

int TUnits::CalculateLiquidRateDynamicPrecision(float value)
{
    if (value < 1.0f)
        return 2;
    if (!(value < 100.0f))
        return 0;
    return UnitSystem::IsMetric() ? UpToOneDecimal(value) : 1;
}

// Up to 100 included, unlike the others; since 100.0 has no first decimal it makes no difference.
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
