#include "diagnostics/LogTimes.h"

#include "logs/TLogSeries.h"

#include <QFile>

#include <algorithm>
#include <ctime>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

constexpr int NumbersInAll = 99999;
constexpr qint64 MillisecondsPerSecond = 1000;
constexpr qint64 NanosecondsPerMillisecond = 1000000;

using TFiles = std::vector<TLogSeries::tagFile>;

qint64 Now()
{
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    return now.tv_sec * MillisecondsPerSecond + now.tv_nsec / NanosecondsPerMillisecond;
}

TFiles NumberedFiles(const TLogSeries& series)
{
    TFiles files = series.GetFiles();
    files.erase(
        std::remove_if(files.begin(), files.end(), [](const TLogSeries::tagFile& file) { return !file.number; }),
        files.end());
    return files;
}

/// 00001 follows 99999: numbers in the lower half are the later ones when there are others far above them.
void SortByNumber(TFiles* files)
{
    int greatest = 0;
    for (const TLogSeries::tagFile& file : *files)
        greatest = std::max(greatest, *file.number);
    const auto rank = [greatest](const TLogSeries::tagFile& file) {
        return greatest - *file.number > NumbersInAll / 2 ? *file.number + NumbersInAll : *file.number;
    };
    std::stable_sort(
        files->begin(), files->end(),
        [rank](const TLogSeries::tagFile& one, const TLogSeries::tagFile& other) { return rank(one) < rank(other); });
}

void SetTime(const QString& path, qint64 milliseconds)
{
    const qint64 rest = (milliseconds % MillisecondsPerSecond + MillisecondsPerSecond) % MillisecondsPerSecond;
    timespec time = {};
    time.tv_sec = static_cast<time_t>((milliseconds - rest) / MillisecondsPerSecond);
    time.tv_nsec = static_cast<long>(rest * NanosecondsPerMillisecond);
    const timespec times[] = {time, time};
    // A drive that takes no times leaves the order as it is: the log goes on all the same.
    static_cast<void>(utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0));
}

} // namespace

void OrderLogTimes(const QString& basePath)
{
    const TLogSeries series(basePath);
    TFiles files = NumberedFiles(series);
    std::vector<qint64> times; // in their order
    const qint64 now = Now();
    for (const TLogSeries::tagFile& file : files)
        times.push_back(std::min(file.modified, now));
    SortByNumber(&files);
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (files[i].modified != times[i])
            SetTime(series.GetPath(files[i].name), times[i]);
    }
}
