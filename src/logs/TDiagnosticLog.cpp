#include "logs/TDiagnosticLog.h"

#include "access/Parameters.h"
#include "platform/TFileSystemHelper.h"
#include "platform/TLocalTime.h"

#include <QByteArray>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QTime>
#include <QVarLengthArray>

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <tuple>

namespace {

const int LastIteration = 99999;
const int IterationDigits = 5;

int IterationAfter(int iteration) { return iteration >= 1 && iteration < LastIteration ? iteration + 1 : 1; }

/// How the files of a log are named.
struct tagSeries
{
    QString folder; ///< up to and including the last "/", empty for the current folder
    QString stem;
    QString extension; ///< with its dot

    int NumberOf(const QString& fileName, bool* isNumbered) const
    {
        return fileName.mid(stem.size(), fileName.size() - stem.size() - extension.size()).toInt(isNumbered);
    }
};

tagSeries SeriesOf(const QString& basePath)
{
    const auto fileStart = basePath.lastIndexOf(QLatin1Char('/')) + 1;
    const QString file = basePath.mid(fileStart);
    const auto dot = file.lastIndexOf(QLatin1Char('.'));
    return {basePath.left(fileStart), file.left(dot), dot < 0 ? QString() : file.mid(dot)};
}

bool IsMissing(const tagSeries& series) { return !QDir(series.folder).exists(); }

/// A file of a series with what orders it, read once.
struct tagLogFile
{
    QString name;
    qint64 size;
    qint64 modified; ///< ms since 1970
    bool isCurrent;  ///< the file this log wrote last
    qint64 rank;     ///< greater for a later number, 00001 following 99999; -1 for a name without a number
};

/// Files written within one tick of the file system's clock have one modification time; then what was written last,
/// and the numbers, tell the order.
bool IsOlder(const tagLogFile& a, const tagLogFile& b)
{
    return std::tie(a.modified, a.isCurrent, a.rank) < std::tie(b.modified, b.isCurrent, b.rank);
}

/// Ranks numbers that are far below the greatest one after it: the series has gone round.
void RankRound(std::vector<tagLogFile>& files)
{
    qint64 greatest = -1;
    for (const tagLogFile& file : files)
        greatest = std::max(greatest, file.rank);
    for (tagLogFile& file : files) {
        if (file.rank >= 0 && greatest - file.rank > LastIteration / 2)
            file.rank += LastIteration;
    }
}

bool IsOf(std::string_view stem, std::string_view extension, std::string_view name)
{
    return name.size() >= stem.size() + extension.size() && name.substr(0, stem.size()) == stem &&
           name.substr(name.size() - extension.size()) == extension;
}

/// None when the folder does not exist.
/// @param current path of the file this log wrote last
/// @param isCurrentNewest takes that file for the newest, whatever its time
std::vector<tagLogFile> FilesOldestFirst(const tagSeries& series, const QString& current, bool isCurrentNewest)
{
    // Read without Qt, which makes objects of every name: a folder may hold a thousand files of others. Compared name
    // by name rather than by a wildcard, in which a "[" of the stem would be more than a letter.
    const std::string stem = QFile::encodeName(series.stem).toStdString();
    const std::string extension = QFile::encodeName(series.extension).toStdString();
    const QByteArray path = series.folder.isEmpty() ? QByteArray(".") : QFile::encodeName(series.folder);
    const bool hasName = !path.contains('\0'); // at which the system would take it for a shorter one
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(hasName ? opendir(path.constData()) : nullptr, &closedir);

    const QString currentName = current.startsWith(series.folder) ? current.mid(series.folder.size()) : QString();
    std::vector<tagLogFile> files;
    while (const dirent* const entry = folder ? readdir(folder.get()) : nullptr) {
        if (!IsOf(stem, extension, entry->d_name))
            continue;
        struct stat status = {};
        if (fstatat(dirfd(folder.get()), entry->d_name, &status, 0) != 0 || !S_ISREG(status.st_mode))
            continue;
        const QString name = QFile::decodeName(entry->d_name);
        if (QFile::encodeName(name) != entry->d_name)
            continue; // no name that Qt could open
        bool isNumbered = false;
        const int number = series.NumberOf(name, &isNumbered);
        const bool isCurrent = name == currentName;
        const qint64 modified = isCurrent && isCurrentNewest ? std::numeric_limits<qint64>::max()
                                                             : static_cast<qint64>(status.st_mtim.tv_sec) * 1000 +
                                                                   status.st_mtim.tv_nsec / 1000000;
        files.push_back({name, status.st_size, modified, isCurrent, isNumbered ? number : -1});
    }

    RankRound(files);
    std::sort(files.begin(), files.end(), IsOlder);
    return files;
}

/// How much got there: less than @p length only when the system takes no more.
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

/// Writes @p value with leading zeros and a separator behind it; returns where the next byte goes.
template <int Digits>
char* Put(char* to, int value, char separator)
{
    for (int digit = Digits - 1; digit >= 0; --digit, value /= 10)
        to[digit] = static_cast<char>('0' + value % 10);
    to[Digits] = separator;
    return to + Digits + 1;
}

const int TimeLength = 13; // "13:07:09:042,"

/// Nothing for an invalid time.
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
    std::array<QChar, 8> letters; // a register full, which the compiler converts at once
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
    if (m_IsOpen || m_FileName.isEmpty())
        return false;
    // Unbuffered: the writes go past the QFile, straight to the system, and their results tell how much really got
    // there. Append: should a second program write the same log, no line overwrites another.
    if (!m_File.open(QIODevice::ReadWrite | QIODevice::Append | QIODevice::Unbuffered))
        return false;
    m_FileLength = m_File.pos();
    m_IsOpen = true;
    return true;
}

void TDiagnosticLog::Close()
{
    if (!m_IsOpen)
        return;
    FlushTempBuffer();
    CloseWithoutFlush();
}

void TDiagnosticLog::CloseWithoutFlush()
{
    if (!m_IsOpen)
        return;
    m_File.close();
    m_IsOpen = false;
}

bool TDiagnosticLog::LogDiagnostic(const char* data, int length)
{
    if (!m_IsOpen || length < 0)
        return false;
    if (length < m_StagingSize - m_StagingFill) {
        std::copy_n(data, length, m_Staging.begin() + m_StagingFill);
        m_StagingFill += length;
        return true;
    }
    if (m_StagingFill > 0 && length <= m_StagingSize && m_FileLength + m_StagingFill <= m_MaxFileSize)
        return WriteBehindStaged(data, length);
    FlushTempBuffer(); // where what is staged ends its file, these bytes go to the next
    return WriteToLog(data, length);
}

bool TDiagnosticLog::WriteBehindStaged(const char* data, int length)
{
    const int staged = m_StagingFill;
    m_StagingFill = 0;
    std::copy_n(data, length, m_Staging.begin() + staged);
    const int written = Append(m_Staging.data(), staged + length);
    if (written < staged)
        return WriteToLog(data, length); // what is staged is given up, these bytes are not
    return written == staged + length && GoOn();
}

bool TDiagnosticLog::FlushTempBuffer()
{
    const int staged = m_StagingFill;
    m_StagingFill = 0;
    return m_IsOpen && staged > 0 && WriteToLog(m_Staging.data(), staged);
}

bool TDiagnosticLog::WriteToLog(const char* data, int length)
{
    if (!m_IsOpen)
        return false;
    return Append(data, length) == length && GoOn();
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
    CloseWithoutFlush();
    return Restore(m_BasePath, 0, 0, NEWEST_IS_CURRENT);
}

bool TDiagnosticLog::AddEntry(const QString& text)
{
    const QDate date = TLocalTime::currentDate();
    const QTime time = TLocalTime::currentTime();
    if (date != m_StampedDate) { // in digits that Latin-1 has, whatever the language of the machine
        m_StampedDate = date;
        m_DateStamp = QLocale::c().toString(date, QLatin1String("yyyy.MM.dd-")).toLatin1();
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
    const tagSeries series = SeriesOf(m_BasePath);
    const std::vector<tagLogFile> files = FilesOldestFirst(series, m_FileName, false);
    if (files.empty() && IsMissing(series))
        return result;

    result.filesFound = static_cast<int>(files.size());
    result.allCopied = true;
    for (const tagLogFile& file : files) {
        const QString source = QFileInfo(series.folder + file.name).absoluteFilePath();
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
    const tagSeries series = SeriesOf(m_BasePath);
    const std::vector<tagLogFile> files = FilesOldestFirst(series, m_FileName, newestIs == NEWEST_IS_CURRENT);
    if (files.empty() && IsMissing(series))
        return QString();

    if (!files.empty()) {
        const tagLogFile& newest = files.back();
        bool isNumbered = false;
        const int number = series.NumberOf(newest.name, &isNumbered);
        if (isNumbered)
            m_Iteration = IterationAfter(number); // goes on after the files even if the stored number was lost
        if (newest.size < m_MaxFileSize)
            return series.folder + newest.name;
        if (static_cast<int>(files.size()) >= m_MaxFileCount)
            QFile::remove(series.folder + files.front().name);
    }
    return series.folder + series.stem + NextLogFileIterationNumber() + series.extension;
}

QString TDiagnosticLog::NextLogFileIterationNumber()
{
    QString number = QString::number(m_Iteration).rightJustified(IterationDigits, QLatin1Char('0'));
    m_Iteration = IterationAfter(m_Iteration);
    Parameters::WriteInt(m_IterationParam, m_Iteration);
    return number;
}
