#include "region/TRegionSettingsProxy.h"
#include "system/Folders.h"
#include "system/TSystemSettings.h"

bool TSystemSettings::GetLogPath(QString& path, bool internal, const char* folder, const char* prefix,
                                 const char* extension) const
{
    if (!folder || !prefix || !extension)
        return false;
    QString base = GetInternalDrivePath();
    if (!internal && !GetExternalDrivePath(base))
        return false;

    const QDir logs(QDir(base).absoluteFilePath(QString::fromUtf8(folder)));
    Folders::Make(logs);
    path = logs.absoluteFilePath(QString::fromUtf8(prefix) + QString::fromUtf8(extension));
    return true;
}

// The logs are comma-separated tables, hence ".csv" and not ".log".

bool TSystemSettings::GetExternalUserLogPath(QString& path) const
{
    return GetLogPath(path, false, DiagnosticsFolder, UserPrefix, CSVExtension);
}

QString TSystemSettings::GetInternalUserLogPath() const
{
    QString path;
    GetLogPath(path, true, DiagnosticsFolder, UserPrefix, CSVExtension);
    return path;
}

bool TSystemSettings::GetExternalNemaLogPath(QString& path) const
{
    return GetLogPath(path, false, DiagnosticsFolder, NEMAPrefix, CSVExtension);
}

QString TSystemSettings::GetInternalNemaLogPath() const
{
    QString path;
    GetLogPath(path, true, DiagnosticsFolder, NEMAPrefix, CSVExtension);
    return path;
}

QString TSystemSettings::GetPerformanceTempLogPath() const
{
    QString path;
    GetLogPath(path, true, DiagnosticsFolder, "PerformanceTestTmp", CSVExtension);
    return path;
}

QString TSystemSettings::GetActivePerformanceTestLogPath(const QString& tag) const
{
    const QLatin1Char separator('_');
    const QString stem = TRegionSettingsProxy().GetDateTimeStringWithSeconds() + separator + tag + separator +
                         GetSoftwareVersion(true) + separator + m_Implement.GetName();
    QString path;
    GetLogPath(path, false, PerformanceTestFolder, stem.toUtf8().constData(), CSVExtension);
    return path;
}

QString TSystemSettings::GetVelmorTempDownloadFolderPath() const { return FolderPath(VelmorTempDownloadsFolder); }
QString TSystemSettings::GetVelmorDownloadFolderPath() const { return FolderPath(VelmorDownloadsFolder); }
QString TSystemSettings::GetVelmorTempUploadFolderPath() const { return FolderPath(VelmorTempUploadsFolder); }
QString TSystemSettings::GetVelmorUploadFolderPath() const { return FolderPath(VelmorUploadsFolder); }

QString TSystemSettings::FolderPath(const char* folder) const
{
    return GetInternalDrivePath() + QLatin1String(folder) + QLatin1Char('/');
}

QString TSystemSettings::GetRemoteViewProfilePath() const
{
    return GetInternalDrivePath() + QLatin1String(RemoteViewFolder);
}

QString TSystemSettings::GetRemoteViewProfilePath(unsigned index) const
{
    return GetRemoteViewProfilePath() + QLatin1Char('/') + QString::number(index) + QLatin1String(IniExtension);
}

QString TSystemSettings::GetTempGuidanceCurveFilePath() const
{
    return QDir::temp().absoluteFilePath(TempGuidanceCurveFileName + QLatin1String(CurveExtension));
}
