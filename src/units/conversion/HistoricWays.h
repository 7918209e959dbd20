#pragma once

#include "units/EUnitsType.h"
#include "units/table/Conversions.h"

/// What the rows of the units do not say: conversions that grew in another way. Recorded data and the displays in the
/// field rely on each.
namespace HistoricWays {

/// ConvertUnit() treats a hub as if it were the hub `like`: it converts each of them into every unit of the other. So
/// all hubs of masses are one, and all hubs of masses per hectare.
struct tagAlike
{
    EUnitsType hub;
    EUnitsType like;
};

inline constexpr tagAlike HubsAlike[] = {
    {UNITS_KG_N, UNITS_KG},       {UNITS_KG_PER_MIN, UNITS_KG},         {UNITS_KG_N_PER_MIN, UNITS_KG},
    {UNITS_KG_PER_REV, UNITS_KG}, {UNITS_KG_N_PER_HA, UNITS_KG_PER_HA}, {UNITS_KSEEDS_PER_HA, UNITS_KG_PER_HA},
};

/// A liquid is shown in pounds too, one litre being counted as one kilogram: ConvertUnit() converts these units from a
/// hub of volumes, besides their own.
struct tagLiquid
{
    EUnitsType hub;
    EUnitsType unit;
    tagSizes sizes;
};

inline constexpr tagLiquid LiquidsByMass[] = {
    {UNITS_LITERS, UNITS_LB, Conversions::PoundsOfLiters},
    {UNITS_L_PER_HA, UNITS_LB_PER_HA, Conversions::PoundsOfLiters},
    {UNITS_L_PER_HA, UNITS_LB_PER_AC, Conversions::PoundsPerAcreOfLiters},
};

/// Quantities whose default unit is not their hub.
struct tagDefaultUnit
{
    EUnitsType hub;
    EUnitsType unit;
};

inline constexpr tagDefaultUnit DefaultUnits[] = {
    {UNITS_METERS_PER_SECOND, UNITS_KPH},
    {UNITS_KG_N, UNITS_KG},
    {UNITS_KG_N_PER_HA, UNITS_KG_PER_HA},
    {UNITS_KG_N_PER_MIN, UNITS_KG_PER_MIN},
};

enum EUse : int
{
    IN_TEXTS = 1,   ///< a value on its way to a text
    IN_ENTRIES = 2, ///< a value that is typed, or shown to be typed over
    IN_BOTH = IN_TEXTS | IN_ENTRIES,
};

/// Ways that ConvertUnit() does not go, or goes otherwise.
struct tagWay
{
    EUnitsType stored;
    EUnitsType shown;
    EUse use;
    tagConversion conversion;
};

inline constexpr tagWay Ways[] = {
    // Not among the factors: no factor converts a temperature, and these rates came later.
    {UNITS_CELSIUS, UNITS_FAHRENHEIT, IN_BOTH, Conversions::Fahrenheit},
    {UNITS_L_PER_HA, UNITS_L_PER_100M, IN_BOTH, Conversions::Hundreds},
    // Stored productivities were never converted; the text alone is.
    {UNITS_HECTARES_PER_HOUR, UNITS_ACRES_PER_HOUR, IN_TEXTS, Conversions::Acres},
    // The pounds of what is shown in tonnes are computed from the tonnes.
    {UNITS_LITERS, UNITS_LB, IN_TEXTS, Conversions::PoundsByTonnes},
    {UNITS_L_PER_MIN, UNITS_LB_PER_MIN, IN_TEXTS, Conversions::PoundsByTonnes},
    {UNITS_L_PER_MIN, UNITS_LB_PER_MIN, IN_ENTRIES, Conversions::PoundsOfLiters},
    // Speeds are typed in km/h or mph and kept in km/h; texts take metres per second.
    {UNITS_KPH, UNITS_MPH, IN_ENTRIES, Conversions::MilesOfKilometers},
    // Typed pressures come back by the factor that they were shown by, which ConvertUnit() shortens.
    {UNITS_KPA, UNITS_PSI, IN_ENTRIES, Conversions::Psi},
};

/// Null where the way is that of ConvertUnit().
inline const tagConversion* Find(EUse use, EUnitsType stored, EUnitsType shown)
{
    for (const tagWay& way : Ways) {
        if (way.shown == shown && way.stored == stored && (way.use & use) != 0)
            return &way.conversion;
    }
    return nullptr;
}

} // namespace HistoricWays
