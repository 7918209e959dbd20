#include "display/bench/BenchDrive.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

constexpr double PassMetres = 600;
constexpr double Width = 12;
constexpr double Overlap = 0.1; // on each side
constexpr double Behind = 6;
constexpr double MetresPerFix = 12 / 3.6 / BenchDrive::FixesPerSecond;
constexpr double TurnMetres = M_PI * Width / 2;
constexpr double SwayMetres = 0.06;
constexpr double SwayLength = 35;
constexpr int Passes = 210; // of ten hours and a little more

struct tagPose
{
    QPointF place;
    double heading; ///< degrees
    int pass;
    bool isDown;
};

tagPose PoseAt(int fix)
{
    const double travelled = fix * MetresPerFix;
    const int pass = int(travelled / (PassMetres + TurnMetres));
    const double along = travelled - pass * (PassMetres + TurnMetres);
    const bool isNorthward = pass % 2 == 0;
    const double sway = SwayMetres * std::sin(along / SwayLength * 2 * M_PI);
    if (along <= PassMetres) {
        const double slope = SwayMetres * 2 * M_PI / SwayLength * std::cos(along / SwayLength * 2 * M_PI);
        const double turned = qRadiansToDegrees(std::atan(slope));
        return {QPointF(pass * Width + sway, isNorthward ? along : PassMetres - along),
                isNorthward ? turned : 180 - turned, pass, true};
    }
    const double angle = (along - PassMetres) / (Width / 2);
    const QPointF centre(pass * Width + Width / 2, isNorthward ? PassMetres : 0);
    const double up = isNorthward ? 1 : -1;
    return {centre + Width / 2 * QPointF(-std::cos(angle), up * std::sin(angle)),
            isNorthward ? qRadiansToDegrees(angle) : 180 - qRadiansToDegrees(angle), pass, false};
}

tagMapStrip::tagPlace ImplementEnd(const tagPose& pose, double side)
{
    const double angle = qDegreesToRadians(pose.heading);
    const QPointF ahead(std::sin(angle), std::cos(angle));
    const QPointF right(ahead.y(), -ahead.x());
    const QPointF end = pose.place - Behind * ahead + side * (Width / 2 + Overlap) * right;
    return {float(end.x()), float(end.y())};
}

/// As boundaries are recorded: a point every few metres.
QPolygonF Ring(const QPointF& centre, double radius, int points)
{
    QPolygonF ring;
    for (int point = 0; point < points; ++point) {
        const double angle = 2 * M_PI * point / points;
        ring << centre + radius * (1 + 0.1 * std::sin(3 * angle)) * QPointF(std::cos(angle), std::sin(angle));
    }
    return ring;
}

QPolygonF RecordedBoundary()
{
    constexpr double Step = 10;
    constexpr double South = -20;
    const double east = Passes * Width;
    const double north = PassMetres + 20;
    const int across = static_cast<int>(std::ceil((east + Width) / Step));
    const int along = static_cast<int>(std::ceil((north - South) / Step));
    const auto southOrNorth = [](double x, double y, double bend) { return QPointF(x, y + std::sin(x / bend)); };
    QPolygonF boundary;
    for (int point = 0; point < across; ++point)
        boundary << southOrNorth(-Width + point * Step, South, 40);
    for (int point = 0; point < along; ++point) {
        const double y = South + point * Step;
        boundary << QPointF(east + std::sin(y / 30), y);
    }
    for (int point = 0; point < across; ++point)
        boundary << southOrNorth(east - point * Step, north, 50);
    return boundary;
}

} // namespace

void LayOutBenchField(TMapModel& model)
{
    model.SetAreas({{MAP_AREA_EXTERNAL_BOUNDARY, RecordedBoundary()},
                    {MAP_AREA_INTERNAL_BOUNDARY, Ring({180, 420}, 25, 60)},
                    {MAP_AREA_INACTIVE_BOUNDARY, Ring({-320, 300}, 280, 200)},
                    {MAP_AREA_EXCLUSION_ZONE, Ring({300, 330}, 30, 60)},
                    {MAP_AREA_EXCLUSION_ZONE, Ring({2450, 330}, 30, 60)}});
    model.SetFlags({{150, 200}, {260, 350}, {2440, 300}});
}

void DriveBenchField(TMapModel& model, int first, int last)
{
    QVector<tagMapStrip> strips;
    if (first == 0)
        strips.reserve(last);
    for (int fix = std::max(first, 1); fix < last; ++fix) {
        const tagPose before = PoseAt(fix - 1);
        const tagPose after = PoseAt(fix);
        if (!before.isDown || !after.isDown)
            continue;
        const tagMapStrip strip = {
            {ImplementEnd(before, -1), ImplementEnd(before, 1), ImplementEnd(after, 1), ImplementEnd(after, -1)}};
        if (first == 0)
            strips.append(strip);
        else
            model.AddStrip(strip);
    }
    if (first == 0)
        model.SetStrips(strips);

    const tagPose pose = PoseAt(last - 1);
    const tagMapGuidance* line = model.Guidance();
    if (line == nullptr || line->activeLine != pose.pass)
        model.SetGuidance({{0, 0}, {0, PassMetres}, Width, pose.pass, true});
    model.SetVehicle({pose.place, pose.heading, Width, Behind, pose.isDown});
}
