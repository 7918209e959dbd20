#include "nmea/LoggedPosition.h"

#include "logs/TLogSeries.h"
#include "nmea/NmeaChecksum.h"
#include "nmea/TFixTracker.h"

#include <QFile>

#include <cmath>

namespace {

std::optional<tagLoggedPosition> LastPosition(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    TNmeaReceiver::tagStatus status;
    TFixTracker tracker(status);
    for (QByteArray line = file.readLine(); !line.isEmpty(); line = file.readLine()) {
        if (CheckNmeaLine(line) == NMEA_RIGHT_CHECKSUM)
            tracker.Take(line);
    }
    if (std::isnan(status.latitude) || std::isnan(status.longitude))
        return std::nullopt;
    return tagLoggedPosition{status.latitude, status.longitude};
}

} // namespace

std::optional<tagLoggedPosition> LastLoggedPosition(const QString& path)
{
    const TLogSeries series(path);
    const std::vector<TLogSeries::tagFile> files = series.GetFiles();
    for (auto file = files.rbegin(); file != files.rend(); ++file) {
        if (const auto position = LastPosition(series.GetPath(file->name)))
            return position;
    }
    return std::nullopt;
}
