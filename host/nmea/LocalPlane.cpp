#include "nmea/LocalPlane.h"

#include <cmath>

namespace {

const double Pi = std::acos(-1.0);
const double DegreesPerRadian = 180 / Pi;

// WGS84
const double SemiMajorAxis = 6378137.0; // metres
const double Flattening = 1 / 298.257223563;
const double SemiMinorAxis = SemiMajorAxis * (1 - Flattening);
const double Eccentricity2 = Flattening * (2 - Flattening);
const double SecondEccentricity2 = Eccentricity2 / (1 - Eccentricity2);

double Cube(double value) { return value * value * value; }

double Dot(const std::array<double, 3>& a, const std::array<double, 3>& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

} // namespace

TLocalPlane::TLocalPlane(double latitude, double longitude)
{
    const double phi = latitude / DegreesPerRadian;
    const double lambda = longitude / DegreesPerRadian;
    m_Origin = Surface(phi, lambda);
    m_Directions = DirectionsAt(phi, lambda);
    m_Up = Upwards(phi, lambda);
}

TLocalPlane::TVector TLocalPlane::Surface(double latitude, double longitude)
{
    const double normal = SemiMajorAxis / std::sqrt(1 - Eccentricity2 * std::sin(latitude) * std::sin(latitude));
    return {normal * std::cos(latitude) * std::cos(longitude), normal * std::cos(latitude) * std::sin(longitude),
            normal * (1 - Eccentricity2) * std::sin(latitude)};
}

TLocalPlane::TVector TLocalPlane::Upwards(double latitude, double longitude)
{
    return {std::cos(latitude) * std::cos(longitude), std::cos(latitude) * std::sin(longitude), std::sin(latitude)};
}

TLocalPlane::tagDirections TLocalPlane::DirectionsAt(double latitude, double longitude)
{
    return {{-std::sin(longitude), std::cos(longitude), 0},
            {-std::sin(latitude) * std::cos(longitude), -std::sin(latitude) * std::sin(longitude), std::cos(latitude)}};
}

TLocalPlane::TVector TLocalPlane::Along(double east, double north) const
{
    TVector result;
    for (std::size_t axis = 0; axis < result.size(); ++axis)
        result[axis] = east * m_Directions.east[axis] + north * m_Directions.north[axis];
    return result;
}

tagPlanePoint TLocalPlane::ToPlane(double latitude, double longitude) const
{
    const double phi = latitude / DegreesPerRadian;
    const double lambda = longitude / DegreesPerRadian;
    const TVector place = Surface(phi, lambda);
    const TVector up = Upwards(phi, lambda);
    TVector offset = {place[0] - m_Origin[0], place[1] - m_Origin[1], place[2] - m_Origin[2]};
    // Not straight down on the plane but along the place's own vertical, on which ToGround() comes back.
    const double height = -Dot(offset, m_Up) / Dot(up, m_Up);
    for (std::size_t axis = 0; axis < offset.size(); ++axis)
        offset[axis] += height * up[axis];
    return {Dot(offset, m_Directions.east), Dot(offset, m_Directions.north)};
}

tagGroundPose TLocalPlane::ToGround(double east, double north, double heading) const
{
    const TVector offset = Along(east, north);
    const double x = m_Origin[0] + offset[0];
    const double y = m_Origin[1] + offset[1];
    const double z = m_Origin[2] + offset[2];

    // Bowring's formula. Its error near the ground is far below a millimetre.
    const double distance = std::hypot(x, y); // from the axis
    const double reduced = std::atan2(z * SemiMajorAxis, distance * SemiMinorAxis);
    const double latitude = std::atan2(z + SecondEccentricity2 * SemiMinorAxis * Cube(std::sin(reduced)),
                                       distance - Eccentricity2 * SemiMajorAxis * Cube(std::cos(reduced)));
    const double longitude = std::atan2(y, x);

    const TVector course = Along(std::sin(heading), std::cos(heading));
    const tagDirections there = DirectionsAt(latitude, longitude);
    const double degrees = std::atan2(Dot(course, there.east), Dot(course, there.north)) * DegreesPerRadian;
    return {latitude * DegreesPerRadian, longitude * DegreesPerRadian, degrees < 0 ? degrees + 360 : degrees};
}
