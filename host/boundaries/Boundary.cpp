#include "boundaries/Boundary.h"

#include "blocks/PointList.h"
#include "blocks/WorkFile.h"
#include "nmea/LocalPlane.h"
#include "serialization/TBinarySerializer.h"

#include <QBuffer>

#include <algorithm>
#include <cmath>

namespace {

constexpr WorkFile::tagKind Kind = {"boundary", 1};
constexpr std::size_t LeastCorners = 3;

bool IsRing(const TGeoRing& ring)
{
    return ring.size() >= LeastCorners && std::all_of(ring.begin(), ring.end(), IsGeoPoint);
}

bool IsBoundary(const tagBoundary& boundary)
{
    std::size_t corners = boundary.external.size();
    for (const TGeoRing& ring : boundary.internals)
        corners += ring.size();
    return corners <= static_cast<std::size_t>(MostCorners) && IsRing(boundary.external) &&
           std::all_of(boundary.internals.begin(), boundary.internals.end(), IsRing);
}

qint64 ContentBytes(const tagBoundary& boundary)
{
    qint64 bytes = PointList::Bytes(boundary.external) + static_cast<qint64>(sizeof(unsigned));
    for (const TGeoRing& ring : boundary.internals)
        bytes += PointList::Bytes(ring);
    return bytes;
}

double RingArea(const TLocalPlane& plane, const TGeoRing& ring)
{
    double twice = 0;
    tagPlanePoint before = plane.ToPlane(ring.back().latitude, ring.back().longitude);
    for (const tagGeoPoint& corner : ring) {
        const tagPlanePoint place = plane.ToPlane(corner.latitude, corner.longitude);
        twice += before.east * place.north - place.east * before.north;
        before = place;
    }
    return std::abs(twice) / 2;
}

} // namespace

std::optional<tagBoundary> ReadBoundary(const QString& path, QString* error)
{
    std::optional<QByteArray> content = WorkFile::Read(path, Kind, error);
    if (!content)
        return std::nullopt;
    QBuffer buffer(&*content);
    buffer.open(QIODevice::ReadOnly);
    TBinarySerializer serializer(&buffer);
    tagBoundary boundary;
    unsigned internals = 0;
    bool isGood = PointList::Read(serializer, &boundary.external);
    serializer >> internals;
    for (unsigned i = 0; isGood && i < internals; ++i) {
        boundary.internals.emplace_back();
        isGood = !serializer.atEnd() && PointList::Read(serializer, &boundary.internals.back());
    }
    if (isGood && content->size() == ContentBytes(boundary) && IsBoundary(boundary))
        return boundary;
    *error = WorkFile::Damage(path, Kind);
    return std::nullopt;
}

bool WriteBoundary(const QString& path, const tagBoundary& boundary, QString* error)
{
    if (!IsBoundary(boundary)) {
        *error =
            QString::fromLatin1("invalid boundary; expected rings of 3 corners or more, %1 together at most, on the "
                                "Earth")
                .arg(MostCorners);
        return false;
    }
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    TBinarySerializer serializer(&buffer);
    PointList::Write(serializer, boundary.external);
    serializer << static_cast<unsigned>(boundary.internals.size());
    for (const TGeoRing& ring : boundary.internals)
        PointList::Write(serializer, ring);
    return WorkFile::Write(path, Kind, content, error);
}

double BoundaryArea(const tagBoundary& boundary)
{
    if (boundary.external.empty())
        return 0;
    const TLocalPlane plane(boundary.external.front().latitude, boundary.external.front().longitude);
    double area = RingArea(plane, boundary.external);
    for (const TGeoRing& ring : boundary.internals)
        area -= ring.empty() ? 0 : RingArea(plane, ring);
    return std::max(area, 0.0);
}
