#pragma once

#include "coverage/CoverageStrip.h"
#include "guidance/GeoPoint.h"

#include <QByteArray>
#include <QVector>

#include <array>
#include <vector>

/// The blocks of a coverage file. The first one tells what the file is, and the origin of its plane. Each other one is
/// a run: the two ends of the implement at fixes that follow each other, as whole millimetres: left east, left north,
/// right east, right north. Two neighbours in a run are a strip.
namespace CoverageBlocks {

constexpr unsigned Version = 1;
constexpr int NumbersOfEdge = 4;

using TRun = QVector<int>;

QByteArray Header(const tagGeoPoint& origin);

/// Returns false when @p payload is not that of a coverage's first block.
bool ReadHeader(const QByteArray& payload, tagGeoPoint* origin);

QByteArray Run(const TRun& run);

/// Appends the strips of a run. Returns false when @p payload is not that of a run.
bool ReadRun(const QByteArray& payload, std::vector<tagCoverageStrip>* strips);

/// The number of strips of a block whose payload has @p bytes.
qint64 StripsOfBytes(qint64 bytes);

inline int StripsOfRun(const TRun& run) { return static_cast<int>(run.size()) / NumbersOfEdge - 1; }

/// The two edges of @p strip in millimetres. Returns false when a corner is not a number, or farther than 2000 km.
bool Edges(const tagCoverageStrip& strip, std::array<int, NumbersOfEdge>* before,
           std::array<int, NumbersOfEdge>* after);

} // namespace CoverageBlocks
