#pragma once

#include "colors/TColorSettings.h"
#include "logs/TDiagnosticLog.h"
#include "platform/Export.h"
#include "region/TRegionSettings.h"
#include "system/TSystemSettings.h"

/// All settings of the display, as one object. The host constructs one TSettings after its parameter store:
///
///     TSettings settings;
///     Settings = &settings;
///     settings.Initialise();
///     settings.Restore();
///
/// The members are used through the façades only, from any thread: TColorSettingsProxy, TRegionSettingsProxy,
/// TSystemSettingsProxy, TUserDiagnosticLogProxy and TNEMADiagnosticLogProxy. At shut-down the host destroys the object
/// and sets Settings to null.
class CABSETTINGS_EXPORT TSettings
{
public:
    /// Reads the file numbers of both logs from the store; ConfigManager must be set.
    TSettings();

    /// Writes what both logs have staged and closes them.
    virtual ~TSettings();

    TSettings(const TSettings&) = delete;
    TSettings& operator=(const TSettings&) = delete;

    /// Gives the active items their default names, in memory only. Call once, before Restore().
    virtual void Initialise();

    /// Restores the clock offset and the active items from the store, then opens the user log and the NMEA log on the
    /// internal drive. Uses the façades, so Settings must point to this object.
    void Restore();

private:
    friend class TSettingsMembers;

    TColorSettings m_ColorSettings;
    TRegionSettings m_RegionSettings;
    TSystemSettings m_SystemSettings;
    TDiagnosticLog m_UserLog;
    TDiagnosticLog m_NEMALog;
};

/// The settings in use: null until the host sets it. A façade reads it when it is constructed and does not check for
/// null.
CABSETTINGS_EXPORT extern TSettings* Settings;
