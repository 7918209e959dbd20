#pragma once

#include <QString>

#include <cstdio>
#include <functional>
#include <vector>

class QQuickWindow;

struct tagBenchPlan
{
    int frames = 1200; ///< of each amount of coverage: four hundred metres of the drive, with a turn
    int warmUpFrames = 60;
    int liveSeconds = 20;
    std::FILE* output = stdout;
};

/// Measures the display whose window was just shown and has drawn nothing yet, and prints what it finds: the time from
/// the start of the process to the first frame, the frames of a drive on a map with an hour and with ten hours of
/// coverage, as fast as they come, the slowest frame of a zoom through all levels, the share of one core that live work
/// takes, with ten hours of coverage on the map, and the memory.
///
/// @p startWork begins live work on the display, which is to cover ground: a receiver at ten fixes a second. It returns
/// what has failed, or an empty text. Without it the bench sets ten places and covers ten strips a second by itself.
///
/// @code
/// return RunBench(*session.Window(), [&] { return StartBenchWork(session.Engine(), &error) ? QString() : error; });
/// @endcode
///
/// Returns 0, or 1 after a message on stderr where the window has no map or draws no frame, or where live work fails or
/// covers nothing. What the map shows is replaced. To be called from the thread of the application object, which is not
/// running its loop.
int RunBench(QQuickWindow& window, const std::function<QString()>& startWork = {}, const tagBenchPlan& plan = {});

/// The smallest value that is not below part of all, 0 to 1: the median for 0.5. 0 of none.
double Percentile(std::vector<double> values, double part);
