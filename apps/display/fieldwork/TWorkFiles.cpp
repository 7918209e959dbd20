// What TWork reads and writes.

#include "display/fieldwork/TWork.h"

#include "guidance/FlagPoints.h"
#include "module/CabQuick.h"
#include "system/TSystemSettingsProxy.h"
#include "texts/HostText.h"

#include <QFileInfo>
#include <QMetaObject>
#include <QPolygonF>

#include <limits>
#include <utility>

namespace {

const int NoticeMs = 60000;

const QLatin1String CoverageKey("coverage");
const QLatin1String CoverageEndKey("coverage-end");
const QLatin1String EarlyKey("coverage-early");
const QLatin1String FieldKey("field-files");
const QLatin1String FlagsKey("flags");
const QLatin1String ImplementKey("implement");
const QLatin1String LineKey("line");

QPointF OnPlane(const TLocalPlane& plane, const tagGeoPoint& point)
{
    const tagPlanePoint place = plane.ToPlane(point.latitude, point.longitude);
    return QPointF(place.east, place.north);
}

tagMapArea Area(const TLocalPlane& plane, EMapArea kind, const TGeoRing& ring)
{
    tagMapArea area = {kind, QPolygonF()};
    area.outline.reserve(static_cast<int>(ring.size()));
    for (const tagGeoPoint& corner : ring)
        area.outline.append(OnPlane(plane, corner));
    return area;
}

} // namespace

void TWork::FollowSelections()
{
    if (m_IsSelecting)
        return;
    if (TSystemSettingsProxy().GetActiveImplementPath() != m_ImplementPath)
        LoadImplement();
    const tagJobPlaces places = ActivePlaces();
    tagJobPlaces samePlaces = m_Places;
    samePlaces.line = places.line;
    const bool isSameJob = places == samePlaces && m_Job;
    if (places == m_Places)
        return;
    m_Places = places;
    if (isSameJob)
        LoadLine();
    else
        Load();
}

QString TWork::GroundIsNotStored()
{
    return tr("The coverage of this job cannot be used: what is covered is not stored.");
}

/// Reads the job in the thread of the disk, after the one before it is written and closed: it may be the same file.
void TWork::Load()
{
    const std::shared_ptr<tagJob> before = m_Latest;
    const auto job = std::make_shared<tagJob>();
    const tagJobPlaces places = m_Places;
    m_Latest = job;
    m_Job.reset();
    BreakStrip();
    const auto early = std::make_shared<const TEarlyFixes>(std::move(m_EarlyFixes));
    m_EarlyFixes.clear();
    m_Disk.start([this, before, job, places, early] {
        if (before) {
            // It was chosen, but never there.
            if (!StoreEarlyFixes(*early, before.get()))
                CabQuick::SetProblem(EarlyKey, GroundIsNotStored());
            before->coverage.reset();
            before->later.reset();
        }
        LoadJob(places, job.get());
        QMetaObject::invokeMethod(
            this,
            [this, job] {
                QTimer::singleShot(NoticeMs, this, [] { CabQuick::ClearProblem(EarlyKey); });
                if (job == m_Latest)
                    TakeJob(job);
            },
            Qt::QueuedConnection);
    });
    emit loadingChanged();
    emit jobChanged();
}

void TWork::TakeJob(const std::shared_ptr<tagJob>& job)
{
    m_Job = job;
    m_FieldArea = job->boundary ? BoundaryArea(*job->boundary) : std::numeric_limits<double>::quiet_NaN();
    m_Map.SetStrips(job->strips);
    job->strips = QVector<tagMapStrip>(); // else the map would have to copy them at the next strip
    m_Guidance.SetLine(job->line);
    m_Plane.reset();
    m_Strips.Break();
    m_Offset.reset();
    if (job->origin)
        TakePlane(*job->origin);
    else if (!m_EarlyFixes.empty())
        TakePlane(m_EarlyFixes.front().place);
    else if (m_HasPosition)
        TakePlane(Here());
    else
        ShowAreas();
    if (!m_EarlyFixes.empty())
        CoverEarlyFixes();
    TellProblems(*job);
    CheckCoverage();
    emit loadingChanged();
    emit guidanceChanged();
    emit moved();
    TellFigures();
}

bool TWork::IsCoverageHeld() const { return m_Job && !m_Job->heldCoverage.isEmpty(); }

void TWork::TryHeldCoverage()
{
    if (!IsCoverageHeld() || m_IsTrying)
        return;
    m_IsTrying = true;
    m_Disk.start([this, job = m_Job] {
        LoadHeldCoverage(job.get());
        QMetaObject::invokeMethod(
            this,
            [this, job] {
                m_IsTrying = false;
                if (job == m_Job && job->later)
                    TakeHeldCoverage();
            },
            Qt::QueuedConnection);
    });
}

/// The other program has let the file go: what is in it and what was covered meanwhile are put together, on the plane
/// of the file.
void TWork::TakeHeldCoverage()
{
    const std::unique_ptr<tagJob> found = std::move(m_Job->later);
    m_Job->heldCoverage.clear();
    m_Job->coverage = std::move(found->coverage);
    m_Job->tally = std::move(found->tally);
    m_Job->lostBytes = found->lostBytes;
    m_Job->lostStrips = found->lostStrips;
    m_Job->errors += found->errors;
    m_Map.SetStrips(found->strips);
    m_Strips.Break();
    if (found->origin)
        TakePlane(*found->origin);
    if (!m_EarlyFixes.empty())
        CoverEarlyFixes();
    TellProblems(*m_Job);
    CheckCoverage();
    emit moved();
    TellFigures();
}

void TWork::TellProblems(const tagJob& job)
{
    if (job.errors.isEmpty())
        CabQuick::ClearProblem(FieldKey);
    else
        CabQuick::SetProblem(FieldKey,
                             tr("A file of this job cannot be used. %1").arg(CabQuick::HostText(job.errors.first())));
    if (job.lostBytes == 0)
        return;
    CabQuick::SetProblem(
        CoverageEndKey,
        tr("Coverage was not complete and was left out: strips %1, bytes %2").arg(job.lostStrips).arg(job.lostBytes));
    QTimer::singleShot(NoticeMs, this, [] { CabQuick::ClearProblem(CoverageEndKey); });
}

void TWork::TakePlane(const tagGeoPoint& origin)
{
    m_Origin = origin;
    m_Plane.emplace(origin.latitude, origin.longitude);
    m_Guidance.Follow(*m_Plane);
    ShowAreas();
    ShowFlags();
    if (m_HasPosition) {
        m_Pose = {m_Plane->ToPlane(Latitude(), Longitude()), m_Heading};
        ShowVehicle();
    }
    ShowGuidance();
}

void TWork::ShowAreas()
{
    QVector<tagMapArea> areas;
    if (m_Plane) {
        for (const tagBoundary& neighbour : m_Job->neighbours)
            areas.append(Area(*m_Plane, MAP_AREA_INACTIVE_BOUNDARY, neighbour.external));
        for (const TGeoRing& zone : m_Job->zones)
            areas.append(Area(*m_Plane, MAP_AREA_EXCLUSION_ZONE, zone));
        if (m_Job->boundary) {
            for (const TGeoRing& ring : m_Job->boundary->internals)
                areas.append(Area(*m_Plane, MAP_AREA_INTERNAL_BOUNDARY, ring));
            areas.append(Area(*m_Plane, MAP_AREA_EXTERNAL_BOUNDARY, m_Job->boundary->external));
        }
    }
    m_Map.SetAreas(areas);
}

void TWork::ShowFlags()
{
    QVector<QPointF> flags;
    for (const tagGeoPoint& flag : m_Job->flags)
        flags.append(OnPlane(*m_Plane, flag));
    m_Map.SetFlags(flags);
}

void TWork::SaveFlags()
{
    if (!m_Job->areFlagsGood) {
        CabQuick::SetProblem(FlagsKey, tr("The file of the flags is damaged; new flags are not stored."));
        return;
    }
    const QString path = m_Places.flags;
    const std::vector<tagGeoPoint> flags = m_Job->flags;
    Save(FlagsKey, [path, flags](QString* error) { return WriteFlagPoints(path, flags, error); });
}

/// Writes in the thread of the disk. What fails is one of the display's problems until it succeeds.
void TWork::Save(const QString& problemKey, const std::function<bool(QString*)>& write)
{
    m_Disk.start([problemKey, write] {
        QString error;
        if (write(&error))
            CabQuick::ClearProblem(problemKey);
        else
            CabQuick::SetProblem(problemKey, tr("A file could not be stored. %1").arg(CabQuick::HostText(error)));
    });
}

void TWork::LoadImplement()
{
    m_Disk.waitForDone(); // it may be about to be written
    m_ImplementPath = TSystemSettingsProxy().GetActiveImplementPath();
    QString error;
    m_Strips.SetImplement(ReadImplement(m_ImplementPath, &error).value_or(tagImplement()));
    if (error.isEmpty())
        CabQuick::ClearProblem(ImplementKey);
    else
        CabQuick::SetProblem(ImplementKey,
                             tr("The file of the implement cannot be used. %1").arg(CabQuick::HostText(error)));
    ShowGuidance();
    ShowVehicle();
    emit implementChanged();
}

void TWork::SetImplement(const tagImplement& implement)
{
    const tagImplement& before = m_Strips.Implement();
    const bool isSame = implement.width == before.width && implement.behind == before.behind;
    if (isSame || !CheckImplement(implement).isEmpty())
        return;
    m_Strips.SetImplement(implement);
    const QString path = m_ImplementPath;
    Save(ImplementKey, [path, implement](QString* error) { return WriteImplement(path, implement, error); });
    ShowGuidance();
    ShowVehicle();
    emit implementChanged();
    emit moved();
    TellFigures();
}

void TWork::SetImplementWidth(double width)
{
    tagImplement implement = m_Strips.Implement();
    implement.width = width;
    SetImplement(implement);
}

void TWork::SetImplementBehind(double behind)
{
    tagImplement implement = m_Strips.Implement();
    implement.behind = behind;
    SetImplement(implement);
}

/// The job that is being read brings its own line: what is asked for now would be lost, or saved in another field.
QString TWork::LoadingProblem() const { return m_Job ? QString() : tr("The job is still being read."); }

/// Empty, or why the line cannot be selected.
QString TWork::SelectLine(const QString& name)
{
    m_IsSelecting = true;
    m_Selections->setProperty("abLine", name);
    m_IsSelecting = false;
    m_Places.line = ActiveLinePath();
    return m_Selections->property("error").toString();
}

/// The active name when it has no line yet; else a default name, which depends on the minute.
QString TWork::FreeLineName()
{
    m_Disk.waitForDone(); // a line may be about to be written
    const TSystemSettingsProxy system;
    QString active = system.GetActiveABLine();
    if (!active.isEmpty() && !QFileInfo::exists(ActiveLinePath()))
        return active;
    QStringList names;
    QMetaObject::invokeMethod(m_Selections, "list", Q_RETURN_ARG(QStringList, names),
                              Q_ARG(QString, QLatin1String("abLine")));
    const QString first = system.GetDefaultABLineName();
    QString name = first;
    for (int i = 2; names.contains(name); ++i)
        name = first + QLatin1Char('_') + QString::number(i);
    return name;
}

QString TWork::saveLine(const QString& name)
{
    QString problem = LoadingProblem();
    if (!problem.isEmpty())
        return problem;
    if (!HasLine())
        return tr("There is no line.");
    if (name.isEmpty())
        return tr("The line has no name.");
    problem = SelectLine(name);
    if (!problem.isEmpty())
        return problem;
    const QString path = m_Places.line;
    const tagGuidanceLine line = *m_Guidance.Line();
    Save(LineKey, [path, line](QString* error) { return WriteGuidanceLine(path, line, error); });
    return QString();
}

QString TWork::loadLine(const QString& name)
{
    QString problem = LoadingProblem();
    if (!problem.isEmpty())
        return problem;
    problem = SelectLine(name);
    if (problem.isEmpty())
        LoadLine();
    return problem;
}

QString TWork::renameLine(const QString& name, const QString& newName)
{
    QString problem = LoadingProblem();
    if (!problem.isEmpty())
        return problem;
    m_Disk.waitForDone(); // it may be about to be written
    m_IsSelecting = true;
    QMetaObject::invokeMethod(m_Selections, "renameLine", Q_RETURN_ARG(QString, problem), Q_ARG(QString, name),
                              Q_ARG(QString, newName));
    m_IsSelecting = false;
    m_Places.line = ActiveLinePath();
    return problem;
}

void TWork::LoadLine()
{
    m_Disk.waitForDone(); // it may be about to be written
    QString error;
    m_Guidance.SetLine(m_Places.line.isEmpty() ? std::nullopt : ReadGuidanceLine(m_Places.line, &error));
    if (error.isEmpty())
        CabQuick::ClearProblem(LineKey);
    else
        CabQuick::SetProblem(LineKey, tr("The guidance line cannot be used. %1").arg(CabQuick::HostText(error)));
    ShowGuidance();
    emit guidanceChanged();
    emit moved();
}

QString TWork::JobText() const
{
    const QString job = TSystemSettingsProxy().GetActiveJob();
    return m_Places.coverage.isEmpty() ? tr("No job is chosen") : job;
}

QString TWork::CoverageProblem() const
{
    if (!m_Job)
        return QString();
    if (m_IsWorking && m_Places.coverage.isEmpty())
        return tr("No job is chosen: what is covered is not stored.");
    if (m_Places.coverage.isEmpty())
        return QString();
    if (IsCoverageHeld())
        return tr("The coverage is kept in memory until it can be stored. %1")
            .arg(CabQuick::HostText(m_Job->holdReason));
    if (!m_Job->coverage)
        return m_IsWorking ? GroundIsNotStored() : QString();
    const tagCoverageState state = m_Job->coverage->State();
    if (state.lost > 0)
        return tr("The coverage cannot be stored, and strips are lost: %1").arg(state.lost);
    return state.problem.isEmpty()
               ? QString()
               : tr("The coverage is kept in memory until it can be stored. %1").arg(CabQuick::HostText(state.problem));
}

void TWork::CheckCoverage()
{
    const QString problem = CoverageProblem();
    if (problem == m_CoverageProblem)
        return;
    m_CoverageProblem = problem;
    if (problem.isEmpty())
        CabQuick::ClearProblem(CoverageKey);
    else
        CabQuick::SetProblem(CoverageKey, problem);
}
