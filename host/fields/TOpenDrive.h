#pragma once

#include "platform/TDescriptor.h"

#include <QString>

/// A drive that stays the same one while the object exists: when the stick is pulled, nothing is written into the empty
/// folder that was its mount point.
class TOpenDrive
{
public:
    /// @param root the root of the drive, without "/" at its end.
    explicit TOpenDrive(const QString& root);

    /// Whether the drive could be opened, and is still mounted where it was.
    bool IsThere() const;

    /// The path to use for @p relative.
    QString Path(const QString& relative) const;

    /// A text with the paths of Path() as people know them.
    QString Readable(QString text) const;

    /// The free space in bytes; -1 when it is not known.
    qint64 Free() const;

private:
    const QString m_Root;
    const TDescriptor m_Folder;
};
