#include "logs/TDiagnosticLog.h"

#include "platform/TFileSystemHelper.h"
#include "platform/TLocalTime.h"
#include "settings/Parameters.h"

#include <QByteArray>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <limits>
#include <tuple>

namespace {

const int LastIteration = 99999;
const int IterationDigits = 5;

int IterationAfter(int iteration) { return iteration >= 1 && iteration < LastIteration ? iteration + 1 : 1; }

/// A file of a series with what orders it, read once.
struct tagLogFile
{
    QFileInfo info;
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

} // namespace

TDiagnosticLog::TDiagnosticLog(int stagingSize, long long maxFileSize, int maxFileCount, EParamID iterationParam)
    : m_Staging(static_cast<std::size_t>(std::max(stagingSize, 0)))
    , m_StagingFill(0)
    , m_IsOpen(false)
    , m_StagingSize(stagingSize)
    , m_DefaultMaxFileSize(maxFileSize)
    , m_MaxFileSize(maxFileSize)
    , m_DefaultMaxFileCount(maxFileCount)
    , m_MaxFileCount(maxFileCount)
    , m_IterationParam(iterationParam)
    , m_Iteration(Parameters::ReadInt(iterationParam))
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
    // Unbuffered: each write goes to the system at once, and its result tells how much really got there, which a
    // buffered file learns too late. Append: should a second program write the same log, no line overwrites another.
    if (!m_File.open(QIODevice::ReadWrite | QIODevice::Append | QIODevice::Unbuffered))
        return false;
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
    FlushTempBuffer();
    return WriteToLog(data, length);
}

bool TDiagnosticLog::FlushTempBuffer()
{
    const int staged = m_StagingFill;
    m_StagingFill = 0;
    return m_IsOpen && staged > 0 && WriteToLog(m_Staging.data(), staged);
}

bool TDiagnosticLog::WriteToLog(const char* data, int length)
{
    if (!m_IsOpen || m_File.write(data, length) < length)
        return false;
    if (m_File.pos() <= m_MaxFileSize)
        return true;
    CloseWithoutFlush();
    return Restore(m_BasePath, 0, 0, NEWEST_IS_CURRENT);
}

bool TDiagnosticLog::AddEntry(const QString& text)
{
    const QString line = TLocalTime::currentDate().toString(QLatin1String("yyyy.MM.dd-")) +
                         TLocalTime::currentTime().toString(QLatin1String("hh:mm:ss:zzz,")) + text +
                         QLatin1String("\r\n");
    const QByteArray bytes = line.toLatin1();
    return LogDiagnostic(bytes.constData(), static_cast<int>(bytes.size()));
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
    const tagSeries series = SeriesOf(m_BasePath);
    if (m_BasePath.isEmpty() || !QDir(series.folder).exists())
        return result;

    const QFileInfoList files = FilesOldestFirst(series, NEWEST_BY_TIME);
    result.filesFound = static_cast<int>(files.size());
    result.allCopied = true;
    for (const QFileInfo& file : files) {
        const bool copied =
            TFileSystemHelper::FileCopy(file.absoluteFilePath(), target + QLatin1Char('/') + file.fileName(), true);
        ++result.filesHandled;
        result.allCopied = result.allCopied && copied;
    }
    return result;
}

QString TDiagnosticLog::GenerateNextFileName() { return NextFileName(NEWEST_BY_TIME); }

QString TDiagnosticLog::NextFileName(ENewest newestIs)
{
    const tagSeries series = SeriesOf(m_BasePath);
    if (m_BasePath.isEmpty() || !QDir(series.folder).exists())
        return QString();

    const QFileInfoList files = FilesOldestFirst(series, newestIs);
    if (!files.isEmpty()) {
        const QFileInfo& newest = files.last();
        bool isNumbered = false;
        const int number = series.NumberOf(newest.fileName(), &isNumbered);
        if (isNumbered)
            m_Iteration = IterationAfter(number); // goes on after the files even if the stored number was lost
        if (newest.size() < m_MaxFileSize)
            return series.folder + newest.fileName();
        if (files.size() >= m_MaxFileCount)
            QFile::remove(files.first().filePath());
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

int TDiagnosticLog::tagSeries::NumberOf(const QString& fileName, bool* isNumbered) const
{
    return fileName.mid(stem.size(), fileName.size() - stem.size() - extension.size()).toInt(isNumbered);
}

TDiagnosticLog::tagSeries TDiagnosticLog::SeriesOf(const QString& basePath)
{
    const auto fileStart = basePath.lastIndexOf(QLatin1Char('/')) + 1;
    const QString file = basePath.mid(fileStart);
    const auto dot = file.lastIndexOf(QLatin1Char('.'));
    return {basePath.left(fileStart), file.left(dot), dot < 0 ? QString() : file.mid(dot)};
}

QFileInfoList TDiagnosticLog::FilesOldestFirst(const tagSeries& series, ENewest newest) const
{
    // Compared name by name rather than by a wildcard, in which a "[" of the stem would be more than a letter.
    std::vector<tagLogFile> files;
    const QFileInfoList entries = QDir(series.folder).entryInfoList(QDir::Files | QDir::Hidden, QDir::NoSort);
    for (const QFileInfo& entry : entries) {
        const QString name = entry.fileName();
        if (name.size() < series.stem.size() + series.extension.size() || !name.startsWith(series.stem) ||
            !name.endsWith(series.extension))
            continue;
        bool isNumbered = false;
        const int number = series.NumberOf(name, &isNumbered);
        const bool isCurrent = series.folder + name == m_FileName;
        const qint64 modified = isCurrent && newest == NEWEST_IS_CURRENT ? std::numeric_limits<qint64>::max()
                                                                         : entry.lastModified().toMSecsSinceEpoch();
        files.push_back({entry, modified, isCurrent, isNumbered ? number : -1});
    }

    RankRound(files);
    std::sort(files.begin(), files.end(), IsOlder);
    QFileInfoList sorted;
    for (const tagLogFile& file : files)
        sorted.append(file.info);
    return sorted;
}
