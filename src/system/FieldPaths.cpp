#include "region/TRegionSettings.h"
#include "settings/Parameters.h"
#include "system/TSystemSettings.h"

#include <QDir>

namespace {

const char Separator = '/';
const char* const AreaCountersFile = "areacounters.ini";
const char* const FlagPointsFile = "flagpoints.ini";
const char* const PerPointDataSuffix = "_PPD";
const char* const ElevationSuffix = "_Elevation";

/// The path behind the field's folder of a file that has a folder of its own: "Jobs/J_1/J_1.ini".
QString ItemFile(const char* folder, const QString& item, const QString& ending)
{
    return QLatin1String(folder) + QLatin1Char(Separator) + item + QLatin1Char(Separator) + item + ending;
}

QString PerPointDataEnding(const char* suffix)
{
    return QLatin1String(suffix) + QLatin1String(TSystemSettings::PbzExtension);
}

} // namespace

void TSystemSettings::SetCFFRoot(const QString& root) { m_CFFRoot = root; }
QString TSystemSettings::GetCFFRoot() const { return m_CFFRoot; }

QString TSystemSettings::GetCFFPath(const QString& client, const QString& farm, const QString& field) const
{
    if (client.isEmpty() || farm.isEmpty() || field.isEmpty())
        return QString();
    const QString root = m_CFFRoot.isEmpty() ? QString() : m_CFFRoot + QLatin1Char(Separator);
    return root + QLatin1String(ClientsFolder) + QLatin1Char(Separator) + client + QLatin1Char(Separator) + farm +
           QLatin1Char(Separator) + field + QLatin1Char(Separator);
}

QString TSystemSettings::GetCFFPath() const
{
    const QString client = Parameters::ReadString(PARAM_CLIENT);
    const QString farm = Parameters::ReadString(PARAM_FARM);
    const QString field = Parameters::ReadString(PARAM_FIELD);
    return GetCFFPath(client, farm, field);
}

QString TSystemSettings::GetJobFilePath(const QString& client, const QString& farm, const QString& field,
                                        const QString& job) const
{
    return GetInternalDrivePath() + GetCFFPath(client, farm, field) +
           ItemFile(JobsFolder, job, QLatin1String(IniExtension));
}

QString TSystemSettings::GetAreaCountersPath(const QString& client, const QString& farm, const QString& field,
                                             const QString& job) const
{
    return GetInternalDrivePath() + GetCFFPath(client, farm, field) + QLatin1String(JobsFolder) +
           QLatin1Char(Separator) + job + QLatin1Char(Separator) + QLatin1String(AreaCountersFile);
}

QString TSystemSettings::GetFlagPointsFilePath(const QString& client, const QString& farm, const QString& field) const
{
    return GetInternalDrivePath() + GetCFFPath(client, farm, field) + QLatin1String(FlagPointsFile);
}

QString TSystemSettings::GetCoverageFilePath(const QString& client, const QString& farm, const QString& field,
                                             const QString& job) const
{
    const QString fieldPath = GetCFFPath(client, farm, field);
    if (fieldPath.isEmpty() || job.isEmpty())
        return QString();
    return GetInternalDrivePath() + fieldPath + ItemFile(JobsFolder, job, QLatin1String(CoverageExtension));
}

QString TSystemSettings::GetPerPointDataJobPath(const QString& client, const QString& farm, const QString& field,
                                                const QString& job) const
{
    const QString fieldPath = GetCFFPath(client, farm, field);
    if (fieldPath.isEmpty() || job.isEmpty())
        return QString();
    return GetInternalDrivePath() + fieldPath + ItemFile(JobsFolder, job, PerPointDataEnding(PerPointDataSuffix));
}

QString TSystemSettings::GetBoundaryFilePath(const QString& client, const QString& farm, const QString& field) const
{
    const QString fieldPath = GetCFFPath(client, farm, field);
    if (fieldPath.isEmpty())
        return QString();
    return GetInternalDrivePath() + fieldPath + ItemFile(BoundariesFolder, field, QLatin1String(BoundaryExtension));
}

QString TSystemSettings::GetExclusionZoneShapefilePath(const QString& client, const QString& farm,
                                                       const QString& field) const
{
    const QString fieldPath = GetCFFPath(client, farm, field);
    if (fieldPath.isEmpty())
        return QString();
    return GetInternalDrivePath() + fieldPath + ItemFile(ZonesFolder, field, QLatin1String(ShpExtension));
}

QString TSystemSettings::GetActiveFieldPath() const
{
    return GetInternalDrivePath() + GetCFFPath() + Parameters::ReadString(PARAM_FIELD) + QLatin1String(IniExtension);
}

QString TSystemSettings::GetActiveFlagPointsFilePath() const
{
    return GetInternalDrivePath() + GetCFFPath() + QLatin1String(FlagPointsFile);
}

QString TSystemSettings::GetActivePerPointDataJobPath() const
{
    return GetActiveJobPath().replace(QLatin1String(IniExtension), PerPointDataEnding(PerPointDataSuffix));
}

QString TSystemSettings::GetActivePerPointDataElevationPath() const
{
    return GetActiveFieldPath().replace(QLatin1String(IniExtension), PerPointDataEnding(ElevationSuffix));
}

QString TSystemSettings::GetActiveAreaCountersPath() const
{
    QString path = GetActiveJobPath();
    if (path.isEmpty() || !QFileInfo(path).dir().exists())
        path = GetActiveImplementPath(); // counters of a job without a folder are kept with the implement
    return QFileInfo(path).path() + QLatin1Char(Separator) + QLatin1String(AreaCountersFile);
}

QString TSystemSettings::GetOffsetLinesShapeFilePathA() const { return OffsetLinesShapeFilePath('A'); }
QString TSystemSettings::GetOffsetLinesShapeFilePathB() const { return OffsetLinesShapeFilePath('B'); }

QString TSystemSettings::OffsetLinesShapeFilePath(char side) const
{
    QString path = GetActiveProjectLinesShapeFilePath();
    if (path.isEmpty())
        return QString();
    return path.remove(QLatin1String(ShpExtension)) + QLatin1Char(side) + QLatin1String(ShpExtension);
}

QString TSystemSettings::GetABLinePath(const QString& name) const
{
    const QDir lines(QDir(GetInternalDrivePath()).absoluteFilePath(QLatin1String(ABLinesFolder)));
    const QDir folder(lines.absoluteFilePath(name));
    if (!folder.exists())
        folder.mkpath(folder.absolutePath());
    return folder.absoluteFilePath(name + QLatin1String(IniExtension));
}

QString TSystemSettings::GetDefaultJobName() const
{
    return QLatin1String(JobsPrefix) + GetActiveImplement() + QLatin1Char('_') + TRegionSettings().GetDateTimeString();
}

long long TSystemSettings::GetNumberOfJobs() const
{
    const QDir jobs(GetInternalDrivePath() + QLatin1String(JobsFolder));
    return jobs.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::NoSort).count();
}
