#include "guidance/GuidanceLine.h"

#include "blocks/WorkFile.h"
#include "nmea/LocalPlane.h"
#include "serialization/TBinarySerializer.h"

#include <QBuffer>

#include <cmath>

namespace {

constexpr WorkFile::tagKind Kind = {"guidance line", 1};
constexpr int ContentBytes = 4 * sizeof(double);

bool IsLine(const tagGuidanceLine& line)
{
    if (!IsGeoPoint(line.a) || !IsGeoPoint(line.b))
        return false;
    const tagPlanePoint b = TLocalPlane(line.a.latitude, line.a.longitude).ToPlane(line.b.latitude, line.b.longitude);
    const double length = std::hypot(b.east, b.north);
    return length >= LeastLineLength && length <= GreatestLineLength;
}

} // namespace

std::optional<tagGuidanceLine> ReadGuidanceLine(const QString& path, QString* error)
{
    std::optional<QByteArray> content = WorkFile::Read(path, Kind, error);
    if (!content)
        return std::nullopt;
    const bool isWhole = content->size() == ContentBytes;
    QBuffer buffer(&*content);
    buffer.open(QIODevice::ReadOnly);
    tagGuidanceLine line = {};
    TBinarySerializer(&buffer) >> line.a.latitude >> line.a.longitude >> line.b.latitude >> line.b.longitude;
    if (isWhole && IsLine(line))
        return line;
    *error = WorkFile::Damage(path, Kind);
    return std::nullopt;
}

bool WriteGuidanceLine(const QString& path, const tagGuidanceLine& line, QString* error)
{
    if (!IsLine(line)) {
        *error = QString::fromLatin1("invalid guidance line; expected A and B from %1 m to %2 m apart")
                     .arg(LeastLineLength)
                     .arg(GreatestLineLength, 0, 'f', 0);
        return false;
    }
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    TBinarySerializer(&buffer) << line.a.latitude << line.a.longitude << line.b.latitude << line.b.longitude;
    return WorkFile::Write(path, Kind, content, error);
}
