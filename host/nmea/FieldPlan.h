#pragma once

#include "HostExport.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

/// A simulated drive: a tractor works a field along parallel lines, and its receiver sends NMEA.
///
/// The tractor starts at the given place and drives each pass from end to end. The second pass lies to the right of the
/// first, the third beyond it, and so on. The turn from one pass to the next is a semicircle. If the passes are too
/// close for the smallest turn radius, the turn is a loop that begins away from the next pass.
///
/// \code
/// tagFieldPlan plan;
/// plan.passes = 4;
/// const QString problem = CheckFieldPlan(plan); // empty: TFieldSimulator(plan) can be used
/// \endcode
struct tagFieldPlan
{
    QDateTime start = QDateTime(QDate(2024, 5, 1), QTime(6, 0), Qt::UTC);
    double latitude = 52.0;          ///< degrees, north positive
    double longitude = 10.0;         ///< degrees, east positive
    double altitude = 80.0;          ///< metres above sea level; the field is flat
    double heading = 15.0;           ///< of the first pass at its start, degrees from true north
    double passLength = 400.0;       ///< metres
    double swathWidth = 12.0;        ///< metres from one pass to the next
    double speed = 10.0;             ///< km/h in a pass; less near its start and its end
    double turnSpeed = 6.0;          ///< km/h in a turn
    double smallestTurnRadius = 6.5; ///< metres
    int passes = 10;
    int rate = 5;             ///< epochs per second
    double noise = 0.0;       ///< greatest error of a position in metres, to the east and to the north
    unsigned noiseSeed = 1;   ///< the same seed gives the same noise
    QByteArray talker = "GN"; ///< first two letters of each sentence: "GN" or "GP"
};

/// Empty when the simulator accepts @p plan, else what is wrong: the member, its value, and what is accepted.
CABHOST_EXPORT QString CheckFieldPlan(const tagFieldPlan& plan);
