#pragma once

#include "HostExport.h"

#include <QByteArray>

#include <limits>
#include <optional>

/// How good a position is, as the receiver tells with each position.
///
/// @code
/// if (const auto quality = ReadFixQuality(line))
///     Show(quality->kind, quality->satellites);
/// @endcode
struct tagFixQuality
{
    /// 0: no fix, 1: GPS, 2: differential GPS, 3: PPS, 4: RTK fixed, 5: RTK float, 6: dead reckoning, 7: set by hand,
    /// 8: simulator
    int kind = 0;
    int satellites = 0;                                     ///< in use
    double hdop = std::numeric_limits<double>::quiet_NaN(); ///< horizontal dilution of precision; NaN when not told
};

/// Reads a GGA sentence. Empty for any other line, and for one without a right checksum.
/// @param line with or without its line end.
CABHOST_EXPORT std::optional<tagFixQuality> ReadFixQuality(const QByteArray& line);
