#include "terminal/ActiveItems.h"

#include "fields/FieldPlaces.h"
#include "fields/FieldSelection.h"
#include "fields/FileTree.h"
#include "platform/TConfigManager.h"
#include "stores/TPersistenceHold.h"
#include "system/TSystemSettings.h"
#include "system/TSystemSettingsProxy.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace {

using System = TSystemSettings;
using Proxy = TSystemSettingsProxy;

const QString Group = QLatin1String("active.");

/// How an item is selected, where that is more than a name in the store, and where its file lies.
struct tagItemAccess
{
    EParamID id;
    void (*select)(const QString& name);
    QString (*path)();
};

template <class Owner, void (Owner::*Setter)(const QString&)>
void SelectBy(const QString& name)
{
    (Owner().*Setter)(name);
}

template <class Owner, QString (Owner::*Getter)() const>
QString PathBy()
{
    return (Owner().*Getter)();
}

QString FieldPath() { return Proxy().GetCFFPath().isEmpty() ? QString() : Proxy().GetActiveFieldPath(); }

// The façade leaves the steering profile out; clients, farms and boom levellers have names alone.
const tagItemAccess Accesses[] = {
    {PARAM_ACTIVE_JOB, SelectBy<Proxy, &Proxy::SetActiveJob>, PathBy<Proxy, &Proxy::GetActiveJobPath>},
    {PARAM_ACTIVE_BOUNDARY, SelectBy<Proxy, &Proxy::SetActiveBoundary>, PathBy<Proxy, &Proxy::GetActiveBoundaryPath>},
    {PARAM_ACTIVE_AB_LINE, SelectBy<Proxy, &Proxy::SetActiveABLine>, PathBy<Proxy, &Proxy::GetActiveABLinePath>},
    {PARAM_ACTIVE_PIVOT, SelectBy<Proxy, &Proxy::SetActivePivot>, PathBy<Proxy, &Proxy::GetActivePivotPath>},
    {PARAM_ACTIVE_CURVE, SelectBy<Proxy, &Proxy::SetActiveCurve>, PathBy<Proxy, &Proxy::GetActiveCurvePath>},
    {PARAM_ACTIVE_OPTIMAL_LINES_SHAPE_FILE, SelectBy<Proxy, &Proxy::SetActiveOptimalLinesShapeFile>,
     PathBy<Proxy, &Proxy::GetActiveOptimalLinesShapeFilePath>},
    {PARAM_ACTIVE_PROJECT_LINES_SHAPE_FILE, SelectBy<Proxy, &Proxy::SetActiveProjectLinesShapeFile>,
     PathBy<Proxy, &Proxy::GetActiveProjectLinesShapeFilePath>},
    {PARAM_ACTIVE_ZONES_SHAPE_FILE, SelectBy<Proxy, &Proxy::SetActiveShapeFile>,
     PathBy<Proxy, &Proxy::GetActiveShapeFilePath>},
    {PARAM_ACTIVE_STEERING_PROFILE, SelectBy<System, &System::SetActiveSteering>,
     PathBy<System, &System::GetActiveSteeringPath>},
    {PARAM_ACTIVE_IMPLEMENT, SelectBy<Proxy, &Proxy::SetActiveImplement>,
     PathBy<Proxy, &Proxy::GetActiveImplementPath>},
    {PARAM_ACTIVE_VEHICLE, SelectBy<Proxy, &Proxy::SetActiveVehicle>, PathBy<Proxy, &Proxy::GetActiveVehiclePath>},
    {PARAM_ACTIVE_SPRAYER, SelectBy<Proxy, &Proxy::SetActiveSprayer>, PathBy<Proxy, &Proxy::GetActiveSprayerPath>},
    {PARAM_FIELD, nullptr, FieldPath},
};

const tagItemAccess* FindAccess(const tagParameter& item)
{
    const auto* const access = std::find_if(std::begin(Accesses), std::end(Accesses),
                                            [&item](const tagItemAccess& row) { return row.id == item.id; });
    return access != std::end(Accesses) ? access : nullptr;
}

/// Where the folders of the items of a kind are.
enum EPlace
{
    PLACE_DRIVE,
    PLACE_FIELD, ///< the active one
};

struct tagCategory
{
    EParamID id;
    EPlace place;
    const char* const* folder;
    const QString* builtIn; ///< null for kinds without a built-in item
};

const tagCategory Categories[] = {
    {PARAM_ACTIVE_BOUNDARY, PLACE_FIELD, &System::BoundariesFolder, nullptr},
    {PARAM_ACTIVE_AB_LINE, PLACE_FIELD, &System::ABLinesFolder, nullptr},
    {PARAM_ACTIVE_PIVOT, PLACE_FIELD, &System::PivotsFolder, nullptr},
    {PARAM_ACTIVE_CURVE, PLACE_FIELD, &System::CurvesFolder, nullptr},
    {PARAM_ACTIVE_OPTIMAL_LINES_SHAPE_FILE, PLACE_FIELD, &System::OptimalLinesFolder, nullptr},
    {PARAM_ACTIVE_PROJECT_LINES_SHAPE_FILE, PLACE_FIELD, &System::ProjectLinesFolder, nullptr},
    {PARAM_ACTIVE_ZONES_SHAPE_FILE, PLACE_FIELD, &System::ZonesFolder, nullptr},
    {PARAM_ACTIVE_STEERING_PROFILE, PLACE_DRIVE, &System::SteeringFolder, &System::DefaultSteeringProfile},
    {PARAM_ACTIVE_IMPLEMENT, PLACE_DRIVE, &System::ImplementsFolder, &System::DefaultImplementProfile},
    {PARAM_ACTIVE_VEHICLE, PLACE_DRIVE, &System::VehiclesFolder, &System::DefaultVehicleProfile},
    {PARAM_ACTIVE_SPRAYER, PLACE_DRIVE, &System::SprayerFolder, &System::DefaultSprayerProfile},
    {PARAM_ACTIVE_BOOM_LEVELLER, PLACE_DRIVE, &System::BoomLevellerFolder, nullptr},
};

const tagCategory* FindCategory(const tagParameter& item)
{
    const auto* const category = std::find_if(std::begin(Categories), std::end(Categories),
                                              [&item](const tagCategory& row) { return row.id == item.id; });
    return category != std::end(Categories) ? category : nullptr;
}

/// The folder with the folders of all items of a category; empty without the field in which it is.
QString FolderOf(const tagCategory& category)
{
    const Proxy system;
    if (category.id == PARAM_ACTIVE_IMPLEMENT) // the library chooses between two folders
        return QFileInfo(QFileInfo(system.GetImplementPathForName(QLatin1String("x"))).path()).path();
    const QString drive = system.GetInternalDrivePath();
    if (category.place == PLACE_DRIVE)
        return drive + QLatin1String(*category.folder);
    const QString field = system.GetCFFPath();
    return field.isEmpty() ? QString() : drive + field + QLatin1String(*category.folder);
}

/// The folder with the clients, or with the farms, fields or jobs of what is selected above them.
QString FolderOfLevel(EParamID level)
{
    const auto* const found =
        std::find_if(std::begin(FieldPlaces::Levels), std::end(FieldPlaces::Levels),
                     [level](const FieldPlaces::tagLevel& row) { return row.parameter == level; });
    const auto above = static_cast<int>(found - std::begin(FieldPlaces::Levels));
    const QStringList active = FieldSelection::Active();
    if (active.size() < above)
        return QString();
    return Proxy().GetInternalDrivePath() + FieldPlaces::FolderOfItems(active.mid(0, above));
}

} // namespace

QList<const tagParameter*> ActiveItems::All()
{
    QList<const tagParameter*> items;
    for (const tagParameter& parameter : TParameterCatalogue::Parameters()) {
        if (parameter.name.startsWith(Group))
            items.append(&parameter);
    }
    return items;
}

QString ActiveItems::Kind(const tagParameter& item) { return item.name.mid(Group.size()); }

QStringList ActiveItems::Kinds()
{
    QStringList kinds;
    const QList<const tagParameter*> items = All();
    for (const tagParameter* item : items)
        kinds.append(Kind(*item));
    return kinds;
}

const tagParameter* ActiveItems::Find(const QString& kind)
{
    return Kinds().contains(kind) ? TParameterCatalogue::Find(Group + kind) : nullptr;
}

QString ActiveItems::Name(const tagParameter& item) { return ConfigManager->GetParameter(item.id).toString(); }

bool ActiveItems::HasFile(const tagParameter& item) { return FindAccess(item) != nullptr; }

QString ActiveItems::Path(const tagParameter& item)
{
    const tagItemAccess* const access = FindAccess(item);
    return !access || Name(item).isEmpty() ? QString() : access->path();
}

QStringList ActiveItems::Available(const tagParameter& item)
{
    const tagCategory* const category = FindCategory(item);
    const QString folder = category ? FolderOf(*category) : FolderOfLevel(item.id);
    QStringList names = folder.isEmpty() ? QStringList() : FileTree::Folders(folder);
    if (category && category->builtIn) {
        names.removeAll(*category->builtIn);
        names.prepend(*category->builtIn);
    }
    return names;
}

bool ActiveItems::Select(TParameterStore& store, const tagParameter& item, const QString& name)
{
    // The façade's setters return nothing; the end of a hold tells whether the name is on the disk.
    TPersistenceHold hold(store);
    const tagItemAccess* const access = FindAccess(item);
    if (access && access->select)
        access->select(name);
    else
        store.SetParameter(item.id, name, true);
    return hold.Release();
}
