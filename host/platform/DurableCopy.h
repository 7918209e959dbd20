#pragma once

#include <QByteArray>

/// Copies a regular file. Whatever happens on the way, a pulled stick, a power cut or a killed process, @p target is
/// the old file or the complete new one. When this returns, the copy is on the disk.
/// @param overwrite whether an existing target is replaced.
/// @return false with errno set when the file could not be copied.
bool CopyDurably(const QByteArray& source, const QByteArray& target, bool overwrite);

/// Writes the entries of a folder, as they are after a file was renamed, to the disk. Some file systems have no such
/// operation and keep their entries in order by themselves; the result is then true too.
/// @return false with errno set when writing has failed.
bool SyncFolder(const QByteArray& folder);
