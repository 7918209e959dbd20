#pragma once

#include "platform/EParamID.h"
#include "platform/Export.h"

#include <QColor>

/// Colours of map and controls, for day and for night.
///
///     TColorSettingsProxy colors;
///     colors.SetDayMode(false);
///     map->setBackground(colors.GetMapColor()); // the colour for the night
///
/// Every value is a parameter of the host's store. Each element has two parameters, one for the day and one for the
/// night; the mode at the moment of the call decides which one is read or written. There are no built-in defaults. An
/// element that is absent, or is not a colour, reads as an invalid QColor. An absent level or number reads as 0, an
/// absent mode as night.
///
/// Has no data and no lock: a call reads the store once or twice and writes it at most once. If another thread changes
/// the mode between the two reads, the value is that of the mode before.
class CABSETTINGS_EXPORT TColorSettings
{
public:
    virtual ~TColorSettings();

    /// Does nothing: the values are in the store.
    void Restore();

    /// True for the day, false for the night. A change of the mode changes no stored colour.
    void SetDayMode(bool day);
    bool IsDayMode() const;

    /// 0 by day, 1 by night: the index into the key arrays below.
    int GetKeyIndex() const;

    /// Night levels, which can only be read. The host defines their scales.
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

    /// Number of the background picture. The host defines the numbers.
    int GetBackgroundNumber() const;
    void SetBackgroundNumber(int number);

    /// The two parameters of each element: day, then night.
    static const EParamID TextColorKey[2];
    static const EParamID ButtonColorKey[2];
    static const EParamID ButtonTextColorKey[2];
    static const EParamID BackgroundColorKey[2];
    static const EParamID TitleColorKey[2];
    static const EParamID ExternalBoundaryColorKey[2];
    static const EParamID InternalBoundaryColorKey[2];
    static const EParamID InactiveBoundariesColorKey[2];
    static const EParamID CoverageColorKey[2];
    static const EParamID VehicleColorKey[2];
    static const EParamID TrackColorKey[2];
    static const EParamID MapColorKey[2];
    static const EParamID ExclusionZoneColorKey[2];
    static const EParamID GridColorKey[2];
    static const EParamID CrossHairsColorKey[2];
    static const EParamID BackgroundNumberKey[2];

private:
    QColor ReadColor(const EParamID (&key)[2]) const;
    void WriteColor(const EParamID (&key)[2], const QColor& color);
};
