#pragma once

class TColorSettings;
class TDiagnosticLog;
class TRegionSettings;
class TSystemSettings;

/// The members of the TSettings that the global pointer Settings refers to. Each façade takes its target from here when
/// it is constructed.
///
/// Declared below the rooms that use it and defined by the aggregate, so that no façade includes the aggregate. As with
/// Settings itself, there is no check for null.
class TSettingsMembers
{
public:
    static TColorSettings& Colors();
    static TRegionSettings& Region();
    static TSystemSettings& System();
    static TDiagnosticLog& UserLog();
    static TDiagnosticLog& NMEALog();
};
