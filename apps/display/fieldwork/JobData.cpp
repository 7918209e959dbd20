#include "display/fieldwork/JobData.h"

#include "boundaries/ExclusionZones.h"
#include "boundaries/NeighbourBoundaries.h"
#include "guidance/FlagPoints.h"
#include "system/TSystemSettingsProxy.h"
#include "terminal/ActiveItems.h"

#include <tuple>
#include <utility>

namespace {

QString ActiveName(EParamID item) { return ActiveItems::Name(*TParameterCatalogue::Find(item)); }

auto Tied(const tagJobPlaces& places)
{
    return std::tie(places.client, places.farm, places.field, places.coverage, places.boundary, places.zones,
                    places.line, places.flags);
}

void LoadCoverage(const QString& path, tagJob* job)
{
    tagCoverage found;
    QString error;
    job->coverage = TCoverageFile::Open(path, &found, &error);
    if (found.isHeld) {
        job->heldCoverage = path;
        job->holdReason = error;
    } else if (!job->coverage) {
        job->errors.append(error);
    }
    job->origin = found.origin;
    job->lostBytes = found.lostBytes;
    job->lostStrips = found.lostStrips;
    job->strips.reserve(static_cast<int>(found.strips.size()));
    for (const tagCoverageStrip& strip : found.strips) {
        job->strips.append(MapStrip(strip));
        job->tally->Add(strip);
    }
}

/// The value that was read; the error, if there is one, goes to the job's.
template <class Value>
std::optional<Value> Read(std::optional<Value> (*read)(const QString&, QString*), const QString& path, tagJob* job)
{
    if (path.isEmpty())
        return std::nullopt;
    QString error;
    std::optional<Value> value = read(path, &error);
    if (!error.isEmpty())
        job->errors.append(error);
    return value;
}

} // namespace

bool tagJobPlaces::operator==(const tagJobPlaces& other) const { return Tied(*this) == Tied(other); }

QString ActiveLinePath()
{
    const TSystemSettingsProxy system;
    const QString name = system.GetActiveABLine();
    if (name.isEmpty())
        return QString();
    return system.GetCFFPath().isEmpty() ? system.GetABLinePath(name) : system.GetActiveABLinePath();
}

tagJobPlaces ActivePlaces()
{
    const TSystemSettingsProxy system;
    tagJobPlaces places;
    places.client = ActiveName(PARAM_CLIENT);
    places.farm = ActiveName(PARAM_FARM);
    places.field = ActiveName(PARAM_FIELD);
    places.coverage = system.GetCoverageFilePath(places.client, places.farm, places.field, system.GetActiveJob());
    places.boundary = system.GetActiveBoundary().isEmpty()
                          ? system.GetBoundaryFilePath(places.client, places.farm, places.field)
                          : system.GetActiveBoundaryPath();
    places.zones = system.GetExclusionZoneShapefilePath(places.client, places.farm, places.field);
    places.line = ActiveLinePath();
    places.flags = system.GetActiveFlagPointsFilePath();
    return places;
}

void LoadJob(const tagJobPlaces& places, tagJob* job)
{
    job->isChosen = !places.coverage.isEmpty();
    if (!places.coverage.isEmpty())
        LoadCoverage(places.coverage, job);
    job->boundary = Read(ReadBoundary, places.boundary, job);
    job->zones = Read(ReadExclusionZones, places.zones, job).value_or(std::vector<TGeoRing>());
    job->neighbours = NeighbourBoundaries(places.client, places.farm, places.field);
    job->line = Read(ReadGuidanceLine, places.line, job);
    const auto errors = job->errors.size();
    job->flags = Read(ReadFlagPoints, places.flags, job).value_or(std::vector<tagGeoPoint>());
    job->areFlagsGood = job->errors.size() == errors;
    if (!job->origin && job->boundary)
        job->origin = job->boundary->external.front();
}

void LoadHeldCoverage(tagJob* job)
{
    if (job->heldCoverage.isEmpty() || job->later)
        return;
    auto later = std::make_unique<tagJob>();
    LoadCoverage(job->heldCoverage, later.get());
    if (later->heldCoverage.isEmpty())
        job->later = std::move(later);
}

tagMapStrip MapStrip(const tagCoverageStrip& strip)
{
    tagMapStrip result = {};
    for (std::size_t i = 0; i < strip.corners.size(); ++i)
        result.corners[i] = {static_cast<float>(strip.corners[i].east), static_cast<float>(strip.corners[i].north)};
    return result;
}
