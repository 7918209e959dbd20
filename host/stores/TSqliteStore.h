#pragma once

#include "stores/TParameterStore.h"

#include <QDate>
#include <QMutex>
#include <QString>

#include <memory>

class TDiskThread;
class TSqliteStoreFile;
class TWatchThread;

namespace StoreTable {
struct tagContent;
}

/// The parameter store of a display: an SQLite file that survives a power cut at any moment. Several programs can have
/// it open at once.
///
/// @code
/// QString error;
/// const auto store = TSqliteStore::Open(QLatin1String("/data/settings.db"), &error); // null: error says why
/// const bool isOnDisk = store->SetParameter(PARAM_METRIC, true, true);
/// @endcode
///
/// A value is on the disk when its persistent write has returned true. Each parameter is one row of the table
/// `parameters`: its number, the name of its type, its value as text, and a digest of the three. The types that can be
/// stored are bool, int, long long, double, string, colour and bytes. A row that was edited by hand may have no digest
/// (NULL).
///
/// Every change of a row is noted in the table `journal`, in the same transaction; see ChangeJournal. A damaged row of
/// the journal is passed over. When the journal as a whole is damaged, the first program that opens the file gives it
/// an empty one and keeps the damaged file; no parameter is lost with it.
///
/// A change by another program is in this store's memory within a second, or later while persistence is held or a write
/// waits. When another program has the file locked, this store waits. After the timeout a write returns false and an
/// opening fails; both are said.
///
/// The store keeps these files beside the file `name`:
/// - `name.good`, the last good copy. It is made by the last program that closes the file when the file was changed,
/// and
///   by the first one that opens it on a day or after a program that was killed.
/// - `name.copies/`, a copy for each of the last seven days and the newest of each of the last four weeks on which the
///   store was open, by the terminal's clock. They are made with the good copy, and when the day changes. See
///   StoreCopies.
/// - `name.damaged-1` (-2, -3...), a damaged file, kept for examination. When the file as a whole is damaged, the first
///   program that opens it moves it there and puts the good copy in its place. When rows alone are damaged, it copies
///   the file there, and these rows get their values from the good copy or are removed. A file that is damaged as a
///   whole while other programs use it cannot be opened. A row that is damaged while the store is open keeps its value
///   in memory, and the next write repairs it.
/// - `name.lock`, while the store is open, and after a program that was killed.
///
/// Failures are said on standard error, one line for each reason.
///
/// Needs an application object, for the database driver.
class CABHOST_EXPORT TSqliteStore final : public TParameterStore
{
public:
    /// Opens the store in the file @p path, whose folder must exist. Makes the file when there is none. A file that
    /// belongs to another program, or that a later version of this program has written, is not changed and not opened.
    /// @param error receives one line when the result is null.
    /// @param patience how many milliseconds an opening, and later each write, waits while another program has the file
    ///        locked.
    static std::unique_ptr<TSqliteStore> Open(const QString& path, QString* error, int patience = 5000);

    /// Tries to write the values that are not on the disk yet, and closes the file. Writes nothing while persistence is
    /// held.
    ~TSqliteStore() override;

    /// As TParameterStore::SetParameter(). Also returns false for a persistent value of a type that cannot be stored:
    /// the value in memory changes, the row in the file does not.
    bool SetParameter(EParamID id, const QVariant& value, bool persist) override;

    /// Why the last write of the file has failed, in one line; empty when it has succeeded, and when nothing is left to
    /// write. The values are in memory, and are on the disk when WriteOutstanding() has returned true.
    QString WriteFailure() const;

    /// Tries once more to write the values that are not on the disk yet. True when all of them are. False, too, while
    /// persistence is held.
    bool WriteOutstanding();

    /// The store's file, as an absolute path.
    QString Path() const { return m_Path; }

protected:
    bool CatchUp() override;
    bool Persist(const QMap<int, QVariant>& changes) override;

private:
    TSqliteStore(const QString& path, int patience);
    QString Load();
    void KeepWriteFailure(const QString& failure);
    QDate DayNow();
    void CopyPastDay();
    void Take(const StoreTable::tagContent& content);

    const QString m_Path;
    std::unique_ptr<TDiskThread> m_DiskThread;
    std::unique_ptr<TSqliteStoreFile> m_File; // used by the disk thread alone
    mutable QMutex m_FailureMutex;
    QString m_LastWriteFailure; // guarded by m_FailureMutex
    QString m_ReadFailure;      // the last one that was said, as the next three
    QString m_WriteFailure;
    QString m_JournalFailure;
    QMap<int, QString> m_Problems;
    QDate m_Day;                           // the day on the terminal's clock when it was last looked at
    std::unique_ptr<TWatchThread> m_Watch; // uses the other members: made last, destroyed first
};
