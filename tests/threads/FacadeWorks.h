#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QColor>
#include <QString>
#include <QStringList>

#include <functional>
#include <random>
#include <set>
#include <utility>
#include <vector>

/// One of the threads that call the façades, and what it has found. Only that thread uses it until it has ended.
struct tagWorker
{
    int number;
    QString exports;      ///< a folder of the thread's own
    QString userLog;      ///< base path
    QString nmeaLog;      ///< base path
    QByteArray eventText; ///< what the host calls the event whose code is the thread's number
    std::mt19937& random;

    /// What a call put into a log: without time stamp, in the order of the calls.
    struct tagLogged
    {
        QByteArrayList lines;   ///< the calls that returned true
        long refused = 0;       ///< the calls that returned false
        long long mostLost = 0; ///< as the log last counted its lost lines
    };
    tagLogged user;
    tagLogged nmea;

    std::set<std::pair<int, QString>> quantities; ///< each unit that was shown, with its text
    QStringList faults;
    long calls = 0;

    /// From 0 to @p end - 1.
    int Draw(int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); }
};

/// What a thread does besides plain calls, to see whether the answers hold together. False when they do not.
struct tagWork
{
    const char* name;
    int weight; ///< how often it is chosen, compared with the others
    bool (*work)(tagWorker&);
};

const std::vector<tagWork>& FacadeWorks();

/// A text for a line of @p log, unlike that of any other line of any thread.
QByteArray LineText(tagWorker& worker, const tagWorker::tagLogged& log);

/// Remembers that @p line was given to a log, and whether it was taken.
void NoteLine(tagWorker::tagLogged& log, const QByteArray& line, bool isLogged);

/// A call of one operation of a façade, whose answer depends on what other threads do.
struct tagFacadeCall
{
    const char* name;
    std::function<void()> call;
};

/// Every operation of the façades of system, region and colours. Those of the logs are works, since a log must not be
/// led to another file here.
std::vector<tagFacadeCall> FacadeCalls();

/// The parameters that change the texts of FacadeWorks(), each 0 or 1, and the text of a value in a unit.
void ChooseMeasures(int bits);
constexpr int MeasureChoices = 16;
QString QuantityText(int unit);

/// What every selection, the CFF root and the software version hold at first, and both map colours, if any.
extern const char* const FirstName;
QColor FirstColor();
