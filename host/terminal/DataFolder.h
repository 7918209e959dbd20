#pragma once

#include "HostExport.h"

#include <QString>
#include <QStringList>

/// The folder that stands for a terminal: the file of its parameter store, and its two drives unless the store names
/// others.
///
/// @code
/// const QString file = DataFolder::StoreFile(folder);      // "folder/settings.db"
/// const QString drive = DataFolder::InternalDrive(folder); // "folder/internal/"
/// if (!DataFolder::MakeTree(drive, &error))
/// @endcode
namespace DataFolder {

/// The file of the parameter store.
CABHOST_EXPORT QString StoreFile(const QString& dataFolder);

/// The drives in the data folder: the internal drive, ending in "/", and the mount point of the removable one.
CABHOST_EXPORT QString InternalDrive(const QString& dataFolder);
CABHOST_EXPORT QString ExternalDrive(const QString& dataFolder);

/// The drives of a terminal whose store holds @p stored in PARAM_INTERNAL_DRIVE or PARAM_EXTERNAL_DRIVE. The internal
/// drive ends in "/", also when the stored one does not. When @p stored is empty, or TParameterCatalogue does not
/// accept it, the drive is in the data folder; in the second case @p problem receives one line.
CABHOST_EXPORT QString InternalDrive(const QString& dataFolder, const QString& stored, QString* problem);
CABHOST_EXPORT QString ExternalDrive(const QString& dataFolder, const QString& stored, QString* problem);

/// The folders that MakeTree() makes, relative to the internal drive.
CABHOST_EXPORT QStringList Folders();

/// Makes the folders in which the display keeps its files under @p internalDrive. Returns false when that fails, with
/// the folder named in @p error.
CABHOST_EXPORT bool MakeTree(const QString& internalDrive, QString* error);

} // namespace DataFolder
