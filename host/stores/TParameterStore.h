#pragma once

#include "HostExport.h"
#include "platform/TConfigManager.h"
#include "stores/TChangeAuthor.h"

#include <QMap>
#include <QMutex>
#include <QReadWriteLock>
#include <QSet>
#include <QString>
#include <QVariant>
#include <QVector>

class TParameterWatch;

/// A parameter store that keeps all values in memory. A derived class writes the persistent ones to a disk.
///
/// @code
/// store.SetParameter(PARAM_METRIC, true, true); // true when the value is on the disk
/// const bool isMetric = store.GetParameter(PARAM_METRIC).toBool();
/// const QMap<int, QVariant> all = store.Values();
/// @endcode
///
/// Every operation may be called from any thread at any time. A read never waits for the disk. A persistent write waits
/// until the value is on the disk; writes that wait at the same time share one transaction. A store does not call the
/// library's façades, because some writes arrive while a lock of the library is held.
///
/// Other programs may write to the same disk. Their changes are taken into memory one parameter at a time: for each
/// parameter the last writer wins, and changes to different parameters do not affect each other. A value that waits to
/// be written counts as later than a value that another program has written. A value that was set in memory alone stays
/// until another program changes the same parameter.
class CABHOST_EXPORT TParameterStore : public TConfigManager
{
public:
    TParameterStore();
    ~TParameterStore() override;

    TParameterStore(const TParameterStore&) = delete;
    TParameterStore& operator=(const TParameterStore&) = delete;

    /// Stores @p value under @p id; an invalid variant removes the parameter. The value in memory changes in every
    /// case.
    /// @param persist false changes memory alone: after a restart the parameter has its last persistent value again.
    /// @return true when the value is stored as asked. False when it was to persist and is not on the disk. It is then
    ///         tried again after the next write that succeeds, at the end of a hold, and when the store is closed.
    ///         Setting the value that is already on the disk does not write to it. While persistence is held the result
    ///         is true, and ReleasePersistence() reports whether the value was written.
    bool SetParameter(EParamID id, const QVariant& value, bool persist) override;

    QVariant GetParameter(EParamID id) override;
    bool HasParameter(EParamID id) override;
    const QString& GetDiagnosticText(EDiagnosticComponent component, EDiagnosticType type, int code) override;

    /// All parameters as they are in memory now.
    QMap<int, QVariant> Values() const;

    /// A number that grows whenever a value in memory changes. A display can poll it to find out whether what it shows
    /// is up to date: remember the revision first, then read the values. TParameterWatch tells of single changes.
    quint64 Revision() const;

    /// Begins a hold: nothing is written to the disk, and changes by other programs are not taken in, until the hold is
    /// released or abandoned. No write is in progress when this returns. Holds nest. Prefer TPersistenceHold, which
    /// ends the hold with its scope.
    void HoldPersistence();

    /// Ends the last hold. When no other hold is left, writes every persistent value that was changed during the holds,
    /// in one transaction. A value that was changed and set back is not written; if another program has changed it in
    /// the meantime, that value is taken in.
    /// @return whether the values are on the disk; true when another hold is left, and nothing was written.
    bool ReleasePersistence();

    /// Ends the last hold and takes back every change made since it began, in memory too and by whichever thread.
    /// @return false when no other hold is left and a value that was set before the hold could not be written.
    bool AbandonPersistence();

protected:
    /// Writes @p changes to the disk, all or none; an invalid variant removes its parameter. Never called by two
    /// threads at once.
    /// @return whether the changes are on the disk.
    virtual bool Persist(const QMap<int, QVariant>& changes) = 0;

    /// Who has made the change of a parameter that Persist() is writing.
    EChangeAuthor AuthorOf(int number) const { return m_Authors.value(number, CHANGE_AUTHOR_LIBRARY); }

    /// For a disk that other programs write too: passes the changed content of the disk to TakeStored(). Called before
    /// values are compared with the content of the disk, and never during Persist().
    /// @return whether the content of the disk is known; if not, nothing is written.
    virtual bool CatchUp() { return true; }

    /// Takes in the content of the disk. A value in memory changes only where the disk has changed. May be called
    /// within CatchUp(), or before other threads use the store.
    /// @param unreadable parameters that are on the disk in a form that cannot be read. They are absent until they are
    ///        set.
    /// @param damaged parameters whose content on the disk is damaged. They keep the value that was last read, which is
    ///        written again by the next write; without one they are absent until they are set.
    void TakeStored(const QMap<int, QVariant>& values, const QSet<int>& unreadable, const QSet<int>& damaged = {});

    /// Calls CatchUp() unless persistence is held.
    void LookAtDisk();

    /// Tries once more to write what is not on the disk yet, in one transaction. Does nothing while persistence is
    /// held.
    bool PersistOutstanding();

private:
    friend class TParameterWatch; // adds and removes itself

    /// A persistent value that is not known to be on the disk.
    struct tagWish
    {
        QVariant value;
        int failures;
        EChangeAuthor author;
    };

    /// What memory held when a hold began.
    struct tagHold
    {
        QMap<int, QVariant> values;
        QMap<int, tagWish> wishes;
    };

    void AddWatch(TParameterWatch* watch);
    void RemoveWatch(TParameterWatch* watch);
    void Tell(int id, const QVariant& oldValue, const QVariant& newValue);
    void Remember(int id, const QVariant& value);
    void RememberAll(const QMap<int, QVariant>& values);
    bool PersistAfterHold();
    bool PersistWishes(int minFailures, int maxFailures);
    QMap<int, tagWish> Wishes(int minFailures, int maxFailures) const;
    void DropFulfilledWishes();
    void Settle(const QMap<int, QVariant>& changes, bool done);

    mutable QReadWriteLock m_MemoryLock; // guards the next four members; never held during disk work
    QMap<int, QVariant> m_Values;
    quint64 m_Revision;
    QMap<int, tagWish> m_Wishes;
    QVector<TParameterWatch*> m_Watches;

    QMutex m_DiskMutex; // guards the next five members, CatchUp() and Persist(); locked before m_MemoryLock
    QMap<int, QVariant> m_OnDisk;
    QSet<int> m_UnknownOnDisk;
    QSet<int> m_Rescued; // damaged on the disk; m_OnDisk holds the value that was read before
    QVector<tagHold> m_Holds;
    QMap<int, EChangeAuthor> m_Authors; // of the changes that Persist() writes
};
