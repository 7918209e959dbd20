#pragma once

#include "units/EUnitsType.h"
#include "units/table/Conversions.h"

#include <QtGlobal>

/// Measuring system that a unit belongs to.
enum EUnitFamily : int
{
    FAMILY_NEUTRAL, ///< used in every system
    FAMILY_METRIC,
    FAMILY_IMPERIAL, ///< also units of two sizes, of which PARAM_US_MEASURES chooses one
    FAMILY_US,
};

/// All there is to know of a unit.
struct tagUnit
{
    EUnitsType type;
    EUnitFamily family;
    int decimals;        ///< shown by default; -1: those of the number formatter
    EUnitsType hub;      ///< the unit that it is converted from and to
    tagSizes sizes;      ///< how it is converted; {}: it is a hub, or ConvertUnit() leaves it alone
    EUnitsType stored;   ///< unit of the value that GetValueString() takes for it
    EUnitsType imperial; ///< shown in its place when not metric
    EUnitsType acre;     ///< shown in its place when areas are shown in acres
    bool takesSpace;     ///< a blank separates number and abbreviation

    struct
    {
        const char* text;    ///< UTF-8, to be translated; null: none, or built from others
        const char* comment; ///< for translators
    } abbreviation;
};

namespace Conversions {

// What UNITS_NONE means in the columns of units.
inline constexpr EUnitsType Itself = UNITS_NONE; ///< the unit of the row
inline constexpr EUnitsType Stays = UNITS_NONE;  ///< nothing is shown in its place

/// One row for each EUnitsType, in its order. A new unit takes an enumerator there and a row here.
///
/// Metric units per acre and per bushel are mixtures that are in use; they count as metric.
// clang-format off
inline constexpr tagUnit UnitTable[] = {
    // unit                   family               hub                      conversion            stored                   imperial               acre                  blank  abbreviation
    {UNITS_NONE,              FAMILY_NEUTRAL,  0,  UNITS_NONE,              {},                   Itself,                  Stays,                 Stays,                false, {nullptr, nullptr}},
    {UNITS_METERS,            FAMILY_METRIC,   3,  UNITS_METERS,            {},                   Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "m"), nullptr}},
    {UNITS_KILOMETERS,        FAMILY_METRIC,   1,  UNITS_METERS,            Kilometers,           Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "km"), nullptr}},
    {UNITS_CENTIMETERS,       FAMILY_METRIC,   1,  UNITS_METERS,            Hundredths,           Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "cm"), nullptr}},
    {UNITS_MILLIMETERS,       FAMILY_METRIC,   0,  UNITS_METERS,            Thousandths,          UNITS_METERS,            UNITS_INCHES,          Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "mm"), nullptr}},
    {UNITS_FEET,              FAMILY_IMPERIAL, 2,  UNITS_METERS,            Feet,                 UNITS_METERS,            Stays,                 Stays,                false, {QT_TRANSLATE_NOOP("TUnitAbbreviations", "'"), nullptr}},
    {UNITS_MILES,             FAMILY_IMPERIAL, 1,  UNITS_METERS,            Miles,                Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "miles"), nullptr}},
    {UNITS_INCHES,            FAMILY_IMPERIAL, 2,  UNITS_METERS,            Inches,               Itself,                  Stays,                 Stays,                false, {nullptr, nullptr}},
    {UNITS_HECTARES,          FAMILY_METRIC,   2,  UNITS_HECTARES,          {},                   Itself,                  Stays,                 UNITS_ACRES,          true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "ha"), nullptr}},
    {UNITS_ACRES,             FAMILY_IMPERIAL, 2,  UNITS_HECTARES,          Acres,                Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "ac"), nullptr}},
    {UNITS_METERS_PER_MIN,    FAMILY_METRIC,   1,  UNITS_METERS_PER_MIN,    {},                   Itself,                  UNITS_FEET_PER_MIN,    Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "m/min"), nullptr}},
    {UNITS_FEET_PER_MIN,      FAMILY_IMPERIAL, 1,  UNITS_METERS_PER_MIN,    Feet,                 Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "ft/min"), nullptr}},
    {UNITS_METERS_PER_SECOND, FAMILY_METRIC,   1,  UNITS_METERS_PER_SECOND, {},                   Itself,                  Stays,                 Stays,                true,  {nullptr, nullptr}},
    {UNITS_KPH,               FAMILY_METRIC,   1,  UNITS_METERS_PER_SECOND, Kph,                  UNITS_METERS_PER_SECOND, UNITS_MPH,             Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kph"), nullptr}},
    {UNITS_MPH,               FAMILY_IMPERIAL, 1,  UNITS_METERS_PER_SECOND, Mph,                  Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "mph"), nullptr}},
    {UNITS_HZ_PER_KPH,        FAMILY_METRIC,   2,  UNITS_HZ_PER_KPH,        {},                   Itself,                  UNITS_HZ_PER_MPH,      Stays,                true,  {nullptr, nullptr}},
    {UNITS_HZ_PER_MPH,        FAMILY_IMPERIAL, 2,  UNITS_HZ_PER_KPH,        PerMileOfKilometers,  Itself,                  Stays,                 Stays,                true,  {nullptr, nullptr}},
    {UNITS_ACRES_PER_HOUR,    FAMILY_IMPERIAL, 2,  UNITS_HECTARES_PER_HOUR, {},                   Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "ac/hr"), nullptr}},
    {UNITS_HECTARES_PER_HOUR, FAMILY_METRIC,   2,  UNITS_HECTARES_PER_HOUR, {},                   Itself,                  Stays,                 UNITS_ACRES_PER_HOUR, true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "ha/hr"), nullptr}},
    {UNITS_LITERS,            FAMILY_METRIC,   1,  UNITS_LITERS,            {},                   Itself,                  UNITS_GALLONS,         Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "L"), nullptr}},
    {UNITS_GALLONS,           FAMILY_IMPERIAL, 1,  UNITS_LITERS,            Gallons,              Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "gal"), nullptr}},
    {UNITS_MILLILITERS,       FAMILY_METRIC,   1,  UNITS_LITERS,            Thousandths,          UNITS_LITERS,            UNITS_FLUID_OUNCES,    Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "mL"), nullptr}},
    {UNITS_FLUID_OUNCES,      FAMILY_IMPERIAL, 1,  UNITS_LITERS,            FluidOunces,          Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "fl.oz"), nullptr}},
    {UNITS_CUBIC_METERS,      FAMILY_METRIC,   2,  UNITS_LITERS,            Thousands,            UNITS_LITERS,            UNITS_CUBIC_FEET,      Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "m³"), nullptr}},
    {UNITS_CUBIC_FEET,        FAMILY_IMPERIAL, 2,  UNITS_LITERS,            CubicFeet,            Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "ft³"), nullptr}},
    {UNITS_TONNES,            FAMILY_METRIC,   2,  UNITS_LITERS,            Thousands,            UNITS_LITERS,            UNITS_LB,              Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "t"), nullptr}},
    {UNITS_US_BUSHELS,        FAMILY_US,       1,  UNITS_LITERS,            USBushels,            UNITS_LITERS,            UNITS_US_BUSHELS,      Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "US bu"), nullptr}},
    {UNITS_UK_BUSHELS,        FAMILY_IMPERIAL, 1,  UNITS_LITERS,            UKBushels,            UNITS_LITERS,            UNITS_UK_BUSHELS,      Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "UK bu"), nullptr}},
    {UNITS_L_PER_HA,          FAMILY_METRIC,   0,  UNITS_L_PER_HA,          {},                   Itself,                  UNITS_GAL_PER_HA,      UNITS_L_PER_AC,       true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "L/ha"), nullptr}},
    {UNITS_L_PER_AC,          FAMILY_METRIC,   0,  UNITS_L_PER_HA,          Per(Acres),           Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "L/ac"), nullptr}},
    {UNITS_ML_PER_HA,         FAMILY_METRIC,   0,  UNITS_L_PER_HA,          Thousandths,          UNITS_L_PER_HA,          UNITS_FLOZ_PER_HA,     UNITS_ML_PER_AC,      true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "mL/ha"), nullptr}},
    {UNITS_ML_PER_AC,         FAMILY_METRIC,   0,  UNITS_L_PER_HA,          ThousandthsPerAcre,   Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "mL/ac"), nullptr}},
    {UNITS_GAL_PER_HA,        FAMILY_IMPERIAL, 1,  UNITS_L_PER_HA,          Gallons,              Itself,                  Stays,                 UNITS_GAL_PER_AC,     true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "gal/ha"), nullptr}},
    {UNITS_GAL_PER_AC,        FAMILY_IMPERIAL, 1,  UNITS_L_PER_HA,          GallonsPerAcre,       Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "gal/ac"), nullptr}},
    {UNITS_US_GAL_PER_HA,     FAMILY_US,       1,  UNITS_L_PER_HA,          USGallons,            Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "gal/ha (US)"), nullptr}},
    {UNITS_US_GAL_PER_AC,     FAMILY_US,       1,  UNITS_L_PER_HA,          USGallonsPerAcre,     Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "gal/ac (US)"), nullptr}},
    {UNITS_FLOZ_PER_AC,       FAMILY_IMPERIAL, 1,  UNITS_L_PER_HA,          FluidOuncesPerAcre,   Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "fl.oz/ac"), nullptr}},
    {UNITS_FLOZ_PER_HA,       FAMILY_IMPERIAL, 1,  UNITS_L_PER_HA,          FluidOunces,          Itself,                  Stays,                 UNITS_FLOZ_PER_AC,    true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "fl.oz/ha"), nullptr}},
    {UNITS_US_FLOZ_PER_AC,    FAMILY_US,       1,  UNITS_L_PER_HA,          USFluidOuncesPerAcre, Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "fl.oz/ac (US)"), nullptr}},
    {UNITS_US_FLOZ_PER_HA,    FAMILY_US,       1,  UNITS_L_PER_HA,          USFluidOunces,        Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "fl.oz/ha (US)"), nullptr}},
    {UNITS_M3_PER_HA,         FAMILY_METRIC,   2,  UNITS_L_PER_HA,          Thousands,            UNITS_L_PER_HA,          UNITS_FT3_PER_HA,      UNITS_M3_PER_AC,      true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "m³/ha"), nullptr}},
    {UNITS_M3_PER_AC,         FAMILY_METRIC,   2,  UNITS_L_PER_HA,          ThousandsPerAcre,     Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "m³/ac"), nullptr}},
    {UNITS_FT3_PER_HA,        FAMILY_IMPERIAL, 2,  UNITS_L_PER_HA,          CubicFeet,            Itself,                  Stays,                 UNITS_FT3_PER_AC,     true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "ft³/ha"), nullptr}},
    {UNITS_FT3_PER_AC,        FAMILY_IMPERIAL, 2,  UNITS_L_PER_HA,          CubicFeetPerAcre,     Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "ft³/ac"), nullptr}},
    {UNITS_T_PER_HA,          FAMILY_METRIC,   2,  UNITS_L_PER_HA,          Thousands,            UNITS_L_PER_HA,          UNITS_LB_PER_HA,       UNITS_T_PER_AC,       true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "t/ha"), nullptr}},
    {UNITS_T_PER_AC,          FAMILY_METRIC,   2,  UNITS_L_PER_HA,          ThousandsPerAcre,     Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "t/ac"), nullptr}},
    {UNITS_L_PER_100M,        FAMILY_METRIC,   2,  UNITS_L_PER_HA,          {},                   Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "L/100m"), nullptr}},
    {UNITS_GAL_PER_100YD,     FAMILY_IMPERIAL, 2,  UNITS_L_PER_HA,          GallonsPer100Yards,   Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "gal/100yd"), nullptr}},
    {UNITS_US_GAL_PER_100YD,  FAMILY_US,       2,  UNITS_L_PER_HA,          USGallonsPer100Yards, Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "gal/100yd (US)"), nullptr}},
    {UNITS_L_PER_MIN,         FAMILY_METRIC,   2,  UNITS_L_PER_MIN,         {},                   Itself,                  UNITS_GAL_PER_MIN,     Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "L/min"), nullptr}},
    {UNITS_GAL_PER_MIN,       FAMILY_IMPERIAL, 2,  UNITS_L_PER_MIN,         Gallons,              Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "gal/min"), nullptr}},
    {UNITS_ML_PER_MIN,        FAMILY_METRIC,   2,  UNITS_L_PER_MIN,         Thousandths,          UNITS_L_PER_MIN,         UNITS_FLOZ_PER_MIN,    Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "mL/min"), nullptr}},
    {UNITS_FLOZ_PER_MIN,      FAMILY_IMPERIAL, 2,  UNITS_L_PER_MIN,         FluidOunces,          Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "fl.oz/min"), nullptr}},
    {UNITS_M3_PER_MIN,        FAMILY_METRIC,   2,  UNITS_L_PER_MIN,         Thousands,            UNITS_L_PER_MIN,         UNITS_FT3_PER_MIN,     Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "m³/min"), nullptr}},
    {UNITS_FT3_PER_MIN,       FAMILY_IMPERIAL, 2,  UNITS_L_PER_MIN,         CubicFeet,            Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "ft³/min"), nullptr}},
    {UNITS_T_PER_MIN,         FAMILY_METRIC,   2,  UNITS_L_PER_MIN,         Thousands,            UNITS_L_PER_MIN,         UNITS_LB_PER_MIN,      Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "t/min"), nullptr}},
    {UNITS_L_PER_REV,         FAMILY_METRIC,   1,  UNITS_L_PER_REV,         {},                   Itself,                  UNITS_GAL_PER_REV,     Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "L/rev"), nullptr}},
    {UNITS_GAL_PER_REV,       FAMILY_IMPERIAL, 1,  UNITS_L_PER_REV,         Gallons,              Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "gal/rev"), nullptr}},
    {UNITS_KPA,               FAMILY_METRIC,   1,  UNITS_KPA,               {},                   Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kPa"), nullptr}},
    {UNITS_PSI,               FAMILY_IMPERIAL, 1,  UNITS_KPA,               PsiOfTheHub,          Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "psi"), nullptr}},
    {UNITS_BAR,               FAMILY_METRIC,   2,  UNITS_KPA,               Bar,                  Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "bar"), nullptr}},
    {UNITS_M_PER_PULSE,       FAMILY_METRIC,   3,  UNITS_M_PER_PULSE,       {},                   Itself,                  UNITS_FT_PER_PULSE,    Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "m/pulse"), nullptr}},
    {UNITS_FT_PER_PULSE,      FAMILY_IMPERIAL, 3,  UNITS_M_PER_PULSE,       Feet,                 Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "ft/pulse"), nullptr}},
    {UNITS_PULSES_PER_L,      FAMILY_METRIC,   2,  UNITS_PULSES_PER_L,      {},                   Itself,                  UNITS_PULSES_PER_GAL,  Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "pulses/L"), nullptr}},
    {UNITS_PULSES_PER_GAL,    FAMILY_IMPERIAL, 2,  UNITS_PULSES_PER_L,      Per(Gallons),         Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "pulses/gal"), nullptr}},
    {UNITS_PULSES_PER_ML,     FAMILY_METRIC,   2,  UNITS_PULSES_PER_L,      Per(Thousandths),     UNITS_PULSES_PER_L,      UNITS_PULSES_PER_FLOZ, Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "pulses/mL"), nullptr}},
    {UNITS_PULSES_PER_FLOZ,   FAMILY_IMPERIAL, 2,  UNITS_PULSES_PER_L,      Per(FluidOunces),     Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "pulses/fl.oz"), nullptr}},
    {UNITS_PULSES_PER_M3,     FAMILY_METRIC,   2,  UNITS_PULSES_PER_L,      Per(Thousands),       UNITS_PULSES_PER_L,      UNITS_PULSES_PER_FT3,  Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "pulses/m³"), nullptr}},
    {UNITS_PULSES_PER_FT3,    FAMILY_IMPERIAL, 2,  UNITS_PULSES_PER_L,      PulsesPerCubicFoot,   Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "pulses/ft³"), nullptr}},
    {UNITS_PULSES_PER_T,      FAMILY_METRIC,   2,  UNITS_PULSES_PER_L,      Per(Thousands),       UNITS_PULSES_PER_L,      UNITS_PULSES_PER_LB,   Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "pulses/t"), nullptr}},
    {UNITS_PULSES_PER_LB,     FAMILY_IMPERIAL, 2,  UNITS_PULSES_PER_L,      PulsesPerPound,       Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "pulses/lb"), nullptr}},
    {UNITS_KG,                FAMILY_METRIC,   0,  UNITS_KG,                {},                   Itself,                  UNITS_LB,              Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kg"), nullptr}},
    {UNITS_LB,                FAMILY_IMPERIAL, 0,  UNITS_KG,                Pounds,               Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lb"), nullptr}},
    {UNITS_KG_N,              FAMILY_METRIC,   0,  UNITS_KG_N,              {},                   Itself,                  UNITS_LB_N,            Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kgN"), nullptr}},
    {UNITS_LB_N,              FAMILY_IMPERIAL, 0,  UNITS_KG_N,              Pounds,               Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lbN"), nullptr}},
    {UNITS_KG_PER_HA,         FAMILY_METRIC,   2,  UNITS_KG_PER_HA,         {},                   Itself,                  UNITS_LB_PER_HA,       UNITS_KG_PER_AC,      true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kg/ha"), nullptr}},
    {UNITS_KG_PER_AC,         FAMILY_METRIC,   2,  UNITS_KG_PER_HA,         Per(Acres),           Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kg/ac"), nullptr}},
    {UNITS_LB_PER_AC,         FAMILY_IMPERIAL, 2,  UNITS_KG_PER_HA,         PoundsPerAcre,        Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lb/ac"), nullptr}},
    {UNITS_LB_PER_HA,         FAMILY_IMPERIAL, 2,  UNITS_KG_PER_HA,         Pounds,               Itself,                  Stays,                 UNITS_LB_PER_AC,      true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lb/ha"), nullptr}},
    {UNITS_G_PER_HA,          FAMILY_METRIC,   0,  UNITS_KG_PER_HA,         {},                   Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "g/ha"), nullptr}},
    {UNITS_KG_N_PER_HA,       FAMILY_METRIC,   1,  UNITS_KG_N_PER_HA,       {},                   Itself,                  UNITS_LB_N_PER_HA,     UNITS_KG_N_PER_AC,    true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kgN/ha"), nullptr}},
    {UNITS_KG_N_PER_AC,       FAMILY_METRIC,   1,  UNITS_KG_N_PER_HA,       Per(Acres),           Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kgN/ac"), nullptr}},
    {UNITS_LB_N_PER_AC,       FAMILY_IMPERIAL, 1,  UNITS_KG_N_PER_HA,       PoundsPerAcre,        Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lbN/ac"), nullptr}},
    {UNITS_LB_N_PER_HA,       FAMILY_IMPERIAL, 1,  UNITS_KG_N_PER_HA,       Pounds,               Itself,                  Stays,                 UNITS_LB_N_PER_AC,    true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lbN/ha"), nullptr}},
    {UNITS_KG_PER_MIN,        FAMILY_METRIC,   1,  UNITS_KG_PER_MIN,        {},                   Itself,                  UNITS_LB_PER_MIN,      Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kg/min"), nullptr}},
    {UNITS_LB_PER_MIN,        FAMILY_IMPERIAL, 1,  UNITS_KG_PER_MIN,        Pounds,               Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lb/min"), nullptr}},
    {UNITS_KG_N_PER_MIN,      FAMILY_METRIC,   1,  UNITS_KG_N_PER_MIN,      {},                   Itself,                  UNITS_LB_N_PER_MIN,    Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kgN/min"), nullptr}},
    {UNITS_LB_N_PER_MIN,      FAMILY_IMPERIAL, 1,  UNITS_KG_N_PER_MIN,      Pounds,               Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lbN/min"), nullptr}},
    {UNITS_KG_PER_REV,        FAMILY_METRIC,   2,  UNITS_KG_PER_REV,        {},                   Itself,                  UNITS_LB_PER_REV,      Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kg/rev"), nullptr}},
    {UNITS_LB_PER_REV,        FAMILY_IMPERIAL, 2,  UNITS_KG_PER_REV,        Pounds,               Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lb/rev"), nullptr}},
    {UNITS_KG_PER_L,          FAMILY_METRIC,   1,  UNITS_KG_PER_L,          {},                   Itself,                  UNITS_LB_PER_GAL,      Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kg/L"), nullptr}},
    {UNITS_LB_PER_GAL,        FAMILY_IMPERIAL, 1,  UNITS_KG_PER_L,          PoundsPerGallon,      Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lb/gal"), nullptr}},
    {UNITS_KG_PER_M3,         FAMILY_METRIC,   1,  UNITS_KG_PER_L,          Per(Thousands),       UNITS_KG_PER_L,          UNITS_LB_PER_FT3,      Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kg/m³"), nullptr}},
    {UNITS_LB_PER_FT3,        FAMILY_IMPERIAL, 1,  UNITS_KG_PER_L,          PoundsPerCubicFoot,   Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lb/ft³"), nullptr}},
    {UNITS_KG_PER_US_BU,      FAMILY_METRIC,   1,  UNITS_KG_PER_L,          Per(USBushels),       UNITS_KG_PER_L,          UNITS_LB_PER_US_BU,    Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kg/US bu"), nullptr}},
    {UNITS_KG_PER_UK_BU,      FAMILY_METRIC,   1,  UNITS_KG_PER_L,          Per(UKBushels),       UNITS_KG_PER_L,          UNITS_LB_PER_UK_BU,    Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kg/UK bu"), nullptr}},
    {UNITS_LB_PER_US_BU,      FAMILY_US,       1,  UNITS_KG_PER_L,          PoundsPerUSBushel,    Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lb/US bu"), nullptr}},
    {UNITS_LB_PER_UK_BU,      FAMILY_IMPERIAL, 1,  UNITS_KG_PER_L,          PoundsPerUKBushel,    Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lb/UK bu"), nullptr}},
    {UNITS_PULSES_PER_KG_N,   FAMILY_METRIC,   2,  UNITS_PULSES_PER_KG_N,   {},                   Itself,                  UNITS_PULSES_PER_LB_N, Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "pulses/kgN"), nullptr}},
    {UNITS_PULSES_PER_LB_N,   FAMILY_IMPERIAL, 2,  UNITS_PULSES_PER_KG_N,   Per(Pounds),          Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "pulses/lbN"), nullptr}},
    {UNITS_KSEEDS_PER_HA,     FAMILY_METRIC,   0,  UNITS_KSEEDS_PER_HA,     {},                   Itself,                  Stays,                 UNITS_KSEEDS_PER_AC,  true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "KS/ha"), nullptr}},
    {UNITS_KSEEDS_PER_AC,     FAMILY_IMPERIAL, 0,  UNITS_KSEEDS_PER_HA,     Per(Acres),           Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "KS/ac"), nullptr}},
    {UNITS_SECONDS,           FAMILY_NEUTRAL,  0,  UNITS_SECONDS,           {},                   Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "s"), nullptr}},
    {UNITS_MILLISECONDS,      FAMILY_NEUTRAL,  0,  UNITS_MILLISECONDS,      {},                   Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "ms"), nullptr}},
    {UNITS_MINUTES,           FAMILY_NEUTRAL,  0,  UNITS_MINUTES,           {},                   Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "min"), nullptr}},
    {UNITS_HOURS,             FAMILY_NEUTRAL,  0,  UNITS_HOURS,             {},                   Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "hrs"), nullptr}},
    {UNITS_HERTZ,             FAMILY_NEUTRAL,  0,  UNITS_HERTZ,             {},                   Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "Hz"), nullptr}},
    {UNITS_CELSIUS,           FAMILY_METRIC,   0,  UNITS_CELSIUS,           {},                   Itself,                  UNITS_FAHRENHEIT,      Stays,                false, {nullptr, nullptr}},
    {UNITS_FAHRENHEIT,        FAMILY_IMPERIAL, 0,  UNITS_FAHRENHEIT,        {},                   Itself,                  Stays,                 Stays,                false, {nullptr, nullptr}},
    {UNITS_RPM,               FAMILY_NEUTRAL,  0,  UNITS_RPM,               {},                   Itself,                  Stays,                 Stays,                true,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "rpm"), nullptr}},
    {UNITS_AMPERES,           FAMILY_NEUTRAL,  0,  UNITS_AMPERES,           {},                   Itself,                  Stays,                 Stays,                true,  QT_TRANSLATE_NOOP3("TUnitAbbreviations", "A", "Ampere Abbreviation")},
    {UNITS_WATTS,             FAMILY_NEUTRAL,  -1, UNITS_WATTS,             {},                   Itself,                  Stays,                 Stays,                true,  QT_TRANSLATE_NOOP3("TUnitAbbreviations", "W", "Watt Abbreviation")},
    {UNITS_MILLIWATTS,        FAMILY_NEUTRAL,  -1, UNITS_MILLIWATTS,        {},                   Itself,                  Stays,                 Stays,                true,  QT_TRANSLATE_NOOP3("TUnitAbbreviations", "mW", "milliWatt Abbreviation")},
    {UNITS_LATITUDE,          FAMILY_NEUTRAL,  -1, UNITS_LATITUDE,          {},                   Itself,                  Stays,                 Stays,                true,  {nullptr, nullptr}},
    {UNITS_LONGITUDE,         FAMILY_NEUTRAL,  -1, UNITS_LONGITUDE,         {},                   Itself,                  Stays,                 Stays,                true,  {nullptr, nullptr}},
};
// clang-format on

} // namespace Conversions

using Conversions::UnitTable;

constexpr int UnitCount = UNITS_COUNT;

static_assert(sizeof(UnitTable) / sizeof(UnitTable[0]) == UnitCount, "one row for each unit");

/// The unit's row; null for a number that is no unit.
constexpr const tagUnit* FindUnit(int type) { return type >= 0 && type < UnitCount ? &UnitTable[type] : nullptr; }

/// The unit of the value that TUnits::GetValueString() takes for @p type.
constexpr EUnitsType StoredUnit(EUnitsType type)
{
    const tagUnit* const unit = FindUnit(type);
    return unit && unit->stored != Conversions::Itself ? unit->stored : type;
}

constexpr bool UnitTableIsInOrder()
{
    for (int i = 0; i < UnitCount; ++i) {
        if (UnitTable[i].type != i)
            return false;
    }
    return true;
}

static_assert(UnitTableIsInOrder(), "rows are indexed by the number of the unit");
