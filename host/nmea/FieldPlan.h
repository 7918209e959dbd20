#pragma once

#include "HostExport.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

/// A field to be worked along parallel lines, and the receiver that watches.
///
/// The tractor starts at the given place, works every pass from end to end, and turns into the next one, which lies to
/// the right of the first: by a semicircle between the two lines, or, when they are too close for its smallest circle,
/// by a loop that swings out first.
struct tagFieldPlan
{
    QDateTime start = QDateTime(QDate(2024, 5, 1), QTime(6, 0), Qt::UTC);
    double latitude = 52.0;          ///< degrees, north positive
    double longitude = 10.0;         ///< degrees, east positive
    double altitude = 80.0;          ///< metres above sea level; the field is flat
    double heading = 15.0;           ///< degrees from true north, of the first pass at its start
    double passLength = 400.0;       ///< metres
    double swathWidth = 12.0;        ///< metres from one pass to the next
    double speed = 10.0;             ///< km/h in the pass; the tractor brakes at its end and speeds up at its start
    double turnSpeed = 6.0;          ///< km/h in the turn
    double smallestTurnRadius = 6.5; ///< metres
    int passes = 10;
    int rate = 5;             ///< epochs per second
    double noise = 0.0;       ///< metres; the most that a position is off, to the east and to the north each
    unsigned noiseSeed = 1;   ///< the same seed, the same noise
    QByteArray talker = "GN"; ///< the two letters that the sentences start with
};

/// Empty for a plan that can be worked, else what is wrong: the field, its value, and what is accepted.
CABHOST_EXPORT QString CheckFieldPlan(const tagFieldPlan& plan);
