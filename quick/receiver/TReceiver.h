#pragma once

#include "QuickExport.h"
#include "nmea/FixQuality.h"
#include "nmea/TNmeaReceiver.h"

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QThread>
#include <QTimer>

#include <memory>

struct tagReceived;
class TReceiverWorker;

/// The receiver of the terminal: reads the stream at the address of the parameter receiver.address, logs it, sets the
/// clock, and switches between day and night. In QML it is the singleton Receiver; in C++ it is CabQuick::Receiver().
///
/// @code
/// TReceiver& receiver = CabQuick::Receiver();
/// QObject::connect(&receiver, &TReceiver::positionChanged, [&] { map.MoveTo(receiver.Status()); });
/// receiver.SetRunning(true);
/// @endcode
///
/// The stream is read in a thread of its own. This object belongs to the thread of the module. Its properties notify
/// when their values have changed; the counts and the age do so at most twice a second.
///
/// A file is a recording, and is played at its own pace. The address "simulator" is a simulated drive, see
/// CabQuick::SimulatedPlan(), whose times are those of now.
class CABQUICK_EXPORT TReceiver : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString address READ Address NOTIFY addressChanged)
    Q_PROPERTY(bool running READ IsRunning WRITE SetRunning NOTIFY runningChanged)
    Q_PROPERTY(QString state READ StateName NOTIFY stateChanged)
    Q_PROPERTY(QString stateText READ StateText NOTIFY stateChanged)
    Q_PROPERTY(QString reason READ Reason NOTIFY stateChanged)
    Q_PROPERTY(bool hasFix READ HasFix NOTIFY fixChanged)
    Q_PROPERTY(int quality READ Quality NOTIFY fixChanged)
    Q_PROPERTY(QString fixText READ FixText NOTIFY fixChanged)
    Q_PROPERTY(int satellites READ Satellites NOTIFY fixChanged)
    Q_PROPERTY(QString satellitesText READ SatellitesText NOTIFY fixChanged)
    Q_PROPERTY(double hdop READ Hdop NOTIFY fixChanged)
    Q_PROPERTY(QString hdopText READ HdopText NOTIFY fixChanged)
    Q_PROPERTY(double age READ Age NOTIFY ageChanged)
    Q_PROPERTY(QString ageText READ AgeText NOTIFY ageChanged)
    Q_PROPERTY(double latitude READ Latitude NOTIFY positionChanged)
    Q_PROPERTY(double longitude READ Longitude NOTIFY positionChanged)
    Q_PROPERTY(double altitude READ Altitude NOTIFY positionChanged)
    Q_PROPERTY(double speed READ Speed NOTIFY positionChanged)
    Q_PROPERTY(double course READ Course NOTIFY positionChanged)
    Q_PROPERTY(QString utc READ Utc NOTIFY utcChanged)
    Q_PROPERTY(double lines READ Lines NOTIFY countsChanged)
    Q_PROPERTY(QString linesText READ LinesText NOTIFY countsChanged)
    Q_PROPERTY(double sentences READ Sentences NOTIFY countsChanged)
    Q_PROPERTY(QString sentencesText READ SentencesText NOTIFY countsChanged)
    Q_PROPERTY(double badChecksums READ BadChecksums NOTIFY countsChanged)
    Q_PROPERTY(QString badChecksumsText READ BadChecksumsText NOTIFY countsChanged)
    Q_PROPERTY(double damagedLines READ DamagedLines NOTIFY countsChanged)
    Q_PROPERTY(QString damagedLinesText READ DamagedLinesText NOTIFY countsChanged)

public:
    enum EState : int
    {
        STATE_OFF,
        STATE_CONNECTING, ///< no line yet
        STATE_RECEIVING,
        STATE_SILENT, ///< no line for SilenceMs
        STATE_LOST,   ///< the connection is lost and is tried again; or the address cannot be read, which is not
        STATE_ENDED,  ///< a recording is over, or the simulated field is done
    };

    static constexpr int SilenceMs = 3000;

    /// For the module, which makes the only object.
    explicit TReceiver(QObject* parent);

    /// Ends the stream.
    ~TReceiver() override;

    TReceiver(const TReceiver&) = delete;
    TReceiver& operator=(const TReceiver&) = delete;

    /// What has been received since the start, up to the last positionChanged() or later. The last position stays when
    /// the fix or the receiver is lost.
    const TNmeaReceiver::tagStatus& Status() const { return m_Status; }

    QString Address() const { return m_Address; }

    /// Whether the receiver is wanted; false at first. Also true when the stream has ended.
    bool IsRunning() const { return m_IsRunning; }
    void SetRunning(bool isRunning);

    /// Takes whole sentences as if they had just come, in the thread that calls, while the receiver is not running: for
    /// pictures and tests, which need the same moment each time. Sets the clock as a recording does, and emits what a
    /// stream emits, before it returns. What has been shown stays current: it grows no older and never falls silent.
    void Show(const QByteArray& sentences);

    EState State() const { return m_State; }
    QString StateName() const;                  ///< "off", "connecting", "receiving", "silent", "lost" or "ended"
    QString StateText() const;                  ///< for the operator, one or two words
    QString Reason() const { return m_Reason; } ///< a sentence for the operator; empty in the first three states

    bool HasFix() const { return m_Status.hasFix && m_IsCurrent; } ///< false, too, when nothing is received
    int Quality() const { return HasFix() ? m_Quality.kind : 0; }  ///< see tagFixQuality::kind
    QString FixText() const;
    int Satellites() const { return m_Quality.satellites; }
    QString SatellitesText() const;
    double Hdop() const { return m_Quality.hdop; } ///< NaN when it is not told
    QString HdopText() const;                      ///< "0.9"; empty when it is not told

    /// Seconds; the greatest age that the last position has reached: while positions come, the time from one to the
    /// next. NaN before the first.
    double Age() const { return m_Age; }
    QString AgeText() const { return m_AgeText; } ///< empty before the first position

    double Latitude() const { return m_Status.latitude; } ///< degrees; NaN before the first position, as the next four
    double Longitude() const { return m_Status.longitude; } ///< degrees
    double Altitude() const { return m_Status.altitude; }   ///< metres above sea level
    double Speed() const { return m_Status.speed; }         ///< metres per second
    double Course() const { return m_Status.course; }       ///< degrees from true north; NaN at a standstill too
    QString Utc() const { return m_Utc; }                   ///< "2026-03-05 13:05:09"; empty before the first time

    // As of the last countsChanged(), so that a page does not change with each line.
    double Lines() const { return static_cast<double>(m_Counts.lines); }
    double Sentences() const { return static_cast<double>(m_Counts.sentences); }
    double BadChecksums() const { return static_cast<double>(m_Counts.badChecksums); }
    double DamagedLines() const { return static_cast<double>(m_Counts.damagedLines); }
    QString LinesText() const;
    QString SentencesText() const;
    QString BadChecksumsText() const;
    QString DamagedLinesText() const;

signals:
    void addressChanged();
    void runningChanged();
    void stateChanged();
    void fixChanged();

    /// A position has come: once for each epoch of the receiver.
    void positionChanged();
    void ageChanged();
    void utcChanged();
    void countsChanged();

private:
    struct tagFix
    {
        bool hasFix;
        int quality;
        int satellites;
        double hdop;
    };

    void FollowAddress();
    void Start();
    void Stop();
    void Take(const tagReceived& received);
    void TakeEnd(const QString& error);
    void SetState(EState state, const QString& reason = QString());
    void TakeFix(const TNmeaReceiver::tagStatus& status, const tagFixQuality& quality, bool isCurrent);
    void TakeInterval(const QDateTime& before);
    void Tick();
    void TellAge();
    void TellCounts();

    QThread m_Thread;
    std::unique_ptr<TReceiverWorker> m_Player; ///< of Show(); null before
    std::unique_ptr<QObject> m_Link;           ///< signals of the worker end here; null while there is none
    QString m_Address;
    bool m_IsRunning = false;
    EState m_State = STATE_OFF;
    QString m_Reason;
    TNmeaReceiver::tagStatus m_Status;
    tagFixQuality m_Quality;
    bool m_IsCurrent = false; ///< lines come, so the fix is that of now
    TNmeaReceiver::tagStatus m_Counts;
    QString m_Utc;
    double m_Age;
    QString m_AgeText;
    double m_Interval; ///< seconds from one position to the next
    QElapsedTimer m_SinceLine;
    QElapsedTimer m_SincePosition; ///< invalid before the first
    QTimer m_Timer;
};
