#pragma once

#include "stores/DurableFiles.h"
#include "stores/StoreTable.h"
#include "stores/TSqliteConnection.h"
#include "stores/TStoreLock.h"

#include <QMap>
#include <QString>
#include <QVariant>

#include <memory>

/// The file of a store and its last good copy. Sees to it that neither a power cut nor a damaged file costs more than
/// what was written since the copy was made, and that no file of somebody else's is touched. What it has to move aside
/// or to go on without it says on standard error.
///
/// Belongs to the thread that opened it.
class TSqliteStoreFile
{
public:
    /// @param path absolute.
    explicit TSqliteStoreFile(const QString& path);

    /// Makes the good copy and closes the file, if it is open.
    ~TSqliteStoreFile();

    TSqliteStoreFile(const TSqliteStoreFile&) = delete;
    TSqliteStoreFile& operator=(const TSqliteStoreFile&) = delete;

    /// Opens the file, makes it when there is none, puts the good copy in its place when it is damaged.
    /// @return empty, or one line that tells why the file cannot be used.
    QString Open(StoreTable::tagContent* content);

    /// Writes @p changes in one transaction. @return empty, or why they are not on the disk.
    QString Write(const QMap<int, QVariant>& changes);

private:
    tagStoreFinding OpenChecked(StoreTable::tagContent* content);
    bool Replace(const tagStoreFinding& found, QString* reason);
    bool PutInPlace(TSqliteConnection& source, QString* reason);
    void MakeGoodCopy();

    const QString m_Path;
    const QString m_GoodPath;
    TStoreLock m_Lock;
    std::unique_ptr<TSqliteConnection> m_Connection;
    DurableFiles::tagIdentity m_Identity;
};
