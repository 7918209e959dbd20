#include "terminal/FirstStartValues.h"

#include "region/ELanguage.h"

#include <QColor>
#include <QDateTime>
#include <QVariant>

namespace {

template <class Value>
struct tagRow
{
    EParamID id;
    Value value;
};

constexpr tagRow<bool> Switches[] = {
    {PARAM_UTC_OFFSET_SET_BY_USER, false},
    {PARAM_METRIC, true},
    {PARAM_US_MEASURES, false},
    {PARAM_DEGREES_MINUTES_SECONDS, false},
    {PARAM_RATE_PER_TRAVEL, false},
    {PARAM_24_HOUR_CLOCK, true},
    {PARAM_MONTH_FIRST, false},
    {PARAM_DAY_MODE, true},
};

constexpr tagRow<int> Numbers[] = {
    {PARAM_SPRAYER_RATE_BASIS, 1},
    {PARAM_UTC_OFFSET_HOURS, 0},
    {PARAM_UTC_OFFSET_MINUTES, 0},
    {PARAM_PRESSURE_UNIT, 0},
    {PARAM_AREA_UNIT, 0},
    {PARAM_SHORT_DISTANCE_UNIT, 0},
    {PARAM_DRY_VOLUME_UNIT, 0},
    {PARAM_DRY_DENSITY_UNIT, 0},
    {PARAM_LIQUID_UNIT, 0},
    {PARAM_LANGUAGE, LANGUAGE_ENGLISH},
    {PARAM_DECIMAL_POINT, 0},
    {PARAM_LIGHTBAR_NIGHT_LEVEL, 30},   // percent
    {PARAM_BACKLIGHT_NIGHT_LEVEL, 20},  // percent
    {PARAM_BUTTON_LED_NIGHT_LEVEL, 10}, // percent
    {PARAM_BACKGROUND_NUMBER_DAY, 1},
    {PARAM_BACKGROUND_NUMBER_NIGHT, 2},
    {PARAM_IMPLEMENT_FOLDER_CHOICE, 0},
    {PARAM_NMEA_LOG_FILE_NUMBER, 1},
    {PARAM_USER_LOG_FILE_NUMBER, 1},
};

constexpr EParamID Names[] = {PARAM_CLIENT, PARAM_FARM, PARAM_FIELD};

/// By night everything that fills an area is near black, so that the screen does not blind; what must be read or
/// steered by keeps a contrast of at least 4.5 to 1 against it, in warm tones that spare the eye's dark adaptation.
constexpr tagRow<QRgb> Colors[] = {
    {PARAM_TEXT_COLOR_DAY, 0xff101418},
    {PARAM_BUTTON_COLOR_DAY, 0xffd6dde3},
    {PARAM_BUTTON_TEXT_COLOR_DAY, 0xff101418},
    {PARAM_BACKGROUND_COLOR_DAY, 0xfff2f4f5},
    {PARAM_TITLE_COLOR_DAY, 0xff1d4f7c},
    {PARAM_EXTERNAL_BOUNDARY_COLOR_DAY, 0xff0b3d91},
    {PARAM_INTERNAL_BOUNDARY_COLOR_DAY, 0xff8a1c1c},
    {PARAM_INACTIVE_BOUNDARIES_COLOR_DAY, 0xff7a8288},
    {PARAM_COVERAGE_COLOR_DAY, 0xff4f9e4f},
    {PARAM_VEHICLE_COLOR_DAY, 0xffc2410c},
    {PARAM_TRACK_COLOR_DAY, 0xff6d28d9},
    {PARAM_MAP_COLOR_DAY, 0xffe6e2d3},
    {PARAM_EXCLUSION_ZONE_COLOR_DAY, 0xffd97706},
    {PARAM_GRID_COLOR_DAY, 0xffc8c4b4},
    {PARAM_CROSS_HAIRS_COLOR_DAY, 0xff101418},
    {PARAM_TEXT_COLOR_NIGHT, 0xffd8c7a8},
    {PARAM_BUTTON_COLOR_NIGHT, 0xff22262a},
    {PARAM_BUTTON_TEXT_COLOR_NIGHT, 0xffd8c7a8},
    {PARAM_BACKGROUND_COLOR_NIGHT, 0xff0b0d0f},
    {PARAM_TITLE_COLOR_NIGHT, 0xffe0a458},
    {PARAM_EXTERNAL_BOUNDARY_COLOR_NIGHT, 0xff6f9bd8},
    {PARAM_INTERNAL_BOUNDARY_COLOR_NIGHT, 0xffd47a6a},
    {PARAM_INACTIVE_BOUNDARIES_COLOR_NIGHT, 0xff7c8086},
    {PARAM_COVERAGE_COLOR_NIGHT, 0xff1f4a2b},
    {PARAM_VEHICLE_COLOR_NIGHT, 0xfff08a3c},
    {PARAM_TRACK_COLOR_NIGHT, 0xffa98be8},
    {PARAM_MAP_COLOR_NIGHT, 0xff101214},
    {PARAM_EXCLUSION_ZONE_COLOR_NIGHT, 0xffc98a1e},
    {PARAM_GRID_COLOR_NIGHT, 0xff2a2e32},
    {PARAM_CROSS_HAIRS_COLOR_NIGHT, 0xffd8c7a8},
};

void SetIfAbsent(TParameterStore& store, EParamID id, const QVariant& value)
{
    if (!store.HasParameter(id))
        store.SetParameter(id, value, true);
}

/// The display's clock is an offset from UTC; before anyone has set it, it shows what the machine takes for local.
int MachineOffsetSeconds() { return QDateTime::currentDateTime().offsetFromUtc(); }

} // namespace

void SetFirstStartValues(TParameterStore& store)
{
    for (const auto& row : Switches)
        SetIfAbsent(store, row.id, QVariant(row.value));
    for (const auto& row : Numbers)
        SetIfAbsent(store, row.id, QVariant(row.value));
    for (const EParamID id : Names)
        SetIfAbsent(store, id, QVariant(QString()));
    for (const auto& row : Colors)
        SetIfAbsent(store, row.id, QVariant(QColor::fromRgb(row.value)));
    SetIfAbsent(store, PARAM_CLOCK_OFFSET, QVariant(MachineOffsetSeconds()));
}
