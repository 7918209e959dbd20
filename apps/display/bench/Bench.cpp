#include "display/bench/Bench.h"

#include "display/bench/BenchDrive.h"
#include "display/bench/TFrameWatch.h"
#include "display/map/TMapItem.h"

#include <QEventLoop>
#include <QFile>
#include <QQuickWindow>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <unistd.h>

namespace {

double Seconds(clockid_t clock)
{
    timespec time = {};
    clock_gettime(clock, &time);
    return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
}

/// The age of this process, to a hundredth of a second.
double SecondsSinceStart()
{
    QFile file(QStringLiteral("/proc/self/stat"));
    if (!file.open(QIODevice::ReadOnly))
        return std::nan("");
    // The name of the program, in brackets, may hold blanks: fields are counted behind it.
    const QByteArray stat = file.readAll();
    const QList<QByteArray> fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
    constexpr int StartTime = 19;
    return Seconds(CLOCK_BOOTTIME) - fields.value(StartTime).toDouble() / double(sysconf(_SC_CLK_TCK));
}

/// Megabytes of a line of the process's status.
double Megabytes(const QByteArray& name)
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (file.open(QIODevice::ReadOnly))
        for (const QByteArray& line : file.readAll().split('\n'))
            if (line.startsWith(name + ':'))
                return line.mid(name.size() + 1).trimmed().split(' ').constFirst().toDouble() / 1024;
    return std::nan("");
}

TMapItem* FindMap(QQuickItem* item)
{
    if (auto* map = qobject_cast<TMapItem*>(item))
        return map;
    for (QQuickItem* child : item->childItems())
        if (TMapItem* map = FindMap(child))
            return map;
    return nullptr;
}

void PrintPercentiles(const char* what, const std::vector<double>& values, std::FILE* output)
{
    std::fprintf(output, "    %-9s median %6.2f ms, 95 %% %6.2f ms, 99 %% %6.2f ms\n", what, Percentile(values, 0.5),
                 Percentile(values, 0.95), Percentile(values, 0.99));
}

bool MeasureFrames(TFrameWatch& watch, TMapModel& model, int hours, const tagBenchPlan& plan)
{
    int fix = hours * BenchDrive::FixesPerHour;
    DriveBenchField(model, 0, fix);
    std::vector<double> elapsed;
    std::vector<double> worked;
    for (int frame = 0; frame < plan.warmUpFrames + plan.frames; ++frame, ++fix) {
        const std::optional<tagFrameTime> time = watch.Frame([&] { DriveBenchField(model, fix, fix + 1); });
        if (!time)
            return false;
        if (frame < plan.warmUpFrames)
            continue;
        elapsed.push_back(time->elapsed);
        worked.push_back(time->worked);
    }
    std::fprintf(plan.output, "%d h of coverage, %d strips, %d frames\n", hours, int(model.Strips().size()),
                 plan.frames);
    PrintPercentiles("elapsed:", elapsed, plan.output);
    PrintPercentiles("worked:", worked, plan.output);
    return true;
}

bool MeasureZoom(TFrameWatch& watch, TMapItem& map, const tagBenchPlan& plan)
{
    const int before = map.Zoom();
    tagFrameTime slowest = {};
    for (int zoom = 0; zoom < ZoomLevels; ++zoom) {
        const std::optional<tagFrameTime> time = watch.Frame([&] { map.SetZoom(zoom); });
        if (!time)
            return false;
        if (time->worked > slowest.worked)
            slowest = *time;
    }
    map.SetZoom(before);
    std::fprintf(plan.output, "slowest frame of a zoom through all levels: %.1f ms, worked %.1f ms\n", slowest.elapsed,
                 slowest.worked);
    return true;
}

void Wait(int seconds)
{
    QEventLoop loop;
    QTimer::singleShot(seconds * 1000, &loop, &QEventLoop::quit);
    loop.exec();
}

bool MeasureLive(TMapItem& map, TMapModel& model, const tagBenchPlan& plan)
{
    int fixes = 0;
    int strips = 0;
    int frames = 0;
    const QMetaObject::Connection connections[] = {
        QObject::connect(&model, &TMapModel::VehicleChanged, &model, [&] { ++fixes; }),
        QObject::connect(&model, &TMapModel::StripAdded, &model, [&] { ++strips; }),
        QObject::connect(map.window(), &QQuickWindow::frameSwapped, &model, [&] { ++frames; })};
    const double wall = Seconds(CLOCK_MONOTONIC);
    const double busy = Seconds(CLOCK_PROCESS_CPUTIME_ID);
    Wait(plan.liveSeconds);
    const double share = (Seconds(CLOCK_PROCESS_CPUTIME_ID) - busy) / (Seconds(CLOCK_MONOTONIC) - wall);
    for (const QMetaObject::Connection& connection : connections)
        QObject::disconnect(connection);
    const auto perSecond = [&plan](int count) { return double(count) / plan.liveSeconds; };
    std::fprintf(plan.output, "live: %.1f %% of one core, at %.1f fixes, %.1f strips and %.1f frames a second\n",
                 100 * share, perSecond(fixes), perSecond(strips), perSecond(frames));
    return strips > 0;
}

/// Empty, or what has failed.
QString MeasureLiveWork(TMapItem& map, TMapModel& model, const std::function<QString()>& startWork,
                        const tagBenchPlan& plan)
{
    int fix = 10 * BenchDrive::FixesPerHour;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &model, [&] {
        DriveBenchField(model, fix, fix + 1);
        ++fix;
    });
    QString problem = startWork ? startWork() : QString();
    if (!problem.isEmpty())
        return problem;
    // Work that has just selected its job has replaced what the map showed.
    DriveBenchField(model, 0, fix);
    if (!startWork)
        timer.start(1000 / BenchDrive::FixesPerSecond);
    Wait(1);
    return MeasureLive(map, model, plan) ? QString() : QStringLiteral("live work covers nothing");
}

int Fail(const char* problem)
{
    std::fprintf(stderr, "cabdisplay: %s\n", problem);
    return 1;
}

} // namespace

double Percentile(std::vector<double> values, double part)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    const double rank = std::ceil(part * double(values.size()));
    return values[std::size_t(std::clamp(rank, 1.0, double(values.size()))) - 1];
}

int RunBench(QQuickWindow& window, const std::function<QString()>& startWork, const tagBenchPlan& plan)
{
    TMapItem* map = FindMap(window.contentItem());
    auto* model = map == nullptr ? nullptr : qobject_cast<TMapModel*>(map->Model());
    if (model == nullptr)
        return Fail("the bench finds no map in the window");
    TFrameWatch watch(window);
    if (!watch.Frame([&] { window.update(); }))
        return Fail("the window draws no frame");
    std::fprintf(plan.output, "%d x %d, Qt %s, %s renderer\n", window.width(), window.height(), qVersion(),
                 qPrintable(QQuickWindow::sceneGraphBackend()));
    std::fprintf(plan.output, "start to first frame: %.2f s\n", SecondsSinceStart());

    LayOutBenchField(*model);
    for (const int hours : {1, 10})
        if (!MeasureFrames(watch, *model, hours, plan))
            return Fail("the window draws no frame");
    if (!MeasureZoom(watch, *map, plan))
        return Fail("the window draws no frame");
    const QString problem = MeasureLiveWork(*map, *model, startWork, plan);
    if (!problem.isEmpty())
        return Fail(qUtf8Printable(problem));
    std::fprintf(plan.output, "memory: %.0f MB, at most %.0f MB\n", Megabytes("VmRSS"), Megabytes("VmHWM"));
    return 0;
}
