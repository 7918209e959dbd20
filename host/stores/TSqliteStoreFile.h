#pragma once

#include "stores/DayCopies.h"
#include "stores/DurableFiles.h"
#include "stores/StoreTable.h"
#include "stores/TSqliteConnection.h"
#include "stores/TStoreLock.h"

#include <QDeadlineTimer>
#include <QMap>
#include <QString>
#include <QVariant>

#include <memory>

/// The file of a store, its last good copy and the copies of its days. A power cut or a damaged file costs no more than
/// the values written since the copy was made, and a file that belongs to another program is not touched. Says on
/// standard error which files it has moved or copied aside, and what it goes on with.
///
/// Several objects can have one file open, in this process and others. The file is repaired, replaced and copied only
/// by an object that is alone with it: the first one when it opens the file, and the last one when it closes it.
///
/// Used by the thread that has opened it.
class TSqliteStoreFile
{
public:
    /// @param path absolute.
    /// @param patience how many milliseconds to wait for other programs that have the file locked.
    TSqliteStoreFile(const QString& path, int patience);

    /// Closes the file if it is open. The last one makes the good copy, when the file was changed since it was opened.
    ~TSqliteStoreFile();

    TSqliteStoreFile(const TSqliteStoreFile&) = delete;
    TSqliteStoreFile& operator=(const TSqliteStoreFile&) = delete;

    /// Opens the file. The first one makes the file when there is none, repairs rows that are damaged, and replaces a
    /// damaged file by the good copy. It makes a good copy when there is none of the day, and when the last one may not
    /// be up to date: after a repair, and after a program that was killed.
    /// @return empty, or one line with the reason why the file cannot be used.
    QString Open(StoreTable::tagContent* content);

    /// Reads the file again if another connection has changed it since it was last read; otherwise *isChanged is false
    /// and the table is not read. @return empty, or the reason why the content of the file is not known.
    QString ReadChanged(StoreTable::tagContent* content, bool* isChanged);

    /// Writes @p changes in one transaction, with their entries in the journal.
    /// @param journalDamage receives the reason when the journal is damaged and the changes were written without it.
    /// @return empty, or the reason why they are not on the disk.
    QString Write(const QMap<int, QVariant>& changes, const QMap<int, EChangeAuthor>& authors, QString* journalDamage);

private:
    bool Prepare(const QDeadlineTimer& deadline, QString* reason);
    QString OpenPrepared(const QDeadlineTimer& deadline, StoreTable::tagContent* content);
    bool Replace(const tagStoreFinding& found, QString* reason);
    void KeepAndRepair(const QList<qlonglong>& damaged);
    bool DropJournal(const QString& damage);
    bool PutRowsInPlace(const QString& source, QString* reason);
    bool PutInPlace(TSqliteConnection& source, QString* reason);
    bool IsStillThere() const;
    bool IsGoodCopyDue(TSqliteConnection& source) const;
    bool MakeGoodCopy(TSqliteConnection& source, EDayCopy when);
    QVariant Version() const;

    const QString m_Path;
    const QString m_GoodPath;
    const int m_Patience;
    TStoreLock m_Lock;
    std::unique_ptr<TSqliteConnection> m_Connection; // open only while the lock is held
    DurableFiles::tagIdentity m_Identity;
    QVariant m_FirstVersion; // PRAGMA data_version when the file was opened
    QVariant m_Version;      // when it was last read
    bool m_IsMarked;         // the lock tells the last program that the file was changed
    bool m_IsCopyOwed;       // the good copy could not be made
};
