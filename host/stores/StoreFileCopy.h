#pragma once

#include "stores/StoreFinding.h"
#include "stores/StoreTable.h"
#include "stores/TSqliteConnection.h"

#include <QString>
#include <QStringList>

/// Copies of the file of a store.
namespace StoreFileCopy {

/// How many milliseconds a copy waits for another tool that has a file open.
constexpr int CopyPatience = 5000;

/// The suffix of the write-ahead log that SQLite keeps beside a database.
constexpr const char* LogSuffix = "-wal";

/// The files that SQLite keeps beside a database. They are moved with it: SQLite would apply those left behind to the
/// next database of the same name.
QStringList Companions(const QString& path);
QStringList WithCompanions(const QString& path);

/// Checks and reads a file that no program has open.
tagStoreFinding CheckAtRest(const QString& path, StoreTable::tagContent* content);

enum EDamagedRows : int
{
    DAMAGED_ROWS_ACCEPTED,
    DAMAGED_ROWS_REFUSED,
};

/// Replaces @p target by a copy of the database. At every moment the target is the old file or the complete and checked
/// copy. Remains of a copy that was killed are removed by the next one.
bool CopyTo(TSqliteConnection& source, const QString& target, EDamagedRows damagedRows, QString* reason);

} // namespace StoreFileCopy
