#include "TSeason.h"

#include "HeapTrend.h"
#include "MachineClock.h"
#include "Require.h"
#include "TSeasonStream.h"

#include "diagnostics/UserLogEntries.h"
#include "logs/TNEMADiagnosticLogProxy.h"
#include "logs/TUserDiagnosticLogProxy.h"
#include "parameters/HostParameters.h"
#include "platform/BuildDate.h"
#include "platform/TLocalTime.h"
#include "region/TRegionSettingsProxy.h"
#include "stores/TChangeAuthor.h"
#include "stores/TPersistenceHold.h"
#include "sun/EDaySwitching.h"
#include "system/TSystemSettingsProxy.h"
#include "terminal/ActiveItems.h"
#include "terminal/DataFolder.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <malloc.h>
#include <unistd.h>

namespace {

const qint64 Second = 1000;
const qint64 Minute = 60 * Second;
const qint64 Hour = 60 * Minute;
const qint64 EpochLength = Second / TSeason::Rate;
const qint64 CodeEvery = 10 * Second;

/// Time from the sunset to the end of a shift, at least: the sun is looked at once a minute, and sets later in the
/// fields to the north.
const qint64 ShortestDusk = 3 * Minute;

const tagSunPlace Farm = {52.0, 10.0};
constexpr double BetweenFields = 0.02; ///< degrees of latitude
constexpr double BetweenVisits = 250;  ///< metres; so far to the north lies what is worked at the next visit
constexpr double Heading = 15;         ///< of the passes, degrees
constexpr int FieldsOfShift = 2;
constexpr int LocalHours = 2; ///< ahead of UTC

/// The machine's clock, which is never set: it goes fast while the terminal is warm, and slow while it is off.
constexpr qint64 MachineLate = 100 * Second; ///< at first
constexpr qint64 LossOfDay = 4 * Second;
constexpr qint64 GainOfShift = 3 * Second;

/// Days from one working day to the next, again and again: rain, and the time between sowing and spraying.
constexpr int DaysBetween[] = {1, 1, 3, 9};

/// What operators change, to and fro.
struct tagKnob
{
    EParamID id;
    int first;
    int second;
};

constexpr tagKnob Knobs[] = {
    {PARAM_LIGHTBAR_NIGHT_LEVEL, 3, 4},  {PARAM_PRESSURE_UNIT, 1, 0},          {PARAM_AREA_UNIT, 1, 0},
    {PARAM_BACKLIGHT_NIGHT_LEVEL, 5, 6}, {PARAM_BUTTON_LED_NIGHT_LEVEL, 7, 8}, {PARAM_LIQUID_UNIT, 1, 0},
};

/// The clock is looked at once a second, and set when it is half a second behind or a second ahead.
constexpr qint64 ClockBehind = 600;
constexpr qint64 ClockAhead = 1050;

const QLatin1String Stick("stick");
const char* const JobNames[TSeason::Jobs] = {"Sowing", "Spraying"};

int OpenDescriptors()
{
    return static_cast<int>(
        QDir(QLatin1String("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size());
}

double ResidentBytes()
{
    QFile file(QLatin1String("/proc/self/statm"));
    Require(file.open(QIODevice::ReadOnly), "the memory of the process cannot be read");
    return file.readAll().split(' ').value(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE));
}

bool HasSameContent(const QString& one, const QString& other)
{
    QFile first(one);
    QFile second(other);
    return first.open(QIODevice::ReadOnly) && second.open(QIODevice::ReadOnly) && first.readAll() == second.readAll();
}

} // namespace

TSeason::TSeason(int shifts, int minutes) : m_Shifts(shifts), m_Minutes(minutes)
{
    m_Samples.reserve(static_cast<std::size_t>(shifts * FieldsOfShift * Jobs));
}

TSeason::~TSeason() = default;

void TSeason::Run()
{
    Commission();
    for (int shift = 0; shift < m_Shifts; ++shift)
        Shift(shift);
    CheckAreas();
}

/// The year after the software was built.
QDate TSeason::DayOf(int shift) const
{
    QDate day(BuildDate().year() + 1, 4, 10);
    for (int i = 0; i < shift; ++i)
        day = day.addDays(DaysBetween[static_cast<std::size_t>(i) % std::size(DaysBetween)]);
    return day;
}

void TSeason::SetMachine()
{
    const qint64 gain = GainOfShift * (m_Utc - m_Begin) / (m_Minutes * Minute);
    MachineClock::milliseconds = m_Utc - m_MachineLate + gain;
}

/// The terminal has served for years: the numbers of its logs are near their end.
void TSeason::Commission()
{
    m_Utc = QDateTime(DayOf(0), QTime(9, 0), Qt::UTC).toMSecsSinceEpoch();
    m_Begin = m_Utc;
    m_MachineLate = MachineLate;
    SetMachine();
    m_Folder.MakeFolder(Stick);
    Start();
    const QString userLog = TSystemSettingsProxy().GetInternalUserLogPath();
    const QString nmeaLog = TSystemSettingsProxy().GetInternalNemaLogPath();
    m_Terminal.reset();
    for (const QString& log : {userLog, nmeaLog}) {
        const TLogSeries series(log);
        for (const TLogSeries::tagFile& file : series.GetFiles())
            QFile::remove(series.GetPath(file.name));
    }
    {
        TPersistenceHold hold(*m_Store);
        m_Store->SetParameter(PARAM_UTC_OFFSET_HOURS, LocalHours, true);
        m_Store->SetParameter(PARAM_UTC_OFFSET_MINUTES, 0, true);
        m_Store->SetParameter(PARAM_UTC_OFFSET_SET_BY_USER, true, true);
        m_Store->SetParameter(PARAM_DAY_SWITCHING, int{DAY_SWITCHING_SUNSET}, true);
        m_Store->SetParameter(PARAM_DAY_MODE, false, true);
        m_Store->SetParameter(PARAM_NMEA_LOG_FILE_NUMBER, FirstNmeaFile, true);
        for (const tagKnob& knob : Knobs)
            m_Store->SetParameter(knob.id, knob.second, true);
    }
    m_Store.reset();

    const QByteArray entry = "2020.01.01-00:00:00:000,Console,Event,Old,,\r\n";
    const int fullFile = 0x100000;
    const int room = 8000; // in the newest file
    for (int number = FirstUserFile - static_cast<int>(MostLogFiles) + 1; number <= FirstUserFile; ++number) {
        const TLogSeries series(userLog);
        QFile file(series.GetPath(series.GetName(number)));
        const int length = static_cast<int>(entry.size());
        const int size = number == FirstUserFile ? fullFile - room : fullFile + length;
        Require(file.open(QIODevice::WriteOnly) && file.write(entry.repeated(size / length)) > 0,
                "the user log cannot be prepared");
    }
    m_UserLog = std::make_unique<TUserLogCheck>(userLog);
    m_NmeaLog = std::make_unique<TNmeaLogCheck>(nmeaLog, FirstNmeaFile);
    m_Counts.descriptors = OpenDescriptors();
}

void TSeason::Start()
{
    QString error;
    m_Store = TSqliteStore::Open(DataFolder::StoreFile(m_Folder.Path()), &error);
    Require(m_Store != nullptr, qPrintable(error));
    m_Terminal = std::make_unique<TTerminal>(*m_Store);
    Require(m_Terminal->Start(m_Folder.Path(), &error, {QLatin1String("3.1.0")}), qPrintable(error));
}

void TSeason::Stop()
{
    m_Receiver->Finish();
    const TNmeaReceiver::tagStatus status = m_Receiver->GetStatus();
    RequireEqual(status.unloggedLines, qint64(0), "lines that the NMEA log has lost");
    RequireEqual(status.damagedLines, qint64(0), "lines that are not sentences");
    m_Counts.sentences += status.sentences + status.badChecksums;
    m_DaySwitch.reset();
    m_Receiver.reset();
    m_Terminal.reset();
    m_StoreCheck.LookAtJournal(*m_Store);
    m_Store.reset();
    m_UserLog->Look();
    m_NmeaLog->LookAtAll();
    RequireEqual(OpenDescriptors(), m_Counts.descriptors, "open descriptors");
}

void TSeason::Shift(int shift)
{
    const QDate day = DayOf(shift);
    const qint64 length = m_Minutes * Minute;
    const qint64 sunset = SunTimes(Farm, day, SUN_LEVEL_HORIZON).set.toSecsSinceEpoch() * Second;
    m_Utc = sunset + std::max(length / 5, ShortestDusk) - length;
    m_Begin = m_Utc;
    m_MachineLate = MachineLate + DayOf(0).daysTo(day) * LossOfDay - shift * GainOfShift;
    SetMachine();
    Start();
    ++m_Counts.starts;
    m_ClockOffset = TLocalTime::GetOffset();
    m_Receiver = std::make_unique<TNmeaReceiver>(NMEA_LIVE);
    m_DaySwitch = std::make_unique<TDaySwitch>(*m_Store);
    for (int i = 0; i < FieldsOfShift; ++i) {
        const int field = (shift * FieldsOfShift + i) % Fields;
        for (int job = 0; job < Jobs; ++job)
            Visit(shift, field, job);
        Export();
    }
    RequireEqual(m_Counts.daySwitches, 2 * (shift + 1), "switches between day and night");
    Stop();
    m_StoreCheck.LookAtFiles(DataFolder::StoreFile(m_Folder.Path()), day);
}

tagFieldPlan TSeason::Plan(int shift, int field) const
{
    const int visit = shift * FieldsOfShift / Fields;
    const TLocalPlane plane(Farm.latitude + field * BetweenFields, Farm.longitude);
    const tagGroundPose place = plane.ToGround(0, visit * BetweenVisits, 0);
    tagFieldPlan plan;
    plan.start = QDateTime::fromMSecsSinceEpoch(m_Utc, Qt::UTC);
    plan.latitude = place.latitude;
    plan.longitude = place.longitude;
    plan.heading = Heading;
    plan.passLength = 200;
    plan.swathWidth = TWorkedJob::Width;
    plan.passes = m_Minutes / (FieldsOfShift * Jobs) + 3; // each takes more than a minute
    plan.rate = Rate;
    return plan;
}

void TSeason::Visit(int shift, int field, int job)
{
    Select(field, job);
    TWorkedJob& work = m_Work[static_cast<std::size_t>(field)][static_cast<std::size_t>(job)];
    work.Open(TSystemSettingsProxy().GetActiveCoveragePath());
    TSeasonStream stream(Plan(shift, field));
    const qint64 epochs = m_Minutes * Minute / (FieldsOfShift * Jobs) / EpochLength;
    for (qint64 i = 0; i < epochs; ++i)
        Epoch(stream, work);
    work.Close();
    m_UserLog->Look();
    m_Counts.losses += stream.Losses();
    m_Counts.damaged += stream.Damaged();
    Sample();
}

void TSeason::Epoch(TSeasonStream& stream, TWorkedJob& work)
{
    SetMachine();
    const QByteArray bytes = stream.NextEpoch();
    Require(!bytes.isEmpty(), "the field is too small");
    // As a serial line gives them: in pieces that end anywhere.
    const int cut = static_cast<int>(m_Counts.epochs % bytes.size());
    m_Splitter.Append(bytes.constData(), cut);
    for (QByteArray line = m_Splitter.TakeLine(); !line.isEmpty(); line = m_Splitter.TakeLine())
        Receive(line);
    m_Splitter.Append(bytes.constData() + cut, static_cast<int>(bytes.size()) - cut);
    for (QByteArray line = m_Splitter.TakeLine(); !line.isEmpty(); line = m_Splitter.TakeLine())
        Receive(line);

    const TNmeaReceiver::tagStatus& status = m_Receiver->GetStatus();
    const bool isOnPass = std::abs(std::remainder(status.course - Heading, 180.0)) < 1; // false for NaN
    if (status.hasFix && isOnPass)
        work.MoveTo({status.latitude, status.longitude}, status.course);
    else
        work.Lift();
    LookAtClock();
    const qint64 now = m_Counts.epochs * EpochLength;
    if (now % Second == 0)
        LookAtDayMode();
    if (now % CodeEvery == 0) {
        const QString nozzle = QString::fromLatin1("Nozzle %1").arg(m_Counts.codes % 36 + 1);
        Require(AddUserLogEntry(DIAG_COMPONENT_IMPLEMENT, DIAG_TYPE_DTC, 512, nozzle,
                                TUserLogCheck::Serial(m_Counts.codes++)),
                "the user log has lost a trouble code");
    }
    if (now % Minute == 0) {
        TurnKnob();
        m_NmeaLog->Look();
    }
    ++m_Counts.epochs;
    m_Utc += EpochLength;
}

void TSeason::Receive(const QByteArray& line)
{
    m_NmeaLog->Wrote(line);
    m_Receiver->Receive(line);
    const TNmeaReceiver::tagStatus& status = m_Receiver->GetStatus();
    if (status.hasFix)
        m_DaySwitch->Look({status.latitude, status.longitude}, status.utc);
}

/// As an operator does who drives to another field.
void TSeason::Select(int field, int job)
{
    const TChangeAuthor author(CHANGE_AUTHOR_OPERATOR);
    const QPair<EParamID, QString> names[] = {
        {PARAM_CLIENT, QLatin1String("Smith")},
        {PARAM_FARM, QLatin1String("North")},
        {PARAM_FIELD, QString::fromLatin1("Field %1").arg(field + 1)},
        {PARAM_ACTIVE_JOB, QLatin1String(JobNames[job])},
    };
    for (const auto& name : names) {
        const tagParameter& item = *TParameterCatalogue::Find(name.first);
        if (ActiveItems::Name(item) == name.second)
            continue;
        const QMap<int, QVariant> before = m_Store->Values();
        Require(ActiveItems::Select(*m_Store, item, name.second), "a field or a job cannot be selected");
        const QMap<int, QVariant> after = m_Store->Values();
        for (auto value = after.constBegin(); value != after.constEnd(); ++value)
            m_StoreCheck.Changed(value.value() != before.value(value.key()) ? 1 : 0);
    }
}

/// As displays do: the entry of the log is written while the operator is named as the author, too.
void TSeason::TurnKnob()
{
    const TChangeAuthor author(CHANGE_AUTHOR_OPERATOR);
    const qint64 knobs = std::size(Knobs);
    const tagKnob& knob = Knobs[m_Counts.parameterChanges % knobs];
    const int value = m_Counts.parameterChanges / knobs % 2 == 0 ? knob.first : knob.second;
    const QString before = m_Store->GetParameter(knob.id).toString();
    Require(m_Store->SetParameter(knob.id, value, true), "a parameter is not on the disk");
    Require(AddUserLogEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_PARAM, knob.id, before, QString::number(value)),
            "the user log has lost a change");
    ++m_Counts.parameterChanges;
    m_StoreCheck.Changed(1);
}

void TSeason::LookAtClock()
{
    const qint64 shown = TRegionSettingsProxy().GetDateTime().toMSecsSinceEpoch();
    Require(shown >= m_LastShown, "the clock goes backwards");
    m_LastShown = shown;
    if (!m_Receiver->GetStatus().utc.isValid())
        return;
    const qint64 error = shown - (m_Utc + LocalHours * Hour);
    if (error < -ClockBehind || error > ClockAhead)
        throw TSeasonFault(QString::fromLatin1("the clock is wrong by %1 ms").arg(error));
    const int offset = TLocalTime::GetOffset();
    m_Counts.clockSteps += offset != m_ClockOffset;
    m_ClockOffset = offset;
}

void TSeason::LookAtDayMode()
{
    const bool isDay = m_Store->GetParameter(PARAM_DAY_MODE).toBool();
    m_Counts.daySwitches += isDay != m_IsDay;
    m_IsDay = isDay;
}

/// As an operator does at the end of the day. The files are then moved from the stick to the office.
void TSeason::Export()
{
    TUserDiagnosticLogProxy userLog;
    TNEMADiagnosticLogProxy nmeaLog;
    const TSystemSettingsProxy system;
    const struct
    {
        TDiagnosticLogProxy& log;
        QString path;
    } logs[] = {{userLog, system.GetInternalUserLogPath()}, {nmeaLog, system.GetInternalNemaLogPath()}};
    for (const auto& row : logs) {
        const TDiagnosticLog::tagExportResult result = row.log.Export(m_Folder.Path(Stick));
        const TLogSeries series(row.path);
        const std::vector<TLogSeries::tagFile> files = series.GetFiles();
        Require(result.allCopied && row.log.GetState().isOpen, "a log cannot be exported");
        RequireEqual(result.filesHandled, static_cast<int>(files.size()), "files of an export");
        const QDir stick(m_Folder.Path(Stick));
        RequireEqual(static_cast<int>(stick.entryList(QDir::Files | QDir::Hidden).size()), result.filesHandled,
                     "files on the stick");
        for (const TLogSeries::tagFile& file : files) {
            Require(HasSameContent(series.GetPath(file.name), stick.filePath(file.name)),
                    "an exported file is not the same");
            QFile::remove(stick.filePath(file.name));
        }
        RequireEqual(row.log.GetState().lostLines, 0LL, "lines that a log has lost");
        ++m_Counts.exports;
    }
    m_NmeaLog->LookAtAll();
}

void TSeason::CheckAreas()
{
    for (auto& jobs : m_Work) {
        for (TWorkedJob& job : jobs) {
            Require(job.Openings() > 1, "a job was opened only once");
            m_Counts.hectares += job.CheckArea();
            m_Counts.strips += job.Strips();
            m_Counts.blocks += job.Blocks();
        }
    }
}

void TSeason::Sample()
{
    malloc_trim(0);
    const double hours = static_cast<double>(m_Counts.epochs) / (Rate * 3600.0);
    m_Samples.push_back({hours, static_cast<double>(HeapTrend::BytesInUse()), ResidentBytes()});
}
