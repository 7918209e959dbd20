#pragma once

#include "platform/Export.h"

#include <QColor>

class TColorSettings;

/// Façade of the colours of Settings; see TColorSettings for what the operations do.
///
///     const QColor text = TColorSettingsProxy().GetTextColor();
///     const QColor shown = text.isValid() ? text : QColor(Qt::black);
///
/// Takes no lock. Calls are safe from any thread, since the host's store is.
class CABSETTINGS_EXPORT TColorSettingsProxy
{
public:
    TColorSettingsProxy();
    virtual ~TColorSettingsProxy();

    void Restore();

    void SetDayMode(bool day);
    bool IsDayMode() const;

    int GetLightbarNightLevel() const;
    int GetBacklightNightLevel() const;
    int GetButtonLedNightLevel() const;

    QColor GetTextColor() const;
    void SetTextColor(const QColor& color);
    QColor GetButtonColor() const;
    void SetButtonColor(const QColor& color);
    QColor GetButtonTextColor() const;
    void SetButtonTextColor(const QColor& color);
    QColor GetBackgroundColor() const;
    void SetBackgroundColor(const QColor& color);
    QColor GetTitleColor() const;
    void SetTitleColor(const QColor& color);
    QColor GetExternalBoundaryColor() const;
    void SetExternalBoundaryColor(const QColor& color);
    QColor GetInternalBoundaryColor() const;
    void SetInternalBoundaryColor(const QColor& color);
    QColor GetInactiveBoundariesColor() const;
    void SetInactiveBoundariesColor(const QColor& color);
    QColor GetCoverageColor() const;
    void SetCoverageColor(const QColor& color);
    QColor GetVehicleColor() const;
    void SetVehicleColor(const QColor& color);
    QColor GetTrackColor() const;
    void SetTrackColor(const QColor& color);
    QColor GetMapColor() const;
    void SetMapColor(const QColor& color);
    QColor GetExclusionZoneColor() const;
    void SetExclusionZoneColor(const QColor& color);
    QColor GetGridColor() const;
    void SetGridColor(const QColor& color);
    QColor GetCrossHairsColor() const;
    void SetCrossHairsColor(const QColor& color);

    int GetBackgroundNumber() const;
    void SetBackgroundNumber(int number);

private:
    TColorSettings* m_Target;
};
