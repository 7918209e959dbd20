#pragma once

#include <array>

/// A place on the WGS84 ellipsoid and a direction there, in degrees; the course is 0 to 360 from true north.
struct tagGroundPose
{
    double latitude;
    double longitude;
    double course;
};

/// The plane that touches the WGS84 ellipsoid at one place, and the way back down from it. True to 1 in 100 000 within
/// 25 km, at every latitude, and across the antimeridian.
class TLocalPlane
{
public:
    /// @param latitude, longitude of the place, in degrees.
    TLocalPlane(double latitude, double longitude);

    /// @param east, north in metres on the plane.
    /// @param heading in radians from the plane's north, which leaves true north as the meridians close in.
    tagGroundPose ToGround(double east, double north, double heading) const;

private:
    using TVector = std::array<double, 3>;

    /// The directions of a place in space; the axes go to longitude 0, to 90 degrees east, and to the pole.
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
