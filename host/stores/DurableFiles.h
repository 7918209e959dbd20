#pragma once

#include <QByteArray>
#include <QString>

#include <sys/types.h>

/// File operations whose result is on the disk when they return. Names are passed to the system in UTF-8, as the
/// database passes them. Operations that can fail give a reason that names the file.
namespace DurableFiles {

bool Exists(const QString& path);

/// Waits until the content of a file is on the disk.
bool SyncContent(const QString& path, QString* reason);

/// Renames a file within its folder; an existing @p target is replaced.
bool Rename(const QString& source, const QString& target, QString* reason);

/// Copies a file. Returns false when @p target exists.
bool Copy(const QString& source, const QString& target, QString* reason);

/// Writes a file that everyone may read whom the umask lets; an existing one is replaced. Whatever happens on the way,
/// @p path is the old file or the complete new one.
bool Write(const QString& path, const QByteArray& content, QString* reason);

/// Removes a file. Returns true when there is no such file.
bool Remove(const QString& path, QString* reason);

/// Identifies a file, whatever happens to its name later.
struct tagIdentity
{
    dev_t device;
    ino_t number;

    bool operator==(const tagIdentity& other) const { return device == other.device && number == other.number; }
};

/// The identity of the file that @p path names. Returns false when there is no such file.
bool Identify(const QString& path, tagIdentity* identity);

/// The system's text for an error, or for the value of errno: in English, whatever the machine's language.
QString SystemText(int error);
QString SystemText();

/// "@p doing @p path: " and SystemText().
QString SystemReason(const QString& doing, const QString& path);

} // namespace DurableFiles
