#include "fields/FieldSelection.h"

#include "fields/FieldPath.h"
#include "fields/FieldPlaces.h"
#include "stores/TPersistenceHold.h"

#include <algorithm>
#include <iterator>

namespace FieldSelection {

namespace {

const int NamesOfField = 3;

/// What is selected in a field, beside the job. The built-in item of each has the empty name.
constexpr EParamID ItemsOfField[] = {
    PARAM_ACTIVE_BOUNDARY,
    PARAM_ACTIVE_AB_LINE,
    PARAM_ACTIVE_PIVOT,
    PARAM_ACTIVE_CURVE,
    PARAM_ACTIVE_OPTIMAL_LINES_SHAPE_FILE,
    PARAM_ACTIVE_PROJECT_LINES_SHAPE_FILE,
    PARAM_ACTIVE_ZONES_SHAPE_FILE,
};

QString Name(EParamID parameter) { return ConfigManager->GetParameter(parameter).toString(); }

template <class Value>
bool Store(TParameterStore& store, const QList<tagChange>& changes, Value value)
{
    if (changes.isEmpty())
        return true;
    TPersistenceHold hold(store);
    for (const tagChange& change : changes)
        store.SetParameter(change.parameter, value(change), true);
    return hold.Release();
}

} // namespace

bool Selects(EParamID parameter)
{
    return std::any_of(std::begin(FieldPlaces::Levels), std::end(FieldPlaces::Levels),
                       [&](const FieldPlaces::tagLevel& level) { return level.parameter == parameter; }) ||
           std::find(std::begin(ItemsOfField), std::end(ItemsOfField), parameter) != std::end(ItemsOfField);
}

QStringList Active()
{
    QStringList names;
    for (const FieldPlaces::tagLevel& level : FieldPlaces::Levels) {
        const QString name = Name(level.parameter);
        if (name.isEmpty())
            break;
        names.append(name);
    }
    return names;
}

bool IsActive(const QStringList& path) { return Active().mid(0, static_cast<int>(path.size())) == path; }

QList<tagChange> AfterRename(const QStringList& path, const QString& name)
{
    if (!IsActive(path))
        return {};
    const QString& before = path.last();
    QList<tagChange> changes = {{FieldPlaces::LevelOf(path).parameter, before, name}};
    const int folders = static_cast<int>(FieldPlaces::FoldersOfItsName(path).size());
    for (int i = 1; i < folders; ++i) {
        const EParamID parameter = FieldPlaces::ParameterOfItsName(i);
        if (Name(parameter) == before)
            changes.append({parameter, before, name});
    }
    return changes;
}

QList<tagChange> AfterRemoval(const QStringList& path)
{
    if (!IsActive(path))
        return {};
    QList<tagChange> changes;
    for (int i = static_cast<int>(path.size()) - 1; i < FieldPath::MostNames; ++i)
        changes.append({FieldPlaces::Levels[i].parameter, Name(FieldPlaces::Levels[i].parameter), QString()});
    if (path.size() <= NamesOfField) {
        for (const EParamID item : ItemsOfField)
            changes.append({item, Name(item), QString()});
    }
    return changes;
}

bool StoreBefore(TParameterStore& store, const QList<tagChange>& changes)
{
    return Store(store, changes, [](const tagChange& change) { return change.before; });
}

bool StoreAfter(TParameterStore& store, const QList<tagChange>& changes)
{
    return Store(store, changes, [](const tagChange& change) { return change.after; });
}

bool StoreNothing(TParameterStore& store, const QList<tagChange>& changes)
{
    return Store(store, changes, [](const tagChange&) { return QString(QLatin1String("")); });
}

} // namespace FieldSelection
