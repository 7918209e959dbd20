#include "diagnostics/LogTimes.h"

#include "logs/TLogSeries.h"

#include <QFile>

#include <algorithm>
#include <ctime>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

constexpr qint64 MillisecondsPerSecond = 1000;
constexpr qint64 NanosecondsPerMillisecond = 1000000;
constexpr qint64 Tick = 1; // milliseconds: the log compares no finer times

/// A file that the log has made.
struct tagOrderedFile
{
    QByteArray path;
    int number;
    qint64 modified;   ///< milliseconds since 1970
    std::size_t place; ///< in the order of the log, which goes by time
};

bool IsLater(const tagOrderedFile& one, const tagOrderedFile& other)
{
    return one.modified != other.modified ? one.modified > other.modified : one.place > other.place;
}

int LastNumber()
{
    int number = 1;
    while (TLogSeries::GetNumberAfter(number) > number)
        ++number;
    return number;
}

/// Whether the log itself gives a file this name: a copy may have a date or "1" where the log writes "00001".
bool IsOfLog(const TLogSeries& series, const TLogSeries::tagFile& file)
{
    const int number = file.number.value_or(0);
    return number > 0 && TLogSeries::GetNumberAfter(number - 1) == number && series.GetName(number) == file.name;
}

bool IsRegular(const QByteArray& path)
{
    struct stat status = {};
    return fstatat(AT_FDCWD, path.constData(), &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(status.st_mode);
}

/// The first number follows the last one: numbers in the lower half are the later ones when others are far above them.
void SortByNumber(std::vector<tagOrderedFile>* files)
{
    const int last = LastNumber();
    int greatest = 0;
    for (const tagOrderedFile& file : *files)
        greatest = std::max(greatest, file.number);
    const auto rank = [greatest, last](const tagOrderedFile& file) {
        return greatest - file.number > last / 2 ? file.number + last : file.number;
    };
    std::sort(files->begin(), files->end(),
              [rank](const tagOrderedFile& one, const tagOrderedFile& other) { return rank(one) < rank(other); });
}

void SetTime(const QByteArray& path, qint64 milliseconds)
{
    const qint64 rest = (milliseconds % MillisecondsPerSecond + MillisecondsPerSecond) % MillisecondsPerSecond;
    timespec time = {};
    time.tv_sec = static_cast<time_t>((milliseconds - rest) / MillisecondsPerSecond);
    time.tv_nsec = static_cast<long>(rest * NanosecondsPerMillisecond);
    const timespec times[] = {time, time};
    // A drive that takes no times leaves the order as it is: the log goes on all the same.
    static_cast<void>(utimensat(AT_FDCWD, path.constData(), times, AT_SYMLINK_NOFOLLOW));
}

} // namespace

void OrderLogTimes(const QString& basePath)
{
    const TLogSeries series(basePath);
    std::vector<TLogSeries::tagFile> found;
    if (!series.ReadFiles(QString(), &found))
        return; // the file before one of those that were found may be missing
    std::vector<tagOrderedFile> files;
    for (const TLogSeries::tagFile& file : found) {
        const QByteArray path = QFile::encodeName(series.GetPath(file.name));
        if (IsOfLog(series, file) && IsRegular(path))
            files.push_back({path, *file.number, file.modified, files.size()});
    }
    SortByNumber(&files);
    for (std::size_t i = 1; i < files.size(); ++i) {
        if (IsLater(files[i], files[i - 1]))
            continue;
        files[i].modified = files[i - 1].modified + Tick;
        SetTime(files[i].path, files[i].modified);
    }
}
