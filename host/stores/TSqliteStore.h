#pragma once

#include "stores/TParameterStore.h"

#include <QString>

#include <memory>

class TDiskThread;
class TSqliteStoreFile;

/// The display's parameter store: an SQLite file that survives a power cut at any moment.
///
/// A persistent write that returned true is on the disk. All values are read when the store is opened; after that the
/// disk is only written. One row of the table `parameters` holds one parameter in readable form: its number, the name
/// of its type and its text (bool, int, long long, double, string, colour and bytes can be stored).
///
/// Beside the file `name` there is, after the first opening, `name.good`, a copy made after every opening and at
/// closing. A damaged file is moved to `name.damaged-1` (-2, -3...) and the copy takes its place. While the store is
/// open, `name.lock` keeps every other store from the same file. What goes wrong is said on standard error, one line
/// for each reason.
///
/// Needs an application object, for the database driver.
class CABHOST_EXPORT TSqliteStore final : public TParameterStore
{
public:
    /// Opens the store in the file @p path, whose folder must exist; makes the file when there is none. A file of
    /// somebody else's, or of a later version of this program, is left as it is. Waits for up to five seconds for
    /// another program that has the file in use.
    /// @param error receives one line when the result is null.
    static std::unique_ptr<TSqliteStore> Open(const QString& path, QString* error);

    /// Writes what is not on the disk yet and closes the file. Nothing is written while persistence is held.
    ~TSqliteStore() override;

    /// As in TParameterStore; also false for a persistent value of a type that cannot be stored. Memory takes it, the
    /// file keeps what it has.
    bool SetParameter(EParamID id, const QVariant& value, bool persist) override;

protected:
    bool Persist(const QMap<int, QVariant>& changes) override;

private:
    explicit TSqliteStore(const QString& path);
    QString Load();

    std::unique_ptr<TDiskThread> m_DiskThread;
    std::unique_ptr<TSqliteStoreFile> m_File; // used in that thread alone
    QString m_LastFailure;
};
