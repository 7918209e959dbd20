#pragma once

#include "platform/EParamID.h"
#include "platform/Export.h"

#include <QColor>

/// Colours of map and controls, for day and for night.
///
/// Every value is a parameter of the host's store. Each element has one parameter for each scheme; getters and setters
/// look at the mode at the moment of the call, so a colour set at night leaves the day's as it was. No default is built
/// in: an element that the store does not hold, or holds as something that is no colour, reads as an invalid QColor; an
/// absent level or number reads as 0; an absent mode reads as night.
///
/// Holds no data and takes no lock: each call is one or two reads and at most one write of the store. A mode switch
/// between the two reads of another thread's call can give that call the old scheme's value.
class CABSETTINGS_EXPORT TColorSettings
{
public:
    virtual ~TColorSettings();

    /// There is nothing to restore: the values live in the store.
    void Restore();

    /// True for the day scheme, false for the night scheme. Switching changes no colour.
    void SetDayMode(bool day);
    bool IsDayMode() const;

    /// 0 by day, 1 by night: the index into the key arrays below.
    int GetKeyIndex() const;

    /// Night levels, read only, on scales of the host's.
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

    /// Number of the background picture, of the host's.
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
