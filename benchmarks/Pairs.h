#pragma once

#include "Inputs.h"

#include "units/EUnitsType.h"

#include <algorithm>
#include <cstddef>

/// Two units of one quantity, such as the peers know too. No parameter decides on their factor.
struct tagPair
{
    EUnitsType from;
    EUnitsType to;
    const char* udunits[2]; ///< how UDUNITS-2 calls the two
};

constexpr tagPair Pairs[] = {
    {UNITS_METERS, UNITS_KILOMETERS, {"m", "km"}},
    {UNITS_METERS, UNITS_CENTIMETERS, {"m", "cm"}},
    {UNITS_METERS, UNITS_MILLIMETERS, {"m", "mm"}},
    {UNITS_METERS, UNITS_FEET, {"m", "foot"}},
    {UNITS_METERS, UNITS_MILES, {"m", "mile"}},
    {UNITS_INCHES, UNITS_METERS, {"inch", "m"}},
    {UNITS_FEET, UNITS_METERS, {"foot", "m"}},
    {UNITS_HECTARES, UNITS_ACRES, {"hectare", "acre"}},
    {UNITS_ACRES, UNITS_HECTARES, {"acre", "hectare"}},
    {UNITS_METERS_PER_SECOND, UNITS_KPH, {"m/s", "km/h"}},
    {UNITS_METERS_PER_SECOND, UNITS_MPH, {"m/s", "mile/h"}},
    {UNITS_LITERS, UNITS_MILLILITERS, {"liter", "milliliter"}},
    {UNITS_LITERS, UNITS_CUBIC_METERS, {"liter", "m3"}},
    {UNITS_CUBIC_FEET, UNITS_LITERS, {"foot3", "liter"}},
    {UNITS_KPA, UNITS_PSI, {"kPa", "psi"}},
    {UNITS_KPA, UNITS_BAR, {"kPa", "bar"}},
    {UNITS_BAR, UNITS_KPA, {"bar", "kPa"}},
    {UNITS_KG, UNITS_LB, {"kg", "pound"}},
    {UNITS_LB, UNITS_KG, {"pound", "kg"}},
    {UNITS_KG_PER_L, UNITS_KG_PER_M3, {"kg/liter", "kg/m3"}},
    {UNITS_KG_PER_L, UNITS_LB_PER_FT3, {"kg/liter", "pound/foot3"}},
};

constexpr std::size_t PairCount = sizeof Pairs / sizeof Pairs[0];

/// Which pair comes at which call.
inline const std::array<std::size_t, Inputs::Count> PairOrder = [] {
    std::array<std::size_t, Inputs::Count> order;
    std::mt19937 random(2);
    std::uniform_int_distribution<std::size_t> any(0, PairCount - 1);
    std::generate(order.begin(), order.end(), [&] { return any(random); });
    return order;
}();

struct tagUnits
{
    EUnitsType from;
    EUnitsType to;
};

inline const std::array<tagUnits, Inputs::Count> ShuffledUnits = [] {
    std::array<tagUnits, Inputs::Count> units;
    std::transform(PairOrder.begin(), PairOrder.end(), units.begin(), [](std::size_t pair) {
        return tagUnits{Pairs[pair].from, Pairs[pair].to};
    });
    return units;
}();
