#pragma once

#include "HostExport.h"
#include "platform/TDescriptor.h"

#include <QString>

/// A drive that stays the same one while the object exists: when the stick is pulled, nothing is written into the empty
/// folder that was its mount point.
///
/// @code
/// const TOpenDrive stick(Storage::Stick().path);
/// const bool isThere = profile.Write(stick.Path(QLatin1String("tractor.profile")), &reason) && stick.Sync() &&
///                      stick.IsThere();
/// @endcode
///
/// May be used from any thread.
class CABHOST_EXPORT TOpenDrive
{
public:
    /// @param root the root of the drive, without "/" at its end.
    explicit TOpenDrive(const QString& root);

    /// Whether the drive could be opened, and is still mounted where it was.
    bool IsThere() const;

    /// The path to use for @p relative.
    QString Path(const QString& relative) const;

    /// Whether @p relative leads through a symbolic link, or ends in one: it may leave the drive. A stick from a
    /// stranger may have such links in place of the folders that are expected on it. False for what does not exist.
    bool HasLink(const QString& relative) const;

    /// A text with the paths of Path() as people know them.
    QString Readable(QString text) const;

    /// The free space in bytes; -1 when it is not known.
    qint64 Free() const;

    /// Writes everything that programs have written on the drive to it. False when that has failed.
    bool Sync() const;

private:
    const QString m_Root;
    const TDescriptor m_Folder;
};
