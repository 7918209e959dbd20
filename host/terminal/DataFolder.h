#pragma once

#include "HostExport.h"

#include <QString>

/// A folder that stands for a terminal: its parameter store and its two drives.
namespace DataFolder {

/// File of the parameter store.
CABHOST_EXPORT QString StoreFile(const QString& dataFolder);

/// Where the drives lie unless the store names another place: the internal drive ending in "/", and the mount point of
/// the removable one.
CABHOST_EXPORT QString InternalDrive(const QString& dataFolder);
CABHOST_EXPORT QString ExternalDrive(const QString& dataFolder);

/// Makes the folders in which the display keeps its files under @p internalDrive. On failure false, with @p error
/// naming the folder.
CABHOST_EXPORT bool MakeTree(const QString& internalDrive, QString* error);

} // namespace DataFolder
