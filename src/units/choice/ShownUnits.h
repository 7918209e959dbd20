#pragma once

#include "units/choice/Choices.h"
#include "units/table/UnitTable.h"

/// A value in the unit in which it is shown.
struct tagShown
{
    double value;
    EUnitsType unit;
};

/// Stored values in the units that are shown. A value of @p type is one in TUnits::GetStoredUnit(type).
///
/// Inline: where @p type is known, the look-ups in the table are done by the compiler.
namespace ShownUnits {

/// @p value from one unit to another as texts convert it.
double Convert(double value, EUnitsType stored, EUnitsType unit, bool us);

/// In @p unit; @p us chooses between US and English gallons and fluid ounces.
inline tagShown InUnit(EUnitsType type, EUnitsType unit, bool us, double value)
{
    const EUnitsType stored = StoredUnit(type);
    return {unit == stored ? value : Convert(value, stored, unit, us), unit};
}

/// In @p type itself, or when not metric in its imperial partner.
inline tagShown InSystem(EUnitsType type, bool metric, bool us, double value)
{
    return InUnit(type, Choices::InSystem(type, metric), us, value);
}

/// The same for the area that the operator chose, @p type being per hectare. For an area that is neither hectares nor
/// acres the value as it is, without a unit.
inline tagShown PerArea(EUnitsType type, bool metric, bool us, double value)
{
    const EUnitsType unit = Choices::PerArea(Choices::InSystem(type, metric), Choices::Area());
    return unit == UNITS_NONE ? tagShown{value, UNITS_NONE} : InUnit(type, unit, us, value);
}

// The same where US and English measures, or both systems, show one unit.

inline tagShown InSystem(EUnitsType type, bool metric, double value) { return InSystem(type, metric, false, value); }
inline tagShown PerArea(EUnitsType type, bool metric, double value) { return PerArea(type, metric, false, value); }
inline tagShown PerArea(EUnitsType type, double value) { return PerArea(type, true, false, value); }
inline tagShown InUnit(EUnitsType unit, double value) { return InUnit(unit, unit, false, value); }

} // namespace ShownUnits
