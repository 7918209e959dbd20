#pragma once

#include "units/EUnitsType.h"

#include <QtGlobal>

#include <cstddef>

/// Measuring system that a unit belongs to.
enum EUnitFamily : int
{
    FAMILY_NEUTRAL, ///< used in every system
    FAMILY_METRIC,
    FAMILY_IMPERIAL,
    FAMILY_US,
    FAMILY_IMPERIAL_OR_US, ///< one abbreviation for two sizes: PARAM_US_MEASURES tells which
};

/// What is told of each unit.
struct tagUnit
{
    EUnitsType type;
    EUnitFamily family;
    EUnitsType hub;      ///< default unit of its quantity
    EUnitsType stored;   ///< unit of the value that GetValueString() takes for this one
    int decimals;        ///< shown where nobody asks for a precision; -1: the number formatter's own
    bool takesSpace;     ///< a blank stands between number and abbreviation
    EUnitsType imperial; ///< shown in its place when not metric; itself when it stays

    struct
    {
        const char* text;    ///< UTF-8, to be translated; null: none, or built from others
        const char* comment; ///< for translators
    } abbreviation;
};

/// One row for each EUnitsType, in its order.
///
/// Metric units per acre and per bushel are mixtures that are in use, and count as metric.
// clang-format off
constexpr tagUnit UnitTable[] = {
    {UNITS_NONE,              FAMILY_NEUTRAL,        UNITS_NONE,             UNITS_NONE,              0,  false, UNITS_NONE,              {nullptr, nullptr}},
    {UNITS_METERS,            FAMILY_METRIC,         UNITS_METERS,           UNITS_METERS,            3,  true,  UNITS_METERS,            {QT_TRANSLATE_NOOP("TUnitAbbreviations", "m"), nullptr}},
    {UNITS_KILOMETERS,        FAMILY_METRIC,         UNITS_METERS,           UNITS_KILOMETERS,        1,  true,  UNITS_KILOMETERS,        {QT_TRANSLATE_NOOP("TUnitAbbreviations", "km"), nullptr}},
    {UNITS_CENTIMETERS,       FAMILY_METRIC,         UNITS_METERS,           UNITS_CENTIMETERS,       1,  true,  UNITS_CENTIMETERS,       {QT_TRANSLATE_NOOP("TUnitAbbreviations", "cm"), nullptr}},
    {UNITS_MILLIMETERS,       FAMILY_METRIC,         UNITS_METERS,           UNITS_METERS,            0,  true,  UNITS_INCHES,            {QT_TRANSLATE_NOOP("TUnitAbbreviations", "mm"), nullptr}},
    {UNITS_FEET,              FAMILY_IMPERIAL,       UNITS_METERS,           UNITS_METERS,            2,  false, UNITS_FEET,              {QT_TRANSLATE_NOOP("TUnitAbbreviations", "'"), nullptr}},
    {UNITS_MILES,             FAMILY_IMPERIAL,       UNITS_METERS,           UNITS_MILES,             1,  true,  UNITS_MILES,             {QT_TRANSLATE_NOOP("TUnitAbbreviations", "miles"), nullptr}},
    {UNITS_INCHES,            FAMILY_IMPERIAL,       UNITS_METERS,           UNITS_INCHES,            2,  false, UNITS_INCHES,            {nullptr, nullptr}},
    {UNITS_HECTARES,          FAMILY_METRIC,         UNITS_HECTARES,         UNITS_HECTARES,          2,  true,  UNITS_HECTARES,          {QT_TRANSLATE_NOOP("TUnitAbbreviations", "ha"), nullptr}},
    {UNITS_ACRES,             FAMILY_IMPERIAL,       UNITS_HECTARES,         UNITS_ACRES,             2,  true,  UNITS_ACRES,             {QT_TRANSLATE_NOOP("TUnitAbbreviations", "ac"), nullptr}},
    {UNITS_METERS_PER_MIN,    FAMILY_METRIC,         UNITS_METERS_PER_MIN,   UNITS_METERS_PER_MIN,    1,  true,  UNITS_FEET_PER_MIN,      {QT_TRANSLATE_NOOP("TUnitAbbreviations", "m/min"), nullptr}},
    {UNITS_FEET_PER_MIN,      FAMILY_IMPERIAL,       UNITS_METERS_PER_MIN,   UNITS_FEET_PER_MIN,      1,  true,  UNITS_FEET_PER_MIN,      {QT_TRANSLATE_NOOP("TUnitAbbreviations", "ft/min"), nullptr}},
    {UNITS_METERS_PER_SECOND, FAMILY_METRIC,         UNITS_KPH,              UNITS_METERS_PER_SECOND, 1,  true,  UNITS_METERS_PER_SECOND, {nullptr, nullptr}},
    {UNITS_KPH,               FAMILY_METRIC,         UNITS_KPH,              UNITS_METERS_PER_SECOND, 1,  true,  UNITS_MPH,               {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kph"), nullptr}},
    {UNITS_MPH,               FAMILY_IMPERIAL,       UNITS_KPH,              UNITS_MPH,               1,  true,  UNITS_MPH,               {QT_TRANSLATE_NOOP("TUnitAbbreviations", "mph"), nullptr}},
    {UNITS_HZ_PER_KPH,        FAMILY_METRIC,         UNITS_HZ_PER_KPH,       UNITS_HZ_PER_KPH,        2,  true,  UNITS_HZ_PER_MPH,        {nullptr, nullptr}},
    {UNITS_HZ_PER_MPH,        FAMILY_IMPERIAL,       UNITS_HZ_PER_KPH,       UNITS_HZ_PER_MPH,        2,  true,  UNITS_HZ_PER_MPH,        {nullptr, nullptr}},
    {UNITS_ACRES_PER_HOUR,    FAMILY_IMPERIAL,       UNITS_HECTARES_PER_HOUR,UNITS_ACRES_PER_HOUR,    2,  true,  UNITS_ACRES_PER_HOUR,    {QT_TRANSLATE_NOOP("TUnitAbbreviations", "ac/hr"), nullptr}},
    {UNITS_HECTARES_PER_HOUR, FAMILY_METRIC,         UNITS_HECTARES_PER_HOUR,UNITS_HECTARES_PER_HOUR, 2,  true,  UNITS_HECTARES_PER_HOUR, {QT_TRANSLATE_NOOP("TUnitAbbreviations", "ha/hr"), nullptr}},
    {UNITS_LITERS,            FAMILY_METRIC,         UNITS_LITERS,           UNITS_LITERS,            1,  true,  UNITS_GALLONS,           {QT_TRANSLATE_NOOP("TUnitAbbreviations", "L"), nullptr}},
    {UNITS_GALLONS,           FAMILY_IMPERIAL_OR_US, UNITS_LITERS,           UNITS_GALLONS,           1,  true,  UNITS_GALLONS,           {QT_TRANSLATE_NOOP("TUnitAbbreviations", "gal"), nullptr}},
    {UNITS_MILLILITERS,       FAMILY_METRIC,         UNITS_LITERS,           UNITS_LITERS,            1,  true,  UNITS_FLUID_OUNCES,      {QT_TRANSLATE_NOOP("TUnitAbbreviations", "mL"), nullptr}},
    {UNITS_FLUID_OUNCES,      FAMILY_IMPERIAL_OR_US, UNITS_LITERS,           UNITS_FLUID_OUNCES,      1,  true,  UNITS_FLUID_OUNCES,      {QT_TRANSLATE_NOOP("TUnitAbbreviations", "fl.oz"), nullptr}},
    {UNITS_CUBIC_METERS,      FAMILY_METRIC,         UNITS_LITERS,           UNITS_LITERS,            2,  true,  UNITS_CUBIC_FEET,        {QT_TRANSLATE_NOOP("TUnitAbbreviations", "m³"), nullptr}},
    {UNITS_CUBIC_FEET,        FAMILY_IMPERIAL,       UNITS_LITERS,           UNITS_CUBIC_FEET,        2,  true,  UNITS_CUBIC_FEET,        {QT_TRANSLATE_NOOP("TUnitAbbreviations", "ft³"), nullptr}},
    {UNITS_TONNES,            FAMILY_METRIC,         UNITS_LITERS,           UNITS_LITERS,            2,  true,  UNITS_LB,                {QT_TRANSLATE_NOOP("TUnitAbbreviations", "t"), nullptr}},
    {UNITS_US_BUSHELS,        FAMILY_US,             UNITS_LITERS,           UNITS_LITERS,            1,  true,  UNITS_US_BUSHELS,        {QT_TRANSLATE_NOOP("TUnitAbbreviations", "US bu"), nullptr}},
    {UNITS_UK_BUSHELS,        FAMILY_IMPERIAL,       UNITS_LITERS,           UNITS_LITERS,            1,  true,  UNITS_UK_BUSHELS,        {QT_TRANSLATE_NOOP("TUnitAbbreviations", "UK bu"), nullptr}},
    {UNITS_L_PER_HA,          FAMILY_METRIC,         UNITS_L_PER_HA,         UNITS_L_PER_HA,          0,  true,  UNITS_L_PER_HA,          {QT_TRANSLATE_NOOP("TUnitAbbreviations", "L/ha"), nullptr}},
    {UNITS_L_PER_AC,          FAMILY_METRIC,         UNITS_L_PER_HA,         UNITS_L_PER_AC,          0,  true,  UNITS_L_PER_AC,          {QT_TRANSLATE_NOOP("TUnitAbbreviations", "L/ac"), nullptr}},
    {UNITS_ML_PER_HA,         FAMILY_METRIC,         UNITS_L_PER_HA,         UNITS_L_PER_HA,          0,  true,  UNITS_ML_PER_HA,         {QT_TRANSLATE_NOOP("TUnitAbbreviations", "mL/ha"), nullptr}},
    {UNITS_ML_PER_AC,         FAMILY_METRIC,         UNITS_L_PER_HA,         UNITS_ML_PER_AC,         0,  true,  UNITS_ML_PER_AC,         {QT_TRANSLATE_NOOP("TUnitAbbreviations", "mL/ac"), nullptr}},
    {UNITS_GAL_PER_HA,        FAMILY_IMPERIAL,       UNITS_L_PER_HA,         UNITS_GAL_PER_HA,        1,  true,  UNITS_GAL_PER_HA,        {QT_TRANSLATE_NOOP("TUnitAbbreviations", "gal/ha"), nullptr}},
    {UNITS_GAL_PER_AC,        FAMILY_IMPERIAL,       UNITS_L_PER_HA,         UNITS_GAL_PER_AC,        1,  true,  UNITS_GAL_PER_AC,        {QT_TRANSLATE_NOOP("TUnitAbbreviations", "gal/ac"), nullptr}},
    {UNITS_US_GAL_PER_HA,     FAMILY_US,             UNITS_L_PER_HA,         UNITS_US_GAL_PER_HA,     1,  true,  UNITS_US_GAL_PER_HA,     {QT_TRANSLATE_NOOP("TUnitAbbreviations", "gal/ha (US)"), nullptr}},
    {UNITS_US_GAL_PER_AC,     FAMILY_US,             UNITS_L_PER_HA,         UNITS_US_GAL_PER_AC,     1,  true,  UNITS_US_GAL_PER_AC,     {QT_TRANSLATE_NOOP("TUnitAbbreviations", "gal/ac (US)"), nullptr}},
    {UNITS_FLOZ_PER_AC,       FAMILY_IMPERIAL,       UNITS_L_PER_HA,         UNITS_FLOZ_PER_AC,       1,  true,  UNITS_FLOZ_PER_AC,       {QT_TRANSLATE_NOOP("TUnitAbbreviations", "fl.oz/ac"), nullptr}},
    {UNITS_FLOZ_PER_HA,       FAMILY_IMPERIAL,       UNITS_L_PER_HA,         UNITS_FLOZ_PER_HA,       1,  true,  UNITS_FLOZ_PER_HA,       {QT_TRANSLATE_NOOP("TUnitAbbreviations", "fl.oz/ha"), nullptr}},
    {UNITS_US_FLOZ_PER_AC,    FAMILY_US,             UNITS_L_PER_HA,         UNITS_US_FLOZ_PER_AC,    1,  true,  UNITS_US_FLOZ_PER_AC,    {QT_TRANSLATE_NOOP("TUnitAbbreviations", "fl.oz/ac (US)"), nullptr}},
    {UNITS_US_FLOZ_PER_HA,    FAMILY_US,             UNITS_L_PER_HA,         UNITS_US_FLOZ_PER_HA,    1,  true,  UNITS_US_FLOZ_PER_HA,    {QT_TRANSLATE_NOOP("TUnitAbbreviations", "fl.oz/ha (US)"), nullptr}},
    {UNITS_M3_PER_HA,         FAMILY_METRIC,         UNITS_L_PER_HA,         UNITS_L_PER_HA,          2,  true,  UNITS_M3_PER_HA,         {QT_TRANSLATE_NOOP("TUnitAbbreviations", "m³/ha"), nullptr}},
    {UNITS_M3_PER_AC,         FAMILY_METRIC,         UNITS_L_PER_HA,         UNITS_M3_PER_AC,         2,  true,  UNITS_M3_PER_AC,         {QT_TRANSLATE_NOOP("TUnitAbbreviations", "m³/ac"), nullptr}},
    {UNITS_FT3_PER_HA,        FAMILY_IMPERIAL,       UNITS_L_PER_HA,         UNITS_FT3_PER_HA,        2,  true,  UNITS_FT3_PER_HA,        {QT_TRANSLATE_NOOP("TUnitAbbreviations", "ft³/ha"), nullptr}},
    {UNITS_FT3_PER_AC,        FAMILY_IMPERIAL,       UNITS_L_PER_HA,         UNITS_FT3_PER_AC,        2,  true,  UNITS_FT3_PER_AC,        {QT_TRANSLATE_NOOP("TUnitAbbreviations", "ft³/ac"), nullptr}},
    {UNITS_T_PER_HA,          FAMILY_METRIC,         UNITS_L_PER_HA,         UNITS_L_PER_HA,          2,  true,  UNITS_T_PER_HA,          {QT_TRANSLATE_NOOP("TUnitAbbreviations", "t/ha"), nullptr}},
    {UNITS_T_PER_AC,          FAMILY_METRIC,         UNITS_L_PER_HA,         UNITS_T_PER_AC,          2,  true,  UNITS_T_PER_AC,          {QT_TRANSLATE_NOOP("TUnitAbbreviations", "t/ac"), nullptr}},
    {UNITS_L_PER_100M,        FAMILY_METRIC,         UNITS_L_PER_HA,         UNITS_L_PER_100M,        2,  true,  UNITS_L_PER_100M,        {QT_TRANSLATE_NOOP("TUnitAbbreviations", "L/100m"), nullptr}},
    {UNITS_GAL_PER_100YD,     FAMILY_IMPERIAL,       UNITS_L_PER_HA,         UNITS_GAL_PER_100YD,     2,  true,  UNITS_GAL_PER_100YD,     {QT_TRANSLATE_NOOP("TUnitAbbreviations", "gal/100yd"), nullptr}},
    {UNITS_US_GAL_PER_100YD,  FAMILY_US,             UNITS_L_PER_HA,         UNITS_US_GAL_PER_100YD,  2,  true,  UNITS_US_GAL_PER_100YD,  {QT_TRANSLATE_NOOP("TUnitAbbreviations", "gal/100yd (US)"), nullptr}},
    {UNITS_L_PER_MIN,         FAMILY_METRIC,         UNITS_L_PER_MIN,        UNITS_L_PER_MIN,         2,  true,  UNITS_GAL_PER_MIN,       {QT_TRANSLATE_NOOP("TUnitAbbreviations", "L/min"), nullptr}},
    {UNITS_GAL_PER_MIN,       FAMILY_IMPERIAL_OR_US, UNITS_L_PER_MIN,        UNITS_GAL_PER_MIN,       2,  true,  UNITS_GAL_PER_MIN,       {QT_TRANSLATE_NOOP("TUnitAbbreviations", "gal/min"), nullptr}},
    {UNITS_ML_PER_MIN,        FAMILY_METRIC,         UNITS_L_PER_MIN,        UNITS_L_PER_MIN,         2,  true,  UNITS_FLOZ_PER_MIN,      {QT_TRANSLATE_NOOP("TUnitAbbreviations", "mL/min"), nullptr}},
    {UNITS_FLOZ_PER_MIN,      FAMILY_IMPERIAL_OR_US, UNITS_L_PER_MIN,        UNITS_FLOZ_PER_MIN,      2,  true,  UNITS_FLOZ_PER_MIN,      {QT_TRANSLATE_NOOP("TUnitAbbreviations", "fl.oz/min"), nullptr}},
    {UNITS_M3_PER_MIN,        FAMILY_METRIC,         UNITS_L_PER_MIN,        UNITS_L_PER_MIN,         2,  true,  UNITS_FT3_PER_MIN,       {QT_TRANSLATE_NOOP("TUnitAbbreviations", "m³/min"), nullptr}},
    {UNITS_FT3_PER_MIN,       FAMILY_IMPERIAL,       UNITS_L_PER_MIN,        UNITS_FT3_PER_MIN,       2,  true,  UNITS_FT3_PER_MIN,       {QT_TRANSLATE_NOOP("TUnitAbbreviations", "ft³/min"), nullptr}},
    {UNITS_T_PER_MIN,         FAMILY_METRIC,         UNITS_L_PER_MIN,        UNITS_L_PER_MIN,         2,  true,  UNITS_LB_PER_MIN,        {QT_TRANSLATE_NOOP("TUnitAbbreviations", "t/min"), nullptr}},
    {UNITS_L_PER_REV,         FAMILY_METRIC,         UNITS_L_PER_REV,        UNITS_L_PER_REV,         1,  true,  UNITS_GAL_PER_REV,       {QT_TRANSLATE_NOOP("TUnitAbbreviations", "L/rev"), nullptr}},
    {UNITS_GAL_PER_REV,       FAMILY_IMPERIAL_OR_US, UNITS_L_PER_REV,        UNITS_GAL_PER_REV,       1,  true,  UNITS_GAL_PER_REV,       {QT_TRANSLATE_NOOP("TUnitAbbreviations", "gal/rev"), nullptr}},
    {UNITS_KPA,               FAMILY_METRIC,         UNITS_KPA,              UNITS_KPA,               1,  true,  UNITS_KPA,               {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kPa"), nullptr}},
    {UNITS_PSI,               FAMILY_IMPERIAL,       UNITS_KPA,              UNITS_PSI,               1,  true,  UNITS_PSI,               {QT_TRANSLATE_NOOP("TUnitAbbreviations", "psi"), nullptr}},
    {UNITS_BAR,               FAMILY_METRIC,         UNITS_KPA,              UNITS_BAR,               2,  true,  UNITS_BAR,               {QT_TRANSLATE_NOOP("TUnitAbbreviations", "bar"), nullptr}},
    {UNITS_M_PER_PULSE,       FAMILY_METRIC,         UNITS_M_PER_PULSE,      UNITS_M_PER_PULSE,       3,  true,  UNITS_FT_PER_PULSE,      {QT_TRANSLATE_NOOP("TUnitAbbreviations", "m/pulse"), nullptr}},
    {UNITS_FT_PER_PULSE,      FAMILY_IMPERIAL,       UNITS_M_PER_PULSE,      UNITS_FT_PER_PULSE,      3,  true,  UNITS_FT_PER_PULSE,      {QT_TRANSLATE_NOOP("TUnitAbbreviations", "ft/pulse"), nullptr}},
    {UNITS_PULSES_PER_L,      FAMILY_METRIC,         UNITS_PULSES_PER_L,     UNITS_PULSES_PER_L,      2,  true,  UNITS_PULSES_PER_GAL,    {QT_TRANSLATE_NOOP("TUnitAbbreviations", "pulses/L"), nullptr}},
    {UNITS_PULSES_PER_GAL,    FAMILY_IMPERIAL_OR_US, UNITS_PULSES_PER_L,     UNITS_PULSES_PER_GAL,    2,  true,  UNITS_PULSES_PER_GAL,    {QT_TRANSLATE_NOOP("TUnitAbbreviations", "pulses/gal"), nullptr}},
    {UNITS_PULSES_PER_ML,     FAMILY_METRIC,         UNITS_PULSES_PER_L,     UNITS_PULSES_PER_L,      2,  true,  UNITS_PULSES_PER_FLOZ,   {QT_TRANSLATE_NOOP("TUnitAbbreviations", "pulses/mL"), nullptr}},
    {UNITS_PULSES_PER_FLOZ,   FAMILY_IMPERIAL_OR_US, UNITS_PULSES_PER_L,     UNITS_PULSES_PER_FLOZ,   2,  true,  UNITS_PULSES_PER_FLOZ,   {QT_TRANSLATE_NOOP("TUnitAbbreviations", "pulses/fl.oz"), nullptr}},
    {UNITS_PULSES_PER_M3,     FAMILY_METRIC,         UNITS_PULSES_PER_L,     UNITS_PULSES_PER_L,      2,  true,  UNITS_PULSES_PER_FT3,    {QT_TRANSLATE_NOOP("TUnitAbbreviations", "pulses/m³"), nullptr}},
    {UNITS_PULSES_PER_FT3,    FAMILY_IMPERIAL,       UNITS_PULSES_PER_L,     UNITS_PULSES_PER_FT3,    2,  true,  UNITS_PULSES_PER_FT3,    {QT_TRANSLATE_NOOP("TUnitAbbreviations", "pulses/ft³"), nullptr}},
    {UNITS_PULSES_PER_T,      FAMILY_METRIC,         UNITS_PULSES_PER_L,     UNITS_PULSES_PER_L,      2,  true,  UNITS_PULSES_PER_LB,     {QT_TRANSLATE_NOOP("TUnitAbbreviations", "pulses/t"), nullptr}},
    {UNITS_PULSES_PER_LB,     FAMILY_IMPERIAL,       UNITS_PULSES_PER_L,     UNITS_PULSES_PER_LB,     2,  true,  UNITS_PULSES_PER_LB,     {QT_TRANSLATE_NOOP("TUnitAbbreviations", "pulses/lb"), nullptr}},
    {UNITS_KG,                FAMILY_METRIC,         UNITS_KG,               UNITS_KG,                0,  true,  UNITS_LB,                {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kg"), nullptr}},
    {UNITS_LB,                FAMILY_IMPERIAL,       UNITS_KG,               UNITS_LB,                0,  true,  UNITS_LB,                {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lb"), nullptr}},
    {UNITS_KG_N,              FAMILY_METRIC,         UNITS_KG,               UNITS_KG_N,              0,  true,  UNITS_LB_N,              {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kgN"), nullptr}},
    {UNITS_LB_N,              FAMILY_IMPERIAL,       UNITS_KG,               UNITS_LB_N,              0,  true,  UNITS_LB_N,              {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lbN"), nullptr}},
    {UNITS_KG_PER_HA,         FAMILY_METRIC,         UNITS_KG_PER_HA,        UNITS_KG_PER_HA,         2,  true,  UNITS_KG_PER_HA,         {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kg/ha"), nullptr}},
    {UNITS_KG_PER_AC,         FAMILY_METRIC,         UNITS_KG_PER_HA,        UNITS_KG_PER_AC,         2,  true,  UNITS_KG_PER_AC,         {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kg/ac"), nullptr}},
    {UNITS_LB_PER_AC,         FAMILY_IMPERIAL,       UNITS_KG_PER_HA,        UNITS_LB_PER_AC,         2,  true,  UNITS_LB_PER_AC,         {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lb/ac"), nullptr}},
    {UNITS_LB_PER_HA,         FAMILY_IMPERIAL,       UNITS_KG_PER_HA,        UNITS_LB_PER_HA,         2,  true,  UNITS_LB_PER_HA,         {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lb/ha"), nullptr}},
    {UNITS_G_PER_HA,          FAMILY_METRIC,         UNITS_KG_PER_HA,        UNITS_G_PER_HA,          0,  true,  UNITS_G_PER_HA,          {QT_TRANSLATE_NOOP("TUnitAbbreviations", "g/ha"), nullptr}},
    {UNITS_KG_N_PER_HA,       FAMILY_METRIC,         UNITS_KG_PER_HA,        UNITS_KG_N_PER_HA,       1,  true,  UNITS_KG_N_PER_HA,       {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kgN/ha"), nullptr}},
    {UNITS_KG_N_PER_AC,       FAMILY_METRIC,         UNITS_KG_PER_HA,        UNITS_KG_N_PER_AC,       1,  true,  UNITS_KG_N_PER_AC,       {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kgN/ac"), nullptr}},
    {UNITS_LB_N_PER_AC,       FAMILY_IMPERIAL,       UNITS_KG_PER_HA,        UNITS_LB_N_PER_AC,       1,  true,  UNITS_LB_N_PER_AC,       {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lbN/ac"), nullptr}},
    {UNITS_LB_N_PER_HA,       FAMILY_IMPERIAL,       UNITS_KG_PER_HA,        UNITS_LB_N_PER_HA,       1,  true,  UNITS_LB_N_PER_HA,       {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lbN/ha"), nullptr}},
    {UNITS_KG_PER_MIN,        FAMILY_METRIC,         UNITS_KG_PER_MIN,       UNITS_KG_PER_MIN,        1,  true,  UNITS_LB_PER_MIN,        {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kg/min"), nullptr}},
    {UNITS_LB_PER_MIN,        FAMILY_IMPERIAL,       UNITS_KG_PER_MIN,       UNITS_LB_PER_MIN,        1,  true,  UNITS_LB_PER_MIN,        {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lb/min"), nullptr}},
    {UNITS_KG_N_PER_MIN,      FAMILY_METRIC,         UNITS_KG_PER_MIN,       UNITS_KG_N_PER_MIN,      1,  true,  UNITS_LB_N_PER_MIN,      {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kgN/min"), nullptr}},
    {UNITS_LB_N_PER_MIN,      FAMILY_IMPERIAL,       UNITS_KG_PER_MIN,       UNITS_LB_N_PER_MIN,      1,  true,  UNITS_LB_N_PER_MIN,      {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lbN/min"), nullptr}},
    {UNITS_KG_PER_REV,        FAMILY_METRIC,         UNITS_KG_PER_REV,       UNITS_KG_PER_REV,        2,  true,  UNITS_LB_PER_REV,        {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kg/rev"), nullptr}},
    {UNITS_LB_PER_REV,        FAMILY_IMPERIAL,       UNITS_KG_PER_REV,       UNITS_LB_PER_REV,        2,  true,  UNITS_LB_PER_REV,        {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lb/rev"), nullptr}},
    {UNITS_KG_PER_L,          FAMILY_METRIC,         UNITS_KG_PER_L,         UNITS_KG_PER_L,          1,  true,  UNITS_LB_PER_GAL,        {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kg/L"), nullptr}},
    {UNITS_LB_PER_GAL,        FAMILY_IMPERIAL_OR_US, UNITS_KG_PER_L,         UNITS_LB_PER_GAL,        1,  true,  UNITS_LB_PER_GAL,        {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lb/gal"), nullptr}},
    {UNITS_KG_PER_M3,         FAMILY_METRIC,         UNITS_KG_PER_L,         UNITS_KG_PER_L,          1,  true,  UNITS_LB_PER_FT3,        {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kg/m³"), nullptr}},
    {UNITS_LB_PER_FT3,        FAMILY_IMPERIAL,       UNITS_KG_PER_L,         UNITS_LB_PER_FT3,        1,  true,  UNITS_LB_PER_FT3,        {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lb/ft³"), nullptr}},
    {UNITS_KG_PER_US_BU,      FAMILY_METRIC,         UNITS_KG_PER_L,         UNITS_KG_PER_L,          1,  true,  UNITS_LB_PER_US_BU,      {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kg/US bu"), nullptr}},
    {UNITS_KG_PER_UK_BU,      FAMILY_METRIC,         UNITS_KG_PER_L,         UNITS_KG_PER_L,          1,  true,  UNITS_LB_PER_UK_BU,      {QT_TRANSLATE_NOOP("TUnitAbbreviations", "kg/UK bu"), nullptr}},
    {UNITS_LB_PER_US_BU,      FAMILY_US,             UNITS_KG_PER_L,         UNITS_LB_PER_US_BU,      1,  true,  UNITS_LB_PER_US_BU,      {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lb/US bu"), nullptr}},
    {UNITS_LB_PER_UK_BU,      FAMILY_IMPERIAL,       UNITS_KG_PER_L,         UNITS_LB_PER_UK_BU,      1,  true,  UNITS_LB_PER_UK_BU,      {QT_TRANSLATE_NOOP("TUnitAbbreviations", "lb/UK bu"), nullptr}},
    {UNITS_PULSES_PER_KG_N,   FAMILY_METRIC,         UNITS_PULSES_PER_KG_N,  UNITS_PULSES_PER_KG_N,   2,  true,  UNITS_PULSES_PER_LB_N,   {QT_TRANSLATE_NOOP("TUnitAbbreviations", "pulses/kgN"), nullptr}},
    {UNITS_PULSES_PER_LB_N,   FAMILY_IMPERIAL,       UNITS_PULSES_PER_KG_N,  UNITS_PULSES_PER_LB_N,   2,  true,  UNITS_PULSES_PER_LB_N,   {QT_TRANSLATE_NOOP("TUnitAbbreviations", "pulses/lbN"), nullptr}},
    {UNITS_KSEEDS_PER_HA,     FAMILY_METRIC,         UNITS_KSEEDS_PER_HA,    UNITS_KSEEDS_PER_HA,     0,  true,  UNITS_KSEEDS_PER_HA,     {QT_TRANSLATE_NOOP("TUnitAbbreviations", "KS/ha"), nullptr}},
    {UNITS_KSEEDS_PER_AC,     FAMILY_IMPERIAL,       UNITS_KSEEDS_PER_HA,    UNITS_KSEEDS_PER_AC,     0,  true,  UNITS_KSEEDS_PER_AC,     {QT_TRANSLATE_NOOP("TUnitAbbreviations", "KS/ac"), nullptr}},
    {UNITS_SECONDS,           FAMILY_NEUTRAL,        UNITS_SECONDS,          UNITS_SECONDS,           0,  true,  UNITS_SECONDS,           {QT_TRANSLATE_NOOP("TUnitAbbreviations", "s"), nullptr}},
    {UNITS_MILLISECONDS,      FAMILY_NEUTRAL,        UNITS_MILLISECONDS,     UNITS_MILLISECONDS,      0,  true,  UNITS_MILLISECONDS,      {QT_TRANSLATE_NOOP("TUnitAbbreviations", "ms"), nullptr}},
    {UNITS_MINUTES,           FAMILY_NEUTRAL,        UNITS_MINUTES,          UNITS_MINUTES,           0,  true,  UNITS_MINUTES,           {QT_TRANSLATE_NOOP("TUnitAbbreviations", "min"), nullptr}},
    {UNITS_HOURS,             FAMILY_NEUTRAL,        UNITS_HOURS,            UNITS_HOURS,             0,  true,  UNITS_HOURS,             {QT_TRANSLATE_NOOP("TUnitAbbreviations", "hrs"), nullptr}},
    {UNITS_HERTZ,             FAMILY_NEUTRAL,        UNITS_HERTZ,            UNITS_HERTZ,             0,  true,  UNITS_HERTZ,             {QT_TRANSLATE_NOOP("TUnitAbbreviations", "Hz"), nullptr}},
    {UNITS_CELSIUS,           FAMILY_METRIC,         UNITS_CELSIUS,          UNITS_CELSIUS,           0,  false, UNITS_FAHRENHEIT,        {nullptr, nullptr}},
    {UNITS_FAHRENHEIT,        FAMILY_IMPERIAL,       UNITS_FAHRENHEIT,       UNITS_FAHRENHEIT,        0,  false, UNITS_FAHRENHEIT,        {nullptr, nullptr}},
    {UNITS_RPM,               FAMILY_NEUTRAL,        UNITS_RPM,              UNITS_RPM,               0,  true,  UNITS_RPM,               {QT_TRANSLATE_NOOP("TUnitAbbreviations", "rpm"), nullptr}},
    {UNITS_AMPERES,           FAMILY_NEUTRAL,        UNITS_AMPERES,          UNITS_AMPERES,           0,  true,  UNITS_AMPERES,           QT_TRANSLATE_NOOP3("TUnitAbbreviations", "A", "Ampere Abbreviation")},
    {UNITS_WATTS,             FAMILY_NEUTRAL,        UNITS_WATTS,            UNITS_WATTS,             -1, true,  UNITS_WATTS,             QT_TRANSLATE_NOOP3("TUnitAbbreviations", "W", "Watt Abbreviation")},
    {UNITS_MILLIWATTS,        FAMILY_NEUTRAL,        UNITS_MILLIWATTS,       UNITS_MILLIWATTS,        -1, true,  UNITS_MILLIWATTS,        QT_TRANSLATE_NOOP3("TUnitAbbreviations", "mW", "milliWatt Abbreviation")},
    {UNITS_LATITUDE,          FAMILY_NEUTRAL,        UNITS_LATITUDE,         UNITS_LATITUDE,          -1, true,  UNITS_LATITUDE,          {nullptr, nullptr}},
    {UNITS_LONGITUDE,         FAMILY_NEUTRAL,        UNITS_LONGITUDE,        UNITS_LONGITUDE,         -1, true,  UNITS_LONGITUDE,         {nullptr, nullptr}},
};
// clang-format on

constexpr int UnitCount = static_cast<int>(sizeof(UnitTable) / sizeof(UnitTable[0]));

/// The unit's row; null for a number that is no unit.
constexpr const tagUnit* FindUnit(int type) { return type >= 0 && type < UnitCount ? &UnitTable[type] : nullptr; }

namespace UnitTableCheck {

constexpr bool IsInOrder()
{
    for (int i = 0; i < UnitCount; ++i) {
        if (UnitTable[i].type != i)
            return false;
    }
    return true;
}

static_assert(IsInOrder(), "rows are indexed by the number of the unit");

} // namespace UnitTableCheck
