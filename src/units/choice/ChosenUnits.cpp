// Which unit a quantity is shown in, as the parameters choose.

#include "platform/EDryDensityUnit.h"
#include "platform/EDryVolumeUnit.h"
#include "platform/ELiquidUnit.h"
#include "platform/EPressureUnit.h"
#include "platform/EShortDistanceUnit.h"
#include "units/TUnitAbbreviations.h"
#include "units/TUnits.h"
#include "units/choice/Choices.h"
#include "units/conversion/Measures.h"

#include <cstddef>

namespace {

/// A value of a parameter, and the unit that it chooses.
struct tagChoice
{
    int choice;
    EUnitsType unit;
};

// clang-format off
constexpr tagChoice PressureUnits[] = {
    {PRESSURE_UNIT_KPA, UNITS_KPA},
    {PRESSURE_UNIT_PSI, UNITS_PSI},
    {PRESSURE_UNIT_BAR, UNITS_BAR},
};

constexpr tagChoice LiquidVolumeUnits[] = {
    {LIQUID_UNIT_LITRE,       UNITS_LITERS},
    {LIQUID_UNIT_CUBIC_METRE, UNITS_CUBIC_METERS},
    {LIQUID_UNIT_TONNE,       UNITS_TONNES},
};

constexpr tagChoice LiquidFlowRateUnits[] = {
    {LIQUID_UNIT_LITRE,       UNITS_L_PER_MIN},
    {LIQUID_UNIT_CUBIC_METRE, UNITS_M3_PER_MIN},
    {LIQUID_UNIT_TONNE,       UNITS_T_PER_MIN},
};

constexpr tagChoice LiquidVolumePerAreaUnits[] = {
    {LIQUID_UNIT_LITRE,       UNITS_L_PER_HA},
    {LIQUID_UNIT_CUBIC_METRE, UNITS_M3_PER_HA},
    {LIQUID_UNIT_TONNE,       UNITS_T_PER_HA},
};

constexpr tagChoice LiquidFlowCalFactorUnits[] = {
    {LIQUID_UNIT_LITRE,       UNITS_PULSES_PER_L},
    {LIQUID_UNIT_CUBIC_METRE, UNITS_PULSES_PER_M3},
    {LIQUID_UNIT_TONNE,       UNITS_PULSES_PER_T},
};

constexpr tagChoice DryVolumeUnits[] = {
    {DRY_VOLUME_UNIT_LITRE,       UNITS_LITERS},
    {DRY_VOLUME_UNIT_KILOGRAM,    UNITS_KG},
    {DRY_VOLUME_UNIT_CUBIC_METRE, UNITS_CUBIC_METERS},
    {DRY_VOLUME_UNIT_US_BUSHEL,   UNITS_US_BUSHELS},
    {DRY_VOLUME_UNIT_UK_BUSHEL,   UNITS_UK_BUSHELS},
};

constexpr tagChoice DryDensityUnits[] = {
    {DRY_DENSITY_UNIT_KG_PER_LITRE,       UNITS_KG_PER_L},
    {DRY_DENSITY_UNIT_KG_PER_CUBIC_METRE, UNITS_KG_PER_M3},
    {DRY_DENSITY_UNIT_KG_PER_US_BUSHEL,   UNITS_KG_PER_US_BU},
    {DRY_DENSITY_UNIT_KG_PER_UK_BUSHEL,   UNITS_KG_PER_UK_BU},
};
// clang-format on

/// UNITS_NONE when the parameter is out of its range.
template <std::size_t Count>
EUnitsType Chosen(EParamID id, const tagChoice (&choices)[Count])
{
    const int choice = Parameters::ReadInt(id);
    for (const tagChoice& row : choices) {
        if (row.choice == choice)
            return row.unit;
    }
    return UNITS_NONE;
}

} // namespace

EUnitsType TUnits::DetermineActualUnitFromUnitsType(EUnitsType type)
{
    if (IsSpecifiedPressureUnit(type))
        return Chosen(PARAM_PRESSURE_UNIT, PressureUnits);
    if (IsSpecifiedShortDistanceUnit(type))
        return GetShortDistanceUnits(false, type);

    const bool metric = Measures::IsMetric();
    if (type == UNITS_L_PER_HA && Choices::ShowsRatesPerTravel())
        return Choices::PerTravel(metric);
    const EUnitsType shown = Choices::InSystem(type, metric);
    return IsSpecifiedAreaUnit(type) ? Choices::PerArea(shown, Choices::Area()) : shown;
}

double TUnits::GetValueInCurrentUnit(double value, EUnitsType type)
{
    return ConvertUnit(value, DetermineDefaultUnitFromUnitsType(type), DetermineActualUnitFromUnitsType(type));
}

double TUnits::GetValueInDefaultUnit(double value, EUnitsType type)
{
    return ConvertUnit(value, DetermineActualUnitFromUnitsType(type), DetermineDefaultUnitFromUnitsType(type));
}

double TUnits::GetConversionFactor(int unitType, const QString& abbreviation)
{
    const EUnitsType unit = TUnitAbbreviations::GetUnitTypeFromString(abbreviation, true);
    return ConvertUnit(1, GetConversionHub(static_cast<EUnitsType>(unitType)), unit);
}

/// Areas per hour follow the area chosen in their texts alone.
bool TUnits::IsSpecifiedAreaUnit(EUnitsType type)
{
    const tagUnit* const unit = FindUnit(type);
    return unit && unit->family == FAMILY_METRIC && unit->acre != Conversions::Stays && type != UNITS_HECTARES_PER_HOUR;
}

bool TUnits::IsSpecifiedPressureUnit(EUnitsType type) { return type == UNITS_KPA; }

bool TUnits::IsSpecifiedShortDistanceUnit(EUnitsType type)
{
    return type == UNITS_METERS || type == UNITS_FEET || type == UNITS_INCHES;
}

EUnitsType TUnits::GetShortDistanceUnits(bool small, EUnitsType type)
{
    const EUnitsType feet = small ? UNITS_INCHES : UNITS_FEET;
    switch (Parameters::ReadInt(PARAM_SHORT_DISTANCE_UNIT)) {
    case SHORT_DISTANCE_UNIT_FOOT:
        return type == UNITS_INCHES ? UNITS_INCHES : feet;
    case SHORT_DISTANCE_UNIT_INCH:
        return type == UNITS_FEET ? feet : UNITS_INCHES;
    default:
        return small ? UNITS_MILLIMETERS : UNITS_METERS;
    }
}

EUnitsType TUnits::GetLiquidVolumeUnits() { return Chosen(PARAM_LIQUID_UNIT, LiquidVolumeUnits); }
EUnitsType TUnits::GetLiquidFlowRateUnits() { return Chosen(PARAM_LIQUID_UNIT, LiquidFlowRateUnits); }
EUnitsType TUnits::GetLiquidVolumePerAreaUnits() { return Chosen(PARAM_LIQUID_UNIT, LiquidVolumePerAreaUnits); }
EUnitsType TUnits::GetLiquidFlowCalFactorUnits() { return Chosen(PARAM_LIQUID_UNIT, LiquidFlowCalFactorUnits); }
EUnitsType TUnits::GetLiquidDensityUnits() { return UNITS_KG_PER_L; }
EUnitsType TUnits::GetDryVolumeUnits() { return Chosen(PARAM_DRY_VOLUME_UNIT, DryVolumeUnits); }
EUnitsType TUnits::GetDryDensityUnits() { return Chosen(PARAM_DRY_DENSITY_UNIT, DryDensityUnits); }

EUnitsType TUnits::GetTankCalFactorUnits(int kind, bool perMinute)
{
    switch (kind) {
    case 0:
        return GetLiquidFlowCalFactorUnits();
    case 1:
        return UNITS_PULSES_PER_ML;
    case 4:
        return perMinute ? UNITS_KG_PER_MIN : UNITS_KG_PER_REV;
    case 6:
        return UNITS_KG_PER_REV;
    case 7:
        return UNITS_PULSES_PER_L;
    case 8:
        return UNITS_PULSES_PER_KG_N;
    default:
        return UNITS_NONE;
    }
}
