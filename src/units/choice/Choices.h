#pragma once

#include "access/Parameters.h"
#include "platform/EAreaUnit.h"
#include "platform/ESprayerRateBasis.h"
#include "units/EUnitsType.h"
#include "units/table/UnitTable.h"

/// The operator's choices of units, read from the host's store at every call.
namespace Choices {

/// EAreaUnit; may be any number.
inline int Area() { return Parameters::ReadInt(PARAM_AREA_UNIT); }

/// Whether liquid rates are shown per travelled distance instead of per area.
inline bool ShowsRatesPerTravel()
{
    return Parameters::ReadInt(PARAM_SPRAYER_RATE_BASIS) == SPRAYER_RATE_BASIS_TRAVEL &&
           Parameters::ReadBool(PARAM_RATE_PER_TRAVEL);
}

/// The unit of a liquid rate per travelled distance.
constexpr EUnitsType PerTravel(bool metric) { return metric ? UNITS_L_PER_100M : UNITS_GAL_PER_100YD; }

/// The unit shown for @p type in the metric system or in the imperial one.
constexpr EUnitsType InSystem(EUnitsType type, bool metric)
{
    const tagUnit* const unit = FindUnit(type);
    return metric || !unit || unit->imperial == Conversions::Stays ? type : unit->imperial;
}

/// The unit shown in place of @p perHectare for an area; UNITS_NONE where it is neither hectares nor acres.
constexpr EUnitsType PerArea(EUnitsType perHectare, int area)
{
    return area == AREA_UNIT_HECTARE ? perHectare : area == AREA_UNIT_ACRE ? FindUnit(perHectare)->acre : UNITS_NONE;
}

} // namespace Choices
