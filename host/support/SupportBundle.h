#pragma once

#include "HostExport.h"
#include "stores/TSqliteStore.h"

#include <QString>
#include <QStringList>

#include <functional>

/// What a bundle is made of.
struct tagSupportRequest
{
    QString dataFolder;       ///< of the terminal that runs; see DataFolder
    QString softwareVersion;  ///< of the display or the tool
    bool isAnonymous = false; ///< whether names and positions are blanked
};

/// What was written.
struct tagSupportBundle
{
    QStringList members;  ///< the names of the files in the archive
    QStringList problems; ///< what could not be read; one line each, which the bundle holds too
};

/// Called before each file of the archive: its name, its number from 0, and the number of all files.
using TSupportProgress = std::function<void(const QString& member, int number, int count)>;

/// Writes what a service desk needs to help an operator into one zip archive: the settings as a profile, the catalogue
/// of parameters with their values, the journal of their changes, both logs, a check of the store, versions, memory and
/// drives, and the names and sizes of all files of the terminal.
///
/// @code
/// const tagSupportRequest request = {folder, version, true};
/// if (!WriteSupportBundle(store, QLatin1String("/media/stick/support.zip"), request, {}, &bundle, &error))
///     Show(error);
/// @endcode
///
/// In an anonymous bundle the names of clients, farms, fields, jobs and all other items are replaced, each by the same
/// word wherever it occurs: "client-1". These are the names that the terminal has now, and those that the journal and
/// the user log tell of selections. Names of one or two characters are replaced where they stand alone. Positions are
/// removed: from sentences with a right checksum, which get a new one, and from texts, where numbers with four or more
/// decimals count as positions. Of sentences that are damaged or not known, nothing but the length or the beginning is
/// left. What else operators have written in an entry of the user log stays.
///
/// Whatever happens on the way, @p path is the former file, if there was one, or the complete archive. When this
/// returns true, the archive is on the disk. What a killed program has left in the folder is removed. What cannot be
/// read does not stop the bundle.
///
/// Needs a terminal that runs, whose store is @p store. Files are not held in memory as a whole.
/// @param progress is called in the thread of the caller; may be empty.
/// @param error one line that names the file, when the result is false.
CABHOST_EXPORT bool WriteSupportBundle(TSqliteStore& store, const QString& path, const tagSupportRequest& request,
                                       const TSupportProgress& progress, tagSupportBundle* bundle, QString* error);
