#pragma once

#include "HostExport.h"
#include "parameters/ETimeSource.h"
#include "stores/TSqliteStore.h"

#include <QList>
#include <QString>
#include <QVariant>

#include <optional>

/// The journal of a store: every change of a persistent value, in the same file and written with the value in one
/// transaction, so that after a power cut neither is there without the other. Copies of the store contain it.
///
/// @code
/// ChangeJournal::tagJournal journal;
/// if (ChangeJournal::Read(*store, {PARAM_METRIC, 10}, &journal, &error)) // the last ten changes, the newest first
///     const bool isUndone = ChangeJournal::Undo(*store, journal.entries.first().number, &undone, &error);
/// @endcode
///
/// The journal keeps the last 10,000 entries. Changes in memory alone, and changes by programs that know no journal,
/// are not in it. What the library itself changes of the device (the group "device" of ProfileGroups: clock, numbers of
/// logs, drives) shares one entry for each parameter and minute, as long as nothing else is changed in between. The
/// functions may be called from any thread.
namespace ChangeJournal {

/// One change of one parameter, or several that share the entry: then the first old value, the newest new value and the
/// times of the newest. The old and the new value of such an entry can be equal.
struct tagEntry
{
    qint64 number;          ///< from 1, one higher for each entry; never used again
    QString time;           ///< the terminal's clock: local, ISO 8601 with milliseconds, without a zone
    QString utc;            ///< the machine's clock, which the terminal never sets: UTC, ISO 8601
    ETimeSource timeSource; ///< where the terminal's clock had its time from
    QString author;         ///< a name of ChangeAuthorName(), or of an author that a later version knows
    int parameter;
    QVariant oldValue; ///< invalid when the parameter was absent
    QVariant newValue; ///< invalid when the parameter was removed
};

struct tagQuery
{
    std::optional<int> parameter = std::nullopt; ///< nothing: all parameters
    int most = 100;                              ///< how many entries at most
};

struct tagJournal
{
    QList<tagEntry> entries; ///< the newest first
    QList<qint64> damaged;   ///< numbers of entries that cannot be read
};

/// Reads entries from the file of the store. False, with one line in @p error, when it cannot be read.
CABHOST_EXPORT bool Read(const TSqliteStore& store, const tagQuery& query, tagJournal* journal, QString* error);

/// Gives the parameter of an entry the value that it had before, and notes that as a change of the author undo. Undoing
/// the entry of an undo sets the value again. No program changes the parameter between the look at its value and the
/// change. The file is changed in every case; while persistence is held, the store has the value when the hold ends.
/// @param number of the entry; nothing: the newest.
/// @param undone receives the entry.
/// @return false, with one line in @p error, when there is no such entry, when the parameter no longer has the value
///         that the entry set, or when the value cannot be stored.
CABHOST_EXPORT bool Undo(TSqliteStore& store, std::optional<qint64> number, tagEntry* undone, QString* error);

} // namespace ChangeJournal
