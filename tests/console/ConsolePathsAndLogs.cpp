#include "TConsole.h"

#include <QtTest>

class ConsolePathsAndLogs : public QObject
{
    Q_OBJECT

private slots:
    void pathsOfAJobAreComposed();
    void pathsWithoutAFieldAreSaidToBeMissing();
    void anEntryIsLogged_data();
    void anEntryIsLogged();
    void logsAreExported();
    void anExportThatFailsSaysSo_data();
    void anExportThatFailsSaysSo();

private:
    static QByteArray Contents(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

void ConsolePathsAndLogs::pathsOfAJobAreComposed()
{
    const TConsole console;
    const TConsole::tagResult result =
        console.Run({QLatin1String("paths"), QLatin1String("--client"), QLatin1String("Smith"), QLatin1String("--farm"),
                     QLatin1String("North"), QLatin1String("--field"), QLatin1String("F1"), QLatin1String("--job"),
                     QLatin1String("J_1")});
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    const QString field = console.DataFolder() + QLatin1String("/internal/Clients/Smith/North/F1/");
    const QString expected = QLatin1String("job              ") + field + QLatin1String("Jobs/J_1/J_1.ini\n") +
                             QLatin1String("coverage         ") + field + QLatin1String("Jobs/J_1/J_1.cov\n") +
                             QLatin1String("per-point data   ") + field + QLatin1String("Jobs/J_1/J_1_PPD.pbz\n") +
                             QLatin1String("area counters    ") + field + QLatin1String("Jobs/J_1/areacounters.ini\n") +
                             QLatin1String("boundary         ") + field + QLatin1String("Boundaries/F1/F1.bdy\n") +
                             QLatin1String("exclusion zones  ") + field + QLatin1String("Zones/F1/F1.shp\n") +
                             QLatin1String("flag points      ") + field + QLatin1String("flagpoints.ini\n");
    QCOMPARE(result.output, expected);
}

void ConsolePathsAndLogs::pathsWithoutAFieldAreSaidToBeMissing()
{
    const TConsole console;
    const TConsole::tagResult result =
        console.Run({QLatin1String("paths"), QLatin1String("--job"), QLatin1String("J_1")});
    QCOMPARE(result.status, 0);
    QVERIFY(result.output.contains(console.DataFolder() + QLatin1String("/internal/Jobs/J_1/J_1.ini\n")));
    QVERIFY(result.output.contains(QLatin1String("boundary         (none without a field)\n")));
}

void ConsolePathsAndLogs::anEntryIsLogged_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("one text") << QStringList{QLatin1String("started")} << QByteArray("Console,Event,0,started,");
    QTest::newRow("two texts") << QStringList{QLatin1String("a"), QLatin1String("b, c")}
                               << QByteArray("Console,Event,0,a,b  c");
    QTest::newRow("trouble code") << QStringList{QLatin1String("--component"), QLatin1String("3"),
                                                 QLatin1String("--type"),      QLatin1String("2"),
                                                 QLatin1String("--code"),      QLatin1String("512"),
                                                 QLatin1String("Nozzle 7")}
                                  << QByteArray("Implement,DTC,512,Nozzle 7,");
    QTest::newRow("a text that looks like an option")
        << QStringList{QLatin1String("--"), QLatin1String("-5 bar")} << QByteArray("Console,Event,0,-5 bar,");
}

void ConsolePathsAndLogs::anEntryIsLogged()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, line);
    const TConsole console;
    const TConsole::tagResult result = console.Run(QStringList{QLatin1String("log"), QLatin1String("add")} + arguments);
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    const QByteArray log = Contents(console.DataFolder() + QLatin1String("/internal/Diagnostics/User00001.csv"));
    QVERIFY2(log.endsWith(line + "\r\n"), log.constData());
    QCOMPARE(log.count('\n'), 1);
}

void ConsolePathsAndLogs::logsAreExported()
{
    const TConsole console;
    console.Run({QLatin1String("log"), QLatin1String("add"), QLatin1String("first")});
    console.Run({QLatin1String("log"), QLatin1String("add"), QLatin1String("second")});
    QVERIFY(QDir().mkpath(console.Path("stick")));
    const TConsole::tagResult result =
        console.Run({QLatin1String("log"), QLatin1String("export"), console.Path("stick")});
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, QString::fromLatin1("user log: 1 files copied\nNMEA log: 1 files copied\n"));
    const QByteArray copy = Contents(console.Path("stick/User00001.csv"));
    QVERIFY(copy.contains("first") && copy.contains("second"));
    QCOMPARE(copy, Contents(console.DataFolder() + QLatin1String("/internal/Diagnostics/User00001.csv")));
}

void ConsolePathsAndLogs::anExportThatFailsSaysSo_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("no such folder") << "nowhere";
    QTest::newRow("a file") << "file";
    QTest::newRow("a folder in the way of a file") << "blocked";
}

void ConsolePathsAndLogs::anExportThatFailsSaysSo()
{
    QFETCH(QString, target);
    const TConsole console;
    console.Run({QLatin1String("log"), QLatin1String("add"), QLatin1String("x")});
    QFile file(console.Path("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(QDir().mkpath(console.Path("blocked/User00001.csv/x")));
    const QString folder = console.Path(target.toLatin1().constData());
    const TConsole::tagResult result = console.Run({QLatin1String("log"), QLatin1String("export"), folder});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(folder), qPrintable(result.errors));
}

QTEST_GUILESS_MAIN(ConsolePathsAndLogs)
#include "ConsolePathsAndLogs.moc"
