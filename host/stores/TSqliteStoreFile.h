#pragma once

#include "stores/DurableFiles.h"
#include "stores/StoreTable.h"
#include "stores/TSqliteConnection.h"
#include "stores/TStoreLock.h"

#include <QDeadlineTimer>
#include <QMap>
#include <QString>
#include <QVariant>

#include <memory>

/// The file of a store and its last good copy. Sees to it that neither a power cut nor a damaged file costs more than
/// what was written since the copy was made, and that no file of somebody else's is touched. What it has to move aside
/// or to go on without it says on standard error.
///
/// Several can be at work on one file, in this process and others. Repairing, replacing and copying are for one who is
/// alone with it: the first at opening and the last at closing.
///
/// Belongs to the thread that opened it.
class TSqliteStoreFile
{
public:
    /// @param path absolute.
    /// @param patience for how many milliseconds others who keep the file busy are waited for.
    TSqliteStoreFile(const QString& path, int patience);

    /// Closes the file, if it is open; the last one makes the good copy.
    ~TSqliteStoreFile();

    TSqliteStoreFile(const TSqliteStoreFile&) = delete;
    TSqliteStoreFile& operator=(const TSqliteStoreFile&) = delete;

    /// Opens the file. The first one makes it when there is none and puts the good copy in its place when it is
    /// damaged.
    /// @return empty, or one line that tells why the file cannot be used.
    QString Open(StoreTable::tagContent* content);

    /// Reads the file again if somebody else has changed it since it was read last; otherwise *isChanged is false, and
    /// the disk is not asked. @return empty, or why it is not known what the file holds.
    QString ReadChanged(StoreTable::tagContent* content, bool* isChanged);

    /// Writes @p changes in one transaction. @return empty, or why they are not on the disk.
    QString Write(const QMap<int, QVariant>& changes);

private:
    bool Prepare(const QDeadlineTimer& deadline, QString* reason);
    QString OpenPrepared(const QDeadlineTimer& deadline, StoreTable::tagContent* content);
    bool Replace(const tagStoreFinding& found, QString* reason);
    bool PutInPlace(TSqliteConnection& source, QString* reason);
    bool IsStillThere() const;
    void MakeGoodCopy(TSqliteConnection& source);

    const QString m_Path;
    const QString m_GoodPath;
    const int m_Patience;
    TStoreLock m_Lock;
    std::unique_ptr<TSqliteConnection> m_Connection; // open only while the lock is held
    DurableFiles::tagIdentity m_Identity;
    QVariant m_Version; // of the database, when it was read last
};
