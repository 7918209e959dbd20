#pragma once

#include "units/EUnitsType.h"

/// The ways between a hub and its units.
namespace UnitWays {

/// As TUnits::ConvertUnit(), but with US or English gallons and fluid ounces as @p us says, in the metric system too.
/// No parameter is read.
double Convert(double value, EUnitsType from, EUnitsType to, bool us);

} // namespace UnitWays
