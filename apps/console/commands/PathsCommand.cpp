// paths: the paths of files and folders.

#include "console/commands/Commands.h"
#include "console/line/CommandLine.h"
#include "console/line/Output.h"
#include "console/terminal/Session.h"
#include "terminal/ActiveItems.h"

#include "parameters/ItemNames.h"
#include "parameters/TParameterCatalogue.h"
#include "system/TSystemSettings.h"
#include "system/TSystemSettingsProxy.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

using System = TSystemSettings;
using Proxy = TSystemSettingsProxy;

/// The options that name a client, farm, field or job, each with the parameter of the selected one.
struct tagNameOption
{
    const char* option;
    EParamID id;
};

constexpr tagNameOption NameOptions[] = {
    {"client", PARAM_CLIENT},
    {"farm", PARAM_FARM},
    {"field", PARAM_FIELD},
    {"job", PARAM_ACTIVE_JOB},
};

struct tagNames
{
    QString client;
    QString farm;
    QString field;
    QString job;
    bool isStickPossible; ///< the mount point exists; without it the library prints an error at each call
};

/// A path and its name. @p need names what an empty path lacks.
struct tagPath
{
    const char* name;
    const char* need;
    QString (*path)(const Proxy& system, const tagNames& names);
};

const char* const Nothing = "";
const char* const Field = "a field";
const char* const Job = "a job";
const char* const FieldAndJob = "a field and a job";
const char* const Item = "an active item";
const char* const ProjectLines = "active project lines in a field";
const char* const ABLine = "an active AB line";
const char* const Stick = "a stick";

bool IsInField(const Proxy& system, const tagNames& names)
{
    return !system.GetCFFPath(names.client, names.farm, names.field).isEmpty();
}

QString FieldFolder(const Proxy& system, const tagNames& names)
{
    return IsInField(system, names)
               ? system.GetInternalDrivePath() + system.GetCFFPath(names.client, names.farm, names.field)
               : QString();
}

QString Report(const Proxy& system, const tagNames& names)
{
    if (!IsInField(system, names) || names.job.isEmpty())
        return QString();
    return system.GetJobFilePath(names.client, names.farm, names.field, names.job)
        .replace(QLatin1String(System::IniExtension), QLatin1String(System::PdfExtension));
}

template <QString (Proxy::*Getter)() const>
QString Path(const Proxy& system, const tagNames&)
{
    return (system.*Getter)();
}

template <QString (Proxy::*Getter)() const>
QString OfField(const Proxy& system, const tagNames& names)
{
    return IsInField(system, names) ? (system.*Getter)() : QString();
}

template <QString (Proxy::*Getter)(const QString&, const QString&, const QString&) const>
QString OfNames(const Proxy& system, const tagNames& names)
{
    return (system.*Getter)(names.client, names.farm, names.field);
}

template <QString (Proxy::*Getter)(const QString&, const QString&, const QString&, const QString&) const>
QString OfJob(const Proxy& system, const tagNames& names)
{
    return names.job.isEmpty() ? QString() : (system.*Getter)(names.client, names.farm, names.field, names.job);
}

template <QString (Proxy::*Getter)() const>
QString OfProjectLines(const Proxy& system, const tagNames&)
{
    return system.GetActiveProjectLinesShapeFile().isEmpty() ? QString() : (system.*Getter)();
}

QString LineOutsideFields(const Proxy& system, const tagNames&)
{
    const QString line = system.GetActiveABLine();
    return line.isEmpty() ? QString() : system.GetABLinePath(line);
}

template <const char* const* Folder>
QString InternalFolder(const Proxy& system, const tagNames&)
{
    return system.GetInternalDrivePath() + QLatin1String(*Folder);
}

template <bool (Proxy::*Getter)(QString&) const>
QString OnStick(const Proxy& system, const tagNames& names)
{
    QString path;
    return names.isStickPossible && (system.*Getter)(path) ? path : QString();
}

QString PerformanceLog(const Proxy& system, const tagNames& names)
{
    return names.isStickPossible ? system.GetActivePerformanceTestLogPath(QLatin1String("TAG")) : QString();
}

QString RemoteViewProfile(const Proxy& system, const tagNames&) { return system.GetRemoteViewProfilePath(0); }

/// Of the given names, or of the selected ones. Makes no folders.
const tagPath PathsOfNames[] = {
    {"field-folder", Field, FieldFolder},
    {"field", Field, OfField<&Proxy::GetActiveFieldPath>},
    {"job", Job, OfJob<&Proxy::GetJobFilePath>},
    {"report", FieldAndJob, Report},
    {"coverage", FieldAndJob, OfJob<&Proxy::GetCoverageFilePath>},
    {"per-point-data", FieldAndJob, OfJob<&Proxy::GetPerPointDataJobPath>},
    {"elevation", Field, OfField<&Proxy::GetActivePerPointDataElevationPath>},
    {"area-counters", Job, OfJob<&Proxy::GetAreaCountersPath>},
    {"flag-points", Nothing, OfNames<&Proxy::GetFlagPointsFilePath>},
    {"boundary", Field, OfNames<&Proxy::GetBoundaryFilePath>},
    {"exclusion-zones", Field, OfNames<&Proxy::GetExclusionZoneShapefilePath>},
};

/// Of selected items, besides their own files. Makes folders.
const tagPath PathsOfActiveItems[] = {
    {"active.area-counters", Nothing, Path<&Proxy::GetActiveAreaCountersPath>},
    {"active.offset-lines-a", ProjectLines, OfProjectLines<&Proxy::GetOffsetLinesShapeFilePathA>},
    {"active.offset-lines-b", ProjectLines, OfProjectLines<&Proxy::GetOffsetLinesShapeFilePathB>},
    {"active.ab-line-outside-fields", ABLine, LineOutsideFields},
};

const tagPath PathsOfTerminal[] = {
    {"drive.internal", Nothing, Path<&Proxy::GetInternalDrivePath>},
    {"drive.removable", Stick, OnStick<&Proxy::GetExternalDrivePath>},
    {"log.user", Nothing, Path<&Proxy::GetInternalUserLogPath>},
    {"log.nmea", Nothing, Path<&Proxy::GetInternalNemaLogPath>},
    {"log.performance", Nothing, Path<&Proxy::GetPerformanceTempLogPath>},
    {"stick.user-log", Stick, OnStick<&Proxy::GetExternalUserLogPath>},
    {"stick.nmea-log", Stick, OnStick<&Proxy::GetExternalNemaLogPath>},
    {"stick.performance-log", Stick, PerformanceLog},
    {"stick.package", Stick, OnStick<&Proxy::GetReprogrammingPackagePath>},
    {"stick.checksum", Stick, OnStick<&Proxy::GetReprogrammingChecksumPath>},
    {"exchange.velmor-uploads", Nothing, Path<&Proxy::GetVelmorUploadFolderPath>},
    {"exchange.velmor-downloads", Nothing, Path<&Proxy::GetVelmorDownloadFolderPath>},
    {"exchange.velmor-temp-uploads", Nothing, Path<&Proxy::GetVelmorTempUploadFolderPath>},
    {"exchange.velmor-temp-downloads", Nothing, Path<&Proxy::GetVelmorTempDownloadFolderPath>},
    {"exchange.fernhold-uploads", Nothing, InternalFolder<&System::FernholdUploadsFolder>},
    {"exchange.fernhold-downloads", Nothing, InternalFolder<&System::FernholdDownloadsFolder>},
    {"exchange.fernhold-temp-uploads", Nothing, InternalFolder<&System::FernholdTempUploadsFolder>},
    {"exchange.fernhold-temp-downloads", Nothing, InternalFolder<&System::FernholdTempDownloadsFolder>},
    {"remote-view.profile-0", Nothing, RemoteViewProfile},
    {"temporary.guidance-curve", Nothing, Path<&Proxy::GetTempGuidanceCurveFilePath>},
    {"folder.clients", Nothing, InternalFolder<&System::ClientsFolder>},
    {"folder.jobs", Nothing, InternalFolder<&System::JobsFolder>},
    {"folder.boundaries-from-shapefiles", Nothing, InternalFolder<&System::ShapefilesForBoundaryFolder>},
    {"folder.ab-lines", Nothing, InternalFolder<&System::ABLinesFolder>},
    {"folder.pivots", Nothing, InternalFolder<&System::PivotsFolder>},
    {"folder.curves", Nothing, InternalFolder<&System::CurvesFolder>},
    {"folder.optimal-lines", Nothing, InternalFolder<&System::OptimalLinesFolder>},
    {"folder.project-lines", Nothing, InternalFolder<&System::ProjectLinesFolder>},
    {"folder.zones", Nothing, Path<&Proxy::GetShapeFilePath>},
    {"folder.steering-profiles", Nothing, InternalFolder<&System::SteeringFolder>},
    {"folder.implements", Nothing, InternalFolder<&System::ImplementsFolder>},
    {"folder.vehicles", Nothing, InternalFolder<&System::VehiclesFolder>},
    {"folder.sprayers", Nothing, InternalFolder<&System::SprayerFolder>},
    {"folder.boom-levellers", Nothing, InternalFolder<&System::BoomLevellerFolder>},
    {"folder.products", Nothing, InternalFolder<&System::ProductsFolder>},
    {"folder.factory-vehicles", Nothing, InternalFolder<&System::FactoryVehiclesFolder>},
    {"folder.factory-implements", Nothing, InternalFolder<&System::FactoryImplementsFolder>},
    {"folder.factory-implements-part-b", Nothing, InternalFolder<&System::FactoryImplementsPartBFolder>},
    {"folder.factory-products", Nothing, InternalFolder<&System::FactoryProductsFolder>},
    {"folder.vrc-shapefiles", Nothing, InternalFolder<&System::VRCShapeFilesFolder>},
    {"folder.vrc-xml", Nothing, InternalFolder<&System::VRCXMLFilesFolder>},
    {"folder.reports", Nothing, InternalFolder<&System::ReportsFolder>},
    {"folder.boundary-shapefiles", Nothing, InternalFolder<&System::BoundaryShapefilesFolder>},
    {"folder.coverage-shapefiles", Nothing, InternalFolder<&System::CoverageShapefilesFolder>},
    {"folder.diagnostics", Nothing, InternalFolder<&System::DiagnosticsFolder>},
    {"folder.performance-tests", Nothing, InternalFolder<&System::PerformanceTestFolder>},
    {"folder.crash-reports", Nothing, InternalFolder<&System::CrashReportsFolder>},
    {"folder.cameras", Nothing, InternalFolder<&System::CamerasFolder>},
    {"folder.remote-view", Nothing, Path<&Proxy::GetRemoteViewProfilePath>},
    {"folder.home-screens", Nothing, InternalFolder<&System::GlobalHomeScreensFolder>},
    {"folder.water-conservation", Nothing, InternalFolder<&System::WaterConservationProjectsFolder>},
    {"folder.geoids", Nothing, InternalFolder<&System::GeoidFolder>},
};

/// What is printed of a path.
struct tagShown
{
    QString name;
    QString path;
    QString need;
};

template <std::size_t Count>
void Append(QList<tagShown>* shown, const tagPath (&rows)[Count], const tagNames& names)
{
    const Proxy system;
    for (const tagPath& row : rows)
        shown->append({QLatin1String(row.name), row.path(system, names), QLatin1String(row.need)});
}

QList<tagShown> AllPaths(const tagNames& names, bool areNamesGiven)
{
    QList<tagShown> shown;
    Append(&shown, PathsOfNames, names);
    if (!areNamesGiven) {
        const QList<const tagParameter*> items = ActiveItems::All();
        for (const tagParameter* item : items) {
            const char* const need = ActiveItems::Name(*item).isEmpty() ? Item : Field;
            if (ActiveItems::HasFile(*item))
                shown.append({item->name, ActiveItems::Path(*item), QLatin1String(need)});
        }
        Append(&shown, PathsOfActiveItems, names);
    }
    Append(&shown, PathsOfTerminal, names);
    return shown;
}

/// Whether all given names are accepted. Prints a message when one is not.
bool AreNamesAccepted(const TCommandLine& line)
{
    for (const tagNameOption& row : NameOptions) {
        const QString name = line.Value(QLatin1String(row.option));
        const int mostBytes = TParameterCatalogue::Find(row.id)->mostBytes;
        const QString problem = ItemNames::Problem(name, mostBytes);
        if (problem.isEmpty())
            continue;
        line.Misused(QString::fromLatin1("invalid value \"%1\" for --%2: the name %3; did you mean \"%4\"?")
                         .arg(name, QLatin1String(row.option), problem, ItemNames::Suggestion(name, mostBytes)));
        return false;
    }
    return true;
}

/// Selects the given names for this call only: the library composes some paths from the selected names.
bool TakeNames(const TCommandLine& line, TParameterStore& store)
{
    bool isAnyGiven = false;
    for (const tagNameOption& row : NameOptions) {
        if (!line.IsSet(QLatin1String(row.option)))
            continue;
        store.SetParameter(row.id, line.Value(QLatin1String(row.option)), false);
        isAnyGiven = true;
    }
    return isAnyGiven;
}

} // namespace

int RunPaths(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("paths"), QString(),
        QLatin1String("Prints the paths of files and folders: those of a client, farm, field and job, of the selected "
                      "items, of the logs and of the stick. A name that is not given is the selected one; an empty "
                      "name means none. With names, no folders are created for them. Without names, the files of the "
                      "selected items are listed too, and their folders are created, as on the display. The folders of "
                      "the logs are always created, on the stick too."),
        QLatin1String("cabsettings paths --client Smith --farm North --field F1 --job J_1"));
    for (const tagNameOption& row : NameOptions) {
        const QString option = QLatin1String(row.option);
        line.AddOption(option, QString::fromLatin1("Name of the %1.").arg(option), QLatin1String("NAME"));
    }
    line.AddJsonOption(QLatin1String("Prints an array of objects: name, path (null without one)."));
    if (const auto status = line.Read(arguments, 0, 0))
        return *status;
    if (!AreNamesAccepted(line))
        return STATUS_MISUSED;

    TSession session;
    if (!session.Open(context, SESSION_TERMINAL))
        return STATUS_FAILED;
    TParameterStore& store = session.Store();
    const bool areNamesGiven = TakeNames(line, store);
    QString mountPoint;
    TSystemSettingsProxy().GetExternalDrivePath(mountPoint);
    const tagNames names = {store.GetParameter(PARAM_CLIENT).toString(), store.GetParameter(PARAM_FARM).toString(),
                            store.GetParameter(PARAM_FIELD).toString(), store.GetParameter(PARAM_ACTIVE_JOB).toString(),
                            QFileInfo::exists(mountPoint)};
    QJsonArray array;
    QList<QStringList> rows;
    const QList<tagShown> shown = AllPaths(names, areNamesGiven);
    for (const tagShown& row : shown) {
        array.append(QJsonObject{{QLatin1String("name"), row.name},
                                 {QLatin1String("path"), row.path.isEmpty() ? QJsonValue() : QJsonValue(row.path)}});
        rows.append({row.name, row.path.isEmpty() ? QString::fromLatin1("(none without %1)").arg(row.need) : row.path});
    }
    if (line.WantsJson())
        PrintJson(array);
    else
        PrintTable(rows);
    return STATUS_DONE;
}
