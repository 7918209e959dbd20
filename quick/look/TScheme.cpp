#include "look/TScheme.h"

#include "module/TParameterHub.h"

#include "colors/TColorSettings.h"
#include "colors/TColorSettingsProxy.h"
#include "parameters/TParameterCatalogue.h"

#include <algorithm>
#include <cstddef>

struct TScheme::tagElement
{
    EElement element;
    QColor (TColorSettingsProxy::*color)() const;
    const EParamID (&keys)[2]; // by day, by night
};

/// In the order of EElement.
const std::array<TScheme::tagElement, TScheme::ELEMENT_COUNT> TScheme::Elements = {{
    {TEXT, &TColorSettingsProxy::GetTextColor, TColorSettings::TextColorKey},
    {BUTTON, &TColorSettingsProxy::GetButtonColor, TColorSettings::ButtonColorKey},
    {BUTTON_TEXT, &TColorSettingsProxy::GetButtonTextColor, TColorSettings::ButtonTextColorKey},
    {BACKGROUND, &TColorSettingsProxy::GetBackgroundColor, TColorSettings::BackgroundColorKey},
    {TITLE, &TColorSettingsProxy::GetTitleColor, TColorSettings::TitleColorKey},
    {EXTERNAL_BOUNDARY, &TColorSettingsProxy::GetExternalBoundaryColor, TColorSettings::ExternalBoundaryColorKey},
    {INTERNAL_BOUNDARY, &TColorSettingsProxy::GetInternalBoundaryColor, TColorSettings::InternalBoundaryColorKey},
    {INACTIVE_BOUNDARIES, &TColorSettingsProxy::GetInactiveBoundariesColor, TColorSettings::InactiveBoundariesColorKey},
    {COVERAGE, &TColorSettingsProxy::GetCoverageColor, TColorSettings::CoverageColorKey},
    {VEHICLE, &TColorSettingsProxy::GetVehicleColor, TColorSettings::VehicleColorKey},
    {TRACK, &TColorSettingsProxy::GetTrackColor, TColorSettings::TrackColorKey},
    {MAP, &TColorSettingsProxy::GetMapColor, TColorSettings::MapColorKey},
    {EXCLUSION_ZONE, &TColorSettingsProxy::GetExclusionZoneColor, TColorSettings::ExclusionZoneColorKey},
    {GRID, &TColorSettingsProxy::GetGridColor, TColorSettings::GridColorKey},
    {CROSS_HAIRS, &TColorSettingsProxy::GetCrossHairsColor, TColorSettings::CrossHairsColorKey},
}};

namespace {

const double MostPercent = 100;

double Level(bool isDay, int nightPercent) { return isDay ? 1 : std::clamp(nightPercent / MostPercent, 0.0, 1.0); }

} // namespace

TScheme::TScheme(QObject* parent) : QObject(parent), m_Look(LookNow())
{
    connect(&TParameterHub::Instance(), &TParameterHub::Changed, this, [this](int number) {
        if (!IsOfScheme(number))
            return;
        m_Look = LookNow();
        emit changed();
    });
}

void TScheme::SetDay(bool day)
{
    if (day != TColorSettingsProxy().IsDayMode())
        TParameterHub::Instance().Write(PARAM_DAY_MODE, day);
}

void TScheme::toggle() { SetDay(!TColorSettingsProxy().IsDayMode()); }

TScheme::tagLook TScheme::LookNow()
{
    const TColorSettingsProxy settings;
    tagLook look;
    look.isDay = settings.IsDayMode();
    for (const tagElement& row : Elements) {
        const QColor stored = (settings.*row.color)();
        const EParamID key = row.keys[look.isDay ? 0 : 1];
        look.own[static_cast<std::size_t>(row.element)] =
            stored.isValid() ? stored : TParameterCatalogue::Find(key)->firstValue.value<QColor>();
    }
    look.derived =
        DerivedColors::Derive({look.isDay, look.own[TEXT], look.own[BACKGROUND], look.own[TITLE], look.own[COVERAGE]});
    look.backgroundNumber = settings.GetBackgroundNumber();
    look.lightbar = Level(look.isDay, settings.GetLightbarNightLevel());
    look.backlight = Level(look.isDay, settings.GetBacklightNightLevel());
    look.buttons = Level(look.isDay, settings.GetButtonLedNightLevel());
    return look;
}

bool TScheme::IsOfScheme(int number)
{
    if (number == PARAM_DAY_MODE || number == PARAM_LIGHTBAR_NIGHT_LEVEL || number == PARAM_BACKLIGHT_NIGHT_LEVEL ||
        number == PARAM_BUTTON_LED_NIGHT_LEVEL || number == TColorSettings::BackgroundNumberKey[0] ||
        number == TColorSettings::BackgroundNumberKey[1])
        return true;
    return std::any_of(Elements.begin(), Elements.end(),
                       [number](const tagElement& row) { return row.keys[0] == number || row.keys[1] == number; });
}
