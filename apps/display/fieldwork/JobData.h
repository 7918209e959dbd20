#pragma once

#include "boundaries/Boundary.h"
#include "coverage/TCoverageFile.h"
#include "coverage/TCoverageTally.h"
#include "display/map/TMapModel.h"
#include "guidance/GuidanceLine.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>
#include <optional>
#include <vector>

/// Where the files of a job and its field are. A path is empty when there is nothing to read.
struct tagJobPlaces
{
    QString client;
    QString farm;
    QString field;
    QString coverage;
    QString boundary;
    QString zones;
    QString line;
    QString flags;

    bool operator==(const tagJobPlaces& other) const;
};

/// The places of what is active now.
tagJobPlaces ActivePlaces();

/// The file of the active guidance line: in the active field, or outside of all fields when none is chosen. Empty when
/// there is no active line.
QString ActiveLinePath();

/// What the files of a job hold.
struct tagJob
{
    bool isChosen = false;                   ///< false: there is no job, and so no coverage
    std::unique_ptr<TCoverageFile> coverage; ///< null without a job, and when the file cannot be used
    std::optional<tagGeoPoint> origin;       ///< of the coverage; else a corner of the boundary; nothing without both
    QVector<tagMapStrip> strips;
    std::unique_ptr<TCoverageTally> tally = std::make_unique<TCoverageTally>();
    qint64 lostBytes = 0; ///< of coverage that was not complete
    qint64 lostStrips = 0;
    std::optional<tagBoundary> boundary;
    std::vector<tagBoundary> neighbours;
    std::vector<TGeoRing> zones;
    std::optional<tagGuidanceLine> line;
    std::vector<tagGeoPoint> flags;
    bool areFlagsGood = true; ///< false: the file is damaged, and is left alone
    QStringList errors;       ///< one line each

    QString heldCoverage;          ///< the coverage's file while another program has it open; else empty
    QString holdReason;            ///< one line
    std::unique_ptr<tagJob> later; ///< of the held coverage, as it was when the other program had let it go
};

/// Reads the files; what cannot be read is left out, with an error. Takes as long as the disk does, and two seconds for
/// ten hours of coverage. May be called from any thread.
void LoadJob(const tagJobPlaces& places, tagJob* job);

/// Tries to open the coverage that another program had open when the job was read. What is found, if anything, is in
/// job->later, which is null while the coverage is still held. May be called from any thread.
void LoadHeldCoverage(tagJob* job);

tagMapStrip MapStrip(const tagCoverageStrip& strip);
