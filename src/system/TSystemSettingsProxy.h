#pragma once

#include "access/TLockedTarget.h"
#include "platform/Export.h"

#include <QFileInfo>
#include <QMutex>
#include <QString>

class TSystemSettings;

/// Façade of the system settings of Settings; see TSystemSettings for what the operations do.
///
///     const TSystemSettingsProxy system;
///     const QString job = system.GetActiveJobPath(); // empty when no field is active
///
/// Safe from any thread: each call holds Mutex, except IsDevBuild(), IsAlphaBuild() and IsBetaBuild(). The mutex is not
/// recursive: a thread that holds it already waits for ever. Default names lock TRegionSettingsProxy while this lock is
/// held; the reverse order never occurs.
class CABSETTINGS_EXPORT TSystemSettingsProxy
{
public:
    TSystemSettingsProxy();
    virtual ~TSystemSettingsProxy();

    void Lock() const;
    void Unlock() const;
    static QMutex Mutex;

    void Restore();

    // The build
    bool IsDevBuild() const;
    bool IsAlphaBuild() const;
    bool IsBetaBuild() const;
    void SetSoftwareVersion(const QString& version);
    QString GetSoftwareVersion(bool beautify) const;
    QString BeautifyVersion(QString version) const;
    QString GetPackageName() const;
    QString GetReprogrammingPackageFilename() const;
    QString GetChecksumFilename() const;
    bool GetReprogrammingPackagePath(QString& path) const;
    bool GetReprogrammingChecksumPath(QString& path) const;

    // Drives, memory and load
    QFileInfo GetInternalDrive() const;
    QString GetInternalDrivePath() const;
    bool GetExternalDrive(QFileInfo& drive) const;
    bool GetExternalDrivePath(QString& path) const;
    bool IsExternalDrivePresent() const;
    int GetFileSystemInfo(unsigned* total, unsigned* free) const;
    int GetUSBMemoryInfo(int* total, int* free) const;
    int GetMainMemoryInfo(unsigned* total, unsigned* free) const;
    int GetCpuLoadInfo(float* load) const;

    // Active items
    QString GetActiveJob() const;
    void SetActiveJob(const QString& name);
    QString GetActiveJobPath() const;
    QString GetActiveBoundary() const;
    void SetActiveBoundary(const QString& name);
    QString GetActiveBoundaryPath() const;
    QString GetActiveABLine() const;
    void SetActiveABLine(const QString& name);
    QString GetDefaultABLineName() const;
    QString GetActiveABLinePath() const;
    QString GetActivePivot() const;
    void SetActivePivot(const QString& name);
    QString GetDefaultPivotName() const;
    QString GetActivePivotPath() const;
    QString GetActiveCurve() const;
    void SetActiveCurve(const QString& name);
    QString GetDefaultCurveName() const;
    QString GetActiveCurvePath() const;
    QString GetActiveOptimalLinesShapeFile() const;
    void SetActiveOptimalLinesShapeFile(const QString& name);
    QString GetDefaultOptimalLinesShapeFileName() const;
    QString GetActiveOptimalLinesShapeFilePath() const;
    QString GetActiveProjectLinesShapeFile() const;
    void SetActiveProjectLinesShapeFile(const QString& name);
    QString GetDefaultProjectLinesShapeFileName() const;
    QString GetActiveProjectLinesShapeFilePath() const;
    QString GetActiveShapeFile() const;
    void SetActiveShapeFileName(const QString& name);
    void SetActiveShapeFile(const QString& name);
    QString GetActiveShapeFilePath() const;
    QString GetActiveImplement() const;
    void SetActiveImplement(const QString& name);
    QString GetActiveImplementPath() const;
    QString GetActiveVehicle() const;
    void SetActiveVehicle(const QString& name);
    QString GetActiveVehiclePath() const;
    QString GetActiveSprayer() const;
    void SetActiveSprayer(const QString& name);
    QString GetActiveSprayerPath() const;
    QString GetActiveReportPath() const;
    QString GetActiveCoveragePath() const;
    QString GetShapeFilePath() const;
    QString GetImplementPathForName(const QString& name) const;
    bool UpdateLowRAMRecordingOff(bool off);
    bool UpdateLowFlashRecordingOff(bool off);
    bool IsLowRAMRecordingOff() const;
    bool IsLowFlashRecordingOff() const;

    // Clients, farms, fields and jobs
    void SetCFFRoot(const QString& root);
    QString GetCFFRoot() const;
    QString GetCFFPath(const QString& client, const QString& farm, const QString& field) const;
    QString GetCFFPath() const;
    QString GetJobFilePath(const QString& client, const QString& farm, const QString& field, const QString& job) const;
    QString GetAreaCountersPath(const QString& client, const QString& farm, const QString& field,
                                const QString& job) const;
    QString GetFlagPointsFilePath(const QString& client, const QString& farm, const QString& field) const;
    QString GetCoverageFilePath(const QString& client, const QString& farm, const QString& field,
                                const QString& job) const;
    QString GetPerPointDataJobPath(const QString& client, const QString& farm, const QString& field,
                                   const QString& job) const;
    QString GetBoundaryFilePath(const QString& client, const QString& farm, const QString& field) const;
    QString GetExclusionZoneShapefilePath(const QString& client, const QString& farm, const QString& field) const;
    QString GetActiveFieldPath() const;
    QString GetActiveFlagPointsFilePath() const;
    QString GetActivePerPointDataJobPath() const;
    QString GetActivePerPointDataElevationPath() const;
    QString GetActiveAreaCountersPath() const;
    QString GetOffsetLinesShapeFilePathA() const;
    QString GetOffsetLinesShapeFilePathB() const;
    QString GetABLinePath(const QString& name) const;
    QString GetDefaultJobName() const;
    long long GetNumberOfJobs() const;

    // Logs and exchange
    bool GetExternalUserLogPath(QString& path) const;
    QString GetInternalUserLogPath() const;
    bool GetExternalNemaLogPath(QString& path) const;
    QString GetInternalNemaLogPath() const;
    QString GetPerformanceTempLogPath() const;
    QString GetActivePerformanceTestLogPath(const QString& tag) const;
    QString GetVelmorTempDownloadFolderPath() const;
    QString GetVelmorDownloadFolderPath() const;
    QString GetVelmorTempUploadFolderPath() const;
    QString GetVelmorUploadFolderPath() const;
    QString GetRemoteViewProfilePath() const;
    QString GetRemoteViewProfilePath(unsigned index) const;
    QString GetTempGuidanceCurveFilePath() const;

private:
    TLockedTarget<TSystemSettings> m_Target;
};
