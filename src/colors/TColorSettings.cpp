#include "colors/TColorSettings.h"

#include "access/Parameters.h"

// clang-format off
const EParamID TColorSettings::TextColorKey[2]               = {PARAM_TEXT_COLOR_DAY,                 PARAM_TEXT_COLOR_NIGHT};
const EParamID TColorSettings::ButtonColorKey[2]             = {PARAM_BUTTON_COLOR_DAY,               PARAM_BUTTON_COLOR_NIGHT};
const EParamID TColorSettings::ButtonTextColorKey[2]         = {PARAM_BUTTON_TEXT_COLOR_DAY,          PARAM_BUTTON_TEXT_COLOR_NIGHT};
const EParamID TColorSettings::BackgroundColorKey[2]         = {PARAM_BACKGROUND_COLOR_DAY,           PARAM_BACKGROUND_COLOR_NIGHT};
const EParamID TColorSettings::TitleColorKey[2]              = {PARAM_TITLE_COLOR_DAY,                PARAM_TITLE_COLOR_NIGHT};
const EParamID TColorSettings::ExternalBoundaryColorKey[2]   = {PARAM_EXTERNAL_BOUNDARY_COLOR_DAY,    PARAM_EXTERNAL_BOUNDARY_COLOR_NIGHT};
const EParamID TColorSettings::InternalBoundaryColorKey[2]   = {PARAM_INTERNAL_BOUNDARY_COLOR_DAY,    PARAM_INTERNAL_BOUNDARY_COLOR_NIGHT};
const EParamID TColorSettings::InactiveBoundariesColorKey[2] = {PARAM_INACTIVE_BOUNDARIES_COLOR_DAY,  PARAM_INACTIVE_BOUNDARIES_COLOR_NIGHT};
const EParamID TColorSettings::CoverageColorKey[2]           = {PARAM_COVERAGE_COLOR_DAY,             PARAM_COVERAGE_COLOR_NIGHT};
const EParamID TColorSettings::VehicleColorKey[2]            = {PARAM_VEHICLE_COLOR_DAY,              PARAM_VEHICLE_COLOR_NIGHT};
const EParamID TColorSettings::TrackColorKey[2]              = {PARAM_TRACK_COLOR_DAY,                PARAM_TRACK_COLOR_NIGHT};
const EParamID TColorSettings::MapColorKey[2]                = {PARAM_MAP_COLOR_DAY,                  PARAM_MAP_COLOR_NIGHT};
const EParamID TColorSettings::ExclusionZoneColorKey[2]      = {PARAM_EXCLUSION_ZONE_COLOR_DAY,       PARAM_EXCLUSION_ZONE_COLOR_NIGHT};
const EParamID TColorSettings::GridColorKey[2]               = {PARAM_GRID_COLOR_DAY,                 PARAM_GRID_COLOR_NIGHT};
const EParamID TColorSettings::CrossHairsColorKey[2]         = {PARAM_CROSS_HAIRS_COLOR_DAY,          PARAM_CROSS_HAIRS_COLOR_NIGHT};
const EParamID TColorSettings::BackgroundNumberKey[2]        = {PARAM_BACKGROUND_NUMBER_DAY,          PARAM_BACKGROUND_NUMBER_NIGHT};
// clang-format on

TColorSettings::~TColorSettings() = default;

void TColorSettings::Restore() {}

void TColorSettings::SetDayMode(bool day) { Parameters::WriteBool(PARAM_DAY_MODE, day); }
bool TColorSettings::IsDayMode() const { return Parameters::ReadBool(PARAM_DAY_MODE); }
int TColorSettings::GetKeyIndex() const { return IsDayMode() ? 0 : 1; }

int TColorSettings::GetLightbarNightLevel() const { return Parameters::ReadInt(PARAM_LIGHTBAR_NIGHT_LEVEL); }
int TColorSettings::GetBacklightNightLevel() const { return Parameters::ReadInt(PARAM_BACKLIGHT_NIGHT_LEVEL); }
int TColorSettings::GetButtonLedNightLevel() const { return Parameters::ReadInt(PARAM_BUTTON_LED_NIGHT_LEVEL); }

QColor TColorSettings::ReadColor(const EParamID (&key)[2]) const { return Parameters::ReadColor(key[GetKeyIndex()]); }

void TColorSettings::WriteColor(const EParamID (&key)[2], const QColor& color)
{
    Parameters::WriteColor(key[GetKeyIndex()], color);
}

QColor TColorSettings::GetTextColor() const { return ReadColor(TextColorKey); }
QColor TColorSettings::GetButtonColor() const { return ReadColor(ButtonColorKey); }
QColor TColorSettings::GetButtonTextColor() const { return ReadColor(ButtonTextColorKey); }
QColor TColorSettings::GetBackgroundColor() const { return ReadColor(BackgroundColorKey); }
QColor TColorSettings::GetTitleColor() const { return ReadColor(TitleColorKey); }
QColor TColorSettings::GetExternalBoundaryColor() const { return ReadColor(ExternalBoundaryColorKey); }
QColor TColorSettings::GetInternalBoundaryColor() const { return ReadColor(InternalBoundaryColorKey); }
QColor TColorSettings::GetInactiveBoundariesColor() const { return ReadColor(InactiveBoundariesColorKey); }
QColor TColorSettings::GetCoverageColor() const { return ReadColor(CoverageColorKey); }
QColor TColorSettings::GetVehicleColor() const { return ReadColor(VehicleColorKey); }
QColor TColorSettings::GetTrackColor() const { return ReadColor(TrackColorKey); }
QColor TColorSettings::GetMapColor() const { return ReadColor(MapColorKey); }
QColor TColorSettings::GetExclusionZoneColor() const { return ReadColor(ExclusionZoneColorKey); }
QColor TColorSettings::GetGridColor() const { return ReadColor(GridColorKey); }
QColor TColorSettings::GetCrossHairsColor() const { return ReadColor(CrossHairsColorKey); }

void TColorSettings::SetTextColor(const QColor& color) { WriteColor(TextColorKey, color); }
void TColorSettings::SetButtonColor(const QColor& color) { WriteColor(ButtonColorKey, color); }
void TColorSettings::SetButtonTextColor(const QColor& color) { WriteColor(ButtonTextColorKey, color); }
void TColorSettings::SetBackgroundColor(const QColor& color) { WriteColor(BackgroundColorKey, color); }
void TColorSettings::SetTitleColor(const QColor& color) { WriteColor(TitleColorKey, color); }
void TColorSettings::SetExternalBoundaryColor(const QColor& color) { WriteColor(ExternalBoundaryColorKey, color); }
void TColorSettings::SetInternalBoundaryColor(const QColor& color) { WriteColor(InternalBoundaryColorKey, color); }
void TColorSettings::SetInactiveBoundariesColor(const QColor& color) { WriteColor(InactiveBoundariesColorKey, color); }
void TColorSettings::SetCoverageColor(const QColor& color) { WriteColor(CoverageColorKey, color); }
void TColorSettings::SetVehicleColor(const QColor& color) { WriteColor(VehicleColorKey, color); }
void TColorSettings::SetTrackColor(const QColor& color) { WriteColor(TrackColorKey, color); }
void TColorSettings::SetMapColor(const QColor& color) { WriteColor(MapColorKey, color); }
void TColorSettings::SetExclusionZoneColor(const QColor& color) { WriteColor(ExclusionZoneColorKey, color); }
void TColorSettings::SetGridColor(const QColor& color) { WriteColor(GridColorKey, color); }
void TColorSettings::SetCrossHairsColor(const QColor& color) { WriteColor(CrossHairsColorKey, color); }

int TColorSettings::GetBackgroundNumber() const { return Parameters::ReadInt(BackgroundNumberKey[GetKeyIndex()]); }

void TColorSettings::SetBackgroundNumber(int number)
{
    Parameters::WriteInt(BackgroundNumberKey[GetKeyIndex()], number);
}
