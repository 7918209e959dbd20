#pragma once

#include "HostExport.h"

#include <array>

/// A place on the WGS84 ellipsoid and a direction there.
struct tagGroundPose
{
    double latitude;  ///< degrees, north positive
    double longitude; ///< degrees, east positive
    double course;    ///< degrees from true north, 0 to 360
};

/// A place on a local plane, in metres from the place where the plane touches the ground.
struct tagPlanePoint
{
    double east;
    double north;
};

/// The plane that touches the WGS84 ellipsoid at one place. Brings points of the plane to the ellipsoid and back.
/// Distances are exact to 1 in 100 000 within 25 km, at every latitude and across the antimeridian. May be used from
/// any thread.
///
/// @code
/// const TLocalPlane plane(first.latitude, first.longitude);
/// const tagPlanePoint place = plane.ToPlane(status.latitude, status.longitude);
/// map.MoveTo(place.east, place.north);
/// @endcode
class CABHOST_EXPORT TLocalPlane
{
public:
    /// @param latitude, longitude of the place, in degrees.
    TLocalPlane(double latitude, double longitude);

    /// The inverse of ToGround(): the point of the plane that lies above the place. Exact to a micrometre within 100
    /// km.
    /// @param latitude, longitude in degrees, on this side of the Earth.
    tagPlanePoint ToPlane(double latitude, double longitude) const;

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

    static TVector Surface(double latitude, double longitude);
    static TVector Upwards(double latitude, double longitude);
    static tagDirections DirectionsAt(double latitude, double longitude);
    TVector Along(double east, double north) const;

    TVector m_Origin; ///< metres from the centre of the Earth
    tagDirections m_Directions;
    TVector m_Up; ///< away from the Earth
};
