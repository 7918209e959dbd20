#include "logs/TDiagnosticLog.h"

#include "access/Parameters.h"
#include "logs/TLogSeries.h"
#include "platform/QtCompat.h"
#include "platform/TFileSystemHelper.h"
#include "platform/TLocalTime.h"

#include <QByteArray>
#include <QFileInfo>
#include <QLocale>
#include <QTime>
#include <QVarLengthArray>

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <ctime>

namespace {

const long long LookIntervalMs = 1000;

/// Milliseconds of a clock that is never set. The coarse one is read without a call to the system.
long long Milliseconds()
{
    timespec now = {};
    clock_gettime(CLOCK_MONOTONIC_COARSE, &now);
    return static_cast<long long>(now.tv_sec) * 1000 + now.tv_nsec / 1000000;
}

/// Returns the number of bytes written: less than @p length only when the system takes no more.
int WriteAll(int file, const char* data, int length)
{
    int done = 0;
    while (done < length) {
        const ssize_t written = write(file, data + done, static_cast<std::size_t>(length - done));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            break;
        done += static_cast<int>(written);
    }
    return done;
}

/// Writes @p value with leading zeros and a separator behind it. Returns the position of the next byte.
template <int Digits>
char* Put(char* to, int value, char separator)
{
    for (int digit = Digits - 1; digit >= 0; --digit, value /= 10)
        to[digit] = static_cast<char>('0' + value % 10);
    to[Digits] = separator;
    return to + Digits + 1;
}

/// "2024.05.01-" with the digits of the C locale, whatever the machine's; empty for an invalid date.
QByteArray DateStamp(const QDate& date)
{
    if (!date.isValid())
        return QByteArray();
    const QString stamp = QtCompat::YearText(date.year()) + QLocale::c().toString(date, QLatin1String(".MM.dd-"));
    return stamp.toLatin1();
}

const int TimeLength = 13; // "13:07:09:042,"

/// Writes nothing for an invalid time.
char* PutTime(char* to, const QTime& time)
{
    if (!time.isValid())
        return to;
    to = Put<2>(to, time.hour(), ':');
    to = Put<2>(to, time.minute(), ':');
    to = Put<2>(to, time.second(), ':');
    return Put<3>(to, time.msec(), ',');
}

char Latin1(QChar letter) { return static_cast<char>(letter.unicode() < 0x100 ? letter.unicode() : '?'); }

char* PutLatin1(char* to, const QString& text)
{
    const QChar* from = text.constData();
    auto left = text.size();
    std::array<QChar, 8> letters; // as many as the compiler converts in one step
    std::array<char, letters.size()> bytes;
    for (; left >= static_cast<int>(letters.size()); left -= static_cast<int>(letters.size())) {
        std::copy_n(from, letters.size(), letters.begin());
        std::transform(letters.begin(), letters.end(), bytes.begin(), Latin1);
        to = std::copy(bytes.begin(), bytes.end(), to);
        from += letters.size();
    }
    return std::transform(from, from + left, to, Latin1);
}

} // namespace

TDiagnosticLog::TDiagnosticLog(int stagingSize, long long maxFileSize, int maxFileCount, EParamID iterationParam)
    : m_Staging(2 * static_cast<std::size_t>(std::max(stagingSize, 0)))
    , m_StagingFill(0)
    , m_IsOpen(false)
    , m_StagingSize(stagingSize)
    , m_DefaultMaxFileSize(maxFileSize)
    , m_MaxFileSize(maxFileSize)
    , m_DefaultMaxFileCount(maxFileCount)
    , m_MaxFileCount(maxFileCount)
    , m_IterationParam(iterationParam)
    , m_Iteration(Parameters::ReadInt(iterationParam))
    , m_FileLength(0)
    , m_HasFailed(false)
    , m_LostLines(0)
    , m_LookedAt(0)
{}

TDiagnosticLog::~TDiagnosticLog() { Close(); }

bool TDiagnosticLog::Restore(const QString& basePath, int maxFileCount, long long maxFileSize)
{
    return Restore(basePath, maxFileCount, maxFileSize, NEWEST_BY_TIME);
}

bool TDiagnosticLog::Restore(const QString& basePath, int maxFileCount, long long maxFileSize, ENewest newest)
{
    if (m_IsOpen)
        return false;
    m_BasePath = basePath;
    m_MaxFileCount = maxFileCount != 0 ? maxFileCount : m_DefaultMaxFileCount;
    m_MaxFileSize = maxFileSize != 0 ? maxFileSize : m_DefaultMaxFileSize;
    m_FileName = m_MaxFileCount == 1 ? m_BasePath : NextFileName(newest);
    m_File.setFileName(m_FileName);
    return Open();
}

bool TDiagnosticLog::Open()
{
    if (m_IsOpen || m_BasePath.isEmpty())
        return false;
    m_HasFailed = true;
    if (m_FileName.isEmpty())
        return false;
    // Unbuffered: the log writes through the file descriptor, so that it knows how many bytes were written. Append: if
    // a second program writes the same log, no line overwrites another.
    if (!m_File.open(QIODevice::ReadWrite | QIODevice::Append | QIODevice::Unbuffered))
        return false;
    m_FileLength = m_File.pos();
    m_LookedAt = Milliseconds();
    m_IsOpen = true;
    m_HasFailed = false;
    return true;
}

bool TDiagnosticLog::Reopen()
{
    if (!m_HasFailed)
        return false;
    if (m_FileName.isEmpty()) { // the folder did not exist
        m_FileName = NextFileName(NEWEST_BY_TIME);
        m_File.setFileName(m_FileName);
    }
    return Open();
}

TDiagnosticLog::tagState TDiagnosticLog::GetState() const
{
    const tagState state = {m_IsOpen, m_HasFailed, m_LostLines};
    return state;
}

void TDiagnosticLog::Close()
{
    if (m_IsOpen)
        FlushTempBuffer();
    CloseWithoutFlush();
}

void TDiagnosticLog::CloseWithoutFlush()
{
    CloseFile();
    m_HasFailed = false;
}

void TDiagnosticLog::CloseFile()
{
    m_File.close();
    m_IsOpen = false;
}

bool TDiagnosticLog::LogDiagnostic(const char* data, int length)
{
    if (!m_IsOpen || length < 0) {
        CountLost(data, length);
        return false;
    }
    if (length < m_StagingSize - m_StagingFill) {
        std::copy_n(data, length, m_Staging.begin() + m_StagingFill);
        m_StagingFill += length;
        return true;
    }
    if (!KeepFile()) {
        CountLost(data, length);
        return false;
    }
    if (m_StagingFill > 0 && length <= m_StagingSize && m_FileLength + m_StagingFill <= m_MaxFileSize)
        return WriteBehindStaged(data, length);
    FlushTempBuffer(); // if the staged bytes fill the file, these bytes go to the next one
    return WriteToLog(data, length);
}

bool TDiagnosticLog::WriteBehindStaged(const char* data, int length)
{
    const int staged = m_StagingFill;
    m_StagingFill = 0;
    std::copy_n(data, length, m_Staging.begin() + staged);
    const int written = Append(m_Staging.data(), staged + length);
    if (written < staged) { // the staged bytes are dropped, these are tried once more
        CountLost(m_Staging.data() + written, staged - written);
        return WriteToLog(data, length);
    }
    CountLost(data + (written - staged), length - (written - staged));
    return written == staged + length && GoOn();
}

bool TDiagnosticLog::FlushTempBuffer()
{
    const int staged = m_StagingFill;
    m_StagingFill = 0;
    return staged > 0 && WriteToLog(m_Staging.data(), staged);
}

bool TDiagnosticLog::WriteToLog(const char* data, int length)
{
    const int written = length >= 0 && KeepFile() ? Append(data, length) : 0;
    CountLost(data + written, length - written);
    return m_IsOpen && written == length && GoOn();
}

int TDiagnosticLog::Append(const char* data, int length)
{
    const int written = WriteAll(m_File.handle(), data, length);
    m_FileLength += written;
    return written;
}

bool TDiagnosticLog::GoOn()
{
    if (m_FileLength <= m_MaxFileSize || m_File.isSequential()) // a device never fills
        return true;
    CloseFile();
    return Restore(m_BasePath, 0, 0, NEWEST_IS_CURRENT);
}

bool TDiagnosticLog::KeepFile()
{
    const long long now = Milliseconds();
    if (!m_IsOpen || now - m_LookedAt < LookIntervalMs)
        return m_IsOpen;
    m_LookedAt = now;
    struct stat status = {};
    if (fstat(m_File.handle(), &status) != 0 || status.st_nlink > 0)
        return true;
    CloseFile();
    return Restore(m_BasePath, m_MaxFileCount, m_MaxFileSize, NEWEST_BY_TIME);
}

void TDiagnosticLog::CountLost(const char* data, int length)
{
    if (length > 0)
        m_LostLines += std::count(data, data + length, '\n') + (data[length - 1] == '\n' ? 0 : 1);
}

bool TDiagnosticLog::AddEntry(const QString& text)
{
    const QDate date = TLocalTime::currentDate();
    const QTime time = TLocalTime::currentTime();
    if (date != m_StampedDate) {
        m_StampedDate = date;
        m_DateStamp = DateStamp(date);
    }
    QVarLengthArray<char, 512> line(m_DateStamp.size() + TimeLength + text.size() + 2);
    char* end = std::copy_n(m_DateStamp.constData(), m_DateStamp.size(), line.data());
    end = PutLatin1(PutTime(end, time), text);
    *end++ = '\r';
    *end++ = '\n';
    return LogDiagnostic(line.constData(), static_cast<int>(end - line.data()));
}

TDiagnosticLog::tagExportResult TDiagnosticLog::Export(const QString& target)
{
    Close();
    const tagExportResult result = ExportFile(target);
    Open();
    return result;
}

TDiagnosticLog::tagExportResult TDiagnosticLog::ExportFile(const QString& target)
{
    tagExportResult result = {0, 0, false};
    if (m_BasePath.isEmpty())
        return result;
    const TLogSeries series(m_BasePath);
    std::vector<TLogSeries::tagFile> files;
    if (!series.ReadFiles(m_FileName, &files))
        return result; // which files there are is not known, so they are not all copied

    result.filesFound = static_cast<int>(files.size());
    result.allCopied = true;
    for (const TLogSeries::tagFile& file : files) {
        const QString source = QFileInfo(series.GetPath(file.name)).absoluteFilePath();
        const bool copied = TFileSystemHelper::FileCopy(source, target + QLatin1Char('/') + file.name, true);
        ++result.filesHandled;
        result.allCopied = result.allCopied && copied;
    }
    return result;
}

QString TDiagnosticLog::GenerateNextFileName() { return NextFileName(NEWEST_BY_TIME); }

QString TDiagnosticLog::NextFileName(ENewest newestIs)
{
    if (m_BasePath.isEmpty())
        return QString();
    const TLogSeries series(m_BasePath);
    std::vector<TLogSeries::tagFile> files = series.GetFiles(m_FileName);
    if (files.empty() && !series.HasFolder())
        return QString();
    if (newestIs == NEWEST_IS_CURRENT) {
        std::stable_partition(files.begin(), files.end(), [this, &series](const TLogSeries::tagFile& file) {
            return series.GetPath(file.name) != m_FileName;
        });
    }

    if (!files.empty()) {
        const TLogSeries::tagFile& newest = files.back();
        if (newest.number)
            m_Iteration = TLogSeries::GetNumberAfter(*newest.number); // the stored number may have been lost
        if (newest.size < m_MaxFileSize)
            return series.GetPath(newest.name);
        if (static_cast<int>(files.size()) >= m_MaxFileCount)
            QFile::remove(series.GetPath(files.front().name));
    }
    QString path = series.GetPath(series.GetName(m_Iteration));
    NextLogFileIterationNumber();
    return path;
}

QString TDiagnosticLog::NextLogFileIterationNumber()
{
    QString number = TLogSeries::GetNumberText(m_Iteration);
    m_Iteration = TLogSeries::GetNumberAfter(m_Iteration);
    Parameters::WriteInt(m_IterationParam, m_Iteration);
    return number;
}
