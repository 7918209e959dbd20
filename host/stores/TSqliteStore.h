#pragma once

#include "stores/TParameterStore.h"

#include <QString>

#include <memory>

class TDiskThread;
class TSqliteStoreFile;
class TWatchThread;

namespace StoreTable {
struct tagContent;
}

/// The display's parameter store: an SQLite file that survives a power cut at any moment, and that several programs can
/// have open at once.
///
/// A persistent write that returned true is on the disk. One row of the table `parameters` holds one parameter in
/// readable form: its number, the name of its type and its text (bool, int, long long, double, string, colour and bytes
/// can be stored).
///
/// What another program has written is in this store's memory within a second, later only while persistence is held or
/// a write of this store waits. A program that keeps the file busy is waited for, and when it does not let go in time
/// that is said: a write then returns false, an opening fails.
///
/// Beside the file `name` there is, after the first opening, `name.good`, a copy that the first one to open the file
/// and the last one to close it make. The first one also moves a damaged file to `name.damaged-1` (-2, -3...) and puts
/// the copy in its place; a file that is found damaged while others use it is refused and left to them. While the store
/// is open there is `name.lock`. What goes wrong is said on standard error, one line for each reason.
///
/// Needs an application object, for the database driver.
class CABHOST_EXPORT TSqliteStore final : public TParameterStore
{
public:
    /// Opens the store in the file @p path, whose folder must exist; makes the file when there is none. A file of
    /// somebody else's, or of a later version of this program, is left as it is.
    /// @param error receives one line when the result is null.
    /// @param patience for how many milliseconds an opening, and later each write, waits for another program that keeps
    ///        the file busy.
    static std::unique_ptr<TSqliteStore> Open(const QString& path, QString* error, int patience = 5000);

    /// Writes what is not on the disk yet and closes the file. Nothing is written while persistence is held.
    ~TSqliteStore() override;

    /// As in TParameterStore; also false for a persistent value of a type that cannot be stored. Memory takes it, the
    /// file keeps what it has.
    bool SetParameter(EParamID id, const QVariant& value, bool persist) override;

protected:
    bool CatchUp() override;
    bool Persist(const QMap<int, QVariant>& changes) override;

private:
    TSqliteStore(const QString& path, int patience);
    QString Load();
    void Take(const StoreTable::tagContent& content);

    std::unique_ptr<TDiskThread> m_DiskThread;
    std::unique_ptr<TSqliteStoreFile> m_File; // used in that thread alone
    QString m_ReadFailure;                    // said last, as the two that follow
    QString m_WriteFailure;
    QMap<int, QString> m_Unreadable;
    std::unique_ptr<TWatchThread> m_Watch; // the last to come and the first to go: it uses all of the above
};
