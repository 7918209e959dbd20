#include "profiles/ProfileImport.h"

#include "parameters/HostParameters.h"
#include "stores/DurableFiles.h"
#include "stores/TChangeAuthor.h"
#include "stores/TImportedValues.h"
#include "stores/TPersistenceHold.h"
#include "stores/TStoreLock.h"

#include <QDeadlineTimer>
#include <QFileInfo>

namespace {

using namespace ProfileImport;

using TBases = QMap<int, QStringList>; // for each parameter the values that count as its base

std::optional<QString> Ours(const QMap<int, QVariant>& values, const tagParameter& parameter)
{
    if (!values.contains(parameter.id))
        return std::nullopt;
    return TParameterCatalogue::Text(parameter, values.value(parameter.id));
}

bool IsFromThisTerminal(const TProfile& profile, TParameterStore& store)
{
    const QString origin = profile.Origin().terminal;
    return !origin.isEmpty() && origin == store.GetParameter(PARAM_TERMINAL_IDENTITY).toString();
}

/// Values are noted for other terminals alone: a profile of this one has its bases itself.
bool ReadBases(const TProfile& profile, TParameterStore& store, TImportedValues& imported, TBases* bases,
               QString* reason)
{
    const QString terminal = profile.Origin().terminal;
    if (!IsFromThisTerminal(profile, store))
        return terminal.isEmpty() || imported.Read(terminal, bases, reason);
    for (const tagProfileParameter& parameter : profile.Parameters())
        if (parameter.base)
            bases->insert(parameter.known->id, {*parameter.base});
    return true;
}

/// The parameters of the profile that are of the selected groups, by number.
QMap<int, tagProfileParameter> Selected(const TProfile& profile, const tagOptions& options)
{
    QMap<int, tagProfileParameter> selected;
    for (const tagProfileParameter& parameter : profile.Parameters())
        if (options.groups.contains(ProfileGroups::Of(parameter.known->name)))
            selected.insert(parameter.known->id, parameter);
    return selected;
}

/// A comparison, and the values of the store and the profile that belong to it.
struct tagComparison
{
    tagResult result;
    QMap<int, QVariant> former;  ///< of the parameters that change
    QMap<int, QVariant> news;    ///< of the parameters that change
    QMap<int, QString> imported; ///< what the store has of the profile after the import
};

tagComparison CompareWith(const TProfile& profile, const QMap<int, QVariant>& values, const TBases& bases,
                          const tagOptions& options)
{
    tagComparison comparison;
    const QMap<int, tagProfileParameter> selected = Selected(profile, options);
    comparison.result.notSelected = static_cast<int>(profile.Parameters().size() - selected.size());
    for (const tagProfileParameter& parameter : selected) {
        const int id = parameter.known->id;
        const std::optional<QString> ours = Ours(values, *parameter.known);
        const QString theirs = TParameterCatalogue::Text(*parameter.known, parameter.value);
        const QStringList base = bases.value(id);
        const bool isConflict = ours != theirs && !base.isEmpty() && !(ours && base.contains(*ours));
        if (isConflict)
            comparison.result.conflicts.append({parameter.known, ours, theirs, base.first()});
        if (isConflict && options.resolution != RESOLUTION_THEIRS)
            continue;
        comparison.imported.insert(id, theirs);
        if (ours == theirs)
            continue;
        comparison.result.changes.append({parameter.known, ours, theirs});
        comparison.former.insert(id, values.value(id));
        comparison.news.insert(id, parameter.value);
    }
    return comparison;
}

bool IsBlocked(const tagResult& result, const tagOptions& options)
{
    return !result.conflicts.isEmpty() && options.resolution == RESOLUTION_NONE;
}

void SetAll(TParameterStore& store, const QMap<int, QVariant>& values)
{
    const TChangeAuthor author(CHANGE_AUTHOR_IMPORT);
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        store.SetParameter(static_cast<EParamID>(value.key()), value.value(), true);
}

/// SQLite would make a new file where the store's own has gone.
bool IsThere(const QString& storeFile, QString* reason)
{
    if (DurableFiles::Exists(storeFile))
        return true;
    *reason = QString::fromLatin1("%1 is no longer there").arg(storeFile);
    return false;
}

QString CannotBeRead(const QString& path, const QString& reason)
{
    return QString::fromLatin1("%1 cannot be read: %2").arg(path, reason);
}

/// Takes in what other programs have written.
void CatchUp(TParameterStore& store) { TPersistenceHold(store).Release(); }

/// Writes the values of a comparison. The caller holds the persistence of the store.
bool Write(const tagComparison& comparison, TPersistenceHold& hold, TParameterStore& store)
{
    SetAll(store, comparison.news);
    if (hold.Release())
        return true;
    // A write that has failed is tried again later, unless the former values take its place.
    TPersistenceHold former(store);
    SetAll(store, comparison.former);
    return false;
}

} // namespace

ProfileImport::tagResult ProfileImport::Compare(const TProfile& profile, TSqliteStore& store, const QString& storeFile,
                                                const tagOptions& options)
{
    const QString path = QFileInfo(storeFile).absoluteFilePath();
    TBases bases;
    tagResult failed;
    if (!IsThere(path, &failed.error))
        return failed;
    TImportedValues imported(path, options.patience);
    CatchUp(store);
    if (!ReadBases(profile, store, imported, &bases, &failed.error)) {
        failed.error = CannotBeRead(path, failed.error);
        return failed;
    }
    return CompareWith(profile, store.Values(), bases, options).result;
}

ProfileImport::tagResult ProfileImport::Apply(const TProfile& profile, TSqliteStore& store, const QString& storeFile,
                                              const tagOptions& options)
{
    const QString path = QFileInfo(storeFile).absoluteFilePath();
    tagResult failed;
    // An import writes what differs from its own view of the store. A second one at the same time would change that
    // view, and the store could end with some values of each.
    TStoreLock alone(path + QLatin1String(".import"));
    if (!IsThere(path, &failed.error) || !alone.Take(QDeadlineTimer(options.patience), &failed.error))
        return failed;
    TImportedValues imported(path, options.patience);
    CatchUp(store);
    TBases bases;
    if (!ReadBases(profile, store, imported, &bases, &failed.error)) {
        failed.error = CannotBeRead(path, failed.error);
        return failed;
    }

    TPersistenceHold hold(store);
    tagComparison comparison = CompareWith(profile, store.Values(), bases, options);
    if (IsBlocked(comparison.result, options)) {
        hold.Abandon();
        return comparison.result;
    }
    const QString terminal = profile.Origin().terminal;
    const bool isNoted = !terminal.isEmpty() && !IsFromThisTerminal(profile, store);
    const QMap<int, QString> notes = isNoted ? comparison.imported : QMap<int, QString>();
    // Also without notes: a file that cannot be written is found out before anything is changed.
    if (!imported.Note(terminal, notes, &comparison.result.error)) {
        comparison.result.error = QString::fromLatin1("%1 cannot be written: %2").arg(path, comparison.result.error);
        hold.Abandon();
        return comparison.result;
    }
    QString ignored; // without its end, the note counts beside the former value
    comparison.result.isApplied = Write(comparison, hold, store);
    if (comparison.result.isApplied) {
        imported.Settle(terminal, notes, &ignored);
    } else {
        comparison.result.error = QString::fromLatin1("%1 cannot be written").arg(path);
        imported.Forget(terminal, notes, &ignored);
    }
    return comparison.result;
}
