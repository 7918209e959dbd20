#pragma once

#include "stores/StoredValue.h"
#include "stores/TChangeAuthor.h"
#include "stores/TSqliteConnection.h"

#include <QList>
#include <QString>
#include <QVector>

#include <optional>

/// The table `journal` of a store's file: one row for each change of a row of `parameters`, written in the same
/// transaction. The numbers of the rows follow each other without a gap; the oldest rows are removed when there are too
/// many.
///
/// What the library changes of the device itself, its clock and the numbers of its logs, can change many times in a
/// second, as when a recording is played. Within a minute such changes of one parameter share one row, so that they do
/// not displace the changes that people make: the first old value, the newest new value and the time of the newest. A
/// change of anything else in between begins new rows, so that the order of the journal stays that of the changes.
///
/// Files of programs that knew no journal have no such table, and get it when they are opened or with the next change.
namespace JournalTable {

/// The most rows that the table keeps.
constexpr int MostEntries = 10000;

/// A change of a parameter that is about to be noted. A value with an empty type is absent.
struct tagChange
{
    int parameter;
    tagStoredValue former;
    tagStoredValue next;
    EChangeAuthor author;
};

struct tagRow
{
    qint64 number;
    QString time;   ///< the terminal's clock, ISO 8601 without a zone
    QString utc;    ///< the machine's clock, ISO 8601
    int timeSource; ///< an ETimeSource
    QString author;
    int parameter;
    tagStoredValue former;
    tagStoredValue next;
};

struct tagFilter
{
    std::optional<int> parameter;
    std::optional<qint64> number;
    int most;
};

/// Makes the table when there is none.
void Create(TSqliteConnection& connection);

/// Notes changes, within a transaction that has changed the table of parameters already.
void Append(TSqliteConnection& connection, const QVector<tagChange>& changes);

/// Reads rows, the newest first.
/// @param damaged receives the numbers of the rows that do not match their digest.
void Read(TSqliteConnection& connection, const tagFilter& filter, QVector<tagRow>* rows, QList<qint64>* damaged);

/// Whether there is no table, or one of the right form.
bool IsOfOurForm(TSqliteConnection& connection);

} // namespace JournalTable
