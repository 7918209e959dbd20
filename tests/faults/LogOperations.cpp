#include "Operations.h"

#include "logs/TDiagnosticLog.h"
#include "logs/TLogSeries.h"
#include "platform/TConfigManager.h"
#include "stores/TMemoryStore.h"

#include <QDir>
#include <QFile>
#include <QMap>

#include <algorithm>

namespace {

constexpr int MostFiles = 4;
constexpr int FileBytes = 100;
constexpr int StagingBytes = 64;
constexpr int FirstNew = 100; // lines of the operation; those before are there already
constexpr int LastNew = 124;
constexpr int NextLine = 900;
constexpr int OldFiles = 3;
constexpr int OldLines = 5; // in each full file

QByteArray Line(int number) { return QByteArray::number(number).rightJustified(6, '0') + " 0123456789ab\r\n"; }

QString Logs(const QString& folder) { return folder + QLatin1String("/logs"); }
QString Stick(const QString& folder) { return folder + QLatin1String("/stick"); }
QString Base(const QString& folder) { return Logs(folder) + QLatin1String("/user.log"); }

QString FileName(int number) { return TLogSeries(QLatin1String("/user.log")).GetName(number); }

QByteArray Bytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Put(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

/// The parameters of a terminal, for the numbers of the files.
class TParameters
{
public:
    TParameters()
    {
        m_Store.SetParameter(PARAM_USER_LOG_FILE_NUMBER, OldFiles + 1, true);
        ConfigManager = &m_Store;
    }

    ~TParameters() { ConfigManager = nullptr; }

    TParameters(const TParameters&) = delete;
    TParameters& operator=(const TParameters&) = delete;

private:
    TMemoryStore m_Store;
};

QByteArray OldContent(int number)
{
    QByteArray content;
    const int lines = number == OldFiles ? 2 : OldLines;
    for (int line = 0; line < lines; ++line)
        content += Line(number * 10 + line);
    return content;
}

void Prepare(const QString& folder)
{
    QDir().mkpath(Logs(folder));
    QDir().mkpath(Stick(folder));
    for (int number = 1; number <= OldFiles; ++number)
        Put(Logs(folder) + QLatin1Char('/') + FileName(number), OldContent(number));
    Put(Stick(folder) + QLatin1Char('/') + FileName(1), Line(1));
}

bool Log(TDiagnosticLog& log, int line)
{
    const QByteArray bytes = Line(line);
    return log.LogDiagnostic(bytes.constData(), static_cast<int>(bytes.size()));
}

bool WriteLines(const QString& folder, const std::function<void()>& begin, TPromises& promises, int staging)
{
    const TParameters parameters;
    TDiagnosticLog log(staging, FileBytes, MostFiles, PARAM_USER_LOG_FILE_NUMBER);
    begin();
    bool isDone = log.Restore(Base(folder), 0, 0);
    long long lost = 0;
    int first = FirstNew; // of the lines that are not promised yet
    for (int line = FirstNew; line <= LastNew; ++line) {
        if (!log.GetState().isOpen)
            log.Reopen();
        isDone = Log(log, line) && isDone;
        if (staging > 0 && line % 5 != 0)
            continue;
        log.FlushTempBuffer(); // what is staged is promised when it has been written
        for (; first <= line; ++first) {
            if (log.GetState().lostLines == lost)
                promises.Make(first);
        }
        lost = log.GetState().lostLines;
    }
    log.Close();
    return isDone && log.GetState().lostLines == 0;
}

bool WriteUnstaged(const QString& folder, const std::function<void()>& begin, TPromises& promises)
{
    return WriteLines(folder, begin, promises, 0);
}

bool WriteStaged(const QString& folder, const std::function<void()>& begin, TPromises& promises)
{
    return WriteLines(folder, begin, promises, StagingBytes);
}

/// The content of a series, taken apart.
struct tagLines
{
    QMap<int, QByteArray> files; ///< by number
    std::vector<int> numbers;    ///< of the whole lines, file after file
    int torn = 0;                ///< pieces that are not a line
    bool isTornBeforeOther = false;
};

/// A torn line has no line break: the line behind it is whole all the same.
void TakeLines(const QByteArray& content, tagLines* lines)
{
    const int length = static_cast<int>(Line(0).size());
    for (int at = 0; at < content.size();) {
        const int end = static_cast<int>(content.indexOf('\n', at)) + 1;
        const QByteArray piece = end > 0 ? content.mid(at, end - at) : content.mid(at);
        const QByteArray whole = piece.right(length);
        const int number = whole.left(6).toInt();
        const bool isWhole = whole == Line(number);
        if (isWhole)
            lines->numbers.push_back(number);
        if (piece.size() != (isWhole ? length : 0))
            ++lines->torn;
        at += static_cast<int>(piece.size());
    }
}

tagLines LinesOf(const QString& folder)
{
    tagLines lines;
    const QStringList names = QDir(Logs(folder)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    for (const QString& name : names)
        lines.files.insert(name.mid(4, 5).toInt(), Bytes(Logs(folder) + QLatin1Char('/') + name));
    for (const QByteArray& content : std::as_const(lines.files))
        TakeLines(content, &lines);
    return lines;
}

QByteArray BrokenSeries(const QString& folder, const tagAftermath& after)
{
    const tagLines lines = LinesOf(folder);
    if (lines.files.size() > MostFiles + 1 + after.refused)
        return QByteArray::number(lines.files.size()) + " files of " + QByteArray::number(MostFiles);
    for (int number = 1; number <= OldFiles; ++number) {
        const bool isRight = number == OldFiles ? lines.files.value(number).startsWith(OldContent(number))
                                                : lines.files.value(number) == OldContent(number);
        if (lines.files.contains(number) && !isRight)
            return "an old file has changed: " + QByteArray::number(number);
    }
    if (!std::is_sorted(lines.numbers.begin(), lines.numbers.end()))
        return "lines are not in their order";
    if (after.interruption == INTERRUPTION_OF_POWER)
        return QByteArray(); // a log hands its lines to the system, and syncs none of them
    if (lines.torn > 1)
        return QByteArray::number(lines.torn) + " torn lines";
    // What rotation has removed is older than everything that is kept.
    const int first = lines.numbers.empty() ? NextLine : lines.numbers.front();
    for (const int line : after.promises) {
        if (line >= first && !std::binary_search(lines.numbers.begin(), lines.numbers.end(), line))
            return "line " + QByteArray::number(line) + " is missing";
    }
    if (!after.promises.empty() && first > after.promises.back())
        return "every line is missing";
    return QByteArray();
}

/// The next program logs one line, which is the last of the last file.
QByteArray BrokenNext(const QString& folder)
{
    const TParameters parameters;
    {
        TDiagnosticLog log(0, FileBytes, MostFiles, PARAM_USER_LOG_FILE_NUMBER);
        if (!log.Restore(Base(folder), 0, 0) || !Log(log, NextLine))
            return "the next program cannot log";
    }
    const tagLines lines = LinesOf(folder);
    if (lines.numbers.empty() || lines.numbers.back() != NextLine)
        return "the next line is not the last one";
    return QByteArray();
}

QByteArray BrokenLog(const QString& folder, const tagAftermath& after)
{
    const QByteArray broken = BrokenSeries(folder, after);
    return broken.isEmpty() ? BrokenNext(folder) : broken;
}

bool Export(const QString& folder, const std::function<void()>& begin, TPromises& promises)
{
    const TParameters parameters;
    TDiagnosticLog log(0, FileBytes, MostFiles, PARAM_USER_LOG_FILE_NUMBER);
    if (!log.Restore(Base(folder), 0, 0))
        return false;
    begin();
    const TDiagnosticLog::tagExportResult result = log.Export(Stick(folder));
    if (result.allCopied)
        promises.Make(result.filesFound);
    return result.allCopied && log.GetState().isOpen;
}

QByteArray BrokenExport(const QString& folder, const tagAftermath& after)
{
    for (int number = 1; number <= OldFiles; ++number) {
        const QString name = FileName(number);
        const QByteArray there = Bytes(Stick(folder) + QLatin1Char('/') + name);
        const QByteArray former = number == 1 ? Line(1) : QByteArray();
        if (Bytes(Logs(folder) + QLatin1Char('/') + name) != OldContent(number))
            return "the export has changed " + name.toUtf8();
        if (there == OldContent(number))
            continue;
        if (!after.promises.empty())
            return "the export has reported " + name.toUtf8() + ", which is not on the stick";
        if (there != former || (former.isEmpty() && QFile::exists(Stick(folder) + QLatin1Char('/') + name)))
            return "neither the old nor the new file: " + name.toUtf8();
    }
    if (!after.promises.empty() && after.promises.front() != OldFiles)
        return "the export has reported " + QByteArray::number(after.promises.front()) + " files";
    TPromises promises;
    promises.Begin();
    if (!Export(
            folder, [] {}, promises))
        return "the next export fails";
    return Leftovers(folder);
}

} // namespace

std::vector<tagOperation> LogOperations()
{
    return {
        {"log, each line at once", &Prepare, &WriteUnstaged, &BrokenLog, false, false, 1},
        {"log, staged lines", &Prepare, &WriteStaged, &BrokenLog, false, false, 1},
        {"export of a log", &Prepare, &Export, &BrokenExport, false, true, 1},
    };
}
