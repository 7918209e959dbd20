#include "settings/TSettings.h"

#include "access/TSettingsMembers.h"
#include "colors/TColorSettingsProxy.h"
#include "logs/TNEMADiagnosticLogProxy.h"
#include "logs/TUserDiagnosticLogProxy.h"
#include "region/TRegionSettingsProxy.h"
#include "system/TSystemSettingsProxy.h"

TSettings* Settings = nullptr;

// The user log is not staged: its last lines show why a display crashed. NMEA traffic is dense, so it is staged; its
// files are small enough to be sent to a service desk.
TSettings::TSettings()
    : m_UserLog(0, 0x100000, 4, PARAM_USER_LOG_FILE_NUMBER), m_NEMALog(1024, 0x40000, 4, PARAM_NMEA_LOG_FILE_NUMBER)
{}

TSettings::~TSettings() = default;

void TSettings::Initialise() { m_SystemSettings.Initialise(); }

void TSettings::Restore()
{
    TColorSettingsProxy colors;
    TRegionSettingsProxy region;
    TSystemSettingsProxy system;
    TUserDiagnosticLogProxy userLog;
    TNEMADiagnosticLogProxy nmeaLog;

    colors.Restore();
    region.Restore();
    system.Restore();
    userLog.Restore(system.GetInternalUserLogPath(), 0, 0);
    nmeaLog.Restore(system.GetInternalNemaLogPath(), 0, 0);
}

TColorSettings& TSettingsMembers::Colors() { return Settings->m_ColorSettings; }
TRegionSettings& TSettingsMembers::Region() { return Settings->m_RegionSettings; }
TSystemSettings& TSettingsMembers::System() { return Settings->m_SystemSettings; }
TDiagnosticLog& TSettingsMembers::UserLog() { return Settings->m_UserLog; }
TDiagnosticLog& TSettingsMembers::NMEALog() { return Settings->m_NEMALog; }
