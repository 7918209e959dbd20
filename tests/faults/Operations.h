#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <functional>
#include <vector>

class TDiskRecord;

/// What an operation has promised so far: which of its calls have returned true. Kept in memory that a child process
/// shares, so that a promise is known after the child was killed.
class TPromises
{
public:
    TPromises();
    ~TPromises();

    TPromises(const TPromises&) = delete;
    TPromises& operator=(const TPromises&) = delete;

    /// Forgets what was promised. With a @p record, each promise is noted with the steps before it.
    void Begin(const TDiskRecord* record = nullptr);

    /// Notes a promise; its meaning is the operation's.
    void Make(int number);

    /// The promises that were made, or those that were made in the first @p steps of the record.
    std::vector<int> All() const;
    std::vector<int> Before(std::size_t steps) const;

private:
    struct tagShared;

    tagShared* m_Shared;
    const TDiskRecord* m_Record;
};

/// What an interruption may do to what the operation has not synced.
enum EInterruption
{
    INTERRUPTION_OF_PROGRAM, ///< the system goes on: what was written is there
    INTERRUPTION_OF_POWER,   ///< what was not synced may be gone
};

struct tagAftermath
{
    EInterruption interruption;
    std::vector<int> promises;
    bool isDone; ///< the operation has returned true
    int refused; ///< calls that list or remove files and were made to fail
};

/// One operation on the files of a terminal, as a program does it that starts, works and ends.
struct tagOperation
{
    const char* name;

    /// Makes what the operation finds, in an empty folder.
    void (*prepare)(const QString& folder);

    /// Does the operation. @p begin is called when what belongs to it begins.
    /// @return whether every call has returned true.
    bool (*run)(const QString& folder, const std::function<void()>& begin, TPromises& promises);

    /// Looks at the folder as the next program does, and does the operation again.
    /// @return the invariant that is broken, in one line; empty when all hold.
    QByteArray (*broken)(const QString& folder, const tagAftermath& after);

    /// Whether the database makes the calls: it does not repeat a sync that a signal has interrupted.
    bool isOfDatabase;

    /// Whether it syncs what it promises. The lines of a log are promised to the system alone.
    bool isSynced;

    /// How many times as long as the others one run takes, about.
    int cost;

    /// Whether the folder is to be a stick of its own.
    bool needsStick = false;
};

/// Of the logs, of the files of the work on a field, of fields and what is written to a stick, and of the store.
std::vector<tagOperation> LogOperations();
std::vector<tagOperation> FileOperations();
std::vector<tagOperation> FieldOperations();
std::vector<tagOperation> StoreOperations();

std::vector<tagOperation> AllOperations();

/// The files in @p folder, at any depth, whose names are of unfinished work: hidden ones and "*.new".
QByteArray Leftovers(const QString& folder);
