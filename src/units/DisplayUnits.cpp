// Which unit a quantity is shown in, as the parameters choose.

#include "units/TUnitAbbreviations.h"
#include "units/TUnits.h"
#include "units/UnitSystem.h"
#include "units/UnitTable.h"

#include <cstddef>

namespace {

/// Units per area in both systems and for both areas.
struct tagAreaUnits
{
    EUnitsType type;
    EUnitsType metric[2];   ///< by PARAM_AREA_UNIT
    EUnitsType imperial[2]; ///< by PARAM_AREA_UNIT
};

// clang-format off
constexpr tagAreaUnits AreaUnits[] = {
    {UNITS_HECTARES,      {UNITS_HECTARES,      UNITS_ACRES},         {UNITS_HECTARES,      UNITS_ACRES}},
    {UNITS_L_PER_HA,      {UNITS_L_PER_HA,      UNITS_L_PER_AC},      {UNITS_GAL_PER_HA,    UNITS_GAL_PER_AC}},
    {UNITS_ML_PER_HA,     {UNITS_ML_PER_HA,     UNITS_ML_PER_AC},     {UNITS_FLOZ_PER_HA,   UNITS_FLOZ_PER_AC}},
    {UNITS_M3_PER_HA,     {UNITS_M3_PER_HA,     UNITS_M3_PER_AC},     {UNITS_FT3_PER_HA,    UNITS_FT3_PER_AC}},
    {UNITS_T_PER_HA,      {UNITS_T_PER_HA,      UNITS_T_PER_AC},      {UNITS_LB_PER_HA,     UNITS_LB_PER_AC}},
    {UNITS_KG_PER_HA,     {UNITS_KG_PER_HA,     UNITS_KG_PER_AC},     {UNITS_LB_PER_HA,     UNITS_LB_PER_AC}},
    {UNITS_KG_N_PER_HA,   {UNITS_KG_N_PER_HA,   UNITS_KG_N_PER_AC},   {UNITS_LB_N_PER_HA,   UNITS_LB_N_PER_AC}},
    {UNITS_KSEEDS_PER_HA, {UNITS_KSEEDS_PER_HA, UNITS_KSEEDS_PER_AC}, {UNITS_KSEEDS_PER_HA, UNITS_KSEEDS_PER_AC}},
};
// clang-format on

const tagAreaUnits* FindAreaUnits(EUnitsType type)
{
    for (const tagAreaUnits& row : AreaUnits) {
        if (row.type == type)
            return &row;
    }
    return nullptr;
}

/// The choice that a parameter makes among @p units; UNITS_NONE when it is out of range.
template <std::size_t Count>
EUnitsType Chosen(EParamID id, const EUnitsType (&units)[Count])
{
    const int choice = Parameters::ReadInt(id);
    return choice >= 0 && static_cast<std::size_t>(choice) < Count ? units[choice] : UNITS_NONE;
}

constexpr EUnitsType PressureUnits[] = {UNITS_KPA, UNITS_PSI, UNITS_BAR};
constexpr EUnitsType LiquidVolumeUnits[] = {UNITS_LITERS, UNITS_CUBIC_METERS, UNITS_TONNES};
constexpr EUnitsType LiquidFlowRateUnits[] = {UNITS_L_PER_MIN, UNITS_M3_PER_MIN, UNITS_T_PER_MIN};
constexpr EUnitsType LiquidVolumePerAreaUnits[] = {UNITS_L_PER_HA, UNITS_M3_PER_HA, UNITS_T_PER_HA};
constexpr EUnitsType LiquidFlowCalFactorUnits[] = {UNITS_PULSES_PER_L, UNITS_PULSES_PER_M3, UNITS_PULSES_PER_T};
constexpr EUnitsType DryVolumeUnits[] = {UNITS_LITERS, UNITS_KG, UNITS_CUBIC_METERS, UNITS_US_BUSHELS,
                                         UNITS_UK_BUSHELS};
constexpr EUnitsType DryDensityUnits[] = {UNITS_KG_PER_L, UNITS_KG_PER_M3, UNITS_KG_PER_US_BU, UNITS_KG_PER_UK_BU};

const int ShortDistanceInInches = 1; // of PARAM_SHORT_DISTANCE_UNIT
const int ShortDistanceInFeet = 2;

} // namespace

EUnitsType TUnits::DetermineDefaultUnitFromUnitsType(EUnitsType type)
{
    const tagUnit* const unit = FindUnit(type);
    return unit ? unit->hub : type;
}

EUnitsType TUnits::GetStoredUnit(EUnitsType type)
{
    const tagUnit* const unit = FindUnit(type);
    return unit ? unit->stored : type;
}

EUnitsType TUnits::DetermineActualUnitFromUnitsType(EUnitsType type)
{
    if (IsSpecifiedPressureUnit(type))
        return Chosen(PARAM_PRESSURE_UNIT, PressureUnits);
    if (IsSpecifiedShortDistanceUnit(type))
        return GetShortDistanceUnits(false, type);

    const bool metric = UnitSystem::IsMetric();
    if (type == UNITS_L_PER_HA && UnitSystem::ShowsRatesPerTravel())
        return metric ? UNITS_L_PER_100M : UNITS_GAL_PER_100YD;
    if (const tagAreaUnits* const units = FindAreaUnits(type))
        return Chosen(PARAM_AREA_UNIT, metric ? units->metric : units->imperial);
    const tagUnit* const unit = FindUnit(type);
    return unit && !metric ? unit->imperial : type;
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
    const EUnitsType shown = DetermineDefaultUnitFromUnitsType(static_cast<EUnitsType>(unitType));
    const EUnitsType hub = shown == UNITS_KPH ? UNITS_METERS_PER_SECOND : shown; // speeds convert by metres per second
    return ConvertUnit(1, hub, unit);
}

bool TUnits::IsSpecifiedAreaUnit(EUnitsType type) { return FindAreaUnits(type) != nullptr; }
bool TUnits::IsSpecifiedPressureUnit(EUnitsType type) { return type == UNITS_KPA; }

bool TUnits::IsSpecifiedShortDistanceUnit(EUnitsType type)
{
    return type == UNITS_METERS || type == UNITS_FEET || type == UNITS_INCHES;
}

EUnitsType TUnits::GetShortDistanceUnits(bool small, EUnitsType type)
{
    const int choice = Parameters::ReadInt(PARAM_SHORT_DISTANCE_UNIT);
    const EUnitsType feet = small ? UNITS_INCHES : UNITS_FEET;
    if (choice == ShortDistanceInFeet)
        return type == UNITS_INCHES ? UNITS_INCHES : feet;
    if (choice == ShortDistanceInInches)
        return type == UNITS_FEET ? feet : UNITS_INCHES;
    return small ? UNITS_MILLIMETERS : UNITS_METERS;
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
