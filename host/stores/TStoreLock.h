#pragma once

#include <QString>

/// Keeps a store to one user at a time, in this process or another: a store that answers from memory would not see
/// what somebody else writes. The system lets go of the lock when the process dies.
class TStoreLock
{
public:
    /// @param path of the lock's own file, which is there while the lock is held.
    explicit TStoreLock(const QString& path);
    ~TStoreLock();

    TStoreLock(const TStoreLock&) = delete;
    TStoreLock& operator=(const TStoreLock&) = delete;

    /// Waits for up to @p milliseconds. False with a reason when somebody else still holds the lock then, or when its
    /// file cannot be made.
    bool Take(int milliseconds, QString* reason);

private:
    bool IsStillThere() const;
    void Drop();

    QString m_Path;
    int m_File;
};
