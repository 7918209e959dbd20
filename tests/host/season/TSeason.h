#pragma once

#include "SeasonLogs.h"
#include "TStoreCheck.h"
#include "TTemporaryFolder.h"
#include "TWorkedJob.h"

#include "nmea/FieldPlan.h"
#include "nmea/TNmeaLineSplitter.h"
#include "nmea/TNmeaReceiver.h"
#include "stores/TSqliteStore.h"
#include "sun/TDaySwitch.h"
#include "terminal/TTerminal.h"

#include <QDate>
#include <QDateTime>
#include <QString>

#include <array>
#include <memory>
#include <vector>

class TSeasonStream;

/// A season of a terminal: working days from spring to autumn, each from a start of the terminal to its stop. Every day
/// begins in daylight and ends after sunset, on two of the ten fields, with two jobs on each. The machine's clock is
/// wrong, and goes at another speed than time does. Whatever is not as it must be throws TSeasonFault.
class TSeason
{
public:
    static constexpr int Rate = 10; ///< epochs per second
    static constexpr int Fields = 10;
    static constexpr int Jobs = 2; ///< of each field

    /// Numbers of the files that the logs begin with; behind the last one they begin anew.
    static constexpr int FirstNmeaFile = 99990;
    static constexpr int FirstUserFile = 99999;

    /// The memory of the process, each time that a visit to a field has ended.
    struct tagSample
    {
        double hours; ///< of work since the beginning
        double heap;  ///< bytes in use
        double rss;   ///< bytes, after the heap has given back what is free
    };

    struct tagCounts
    {
        qint64 epochs = 0;
        qint64 sentences = 0;
        qint64 losses = 0;
        qint64 damaged = 0;
        qint64 codes = 0; ///< trouble codes in the user log
        qint64 parameterChanges = 0;
        int starts = 0;
        int exports = 0;
        int daySwitches = 0;
        int clockSteps = 0;  ///< the clock was set to another time
        int descriptors = 0; ///< with the terminal stopped
        double hectares = 0;
        qint64 strips = 0;
        qint64 blocks = 0;
    };

    /// @param shifts number of working days.
    /// @param minutes of work on each of them, a multiple of six.
    TSeason(int shifts, int minutes);
    ~TSeason();

    void Run();

    const tagCounts& Counts() const { return m_Counts; }
    const std::vector<tagSample>& Samples() const { return m_Samples; }
    const TNmeaLogCheck& NmeaLog() const { return *m_NmeaLog; }
    const TUserLogCheck& UserLog() const { return *m_UserLog; }
    const TStoreCheck& Store() const { return m_StoreCheck; }

private:
    void Commission();
    QDate DayOf(int shift) const;
    void Shift(int shift);
    void Start();
    void Stop();
    void Visit(int shift, int field, int job);
    void Epoch(TSeasonStream& stream, TWorkedJob& work);
    void Receive(const QByteArray& line);
    void Select(int field, int job);
    void TurnKnob();
    void LookAtClock();
    void LookAtDayMode();
    void Export();
    void CheckAreas();
    void Sample();
    void SetMachine();
    tagFieldPlan Plan(int shift, int field) const;

    const int m_Shifts;
    const int m_Minutes;
    TTemporaryFolder m_Folder;
    std::unique_ptr<TSqliteStore> m_Store;
    std::unique_ptr<TTerminal> m_Terminal;
    std::unique_ptr<TNmeaReceiver> m_Receiver;
    std::unique_ptr<TDaySwitch> m_DaySwitch;
    std::unique_ptr<TNmeaLogCheck> m_NmeaLog;
    std::unique_ptr<TUserLogCheck> m_UserLog;
    TStoreCheck m_StoreCheck;
    TNmeaLineSplitter m_Splitter;
    std::array<std::array<TWorkedJob, Jobs>, Fields> m_Work;
    tagCounts m_Counts;
    std::vector<tagSample> m_Samples;

    qint64 m_Begin = 0;       ///< of the shift; milliseconds since 1970, UTC, as the next two
    qint64 m_Utc = 0;         ///< now
    qint64 m_LastShown = 0;   ///< by the clock of the terminal
    qint64 m_MachineLate = 0; ///< the machine's clock at that beginning, in milliseconds
    bool m_IsDay = false;
    int m_ClockOffset = 0; ///< of the terminal, in seconds, when it was looked at last
};
