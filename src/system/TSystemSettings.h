#pragma once

#include "platform/Export.h"
#include "system/TImplementPathSetting.h"
#include "system/TPathSetting.h"

#include <QFileInfo>
#include <QObject>
#include <QString>

/// The file layout of the display: folders, file-name prefixes and extensions, the drives, the active items, and the
/// paths of all files.
///
///     TSystemSettingsProxy system;
///     system.SetActiveJob(QLatin1String("Spring"));
///     const QString coverage = system.GetActiveCoveragePath(); // ".../Jobs/Spring/Spring.cov"
///
/// Paths are concatenated as they are: PARAM_INTERNAL_DRIVE must end in "/". A path that cannot be formed is an empty
/// string. Operations do not touch the disk except where it is said.
///
/// Use the object through TSystemSettingsProxy, which serialises the calls. The façade does not have the steering
/// selection, GetLogPath(), the mount-point tests and GetLinuxMemory(). For these, construct an object of your own: the
/// active items are in the store, so all objects give the same answers.
class CABSETTINGS_EXPORT TSystemSettings : public QObject
{
    Q_OBJECT

public:
    /// Reads no parameter.
    TSystemSettings();

    /// Gives the items from job to vehicle their default names, in memory only. Zones, sprayer and boom leveller have
    /// none.
    void Initialise();

    /// Stores the selections of a start: an empty name for field data, the built-in profiles for the machine, the
    /// stored name for zones. To keep the operator's last selections, a host reads them before and sets them again
    /// afterwards. Makes the folders that contain the two drives.
    void Restore();

    // ---- Names on the drives --------------------------------------------------------------------------------------

    /// Folders, relative to a drive or to the folder of a field.
    static const char* const JobsFolder;
    static const char* const BoundariesFolder;
    static const char* const ShapefilesForBoundaryFolder;
    static const char* const ABLinesFolder;
    static const char* const PivotsFolder;
    static const char* const CurvesFolder;
    static const char* const OptimalLinesFolder;
    static const char* const ProjectLinesFolder;
    static const char* const SteeringFolder;
    static const char* const PerformanceTestFolder;
    static const char* const FactoryVehiclesFolder;
    static const char* const FactoryImplementsFolder;
    static const char* const FactoryImplementsPartBFolder;
    static const char* const FactoryProductsFolder;
    static const char* const ImplementsFolder;
    static const char* const VehiclesFolder;
    static const char* const ZonesFolder;
    static const char* const VRCShapeFilesFolder;
    static const char* const VRCXMLFilesFolder;
    static const char* const SprayerFolder;
    static const char* const ReportsFolder;
    static const char* const BoundaryShapefilesFolder;
    static const char* const CoverageShapefilesFolder;
    static const char* const DiagnosticsFolder;
    static const char* const BoomLevellerFolder;
    static const char* const ClientsFolder;
    static const char* const FarmsVirtualFolder;
    static const char* const FieldsVirtualFolder;
    static const char* const ProductsFolder;
    static const char* const CamerasFolder;
    static const char* const RemoteViewFolder;
    static const char* const FernholdUploadsFolder;
    static const char* const FernholdDownloadsFolder;
    static const char* const FernholdTempDownloadsFolder;
    static const char* const FernholdTempUploadsFolder;
    static const char* const GlobalHomeScreensFolder;
    static const char* const WaterConservationProjectsFolder;
    static const char* const GeoidFolder;
    static const char* const CrashReportsFolder;
    static const char* const VelmorUploadsFolder;
    static const char* const VelmorDownloadsFolder;
    static const char* const VelmorTempUploadsFolder;
    static const char* const VelmorTempDownloadsFolder;

    /// File-name extensions, with their dot.
    static const char* const IniExtension;
    static const char* const CurveExtension;
    static const char* const CoverageExtension;
    static const char* const BoundaryExtension;
    static const char* const PdfExtension;
    static const char* const ShpExtension;
    static const char* const ShxExtension;
    static const char* const DbfExtension;
    static const char* const XMLExtension;
    static const char* const LogExtension;
    static const char* const PackageExtension;
    static const char* const ChecksumExtension;
    static const char* const CSVExtension;
    static const char* const GPSQualityExtension;
    static const char* const PbzExtension;
    static const char* const PPDExtension;
    static const char* const TpoExtension;
    static const char* const TxtExtension;
    static const char* const BinExtension;
    static const char* const ZIPExtension;
    static const char* const ZIP2Extension;
    static const char* const BoomMaskExtension;
    static const char* const WorkingLengthExtension;
    static const char* const DownForceRateExtension;

    /// File-name prefixes.
    static const char* const JobsPrefix;
    static const char* const BoundaryPrefix;
    static const char* const ABLinePrefix;
    static const char* const PivotPrefix;
    static const char* const CurvePrefix;
    static const char* const OptimalLinesPrefix;
    static const char* const ProjectLinesPrefix;
    static const char* const NEMAPrefix;
    static const char* const UserPrefix;

    /// Built-in items, translated as the library was loaded.
    static const QString DefaultVehicleProfile;
    static const QString DefaultSteeringProfile;
    static const QString DefaultSprayerProfile;
    static const QString DefaultImplementProfile;

    static const QString TempGuidanceCurveFileName;

    /// File of a sprayer implement that is kept in a vehicle's folder.
    static const QString SPSprayerImplementFileName;

    /// Task data of the ISO 11783-10 exchange.
    static const QString TaskDataDir;
    static const QString TaskDataXml;
    static const QString TaskDataCffParentDir;

    /// Whether the extensions above match TFileSystemHelper::LowerCaseFilenameExtensionRegExp(), except the few that
    /// are not a single extension. The first call of the process tests it; later calls return the same result. Safe
    /// from any thread.
    static bool AreFilenameExtensionInvariantsSatisfied();

    // ---- The build ------------------------------------------------------------------------------------------------

    /// Date and time of the build, as of the compiler's macros ("Mar  5 2024 14:05:09").
    static const char* const CompileTime;

    /// Default name of the software package, and the word in the names of its updates.
    static const char* const PackageName;
    static const char* const Update;

    static const bool m_isDevBuild;
    static const bool m_isAlphaBuild;
    static const bool m_isBetaBuild;

    /// Version of the display's software; "N/A" until set. In memory, one for the process.
    static QString SoftwareVersion;
    void SetSoftwareVersion(const QString& version);

    /// The version as set, or as shown to users.
    QString GetSoftwareVersion(bool beautify) const;

    /// "2.1.4-r7" becomes "2.1.4.07", "2.1.4-r12" becomes "2.1.4.12"; a version without "-r" stays as it is.
    static QString BeautifyVersion(QString version);

    QString GetPackageName() const;
    QString GetReprogrammingPackageFilename() const;
    QString GetChecksumFilename() const;

    /// The update's files in the root of the removable drive. False, with @p path untouched, when no drive is mounted.
    bool GetReprogrammingPackagePath(QString& path) const;
    bool GetReprogrammingChecksumPath(QString& path) const;

    // ---- Drives, memory and load ----------------------------------------------------------------------------------

    /// The internal drive as configured, and its absolute path: the root of every path below.
    QFileInfo GetInternalDrive() const;
    QString GetInternalDrivePath() const;

    /// The removable drive as configured; the result tells whether it is mounted.
    bool GetExternalDrive(QFileInfo& drive) const;
    bool GetExternalDrivePath(QString& path) const;
    bool IsExternalDrivePresent() const;

    /// Whether the folder @p path (UTF-8) is a mount point: 1 or 0; 0 when it is not a folder. -1 after an error, which
    /// is printed on standard error.
    static int IsMountingPointWErr(const char* path);

    /// The same, an error counting as false.
    static bool IsMountingPoint(const char* path);

    /// Total and free blocks of the internal drive's file system, in units of its fragment size; a count beyond the
    /// range of the output is given as the greatest. 0 for success; otherwise negative, with the outputs untouched and
    /// the error printed.
    int GetFileSystemInfo(unsigned* total, unsigned* free) const;

    /// The same for the removable drive; free counts the blocks reserved for the superuser too. 1 for success, 0 when
    /// no drive is mounted, -1 after an error, which is printed; the outputs are written for 1 only.
    int GetUSBMemoryInfo(int* total, int* free) const;

    /// Main memory in kB; free memory includes buffers and page cache. 0 and 0 when it is not known. Always returns 0.
    int GetMainMemoryInfo(unsigned* total, unsigned* free) const;
    static void GetLinuxMemory(unsigned* total, unsigned* free);

    /// Load average of the last minute (1.0: one processor busy). 0 for success; otherwise negative, with @p load
    /// untouched and the error printed.
    int GetCpuLoadInfo(float* load) const;

    // ---- Active items ---------------------------------------------------------------------------------------------

    // The name, which setting stores; a new default name; and the path of the item's file. Items of a field (job,
    // boundary, lines, zones) lie in the folders of the active client, farm and field, and their path is empty when
    // one of these is not set; asking for it makes the category's folder. Profiles of the machine lie under the
    // internal drive; asking for their path makes the item's folder, except for the built-in ones.

    QString GetActiveJob() const;
    void SetActiveJob(const QString& name);
    QString GetActiveJobPath() const;

    QString GetActiveBoundary() const;
    void SetActiveBoundary(const QString& name); ///< makes the boundary's folder
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
    void SetActiveShapeFile(const QString& name); ///< makes the shape file's folder too, unless the name is empty
    QString GetActiveShapeFilePath() const;

    QString GetActiveSteering() const;
    void SetActiveSteering(const QString& name);
    QString GetActiveSteeringPath() const;

    QString GetActiveImplement() const;
    void SetActiveImplement(const QString& name);
    QString GetActiveImplementPath() const;

    QString GetActiveVehicle() const;
    void SetActiveVehicle(const QString& name);
    QString GetActiveVehiclePath() const;

    QString GetActiveSprayer() const;
    void SetActiveSprayer(const QString& name);
    QString GetActiveSprayerPath() const;

    /// Files beside the active job's: ".ini" becomes ".pdf" or ".cov" wherever it stands in the path.
    QString GetActiveReportPath() const;
    QString GetActiveCoveragePath() const;

    /// Folder of the zones under the internal drive.
    QString GetShapeFilePath() const;

    /// Path of any implement's file.
    QString GetImplementPathForName(const QString& name) const;

    /// Whether recording was switched off for lack of memory or of storage. Not stored; false at every start. The
    /// update returns the value before.
    bool UpdateLowRAMRecordingOff(bool off);
    bool UpdateLowFlashRecordingOff(bool off);
    bool IsLowRAMRecordingOff() const;
    bool IsLowFlashRecordingOff() const;

    // ---- Paths of clients, farms, fields and jobs -----------------------------------------------------------------

    /// Folder that holds the clients, put before "Clients/"; empty until set. In memory, one for the process.
    void SetCFFRoot(const QString& root);
    QString GetCFFRoot() const;

    /// Folder of a field, "Clients/Smith/North/F1/" under the CFF root; empty when a name is empty. Without names, the
    /// active field's.
    QString GetCFFPath(const QString& client, const QString& farm, const QString& field) const;
    QString GetCFFPath() const;

    /// Files that also exist for jobs outside any field: with a name missing, they lie under the internal drive itself.
    QString GetJobFilePath(const QString& client, const QString& farm, const QString& field, const QString& job) const;
    QString GetAreaCountersPath(const QString& client, const QString& farm, const QString& field,
                                const QString& job) const;
    QString GetFlagPointsFilePath(const QString& client, const QString& farm, const QString& field) const;

    /// Files that exist in fields only: empty when a name is empty.
    QString GetCoverageFilePath(const QString& client, const QString& farm, const QString& field,
                                const QString& job) const;
    QString GetPerPointDataJobPath(const QString& client, const QString& farm, const QString& field,
                                   const QString& job) const;
    QString GetBoundaryFilePath(const QString& client, const QString& farm, const QString& field) const;
    QString GetExclusionZoneShapefilePath(const QString& client, const QString& farm, const QString& field) const;

    /// Files of the active field and job.
    QString GetActiveFieldPath() const;
    QString GetActiveFlagPointsFilePath() const;
    QString GetActivePerPointDataJobPath() const;
    QString GetActivePerPointDataElevationPath() const;

    /// Area counters of the active job; of the active implement when the job has no folder yet.
    QString GetActiveAreaCountersPath() const;

    /// The two offset lines beside the active project-lines shape file.
    QString GetOffsetLinesShapeFilePathA() const;
    QString GetOffsetLinesShapeFilePathB() const;

    /// File of an AB line that belongs to no field. Makes its folder.
    QString GetABLinePath(const QString& name) const;

    /// "J_", the active implement, and the local date and time.
    QString GetDefaultJobName() const;

    /// Folders in the internal drive's own jobs folder; reads the disk.
    long long GetNumberOfJobs() const;

    // ---- Paths of logs and exchange -------------------------------------------------------------------------------

    /// Path of a log on the internal or the removable drive; makes @p folder. False, with @p path untouched, when a
    /// text is null or the removable drive is not mounted.
    bool GetLogPath(QString& path, bool internal, const char* folder, const char* prefix, const char* extension) const;

    /// The diagnostic logs' base paths; made as by GetLogPath().
    bool GetExternalUserLogPath(QString& path) const;
    QString GetInternalUserLogPath() const;
    bool GetExternalNemaLogPath(QString& path) const;
    QString GetInternalNemaLogPath() const;

    /// The performance-test log while it is written, and its place on the removable drive, named after date, time,
    /// @p tag, version and implement; empty when no drive is mounted.
    QString GetPerformanceTempLogPath() const;
    QString GetActivePerformanceTestLogPath(const QString& tag) const;

    /// Folders of the data exchange, ending in "/".
    QString GetVelmorTempDownloadFolderPath() const;
    QString GetVelmorDownloadFolderPath() const;
    QString GetVelmorTempUploadFolderPath() const;
    QString GetVelmorUploadFolderPath() const;

    /// Folder of the remote-view profiles, and one of them.
    QString GetRemoteViewProfilePath() const;
    QString GetRemoteViewProfilePath(unsigned index) const;

    /// A file in the system's folder for temporary files.
    QString GetTempGuidanceCurveFilePath() const;

private:
    friend class TPathSetting;

    static QString CFFPath(const QString& client, const QString& farm, const QString& field);
    static QString ActiveCFFPath();
    QString OffsetLinesShapeFilePath(char side) const;
    QString FolderPath(const char* folder) const;
    QString UpdateFilename(const char* extension) const;
    bool GetUpdateFilePath(QString& path, const QString& fileName) const;

    static QString m_CFFRoot;
    static QString m_ClientsPath; ///< folder of the clients under the root, ending in "/"

    TPathSetting m_Job;
    TPathSetting m_Boundary;
    TPathSetting m_ABLine;
    TPathSetting m_Pivot;
    TPathSetting m_Curve;
    TPathSetting m_OptimalLines;
    TPathSetting m_ProjectLines;
    TPathSetting m_Steering;
    TImplementPathSetting m_Implement;
    TPathSetting m_Vehicle;
    TPathSetting m_Zones;
    TPathSetting m_Sprayer;
    TPathSetting m_BoomLeveller;

    bool m_LowRAMRecordingOff;
    bool m_LowFlashRecordingOff;
};
