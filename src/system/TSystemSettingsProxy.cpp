#include "system/TSystemSettingsProxy.h"

#include "access/TSettingsMembers.h"
#include "system/TSystemSettings.h"

#include <utility>

using Proxy = TSystemSettingsProxy;

QMutex Proxy::Mutex;

Proxy::TSystemSettingsProxy() : m_Target(TSettingsMembers::System()) {}
Proxy::~TSystemSettingsProxy() = default;

void Proxy::Lock() const { Mutex.lock(); }
void Proxy::Unlock() const { Mutex.unlock(); }

void Proxy::Restore() { m_Target.By(*this)->Restore(); }

// These are constants: neither the object nor the lock is needed.
bool Proxy::IsDevBuild() const { return TSystemSettings::m_isDevBuild; }
bool Proxy::IsAlphaBuild() const { return TSystemSettings::m_isAlphaBuild; }
bool Proxy::IsBetaBuild() const { return TSystemSettings::m_isBetaBuild; }

void Proxy::SetSoftwareVersion(const QString& version) { m_Target.By(*this)->SetSoftwareVersion(version); }
QString Proxy::GetSoftwareVersion(bool beautify) const { return m_Target.By(*this)->GetSoftwareVersion(beautify); }
QString Proxy::BeautifyVersion(QString version) const
{
    return m_Target.By(*this)->BeautifyVersion(std::move(version));
}
QString Proxy::GetPackageName() const { return m_Target.By(*this)->GetPackageName(); }
QString Proxy::GetReprogrammingPackageFilename() const { return m_Target.By(*this)->GetReprogrammingPackageFilename(); }
QString Proxy::GetChecksumFilename() const { return m_Target.By(*this)->GetChecksumFilename(); }
bool Proxy::GetReprogrammingPackagePath(QString& path) const
{
    return m_Target.By(*this)->GetReprogrammingPackagePath(path);
}
bool Proxy::GetReprogrammingChecksumPath(QString& path) const
{
    return m_Target.By(*this)->GetReprogrammingChecksumPath(path);
}

QFileInfo Proxy::GetInternalDrive() const { return m_Target.By(*this)->GetInternalDrive(); }
QString Proxy::GetInternalDrivePath() const { return m_Target.By(*this)->GetInternalDrivePath(); }
bool Proxy::GetExternalDrive(QFileInfo& drive) const { return m_Target.By(*this)->GetExternalDrive(drive); }
bool Proxy::GetExternalDrivePath(QString& path) const { return m_Target.By(*this)->GetExternalDrivePath(path); }
bool Proxy::IsExternalDrivePresent() const { return m_Target.By(*this)->IsExternalDrivePresent(); }
int Proxy::GetFileSystemInfo(unsigned* total, unsigned* free) const
{
    return m_Target.By(*this)->GetFileSystemInfo(total, free);
}
int Proxy::GetUSBMemoryInfo(int* total, int* free) const { return m_Target.By(*this)->GetUSBMemoryInfo(total, free); }
int Proxy::GetMainMemoryInfo(unsigned* total, unsigned* free) const
{
    return m_Target.By(*this)->GetMainMemoryInfo(total, free);
}
int Proxy::GetCpuLoadInfo(float* load) const { return m_Target.By(*this)->GetCpuLoadInfo(load); }

QString Proxy::GetActiveJob() const { return m_Target.By(*this)->GetActiveJob(); }
void Proxy::SetActiveJob(const QString& name) { m_Target.By(*this)->SetActiveJob(name); }
QString Proxy::GetActiveJobPath() const { return m_Target.By(*this)->GetActiveJobPath(); }
QString Proxy::GetActiveBoundary() const { return m_Target.By(*this)->GetActiveBoundary(); }
void Proxy::SetActiveBoundary(const QString& name) { m_Target.By(*this)->SetActiveBoundary(name); }
QString Proxy::GetActiveBoundaryPath() const { return m_Target.By(*this)->GetActiveBoundaryPath(); }
QString Proxy::GetActiveABLine() const { return m_Target.By(*this)->GetActiveABLine(); }
void Proxy::SetActiveABLine(const QString& name) { m_Target.By(*this)->SetActiveABLine(name); }
QString Proxy::GetDefaultABLineName() const { return m_Target.By(*this)->GetDefaultABLineName(); }
QString Proxy::GetActiveABLinePath() const { return m_Target.By(*this)->GetActiveABLinePath(); }
QString Proxy::GetActivePivot() const { return m_Target.By(*this)->GetActivePivot(); }
void Proxy::SetActivePivot(const QString& name) { m_Target.By(*this)->SetActivePivot(name); }
QString Proxy::GetDefaultPivotName() const { return m_Target.By(*this)->GetDefaultPivotName(); }
QString Proxy::GetActivePivotPath() const { return m_Target.By(*this)->GetActivePivotPath(); }
QString Proxy::GetActiveCurve() const { return m_Target.By(*this)->GetActiveCurve(); }
void Proxy::SetActiveCurve(const QString& name) { m_Target.By(*this)->SetActiveCurve(name); }
QString Proxy::GetDefaultCurveName() const { return m_Target.By(*this)->GetDefaultCurveName(); }
QString Proxy::GetActiveCurvePath() const { return m_Target.By(*this)->GetActiveCurvePath(); }
QString Proxy::GetActiveOptimalLinesShapeFile() const { return m_Target.By(*this)->GetActiveOptimalLinesShapeFile(); }
void Proxy::SetActiveOptimalLinesShapeFile(const QString& name)
{
    m_Target.By(*this)->SetActiveOptimalLinesShapeFile(name);
}
QString Proxy::GetDefaultOptimalLinesShapeFileName() const
{
    return m_Target.By(*this)->GetDefaultOptimalLinesShapeFileName();
}
QString Proxy::GetActiveOptimalLinesShapeFilePath() const
{
    return m_Target.By(*this)->GetActiveOptimalLinesShapeFilePath();
}
QString Proxy::GetActiveProjectLinesShapeFile() const { return m_Target.By(*this)->GetActiveProjectLinesShapeFile(); }
void Proxy::SetActiveProjectLinesShapeFile(const QString& name)
{
    m_Target.By(*this)->SetActiveProjectLinesShapeFile(name);
}
QString Proxy::GetDefaultProjectLinesShapeFileName() const
{
    return m_Target.By(*this)->GetDefaultProjectLinesShapeFileName();
}
QString Proxy::GetActiveProjectLinesShapeFilePath() const
{
    return m_Target.By(*this)->GetActiveProjectLinesShapeFilePath();
}
QString Proxy::GetActiveShapeFile() const { return m_Target.By(*this)->GetActiveShapeFile(); }
void Proxy::SetActiveShapeFileName(const QString& name) { m_Target.By(*this)->SetActiveShapeFileName(name); }
void Proxy::SetActiveShapeFile(const QString& name) { m_Target.By(*this)->SetActiveShapeFile(name); }
QString Proxy::GetActiveShapeFilePath() const { return m_Target.By(*this)->GetActiveShapeFilePath(); }
QString Proxy::GetActiveImplement() const { return m_Target.By(*this)->GetActiveImplement(); }
void Proxy::SetActiveImplement(const QString& name) { m_Target.By(*this)->SetActiveImplement(name); }
QString Proxy::GetActiveImplementPath() const { return m_Target.By(*this)->GetActiveImplementPath(); }
QString Proxy::GetActiveVehicle() const { return m_Target.By(*this)->GetActiveVehicle(); }
void Proxy::SetActiveVehicle(const QString& name) { m_Target.By(*this)->SetActiveVehicle(name); }
QString Proxy::GetActiveVehiclePath() const { return m_Target.By(*this)->GetActiveVehiclePath(); }
QString Proxy::GetActiveSprayer() const { return m_Target.By(*this)->GetActiveSprayer(); }
void Proxy::SetActiveSprayer(const QString& name) { m_Target.By(*this)->SetActiveSprayer(name); }
QString Proxy::GetActiveSprayerPath() const { return m_Target.By(*this)->GetActiveSprayerPath(); }
QString Proxy::GetActiveReportPath() const { return m_Target.By(*this)->GetActiveReportPath(); }
QString Proxy::GetActiveCoveragePath() const { return m_Target.By(*this)->GetActiveCoveragePath(); }
QString Proxy::GetShapeFilePath() const { return m_Target.By(*this)->GetShapeFilePath(); }
QString Proxy::GetImplementPathForName(const QString& name) const
{
    return m_Target.By(*this)->GetImplementPathForName(name);
}
bool Proxy::UpdateLowRAMRecordingOff(bool off) { return m_Target.By(*this)->UpdateLowRAMRecordingOff(off); }
bool Proxy::UpdateLowFlashRecordingOff(bool off) { return m_Target.By(*this)->UpdateLowFlashRecordingOff(off); }
bool Proxy::IsLowRAMRecordingOff() const { return m_Target.By(*this)->IsLowRAMRecordingOff(); }
bool Proxy::IsLowFlashRecordingOff() const { return m_Target.By(*this)->IsLowFlashRecordingOff(); }

void Proxy::SetCFFRoot(const QString& root) { m_Target.By(*this)->SetCFFRoot(root); }
QString Proxy::GetCFFRoot() const { return m_Target.By(*this)->GetCFFRoot(); }
QString Proxy::GetCFFPath(const QString& client, const QString& farm, const QString& field) const
{
    return m_Target.By(*this)->GetCFFPath(client, farm, field);
}
QString Proxy::GetCFFPath() const { return m_Target.By(*this)->GetCFFPath(); }
QString Proxy::GetJobFilePath(const QString& client, const QString& farm, const QString& field,
                              const QString& job) const
{
    return m_Target.By(*this)->GetJobFilePath(client, farm, field, job);
}
QString Proxy::GetAreaCountersPath(const QString& client, const QString& farm, const QString& field,
                                   const QString& job) const
{
    return m_Target.By(*this)->GetAreaCountersPath(client, farm, field, job);
}
QString Proxy::GetFlagPointsFilePath(const QString& client, const QString& farm, const QString& field) const
{
    return m_Target.By(*this)->GetFlagPointsFilePath(client, farm, field);
}
QString Proxy::GetCoverageFilePath(const QString& client, const QString& farm, const QString& field,
                                   const QString& job) const
{
    return m_Target.By(*this)->GetCoverageFilePath(client, farm, field, job);
}
QString Proxy::GetPerPointDataJobPath(const QString& client, const QString& farm, const QString& field,
                                      const QString& job) const
{
    return m_Target.By(*this)->GetPerPointDataJobPath(client, farm, field, job);
}
QString Proxy::GetBoundaryFilePath(const QString& client, const QString& farm, const QString& field) const
{
    return m_Target.By(*this)->GetBoundaryFilePath(client, farm, field);
}
QString Proxy::GetExclusionZoneShapefilePath(const QString& client, const QString& farm, const QString& field) const
{
    return m_Target.By(*this)->GetExclusionZoneShapefilePath(client, farm, field);
}
QString Proxy::GetActiveFieldPath() const { return m_Target.By(*this)->GetActiveFieldPath(); }
QString Proxy::GetActiveFlagPointsFilePath() const { return m_Target.By(*this)->GetActiveFlagPointsFilePath(); }
QString Proxy::GetActivePerPointDataJobPath() const { return m_Target.By(*this)->GetActivePerPointDataJobPath(); }
QString Proxy::GetActivePerPointDataElevationPath() const
{
    return m_Target.By(*this)->GetActivePerPointDataElevationPath();
}
QString Proxy::GetActiveAreaCountersPath() const { return m_Target.By(*this)->GetActiveAreaCountersPath(); }
QString Proxy::GetOffsetLinesShapeFilePathA() const { return m_Target.By(*this)->GetOffsetLinesShapeFilePathA(); }
QString Proxy::GetOffsetLinesShapeFilePathB() const { return m_Target.By(*this)->GetOffsetLinesShapeFilePathB(); }
QString Proxy::GetABLinePath(const QString& name) const { return m_Target.By(*this)->GetABLinePath(name); }
QString Proxy::GetDefaultJobName() const { return m_Target.By(*this)->GetDefaultJobName(); }
long long Proxy::GetNumberOfJobs() const { return m_Target.By(*this)->GetNumberOfJobs(); }

bool Proxy::GetExternalUserLogPath(QString& path) const { return m_Target.By(*this)->GetExternalUserLogPath(path); }
QString Proxy::GetInternalUserLogPath() const { return m_Target.By(*this)->GetInternalUserLogPath(); }
bool Proxy::GetExternalNemaLogPath(QString& path) const { return m_Target.By(*this)->GetExternalNemaLogPath(path); }
QString Proxy::GetInternalNemaLogPath() const { return m_Target.By(*this)->GetInternalNemaLogPath(); }
QString Proxy::GetPerformanceTempLogPath() const { return m_Target.By(*this)->GetPerformanceTempLogPath(); }
QString Proxy::GetActivePerformanceTestLogPath(const QString& tag) const
{
    return m_Target.By(*this)->GetActivePerformanceTestLogPath(tag);
}
QString Proxy::GetVelmorTempDownloadFolderPath() const { return m_Target.By(*this)->GetVelmorTempDownloadFolderPath(); }
QString Proxy::GetVelmorDownloadFolderPath() const { return m_Target.By(*this)->GetVelmorDownloadFolderPath(); }
QString Proxy::GetVelmorTempUploadFolderPath() const { return m_Target.By(*this)->GetVelmorTempUploadFolderPath(); }
QString Proxy::GetVelmorUploadFolderPath() const { return m_Target.By(*this)->GetVelmorUploadFolderPath(); }
QString Proxy::GetRemoteViewProfilePath() const { return m_Target.By(*this)->GetRemoteViewProfilePath(); }
QString Proxy::GetRemoteViewProfilePath(unsigned index) const
{
    return m_Target.By(*this)->GetRemoteViewProfilePath(index);
}
QString Proxy::GetTempGuidanceCurveFilePath() const { return m_Target.By(*this)->GetTempGuidanceCurveFilePath(); }
