#pragma once

/// Numbers of the host's parameters that the library reads or writes.
///
/// Stored data and hosts use the numbers: they never change. The comment behind each gives its type and meaning. A
/// parameter that is not in the store reads as 0, false, an empty string or an invalid colour.
enum EParamID : int
{
    PARAM_SPRAYER_RATE_BASIS = 1929, ///< int; an ESprayerRateBasis

    PARAM_INTERNAL_DRIVE = 8910, ///< string; path of the internal drive, ending in "/"
    PARAM_EXTERNAL_DRIVE = 8911, ///< string; mount point of the removable drive

    PARAM_ACTIVE_JOB = 8919,                      ///< string
    PARAM_ACTIVE_BOUNDARY = 8920,                 ///< string
    PARAM_ACTIVE_AB_LINE = 8921,                  ///< string
    PARAM_ACTIVE_PIVOT = 8922,                    ///< string
    PARAM_ACTIVE_CURVE = 8923,                    ///< string
    PARAM_ACTIVE_OPTIMAL_LINES_SHAPE_FILE = 8924, ///< string
    PARAM_ACTIVE_PROJECT_LINES_SHAPE_FILE = 8925, ///< string
    PARAM_ACTIVE_ZONES_SHAPE_FILE = 8926,         ///< string
    PARAM_ACTIVE_STEERING_PROFILE = 8927,         ///< string
    PARAM_ACTIVE_IMPLEMENT = 8928,                ///< string
    PARAM_ACTIVE_VEHICLE = 8929,                  ///< string
    PARAM_ACTIVE_SPRAYER = 8930,                  ///< string
    PARAM_ACTIVE_BOOM_LEVELLER = 8931,            ///< string
    PARAM_CLIENT = 8932,                          ///< string
    PARAM_FARM = 8933,                            ///< string
    PARAM_FIELD = 8934,                           ///< string

    PARAM_UTC_OFFSET_HOURS = 8949,       ///< int; local time minus UTC, whole hours, signed
    PARAM_UTC_OFFSET_MINUTES = 8950,     ///< int; local time minus UTC, -59 to 59 minutes, sign of the hours
    PARAM_CLOCK_OFFSET = 8951,           ///< int; what TLocalTime::SetDateTime returned last
    PARAM_UTC_OFFSET_SET_BY_USER = 8952, ///< bool; true keeps the offset when GPS time arrives

    PARAM_METRIC = 8953,                  ///< bool
    PARAM_US_MEASURES = 8954,             ///< bool; US rather than English measures when not metric
    PARAM_DEGREES_MINUTES_SECONDS = 8955, ///< bool; positions in degrees, minutes and seconds, else decimal degrees
    PARAM_PRESSURE_UNIT = 8957,           ///< int; an EPressureUnit
    PARAM_AREA_UNIT = 8960,               ///< int; an EAreaUnit
    PARAM_SHORT_DISTANCE_UNIT = 8961,     ///< int; an EShortDistanceUnit
    PARAM_DRY_VOLUME_UNIT = 8962,         ///< int; an EDryVolumeUnit
    PARAM_DRY_DENSITY_UNIT = 8963,        ///< int; an EDryDensityUnit
    PARAM_LIQUID_UNIT = 8964,             ///< int; an ELiquidUnit
    PARAM_RATE_PER_TRAVEL = 8966,         ///< bool; liquid rates per 100 m or 100 yd of travel

    PARAM_LANGUAGE = 9009,      ///< int; an ELanguage
    PARAM_DECIMAL_POINT = 9010, ///< int; an EDecimalPoint
    PARAM_24_HOUR_CLOCK = 9011, ///< bool; false shows am and pm
    PARAM_MONTH_FIRST = 9012,   ///< bool; false shows the day before the month

    PARAM_DAY_MODE = 9060,               ///< bool; absent reads as night
    PARAM_LIGHTBAR_NIGHT_LEVEL = 9061,   ///< int; scale of the host
    PARAM_BACKLIGHT_NIGHT_LEVEL = 9062,  ///< int; scale of the host
    PARAM_BUTTON_LED_NIGHT_LEVEL = 9063, ///< int; scale of the host

    PARAM_TEXT_COLOR_DAY = 9064,                  ///< colour
    PARAM_BUTTON_COLOR_DAY = 9065,                ///< colour
    PARAM_BUTTON_TEXT_COLOR_DAY = 9066,           ///< colour
    PARAM_BACKGROUND_COLOR_DAY = 9067,            ///< colour
    PARAM_TITLE_COLOR_DAY = 9068,                 ///< colour
    PARAM_EXTERNAL_BOUNDARY_COLOR_DAY = 9069,     ///< colour
    PARAM_INTERNAL_BOUNDARY_COLOR_DAY = 9070,     ///< colour
    PARAM_INACTIVE_BOUNDARIES_COLOR_DAY = 9071,   ///< colour
    PARAM_COVERAGE_COLOR_DAY = 9072,              ///< colour
    PARAM_VEHICLE_COLOR_DAY = 9073,               ///< colour
    PARAM_TRACK_COLOR_DAY = 9074,                 ///< colour
    PARAM_MAP_COLOR_DAY = 9075,                   ///< colour
    PARAM_EXCLUSION_ZONE_COLOR_DAY = 9076,        ///< colour
    PARAM_GRID_COLOR_DAY = 9077,                  ///< colour
    PARAM_CROSS_HAIRS_COLOR_DAY = 9078,           ///< colour
    PARAM_BACKGROUND_NUMBER_DAY = 9079,           ///< int; number of the background picture
    PARAM_TEXT_COLOR_NIGHT = 9080,                ///< colour
    PARAM_BUTTON_COLOR_NIGHT = 9081,              ///< colour
    PARAM_BUTTON_TEXT_COLOR_NIGHT = 9082,         ///< colour
    PARAM_BACKGROUND_COLOR_NIGHT = 9083,          ///< colour
    PARAM_TITLE_COLOR_NIGHT = 9084,               ///< colour
    PARAM_EXTERNAL_BOUNDARY_COLOR_NIGHT = 9085,   ///< colour
    PARAM_INTERNAL_BOUNDARY_COLOR_NIGHT = 9086,   ///< colour
    PARAM_INACTIVE_BOUNDARIES_COLOR_NIGHT = 9087, ///< colour
    PARAM_COVERAGE_COLOR_NIGHT = 9088,            ///< colour
    PARAM_VEHICLE_COLOR_NIGHT = 9089,             ///< colour
    PARAM_TRACK_COLOR_NIGHT = 9090,               ///< colour
    PARAM_MAP_COLOR_NIGHT = 9091,                 ///< colour
    PARAM_EXCLUSION_ZONE_COLOR_NIGHT = 9092,      ///< colour
    PARAM_GRID_COLOR_NIGHT = 9093,                ///< colour
    PARAM_CROSS_HAIRS_COLOR_NIGHT = 9094,         ///< colour
    PARAM_BACKGROUND_NUMBER_NIGHT = 9095,         ///< int; number of the background picture

    PARAM_IMPLEMENT_FOLDER_CHOICE = 9103, ///< int; an EImplementFolder

    PARAM_NMEA_LOG_FILE_NUMBER = 10471, ///< int; number of the next file of the NMEA log
    PARAM_USER_LOG_FILE_NUMBER = 10472, ///< int; number of the next file of the user log
};
