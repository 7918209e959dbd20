#pragma once

#include "colors/TColorSettings.h"
#include "logs/TDiagnosticLog.h"
#include "platform/Export.h"
#include "region/TRegionSettings.h"
#include "system/TSystemSettings.h"

/// Everything the display can set, as one object.
///
/// The host constructs a single TSettings after its parameter store, publishes its address in Settings, calls
/// Initialise() and Restore(), and destroys it at shut-down. Its members are reached only through the façades
/// (TColorSettingsProxy, TRegionSettingsProxy, TSystemSettingsProxy, TUserDiagnosticLogProxy,
/// TNEMADiagnosticLogProxy), from any thread.
class CABSETTINGS_EXPORT TSettings
{
public:
    /// Reads the file numbers of both logs from the store; ConfigManager must be set.
    TSettings();

    /// Closes both logs; what they have staged is written.
    virtual ~TSettings();

    TSettings(const TSettings&) = delete;
    TSettings& operator=(const TSettings&) = delete;

    /// Gives the active items their default names, in memory only. Call once, before Restore().
    virtual void Initialise();

    /// Brings back the clock offset and the active items from the store, then opens the user log and the NMEA log on
    /// the internal drive. Settings must point to this object, since it goes through the façades.
    void Restore();

private:
    friend class SettingsMembers;

    TColorSettings m_ColorSettings;
    TRegionSettings m_RegionSettings;
    TSystemSettings m_SystemSettings;
    TDiagnosticLog m_UserLog;
    TDiagnosticLog m_NEMALog;
};

/// The one TSettings: null until the host sets it. Every façade takes its target from here when it is constructed,
/// without a check for null.
CABSETTINGS_EXPORT extern TSettings* Settings;
