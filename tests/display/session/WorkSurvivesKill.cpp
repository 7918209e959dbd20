#include "TRunningDisplay.h"

#include "coverage/TCoverageFile.h"
#include "coverage/TCoverageTally.h"
#include "nmea/FieldPlan.h"
#include "parameters/HostParameters.h"
#include "platform/EParamID.h"
#include "stores/TSqliteStore.h"
#include "system/TSystemSettings.h"
#include "terminal/DataFolder.h"

#include <QDirIterator>
#include <QFile>
#include <QtTest>

#include <cmath>
#include <memory>

/// The program is killed while the implement works: at most ten seconds of covered ground are missing after the next
/// start. That is compared in metres, which a busy machine does not change.
class WorkSurvivesKill : public QObject
{
    Q_OBJECT

private slots:
    void atMostTenSecondsAreLost_data();
    void atMostTenSecondsAreLost();
};

namespace {

const double MostLostSeconds = 10;
const double MetersPerSecond = tagFieldPlan().speed / 3.6;

/// Driven before: more than may be lost, so that some of it has to be in the file.
const double DrivenBefore = 40;

/// The tile shows whole metres.
const double Inexact = 0.5;

bool ShowDistance(const TRunningDisplay& display)
{
    QString error;
    const std::unique_ptr<TSqliteStore> store =
        TSqliteStore::Open(DataFolder::StoreFile(display.DataFolder()), &error, TRunningDisplay::Patience);
    return store && store->SetParameter(PARAM_TILES, QStringLiteral("distance"), true);
}

/// The coverage of the only job that has one; empty without.
QString CoveragePath(const TRunningDisplay& display)
{
    QDirIterator files(display.DataFolder(), {QLatin1Char('*') + QLatin1String(TSystemSettings::CoverageExtension)},
                       QDir::Files, QDirIterator::Subdirectories);
    const QString path = files.hasNext() ? files.next() : QString();
    return files.hasNext() ? QString() : path;
}

/// What is in the file, which stays as it is: opening cuts off a torn tail, so that is done to a copy.
bool ReadCopy(const QString& path, tagCoverage* found, QString* error)
{
    const QString copy = path + QLatin1String(".copy");
    const bool isRead = QFile::copy(path, copy) && TCoverageFile::Open(copy, found, error);
    QFile::remove(copy);
    return isRead;
}

double Distance(const tagCoverage& coverage)
{
    TCoverageTally tally;
    for (const tagCoverageStrip& strip : coverage.strips)
        tally.Add(strip);
    return tally.Distance();
}

bool SaysTornTail(TRunningDisplay& display)
{
    const QStringList texts = display.Texts();
    return !texts.filter(QLatin1String("Coverage was not complete and was left out")).isEmpty();
}

} // namespace

void WorkSurvivesKill::atMostTenSecondsAreLost_data()
{
    QTest::addColumn<int>("cutBytes");
    QTest::newRow("killed") << 0;
    QTest::newRow("killed, and the last block is torn") << 3;
}

void WorkSurvivesKill::atMostTenSecondsAreLost()
{
    QFETCH(int, cutBytes);
    TRunningDisplay display(SimulatedInEnglish());
    QVERIFY2(display.Await(), qPrintable(display.Problem()));
    QVERIFY(ShowDistance(display));
    QVERIFY(display.Tap("Not working. Switch the implement on"));
    double shown = 0;
    QVERIFY(QTest::qWaitFor([&] { return (shown = display.Distance()) >= DrivenBefore; }, TRunningDisplay::Patience));
    display.Kill();

    const QString path = CoveragePath(display);
    QVERIFY(!path.isEmpty());
    QString error;
    tagCoverage whole;
    QVERIFY2(ReadCopy(path, &whole, &error), qPrintable(error));
    qInfo("%.0f m were shown, %.1f m are in the file", shown, Distance(whole));
    QVERIFY(Distance(whole) >= shown - MostLostSeconds * MetersPerSecond - Inexact);

    QVERIFY(QFile::resize(path, QFileInfo(path).size() - cutBytes));
    tagCoverage found;
    QVERIFY2(ReadCopy(path, &found, &error), qPrintable(error));
    QVERIFY(!found.strips.empty());
    QVERIFY(cutBytes == 0 || found.lostBytes > 0);

    display.Begin(SimulatedInEnglish());
    QVERIFY2(display.Await(), qPrintable(display.Problem()));
    // Before the job is read, the tile shows nothing or 0.
    QVERIFY2(QTest::qWaitFor([&] { return std::abs(display.Distance() - Distance(found)) <= Inexact; },
                             TRunningDisplay::Patience),
             qPrintable(display.Texts("tile.distance").join(QLatin1Char(' '))));
    QCOMPARE(SaysTornTail(display), found.lostBytes > 0);
    QCOMPARE(display.End(), 0);
}

QTEST_MAIN(WorkSurvivesKill)
#include "WorkSurvivesKill.moc"
