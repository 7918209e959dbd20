#pragma once

#include "display/fieldwork/EarlyFixes.h"
#include "display/fieldwork/JobData.h"
#include "display/fieldwork/TGuidance.h"
#include "display/fieldwork/TSimulatedController.h"
#include "display/fieldwork/TStripMaker.h"

#include <QObject>
#include <QString>
#include <QThreadPool>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

class QQmlEngine;
class TReceiver;

/// The work on a field: takes the positions of the receiver, covers ground, follows the guidance line, and keeps the
/// map up to date. In QML it is the singleton Work of each engine.
///
/// @code
/// TWork* const work = TWork::Of(engine);
/// work->SetWorking(true);
/// QObject::connect(work, &TWork::moved, [work] { Show(work->OffLine()); });
/// @endcode
///
/// The job that is selected brings its coverage, its field's boundaries, zones and flags, and the line that is
/// selected; they are read by a thread. Ground that is covered until they are there is kept, and added to the job that
/// was selected when it was covered. So is ground that is covered while another program has the coverage's file open:
/// a thread tries about once a second to open it. What is written is written by threads too. moved() comes with every
/// position; figuresChanged() at most twice a second, so that texts can be read.
class TWork : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QObject* map READ Map CONSTANT)
    Q_PROPERTY(bool loading READ IsLoading NOTIFY loadingChanged)
    Q_PROPERTY(bool working READ IsWorking WRITE SetWorking NOTIFY workingChanged)
    Q_PROPERTY(double implementWidth READ ImplementWidth WRITE SetImplementWidth NOTIFY implementChanged)
    Q_PROPERTY(double implementBehind READ ImplementBehind WRITE SetImplementBehind NOTIFY implementChanged)
    Q_PROPERTY(double widthLeast READ WidthLeast CONSTANT)
    Q_PROPERTY(double widthGreatest READ WidthGreatest CONSTANT)
    Q_PROPERTY(double behindLeast READ BehindLeast CONSTANT)
    Q_PROPERTY(double behindGreatest READ BehindGreatest CONSTANT)
    Q_PROPERTY(bool hasPosition READ HasPosition NOTIFY hasPositionChanged)
    Q_PROPERTY(bool hasA READ HasA NOTIFY guidanceChanged)
    Q_PROPERTY(bool hasLine READ HasLine NOTIFY guidanceChanged)
    Q_PROPERTY(double offLine READ OffLine NOTIFY moved)
    Q_PROPERTY(int lineNumber READ LineNumber NOTIFY moved)
    Q_PROPERTY(double course READ Course NOTIFY moved)
    Q_PROPERTY(double speed READ Speed NOTIFY figuresChanged)
    Q_PROPERTY(double latitude READ Latitude NOTIFY figuresChanged)
    Q_PROPERTY(double longitude READ Longitude NOTIFY figuresChanged)
    Q_PROPERTY(double distance READ Distance NOTIFY figuresChanged)
    Q_PROPERTY(double areaDone READ AreaDone NOTIFY figuresChanged)
    Q_PROPERTY(double areaLeft READ AreaLeft NOTIFY figuresChanged)
    Q_PROPERTY(double productivity READ Productivity NOTIFY figuresChanged)
    Q_PROPERTY(double rate READ Rate NOTIFY figuresChanged)
    Q_PROPERTY(double rateSet READ RateSet NOTIFY figuresChanged)
    Q_PROPERTY(double rateError READ RateError NOTIFY figuresChanged)
    Q_PROPERTY(double flow READ Flow NOTIFY figuresChanged)
    Q_PROPERTY(double pressure READ Pressure NOTIFY figuresChanged)
    Q_PROPERTY(double temperature READ Temperature NOTIFY figuresChanged)
    Q_PROPERTY(QString jobText READ JobText NOTIFY jobChanged)

public:
    /// @param selections the object Selections of the module, whose changed() tells that something was selected.
    explicit TWork(QObject* selections, QObject* parent = nullptr);

    /// Waits until everything is on the disk, or has failed.
    ~TWork() override;

    /// Waits until the coverage is on the disk. Returns false when that has failed, or there is none.
    bool Flush();

    TWork(const TWork&) = delete;
    TWork& operator=(const TWork&) = delete;

    /// Makes "Work" known to QML; part of RegisterDisplayTypes().
    static void Register(const char* module, int major, int minor);

    /// The object of an engine, which destroys it. Null before RegisterDisplayTypes().
    static TWork* Of(QQmlEngine& engine);

    TMapModel* Map() { return &m_Map; }
    bool IsLoading() const { return m_Job == nullptr; }

    bool IsWorking() const { return m_IsWorking; }
    void SetWorking(bool isWorking);

    // The implement's file follows. A value out of range is not taken.
    double ImplementWidth() const { return m_Strips.Implement().width; }   ///< metres
    double ImplementBehind() const { return m_Strips.Implement().behind; } ///< metres
    void SetImplementWidth(double width);
    void SetImplementBehind(double behind);
    double WidthLeast() const { return ImplementRange::LeastWidth; }
    double WidthGreatest() const { return ImplementRange::GreatestWidth; }
    double BehindLeast() const { return ImplementRange::LeastBehind; }
    double BehindGreatest() const { return ImplementRange::GreatestBehind; }

    bool HasPosition() const { return m_HasPosition; } ///< false, too, when the fix is lost
    bool HasA() const { return m_Guidance.HasA(); }
    bool HasLine() const { return m_Guidance.Line().has_value(); }

    double
    OffLine() const; ///< metres; positive: the tractor is right of the nearest line; NaN without line or position
    int LineNumber() const;                     ///< of the nearest line; 0 without
    double Course() const { return m_Heading; } ///< degrees, where the front points to; NaN while it is not known
    double Speed() const;                       ///< m/s; NaN before the first
    double Latitude() const;                    ///< degrees; NaN before the first position
    double Longitude() const;                   ///< degrees
    double Distance() const;                    ///< metres that were worked in this job
    double AreaDone() const;                    ///< hectares; overlap counts once
    double AreaLeft() const;     ///< hectares of the boundary's area beyond what is done, 0 at least; NaN without one
    double Productivity() const; ///< hectares per hour, at this moment; 0 while nothing is worked

    // NaN without a controller.
    double Rate() const { return m_Application.rate; }               ///< L/ha
    double RateSet() const { return m_Application.rateSet; }         ///< L/ha
    double RateError() const { return m_Application.rateError; }     ///< percent
    double Flow() const { return m_Application.flow; }               ///< L/min
    double Pressure() const { return m_Application.pressure; }       ///< kPa
    double Temperature() const { return m_Application.temperature; } ///< degrees Celsius

    QString JobText() const; ///< the active job; a sentence when there is none

    // A job brings its own line and flags: none is set until it is there.

    /// A is here: ends following a line. False without a position, and before the job is there.
    Q_INVOKABLE bool setA();

    /// B is here: the line is followed, and saved: under the active name, or under a new default name when there is a
    /// line of that name. False when there is no A, no position, A is nearer than a metre, or the job is not there.
    Q_INVOKABLE bool setB();

    /// Stops following a line; its file stays, and so does its name: the next start follows it again.
    /// @return empty, or a sentence that says why nothing was done, such as that the job is still being read.
    Q_INVOKABLE QString clearLine();

    /// Saves the line under a name, and selects it.
    /// @return empty, or a sentence that says why nothing was done
    Q_INVOKABLE QString saveLine(const QString& name);

    /// Selects a line and follows it. A name without a file is that of the line that is set next. A file that cannot be
    /// read is a problem of the display's list.
    /// @return empty, or a sentence that says why nothing was done
    Q_INVOKABLE QString loadLine(const QString& name);

    /// Renames a saved line. One that is followed is followed on.
    /// @return empty, or a sentence that says why it is not renamed.
    Q_INVOKABLE QString renameLine(const QString& name, const QString& newName);

    /// Marks the place with a flag, which is kept in the field. False without a position, and before the job is there.
    Q_INVOKABLE bool mark();

    /// Empty when the implement may have this width in metres, else a sentence.
    Q_INVOKABLE QString checkWidth(double width) const;

signals:
    void loadingChanged();
    void workingChanged();
    void implementChanged();
    void hasPositionChanged();
    void guidanceChanged();
    void moved();
    void figuresChanged();
    void jobChanged();

private slots:
    void FollowSelections();

private:
    // Files: in TWorkFiles.cpp
    void Load();
    void TakeJob(const std::shared_ptr<tagJob>& job);
    bool IsCoverageHeld() const;
    void TryHeldCoverage();
    void TakeHeldCoverage();
    void TellProblems(const tagJob& job);
    void TakePlane(const tagGeoPoint& origin);
    void ShowAreas();
    void ShowFlags();
    void LoadLine();
    void LoadImplement();
    void SetImplement(const tagImplement& implement);
    void SaveFlags();
    void Save(const QString& problemKey, const std::function<bool(QString*)>& write);
    QString LoadingProblem() const;
    QString SelectLine(const QString& name);
    QString FreeLineName();
    void CheckCoverage();
    QString CoverageProblem() const;
    static QString GroundIsNotStored();

    // Position
    void TakePosition();
    void TakeFix();
    void BreakStrip();
    void KeepFix();
    void CoverEarlyFixes();
    void Cover(const tagCoverageStrip& strip);
    void ShowVehicle();
    void ShowGuidance();
    void TellFigures();
    tagGeoPoint Here() const;

    QObject* const m_Selections;
    TReceiver& m_Receiver;
    TMapModel m_Map;
    QThreadPool m_Disk; ///< of one thread: what is written and read keeps its order

    tagJobPlaces m_Places;
    QString m_ImplementPath;
    QString m_CoverageProblem;
    bool m_IsSelecting = false;       ///< a change of the selections is this object's own
    std::shared_ptr<tagJob> m_Job;    ///< null while it is loaded
    std::shared_ptr<tagJob> m_Latest; ///< the job, or the one that is being loaded
    double m_FieldArea;               ///< square metres; NaN without a boundary

    TStripMaker m_Strips;
    TEarlyFixes m_EarlyFixes; ///< of the job that is being loaded, or whose coverage is held
    bool m_IsTrying = false;  ///< a thread tries to open the coverage that is held
    bool m_IsBroken = true;   ///< the next early fix is not joined to the one before it
    TGuidance m_Guidance;
    TSimulatedController m_Controller;
    tagApplication m_Application;
    std::optional<TLocalPlane> m_Plane;
    tagGeoPoint m_Origin = {};
    tagVehiclePose m_Pose = {};
    double m_Heading;
    QDateTime m_Utc; ///< of the last position
    std::optional<tagLineOffset> m_Offset;
    bool m_HasPosition = false;
    bool m_IsWorking = false;

    QTimer m_FigureTimer;
    QTimer m_CheckTimer; ///< looks after the coverage's file
    bool m_HasNewFigures = false;
};
