#include "access/Parameters.h"
#include "region/TRegionSettings.h"
#include "system/Folders.h"
#include "system/TSystemSettings.h"

#include <QDir>
#include <QStringBuilder>

namespace {

const char Separator = '/';
const char* const AreaCountersFile = "areacounters.ini";
const char* const FlagPointsFile = "flagpoints.ini";
const char* const PerPointDataSuffix = "_PPD";
const char* const ElevationSuffix = "_Elevation";

/// The place of one kind of files in the folder of a field. Each file has a folder of its own: "Jobs/J_1/J_1.ini".
struct tagPlace
{
    explicit tagPlace(const char* folderName, const QString& anEnding)
        : folder(QLatin1Char(Separator) + QLatin1String(folderName) + QLatin1Char(Separator)), ending(anEnding)
    {}

    const QString folder; ///< between the folder of the field and the name: "/Jobs/"
    const QString ending;
};

QString Ending(const char* suffix, const char* extension) { return QLatin1String(suffix) + QLatin1String(extension); }

bool IsField(const QString& client, const QString& farm, const QString& field)
{
    return !client.isEmpty() && !farm.isEmpty() && !field.isEmpty();
}

/// The folder of a field in the folder of the clients, followed by @p behind, one text or several. Makes one string
/// only.
template <class Text>
QString FieldPath(const QString& drive, const QString& clients, const QString& client, const QString& farm,
                  const QString& field, const Text& behind)
{
    const QLatin1Char separator(Separator);
    return drive % clients % client % separator % farm % separator % field % behind;
}

/// Empty when one of the names is empty. Flattened: a call for each appended piece takes a tenth more instructions.
[[gnu::flatten]] QString ItemPath(const TSystemSettings& system, const QString& clients, const QString& client,
                                  const QString& farm, const QString& field, const QString& item, const tagPlace& place)
{
    if (!IsField(client, farm, field) || item.isEmpty())
        return QString();
    return FieldPath(system.GetInternalDrivePath(), clients, client, farm, field,
                     place.folder % item % QLatin1Char(Separator) % item % place.ending);
}

} // namespace

void TSystemSettings::SetCFFRoot(const QString& root)
{
    const QLatin1String clients(ClientsFolder);
    m_CFFRoot = root;
    m_ClientsPath = (root.isEmpty() ? root : root + QLatin1Char(Separator)) + clients + QLatin1Char(Separator);
}
QString TSystemSettings::GetCFFRoot() const { return m_CFFRoot; }

QString TSystemSettings::GetCFFPath(const QString& client, const QString& farm, const QString& field) const
{
    return CFFPath(client, farm, field);
}

QString TSystemSettings::GetCFFPath() const { return ActiveCFFPath(); }

QString TSystemSettings::CFFPath(const QString& client, const QString& farm, const QString& field)
{
    return IsField(client, farm, field)
               ? FieldPath(QString(), m_ClientsPath, client, farm, field, QLatin1Char(Separator))
               : QString();
}

QString TSystemSettings::ActiveCFFPath()
{
    const QString client = Parameters::ReadString(PARAM_CLIENT);
    const QString farm = Parameters::ReadString(PARAM_FARM);
    const QString field = Parameters::ReadString(PARAM_FIELD);
    return CFFPath(client, farm, field);
}

QString TSystemSettings::GetJobFilePath(const QString& client, const QString& farm, const QString& field,
                                        const QString& job) const
{
    return GetInternalDrivePath() + GetCFFPath(client, farm, field) + QLatin1String(JobsFolder) +
           QLatin1Char(Separator) + job + QLatin1Char(Separator) + job + QLatin1String(IniExtension);
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

// The places are composed once: the path of the coverage file is asked for often.

QString TSystemSettings::GetCoverageFilePath(const QString& client, const QString& farm, const QString& field,
                                             const QString& job) const
{
    static const tagPlace place(JobsFolder, Ending("", CoverageExtension));
    return ItemPath(*this, m_ClientsPath, client, farm, field, job, place);
}

QString TSystemSettings::GetPerPointDataJobPath(const QString& client, const QString& farm, const QString& field,
                                                const QString& job) const
{
    static const tagPlace place(JobsFolder, Ending(PerPointDataSuffix, PbzExtension));
    return ItemPath(*this, m_ClientsPath, client, farm, field, job, place);
}

QString TSystemSettings::GetBoundaryFilePath(const QString& client, const QString& farm, const QString& field) const
{
    static const tagPlace place(BoundariesFolder, Ending("", BoundaryExtension));
    return ItemPath(*this, m_ClientsPath, client, farm, field, field, place);
}

QString TSystemSettings::GetExclusionZoneShapefilePath(const QString& client, const QString& farm,
                                                       const QString& field) const
{
    static const tagPlace place(ZonesFolder, Ending("", ShpExtension));
    return ItemPath(*this, m_ClientsPath, client, farm, field, field, place);
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
    return GetActiveJobPath().replace(QLatin1String(IniExtension), Ending(PerPointDataSuffix, PbzExtension));
}

QString TSystemSettings::GetActivePerPointDataElevationPath() const
{
    return GetActiveFieldPath().replace(QLatin1String(IniExtension), Ending(ElevationSuffix, PbzExtension));
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
    Folders::Make(folder);
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
