#pragma once

#include <QByteArray>

#include <functional>

/// Copies a regular file. Whatever happens on the way, a pulled stick, a power cut or a killed process, @p target is
/// the old file or the complete new one. When this returns, the copy is on the disk.
/// @param overwrite whether an existing target is replaced.
/// @return false with errno set when the file could not be copied.
bool CopyDurably(const QByteArray& source, const QByteArray& target, bool overwrite);

/// Copies what can be read from the descriptor @p from to the descriptor @p to; reads alone when @p to is -1.
/// @param seen is called with each piece and its length.
/// @return false with errno set when reading or writing has failed.
bool CopyContents(int from, int to, const std::function<void(const char*, int)>& seen = {});

/// Renames a file or a folder unless @p target exists. FAT drivers of older kernels have no such operation; there,
/// another program may make the target between the test and the renaming.
/// @return false with errno set when it was not renamed.
bool RenameWithoutReplacing(const QByteArray& source, const QByteArray& target);

/// Writes the entries of a folder, as they are after a file was renamed, to the disk. Some file systems have no such
/// operation and keep their entries in order by themselves; the result is then true too.
/// @return false with errno set when writing has failed.
bool SyncFolder(const QByteArray& folder);
