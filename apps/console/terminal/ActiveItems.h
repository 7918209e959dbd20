#pragma once

#include "parameters/TParameterCatalogue.h"
#include "stores/TParameterStore.h"

#include <QList>
#include <QString>
#include <QStringList>

/// What the operator has selected: the job, the vehicle, the field and so on, each a parameter "active.…" of the
/// catalogue. The kind is the part of the name after "active.".
///
/// Needs a terminal that runs, except for the kinds themselves.
namespace ActiveItems {

/// In the order of the catalogue.
QList<const tagParameter*> All();

QString Kind(const tagParameter& item);
QStringList Kinds();

/// Null when there is no such kind.
const tagParameter* Find(const QString& kind);

/// Empty when nothing is selected.
QString Name(const tagParameter& item);

/// Whether an item of the kind is kept in a file that the library names.
bool HasFile(const tagParameter& item);

/// The item's file; empty when nothing is selected, or the item lies in a field and none is selected. Asking makes
/// folders; see TSystemSettings.
QString Path(const tagParameter& item);

/// Selects, or clears with an empty name, as the display does. False when that could not be stored.
bool Select(TParameterStore& store, const tagParameter& item, const QString& name);

} // namespace ActiveItems
