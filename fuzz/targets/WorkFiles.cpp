// The small files of the work on a field: boundary, guidance line and flag points.

#include "blocks/DataBlock.h"
#include "boundaries/Boundary.h"
#include "guidance/FlagPoints.h"
#include "guidance/GuidanceLine.h"
#include "support/FuzzTarget.h"
#include "support/TFuzzInput.h"
#include "support/TFuzzRoom.h"

#include <QFile>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

const tagGeoPoint Place = {52.25, 10.5};

bool AreSame(const tagGeoPoint& one, const tagGeoPoint& other)
{
    return one.latitude == other.latitude && one.longitude == other.longitude;
}

bool AreSame(const std::vector<tagGeoPoint>& one, const std::vector<tagGeoPoint>& other)
{
    return one.size() == other.size() &&
           std::equal(one.begin(), one.end(), other.begin(),
                      [](const tagGeoPoint& a, const tagGeoPoint& b) { return AreSame(a, b); });
}

bool AreSame(const tagGuidanceLine& one, const tagGuidanceLine& other)
{
    return AreSame(one.a, other.a) && AreSame(one.b, other.b);
}

bool AreSame(const tagBoundary& one, const tagBoundary& other)
{
    return AreSame(one.external, other.external) && one.internals.size() == other.internals.size() &&
           std::equal(one.internals.begin(), one.internals.end(), other.internals.begin(),
                      [](const TGeoRing& a, const TGeoRing& b) { return AreSame(a, b); });
}

void ExpectSound(const tagGuidanceLine& line)
{
    Expect(IsGeoPoint(line.a) && IsGeoPoint(line.b), "a guidance line is on the Earth");
}

void ExpectSound(const std::vector<tagGeoPoint>& points)
{
    Expect(std::all_of(points.begin(), points.end(), IsGeoPoint), "flag points are on the Earth");
}

void ExpectSound(const tagBoundary& boundary)
{
    ExpectSound(boundary.external);
    const double area = BoundaryArea(boundary);
    Expect(std::isfinite(area) && area >= 0, "a boundary has an area");
}

template <class T, class TRead, class TWrite>
void CheckFile(const QString& path, TRead read, TWrite write)
{
    const QByteArray content = FuzzFiles::Content(path);
    QString error = QLatin1String("of before");
    const std::optional<T> found = read(path, &error);
    Expect(FuzzFiles::Content(path) == content, "reading changes nothing");
    Expect(found.has_value() == error.isEmpty(), "a file is read, or it is said why not", error);
    Expect(!error.contains(QLatin1Char('\n')), "what is wrong is said in one line", error);
    if (!found)
        return;
    ExpectSound(*found);
    const QString copy = TFuzzRoom::Get().Path("copy");
    Expect(write(copy, *found, &error), "what was read can be written", error);
    const std::optional<T> again = read(copy, &error);
    Expect(again && AreSame(*found, *again), "what was written reads back the same", error);
    QFile::remove(copy);
}

void Check(const QByteArray& bytes)
{
    TFuzzInput input(bytes);
    const int kind = input.Byte() % 3;
    const bool isFramed = input.Bool(); // with a right checksum, so that a changed content gets behind it
    const unsigned version = isFramed ? input.Byte() : 0;
    const QByteArray content = input.Rest();
    const QString path = TFuzzRoom::Get().Path("work");
    FuzzFiles::Make(path, isFramed ? DataBlock::Framed(version, content) : content);
    if (kind == 0)
        CheckFile<tagBoundary>(path, ReadBoundary, WriteBoundary);
    else if (kind == 1)
        CheckFile<tagGuidanceLine>(path, ReadGuidanceLine, WriteGuidanceLine);
    else
        CheckFile<std::vector<tagGeoPoint>>(path, ReadFlagPoints, WriteFlagPoints);
}

/// The file as it is, and its content without the frame.
void AppendSeeds(int kind, const QString& path, QList<QByteArray>* seeds)
{
    const QByteArray bytes = FuzzFiles::Content(path);
    int at = 0;
    DataBlock::tagBlock block;
    Expect(DataBlock::Take(bytes, &at, &block), "a written file is one block");
    seeds->append(TFuzzSeed().Byte(kind).Byte(0).Rest(bytes));
    seeds->append(TFuzzSeed().Byte(kind).Byte(1).Byte(static_cast<int>(block.version)).Rest(block.payload));
}

QList<QByteArray> Seeds()
{
    const QString path = TFuzzRoom::Get().Path("seed");
    const TGeoRing ring = {Place, {52.26, 10.5}, {52.26, 10.52}, {52.25, 10.52}};
    const TGeoRing pond = {{52.252, 10.502}, {52.253, 10.502}, {52.253, 10.503}};
    QList<QByteArray> seeds;
    QString error;
    Expect(WriteBoundary(path, {ring, {pond}}, &error), "a seed is written", error);
    AppendSeeds(0, path, &seeds);
    QFile::remove(path);
    Expect(WriteGuidanceLine(path, {Place, {52.26, 10.51}}, &error), "a seed is written", error);
    AppendSeeds(1, path, &seeds);
    QFile::remove(path);
    Expect(WriteFlagPoints(path, ring, &error), "a seed is written", error);
    AppendSeeds(2, path, &seeds);
    return seeds;
}

} // namespace

namespace FuzzTargets {

tagFuzzTarget WorkFiles() { return {"WorkFiles", Check, Seeds}; }

} // namespace FuzzTargets
