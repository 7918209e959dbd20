#include "display/fieldwork/TWork.h"

#include "module/CabQuick.h"
#include "receiver/TReceiver.h"

#include <QtQml>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

const double NaN = std::numeric_limits<double>::quiet_NaN();
const double SquareMetresPerHectare = 10000;
const double SecondsPerHour = 3600;
const double MillisecondsPerSecond = 1000;
const int FigureMs = 500;
const int CheckMs = 1000;
constexpr tagApplication NoController = {
    std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::quiet_NaN(),
    std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::quiet_NaN(),
    std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::quiet_NaN()};
constexpr const char* Name = "Work";

QObject* SelectionsOf(QQmlEngine& engine)
{
    return engine.singletonInstance<QObject*>(qmlTypeId("CabSettings", 1, 0, "Selections"));
}

} // namespace

TWork::TWork(QObject* selections, QObject* parent)
    : QObject(parent)
    , m_Selections(selections)
    , m_Receiver(CabQuick::Receiver())
    , m_FieldArea(NaN)
    , m_Application(NoController)
    , m_Heading(NaN)
{
    m_Disk.setMaxThreadCount(1);
    m_FigureTimer.setSingleShot(true);
    m_FigureTimer.setInterval(FigureMs);
    connect(&m_FigureTimer, &QTimer::timeout, this, [this] {
        if (m_HasNewFigures)
            TellFigures();
    });
    m_CheckTimer.setInterval(CheckMs);
    connect(&m_CheckTimer, &QTimer::timeout, this, [this] {
        TryHeldCoverage();
        CheckCoverage();
    });
    m_CheckTimer.start();
    connect(&m_Receiver, &TReceiver::positionChanged, this, &TWork::TakePosition);
    connect(&m_Receiver, &TReceiver::fixChanged, this, &TWork::TakeFix);
    connect(m_Selections, SIGNAL(changed()), this, SLOT(FollowSelections()));
    LoadImplement();
    m_Places = ActivePlaces();
    Load();
}

TWork::~TWork()
{
    m_Disk.waitForDone();
    if (!m_Job || IsCoverageHeld())
        if (!StoreEarlyFixes(m_EarlyFixes, m_Latest.get()))
            qWarning("%s", qPrintable(GroundIsNotStored()));
}

bool TWork::Flush() { return m_Job && m_Job->coverage && m_Job->coverage->Flush(); }

void TWork::Register(const char* module, int major, int minor)
{
    qmlRegisterSingletonType<TWork>(module, major, minor, Name, [](QQmlEngine* engine, QJSEngine*) -> QObject* {
        return new TWork(SelectionsOf(*engine));
    });
}

TWork* TWork::Of(QQmlEngine& engine) { return engine.singletonInstance<TWork*>(qmlTypeId("CabDisplay", 1, 0, Name)); }

void TWork::SetWorking(bool isWorking)
{
    if (isWorking == m_IsWorking)
        return;
    m_IsWorking = isWorking;
    BreakStrip();
    if (m_HasPosition)
        ShowVehicle();
    emit workingChanged();
    CheckCoverage();
    TellFigures();
}

tagGeoPoint TWork::Here() const { return {m_Receiver.Latitude(), m_Receiver.Longitude()}; }

void TWork::TakePosition()
{
    const TNmeaReceiver::tagStatus& status = m_Receiver.Status();
    if (!status.hasFix || !IsGeoPoint(Here())) {
        TakeFix();
        return;
    }
    if (!m_Plane && m_Job)
        TakePlane(Here());
    const double seconds = m_Utc.isValid() ? static_cast<double>(m_Utc.msecsTo(status.utc)) / MillisecondsPerSecond : 0;
    m_Utc = status.utc;
    m_Heading = HeadingAfter(m_HasPosition ? m_Heading : NaN, status.course);
    if (!m_HasPosition) {
        m_HasPosition = true;
        emit hasPositionChanged();
    }
    m_Application = m_Receiver.Address() == QLatin1String("simulator")
                        ? m_Controller.Advance(seconds, status.speed, ImplementWidth(), m_IsWorking)
                        : NoController;
    if (!m_Job || IsCoverageHeld())
        KeepFix();
    if (m_Plane) {
        m_Pose = {m_Plane->ToPlane(status.latitude, status.longitude), m_Heading};
        if (const auto strip = m_Strips.MoveTo(m_Pose, status.utc, m_IsWorking && m_Job))
            Cover(*strip);
        ShowGuidance();
        ShowVehicle();
    }
    emit moved();
    m_HasNewFigures = true;
    if (!m_FigureTimer.isActive())
        TellFigures();
}

/// The fix is there or lost: without one nothing is covered, and nobody is led.
void TWork::TakeFix()
{
    if (m_Receiver.HasFix() || !m_HasPosition)
        return;
    m_HasPosition = false;
    BreakStrip();
    m_Offset.reset();
    m_Application = NoController;
    m_Map.ClearVehicle();
    emit hasPositionChanged();
    emit moved();
    TellFigures();
}

/// The next strip is not joined to the last.
void TWork::BreakStrip()
{
    m_Strips.Break();
    m_IsBroken = true;
}

/// The job's coverage decides on which plane the ground is covered, and is not there yet.
void TWork::KeepFix()
{
    if (!m_IsWorking || std::isnan(m_Heading)) {
        m_IsBroken = true;
        return;
    }
    m_EarlyFixes.push_back({Here(), m_Heading, m_Utc, m_Strips.Implement(), !m_IsBroken});
    m_IsBroken = false;
}

/// Covers what was driven while the job was loaded. The strip goes on with the next position. While the coverage is
/// held, this is for the map alone, and the fixes are kept.
void TWork::CoverEarlyFixes()
{
    for (const tagCoverageStrip& strip : StripsOf(m_EarlyFixes, *m_Plane, &m_Strips))
        Cover(strip);
    if (!IsCoverageHeld())
        m_EarlyFixes.clear();
    if (m_IsBroken)
        m_Strips.Break();
}

void TWork::Cover(const tagCoverageStrip& strip)
{
    if (m_Job->coverage) {
        m_Job->coverage->SetOrigin(m_Origin); // only the first one counts
        m_Job->coverage->Add(strip);
    }
    m_Job->tally->Add(strip);
    m_Map.AddStrip(MapStrip(strip));
}

void TWork::ShowVehicle()
{
    if (!m_Plane)
        return;
    m_Map.SetVehicle({QPointF(m_Pose.place.east, m_Pose.place.north), std::isnan(m_Heading) ? 0 : m_Heading,
                      ImplementWidth(), ImplementBehind(), m_IsWorking});
}

void TWork::ShowGuidance()
{
    m_Offset = m_HasPosition ? m_Guidance.Offset(m_Pose.place, ImplementWidth(), m_Heading) : std::nullopt;
    const auto guidance = m_Guidance.OnMap(ImplementWidth(), LineNumber());
    const tagMapGuidance* const shown = m_Map.Guidance();
    if (!guidance && shown)
        m_Map.ClearGuidance();
    const bool isShown = guidance && shown && shown->a == guidance->a && shown->b == guidance->b &&
                         shown->spacing == guidance->spacing && shown->activeLine == guidance->activeLine &&
                         shown->isLine == guidance->isLine;
    if (guidance && !isShown)
        m_Map.SetGuidance(*guidance);
}

void TWork::TellFigures()
{
    m_HasNewFigures = false;
    m_FigureTimer.start();
    emit figuresChanged();
}

double TWork::OffLine() const { return m_Offset ? m_Offset->distance : NaN; }
int TWork::LineNumber() const { return m_Offset ? m_Offset->line : 0; }
double TWork::Speed() const { return m_Receiver.Speed(); }
double TWork::Latitude() const { return m_Receiver.Latitude(); }
double TWork::Longitude() const { return m_Receiver.Longitude(); }
double TWork::Distance() const { return m_Job ? m_Job->tally->Distance() : 0; }
double TWork::AreaDone() const { return m_Job ? m_Job->tally->Area() / SquareMetresPerHectare : 0; }
double TWork::AreaLeft() const
{
    return std::isnan(m_FieldArea) ? NaN : std::max(m_FieldArea / SquareMetresPerHectare - AreaDone(), 0.0);
}

double TWork::Productivity() const
{
    const bool isMoving = m_IsWorking && m_HasPosition && m_Receiver.Speed() > 0; // false for NaN
    return isMoving ? m_Receiver.Speed() * ImplementWidth() * SecondsPerHour / SquareMetresPerHectare : 0;
}

bool TWork::setA()
{
    if (!m_HasPosition || !m_Job)
        return false;
    m_Guidance.SetA(Here());
    ShowGuidance();
    emit guidanceChanged();
    emit moved();
    return true;
}

bool TWork::setB()
{
    if (!m_HasPosition || !m_Job || !m_Guidance.SetB(Here()))
        return false;
    ShowGuidance();
    emit guidanceChanged();
    emit moved();
    const QString problem = saveLine(FreeLineName());
    if (!problem.isEmpty())
        CabQuick::SetProblem(QLatin1String("line"), problem);
    return true;
}

QString TWork::clearLine()
{
    QString problem = LoadingProblem();
    if (!problem.isEmpty())
        return problem;
    m_Guidance.Clear();
    ShowGuidance();
    emit guidanceChanged();
    emit moved();
    return QString();
}

bool TWork::mark()
{
    if (!m_HasPosition || !m_Job || !m_Plane)
        return false;
    m_Job->flags.push_back(Here());
    QVector<QPointF> flags = m_Map.Flags();
    flags.append(QPointF(m_Pose.place.east, m_Pose.place.north));
    m_Map.SetFlags(flags);
    SaveFlags();
    return true;
}

QString TWork::checkWidth(double width) const
{
    tagImplement implement = m_Strips.Implement();
    implement.width = width;
    return CheckImplement(implement).isEmpty() ? QString() : tr("An implement cannot have this width.");
}
