#pragma once

#include "platform/EParamID.h"
#include "stores/TParameterStore.h"

#include <QList>
#include <QString>
#include <QStringList>

/// The active client, farm, field and job, and the active items in the field. Needs a terminal that runs.
namespace FieldSelection {

/// A parameter that selects an item, and its value before and after a change.
struct tagChange
{
    EParamID parameter;
    QString before;
    QString after;
};

/// Whether the parameter is one of a selection.
bool Selects(EParamID parameter);

/// The names of the active client, farm, field and job, up to the first that is not selected.
QStringList Active();

/// Whether @p path is active, or holds what is active.
bool IsActive(const QStringList& path);

/// The changes that keep the selection on an item that is renamed; none when it is not active.
QList<tagChange> AfterRename(const QStringList& path, const QString& name);

/// The changes that select the built-in items, as at a first start, in place of an item and of what is in it; none when
/// it is not active.
QList<tagChange> AfterRemoval(const QStringList& path);

/// Writes the values before or after, in one transaction. Returns false when they are not on the disk.
bool StoreBefore(TParameterStore& store, const QList<tagChange>& changes);
bool StoreAfter(TParameterStore& store, const QList<tagChange>& changes);

/// Selects nothing, in one transaction. Returns false when this is not on the disk.
bool StoreNothing(TParameterStore& store, const QList<tagChange>& changes);

} // namespace FieldSelection
