#include "blocks/PointList.h"

void PointList::Write(TSerializer& serializer, const std::vector<tagGeoPoint>& points)
{
    serializer << static_cast<unsigned>(points.size());
    for (const tagGeoPoint& point : points)
        serializer << point.latitude << point.longitude;
}

qint64 PointList::Bytes(const std::vector<tagGeoPoint>& points)
{
    const auto numbers = static_cast<qint64>(points.size()) * 2;
    return qint64{sizeof(unsigned)} + numbers * qint64{sizeof(double)};
}

bool PointList::Read(TSerializer& serializer, std::vector<tagGeoPoint>* points)
{
    points->clear();
    unsigned count = 0;
    serializer >> count;
    for (unsigned i = 0; i < count; ++i) {
        if (serializer.atEnd()) // a wrong number may stand for gigabytes that are not there
            return false;
        tagGeoPoint point = {};
        serializer >> point.latitude >> point.longitude;
        if (!IsGeoPoint(point))
            return false;
        points->push_back(point);
    }
    return true;
}
