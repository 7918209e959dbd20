#include "HeapTrend.h"
#include "MemoryFolder.h"
#include "TSeason.h"
#include "TestLength.h"
#include "TestResults.h"

#include <QElapsedTimer>
#include <QtTest>

#include <algorithm>
#include <stdexcept>
#include <vector>

/// A season of work in minutes: whatever a terminal keeps and writes stays within its bounds, and nothing is lost. An
/// hour of work takes some seconds, and the whole season about half an hour:
///
///     TZ=UTC GLIBC_TUNABLES=glibc.malloc.tcache_count=0:glibc.malloc.arena_max=1 CABSETTINGS_TEST_LENGTH=500
///     QTEST_FUNCTION_TIMEOUT=14400000 build/default/tests/host/season/Season
///
/// What the C library keeps for each thread counts as memory in use, and its heap for each thread gets holes: both grow
/// slowly up to a bound. The tunables leave them out.
class Season : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { KeepTemporaryFilesInMemory(); }
    void nothingIsLostAndNothingGrows();
};

namespace {

/// The length is the number of hours: one of them on ten days, 500 on fifty.
constexpr int ShortestShift = 6;  ///< minutes
constexpr int LongestShift = 600; ///< minutes

int ShiftMinutes() { return std::min(ShortestShift * TestLength(), LongestShift); }
int Shifts() { return 60 * TestLength() / ShiftMinutes(); }

constexpr double Kilobyte = 1024;

/// What the heap may grow by in the second half, however little noise there is: caches that were not full yet.
constexpr double MostGrowth = 1024 * Kilobyte;

/// What the samples of the second half grow by, and how sure that is.
struct tagGrowth
{
    HeapTrend::tagTrend trend;
    double hours;
};

tagGrowth GrowthOf(const std::vector<TSeason::tagSample>& samples, double TSeason::tagSample::*value)
{
    std::vector<double> half;
    for (std::size_t i = samples.size() / 2; i < samples.size(); ++i)
        half.push_back(samples[i].*value);
    return {HeapTrend::Of(half), samples.back().hours - samples[samples.size() / 2].hours};
}

bool IsFlat(const tagGrowth& growth) { return !HeapTrend::IsGrowing(growth.trend) || growth.trend.growth < MostGrowth; }

/// For the results: first, last, growth in 100 hours and its standard error; kilobytes.
QByteArrayList Fields(const std::vector<TSeason::tagSample>& samples, double TSeason::tagSample::*value)
{
    const tagGrowth growth = GrowthOf(samples, value);
    QByteArrayList fields;
    for (const double bytes : {samples.front().*value, samples.back().*value, growth.trend.growth * 100 / growth.hours,
                               growth.trend.noise * 100 / growth.hours})
        fields += QByteArray::number(bytes / Kilobyte, 'f', 1);
    return fields;
}

} // namespace

void Season::nothingIsLostAndNothingGrows()
{
    QElapsedTimer elapsed;
    elapsed.start();
    TSeason season(Shifts(), ShiftMinutes());
    try {
        season.Run();
    } catch (const std::runtime_error& fault) {
        QFAIL(fault.what());
    }
    const TSeason::tagCounts& counts = season.Counts();

    // Every entry of the user log, once.
    const TUserLogCheck::tagCounts& entries = season.UserLog().Counts();
    QCOMPARE(entries.codes, counts.codes);
    QCOMPARE(entries.parameters, counts.parameterChanges);
    QCOMPARE(entries.firstFixes, qint64(counts.starts));
    QCOMPARE(entries.losses, counts.losses);
    QCOMPARE(entries.returns, counts.losses);
    QCOMPARE(entries.timesSet, counts.starts + counts.losses);
    QCOMPARE(entries.damaged, counts.damaged);
    QCOMPARE(entries.others, qint64(0));

    // Both logs have passed their last number.
    QVERIFY(season.NmeaLog().Number() < TSeason::FirstNmeaFile);
    QVERIFY(season.UserLog().Number() < TSeason::FirstUserFile);
    QCOMPARE(counts.starts, Shifts());
    QCOMPARE(counts.daySwitches, 2 * Shifts());

    // The clock was set at each start, and while the terminal ran.
    QVERIFY(counts.clockSteps > 2 * counts.starts);

    const std::vector<TSeason::tagSample>& samples = season.Samples();
    QByteArrayList fields = {
        QByteArray::number(samples.back().hours, 'f', 1),
        QByteArray::number(counts.epochs),
        QByteArray::number(counts.sentences),
        QByteArray::number(counts.starts),
        QByteArray::number(counts.exports),
        QByteArray::number(season.NmeaLog().Rotations()),
        QByteArray::number(season.UserLog().Rotations()),
        QByteArray::number(counts.daySwitches),
        QByteArray::number(counts.parameterChanges),
        QByteArray::number(counts.clockSteps),
        QByteArray::number(int{TSeason::Fields}),
        QByteArray::number(counts.hectares, 'f', 1),
        QByteArray::number(counts.strips),
        QByteArray::number(counts.blocks),
        QByteArray::number(season.Store().MostEntries()),
        QByteArray::number(season.Store().MostCopies()),
    };
    fields += Fields(samples, &TSeason::tagSample::rss) + Fields(samples, &TSeason::tagSample::heap);
    fields << QByteArray::number(counts.descriptors)
           << QByteArray::number(static_cast<double>(elapsed.elapsed()) / 1000, 'f', 1);
    AppendTestResult("season", fields);
    qDebug("season %s", fields.join(' ').constData());
    QVERIFY2(IsFlat(GrowthOf(samples, &TSeason::tagSample::heap)), "the heap grows");
    if (CABSETTINGS_MEASURES_RSS)
        QVERIFY2(IsFlat(GrowthOf(samples, &TSeason::tagSample::rss)), "the resident memory grows");
}

QTEST_GUILESS_MAIN(Season)
#include "Season.moc"
