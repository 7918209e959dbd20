#pragma once

#include <QByteArray>

#include <cstdint>

class TDiskRecord;

/// The calls of this process to the system that concern files in one folder. They are counted; one of them can be made
/// to fail, to do a part of its work, or to be the last thing that the process does. What they do can be recorded, so
/// that a test can find out what a power cut leaves of it.
///
/// Calls of the library, of Qt and of the database are seen alike. Calls on other files go on as ever. A program that
/// uses this must export its symbols (ENABLE_EXPORTS), because the driver of the database is loaded later.
namespace FileCalls {

/// Kinds of calls, as bits.
enum ECall : unsigned
{
    CALL_OPEN = 0x1,   ///< open() of what exists
    CALL_MAKE = 0x2,   ///< open() that may make a file or empties it; mkostemp()
    CALL_ALTER = 0x4,  ///< open() of what exists, for writing
    CALL_READ = 0x8,   ///< read(), pread()
    CALL_WRITE = 0x10, ///< write(), pwrite()
    CALL_CUT = 0x20,   ///< ftruncate()
    CALL_SYNC = 0x40,  ///< fsync(), fdatasync(), syncfs()
    CALL_RENAME = 0x80,
    CALL_REMOVE = 0x100, ///< unlink(), rmdir()
    CALL_FOLDER = 0x200, ///< mkdir()
    CALL_LIST = 0x400,   ///< opendir()
    CALL_LOCK = 0x800,   ///< flock()
};

/// How a call is stopped.
enum EStop : int
{
    STOP_ERROR,      ///< it fails, once
    STOP_ERROR_ON,   ///< it fails, and so do all of these calls after it
    STOP_SHORT,      ///< it writes or reads half of the bytes, once
    STOP_SHORT_FULL, ///< it writes half of the bytes, and all of these calls after it fail
    STOP_KILL,       ///< the process is killed before the call
};

struct tagFault
{
    const char* name;
    EStop stop;
    int error;      ///< errno; 0 where there is none
    unsigned calls; ///< the calls that can be stopped, and that are counted
};

/// From now on calls on files in @p folder are looked at. The folder must exist.
void Watch(const QByteArray& folder);

/// Ends what Watch(), Arm(), Misread() and Record() have begun.
void Ignore();

/// Stops the @p nth call of the fault from now.
void Arm(const tagFault& fault, int nth);

/// Lets all calls through again. Returns whether the call was reached that was to be stopped.
bool Disarm();

/// The number of calls since Arm() that the fault could have stopped.
int Counted();

/// The number of @p calls that were made to fail since Arm().
int Refused(unsigned calls);

/// Lets the next read that holds @p text in whole return another first letter: what a drive gives that is about to
/// fail.
void Misread(const QByteArray& text);

/// Whether the read has come that Misread() waits for.
bool HasMisread();

/// Notes from now on in @p record what the calls change. Null: no more.
void Record(TDiskRecord* record);

/// The clock of this process, and the times of files in the folder.
struct tagClock
{
    std::int64_t shift = 0;         ///< seconds that the clock is ahead
    std::int64_t step = 0;          ///< the times of files are multiples of this many seconds; 0: as the system's
    std::int64_t standsAtFile = -1; ///< if not -1: the time of all files that are written, in seconds since 1970
};

/// Moves the clock that programs read, and gives files that are made or written in the folder the time of that clock.
void SetClock(const tagClock& clock);

} // namespace FileCalls
