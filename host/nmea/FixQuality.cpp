#include "nmea/FixQuality.h"

#include "nmea/NmeaChecksum.h"

#include <QList>

#include <cmath>

namespace {

// Fields of a GGA sentence.
const int QualityField = 6;
const int SatellitesField = 7;
const int HdopField = 8;

/// "$GNGGA": "$", two letters of the talker, and the type.
bool IsGga(const QByteArray& line) { return line.startsWith('$') && line.mid(3, 4) == "GGA,"; }

} // namespace

std::optional<tagFixQuality> ReadFixQuality(const QByteArray& line)
{
    if (!IsGga(line) || CheckNmeaLine(line) != NMEA_RIGHT_CHECKSUM)
        return std::nullopt;
    const QList<QByteArray> fields = line.split(',');
    tagFixQuality quality;
    quality.kind = fields.value(QualityField).toInt(); // 0 for an empty field
    quality.satellites = fields.value(SatellitesField).toInt();
    bool isNumber = false;
    const double hdop = fields.value(HdopField).toDouble(&isNumber);
    if (isNumber && std::isfinite(hdop))
        quality.hdop = hdop;
    return quality;
}
