#include "display/bench/Bench.h"
#include "display/bench/BenchDrive.h"
#include "display/bench/BenchWork.h"
#include "display/fieldwork/DemoField.h"
#include "display/fieldwork/TWork.h"
#include "display/map/TMapItem.h"
#include "display/session/TDisplaySession.h"

#include <QQuickWindow>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

/// A window with a map alone, and a short plan that prints into a file.
struct TBenchWindow
{
    TBenchWindow() : map(window.contentItem()), file(std::tmpfile(), std::fclose)
    {
        window.resize(400, 300);
        map.setSize({400, 300});
        map.SetModel(&model);
        window.show();
        plan.frames = 5;
        plan.warmUpFrames = 1;
        plan.liveSeconds = 1;
        plan.output = file.get();
    }

    QQuickWindow window;
    TMapModel model;
    TMapItem map;
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> file;
    tagBenchPlan plan;
};

} // namespace

class BenchFigures : public QObject
{
    Q_OBJECT

private slots:
    static void initTestCase() { QQuickWindow::setSceneGraphBackend(QStringLiteral("software")); }

    void PercentilesAreValuesThatWereMeasured_data()
    {
        QTest::addColumn<QVector<double>>("values");
        QTest::addColumn<double>("part");
        QTest::addColumn<double>("expected");
        const QVector<double> hundred = [] {
            QVector<double> values;
            for (int value = 100; value > 0; --value)
                values.append(value);
            return values;
        }();
        QTest::newRow("none") << QVector<double>() << 0.5 << 0.0;
        QTest::newRow("one") << QVector<double>{7} << 0.99 << 7.0;
        QTest::newRow("median of two") << QVector<double>{9, 7} << 0.5 << 7.0;
        QTest::newRow("median") << hundred << 0.5 << 50.0;
        QTest::newRow("95") << hundred << 0.95 << 95.0;
        QTest::newRow("99") << hundred << 0.99 << 99.0;
        QTest::newRow("all") << hundred << 1.0 << 100.0;
        QTest::newRow("least") << hundred << 0.0 << 1.0;
    }
    void PercentilesAreValuesThatWereMeasured()
    {
        QFETCH(QVector<double>, values);
        QFETCH(double, part);
        QFETCH(double, expected);
        QCOMPARE(Percentile(std::vector<double>(values.begin(), values.end()), part), expected);
    }

    /// Strips meet, but for the turns; one by one or all at once is the same drive.
    void TheDriveIsWork()
    {
        TMapModel all;
        DriveBenchField(all, 0, 5000);
        QVERIFY(all.Strips().size() > 4700 && all.Strips().size() < 4999);
        TMapModel parts;
        DriveBenchField(parts, 0, 2000);
        for (int fix = 2000; fix < 5000; ++fix)
            DriveBenchField(parts, fix, fix + 1);
        QCOMPARE(parts.Strips().size(), all.Strips().size());
        int gaps = 0;
        for (int strip = 1; strip < all.Strips().size(); ++strip) {
            const tagMapStrip& before = all.Strips()[strip - 1];
            const tagMapStrip& after = all.Strips()[strip];
            gaps += before.corners[3].north == after.corners[0].north ? 0 : 1;
            QCOMPARE(parts.Strips()[strip].corners[2].east, after.corners[2].east);
        }
        QCOMPARE(gaps, 2); // after the first and the second pass
        QCOMPARE(all.Guidance()->activeLine, 2);
        QCOMPARE(parts.Vehicle()->place, all.Vehicle()->place);
    }

    void TheBenchPrintsItsFigures()
    {
        TBenchWindow bench;
        QVERIFY(bench.file);
        QCOMPARE(RunBench(bench.window, {}, bench.plan), 0);

        std::rewind(bench.file.get());
        std::array<char, 4096> text = {};
        const QByteArray output(text.data(), int(std::fread(text.data(), 1, text.size(), bench.file.get())));
        for (const char* figure :
             {"400 x 300", "software renderer", "start to first frame: ", "\n1 h of coverage",
              "elapsed:", "worked:", "10 h of coverage", "median", "slowest frame of a zoom", "live: ", "memory: "})
            QVERIFY2(output.contains(figure), output.constData());
        QVERIFY(!output.contains("nan"));
        QVERIFY(!output.contains(" 0.0 strips"));
    }

    void LiveWorkThatFailsOrCoversNothingIsNotMeasured_data()
    {
        QTest::addColumn<QString>("problem");
        QTest::newRow("fails") << QStringLiteral("no field");
        QTest::newRow("covers nothing") << QString();
    }
    void LiveWorkThatFailsOrCoversNothingIsNotMeasured()
    {
        QFETCH(QString, problem);
        TBenchWindow bench;
        bool isStarted = false;
        const auto startWork = [&] {
            isStarted = true;
            return problem;
        };
        QCOMPARE(RunBench(bench.window, startWork, bench.plan), 1);
        QVERIFY(isStarted);
    }

    /// As the program starts it: ground of the job is covered.
    void TheWorkOfTheBenchCoversGround()
    {
        const QTemporaryDir folder;
        tagDisplayOptions options;
        options.dataFolder = folder.path();
        TDisplaySession session;
        QString error;
        QVERIFY2(session.Start(options, &error) && session.OpenWindow(options, &error), qPrintable(error));
        QVERIFY2(StartBenchWork(session.Engine(), &error), qPrintable(error));
        TWork& work = *TWork::Of(session.Engine());
        QVERIFY(work.IsWorking() && !work.IsLoading());
        QVERIFY(work.JobText().contains(QLatin1String(DemoField::Job)));
        QTRY_VERIFY(work.Map()->Strips().size() > 5);
    }

    void AWindowWithoutAMapIsNotMeasured()
    {
        QQuickWindow window;
        QCOMPARE(RunBench(window), 1);
    }
};

QTEST_MAIN(BenchFigures)
#include "BenchFigures.moc"
