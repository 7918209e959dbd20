#pragma once

#include "stores/DurableFiles.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QString>

/// The lock of a store's file. It tells each user of the file, in this process or others, whether it is the only one.
/// An exclusive holder may repair and replace the file. Then the lock becomes shared, and the file is not replaced
/// while it is. The system releases the lock when the process dies.
class TStoreLock
{
public:
    /// @param path of the lock's own file, which exists while the lock is held.
    explicit TStoreLock(const QString& path);

    /// Releases the lock. The last holder removes the lock's file, unless LeaveBehind() was called.
    ~TStoreLock();

    TStoreLock(const TStoreLock&) = delete;
    TStoreLock& operator=(const TStoreLock&) = delete;

    /// Takes the lock: exclusively when it is free, else shared. Waits until @p deadline for an exclusive holder.
    /// Returns false with a reason when the lock was not taken.
    bool Take(const QDeadlineTimer& deadline, QString* reason);

    /// Whether the lock is held exclusively.
    bool IsAlone() const { return m_IsAlone; }

    /// Makes an exclusive lock shared, and notes for later holders which file is in use. Returns false when another
    /// process has taken the lock during the change, with an empty reason, or when the note cannot be written.
    bool Share(const DurableFiles::tagIdentity& file, QString* reason);

    /// Whether the exclusive holder has found the lock's file of one that did not end in order.
    bool WasLeftBehind() const { return m_WasLeftBehind; }

    /// Lets the lock's file stay, so that the next holder finds it.
    void LeaveBehind() { m_StaysBehind = true; }

    /// Notes for the last holder that a shared holder has changed the file in use.
    void MarkChanged();

    /// Whether a holder has called MarkChanged().
    bool IsMarkedChanged() const;

    /// The file that Share() has noted. Returns false when there is no complete note.
    bool FileInUse(DurableFiles::tagIdentity* file) const;

    /// Makes a shared lock exclusive, without waiting. Returns true for the last holder; the others release the lock.
    bool TakeAlone();

private:
    bool Lock(int kind) const;
    bool TryToTake();
    bool IsStillThere() const;
    QByteArray Note() const;
    void Drop();

    const QString m_Path;
    int m_File;
    bool m_IsAlone;
    bool m_IsOwn; ///< the file had no other name when the lock was taken
    bool m_WasLeftBehind;
    bool m_StaysBehind;
};
