#include "nmea/LoggedPosition.h"

#include "logs/TLogSeries.h"
#include "nmea/NmeaChecksum.h"
#include "nmea/TFixTracker.h"
#include "nmea/TNmeaLineSplitter.h"

#include <QFile>

#include <cmath>

namespace {

const qint64 PieceBytes = 0x10000;

std::optional<tagLoggedPosition> LastPosition(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    TNmeaReceiver::tagStatus status;
    TFixTracker tracker(status);
    const auto take = [&tracker](const QByteArray& line) {
        if (CheckNmeaLine(line) == NMEA_RIGHT_CHECKSUM)
            tracker.Take(line);
    };
    TNmeaLineSplitter splitter; // a line may be as long as the file
    for (QByteArray piece = file.read(PieceBytes); !piece.isEmpty(); piece = file.read(PieceBytes)) {
        splitter.Append(piece.constData(), static_cast<int>(piece.size()));
        for (QByteArray line = splitter.TakeLine(); !line.isEmpty(); line = splitter.TakeLine())
            take(line);
    }
    take(splitter.TakeRest());
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
