#pragma once

#include <QString>

/// Keeps programs that work on clients, farms, fields and jobs apart. One that copies shares the lock with others that
/// copy; one that renames or removes has it alone. The system drops the lock when the process dies.
class TFieldLock
{
public:
    enum EKind
    {
        SHARED,
        ALONE
    };

    /// Locks the folder @p clients. While another program has the lock, tries for up to @p patienceMs.
    TFieldLock(const QString& clients, EKind kind, int patienceMs);
    ~TFieldLock();

    TFieldLock(const TFieldLock&) = delete;
    TFieldLock& operator=(const TFieldLock&) = delete;

    bool IsHeld() const { return m_Folder >= 0; }

    /// Why the lock is not held.
    QString Reason() const { return m_Reason; }

private:
    int m_Folder;
    QString m_Reason;
};
