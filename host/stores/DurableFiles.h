#pragma once

#include <QString>

#include <sys/types.h>

/// File operations that are on the disk when they return. Names go to the system in UTF-8, as the database passes them.
/// Those that can fail give a reason that names the file.
namespace DurableFiles {

bool Exists(const QString& path);

/// Waits until the disk holds the content of a file.
bool SyncContent(const QString& path, QString* reason);

/// Renames within a folder, replacing @p target.
bool Rename(const QString& source, const QString& target, QString* reason);

/// True also when there was no such file.
bool Remove(const QString& path, QString* reason);

/// Which file it is that a name stands for, whatever happens to the name later.
struct tagIdentity
{
    dev_t device;
    ino_t number;

    bool operator==(const tagIdentity& other) const { return device == other.device && number == other.number; }
};

/// False when there is no such file.
bool Identify(const QString& path, tagIdentity* identity);

/// "@p doing @p path: ..." with the system's words for the error that has just occurred.
QString SystemReason(const QString& doing, const QString& path);

} // namespace DurableFiles
