#include "copies/StoreCopies.h"

#include "parameters/ParameterGroups.h"
#include "stores/DayCopies.h"
#include "stores/StoreFileCopy.h"
#include "stores/StoredValue.h"
#include "stores/TPersistenceHold.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace StoreCopies {

namespace {

tagCopy CopyOf(const QString& storeFile, const DayCopies::tagCopyName& name)
{
    const QString path = DayCopies::File(storeFile, name);
    return {name.Text(), name.day, path, QFileInfo(path).size()};
}

bool ReadCopy(const tagCopy& copy, StoreTable::tagContent* content, QString* error)
{
    const tagStoreFinding finding = StoreFileCopy::CheckAtRest(copy.path, content);
    QString problem = finding.state == STORE_FILE_CLEAN ? content->journalDamage : finding.words;
    if (problem.isEmpty() && !content->damaged.isEmpty())
        problem = StoreTable::DamageText(content->damaged);
    if (!problem.isEmpty())
        *error = QString::fromLatin1("%1 cannot be restored: %2").arg(copy.path, problem);
    return problem.isEmpty();
}

// A hold that ends takes in what other programs have written.
void CatchUp(TSqliteStore& store) { TPersistenceHold(store).Release(); }

using TSide = QVariant tagDifference::*;

bool SetAll(TSqliteStore& store, const QList<tagDifference>& differences, TSide side)
{
    const TChangeAuthor author(CHANGE_AUTHOR_RESTORE);
    TPersistenceHold hold(store);
    for (const tagDifference& difference : differences)
        store.SetParameter(static_cast<EParamID>(difference.parameter), difference.*side, true);
    return hold.Release();
}

} // namespace

QList<tagCopy> List(const QString& storeFile)
{
    QList<tagCopy> copies;
    for (const DayCopies::tagCopyName& name : DayCopies::Names(storeFile))
        copies.append(CopyOf(storeFile, name));
    return copies;
}

bool Make(const TSqliteStore& store, tagCopy* made, QString* error)
{
    TSqliteConnection source(store.Path(), TSqliteConnection::SQLITE_ACCESS_READ, StoreFileCopy::CopyPatience);
    DayCopies::tagCopyName name;
    QString reason;
    if (!DayCopies::MakeOnDemand(source, store.Path(), &name, &reason)) {
        *error = QString::fromLatin1("a copy in %1 cannot be made: %2").arg(DayCopies::Folder(store.Path()), reason);
        return false;
    }
    *made = CopyOf(store.Path(), name);
    return true;
}

bool Compare(TSqliteStore& store, const tagCopy& copy, QList<tagDifference>* differences, QString* error)
{
    differences->clear();
    StoreTable::tagContent content;
    if (!ReadCopy(copy, &content, error))
        return false;
    CatchUp(store);
    const QMap<int, QVariant> values = store.Values();
    QList<int> parameters = content.values.keys() + values.keys();
    std::sort(parameters.begin(), parameters.end());
    parameters.erase(std::unique(parameters.begin(), parameters.end()), parameters.end());
    for (const int parameter : std::as_const(parameters)) {
        const QVariant now = values.value(parameter);
        const QVariant then = content.values.value(parameter);
        // A value of a type that a later version stores is not known, so it is not a value to go back to.
        if (!content.unreadable.contains(parameter) && !ParameterGroups::IsOfDevice(parameter) &&
            !IsSameValue(now, then))
            differences->append({parameter, now, then});
    }
    return true;
}

bool Restore(TSqliteStore& store, const tagCopy& copy, QList<tagDifference>* changed, QString* error)
{
    if (!Compare(store, copy, changed, error))
        return false;
    if (SetAll(store, *changed, &tagDifference::then))
        return true;
    SetAll(store, *changed, &tagDifference::now); // else the store would try again to write them
    changed->clear();
    *error = QString::fromLatin1("%1 cannot be restored: the parameters cannot be stored").arg(copy.path);
    return false;
}

} // namespace StoreCopies
