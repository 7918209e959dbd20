#pragma once

#include "access/Parameters.h"

/// The measures that the parameters choose, read afresh at every call.
namespace UnitSystem {

inline bool IsMetric() { return Parameters::ReadBool(PARAM_METRIC); }

/// US rather than English gallons and fluid ounces; of use only when not metric.
inline bool IsUS() { return Parameters::ReadBool(PARAM_US_MEASURES); }

/// Values of PARAM_AREA_UNIT.
const int Hectares = 0;
const int Acres = 1;

inline int Area() { return Parameters::ReadInt(PARAM_AREA_UNIT); }

/// Liquid rates are shown per travelled distance instead of per area.
inline bool ShowsRatesPerTravel()
{
    return Parameters::ReadInt(PARAM_SPRAYER_RATE_BASIS) == 0 && Parameters::ReadBool(PARAM_RATE_PER_TRAVEL);
}

} // namespace UnitSystem
