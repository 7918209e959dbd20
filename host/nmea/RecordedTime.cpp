#include "nmea/RecordedTime.h"

#include "nmea/NmeaChecksum.h"
#include "nmea/SourceFile.h"
#include "nmea/TFixTracker.h"
#include "nmea/TNmeaLineSplitter.h"
#include "region/TRegionSettingsProxy.h"
#include "stores/TPersistenceHold.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>

namespace {

/// The lines of a file, from its current position, which stays where it is.
class TLineReader
{
public:
    explicit TLineReader(int fd) : m_Fd(fd), m_Position(lseek(fd, 0, SEEK_CUR)) {}

    /// Empty at the end.
    QByteArray NextLine()
    {
        QByteArray line = m_Splitter.TakeLine();
        while (line.isEmpty() && ReadPiece())
            line = m_Splitter.TakeLine();
        return line.isEmpty() ? m_Splitter.TakeRest() : line;
    }

private:
    bool ReadPiece()
    {
        std::array<char, 0x10000> piece;
        ssize_t count = 0;
        do
            count = pread(m_Fd, piece.data(), piece.size(), m_Position);
        while (count < 0 && errno == EINTR);
        if (count <= 0)
            return false;
        m_Position += count;
        m_Splitter.Append(piece.data(), static_cast<int>(count));
        return true;
    }

    int m_Fd;
    off_t m_Position;
    TNmeaLineSplitter m_Splitter;
};

/// A file that is open while the object lives.
class TOpenRecording
{
public:
    /// Opens nothing when the address is no recording.
    explicit TOpenRecording(const NmeaAddress& address)
    {
        const auto* const file = std::get_if<tagFileAddress>(&address);
        m_Fd = file ? OpenSourceFile(file->path) : -1;
        struct stat status = {};
        m_IsRecording = m_Fd >= 0 && fstat(m_Fd, &status) == 0 && S_ISREG(status.st_mode);
    }

    ~TOpenRecording()
    {
        if (m_Fd >= 0)
            close(m_Fd);
    }

    TOpenRecording(const TOpenRecording&) = delete;
    TOpenRecording& operator=(const TOpenRecording&) = delete;

    bool IsRecording() const { return m_IsRecording; }
    int Fd() const { return m_Fd; }

private:
    int m_Fd;
    bool m_IsRecording;
};

QDateTime FirstTime(int fd)
{
    TNmeaReceiver::tagStatus status;
    TFixTracker tracker(status);
    TLineReader reader(fd);
    QDateTime utc;
    for (QByteArray line = reader.NextLine(); !line.isEmpty() && !utc.isValid(); line = reader.NextLine()) {
        if (CheckNmeaLine(line) == NMEA_RIGHT_CHECKSUM)
            utc = tracker.Take(line);
    }
    return utc;
}

void SetClock(const QDateTime& utc)
{
    QTime time = utc.time();
    QDate date = utc.date();
    TRegionSettingsProxy().SetUTCTimeAndDate(time, date, true);
}

} // namespace

QDateTime FirstRecordedTime(const NmeaAddress& address)
{
    const TOpenRecording recording(address);
    return recording.IsRecording() ? FirstTime(recording.Fd()) : QDateTime();
}

bool IsRecording(const NmeaAddress& address) { return TOpenRecording(address).IsRecording(); }

void BeginClockAt(const QDateTime& utc, TParameterStore& store)
{
    TPersistenceHold hold(store);
    SetClock(utc);
    if (!store.GetParameter(PARAM_UTC_OFFSET_SET_BY_USER).toBool()) {
        const int minutes = utc.toLocalTime().offsetFromUtc() / 60;
        store.SetParameter(PARAM_UTC_OFFSET_HOURS, minutes / 60, true);
        store.SetParameter(PARAM_UTC_OFFSET_MINUTES, minutes % 60, true);
        SetClock(utc);
    }
    hold.Release(); // a store that cannot write says so itself
}
