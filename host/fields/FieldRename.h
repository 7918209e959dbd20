#pragma once

#include "stores/TParameterStore.h"

#include <QString>
#include <QStringList>

/// Renames an item, with the files and folders in it that have its name, and the selection.
///
/// The order survives a power cut at any moment:
///
/// 1. A note of the renaming is written beside the clients.
/// 2. When the item is active, nothing is selected in its place: the display works without it.
/// 3. The folder is renamed.
/// 4. The files in it that have its name are renamed.
/// 5. The selection names the item again.
/// 6. The note is removed.
///
/// So the selection never names an item that is not complete. Whoever finds the note goes on from there: forwards when
/// the folder has its new name, else back. All parameters of a step are written in one transaction.
namespace FieldRename {

/// Whether the library gives a file of an item called @p name the name @p file: "J_1.cov", "J_1_PPD.pbz".
bool HasItsName(const QString& file, const QString& name);

/// What stands in the way of a new name inside the item: a file or a folder of that name. Empty when nothing does.
QString Obstacle(const QString& drive, const QStringList& path, const QString& name);

/// Renames. Returns false, with everything as it was, when that is not possible.
bool Run(TParameterStore& store, const QString& drive, const QStringList& path, const QString& name, QString* error);

/// Finishes a renaming that was cut off. True when there is none.
bool Finish(TParameterStore& store, const QString& drive, QString* error);

} // namespace FieldRename
