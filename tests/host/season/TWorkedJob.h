#pragma once

#include "coverage/TCoverageFile.h"
#include "nmea/LocalPlane.h"

#include <QString>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>

/// What was worked in one job, visit by visit, beside the coverage in which the terminal keeps it. Throws TSeasonFault
/// where the two are not the same.
class TWorkedJob
{
public:
    static constexpr double Width = 12; ///< metres, of the implement

    /// Opens the coverage again and compares it with what was worked before.
    void Open(const QString& path);

    /// The next place of the vehicle. @param course degrees from true north.
    void MoveTo(const tagGeoPoint& place, double course);

    /// The implement is lifted.
    void Lift() { m_Edge.reset(); }

    /// Waits until the coverage is on the disk.
    void Close();

    /// Reads the coverage once more, and compares the ground that it covers, too. @return its hectares.
    double CheckArea();

    qint64 Strips() const { return m_Strips; }
    int Openings() const { return m_Openings; }
    int Blocks() const; ///< of the file, without the first one

private:
    /// Left and right end of the implement.
    using TEdge = std::array<tagPlanePoint, 2>;

    TEdge EdgeAt(const tagPlanePoint& middle, double course) const;
    void Note(const tagCoverageStrip& strip);
    void Compare(const tagCoverage& found) const;

    QString m_Path;
    std::unique_ptr<TCoverageFile> m_File;
    std::optional<tagGeoPoint> m_Origin;
    std::optional<TLocalPlane> m_Plane;
    std::optional<TEdge> m_Edge;
    tagPlanePoint m_Middle = {0, 0};
    qint64 m_Strips = 0;
    std::uint64_t m_Digest = 0; ///< of all strips in millimetres
    double m_Area = 0;          ///< square metres
    int m_Openings = 0;
};
