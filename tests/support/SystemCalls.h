#pragma once

/// The calls of this process that change files: write, pwrite, fsync, fdatasync, ftruncate, rename, renameat2, unlink
/// and mkdir. One of them can be made to fail, or to be the last thing that the process does.
namespace SystemCalls {

/// Lets the calls through, and counts them from now on.
void Count();

/// The number of calls since Count(), Fail() or Kill().
int Counted();

/// The number of regular files that were written to since Count(), Fail() or Kill(), and were not synced after that.
int UnsyncedFiles();

/// Lets the @p nth call from now fail with @p error, and those after it as well.
void Fail(int nth, int error);

/// Kills the process at the @p nth call from now, before it is made.
void Kill(int nth);

/// Kills when @p error is 0, and else lets the calls fail: for a table that has both.
void Stop(int nth, int error);

/// The calls at which a sweep kills: the first one, and the distance to the next. Every call is tried, one after the
/// other. A sanitizer makes the start of a program several times as slow and sees the same code at each call: with one,
/// every fourth call is tried, from a random one on.
int FirstToKill();
int NextToKill(int nth);

} // namespace SystemCalls
