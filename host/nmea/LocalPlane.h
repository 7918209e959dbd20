#pragma once

#include <array>

/// A place on the WGS84 ellipsoid and a direction there.
struct tagGroundPose
{
    double latitude;  ///< degrees, north positive
    double longitude; ///< degrees, east positive
    double course;    ///< degrees from true north, 0 to 360
};

/// The plane that touches the WGS84 ellipsoid at one place. Brings points of the plane back to the ellipsoid.
/// Distances are exact to 1 in 100 000 within 25 km, at every latitude and across the antimeridian.
class TLocalPlane
{
public:
    /// @param latitude, longitude of the place, in degrees.
    TLocalPlane(double latitude, double longitude);

    /// @param east, north in metres on the plane.
    /// @param heading in radians from the plane's north; the result is from true north at the point.
    tagGroundPose ToGround(double east, double north, double heading) const;

private:
    using TVector = std::array<double, 3>;

    /// East and north of a place, as vectors from the centre of the Earth. The axes point to longitude 0, to 90 degrees
    /// east, and to the north pole.
    struct tagDirections
    {
        TVector east;
        TVector north;
    };

    static tagDirections DirectionsAt(double latitude, double longitude);
    TVector Along(double east, double north) const;

    TVector m_Origin; ///< metres from the centre of the Earth
    tagDirections m_Directions;
};
