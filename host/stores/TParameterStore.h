#pragma once

#include "HostExport.h"
#include "platform/TConfigManager.h"

#include <QMap>
#include <QMutex>
#include <QReadWriteLock>
#include <QSet>
#include <QString>
#include <QVariant>

/// A parameter store that answers from memory and hands what is to survive a restart to a derived class.
///
/// Every operation may be called from any thread at any time. Reads never wait for a disk. A persistent write waits
/// until the disk has taken it; writes that wait at the same time share a transaction. No store calls back into the
/// library's façades: some writes arrive under a lock of the library.
///
/// Other programs may change what is on the disk. Their changes come into memory, value by value: the last writer of a
/// parameter wins, writers of different parameters do not meet. A value of this store's that has yet to reach the disk
/// is later than theirs. A value that was set in memory alone stays until somebody else changes that very parameter.
class CABHOST_EXPORT TParameterStore : public TConfigManager
{
public:
    TParameterStore();
    ~TParameterStore() override;

    TParameterStore(const TParameterStore&) = delete;
    TParameterStore& operator=(const TParameterStore&) = delete;

    /// Stores @p value under @p id; an invalid variant removes the parameter. Memory takes the value in every case.
    /// @param persist false changes memory alone: after a restart the parameter has its last persistent value again.
    /// @return whether the value is stored as asked: false when it was to persist and is not on the disk. It is tried
    ///         again as soon as another write succeeds, when a hold ends, and at closing. Setting what is on the disk
    ///         already does no disk work. True while persistence is held; then the release tells.
    bool SetParameter(EParamID id, const QVariant& value, bool persist) override;

    QVariant GetParameter(EParamID id) override;
    bool HasParameter(EParamID id) override;
    const QString& GetDiagnosticText(EDiagnosticComponent component, EDiagnosticType type, int code) override;

    /// All parameters as they are in memory now.
    QMap<int, QVariant> Values() const;

    /// Grows whenever a value in memory becomes another one, whoever has changed it. For a display that asks now and
    /// then whether it is still up to date: remember this first, then read the values. A number instead of a call or a
    /// signal, since changes come from any thread, and from some under a lock of the library.
    quint64 Revision() const;

    /// Keeps everything off the disk, and what others change there out of memory, until the matching
    /// ReleasePersistence(). When this returns, no write is under way any more. Holds nest. TPersistenceHold does it
    /// for a scope.
    void HoldPersistence();

    /// Ends a hold. The last one writes every persistent value that the hold has changed, all in one transaction. What
    /// was set to another value and back again is no change: should somebody else have changed it meanwhile, that
    /// holds.
    /// @return whether that is on the disk; true, having written nothing, while another hold is in force.
    bool ReleasePersistence();

protected:
    /// Writes @p changes to the disk, all or none; an invalid variant removes. Never called by two threads at once.
    /// @return whether they are on the disk.
    virtual bool Persist(const QMap<int, QVariant>& changes) = 0;

    /// For a disk that others write too: hands what they have changed to TakeStored(). Called before anything is
    /// compared with what the disk is known to hold, and never at the same time as Persist().
    /// @return whether the disk is known now; if not, nothing is written.
    virtual bool CatchUp() { return true; }

    /// Takes what the disk holds now; memory follows where that is not what it held before. Within CatchUp(), or before
    /// the store is shared between threads.
    /// @param unreadable parameters that the disk holds in a form that cannot be read: absent until they are set.
    void TakeStored(const QMap<int, QVariant>& values, const QSet<int>& unreadable);

    /// Calls CatchUp() unless persistence is held.
    void LookAtDisk();

    /// A last attempt to write what is not on the disk yet, in one transaction; nothing while persistence is held.
    bool PersistOutstanding();

private:
    /// A persistent value that is not known to be on the disk.
    struct tagWish
    {
        QVariant value;
        int failures;
    };

    void Remember(int id, const QVariant& value);
    bool PersistWishes(int minFailures, int maxFailures);
    QMap<int, QVariant> Wishes(int minFailures, int maxFailures) const;
    void DropFulfilledWishes();
    void Settle(const QMap<int, QVariant>& changes, bool done);

    mutable QReadWriteLock m_MemoryLock; // of the three that follow; never held while the disk works
    QMap<int, QVariant> m_Values;
    quint64 m_Revision;
    QMap<int, tagWish> m_Wishes;

    QMutex m_DiskMutex; // of the three that follow, of CatchUp() and Persist(); taken before m_MemoryLock
    QMap<int, QVariant> m_OnDisk;
    QSet<int> m_UnknownOnDisk;
    int m_HoldCount;
};
