#include "display/fieldwork/DemoField.h"

#include "boundaries/Boundary.h"
#include "boundaries/ExclusionZones.h"
#include "guidance/GuidanceLine.h"
#include "nmea/LocalPlane.h"
#include "receiver/SimulatedField.h"
#include "system/TSystemSettingsProxy.h"

#include <QDir>
#include <QFileInfo>
#include <QtQml>

#include <cmath>

namespace {

const char* const Neighbour = "F2";

/// Metres along the first pass, and to its right.
struct tagSpot
{
    double along;
    double right;
};

// Around passes of 400 m that cover 432 m to the right of the first. The drive turns outside, on the headland.
const std::vector<tagSpot> Outline = {{-24, -6}, {-30, 210}, {-22, 426}, {180, 438}, {412, 431}, {424, 220}, {415, -6}};
const std::vector<tagSpot> Pond = {{250, 92}, {262, 108}, {256, 131}, {232, 140}, {214, 122}, {222, 98}};
const std::vector<tagSpot> Zone = {{120, 232}, {168, 226}, {182, 262}, {146, 291}, {112, 270}};
const std::vector<tagSpot> FieldBeside = {{-10, 446}, {190, 456}, {405, 449}, {390, 640}, {20, 652}};

/// Brings spots to the ground.
class TGround
{
public:
    TGround()
        : m_Plan(CabQuick::SimulatedPlan())
        , m_Plane(m_Plan.latitude, m_Plan.longitude)
        , m_Heading(m_Plan.heading * std::acos(-1.0) / 180)
    {}

    tagGeoPoint Place(const tagSpot& spot) const
    {
        const double east = spot.along * std::sin(m_Heading) + spot.right * std::cos(m_Heading);
        const double north = spot.along * std::cos(m_Heading) - spot.right * std::sin(m_Heading);
        const tagGroundPose pose = m_Plane.ToGround(east, north, 0);
        return {pose.latitude, pose.longitude};
    }

    TGeoRing Ring(const std::vector<tagSpot>& spots) const
    {
        TGeoRing ring;
        for (const tagSpot& spot : spots)
            ring.push_back(Place(spot));
        return ring;
    }

    double PassLength() const { return m_Plan.passLength; }

private:
    const tagFieldPlan m_Plan;
    const TLocalPlane m_Plane;
    const double m_Heading;
};

QString Text(const char* text) { return QString::fromLatin1(text); }

bool Select(QObject& selections, const char* property, const char* name, QString* error)
{
    selections.setProperty(property, Text(name));
    *error = selections.property("error").toString();
    return error->isEmpty();
}

bool SelectJob(QObject& selections, QString* error)
{
    using namespace DemoField;
    return Select(selections, "client", Client, error) && Select(selections, "farm", Farm, error) &&
           Select(selections, "field", Field, error) && Select(selections, "job", Job, error) &&
           Select(selections, "boundary", Field, error) && Select(selections, "abLine", Line, error);
}

/// Whether a file is there, or has been written.
template <class Write>
bool Have(const QString& path, const Write& write)
{
    return QFileInfo::exists(path) || write(path);
}

} // namespace

bool MakeDemoField(QQmlEngine& engine, QString* error)
{
    using namespace DemoField;
    auto* const selections = engine.singletonInstance<QObject*>(qmlTypeId("CabSettings", 1, 0, "Selections"));
    if (!selections || !SelectJob(*selections, error))
        return false;

    const TGround ground;
    const TSystemSettingsProxy system;
    const auto boundary = [&](const QString& path) {
        return WriteBoundary(path, {ground.Ring(Outline), {ground.Ring(Pond)}}, error);
    };
    const auto neighbour = [&](const QString& path) {
        return WriteBoundary(path, {ground.Ring(FieldBeside), {}}, error);
    };
    const auto zones = [&](const QString& path) { return WriteExclusionZones(path, {ground.Ring(Zone)}, error); };
    const auto line = [&](const QString& path) {
        return WriteGuidanceLine(path, {ground.Place({0, 0}), ground.Place({ground.PassLength(), 0})}, error);
    };
    const QString jobFolder =
        QFileInfo(system.GetCoverageFilePath(Text(Client), Text(Farm), Text(Field), Text(Job))).path();
    if (!QDir().mkpath(jobFolder)) {
        *error = QString::fromLatin1("cannot make the folder %1").arg(jobFolder);
        return false;
    }
    return Have(system.GetBoundaryFilePath(Text(Client), Text(Farm), Text(Field)), boundary) &&
           Have(system.GetBoundaryFilePath(Text(Client), Text(Farm), Text(Neighbour)), neighbour) &&
           Have(system.GetExclusionZoneShapefilePath(Text(Client), Text(Farm), Text(Field)), zones) &&
           Have(system.GetActiveABLinePath(), line);
}
