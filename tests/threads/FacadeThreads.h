#pragma once

#include "FacadeWorks.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QString>
#include <QStringList>

#include <array>
#include <vector>

/// The threads that call the façades, and what they have left in the logs.
namespace FacadeThreads {

constexpr int Most = 8;

/// Lets all workers work at the same time, each in a thread of its own, and waits for them. In each round a thread
/// makes each of @p calls once, in an order of its own, and after each call one of @p works. Ends the program when a
/// call does not return; @p hint is printed then.
/// @param begin is called in each thread first.
void Run(std::vector<tagWorker>& workers, int rounds, const std::vector<tagFacadeCall>& calls,
         const std::vector<tagWork>& works, void (*begin)(int thread), const char* hint);

/// The files of a log, the oldest first.
QStringList LogFiles(const QString& folder, const char* stem);

/// The lines of all these files, without line ends. One more, "no line end", for each file that does not end with one.
QByteArrayList LogLines(const QString& folder, const char* stem);

/// Without "2024.03.05-14:05:09:042,"; unchanged when it does not begin so.
QByteArray WithoutStamp(const QByteArray& line);

/// The lines of each thread; in the last list what belongs to none.
std::array<QByteArrayList, Most + 1> ByThread(const QByteArrayList& lines);

} // namespace FacadeThreads
