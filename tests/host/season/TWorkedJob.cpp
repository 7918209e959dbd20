#include "TWorkedJob.h"

#include "Require.h"

#include "coverage/TCoverageTally.h"

#include <QFileInfo>

#include <cmath>

namespace {

/// The layout of the file: the first block; each other block, with the edge at which it begins; each strip.
constexpr qint64 BytesOfHeader = 52;
constexpr qint64 BytesOfBlock = 36;
constexpr qint64 BytesOfStrip = 16;

/// The tally is right to 1 in 1000.
constexpr double AreaError = 0.001;

std::uint64_t Digest(std::uint64_t digest, const tagCoverageStrip& strip)
{
    for (const tagPlanePoint& corner : strip.corners) {
        for (const double metres : {corner.east, corner.north})
            digest = (digest ^ static_cast<std::uint64_t>(std::lround(metres * 1000))) * 1099511628211U;
    }
    return digest;
}

} // namespace

void TWorkedJob::Open(const QString& path)
{
    m_Path = path;
    tagCoverage found;
    QString error;
    m_File = TCoverageFile::Open(path, &found, &error);
    if (!m_File)
        throw TSeasonFault(error);
    Compare(found);
    ++m_Openings;
}

void TWorkedJob::Compare(const tagCoverage& found) const
{
    RequireEqual(found.lostBytes, qint64(0), "bytes lost in a coverage");
    RequireEqual(static_cast<qint64>(found.strips.size()), m_Strips, "strips of a coverage");
    Require(found.origin.has_value() == (m_Strips > 0), "a coverage has an origin as soon as it has a strip");
    if (found.origin)
        Require(found.origin->latitude == m_Origin->latitude && found.origin->longitude == m_Origin->longitude,
                "the origin of a coverage has moved");
    std::uint64_t digest = 0;
    for (const tagCoverageStrip& strip : found.strips)
        digest = Digest(digest, strip);
    Require(digest == m_Digest, "a coverage is not what was worked");
}

TWorkedJob::TEdge TWorkedJob::EdgeAt(const tagPlanePoint& middle, double course) const
{
    const double radians = course * std::acos(-1.0) / 180;
    const double east = std::cos(radians) * Width / 2;
    const double north = std::sin(radians) * Width / 2;
    return {{{middle.east - east, middle.north + north}, {middle.east + east, middle.north - north}}};
}

void TWorkedJob::MoveTo(const tagGeoPoint& place, double course)
{
    if (!m_Origin) {
        m_Origin = place;
        m_Plane.emplace(place.latitude, place.longitude);
        m_File->SetOrigin(place);
    }
    const tagPlanePoint middle = m_Plane->ToPlane(place.latitude, place.longitude);
    const TEdge edge = EdgeAt(middle, course);
    if (m_Edge) {
        const tagCoverageStrip strip = {{(*m_Edge)[0], (*m_Edge)[1], edge[1], edge[0]}};
        m_File->Add(strip);
        Note(strip);
        m_Area += std::hypot(middle.east - m_Middle.east, middle.north - m_Middle.north) * Width;
    }
    m_Edge = edge;
    m_Middle = middle;
}

void TWorkedJob::Note(const tagCoverageStrip& strip)
{
    ++m_Strips;
    m_Digest = Digest(m_Digest, strip);
}

void TWorkedJob::Close()
{
    Lift();
    const bool isFlushed = m_File->Flush();
    const tagCoverageState state = m_File->State();
    Require(isFlushed && state.problem.isEmpty(), "a coverage cannot be written");
    RequireEqual(state.lost, qint64(0), "strips lost on their way to a coverage");
    m_File.reset();
}

double TWorkedJob::CheckArea()
{
    tagCoverage found;
    QString error;
    if (!TCoverageFile::Open(m_Path, &found, &error))
        throw TSeasonFault(error);
    Compare(found);
    TCoverageTally tally;
    for (const tagCoverageStrip& strip : found.strips)
        tally.Add(strip);
    Require(m_Area > 1000, "a job was not worked");
    if (std::abs(tally.Area() - m_Area) > AreaError * m_Area)
        throw TSeasonFault(QString::fromLatin1("the coverage of a job has %1 m², worked were %2 m²")
                               .arg(tally.Area(), 0, 'f', 1)
                               .arg(m_Area, 0, 'f', 1));
    return tally.Area() / 10000;
}

int TWorkedJob::Blocks() const
{
    const qint64 bytes = QFileInfo(m_Path).size() - BytesOfHeader - m_Strips * BytesOfStrip;
    RequireEqual(bytes % BytesOfBlock, qint64(0), "bytes of a coverage beyond its blocks");
    return static_cast<int>(bytes / BytesOfBlock);
}
