// Shapefiles with exclusion zones: the shapes and their index.

#include "boundaries/ExclusionZones.h"
#include "support/FuzzTarget.h"
#include "support/TFuzzInput.h"
#include "support/TFuzzRoom.h"

#include <algorithm>

namespace {

/// The places of each zone, in an order that does not depend on where it begins and how it turns.
std::vector<std::vector<std::pair<double, double>>> Sorted(const std::vector<TGeoRing>& zones)
{
    std::vector<std::vector<std::pair<double, double>>> places;
    for (const TGeoRing& zone : zones) {
        places.emplace_back();
        for (const tagGeoPoint& corner : zone)
            places.back().emplace_back(corner.latitude, corner.longitude);
        std::sort(places.back().begin(), places.back().end());
    }
    return places;
}

void Check(const QByteArray& bytes)
{
    TFuzzInput input(bytes);
    const QString folder = TFuzzRoom::Get().NewFolder();
    const QString path = folder + QLatin1String("/F1.shp");
    const QByteArray shapes = input.Bytes();
    const QByteArray index = input.Rest();
    FuzzFiles::Make(path, shapes);
    FuzzFiles::Make(folder + QLatin1String("/F1.shx"), index);

    QString error;
    const auto zones = ReadExclusionZones(path, &error);
    Expect(FuzzFiles::Content(path) == shapes && FuzzFiles::Content(folder + QLatin1String("/F1.shx")) == index,
           "reading changes nothing");
    Expect(zones.has_value() == error.isEmpty(), "a file is read, or it is said why not", error);
    if (!zones)
        return;
    for (const TGeoRing& zone : *zones)
        Expect(zone.size() >= 3 && std::all_of(zone.begin(), zone.end(), IsGeoPoint), "a zone is a ring on the Earth");
    const QString copy = folder + QLatin1String("/F2.shp");
    Expect(WriteExclusionZones(copy, *zones, &error), "what was read can be written", error);
    const auto again = ReadExclusionZones(copy, &error);
    Expect(again && Sorted(*again) == Sorted(*zones), "what was written reads back the same", error);
}

QList<QByteArray> Seeds()
{
    const QString folder = TFuzzRoom::Get().NewFolder();
    const TGeoRing pond = {{52.252, 10.502}, {52.253, 10.502}, {52.253, 10.503}};
    const TGeoRing wood = {{52.254, 10.504}, {52.255, 10.504}, {52.255, 10.505}, {52.2545, 10.506}};
    QList<QByteArray> seeds;
    for (const std::vector<TGeoRing>& zones : {std::vector<TGeoRing>{}, {pond}, {pond, wood}}) {
        const QString path = folder + QLatin1String("/zones.shp");
        QString error;
        Expect(WriteExclusionZones(path, zones, &error), "a seed is written", error);
        seeds.append(
            TFuzzSeed().Bytes(FuzzFiles::Content(path)).Rest(FuzzFiles::Content(folder + QLatin1String("/zones.shx"))));
    }
    return seeds;
}

} // namespace

namespace FuzzTargets {

tagFuzzTarget ExclusionZones() { return {"ExclusionZones", Check, Seeds}; }

} // namespace FuzzTargets
