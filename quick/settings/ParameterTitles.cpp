#include "settings/ParameterTitles.h"

#include "parameters/ETimeSource.h"
#include "parameters/HostParameters.h"
#include "parameters/TParameterCatalogue.h"
#include "platform/EAreaUnit.h"
#include "platform/EDecimalPoint.h"
#include "platform/EDryDensityUnit.h"
#include "platform/EDryVolumeUnit.h"
#include "platform/ELiquidUnit.h"
#include "platform/EPressureUnit.h"
#include "platform/EShortDistanceUnit.h"
#include "platform/ESprayerRateBasis.h"
#include "region/TRegionSettings.h"
#include "sun/EDaySwitching.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace {

struct tagTitle
{
    int number;
    const char* title;
};

/// In the order in which a page shows them.
constexpr tagTitle Titles[] = {
    {PARAM_METRIC, QT_TRANSLATE_NOOP("Parameters", "Measures")},
    {PARAM_US_MEASURES, QT_TRANSLATE_NOOP("Parameters", "Gallons and bushels")},
    {PARAM_AREA_UNIT, QT_TRANSLATE_NOOP("Parameters", "Area")},
    {PARAM_PRESSURE_UNIT, QT_TRANSLATE_NOOP("Parameters", "Pressure")},
    {PARAM_SHORT_DISTANCE_UNIT, QT_TRANSLATE_NOOP("Parameters", "Short distances")},
    {PARAM_LIQUID_UNIT, QT_TRANSLATE_NOOP("Parameters", "Liquid")},
    {PARAM_DRY_VOLUME_UNIT, QT_TRANSLATE_NOOP("Parameters", "Granular volume")},
    {PARAM_DRY_DENSITY_UNIT, QT_TRANSLATE_NOOP("Parameters", "Granular density")},
    {PARAM_DEGREES_MINUTES_SECONDS, QT_TRANSLATE_NOOP("Parameters", "Positions")},
    {PARAM_RATE_PER_TRAVEL, QT_TRANSLATE_NOOP("Parameters", "Rate per travel")},

    {PARAM_SPRAYER_RATE_BASIS, QT_TRANSLATE_NOOP("Parameters", "Basis of rates")},

    {PARAM_LANGUAGE, QT_TRANSLATE_NOOP("Parameters", "Language")},
    {PARAM_DECIMAL_POINT, QT_TRANSLATE_NOOP("Parameters", "Decimal sign")},
    {PARAM_24_HOUR_CLOCK, QT_TRANSLATE_NOOP("Parameters", "Time of day")},
    {PARAM_MONTH_FIRST, QT_TRANSLATE_NOOP("Parameters", "Dates")},

    {PARAM_UTC_OFFSET_SET_BY_USER, QT_TRANSLATE_NOOP("Parameters", "Time zone set by hand")},
    {PARAM_UTC_OFFSET_HOURS, QT_TRANSLATE_NOOP("Parameters", "Time zone, hours")},
    {PARAM_UTC_OFFSET_MINUTES, QT_TRANSLATE_NOOP("Parameters", "Time zone, minutes")},
    {PARAM_CLOCK_OFFSET, QT_TRANSLATE_NOOP("Parameters", "Clock less UTC")},
    {PARAM_TIME_SOURCE, QT_TRANSLATE_NOOP("Parameters", "Source of the time")},
    {PARAM_TIME_SOURCE_SINCE, QT_TRANSLATE_NOOP("Parameters", "Source of the time since")},
    {PARAM_NEWEST_TIME, QT_TRANSLATE_NOOP("Parameters", "Newest receiver time")},

    {PARAM_DAY_MODE, QT_TRANSLATE_NOOP("Parameters", "Colours")},
    {PARAM_DAY_SWITCHING, QT_TRANSLATE_NOOP("Parameters", "Day and night")},
    {PARAM_HEADING_UP, QT_TRANSLATE_NOOP("Parameters", "Map direction")},
    {PARAM_TILES, QT_TRANSLATE_NOOP("Parameters", "Tiles")},
    {PARAM_LIGHTBAR_NIGHT_LEVEL, QT_TRANSLATE_NOOP("Parameters", "Light bar at night")},
    {PARAM_BACKLIGHT_NIGHT_LEVEL, QT_TRANSLATE_NOOP("Parameters", "Screen at night")},
    {PARAM_BUTTON_LED_NIGHT_LEVEL, QT_TRANSLATE_NOOP("Parameters", "Button lights at night")},
    {PARAM_DAY_SWITCHED, QT_TRANSLATE_NOOP("Parameters", "Switched by the sun")},

    {PARAM_CLIENT, QT_TRANSLATE_NOOP("Parameters", "Client")},
    {PARAM_FARM, QT_TRANSLATE_NOOP("Parameters", "Farm")},
    {PARAM_FIELD, QT_TRANSLATE_NOOP("Parameters", "Field")},
    {PARAM_ACTIVE_JOB, QT_TRANSLATE_NOOP("Parameters", "Job")},
    {PARAM_ACTIVE_VEHICLE, QT_TRANSLATE_NOOP("Parameters", "Vehicle")},
    {PARAM_ACTIVE_IMPLEMENT, QT_TRANSLATE_NOOP("Parameters", "Implement")},
    {PARAM_ACTIVE_SPRAYER, QT_TRANSLATE_NOOP("Parameters", "Sprayer")},
    {PARAM_ACTIVE_BOOM_LEVELLER, QT_TRANSLATE_NOOP("Parameters", "Boom leveller")},
    {PARAM_ACTIVE_STEERING_PROFILE, QT_TRANSLATE_NOOP("Parameters", "Steering profile")},
    {PARAM_ACTIVE_BOUNDARY, QT_TRANSLATE_NOOP("Parameters", "Boundary")},
    {PARAM_ACTIVE_AB_LINE, QT_TRANSLATE_NOOP("Parameters", "A-B line")},
    {PARAM_ACTIVE_PIVOT, QT_TRANSLATE_NOOP("Parameters", "Pivot")},
    {PARAM_ACTIVE_CURVE, QT_TRANSLATE_NOOP("Parameters", "Curve")},
    {PARAM_ACTIVE_OPTIMAL_LINES_SHAPE_FILE, QT_TRANSLATE_NOOP("Parameters", "Optimal lines")},
    {PARAM_ACTIVE_PROJECT_LINES_SHAPE_FILE, QT_TRANSLATE_NOOP("Parameters", "Project lines")},
    {PARAM_ACTIVE_ZONES_SHAPE_FILE, QT_TRANSLATE_NOOP("Parameters", "Zones")},

    {PARAM_RECEIVER_ADDRESS, QT_TRANSLATE_NOOP("Parameters", "Receiver address")},

    {PARAM_INTERNAL_DRIVE, QT_TRANSLATE_NOOP("Parameters", "Internal drive")},
    {PARAM_EXTERNAL_DRIVE, QT_TRANSLATE_NOOP("Parameters", "Stick")},
    {PARAM_IMPLEMENT_FOLDER_CHOICE, QT_TRANSLATE_NOOP("Parameters", "Implement folder")},

    {PARAM_NMEA_LOG_FILE_NUMBER, QT_TRANSLATE_NOOP("Parameters", "Next NMEA log")},
    {PARAM_USER_LOG_FILE_NUMBER, QT_TRANSLATE_NOOP("Parameters", "Next user log")},

    {PARAM_TERMINAL_IDENTITY, QT_TRANSLATE_NOOP("Parameters", "Identity")},
};

struct tagSchemeTitle
{
    int day;
    int night;
    const char* title;
    const char* meaning;
};

/// The elements of the colour schemes.
constexpr tagSchemeTitle SchemeTitles[] = {
    {PARAM_TEXT_COLOR_DAY, PARAM_TEXT_COLOR_NIGHT, QT_TRANSLATE_NOOP("Parameters", "Text"),
     QT_TRANSLATE_NOOP("Parameters", "Colour of texts")},
    {PARAM_TITLE_COLOR_DAY, PARAM_TITLE_COLOR_NIGHT, QT_TRANSLATE_NOOP("Parameters", "Title"),
     QT_TRANSLATE_NOOP("Parameters", "Colour of titles")},
    {PARAM_BACKGROUND_COLOR_DAY, PARAM_BACKGROUND_COLOR_NIGHT, QT_TRANSLATE_NOOP("Parameters", "Background"),
     QT_TRANSLATE_NOOP("Parameters", "Colour of the background")},
    {PARAM_BUTTON_COLOR_DAY, PARAM_BUTTON_COLOR_NIGHT, QT_TRANSLATE_NOOP("Parameters", "Button"),
     QT_TRANSLATE_NOOP("Parameters", "Colour of buttons")},
    {PARAM_BUTTON_TEXT_COLOR_DAY, PARAM_BUTTON_TEXT_COLOR_NIGHT, QT_TRANSLATE_NOOP("Parameters", "Button text"),
     QT_TRANSLATE_NOOP("Parameters", "Colour of texts on buttons")},
    {PARAM_MAP_COLOR_DAY, PARAM_MAP_COLOR_NIGHT, QT_TRANSLATE_NOOP("Parameters", "Map"),
     QT_TRANSLATE_NOOP("Parameters", "Colour of the map's ground")},
    {PARAM_GRID_COLOR_DAY, PARAM_GRID_COLOR_NIGHT, QT_TRANSLATE_NOOP("Parameters", "Grid"),
     QT_TRANSLATE_NOOP("Parameters", "Colour of the map's grid")},
    {PARAM_COVERAGE_COLOR_DAY, PARAM_COVERAGE_COLOR_NIGHT, QT_TRANSLATE_NOOP("Parameters", "Coverage"),
     QT_TRANSLATE_NOOP("Parameters", "Colour of covered ground")},
    {PARAM_VEHICLE_COLOR_DAY, PARAM_VEHICLE_COLOR_NIGHT, QT_TRANSLATE_NOOP("Parameters", "Vehicle on the map"),
     QT_TRANSLATE_NOOP("Parameters", "Colour of the vehicle")},
    {PARAM_TRACK_COLOR_DAY, PARAM_TRACK_COLOR_NIGHT, QT_TRANSLATE_NOOP("Parameters", "Guidance line"),
     QT_TRANSLATE_NOOP("Parameters", "Colour of the guidance line")},
    {PARAM_CROSS_HAIRS_COLOR_DAY, PARAM_CROSS_HAIRS_COLOR_NIGHT, QT_TRANSLATE_NOOP("Parameters", "Cross hairs"),
     QT_TRANSLATE_NOOP("Parameters", "Colour of the cross hairs")},
    {PARAM_EXTERNAL_BOUNDARY_COLOR_DAY, PARAM_EXTERNAL_BOUNDARY_COLOR_NIGHT,
     QT_TRANSLATE_NOOP("Parameters", "Outer boundary"),
     QT_TRANSLATE_NOOP("Parameters", "Colour of the outer boundary of the field")},
    {PARAM_INTERNAL_BOUNDARY_COLOR_DAY, PARAM_INTERNAL_BOUNDARY_COLOR_NIGHT,
     QT_TRANSLATE_NOOP("Parameters", "Inner boundary"),
     QT_TRANSLATE_NOOP("Parameters", "Colour of boundaries within the field")},
    {PARAM_INACTIVE_BOUNDARIES_COLOR_DAY, PARAM_INACTIVE_BOUNDARIES_COLOR_NIGHT,
     QT_TRANSLATE_NOOP("Parameters", "Other boundaries"),
     QT_TRANSLATE_NOOP("Parameters", "Colour of boundaries that are not active")},
    {PARAM_EXCLUSION_ZONE_COLOR_DAY, PARAM_EXCLUSION_ZONE_COLOR_NIGHT,
     QT_TRANSLATE_NOOP("Parameters", "Exclusion zone"),
     QT_TRANSLATE_NOOP("Parameters", "Colour of zones to keep out of")},
    {PARAM_BACKGROUND_NUMBER_DAY, PARAM_BACKGROUND_NUMBER_NIGHT, QT_TRANSLATE_NOOP("Parameters", "Background picture"),
     QT_TRANSLATE_NOOP("Parameters", "Number of the background picture")},
};

/// In place of what the catalogue says with the names of other parameters, which only tools use.
constexpr tagTitle Meanings[] = {
    {PARAM_SPRAYER_RATE_BASIS, QT_TRANSLATE_NOOP("Parameters", "what the sprayer's rates are related to")},
    {PARAM_RATE_PER_TRAVEL,
     QT_TRANSLATE_NOOP("Parameters", "liquid rates per 100 m or 100 yd of travel, while travel is their basis")},
    {PARAM_TIME_SOURCE_SINCE, QT_TRANSLATE_NOOP("Parameters", "since when the clock has its time from there")},
};

struct tagChoiceText
{
    int number;
    int value;
    const char* text;
};

/// The languages are not among them: each is shown by its own name.
constexpr tagChoiceText ChoiceTexts[] = {
    {PARAM_METRIC, true, QT_TRANSLATE_NOOP("Parameters", "Metric")},
    {PARAM_METRIC, false, QT_TRANSLATE_NOOP("Parameters", "US or English")},
    {PARAM_US_MEASURES, true, QT_TRANSLATE_NOOP("Parameters", "US")},
    {PARAM_US_MEASURES, false, QT_TRANSLATE_NOOP("Parameters", "English")},
    {PARAM_DEGREES_MINUTES_SECONDS, true, QT_TRANSLATE_NOOP("Parameters", "Deg., min., s")},
    {PARAM_DEGREES_MINUTES_SECONDS, false, QT_TRANSLATE_NOOP("Parameters", "Degrees")},
    {PARAM_24_HOUR_CLOCK, true, QT_TRANSLATE_NOOP("Parameters", "24 hours")},
    {PARAM_24_HOUR_CLOCK, false, QT_TRANSLATE_NOOP("Parameters", "am, pm")},
    {PARAM_MONTH_FIRST, true, QT_TRANSLATE_NOOP("Parameters", "Month first")},
    {PARAM_MONTH_FIRST, false, QT_TRANSLATE_NOOP("Parameters", "Day first")},
    {PARAM_DAY_MODE, true, QT_TRANSLATE_NOOP("Parameters", "Day")},
    {PARAM_DAY_MODE, false, QT_TRANSLATE_NOOP("Parameters", "Night")},
    {PARAM_HEADING_UP, true, QT_TRANSLATE_NOOP("Parameters", "Heading up")},
    {PARAM_HEADING_UP, false, QT_TRANSLATE_NOOP("Parameters", "North up")},
    {PARAM_RATE_PER_TRAVEL, true, QT_TRANSLATE_NOOP("Parameters", "On")},
    {PARAM_RATE_PER_TRAVEL, false, QT_TRANSLATE_NOOP("Parameters", "Off")},
    {PARAM_UTC_OFFSET_SET_BY_USER, true, QT_TRANSLATE_NOOP("Parameters", "Yes")},
    {PARAM_UTC_OFFSET_SET_BY_USER, false, QT_TRANSLATE_NOOP("Parameters", "No")},
    {PARAM_SPRAYER_RATE_BASIS, SPRAYER_RATE_BASIS_TRAVEL, QT_TRANSLATE_NOOP("Parameters", "Travel")},
    {PARAM_SPRAYER_RATE_BASIS, SPRAYER_RATE_BASIS_AREA, QT_TRANSLATE_NOOP("Parameters", "Area")},
    {PARAM_PRESSURE_UNIT, PRESSURE_UNIT_KPA, QT_TRANSLATE_NOOP("Parameters", "kPa")},
    {PARAM_PRESSURE_UNIT, PRESSURE_UNIT_PSI, QT_TRANSLATE_NOOP("Parameters", "psi")},
    {PARAM_PRESSURE_UNIT, PRESSURE_UNIT_BAR, QT_TRANSLATE_NOOP("Parameters", "bar")},
    {PARAM_AREA_UNIT, AREA_UNIT_HECTARE, QT_TRANSLATE_NOOP("Parameters", "Hectare")},
    {PARAM_AREA_UNIT, AREA_UNIT_ACRE, QT_TRANSLATE_NOOP("Parameters", "Acre")},
    {PARAM_SHORT_DISTANCE_UNIT, SHORT_DISTANCE_UNIT_METRIC, QT_TRANSLATE_NOOP("Parameters", "m, mm")},
    {PARAM_SHORT_DISTANCE_UNIT, SHORT_DISTANCE_UNIT_INCH, QT_TRANSLATE_NOOP("Parameters", "Inch")},
    {PARAM_SHORT_DISTANCE_UNIT, SHORT_DISTANCE_UNIT_FOOT, QT_TRANSLATE_NOOP("Parameters", "Foot")},
    {PARAM_DRY_VOLUME_UNIT, DRY_VOLUME_UNIT_LITRE, QT_TRANSLATE_NOOP("Parameters", "L")},
    {PARAM_DRY_VOLUME_UNIT, DRY_VOLUME_UNIT_KILOGRAM, QT_TRANSLATE_NOOP("Parameters", "kg")},
    {PARAM_DRY_VOLUME_UNIT, DRY_VOLUME_UNIT_CUBIC_METRE, QT_TRANSLATE_NOOP("Parameters", "m³")},
    {PARAM_DRY_VOLUME_UNIT, DRY_VOLUME_UNIT_US_BUSHEL, QT_TRANSLATE_NOOP("Parameters", "US bushel")},
    {PARAM_DRY_VOLUME_UNIT, DRY_VOLUME_UNIT_UK_BUSHEL, QT_TRANSLATE_NOOP("Parameters", "UK bushel")},
    {PARAM_DRY_DENSITY_UNIT, DRY_DENSITY_UNIT_KG_PER_LITRE, QT_TRANSLATE_NOOP("Parameters", "kg/L")},
    {PARAM_DRY_DENSITY_UNIT, DRY_DENSITY_UNIT_KG_PER_CUBIC_METRE, QT_TRANSLATE_NOOP("Parameters", "kg/m³")},
    {PARAM_DRY_DENSITY_UNIT, DRY_DENSITY_UNIT_KG_PER_US_BUSHEL, QT_TRANSLATE_NOOP("Parameters", "kg/US bu")},
    {PARAM_DRY_DENSITY_UNIT, DRY_DENSITY_UNIT_KG_PER_UK_BUSHEL, QT_TRANSLATE_NOOP("Parameters", "kg/UK bu")},
    {PARAM_LIQUID_UNIT, LIQUID_UNIT_LITRE, QT_TRANSLATE_NOOP("Parameters", "L")},
    {PARAM_LIQUID_UNIT, LIQUID_UNIT_CUBIC_METRE, QT_TRANSLATE_NOOP("Parameters", "m³")},
    {PARAM_LIQUID_UNIT, LIQUID_UNIT_TONNE, QT_TRANSLATE_NOOP("Parameters", "t")},
    {PARAM_DECIMAL_POINT, DECIMAL_POINT_FULL_STOP, QT_TRANSLATE_NOOP("Parameters", "Point")},
    {PARAM_DECIMAL_POINT, DECIMAL_POINT_COMMA, QT_TRANSLATE_NOOP("Parameters", "Comma")},
    {PARAM_DAY_SWITCHING, DAY_SWITCHING_BY_HAND, QT_TRANSLATE_NOOP("Parameters", "By hand")},
    {PARAM_DAY_SWITCHING, DAY_SWITCHING_SUNSET, QT_TRANSLATE_NOOP("Parameters", "Sunset")},
    {PARAM_DAY_SWITCHING, DAY_SWITCHING_TWILIGHT, QT_TRANSLATE_NOOP("Parameters", "Twilight")},
    {PARAM_TIME_SOURCE, TIME_SOURCE_NONE, QT_TRANSLATE_NOOP("Parameters", "Not set")},
    {PARAM_TIME_SOURCE, TIME_SOURCE_OPERATOR, QT_TRANSLATE_NOOP("Parameters", "Operator")},
    {PARAM_TIME_SOURCE, TIME_SOURCE_RECEIVER, QT_TRANSLATE_NOOP("Parameters", "Receiver")},
};

struct tagWord
{
    const char* name;
    const char* text;
};

/// The tiles beside the map.
constexpr tagWord ListedNames[] = {
    {"rate", QT_TRANSLATE_NOOP("Parameters", "Rate")},
    {"speed", QT_TRANSLATE_NOOP("Parameters", "Speed")},
    {"area", QT_TRANSLATE_NOOP("Parameters", "Area done")},
    {"left", QT_TRANSLATE_NOOP("Parameters", "Area left")},
    {"productivity", QT_TRANSLATE_NOOP("Parameters", "Productivity")},
    {"flow", QT_TRANSLATE_NOOP("Parameters", "Flow")},
    {"pressure", QT_TRANSLATE_NOOP("Parameters", "Pressure")},
    {"temperature", QT_TRANSLATE_NOOP("Parameters", "Temperature")},
    {"distance", QT_TRANSLATE_NOOP("Parameters", "Distance")},
    {"position", QT_TRANSLATE_NOOP("Parameters", "Position")},
    {"time", QT_TRANSLATE_NOOP("Parameters", "Time")},
};

constexpr tagWord GroupTitles[] = {
    {"units", QT_TRANSLATE_NOOP("Parameters", "Units")},
    {"rates", QT_TRANSLATE_NOOP("Parameters", "Rates")},
    {"region", QT_TRANSLATE_NOOP("Parameters", "Region")},
    {"clock", QT_TRANSLATE_NOOP("Parameters", "Clock")},
    {"colors", QT_TRANSLATE_NOOP("Parameters", "Colours of the schemes")},
    {"display", QT_TRANSLATE_NOOP("Parameters", "Display")},
    {"active", QT_TRANSLATE_NOOP("Parameters", "Selections")},
    {"receiver", QT_TRANSLATE_NOOP("Parameters", "Receiver")},
    {"system", QT_TRANSLATE_NOOP("Parameters", "Storage")},
    {"log", QT_TRANSLATE_NOOP("Parameters", "Logs")},
    {"terminal", QT_TRANSLATE_NOOP("Parameters", "Terminal")},
};

QString Translated(const char* text) { return QCoreApplication::translate("Parameters", text); }

/// The text of the row with this name; empty when there is none.
template <std::size_t Count>
QString Word(const tagWord (&rows)[Count], const QString& name)
{
    const auto* const found = std::find_if(std::begin(rows), std::end(rows),
                                           [&name](const tagWord& row) { return name == QLatin1String(row.name); });
    return found == std::end(rows) ? QString() : Translated(found->text);
}

} // namespace

QString ParameterTitles::Title(const tagParameter& parameter)
{
    for (const tagTitle& row : Titles) {
        if (row.number == parameter.id)
            return Translated(row.title);
    }
    for (const tagSchemeTitle& row : SchemeTitles) {
        if (row.day == parameter.id)
            return Translated(QT_TRANSLATE_NOOP("Parameters", "%1, by day")).arg(Translated(row.title));
        if (row.night == parameter.id)
            return Translated(QT_TRANSLATE_NOOP("Parameters", "%1, by night")).arg(Translated(row.title));
    }
    return QString();
}

QString ParameterTitles::Element(const tagParameter& parameter)
{
    for (const tagSchemeTitle& row : SchemeTitles) {
        if (row.day == parameter.id || row.night == parameter.id)
            return Translated(row.title);
    }
    return QString();
}

QString ParameterTitles::Meaning(const tagParameter& parameter)
{
    const auto* const own = std::find_if(std::begin(Meanings), std::end(Meanings),
                                         [&parameter](const tagTitle& row) { return row.number == parameter.id; });
    if (own == std::end(Meanings)) {
        for (const tagSchemeTitle& row : SchemeTitles) {
            if (row.day == parameter.id || row.night == parameter.id)
                return Translated(row.meaning);
        }
    }
    QString meaning =
        own == std::end(Meanings) ? Translated(parameter.meaning.toUtf8().constData()) : Translated(own->title);
    meaning[0] = meaning.at(0).toUpper();
    return meaning;
}

QString ParameterTitles::Unit(const tagParameter& parameter)
{
    return parameter.unit.isEmpty()
               ? QString()
               : QCoreApplication::translate("ParameterTexts", parameter.unit.toUtf8().constData());
}

QString ParameterTitles::Choice(const tagParameter& parameter, int value)
{
    if (parameter.id == PARAM_LANGUAGE)
        return TRegionSettings::GetLanguageString(static_cast<ELanguage>(value));
    for (const tagChoiceText& row : ChoiceTexts) {
        if (row.number == parameter.id && row.value == value)
            return Translated(row.text);
    }
    return QString();
}

QString ParameterTitles::ListedName(const QString& name) { return Word(ListedNames, name); }

int ParameterTitles::Place(const tagParameter& parameter)
{
    const auto groups = Groups();
    const int group = static_cast<int>(groups.indexOf(Group(parameter)));
    const int rows = static_cast<int>(std::size(Titles) + 2 * std::size(SchemeTitles));
    int row = 0;
    for (const tagTitle& title : Titles) {
        if (title.number == parameter.id)
            return group * rows + row;
        ++row;
    }
    for (const tagSchemeTitle& title : SchemeTitles) {
        if (title.day == parameter.id)
            return group * rows + row;
        if (title.night == parameter.id)
            return group * rows + row + static_cast<int>(std::size(SchemeTitles));
        ++row;
    }
    return group * rows + row;
}

QString ParameterTitles::Group(const tagParameter& parameter) { return parameter.name.section(QLatin1Char('.'), 0, 0); }

QStringList ParameterTitles::Groups()
{
    QStringList groups;
    for (const tagWord& row : GroupTitles)
        groups.append(QLatin1String(row.name));
    return groups;
}

QString ParameterTitles::GroupTitle(const QString& group) { return Word(GroupTitles, group); }
