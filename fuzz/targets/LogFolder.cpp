// A log of the running terminal in a folder with any files: their names, sizes and times.

#include "logs/TDiagnosticLog.h"
#include "logs/TLogSeries.h"
#include "platform/EParamID.h"
#include "stores/TMemoryStore.h"
#include "support/FuzzTarget.h"
#include "support/TFuzzInput.h"
#include "support/TFuzzRoom.h"
#include "terminal/TTerminalParameters.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QScopedValueRollback>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <ctime>
#include <limits>

namespace {

const int MostFiles = 12;
const int MostLines = 8;
const int LineLength = 70;
const int LinesOfFile = 3; // that fill it
const int MaxFileSize = LinesOfFile * LineLength - 10;
const int NoNumber = -1;  // is never stored by a log
const int FirstFiles = 2; // one that is there, and fills with the first line, and the one behind it
const int MostKept = 6;
const int LongestSeries = 1000; // from the first number to the last one, far from a gap that counts as 99999 to 00001

/// The files in a folder.
using TFiles = QMap<QByteArray, QByteArray>;

TFiles FilesIn(const QString& folder)
{
    TFiles files;
    const QDir::Filters filters = QDir::Files | QDir::Hidden | QDir::System;
    for (const QString& name : QDir(folder).entryList(filters))
        files.insert(QFile::encodeName(name), FuzzFiles::Content(folder + QLatin1Char('/') + name));
    return files;
}

/// A name of the series, or any other.
QByteArray NameOf(TFuzzInput& input)
{
    const bool isOfSeries = input.Bool();
    QByteArray name = input.ShortBytes();
    if (isOfSeries)
        name = "user" + name + ".log";
    name.replace('/', '-').replace('\0', '-');
    return name.left(200);
}

/// Makes a file with any time; one that cannot be made is left out.
void MakeFile(const QString& folder, TFuzzInput& input)
{
    const QByteArray name = QFile::encodeName(folder) + '/' + NameOf(input);
    const int size = 4 * input.Byte();
    const time_t modified = 2 * static_cast<time_t>(input.Int()); // 1833 to 2106: on both sides of 1970 and 2038
    const int file = open(name.constData(), O_CREAT | O_WRONLY | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0644);
    if (file < 0)
        return;
    const QByteArray content(size, 'x');
    Expect(write(file, content.constData(), static_cast<size_t>(size)) == size, "the folder takes files");
    const timespec times[2] = {{modified, 0}, {modified, 0}};
    futimens(file, times);
    close(file);
}

int CountOfSeries(const TFiles& files)
{
    int count = 0;
    for (auto file = files.begin(); file != files.end(); ++file)
        count += file.key().startsWith("user") && file.key().endsWith(".log") && file.key().size() >= 8 ? 1 : 0;
    return count;
}

/// Whether the file is there, with lines behind it at most. A number that a removed file had may have been taken again.
bool IsKept(const QByteArray& name, const QByteArray& content, const TFiles& after)
{
    return after.contains(name) && after[name].startsWith(content);
}

/// Each number that is taken may cost one file. It is mostly the number of a new file; with other names in the folder
/// the log may come to the number of a file that is there, and goes on with that.
void ExpectKept(const TFiles& before, const TFiles& after, int numbersTaken)
{
    int removed = 0;
    for (auto file = before.begin(); file != before.end(); ++file)
        removed += IsKept(file.key(), file.value(), after) ? 0 : 1;
    Expect(removed <= numbersTaken, "a file is removed only with a number that is taken");
}

/// The number in a name that the log gives; 0 in any other.
int NumberOf(const QByteArray& name)
{
    const int number = name.mid(4, 5).toInt();
    return number > 0 && QFile::decodeName(name) == TLogSeries(QLatin1String("user.log")).GetName(number) ? number : 0;
}

/// Whether the log has made all these files itself, one after the other.
bool IsSeries(const TFiles& files)
{
    const int first = files.isEmpty() ? 0 : NumberOf(files.firstKey());
    const int last = files.isEmpty() ? 0 : NumberOf(files.lastKey());
    const auto isOfLog = [](const QByteArray& name) { return NumberOf(name) > 0; };
    const QList<QByteArray> names = files.keys();
    return std::all_of(names.begin(), names.end(), isOfLog) && last - first <= LongestSeries;
}

/// Whatever the times of the files say.
void ExpectFirstRemoved(const TFiles& before, const TFiles& after)
{
    bool isKept = false;
    for (auto file = before.begin(); file != before.end(); ++file) {
        Expect(!isKept || IsKept(file.key(), file.value(), after), "a log removes the file with its first number");
        isKept = isKept || IsKept(file.key(), file.value(), after);
    }
}

bool HasFileWithEnd(const TFiles& files, const QByteArray& end)
{
    return std::any_of(files.begin(), files.end(), [&end](const QByteArray& content) { return content.endsWith(end); });
}

/// Whether the log has taken a number since the last call: it stores the next one then. It does not read it again.
bool HasTakenNumber()
{
    TMemoryStore& store = TFuzzRoom::Get().Store();
    const bool hasTaken = store.GetParameter(PARAM_USER_LOG_FILE_NUMBER).toInt() != NoNumber;
    store.SetParameter(PARAM_USER_LOG_FILE_NUMBER, NoNumber, false);
    return hasTaken;
}

void Check(const QByteArray& bytes)
{
    TFuzzInput input(bytes);
    const QString folder = TFuzzRoom::Get().NewFolder();
    const int keptAtMost = 2 + input.Byte() % (MostKept - 1);
    TFuzzRoom::Get().Store().SetParameter(PARAM_USER_LOG_FILE_NUMBER, input.Int(), false);
    const int lines = input.Byte() % (MostLines + 1);
    for (int count = 0; count < MostFiles && !input.IsAtEnd(); ++count)
        MakeFile(folder, input);
    const TFiles before = FilesIn(folder);

    const QString basePath = folder + QLatin1String("/user.log");
    TTerminalParameters parameters(TFuzzRoom::Get().Store(), folder);
    const QScopedValueRollback<TConfigManager*> published(ConfigManager, &parameters);
    QByteArray line;
    int numbersTaken = 0;
    {
        TDiagnosticLog log(0, MaxFileSize, keptAtMost, PARAM_USER_LOG_FILE_NUMBER);
        HasTakenNumber(); // forgets the stored one
        parameters.KeepInOrder(PARAM_USER_LOG_FILE_NUMBER, basePath);
        const bool isRestored = log.Restore(basePath, 0, 0);
        numbersTaken += HasTakenNumber() ? 1 : 0;
        if (!isRestored) {
            ExpectKept(before, FilesIn(folder), numbersTaken);
            return;
        }
        for (int number = 0; number < lines; ++number) {
            line = QByteArray::number(number) + QByteArray(LineLength, '.') + "\r\n";
            Expect(log.WriteToLog(line.constData(), static_cast<int>(line.size())), "a line is written");
            numbersTaken += HasTakenNumber() ? 1 : 0;
        }
        Expect(log.GetState().lostLines == 0, "no line is lost");
    }
    const TFiles after = FilesIn(folder);
    const int countBefore = CountOfSeries(before);
    const int countAfter = CountOfSeries(after);
    Expect(countAfter <= qMax(countBefore, keptAtMost), "there are no more files than may be kept");
    ExpectKept(before, after, numbersTaken);
    if (IsSeries(before)) {
        Expect(numbersTaken <= FirstFiles + lines / LinesOfFile, "a number is taken only for a new file");
        ExpectFirstRemoved(before, after);
    }
    Expect(HasFileWithEnd(after, line), "the last line is in a file, whole");

    const TLogSeries series(basePath);
    qint64 modified = std::numeric_limits<qint64>::min();
    for (const TLogSeries::tagFile& file : series.GetFiles()) {
        Expect(file.modified >= modified, "the files are listed from the oldest to the newest");
        modified = file.modified;
    }
}

QList<QByteArray> Seeds()
{
    const int day = 857260800; // in 2024
    TFuzzSeed full;
    full.Byte(2).Int(17).Byte(5);
    for (int number = 11; number < 17; ++number)
        full.Byte(1).ShortBytes(QByteArray::number(number).rightJustified(5, '0')).Byte(60).Int(day + number);
    TFuzzSeed wrapped;
    wrapped.Byte(1).Int(3).Byte(8);
    for (const char* number : {"99998", "99999", "00001", "guide"})
        wrapped.Byte(1).ShortBytes(number).Byte(50).Int(day);
    TFuzzSeed copied; // a copy as the newest file, and its next number is there
    copied.Byte(1).Int(9).Byte(4);
    for (const char* number : {"00003", "00004", "00005", "3"})
        copied.Byte(1).ShortBytes(number).Byte(60).Int(day + 9);
    return {TFuzzSeed().Byte(0).Int(1).Byte(3), full, wrapped, copied,
            TFuzzSeed().Byte(3).Int(-1).Byte(2).Byte(0).ShortBytes(".user00001.log").Byte(3).Int(-5)};
}

} // namespace

namespace FuzzTargets {

tagFuzzTarget LogFolder() { return {"LogFolder", Check, Seeds}; }

} // namespace FuzzTargets
