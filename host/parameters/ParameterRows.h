#pragma once

#include "parameters/ETimeSource.h"
#include "parameters/HostParameters.h"
#include "platform/EAreaUnit.h"
#include "platform/EDecimalPoint.h"
#include "platform/EDryDensityUnit.h"
#include "platform/EDryVolumeUnit.h"
#include "platform/ELiquidUnit.h"
#include "platform/EParamID.h"
#include "platform/EPressureUnit.h"
#include "platform/EShortDistanceUnit.h"
#include "platform/ESprayerRateBasis.h"
#include "region/ELanguage.h"
#include "sun/EDaySwitching.h"

#include <QRgb>
#include <QtGlobal>

#include <cstddef>
#include <limits>

/// The rows of TParameterCatalogue, by kind. They are the only place that describes the parameters. What a display
/// shows of them is marked for translation; the host itself never translates.
namespace ParameterRows {

/// The part that every row has.
struct tagAbout
{
    EParamID id;
    const char* name; ///< a group, a full stop, and a name within the group
    const char* meaning;
    const char* readers; ///< what the parameter has an effect on
};

struct tagSwitch
{
    tagAbout about;
    bool first; ///< the value of a first start
};

struct tagChoice
{
    int value;
    const char* name;
};

struct tagSelection
{
    tagAbout about;
    const tagChoice* choices;
    std::size_t count;
    int first;
};

struct tagNumber
{
    tagAbout about;
    int least;
    int greatest;
    int first;
    const char* unit;
};

/// An item or a folder whose name the operator gives. The namespace ItemNames says which names are accepted.
struct tagItem
{
    tagAbout about;
    bool hasExtension; ///< true for the name of an item's file, false for that of a folder
    bool isFirstEmpty; ///< false: absent at first, and TSettings::Restore() sets the built-in name
};

struct tagDrive
{
    tagAbout about;
    const char* accepts;
};

/// A text that TParameterCatalogue checks in a way of its own.
struct tagText
{
    tagAbout about;
    const char* accepts;
    const char* first; ///< null: absent at first
};

/// Some of a set of names, in the operator's order.
struct tagNameList
{
    tagAbout about;
    const char* const* names;
    std::size_t count;
    const char* first;
};

/// A time in UTC, absent at first.
struct tagTime
{
    tagAbout about;
};

/// The two colours of an element of the map or of a control.
struct tagColor
{
    EParamID day;
    EParamID night;
    const char* name;
    const char* meaning;
    QRgb firstByDay;
    QRgb firstByNight;
};

template <std::size_t Count>
constexpr tagSelection Selection(const tagAbout& about, const tagChoice (&choices)[Count], int first)
{
    return tagSelection{about, choices, Count, first};
}

template <std::size_t Count>
constexpr tagNameList NameList(const tagAbout& about, const char* const (&names)[Count], const char* first)
{
    return tagNameList{about, names, Count, first};
}

inline constexpr tagSwitch Switches[] = {
    {{PARAM_UTC_OFFSET_SET_BY_USER, "clock.offset-by-operator",
      QT_TRANSLATE_NOOP("Parameters",
                        "the operator has chosen the offset from UTC; GPS time keeps it instead of computing it"),
      "setting the clock from GPS"},
     false},
    {{PARAM_METRIC, "units.metric", QT_TRANSLATE_NOOP("Parameters", "metric units; otherwise US or English units"),
      "every conversion and text of a quantity"},
     true},
    {{PARAM_US_MEASURES, "units.us",
      QT_TRANSLATE_NOOP("Parameters", "US measures when units are not metric; otherwise English measures"),
      "gallons, fluid ounces and bushels"},
     false},
    {{PARAM_DEGREES_MINUTES_SECONDS, "units.degrees-minutes-seconds",
      QT_TRANSLATE_NOOP("Parameters", "positions in degrees, minutes and seconds; otherwise in decimal degrees"),
      "texts of latitude and longitude"},
     false},
    {{PARAM_RATE_PER_TRAVEL, "units.rate-per-travel",
      "liquid rates per 100 m or 100 yd of travel; needs rates.basis travel", "liquid application rates"},
     false},
    {{PARAM_24_HOUR_CLOCK, "region.24-hour-clock",
      QT_TRANSLATE_NOOP("Parameters", "24-hour clock; otherwise 12 hours with am and pm"), "texts of times"},
     true},
    {{PARAM_MONTH_FIRST, "region.month-first", QT_TRANSLATE_NOOP("Parameters", "dates with the month before the day"),
      "texts of dates"},
     false},
    {{PARAM_DAY_MODE, "display.day", QT_TRANSLATE_NOOP("Parameters", "colours for day; otherwise for night"),
      "every colour"},
     true},
    {{PARAM_HEADING_UP, "display.heading-up",
      QT_TRANSLATE_NOOP("Parameters", "the map turns with the vehicle; otherwise north is up"), "the map"},
     true},
};

inline constexpr tagChoice RateBases[] = {{SPRAYER_RATE_BASIS_TRAVEL, "travel"}, {SPRAYER_RATE_BASIS_AREA, "area"}};
inline constexpr tagChoice PressureUnits[] = {
    {PRESSURE_UNIT_KPA, "kPa"}, {PRESSURE_UNIT_PSI, "psi"}, {PRESSURE_UNIT_BAR, "bar"}};
inline constexpr tagChoice AreaUnits[] = {{AREA_UNIT_HECTARE, "hectare"}, {AREA_UNIT_ACRE, "acre"}};
inline constexpr tagChoice ShortDistanceUnits[] = {
    {SHORT_DISTANCE_UNIT_METRIC, "metric"}, {SHORT_DISTANCE_UNIT_INCH, "inch"}, {SHORT_DISTANCE_UNIT_FOOT, "foot"}};
inline constexpr tagChoice DryVolumeUnits[] = {{DRY_VOLUME_UNIT_LITRE, "litre"},
                                               {DRY_VOLUME_UNIT_KILOGRAM, "kilogram"},
                                               {DRY_VOLUME_UNIT_CUBIC_METRE, "cubic-metre"},
                                               {DRY_VOLUME_UNIT_US_BUSHEL, "us-bushel"},
                                               {DRY_VOLUME_UNIT_UK_BUSHEL, "uk-bushel"}};
inline constexpr tagChoice DryDensityUnits[] = {{DRY_DENSITY_UNIT_KG_PER_LITRE, "kg/L"},
                                                {DRY_DENSITY_UNIT_KG_PER_CUBIC_METRE, "kg/m3"},
                                                {DRY_DENSITY_UNIT_KG_PER_US_BUSHEL, "kg/us-bushel"},
                                                {DRY_DENSITY_UNIT_KG_PER_UK_BUSHEL, "kg/uk-bushel"}};
inline constexpr tagChoice LiquidUnits[] = {
    {LIQUID_UNIT_LITRE, "litre"}, {LIQUID_UNIT_CUBIC_METRE, "cubic-metre"}, {LIQUID_UNIT_TONNE, "tonne"}};
inline constexpr tagChoice DecimalPoints[] = {{DECIMAL_POINT_FULL_STOP, "point"}, {DECIMAL_POINT_COMMA, "comma"}};
inline constexpr tagChoice Languages[] = {
    {LANGUAGE_ENGLISH, "en"},    {LANGUAGE_GERMAN, "de"},     {LANGUAGE_FRENCH, "fr"},    {LANGUAGE_SPANISH, "es"},
    {LANGUAGE_ITALIAN, "it"},    {LANGUAGE_PORTUGUESE, "pt"}, {LANGUAGE_RUSSIAN, "ru"},   {LANGUAGE_DUTCH, "nl"},
    {LANGUAGE_FINNISH, "fi"},    {LANGUAGE_CZECH, "cs"},      {LANGUAGE_DANISH, "da"},    {LANGUAGE_NORWEGIAN, "nb"},
    {LANGUAGE_POLISH, "pl"},     {LANGUAGE_SWEDISH, "sv"},    {LANGUAGE_JAPANESE, "ja"},  {LANGUAGE_LATVIAN, "lv"},
    {LANGUAGE_LITHUANIAN, "lt"}, {LANGUAGE_GREEK, "el"},      {LANGUAGE_BULGARIAN, "bg"}, {LANGUAGE_ROMANIAN, "ro"},
    {LANGUAGE_HUNGARIAN, "hu"},  {LANGUAGE_CROATIAN, "hr"},   {LANGUAGE_TURKISH, "tr"},   {LANGUAGE_CHINESE, "zh"},
    {LANGUAGE_ESTONIAN, "et"},   {LANGUAGE_SERBIAN, "sr"},    {LANGUAGE_SLOVAK, "sk"},    {LANGUAGE_SLOVENIAN, "sl"},
};

inline constexpr tagChoice DaySwitchings[] = {
    {DAY_SWITCHING_BY_HAND, "by-hand"}, {DAY_SWITCHING_SUNSET, "sunset"}, {DAY_SWITCHING_TWILIGHT, "twilight"}};
inline constexpr tagChoice TimeSources[] = {
    {TIME_SOURCE_NONE, "none"}, {TIME_SOURCE_OPERATOR, "operator"}, {TIME_SOURCE_RECEIVER, "receiver"}};

inline constexpr tagSelection Selections[] = {
    Selection({PARAM_SPRAYER_RATE_BASIS, "rates.basis",
               "what the sprayer's rates are related to; with travel, units.rate-per-travel decides",
               "liquid application rates"},
              RateBases, SPRAYER_RATE_BASIS_AREA),
    Selection({PARAM_PRESSURE_UNIT, "units.pressure", QT_TRANSLATE_NOOP("Parameters", "unit of pressures"),
               "texts and conversions of pressures"},
              PressureUnits, PRESSURE_UNIT_KPA),
    Selection({PARAM_AREA_UNIT, "units.area", QT_TRANSLATE_NOOP("Parameters", "unit of areas, and of rates per area"),
               "texts and conversions of areas, productivity and rates per area"},
              AreaUnits, AREA_UNIT_HECTARE),
    Selection({PARAM_SHORT_DISTANCE_UNIT, "units.short-distance",
               QT_TRANSLATE_NOOP("Parameters", "unit of short distances: widths, offsets"),
               "texts and conversions of short distances"},
              ShortDistanceUnits, SHORT_DISTANCE_UNIT_METRIC),
    Selection({PARAM_DRY_VOLUME_UNIT, "units.dry-volume", QT_TRANSLATE_NOOP("Parameters", "unit of granular volumes"),
               "granular products"},
              DryVolumeUnits, DRY_VOLUME_UNIT_LITRE),
    Selection({PARAM_DRY_DENSITY_UNIT, "units.dry-density",
               QT_TRANSLATE_NOOP("Parameters", "unit of granular densities"), "granular products"},
              DryDensityUnits, DRY_DENSITY_UNIT_KG_PER_LITRE),
    Selection({PARAM_LIQUID_UNIT, "units.liquid",
               QT_TRANSLATE_NOOP("Parameters", "unit of liquid volumes, flows and rates"), "liquid products"},
              LiquidUnits, LIQUID_UNIT_LITRE),
    Selection({PARAM_LANGUAGE, "region.language",
               QT_TRANSLATE_NOOP("Parameters", "language of the display's texts; a change needs a restart"),
               "texts, and the suffix of language files"},
              Languages, LANGUAGE_ENGLISH),
    Selection({PARAM_DECIMAL_POINT, "region.decimal-point",
               QT_TRANSLATE_NOOP("Parameters", "decimal point or comma; a change needs a restart"),
               "every number shown or typed"},
              DecimalPoints, DECIMAL_POINT_FULL_STOP),
    Selection(
        {PARAM_DAY_SWITCHING, "display.day-switching",
         QT_TRANSLATE_NOOP(
             "Parameters",
             "when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 "
             "degrees below the horizon"),
         "display.day"},
        DaySwitchings, DAY_SWITCHING_SUNSET),
    Selection({PARAM_TIME_SOURCE, "clock.source", QT_TRANSLATE_NOOP("Parameters", "what set the display's clock"),
               "what the clock tells of itself"},
              TimeSources, TIME_SOURCE_NONE),
};

inline constexpr int AnyLeast = std::numeric_limits<int>::min();
inline constexpr int AnyGreatest = std::numeric_limits<int>::max();

inline constexpr tagNumber Numbers[] = {
    {{PARAM_UTC_OFFSET_HOURS, "clock.offset-hours", QT_TRANSLATE_NOOP("Parameters", "local time less UTC, whole hours"),
      "time from GPS"},
     -23,
     23,
     0,
     QT_TRANSLATE_NOOP("ParameterTexts", "h")},
    {{PARAM_UTC_OFFSET_MINUTES, "clock.offset-minutes",
      QT_TRANSLATE_NOOP("Parameters", "local time less UTC, minutes beyond the hours, with the sign of the hours"),
      "time from GPS"},
     -59,
     59,
     0,
     QT_TRANSLATE_NOOP("ParameterTexts", "min")},
    {{PARAM_LIGHTBAR_NIGHT_LEVEL, "display.night-lightbar",
      QT_TRANSLATE_NOOP("Parameters", "brightness of the lightbar at night"), "the lightbar"},
     0,
     100,
     30,
     "%"},
    {{PARAM_BACKLIGHT_NIGHT_LEVEL, "display.night-backlight",
      QT_TRANSLATE_NOOP("Parameters", "brightness of the screen at night"), "the screen"},
     0,
     100,
     20,
     "%"},
    {{PARAM_BUTTON_LED_NIGHT_LEVEL, "display.night-buttons",
      QT_TRANSLATE_NOOP("Parameters", "brightness of the button lights at night"), "the buttons"},
     0,
     100,
     10,
     "%"},
    {{PARAM_BACKGROUND_NUMBER_DAY, "colors.day.background-number", "number of the background picture by day",
      "the background"},
     0,
     AnyGreatest,
     1,
     ""},
    {{PARAM_BACKGROUND_NUMBER_NIGHT, "colors.night.background-number", "number of the background picture by night",
      "the background"},
     0,
     AnyGreatest,
     2,
     ""},
    {{PARAM_IMPLEMENT_FOLDER_CHOICE, "system.implement-folder",
      QT_TRANSLATE_NOOP("Parameters",
                        "4: implements are kept in the folder of their vehicle; other numbers: in their own folder"),
      "paths of implements"},
     AnyLeast,
     AnyGreatest,
     0,
     ""},
    {{PARAM_NMEA_LOG_FILE_NUMBER, "log.nmea-number",
      QT_TRANSLATE_NOOP("Parameters", "number of the next file of the NMEA log"), "the NMEA log"},
     1,
     99999,
     1,
     ""},
    {{PARAM_USER_LOG_FILE_NUMBER, "log.user-number",
      QT_TRANSLATE_NOOP("Parameters", "number of the next file of the user log"), "the user log"},
     1,
     99999,
     1,
     ""},
};

/// Its value of a first start is the machine's offset from UTC.
inline constexpr tagNumber ClockOffset = {{PARAM_CLOCK_OFFSET, "clock.offset",
                                           QT_TRANSLATE_NOOP("Parameters", "the display's clock less UTC"),
                                           "the clock at start-up"},
                                          AnyLeast,
                                          AnyGreatest,
                                          0,
                                          QT_TRANSLATE_NOOP("ParameterTexts", "s")};

inline constexpr tagDrive Drives[] = {
    {{PARAM_INTERNAL_DRIVE, "system.internal-drive",
      QT_TRANSLATE_NOOP("Parameters", "folder of the internal drive; by default in the data folder"),
      "every path on the terminal"},
     QT_TRANSLATE_NOOP("ParameterTexts", "an absolute path that ends in \"/\" and is not \"/\"")},
    {{PARAM_EXTERNAL_DRIVE, "system.external-drive",
      QT_TRANSLATE_NOOP("Parameters", "mount point of the removable drive; by default in the data folder"),
      "every path on the stick, exports"},
     QT_TRANSLATE_NOOP("ParameterTexts", "an absolute path")},
};

/// In place of an address: the terminal's own simulated field.
inline constexpr const char* SimulatorAddress = "simulator";

inline constexpr tagText Texts[] = {
    {{PARAM_TERMINAL_IDENTITY, "terminal.identity",
      QT_TRANSLATE_NOOP("Parameters", "the identity of the terminal, which its profiles carry"),
      "whether a profile counts as one of this terminal"},
     QT_TRANSLATE_NOOP("ParameterTexts", "a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8"),
     nullptr},
    {{PARAM_RECEIVER_ADDRESS, "receiver.address",
      QT_TRANSLATE_NOOP("Parameters", "where the sentences of the receiver come from"),
      "position, speed, and the time of the receiver"},
     QT_TRANSLATE_NOOP("ParameterTexts", "simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path"),
     SimulatorAddress},
};

/// The figures that can stand beside the map.
inline constexpr const char* Tiles[] = {"rate",     "speed",       "area",     "left",     "productivity", "flow",
                                        "pressure", "temperature", "distance", "position", "time"};

inline constexpr tagNameList NameLists[] = {
    NameList({PARAM_TILES, "display.tiles",
              QT_TRANSLATE_NOOP("Parameters", "the figures beside the map, in this order"), "the work page"},
             Tiles, "rate,speed,area,productivity,flow,pressure,left"),
};

inline constexpr tagTime Times[] = {
    {{PARAM_TIME_SOURCE_SINCE, "clock.source-since", "since when clock.source has set the clock",
      "what the clock tells of itself"}},
    {{PARAM_NEWEST_TIME, "clock.newest-time",
      QT_TRANSLATE_NOOP("Parameters", "the newest time of a receiver, as of the last day on which one was seen"),
      "which times of a receiver are refused"}},
    {{PARAM_DAY_SWITCHED, "display.day-switched",
      QT_TRANSLATE_NOOP("Parameters", "when the sun switched the colours last"),
      "whether display.day follows the sun at the next start"}},
};

inline constexpr tagItem Items[] = {
    {{PARAM_ACTIVE_JOB, "active.job", QT_TRANSLATE_NOOP("Parameters", "the active job"),
      "paths of the job, its coverage and reports"},
     true,
     false},
    {{PARAM_ACTIVE_BOUNDARY, "active.boundary", QT_TRANSLATE_NOOP("Parameters", "the active boundary"), "its path"},
     true,
     false},
    {{PARAM_ACTIVE_AB_LINE, "active.ab-line", QT_TRANSLATE_NOOP("Parameters", "the active straight guidance line"),
      "its path"},
     true,
     false},
    {{PARAM_ACTIVE_PIVOT, "active.pivot", QT_TRANSLATE_NOOP("Parameters", "the active pivot"), "its path"},
     true,
     false},
    {{PARAM_ACTIVE_CURVE, "active.curve", QT_TRANSLATE_NOOP("Parameters", "the active guidance curve"), "its path"},
     true,
     false},
    {{PARAM_ACTIVE_OPTIMAL_LINES_SHAPE_FILE, "active.optimal-lines",
      QT_TRANSLATE_NOOP("Parameters", "the active shape file of optimal lines"), "its path"},
     true,
     false},
    {{PARAM_ACTIVE_PROJECT_LINES_SHAPE_FILE, "active.project-lines",
      QT_TRANSLATE_NOOP("Parameters", "the active shape file of project lines"), "its path"},
     true,
     false},
    {{PARAM_ACTIVE_ZONES_SHAPE_FILE, "active.zones", QT_TRANSLATE_NOOP("Parameters", "the active shape file of zones"),
      "its path"},
     true,
     false},
    {{PARAM_ACTIVE_STEERING_PROFILE, "active.steering-profile",
      QT_TRANSLATE_NOOP("Parameters", "the active steering profile"), "its path"},
     true,
     false},
    {{PARAM_ACTIVE_IMPLEMENT, "active.implement", QT_TRANSLATE_NOOP("Parameters", "the active implement"),
      "its path, and its area counters"},
     true,
     false},
    {{PARAM_ACTIVE_VEHICLE, "active.vehicle", QT_TRANSLATE_NOOP("Parameters", "the active vehicle"),
      "its path, and those of its implements"},
     true,
     false},
    {{PARAM_ACTIVE_SPRAYER, "active.sprayer", QT_TRANSLATE_NOOP("Parameters", "the active sprayer"), "its path"},
     true,
     false},
    {{PARAM_ACTIVE_BOOM_LEVELLER, "active.boom-leveller", QT_TRANSLATE_NOOP("Parameters", "the active boom leveller"),
      "its path"},
     true,
     false},
    {{PARAM_CLIENT, "active.client", QT_TRANSLATE_NOOP("Parameters", "the active client"),
      "paths of jobs, lines and boundaries"},
     false,
     true},
    {{PARAM_FARM, "active.farm", QT_TRANSLATE_NOOP("Parameters", "the active farm"),
      "paths of jobs, lines and boundaries"},
     false,
     true},
    {{PARAM_FIELD, "active.field", QT_TRANSLATE_NOOP("Parameters", "the active field"),
      "paths of jobs, lines and boundaries"},
     false,
     true},
};

/// At night, everything that fills an area is nearly black, so that the screen does not dazzle. Texts and lines that
/// the operator steers by have a contrast of at least 4.5 to 1 against it, in warm tones, which disturb night vision
/// least.
inline constexpr tagColor Colors[] = {
    {PARAM_TEXT_COLOR_DAY, PARAM_TEXT_COLOR_NIGHT, "text", "texts", 0xff101418, 0xffd8c7a8},
    {PARAM_BUTTON_COLOR_DAY, PARAM_BUTTON_COLOR_NIGHT, "button", "buttons", 0xffd6dde3, 0xff22262a},
    {PARAM_BUTTON_TEXT_COLOR_DAY, PARAM_BUTTON_TEXT_COLOR_NIGHT, "button-text", "texts on buttons", 0xff101418,
     0xffd8c7a8},
    {PARAM_BACKGROUND_COLOR_DAY, PARAM_BACKGROUND_COLOR_NIGHT, "background", "the background", 0xfff2f4f5, 0xff0b0d0f},
    {PARAM_TITLE_COLOR_DAY, PARAM_TITLE_COLOR_NIGHT, "title", "titles", 0xff1d4f7c, 0xffe0a458},
    {PARAM_EXTERNAL_BOUNDARY_COLOR_DAY, PARAM_EXTERNAL_BOUNDARY_COLOR_NIGHT, "external-boundary",
     "the outer boundary of the field", 0xff0b3d91, 0xff6f9bd8},
    {PARAM_INTERNAL_BOUNDARY_COLOR_DAY, PARAM_INTERNAL_BOUNDARY_COLOR_NIGHT, "internal-boundary",
     "boundaries within the field", 0xff8a1c1c, 0xffd47a6a},
    {PARAM_INACTIVE_BOUNDARIES_COLOR_DAY, PARAM_INACTIVE_BOUNDARIES_COLOR_NIGHT, "inactive-boundaries",
     "boundaries that are not active", 0xff7a8288, 0xff7c8086},
    {PARAM_COVERAGE_COLOR_DAY, PARAM_COVERAGE_COLOR_NIGHT, "coverage", "covered ground", 0xff4f9e4f, 0xff1f4a2b},
    {PARAM_VEHICLE_COLOR_DAY, PARAM_VEHICLE_COLOR_NIGHT, "vehicle", "the vehicle", 0xffc2410c, 0xfff08a3c},
    {PARAM_TRACK_COLOR_DAY, PARAM_TRACK_COLOR_NIGHT, "track", "the guidance line", 0xff6d28d9, 0xffa98be8},
    {PARAM_MAP_COLOR_DAY, PARAM_MAP_COLOR_NIGHT, "map", "the map's ground", 0xffe6e2d3, 0xff101214},
    {PARAM_EXCLUSION_ZONE_COLOR_DAY, PARAM_EXCLUSION_ZONE_COLOR_NIGHT, "exclusion-zone", "zones to keep out of",
     0xffd97706, 0xffc98a1e},
    {PARAM_GRID_COLOR_DAY, PARAM_GRID_COLOR_NIGHT, "grid", "the map's grid", 0xffc8c4b4, 0xff2a2e32},
    {PARAM_CROSS_HAIRS_COLOR_DAY, PARAM_CROSS_HAIRS_COLOR_NIGHT, "cross-hairs", "the cross-hairs", 0xff101418,
     0xffd8c7a8},
};

} // namespace ParameterRows
