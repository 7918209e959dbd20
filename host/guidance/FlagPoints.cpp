#include "guidance/FlagPoints.h"

#include "blocks/PointList.h"
#include "blocks/WorkFile.h"
#include "serialization/TBinarySerializer.h"

#include <QBuffer>

namespace {

constexpr WorkFile::tagKind Kind = {"flag points", 1};

} // namespace

std::optional<std::vector<tagGeoPoint>> ReadFlagPoints(const QString& path, QString* error)
{
    std::optional<QByteArray> content = WorkFile::Read(path, Kind, error);
    if (!content)
        return std::nullopt;
    QBuffer buffer(&*content);
    buffer.open(QIODevice::ReadOnly);
    TBinarySerializer serializer(&buffer);
    std::vector<tagGeoPoint> points;
    if (PointList::Read(serializer, &points) && content->size() == PointList::Bytes(points))
        return points;
    *error = WorkFile::Damage(path, Kind);
    return std::nullopt;
}

bool WriteFlagPoints(const QString& path, const std::vector<tagGeoPoint>& points, QString* error)
{
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    TBinarySerializer serializer(&buffer);
    PointList::Write(serializer, points);
    return WorkFile::Write(path, Kind, content, error);
}
