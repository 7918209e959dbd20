#pragma once

#include "HostExport.h"
#include "parameters/TParameterCatalogue.h"
#include "stores/TParameterStore.h"

#include <QList>
#include <QString>
#include <QStringList>

/// What the operator has selected: the job, the vehicle, the field and so on, each a parameter "active.…" of the
/// catalogue. The kind is the part of the name after "active.".
///
/// @code
/// const tagParameter& vehicle = *ActiveItems::Find(QLatin1String("vehicle"));
/// const QStringList names = ActiveItems::Available(vehicle);
/// const bool isStored = ActiveItems::Select(store, vehicle, names.first());
/// @endcode
///
/// Needs a terminal that runs, except for the kinds themselves. May be used from any thread.
namespace ActiveItems {

/// In the order of the catalogue.
CABHOST_EXPORT QList<const tagParameter*> All();

CABHOST_EXPORT QString Kind(const tagParameter& item);
CABHOST_EXPORT QStringList Kinds();

/// Null when there is no such kind.
CABHOST_EXPORT const tagParameter* Find(const QString& kind);

/// Empty when nothing is selected.
CABHOST_EXPORT QString Name(const tagParameter& item);

/// Whether an item of the kind is kept in a file that the library names.
CABHOST_EXPORT bool HasFile(const tagParameter& item);

/// The item's file; empty when nothing is selected, or the item lies in a field and none is selected. Asking makes
/// folders; see TSystemSettings.
CABHOST_EXPORT QString Path(const tagParameter& item);

/// The names that can be selected: those of the folders in the folder of the kind, in order. The built-in item, of
/// kinds that have one, comes first. Empty when the item lies in a field and none is selected. Reads the disk.
CABHOST_EXPORT QStringList Available(const tagParameter& item);

/// Selects, or clears with an empty name, as the display does. False when that could not be stored. The name is not
/// checked; see TParameterCatalogue::Read().
CABHOST_EXPORT bool Select(TParameterStore& store, const tagParameter& item, const QString& name);

} // namespace ActiveItems
