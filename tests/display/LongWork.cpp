#include "HeapTrend.h"
#include "TestLength.h"
#include "support/RestingHeap.h"
#include "support/TOpenDisplay.h"

#include "display/fieldwork/DemoField.h"
#include "display/fieldwork/TWork.h"
#include "display/map/TMapModel.h"
#include "module/CabQuick.h"
#include "nmea/TFieldSimulator.h"
#include "receiver/SimulatedField.h"
#include "receiver/TReceiver.h"

#include <QQmlEngine>
#include <QtTest>

#include <cmath>

/// A day of work takes the memory that its coverage must take, and no more.
class LongWork : public QObject
{
    Q_OBJECT

private slots:
    void takesTheMemoryOfItsCoverageOnly();
};

namespace {

/// Ten minutes. CABSETTINGS_TEST_LENGTH=60 works ten hours, in five minutes or so.
const int Fixes = 6000;
const int FixesPerSample = 500;
const int FixesPerFrame = 50;

/// The tally of covered ground, of passes that meet edge to edge: it keeps the edges cell by cell.
const double BytesPerHectare = 50'000;

/// The strips of the map and the way at each of them, both in memory that doubles when it is full.
double StripBytes(const TMapModel& map)
{
    const auto count = static_cast<double>(map.Strips().size());
    const double ways = count > 0 ? std::exp2(std::ceil(std::log2(count))) : 0;
    return static_cast<double>(map.Strips().capacity()) * sizeof(tagMapStrip) + ways * sizeof(double);
}

double Megabytes(double bytes) { return bytes / (1024 * 1024); }

} // namespace

void LongWork::takesTheMemoryOfItsCoverageOnly()
{
    TOpenDisplay display(QSize(1280, 800));
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    QQmlEngine& engine = *qmlEngine(&display.Window());
    QString error;
    QVERIFY2(MakeDemoField(engine, &error), qPrintable(error));
    TWork& work = *TWork::Of(engine);
    QTRY_VERIFY_WITH_TIMEOUT(!work.IsLoading() && work.JobText() == QLatin1String(DemoField::Job), 60000);
    const TMapModel& map = *qobject_cast<TMapModel*>(work.Map());
    tagFieldPlan plan = CabQuick::SimulatedPlan();
    plan.passes = 5 * TestLength();
    TFieldSimulator simulator(plan);
    work.SetWorking(true);

    std::vector<double> rest;
    for (int fix = 0; fix <= Fixes * TestLength(); ++fix) {
        CabQuick::Receiver().Show(simulator.NextEpoch());
        if (fix % FixesPerFrame == 0)
            QCoreApplication::processEvents();
        if (fix % FixesPerSample != 0)
            continue;
        const double heap = RestingHeap(display);
        rest.push_back(heap - StripBytes(map) - work.AreaDone() * BytesPerHectare);
        if (fix % Fixes == 0)
            qDebug("%.2f h, %d strips, %.1f ha: heap %.2f MB, strips %.2f MB, rest %.2f MB", fix / (3600.0 * plan.rate),
                   int(map.Strips().size()), work.AreaDone(), Megabytes(heap), Megabytes(StripBytes(map)),
                   Megabytes(rest.back()));
    }
    QVERIFY2(!simulator.AtEnd(), "the field is too small");
    QCOMPARE(int(map.Strips().size()), Fixes * TestLength());
    QVERIFY2(display.Warnings().isEmpty(), qPrintable(display.Warnings().join(QLatin1Char('\n'))));
    const HeapTrend::tagTrend trend = HeapTrend::Of(rest);
    const QString growth = QString::fromLatin1("the rest grows by %1 MB, give or take %2 MB")
                               .arg(Megabytes(trend.growth), 0, 'f', 3)
                               .arg(Megabytes(trend.noise), 0, 'f', 3);
    qDebug("%s", qPrintable(growth));
    QVERIFY2(!HeapTrend::IsGrowing(trend), qPrintable(growth));
}

QTEST_MAIN(LongWork)
#include "LongWork.moc"
