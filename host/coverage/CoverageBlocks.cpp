#include "coverage/CoverageBlocks.h"

#include "blocks/DataBlock.h"
#include "serialization/TBinarySerializer.h"

#include <QBuffer>

#include <algorithm>
#include <cmath>

namespace {

const double MillimetresPerMetre = 1000;
const double FarthestPlace = 2000000; // metres; the number of millimetres is an int
const char* const Kind = "coverage";
constexpr int BytesOfNumber = 4; // and of the length of a list

using TEdge = std::array<int, CoverageBlocks::NumbersOfEdge>;

int Millimetres(double metres) { return static_cast<int>(std::lround(metres * MillimetresPerMetre)); }

tagPlanePoint Place(const int* millimetres)
{
    return {millimetres[0] / MillimetresPerMetre, millimetres[1] / MillimetresPerMetre};
}

TEdge Edge(const tagPlanePoint& left, const tagPlanePoint& right)
{
    return {Millimetres(left.east), Millimetres(left.north), Millimetres(right.east), Millimetres(right.north)};
}

} // namespace

QByteArray CoverageBlocks::Header(const tagGeoPoint& origin)
{
    QByteArray payload;
    QBuffer buffer(&payload);
    buffer.open(QIODevice::WriteOnly);
    TBinarySerializer(&buffer) << QString::fromLatin1(Kind) << origin.latitude << origin.longitude;
    return DataBlock::Framed(Version, payload);
}

bool CoverageBlocks::ReadHeader(const QByteArray& payload, tagGeoPoint* origin)
{
    QByteArray bytes = payload;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    TBinarySerializer serializer(&buffer);
    QString kind;
    serializer >> kind >> origin->latitude >> origin->longitude;
    return kind == QLatin1String(Kind) && serializer.atEnd() && IsGeoPoint(*origin);
}

QByteArray CoverageBlocks::Run(const TRun& run)
{
    QByteArray payload;
    QBuffer buffer(&payload);
    buffer.open(QIODevice::WriteOnly);
    TBinarySerializer(&buffer) << run;
    return DataBlock::Framed(Version, payload);
}

bool CoverageBlocks::ReadRun(const QByteArray& payload, std::vector<tagCoverageStrip>* strips)
{
    QByteArray bytes = payload;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    TRun run;
    TBinarySerializer(&buffer) >> run;
    if (run.size() % NumbersOfEdge != 0 || (run.size() + 1) * BytesOfNumber != payload.size())
        return false;
    for (int i = NumbersOfEdge; i < run.size(); i += NumbersOfEdge) {
        const int* const before = run.constData() + i - NumbersOfEdge;
        const int* const after = run.constData() + i;
        strips->push_back({{Place(before), Place(before + 2), Place(after + 2), Place(after)}});
    }
    return true;
}

qint64 CoverageBlocks::StripsOfBytes(qint64 bytes)
{
    return std::max<qint64>((bytes - BytesOfNumber) / (qint64{BytesOfNumber} * NumbersOfEdge) - 1, 0);
}

bool CoverageBlocks::Edges(const tagCoverageStrip& strip, TEdge* before, TEdge* after)
{
    for (const tagPlanePoint& corner : strip.corners) {
        const bool isPlace = std::abs(corner.east) <= FarthestPlace && std::abs(corner.north) <= FarthestPlace;
        if (!isPlace) // NaN too
            return false;
    }
    *before = Edge(strip.corners[0], strip.corners[1]);
    *after = Edge(strip.corners[3], strip.corners[2]);
    return true;
}
