#pragma once

#include "platform/Export.h"
#include "units/EUnitsType.h"

/// The rate units that a host offers for each kind of product, in the order in which it offers them:
///
/// @code
/// for (const EUnitsType unit : GRANULAR_UNITS)
///     list.append(TUnitAbbreviations::GetStringFromUnitType(unit, true)); // kg/ha, kg/ac, lb/ha, lb/ac
/// @endcode
CABSETTINGS_EXPORT extern const EUnitsType SEED_UNITS[2];
CABSETTINGS_EXPORT extern const EUnitsType GRANULAR_UNITS[4];
CABSETTINGS_EXPORT extern const EUnitsType NH3_UNITS[4];
CABSETTINGS_EXPORT extern const EUnitsType KESTA_SPRAYER_UNITS[4];
CABSETTINGS_EXPORT extern const EUnitsType LIQUID_UNITS[23];
