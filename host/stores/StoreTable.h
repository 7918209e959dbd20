#pragma once

#include "stores/StoreFinding.h"
#include "stores/TSqliteConnection.h"

#include <QMap>
#include <QVariant>

/// What is inside a store's file: one table with one readable row for each parameter.
namespace StoreTable {

/// PRAGMA application_id of a store's file: "CABS".
constexpr qint32 ApplicationId = 0x43414253;

/// PRAGMA user_version: the form of the table.
constexpr qint32 SchemaVersion = 1;

struct tagContent
{
    QMap<int, QVariant> values;
    QMap<int, QString> unreadable; ///< rows that cannot be decoded, and what they say
};

/// Makes the empty table in an empty database.
void Create(TSqliteConnection& connection);

/// Checks the database throughout and reads the table.
tagStoreFinding Read(TSqliteConnection& connection, tagContent* content);

/// Reads the table alone, and checks no more than its rows.
tagStoreFinding ReadRows(TSqliteConnection& connection, tagContent* content);

/// Writes @p changes in one transaction; an invalid variant removes its row. Every valid one must be of a type that can
/// be stored. @return empty, or why nothing was written.
QString Write(TSqliteConnection& connection, const QMap<int, QVariant>& changes);

} // namespace StoreTable
