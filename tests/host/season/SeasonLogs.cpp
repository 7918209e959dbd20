#include "SeasonLogs.h"

#include "Require.h"

#include "diagnostics/DiagnosticTexts.h"
#include "diagnostics/EReceiverEvent.h"

#include <QFile>
#include <QStringList>

namespace {

/// Of the NMEA log: the size that a file must pass before the next one is begun, and by how much it may: what is staged
/// and one line.
constexpr qint64 NmeaFileSize = 0x40000;
constexpr qint64 NmeaStaging = 1024;
constexpr qint64 LongestLine = 128;

const int LengthOfTime = 23; // "2024.05.01-13:07:09:042"

/// Fields of an entry behind its time.
enum EField : int
{
    FIELD_COMPONENT,
    FIELD_TYPE,
    FIELD_CODE,
    FIELD_TEXT1,
    FIELD_TEXT2,
    FIELD_COUNT
};

QByteArray Content(const QString& path)
{
    QFile file(path);
    Require(file.open(QIODevice::ReadOnly), "a file of a log cannot be read");
    return file.readAll();
}

std::vector<TLogSeries::tagFile> Files(const TLogSeries& series)
{
    std::vector<TLogSeries::tagFile> files;
    Require(series.ReadFiles(QString(), &files) && !files.empty(), "a log has no files");
    Require(files.size() <= MostLogFiles, "a log has too many files");
    for (std::size_t i = 0; i < files.size(); ++i) {
        Require(files[i].number.has_value(), "a file of a log has no number");
        if (i > 0)
            RequireEqual(*files[i].number, TLogSeries::GetNumberAfter(*files[i - 1].number), "the file after another");
    }
    return files;
}

} // namespace

void TNmeaLogCheck::Look(bool isFlushed)
{
    const std::vector<TLogSeries::tagFile> files = Files(m_Series);
    bool isFound = false;
    for (const TLogSeries::tagFile& file : files) {
        if (*file.number != m_Number)
            continue;
        isFound = true;
        if (&file != &files.back())
            TakeComplete(file);
    }
    Require(isFound, "a file of the NMEA log was removed too early");
    if (isFlushed)
        Require(Content(m_Series.GetPath(files.back().name)) == m_Expected, "the NMEA log is not what was received");
}

void TNmeaLogCheck::TakeComplete(const TLogSeries::tagFile& file)
{
    Require(file.size > NmeaFileSize && file.size <= NmeaFileSize + NmeaStaging + LongestLine,
            "a file of the NMEA log has not the size of a full one");
    const QByteArray content = Content(m_Series.GetPath(file.name));
    Require(m_Expected.startsWith(content), "a full file of the NMEA log is not what was received");
    m_Expected.remove(0, static_cast<int>(content.size()));
    m_Number = TLogSeries::GetNumberAfter(m_Number);
    m_Bytes += content.size();
    ++m_Rotations;
}

TUserLogCheck::TUserLogCheck(const QString& basePath) : m_Series(basePath), m_Tail(basePath)
{
    QString error;
    m_Tail.Read(&error);
    Require(error.isEmpty(), "the user log cannot be read");
    m_Number = *Files(m_Series).back().number;
}

void TUserLogCheck::Look()
{
    QString error;
    const QList<tagLogLine> lines = m_Tail.Read(&error);
    Require(error.isEmpty(), "the user log cannot be read");
    for (const tagLogLine& line : lines)
        Take(line.text);
    Require(m_Tail.Unfinished().text.isEmpty(), "a line of the user log is not complete");
    LookAtFiles();
}

void TUserLogCheck::LookAtFiles()
{
    const int newest = *Files(m_Series).back().number;
    for (std::size_t passed = 0; m_Number != newest; ++passed) {
        Require(passed < MostLogFiles, "the user log has gone on too far between two looks");
        m_Number = TLogSeries::GetNumberAfter(m_Number);
        ++m_Rotations;
    }
}

void TUserLogCheck::Take(const QString& line)
{
    const QString time = line.left(LengthOfTime);
    const QStringList fields = line.mid(LengthOfTime + 1).split(QLatin1Char(','));
    if (time < m_LastTime || fields.size() != FIELD_COUNT)
        throw TSeasonFault(QString::fromLatin1("an entry of the user log after %1: %2").arg(m_LastTime, line));
    m_LastTime = time;
    ++m_Counts.entries;
    if (fields.at(FIELD_TYPE) == QLatin1String("DTC")) {
        if (fields.at(FIELD_TEXT2) != Serial(m_Counts.codes))
            throw TSeasonFault(QString::fromLatin1("trouble code %1: %2").arg(m_Counts.codes).arg(line));
        ++m_Counts.codes;
    } else if (fields.at(FIELD_TYPE) == QLatin1String("Param")) {
        ++m_Counts.parameters;
    } else {
        TakeEvent(fields);
    }
}

void TUserLogCheck::TakeEvent(const QStringList& fields)
{
    struct tagEvent
    {
        EReceiverEvent event;
        qint64 tagCounts::*count;
    };
    static constexpr tagEvent Events[] = {
        {RECEIVER_EVENT_FIRST_FIX, &tagCounts::firstFixes},
        {RECEIVER_EVENT_FIX_LOST, &tagCounts::losses},
        {RECEIVER_EVENT_FIX_REGAINED, &tagCounts::returns},
        {RECEIVER_EVENT_TIME_SET, &tagCounts::timesSet},
    };
    const auto isOf = [&fields](EReceiverEvent event) {
        return fields.at(FIELD_CODE) == DiagnosticText(DIAG_COMPONENT_GPS_RECEIVER, DIAG_TYPE_EVENT, event);
    };
    for (const tagEvent& row : Events) {
        if (isOf(row.event)) {
            ++(m_Counts.*row.count);
            return;
        }
    }
    if (isOf(RECEIVER_EVENT_BAD_CHECKSUMS))
        m_Counts.damaged += fields.at(FIELD_TEXT1).toLongLong();
    else
        ++m_Counts.others;
}
