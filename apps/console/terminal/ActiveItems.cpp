#include "console/terminal/ActiveItems.h"

#include "platform/TConfigManager.h"
#include "stores/TPersistenceHold.h"
#include "system/TSystemSettings.h"
#include "system/TSystemSettingsProxy.h"

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
