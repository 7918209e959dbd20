#include "stores/ChangeJournal.h"

#include "parameters/ParameterText.h"
#include "parameters/TParameterCatalogue.h"
#include "stores/DurableFiles.h"
#include "stores/JournalTable.h"
#include "stores/StoreTable.h"
#include "stores/StoredValue.h"
#include "stores/TPersistenceHold.h"
#include "stores/TSqliteConnection.h"

namespace ChangeJournal {

namespace {

const int Patience = 5000; // milliseconds

// An absent value is an invalid variant. False for a value that cannot be decoded.
bool Decode(const tagStoredValue& stored, QVariant* value)
{
    *value = QVariant();
    return stored.type.isEmpty() || DecodeValue(stored, value);
}

bool ReadFrom(TSqliteConnection& connection, const QString& path, const JournalTable::tagFilter& filter,
              tagJournal* journal, QString* error)
{
    *journal = {};
    QVector<JournalTable::tagRow> rows;
    JournalTable::Read(connection, filter, &rows, &journal->damaged);
    const QString failure = connection.TakeFailure().text;
    if (!failure.isEmpty()) {
        *error = QString::fromLatin1("the journal of %1 cannot be read: %2").arg(path, failure);
        return false;
    }
    for (const JournalTable::tagRow& row : rows) {
        tagEntry entry = {row.number, row.time,      row.utc,    static_cast<ETimeSource>(row.timeSource),
                          row.author, row.parameter, QVariant(), QVariant()};
        if (Decode(row.former, &entry.oldValue) && Decode(row.next, &entry.newValue))
            journal->entries.append(entry);
        else
            journal->damaged.append(row.number);
    }
    return true;
}

QString Name(int number)
{
    const tagParameter* const known = TParameterCatalogue::Find(number);
    return known ? known->name : QString::fromLatin1("parameter %1").arg(number);
}

QString Text(int number, const QVariant& value)
{
    if (!value.isValid())
        return QLatin1String("absent");
    const tagParameter* const known = TParameterCatalogue::Find(number);
    return QString::fromLatin1("\"%1\"").arg(known ? TParameterCatalogue::Text(*known, value)
                                                   : ParameterText::FromValue(value));
}

bool Find(TSqliteConnection& connection, const QString& path, std::optional<qint64> number, tagEntry* entry,
          QString* error)
{
    tagJournal journal;
    if (!ReadFrom(connection, path, {std::nullopt, number, 1}, &journal, error))
        return false;
    if (!journal.damaged.isEmpty())
        *error = QString::fromLatin1("entry %1 of the journal is damaged").arg(journal.damaged.first());
    else if (journal.entries.isEmpty())
        *error = number ? QString::fromLatin1("the journal has no entry %1").arg(*number)
                        : QLatin1String("the journal has no entries");
    else
        *entry = journal.entries.first();
    return !journal.entries.isEmpty();
}

// Whether the file has the value that the entry set.
bool IsStillSet(TSqliteConnection& connection, const QString& path, const tagEntry& entry, QString* error)
{
    StoreTable::tagContent content;
    const tagStoreFinding finding = StoreTable::ReadRows(connection, &content);
    const QVariant now = content.values.value(entry.parameter);
    if (finding.state != STORE_FILE_CLEAN)
        *error = QString::fromLatin1("%1 cannot be read: %2").arg(path, finding.words);
    else if (!IsSameValue(now, entry.newValue))
        *error = QString::fromLatin1("%1 is %2 now; entry %3 set it to %4")
                     .arg(Name(entry.parameter), Text(entry.parameter, now))
                     .arg(entry.number)
                     .arg(Text(entry.parameter, entry.newValue));
    else
        return true;
    return false;
}

QString CannotBeWritten(const QString& path, const QString& reason)
{
    return QString::fromLatin1("%1 cannot be written: %2").arg(path, reason);
}

} // namespace

bool Read(const TSqliteStore& store, const tagQuery& query, tagJournal* journal, QString* error)
{
    TSqliteConnection connection(store.Path(), TSqliteConnection::SQLITE_ACCESS_READ, Patience);
    return ReadFrom(connection, store.Path(), {query.parameter, std::nullopt, query.most}, journal, error);
}

// In the file, and in one transaction: what this process has in memory may be older, and no other program may write
// between the look at the value and its change.
bool Undo(TSqliteStore& store, std::optional<qint64> number, tagEntry* undone, QString* error)
{
    const QString path = store.Path();
    if (!DurableFiles::Exists(path)) { // SQLite would make a new one
        *error = CannotBeWritten(path, QLatin1String("it is no longer there"));
        return false;
    }
    TSqliteConnection connection(path, TSqliteConnection::SQLITE_ACCESS_WRITE, Patience);
    connection.Run(QLatin1String("PRAGMA synchronous = FULL"));
    StoreTable::Begin(connection);
    QString reason = connection.TakeFailure().text;
    if (reason.isEmpty()) {
        if (!Find(connection, path, number, undone, error) || !IsStillSet(connection, path, *undone, error)) {
            StoreTable::RollBack(connection);
            return false;
        }
        StoreTable::WriteAndNote(connection, {{undone->parameter, undone->oldValue}},
                                 {{undone->parameter, CHANGE_AUTHOR_UNDO}});
        reason = StoreTable::Commit(connection);
    }
    if (!reason.isEmpty()) {
        *error = CannotBeWritten(path, reason);
        return false;
    }
    TPersistenceHold(store).Release(); // takes the value into memory, as one that another program has written
    return true;
}

} // namespace ChangeJournal
