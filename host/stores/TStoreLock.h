#pragma once

#include "stores/DurableFiles.h"

#include <QDeadlineTimer>
#include <QString>

/// Tells the users of a store's file, in this process or others, whether they are alone with it. Alone, one may repair
/// and replace the file; after that it is shared, and nobody replaces it under the others. The system lets go of the
/// lock when the process dies.
class TStoreLock
{
public:
    /// @param path of the lock's own file, which is there while the lock is held.
    explicit TStoreLock(const QString& path);

    /// The last one removes the lock's file.
    ~TStoreLock();

    TStoreLock(const TStoreLock&) = delete;
    TStoreLock& operator=(const TStoreLock&) = delete;

    /// Takes the lock: alone when nobody else has it, else with those who share it. Waits for one who is alone until
    /// @p deadline has passed. False with a reason when the lock could not be had.
    bool Take(const QDeadlineTimer& deadline, QString* reason);

    bool IsAlone() const { return m_IsAlone; }

    /// From alone to shared; those who come learn which file it is that all of them use. False when the lock was lost
    /// to somebody else on the way, with an empty reason, or when its file cannot be written.
    bool Share(const DurableFiles::tagIdentity& file, QString* reason);

    /// Which file it is, told by the one who shared the lock.
    bool FileInUse(DurableFiles::tagIdentity* file) const;

    /// From shared to alone, without waiting: true for the last one. Whoever is not holds nothing any more.
    bool TakeAlone();

private:
    bool TryToTake();
    bool IsStillThere() const;
    void Drop();

    const QString m_Path;
    int m_File;
    bool m_IsAlone;
};
