#pragma once

#include "fields/TFieldTree.h"

#include <QString>
#include <QStringList>

/// The drives that hold clients, and what is on them. Needs a terminal that runs.
namespace FieldDrives {

/// The root of a drive, without "/" at its end. False when no stick is mounted.
bool Find(EFieldDrive drive, QString* root, QString* error);

/// Whether an item is on a drive. If not, @p error names the first name that is missing, and similar ones.
bool IsThere(const QString& root, const QStringList& path, QString* error);

/// Whether a stick could hold @p path beside what is on the drive. If not, @p error names both. An item called
/// @p renamed beside the last name does not count.
bool HasPlaceFor(const QString& root, const QStringList& path, const QString& renamed, QString* error);

} // namespace FieldDrives
