// What the table says of a unit, and the conversions of each hub.

#include "units/TUnits.h"
#include "units/conversion/HistoricWays.h"
#include "units/table/UnitTable.h"

EUnitsType TUnits::GetConversionHub(EUnitsType type)
{
    const tagUnit* const unit = FindUnit(type);
    return unit ? unit->hub : type;
}

EUnitsType TUnits::DetermineDefaultUnitFromUnitsType(EUnitsType type)
{
    const EUnitsType hub = GetConversionHub(type);
    for (const HistoricWays::tagDefaultUnit& row : HistoricWays::DefaultUnits) {
        if (row.hub == hub)
            return row.unit;
    }
    return hub;
}

EUnitsType TUnits::GetStoredUnit(EUnitsType type) { return StoredUnit(type); }

bool TUnits::DependsOnUSMeasures(EUnitsType type)
{
    const tagUnit* const unit = FindUnit(type);
    return unit && unit->sizes.dependsOnMeasures;
}

// clang-format off
double TUnits::ConvertFromMeter(double value, EUnitsType to)                     { return ConvertUnit(value, UNITS_METERS, to); }
double TUnits::ConvertFromHectare(double value, EUnitsType to)                   { return ConvertUnit(value, UNITS_HECTARES, to); }
double TUnits::ConvertFromMetersPerMin(double value, EUnitsType to)              { return ConvertUnit(value, UNITS_METERS_PER_MIN, to); }
double TUnits::ConvertFromMetersPerSecond(double value, EUnitsType to)           { return ConvertUnit(value, UNITS_METERS_PER_SECOND, to); }
double TUnits::ConvertFromPulsesPerKilometerPerHour(double value, EUnitsType to) { return ConvertUnit(value, UNITS_HZ_PER_KPH, to); }
double TUnits::ConvertFromHectaresPerHour(double value, EUnitsType to)           { return ConvertUnit(value, UNITS_HECTARES_PER_HOUR, to); }
double TUnits::ConvertFromLiter(double value, EUnitsType to)                     { return ConvertUnit(value, UNITS_LITERS, to); }
double TUnits::ConvertFromLitersPerHectare(double value, EUnitsType to)          { return ConvertUnit(value, UNITS_L_PER_HA, to); }
double TUnits::ConvertFromLitersPerMinute(double value, EUnitsType to)           { return ConvertUnit(value, UNITS_L_PER_MIN, to); }
double TUnits::ConvertFromLitersPerRev(double value, EUnitsType to)              { return ConvertUnit(value, UNITS_L_PER_REV, to); }
double TUnits::ConvertFromKiloPascals(double value, EUnitsType to)               { return ConvertUnit(value, UNITS_KPA, to); }
double TUnits::ConvertFromMetersPerPulse(double value, EUnitsType to)            { return ConvertUnit(value, UNITS_M_PER_PULSE, to); }
double TUnits::ConvertFromPulsesPerLiter(double value, EUnitsType to)            { return ConvertUnit(value, UNITS_PULSES_PER_L, to); }
double TUnits::ConvertFromKilogram(double value, EUnitsType to)                  { return ConvertUnit(value, UNITS_KG, to); }
double TUnits::ConvertFromKilogramsPerHectare(double value, EUnitsType to)       { return ConvertUnit(value, UNITS_KG_PER_HA, to); }
double TUnits::ConvertFromKilogramsPerLiter(double value, EUnitsType to)         { return ConvertUnit(value, UNITS_KG_PER_L, to); }
double TUnits::ConvertFromPulsesPerKilogramNitrogen(double value, EUnitsType to) { return ConvertUnit(value, UNITS_PULSES_PER_KG_N, to); }

double TUnits::ConvertToMeter(double value, EUnitsType from)                     { return ConvertUnit(value, from, UNITS_METERS); }
double TUnits::ConvertToHectare(double value, EUnitsType from)                   { return ConvertUnit(value, from, UNITS_HECTARES); }
double TUnits::ConvertToMetersPerMin(double value, EUnitsType from)              { return ConvertUnit(value, from, UNITS_METERS_PER_MIN); }
double TUnits::ConvertToMetersPerSecond(double value, EUnitsType from)           { return ConvertUnit(value, from, UNITS_METERS_PER_SECOND); }
double TUnits::ConvertToPulsesPerKilometerPerHour(double value, EUnitsType from) { return ConvertUnit(value, from, UNITS_HZ_PER_KPH); }
double TUnits::ConvertToHectaresPerHour(double value, EUnitsType from)           { return ConvertUnit(value, from, UNITS_HECTARES_PER_HOUR); }
double TUnits::ConvertToLiter(double value, EUnitsType from)                     { return ConvertUnit(value, from, UNITS_LITERS); }
double TUnits::ConvertToLitersPerHectare(double value, EUnitsType from)          { return ConvertUnit(value, from, UNITS_L_PER_HA); }
double TUnits::ConvertToLitersPerMinute(double value, EUnitsType from)           { return ConvertUnit(value, from, UNITS_L_PER_MIN); }
double TUnits::ConvertToLitersPerRev(double value, EUnitsType from)              { return ConvertUnit(value, from, UNITS_L_PER_REV); }
double TUnits::ConvertToKiloPascals(double value, EUnitsType from)               { return ConvertUnit(value, from, UNITS_KPA); }
double TUnits::ConvertToMetersPerPulse(double value, EUnitsType from)            { return ConvertUnit(value, from, UNITS_M_PER_PULSE); }
double TUnits::ConvertToPulsesPerLiter(double value, EUnitsType from)            { return ConvertUnit(value, from, UNITS_PULSES_PER_L); }
double TUnits::ConvertToKilogram(double value, EUnitsType from)                  { return ConvertUnit(value, from, UNITS_KG); }
double TUnits::ConvertToKilogramsPerHectare(double value, EUnitsType from)       { return ConvertUnit(value, from, UNITS_KG_PER_HA); }
double TUnits::ConvertToKilogramsPerLiter(double value, EUnitsType from)         { return ConvertUnit(value, from, UNITS_KG_PER_L); }
double TUnits::ConvertToPulsesPerKilogramNitrogen(double value, EUnitsType from) { return ConvertUnit(value, from, UNITS_PULSES_PER_KG_N); }
// clang-format on
