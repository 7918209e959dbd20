#pragma once

#include "display/fieldwork/JobData.h"
#include "display/fieldwork/TStripMaker.h"
#include "nmea/LocalPlane.h"

#include <QDateTime>

#include <vector>

/// A fix that came before the coverage was there to which its ground belongs.
struct tagEarlyFix
{
    tagGeoPoint place;
    double heading; ///< degrees from north, where the vehicle's front points to
    QDateTime utc;
    tagImplement implement; ///< at that time
    bool isJoined;          ///< the ground from the fix before it to this one was worked
};

using TEarlyFixes = std::vector<tagEarlyFix>;

/// The strips from fix to fix, on a plane. Afterwards @p maker is at the last fix, and has its own implement again.
///
/// @code
/// for (const tagCoverageStrip& strip : StripsOf(fixes, plane, &maker))
///     job.coverage->Add(strip);
/// @endcode
std::vector<tagCoverageStrip> StripsOf(const TEarlyFixes& fixes, const TLocalPlane& plane, TStripMaker* maker);

/// Adds the ground to the coverage of a job that was loaded and is not shown any more, and waits until it is on the
/// disk. A coverage that another program had open is tried once more. May be called from any thread.
/// @return false when the ground is lost, because the coverage cannot be used or written. Ground without a job is of no
/// coverage, and not lost.
bool StoreEarlyFixes(const TEarlyFixes& fixes, tagJob* job);
