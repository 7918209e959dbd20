#include "FacadeOperations.h"
#include "Latin1.h"

#include "colors/TColorSettings.h"
#include "colors/TColorSettingsProxy.h"
#include "logs/TDiagnosticLogProxy.h"
#include "region/TRegionSettings.h"
#include "region/TRegionSettingsProxy.h"
#include "system/TSystemSettings.h"
#include "system/TSystemSettingsProxy.h"

#include <QColor>
#include <QDateTime>
#include <QFileInfo>
#include <QLocale>

namespace {

QString Text(const QString& value) { return value; }
QString Text(bool value) { return QLatin1String(value ? "true" : "false"); }
QString Text(const QDate& value) { return value.toString(Qt::ISODate); }
QString Text(const QTime& value) { return QLocale::c().toString(value, QLatin1String("hh:mm:ss.zzz")); }
QString Text(const QDateTime& value) { return Text(value.date()) + QLatin1Char(' ') + Text(value.time()); }
QString Text(const QFileInfo& value) { return value.filePath(); }
QString Text(const QColor& value) { return value.isValid() ? value.name() : Latin1("no colour"); }
QString Text(int value) { return QString::number(value); }
QString Text(unsigned value) { return QString::number(value); }
QString Text(long long value) { return QString::number(value); }

template <class... Value>
QStringList Told(const Value&... value)
{
    QStringList texts;
    (texts.append(Text(value)), ...);
    return texts;
}

QStringList Told(const TDiagnosticLog::tagExportResult& result)
{
    return Told(result.filesFound, result.filesHandled, result.allCopied);
}

const QString Client = Latin1("Jones"); // other names than the active ones
const QString Farm = Latin1("South");
const QString Field = Latin1("F2");
const QString Job = Latin1("J_2");
const QString Name = Latin1("Some name");

QDate SomeDate() { return QDate(1999, 12, 31); }

QString drivePath;

QString OnDrive(const char* name) { return drivePath + Latin1(name); }

} // namespace

void SetDriveOfOperations(const QString& path) { drivePath = path; }

// clang-format off
const std::vector<tagSystemOperation>& SystemOperations()
{
    static const std::vector<tagSystemOperation> operations = {
        {"Restore",                               [](auto& s) { s.Restore(); return Told(); }},

        {"SetSoftwareVersion",                    [](auto& s) { s.SetSoftwareVersion(Name); return Told(); }, StaysInside},
        {"GetSoftwareVersion as set",             [](auto& s) { return Told(s.GetSoftwareVersion(false)); }, StaysInside},
        {"GetSoftwareVersion for users",          [](auto& s) { return Told(s.GetSoftwareVersion(true)); }, StaysInside},
        {"BeautifyVersion",                       [](auto& s) { return Told(s.BeautifyVersion(Latin1("1-r2"))); }, StaysInside},
        {"GetPackageName",                        [](auto& s) { return Told(s.GetPackageName()); }, StaysInside},
        {"GetReprogrammingPackageFilename",       [](auto& s) { return Told(s.GetReprogrammingPackageFilename()); }, StaysInside},
        {"GetChecksumFilename",                   [](auto& s) { return Told(s.GetChecksumFilename()); }, StaysInside},
        {"GetReprogrammingPackagePath",           [](auto& s) { QString path; const bool is = s.GetReprogrammingPackagePath(path); return Told(is, path); }},
        {"GetReprogrammingChecksumPath",          [](auto& s) { QString path; const bool is = s.GetReprogrammingChecksumPath(path); return Told(is, path); }},

        {"GetInternalDrive",                      [](auto& s) { return Told(s.GetInternalDrive()); }},
        {"GetInternalDrivePath",                  [](auto& s) { return Told(s.GetInternalDrivePath()); }},
        {"GetExternalDrive",                      [](auto& s) { QFileInfo drive; const bool is = s.GetExternalDrive(drive); return Told(is, drive); }},
        {"GetExternalDrivePath",                  [](auto& s) { QString path; const bool is = s.GetExternalDrivePath(path); return Told(is, path); }},
        {"IsExternalDrivePresent",                [](auto& s) { return Told(s.IsExternalDrivePresent()); }},
        {"GetUSBMemoryInfo",                      [](auto& s) { int total = -1; int free = -1; const int result = s.GetUSBMemoryInfo(&total, &free); return Told(result, total, free); }},

        // What the machine does meanwhile changes free space and load: of these only the range is told.
        {"GetFileSystemInfo",                     [](auto& s) { unsigned total = 0; unsigned free = 1; const int result = s.GetFileSystemInfo(&total, &free); return Told(result, total, free <= total); }},
        {"GetMainMemoryInfo",                     [](auto& s) { unsigned total = 0; unsigned free = 1; const int result = s.GetMainMemoryInfo(&total, &free); return Told(result, total, free <= total); }, StaysInside},
        {"GetCpuLoadInfo",                        [](auto& s) { float load = -1; const int result = s.GetCpuLoadInfo(&load); return Told(result, load >= 0); }, StaysInside},

        {"GetActiveJob",                          [](auto& s) { return Told(s.GetActiveJob()); }},
        {"SetActiveJob",                          [](auto& s) { s.SetActiveJob(Name); return Told(); }},
        {"GetActiveJobPath",                      [](auto& s) { return Told(s.GetActiveJobPath()); }},
        {"GetActiveBoundary",                     [](auto& s) { return Told(s.GetActiveBoundary()); }},
        {"SetActiveBoundary",                     [](auto& s) { s.SetActiveBoundary(Name); return Told(); }},
        {"GetActiveBoundaryPath",                 [](auto& s) { return Told(s.GetActiveBoundaryPath()); }},
        {"GetActiveABLine",                       [](auto& s) { return Told(s.GetActiveABLine()); }},
        {"SetActiveABLine",                       [](auto& s) { s.SetActiveABLine(Name); return Told(); }},
        {"GetDefaultABLineName",                  [](auto& s) { return Told(s.GetDefaultABLineName()); }, CallsHostUnderBoth},
        {"GetActiveABLinePath",                   [](auto& s) { return Told(s.GetActiveABLinePath()); }},
        {"GetActivePivot",                        [](auto& s) { return Told(s.GetActivePivot()); }},
        {"SetActivePivot",                        [](auto& s) { s.SetActivePivot(Name); return Told(); }},
        {"GetDefaultPivotName",                   [](auto& s) { return Told(s.GetDefaultPivotName()); }, CallsHostUnderBoth},
        {"GetActivePivotPath",                    [](auto& s) { return Told(s.GetActivePivotPath()); }},
        {"GetActiveCurve",                        [](auto& s) { return Told(s.GetActiveCurve()); }},
        {"SetActiveCurve",                        [](auto& s) { s.SetActiveCurve(Name); return Told(); }},
        {"GetDefaultCurveName",                   [](auto& s) { return Told(s.GetDefaultCurveName()); }, CallsHostUnderBoth},
        {"GetActiveCurvePath",                    [](auto& s) { return Told(s.GetActiveCurvePath()); }},
        {"GetActiveOptimalLinesShapeFile",        [](auto& s) { return Told(s.GetActiveOptimalLinesShapeFile()); }},
        {"SetActiveOptimalLinesShapeFile",        [](auto& s) { s.SetActiveOptimalLinesShapeFile(Name); return Told(); }},
        {"GetDefaultOptimalLinesShapeFileName",   [](auto& s) { return Told(s.GetDefaultOptimalLinesShapeFileName()); }, CallsHostUnderBoth},
        {"GetActiveOptimalLinesShapeFilePath",    [](auto& s) { return Told(s.GetActiveOptimalLinesShapeFilePath()); }},
        {"GetActiveProjectLinesShapeFile",        [](auto& s) { return Told(s.GetActiveProjectLinesShapeFile()); }},
        {"SetActiveProjectLinesShapeFile",        [](auto& s) { s.SetActiveProjectLinesShapeFile(Name); return Told(); }},
        {"GetDefaultProjectLinesShapeFileName",   [](auto& s) { return Told(s.GetDefaultProjectLinesShapeFileName()); }, CallsHostUnderBoth},
        {"GetActiveProjectLinesShapeFilePath",    [](auto& s) { return Told(s.GetActiveProjectLinesShapeFilePath()); }},
        {"GetActiveShapeFile",                    [](auto& s) { return Told(s.GetActiveShapeFile()); }},
        {"SetActiveShapeFileName",                [](auto& s) { s.SetActiveShapeFileName(Name); return Told(); }},
        {"SetActiveShapeFile",                    [](auto& s) { s.SetActiveShapeFile(Name); return Told(); }},
        {"GetActiveShapeFilePath",                [](auto& s) { return Told(s.GetActiveShapeFilePath()); }},
        {"GetActiveImplement",                    [](auto& s) { return Told(s.GetActiveImplement()); }},
        {"SetActiveImplement",                    [](auto& s) { s.SetActiveImplement(Name); return Told(); }},
        {"GetActiveImplementPath",                [](auto& s) { return Told(s.GetActiveImplementPath()); }},
        {"GetActiveVehicle",                      [](auto& s) { return Told(s.GetActiveVehicle()); }},
        {"SetActiveVehicle",                      [](auto& s) { s.SetActiveVehicle(Name); return Told(); }},
        {"GetActiveVehiclePath",                  [](auto& s) { return Told(s.GetActiveVehiclePath()); }},
        {"GetActiveSprayer",                      [](auto& s) { return Told(s.GetActiveSprayer()); }},
        {"SetActiveSprayer",                      [](auto& s) { s.SetActiveSprayer(Name); return Told(); }},
        {"GetActiveSprayerPath",                  [](auto& s) { return Told(s.GetActiveSprayerPath()); }},
        {"GetActiveReportPath",                   [](auto& s) { return Told(s.GetActiveReportPath()); }},
        {"GetActiveCoveragePath",                 [](auto& s) { return Told(s.GetActiveCoveragePath()); }},
        {"GetShapeFilePath",                      [](auto& s) { return Told(s.GetShapeFilePath()); }},
        {"GetImplementPathForName",               [](auto& s) { return Told(s.GetImplementPathForName(Name)); }},
        {"UpdateLowRAMRecordingOff to true",      [](auto& s) { return Told(s.UpdateLowRAMRecordingOff(true)); }, StaysInside},
        {"UpdateLowRAMRecordingOff to false",     [](auto& s) { return Told(s.UpdateLowRAMRecordingOff(false)); }, StaysInside},
        {"UpdateLowFlashRecordingOff to true",    [](auto& s) { return Told(s.UpdateLowFlashRecordingOff(true)); }, StaysInside},
        {"UpdateLowFlashRecordingOff to false",   [](auto& s) { return Told(s.UpdateLowFlashRecordingOff(false)); }, StaysInside},
        {"IsLowRAMRecordingOff",                  [](auto& s) { return Told(s.IsLowRAMRecordingOff()); }, StaysInside},
        {"IsLowFlashRecordingOff",                [](auto& s) { return Told(s.IsLowFlashRecordingOff()); }, StaysInside},

        {"SetCFFRoot",                            [](auto& s) { s.SetCFFRoot(Name); return Told(); }, StaysInside},
        {"GetCFFRoot",                            [](auto& s) { return Told(s.GetCFFRoot()); }, StaysInside},
        {"GetCFFPath",                            [](auto& s) { return Told(s.GetCFFPath(Client, Farm, Field)); }, StaysInside},
        {"GetCFFPath of the active field",        [](auto& s) { return Told(s.GetCFFPath()); }},
        {"GetJobFilePath",                        [](auto& s) { return Told(s.GetJobFilePath(Client, Farm, Field, Job)); }},
        {"GetAreaCountersPath",                   [](auto& s) { return Told(s.GetAreaCountersPath(Client, Farm, Field, Job)); }},
        {"GetFlagPointsFilePath",                 [](auto& s) { return Told(s.GetFlagPointsFilePath(Client, Farm, Field)); }},
        {"GetCoverageFilePath",                   [](auto& s) { return Told(s.GetCoverageFilePath(Client, Farm, Field, Job)); }},
        {"GetPerPointDataJobPath",                [](auto& s) { return Told(s.GetPerPointDataJobPath(Client, Farm, Field, Job)); }},
        {"GetBoundaryFilePath",                   [](auto& s) { return Told(s.GetBoundaryFilePath(Client, Farm, Field)); }},
        {"GetExclusionZoneShapefilePath",         [](auto& s) { return Told(s.GetExclusionZoneShapefilePath(Client, Farm, Field)); }},
        {"GetActiveFieldPath",                    [](auto& s) { return Told(s.GetActiveFieldPath()); }},
        {"GetActiveFlagPointsFilePath",           [](auto& s) { return Told(s.GetActiveFlagPointsFilePath()); }},
        {"GetActivePerPointDataJobPath",          [](auto& s) { return Told(s.GetActivePerPointDataJobPath()); }},
        {"GetActivePerPointDataElevationPath",    [](auto& s) { return Told(s.GetActivePerPointDataElevationPath()); }},
        {"GetActiveAreaCountersPath",             [](auto& s) { return Told(s.GetActiveAreaCountersPath()); }},
        {"GetOffsetLinesShapeFilePathA",          [](auto& s) { return Told(s.GetOffsetLinesShapeFilePathA()); }},
        {"GetOffsetLinesShapeFilePathB",          [](auto& s) { return Told(s.GetOffsetLinesShapeFilePathB()); }},
        {"GetABLinePath",                         [](auto& s) { return Told(s.GetABLinePath(Name)); }},
        {"GetDefaultJobName",                     [](auto& s) { return Told(s.GetDefaultJobName()); }},
        {"GetNumberOfJobs",                       [](auto& s) { return Told(s.GetNumberOfJobs()); }},

        {"GetExternalUserLogPath",                [](auto& s) { QString path; const bool is = s.GetExternalUserLogPath(path); return Told(is, path); }},
        {"GetInternalUserLogPath",                [](auto& s) { return Told(s.GetInternalUserLogPath()); }},
        {"GetExternalNemaLogPath",                [](auto& s) { QString path; const bool is = s.GetExternalNemaLogPath(path); return Told(is, path); }},
        {"GetInternalNemaLogPath",                [](auto& s) { return Told(s.GetInternalNemaLogPath()); }},
        {"GetPerformanceTempLogPath",             [](auto& s) { return Told(s.GetPerformanceTempLogPath()); }},
        {"GetActivePerformanceTestLogPath",       [](auto& s) { return Told(s.GetActivePerformanceTestLogPath(Name)); }, CallsHostUnderBoth},
        {"GetVelmorTempDownloadFolderPath",       [](auto& s) { return Told(s.GetVelmorTempDownloadFolderPath()); }},
        {"GetVelmorDownloadFolderPath",           [](auto& s) { return Told(s.GetVelmorDownloadFolderPath()); }},
        {"GetVelmorTempUploadFolderPath",         [](auto& s) { return Told(s.GetVelmorTempUploadFolderPath()); }},
        {"GetVelmorUploadFolderPath",             [](auto& s) { return Told(s.GetVelmorUploadFolderPath()); }},
        {"GetRemoteViewProfilePath",              [](auto& s) { return Told(s.GetRemoteViewProfilePath()); }},
        {"GetRemoteViewProfilePath of a number",  [](auto& s) { return Told(s.GetRemoteViewProfilePath(3u)); }},
        {"GetTempGuidanceCurveFilePath",          [](auto& s) { return Told(s.GetTempGuidanceCurveFilePath()); }, StaysInside},
    };
    return operations;
}

const std::vector<tagRegionOperation>& RegionOperations()
{
    static const std::vector<tagRegionOperation> operations = {
        {"GetLanguageExtension",                  [](auto& r) { return Told(r.GetLanguageExtension()); }},
        {"GetTimeString",                         [](auto& r) { return Told(r.GetTimeString()); }},
        {"GetDateString of a date",               [](auto& r) { return Told(r.GetDateString(SomeDate())); }},
        {"GetDateString",                         [](auto& r) { return Told(r.GetDateString()); }},
        {"GetDateTimeString",                     [](auto& r) { return Told(r.GetDateTimeString()); }},
        {"GetDateTimeStringWithSeconds",          [](auto& r) { return Told(r.GetDateTimeStringWithSeconds()); }},
        {"GetDate",                               [](auto& r) { return Told(r.GetDate()); }},
        {"GetTime",                               [](auto& r) { return Told(r.GetTime()); }},
        {"GetDateTime",                           [](auto& r) { return Told(r.GetDateTime()); }},
        {"IsGPSTimeRecieved",                     [](auto& r) { return Told(r.IsGPSTimeRecieved()); }, StaysInside},
        {"Restore",                               [](auto& r) { r.Restore(); return Told(); }},
        {"SetUTCTimeAndDate from GPS",            [](auto& r) { QTime time(1, 2, 3); QDate date = SomeDate(); const bool is = r.SetUTCTimeAndDate(time, date, true); return Told(is, time, date); }},
        {"SetUTCTimeAndDate not from GPS",        [](auto& r) { QTime time(1, 2, 3); QDate date = SomeDate(); const bool is = r.SetUTCTimeAndDate(time, date, false); return Told(is, time, date); }},
        {"SetUserDate",                           [](auto& r) { r.SetUserDate(2001, 2, 3); return Told(); }},
        {"SetUserTime",                           [](auto& r) { r.SetUserTime(4, 5, 6); return Told(); }},
        {"SetUserDateTime",                       [](auto& r) { r.SetUserDateTime(2001, 2, 3, 4, 5, 6); return Told(); }},
    };
    return operations;
}

const std::vector<tagColorOperation>& ColorOperations()
{
    static const QColor color(12, 34, 56);
    static const std::vector<tagColorOperation> operations = {
        {"Restore",                    [](auto& c) { c.Restore(); return Told(); }},
        {"SetDayMode to night",        [](auto& c) { c.SetDayMode(false); return Told(); }},
        {"SetDayMode to day",          [](auto& c) { c.SetDayMode(true); return Told(); }},
        {"IsDayMode",                  [](auto& c) { return Told(c.IsDayMode()); }},
        {"GetLightbarNightLevel",      [](auto& c) { return Told(c.GetLightbarNightLevel()); }},
        {"GetBacklightNightLevel",     [](auto& c) { return Told(c.GetBacklightNightLevel()); }},
        {"GetButtonLedNightLevel",     [](auto& c) { return Told(c.GetButtonLedNightLevel()); }},
        {"GetTextColor",               [](auto& c) { return Told(c.GetTextColor()); }},
        {"SetTextColor",               [](auto& c) { c.SetTextColor(color); return Told(); }},
        {"GetButtonColor",             [](auto& c) { return Told(c.GetButtonColor()); }},
        {"SetButtonColor",             [](auto& c) { c.SetButtonColor(color); return Told(); }},
        {"GetButtonTextColor",         [](auto& c) { return Told(c.GetButtonTextColor()); }},
        {"SetButtonTextColor",         [](auto& c) { c.SetButtonTextColor(color); return Told(); }},
        {"GetBackgroundColor",         [](auto& c) { return Told(c.GetBackgroundColor()); }},
        {"SetBackgroundColor",         [](auto& c) { c.SetBackgroundColor(color); return Told(); }},
        {"GetTitleColor",              [](auto& c) { return Told(c.GetTitleColor()); }},
        {"SetTitleColor",              [](auto& c) { c.SetTitleColor(color); return Told(); }},
        {"GetExternalBoundaryColor",   [](auto& c) { return Told(c.GetExternalBoundaryColor()); }},
        {"SetExternalBoundaryColor",   [](auto& c) { c.SetExternalBoundaryColor(color); return Told(); }},
        {"GetInternalBoundaryColor",   [](auto& c) { return Told(c.GetInternalBoundaryColor()); }},
        {"SetInternalBoundaryColor",   [](auto& c) { c.SetInternalBoundaryColor(color); return Told(); }},
        {"GetInactiveBoundariesColor", [](auto& c) { return Told(c.GetInactiveBoundariesColor()); }},
        {"SetInactiveBoundariesColor", [](auto& c) { c.SetInactiveBoundariesColor(color); return Told(); }},
        {"GetCoverageColor",           [](auto& c) { return Told(c.GetCoverageColor()); }},
        {"SetCoverageColor",           [](auto& c) { c.SetCoverageColor(color); return Told(); }},
        {"GetVehicleColor",            [](auto& c) { return Told(c.GetVehicleColor()); }},
        {"SetVehicleColor",            [](auto& c) { c.SetVehicleColor(color); return Told(); }},
        {"GetTrackColor",              [](auto& c) { return Told(c.GetTrackColor()); }},
        {"SetTrackColor",              [](auto& c) { c.SetTrackColor(color); return Told(); }},
        {"GetMapColor",                [](auto& c) { return Told(c.GetMapColor()); }},
        {"SetMapColor",                [](auto& c) { c.SetMapColor(color); return Told(); }},
        {"GetExclusionZoneColor",      [](auto& c) { return Told(c.GetExclusionZoneColor()); }},
        {"SetExclusionZoneColor",      [](auto& c) { c.SetExclusionZoneColor(color); return Told(); }},
        {"GetGridColor",               [](auto& c) { return Told(c.GetGridColor()); }},
        {"SetGridColor",               [](auto& c) { c.SetGridColor(color); return Told(); }},
        {"GetCrossHairsColor",         [](auto& c) { return Told(c.GetCrossHairsColor()); }},
        {"SetCrossHairsColor",         [](auto& c) { c.SetCrossHairsColor(color); return Told(); }},
        {"GetBackgroundNumber",        [](auto& c) { return Told(c.GetBackgroundNumber()); }},
        {"SetBackgroundNumber",        [](auto& c) { c.SetBackgroundNumber(17); return Told(); }},
    };
    return operations;
}

const std::vector<tagLogOperation>& LogOperations()
{
    static const std::vector<tagLogOperation> operations = {
        {"Restore of an open log",     [](auto& l) { return Told(l.Restore(OnDrive("/Logs/Other.csv"), 0, 0)); }, StaysInside},
        {"Restore of a closed log",    [](auto& l) { l.Close(); return Told(l.Restore(OnDrive("/Logs/Other.csv"), 0, 0)); }},
        {"Restore with a file count",  [](auto& l) { l.Close(); return Told(l.Restore(OnDrive("/Logs/Other.csv"), 1, 0)); }, StaysInside},
        {"Restore with a file size",   [](auto& l) { l.Close(); return Told(l.Restore(OnDrive("/Logs/Sized.csv"), 0, 1500)); }},
        {"Export",                     [](auto& l) { return Told(l.Export(OnDrive("/Exported"))); }, StaysInside},
        {"Close",                      [](auto& l) { l.Close(); return Told(); }, StaysInside},
        {"AddEntry",                   [](auto& l) { return Told(l.AddEntry(Name)); }},
        {"LogDiagnostic",              [](auto& l) { return Told(l.LogDiagnostic("raw bytes", 5)); }, StaysInside},
    };
    return operations;
}
// clang-format on
