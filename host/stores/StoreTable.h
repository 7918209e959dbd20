#pragma once

#include "stores/StoreFinding.h"
#include "stores/TSqliteConnection.h"

#include <QList>
#include <QMap>
#include <QVariant>

/// The content of a store's file: one table with one readable row for each parameter.
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
};

/// Makes the empty table in an empty database.
void Create(TSqliteConnection& connection);

/// Checks the structure of the whole database and reads the table. The finding is clean when rows alone are damaged.
tagStoreFinding Read(TSqliteConnection& connection, tagContent* content);

/// Reads the table without checking the structure of the database.
tagStoreFinding ReadRows(TSqliteConnection& connection, tagContent* content);

/// Says which rows are damaged, in words that can follow the name of the file.
QString DamageText(const QList<qlonglong>& damaged);

/// Writes @p changes in one transaction; an invalid variant removes its row. The type of every valid variant must be
/// one that can be stored. @return empty, or the reason why nothing was written.
QString Write(TSqliteConnection& connection, const QMap<int, QVariant>& changes);

/// Removes the rows @p damaged and writes @p values, in one transaction. @return as for Write().
QString Repair(TSqliteConnection& connection, const QList<qlonglong>& damaged, const QMap<int, QVariant>& values);

} // namespace StoreTable
