#pragma once

#include <QByteArray>
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
    QString drive; ///< the internal drive, without a separator at the end
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

/// The base paths of the logs, and what comes before the text in a line of the user log: "2024.03.05-14:05:09:042,"
QString UserLogPath(const QString& drive);
QString NMEALogPath(const QString& drive);
constexpr int StampLength = 24;

/// The start of what every selection and text in memory may hold.
extern const char* const FirstName;
