#pragma once

#include "stores/StoreFinding.h"
#include "stores/TChangeAuthor.h"
#include "stores/TSqliteConnection.h"

#include <QList>
#include <QMap>
#include <QVariant>

/// The content of a store's file: one table with one readable row for each parameter. Beside it the file has the
/// journal of changes; see JournalTable.
namespace StoreTable {

/// PRAGMA application_id of a store's file: "CABS".
constexpr qint32 ApplicationId = 0x43414253;

/// PRAGMA user_version: the version of the table's form.
constexpr qint32 SchemaVersion = 1;

/// Whether a parameter can have @p number. A row that was damaged, or edited by hand, may have any.
inline bool IsParameter(qlonglong number) { return number == static_cast<int>(number); }

struct tagContent
{
    QMap<int, QVariant> values;
    QMap<int, QString> unreadable; ///< rows that cannot be decoded, with their text
    QList<qlonglong> damaged;      ///< numbers of the rows that do not match their digest
    QString journalDamage;         ///< what is wrong with the table `journal`; empty when it can be used
};

/// Makes the empty tables in an empty database.
void Create(TSqliteConnection& connection);

/// Checks the structure of the whole database and reads the table. The finding is clean when rows or the journal alone
/// are damaged.
tagStoreFinding Read(TSqliteConnection& connection, tagContent* content);

/// Reads the table without checking the structure of the database.
tagStoreFinding ReadRows(TSqliteConnection& connection, tagContent* content);

/// Says which rows are damaged, in words that can follow the name of the file.
QString DamageText(const QList<qlonglong>& damaged);

/// Writes @p changes, and notes them in the journal, in one transaction; an invalid variant removes its row. The type
/// of every valid variant must be one that can be stored.
/// @param authors of the changes.
/// @param journalDamage receives the reason when the journal is damaged and the changes were written without it.
/// @return empty, or the reason why nothing was written.
QString Write(TSqliteConnection& connection, const QMap<int, QVariant>& changes,
              const QMap<int, EChangeAuthor>& authors, QString* journalDamage);

/// Parts of Write() for a caller that looks at the file within the same transaction. Between Begin() and the end no
/// other program writes.
void Begin(TSqliteConnection& connection);
void WriteAndNote(TSqliteConnection& connection, const QMap<int, QVariant>& changes,
                  const QMap<int, EChangeAuthor>& authors);

/// @return empty, or the reason why nothing was written.
QString Commit(TSqliteConnection& connection);

void RollBack(TSqliteConnection& connection);

/// Removes the rows @p damaged and writes @p values, in one transaction, and notes that in the journal. @return as for
/// Write().
QString Repair(TSqliteConnection& connection, const QList<qlonglong>& damaged, const QMap<int, QVariant>& values);

/// Copies the table from the file @p path into the empty database of @p connection, and what other tables can be read,
/// but not the journal. For a file whose journal is damaged.
void CopyRows(TSqliteConnection& connection, const QString& path);

} // namespace StoreTable
