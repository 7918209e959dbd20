#include "Recordings.h"
#include "TConsole.h"

#include "nmea/NmeaChecksum.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <csignal>

namespace {

QByteArray Rmc(const char* time, char status, const QByteArray& date)
{
    const QByteArray body =
        QByteArray("GPRMC,") + time + ',' + status + ",5212.0,N,01030.0,E,10.0,90.0," + date + ",,,A";
    return '$' + body + NmeaChecksum(body) + "\r\n";
}

/// The machine's time zone of the programs that are started, as POSIX writes it: from UTC to local with the other sign.
class TTimeZone
{
public:
    explicit TTimeZone(const QByteArray& zone) : m_Kept(qgetenv("TZ")) { qputenv("TZ", zone); }
    ~TTimeZone() { qputenv("TZ", m_Kept); }
    TTimeZone(const TTimeZone&) = delete;
    TTimeZone& operator=(const TTimeZone&) = delete;

private:
    QByteArray m_Kept;
};

} // namespace

class ConsoleRun : public QObject
{
    Q_OBJECT

private slots:
    void theLogHoldsTheTailOfTheStream_data();
    void theLogHoldsTheTailOfTheStream();
    void theClockShowsTheLastUtcPlusTheOffset();
    void theClockBeginsAtTheFirstTimeOfARecording_data();
    void theClockBeginsAtTheFirstTimeOfARecording();
    void aFileOnStandardInputIsARecording();
    void theOperatorsOffsetHoldsForARecording();
    void aRecordingWithoutATimeLeavesTheClock();
    void nowTakesTheMachinesTime_data();
    void nowTakesTheMachinesTime();
    void timesOfALiveSourceAreChecked_data();
    void timesOfALiveSourceAreChecked();
    void selectionsAreBackAfterARestart();
    void damagedLinesAreLoggedAsReceived();
    void linesThatCannotBeLoggedAreSaid();
    void theSummaryCanBeHadAsJson();
    void standardInputIsReadToItsEnd();
    void aSecondRunGoesOnInTheSameFiles();
    void anInterruptEndsInGoodOrder();
    void furtherSignalsLoseNothing_data();
    void furtherSignalsLoseNothing();
    void aStreamThatCannotBeReadIsAFailure_data();
    void aStreamThatCannotBeReadIsAFailure();

private:
    static QByteArray Contents(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static QStringList LogNames(const TConsole& console, const char* pattern)
    {
        const QDir folder(console.DataFolder() + QLatin1String("/internal/Diagnostics"));
        return folder.entryList({QLatin1String(pattern)}, QDir::Files, QDir::Name);
    }

    static QByteArray Log(const TConsole& console, const char* pattern)
    {
        QByteArray all;
        const QStringList names = LogNames(console, pattern);
        for (const QString& name : names)
            all += Contents(console.DataFolder() + QLatin1String("/internal/Diagnostics/") + name);
        return all;
    }

    static void WriteFile(const QString& path, const QByteArray& contents)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(contents), contents.size());
    }

    static TConsole::tagResult RunOn(const TConsole& console, const QString& stream)
    {
        return console.Run({QLatin1String("run"), QLatin1String("--nmea"), stream});
    }
};

void ConsoleRun::theLogHoldsTheTailOfTheStream_data()
{
    QTest::addColumn<QString>("stream");
    QTest::addColumn<bool>("rotatesAway"); ///< long enough for files to be removed
    for (const QString& path : Recordings::All())
        QTest::newRow(qPrintable(QFileInfo(path).fileName())) << path << false;
    QTest::newRow("a field") << QString() << true;
}

void ConsoleRun::theLogHoldsTheTailOfTheStream()
{
    QFETCH(QString, stream);
    QFETCH(bool, rotatesAway);
    const TConsole console;
    if (stream.isEmpty()) {
        stream = console.Path("field.nmea");
        const TConsole::tagResult simulated =
            console.Run({QLatin1String("simulate"), QLatin1String("--passes"), QLatin1String("8"),
                         QLatin1String("--rate"), QLatin1String("10"), QLatin1String("--output"), stream});
        QCOMPARE(simulated.errors, QString());
        QCOMPARE(simulated.status, 0);
    }

    const TConsole::tagResult result = RunOn(console, stream);
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    const QByteArray received = Contents(stream);
    const QByteArray logged = Log(console, "NMEA*.csv");
    QVERIFY(!logged.isEmpty());
    QVERIFY(received.endsWith(logged));
    if (rotatesAway) {
        // Three full files of a quarter of a mebibyte and what has been written of the fourth.
        QCOMPARE(LogNames(console, "NMEA*.csv").size(), 4);
        QVERIFY(logged.size() > 3 * 0x40000);
        QVERIFY(logged.size() < received.size());
    } else {
        QCOMPARE(logged.size(), received.size());
    }
}

void ConsoleRun::theClockShowsTheLastUtcPlusTheOffset()
{
    const TConsole console;
    console.Run({QLatin1String("set"), QLatin1String("8952"), QLatin1String("true")});
    console.Run({QLatin1String("set"), QLatin1String("8949"), QLatin1String("5")});
    console.Run({QLatin1String("set"), QLatin1String("8950"), QLatin1String("30")});
    const QString stream = console.Path("field.nmea");
    console.Run({QLatin1String("simulate"), QLatin1String("--passes"), QLatin1String("1"), QLatin1String("--start"),
                 QLatin1String("2024-02-28T18:29:00Z"), QLatin1String("--output"), stream});
    const TConsole::tagResult result = RunOn(console, stream);
    QCOMPARE(result.errors, QString());
    QVERIFY2(result.output.contains(QLatin1String("29 Feb, 2024 00:0")), qPrintable(result.output));
    QVERIFY2(result.output.contains(QLatin1String("(GPS, UTC+05:30)")), qPrintable(result.output));

    const QString utc = result.output.section(QLatin1String("last UTC"), 1).trimmed().section(QLatin1Char('\n'), 0, 0);
    const QDateTime lastUtc = QDateTime::fromString(utc, Qt::ISODate);
    QVERIFY2(lastUtc.isValid(), qPrintable(utc));
    const QTime shown = QTime::fromString(
        result.output.section(QLatin1String("2024 "), 1).section(QLatin1Char(' '), 0, 0), QLatin1String("HH:mm:ss"));
    // The clock may be up to a second off: it is not set again for less.
    const int lag = lastUtc.addSecs(5 * 3600 + 30 * 60).time().secsTo(shown);
    QVERIFY2(lag >= -1 && lag <= 5, qPrintable(result.output));
}

void ConsoleRun::theClockBeginsAtTheFirstTimeOfARecording_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QByteArray>("stream");
    QTest::addColumn<QString>("offset");
    QTest::addColumn<QByteArray>("stamp"); ///< of every entry of the user log

    const QByteArray fix = Rmc("100059.90", 'A', "150124");
    const QByteArray later = Rmc("100100.10", 'A', "150124");
    const QByteArray summer = Rmc("100059.90", 'A', "150724");
    const QByteArray noFix = Rmc("095800.00", 'V', "150124");
    const QByteArray europe = "CET-1CEST,M3.5.0,M10.5.0/3"; // winter and summer
    const QByteArray before = noFix + "cut sho\r\n" + noFix;
    QTest::newRow("UTC") << QByteArray("UTC0") << fix + later << "+00:00" << QByteArray("2024.01.15-10:0");
    QTest::newRow("India") << QByteArray("IST-5:30") << fix + later << "+05:30" << QByteArray("2024.01.15-15:3");
    QTest::newRow("Newfoundland") << QByteArray("NST3:30") << fix + later << "-03:30" << QByteArray("2024.01.15-06:3");
    QTest::newRow("winter") << europe << fix + later << "+01:00" << QByteArray("2024.01.15-11:0");
    QTest::newRow("summer") << europe << summer << "+02:00" << QByteArray("2024.07.15-12:0");
    QTest::newRow("another day there") << QByteArray("XXX-12") << Rmc("235959.90", 'A', "290224") << "+12:00"
                                       << QByteArray("2024.03.01-11:59:5");
    QTest::newRow("half a day ahead") << QByteArray("XXX-12") << fix << "+12:00" << QByteArray("2024.01.15-22:0");
    QTest::newRow("more than half a day ahead")
        << QByteArray("XXX-13:45") << fix << "+13:45" << QByteArray("2024.01.15-23:4");
    QTest::newRow("no fix at first") << europe << before + fix + later << "+01:00" << QByteArray("2024.01.15-11:0");
    QTest::newRow("wrong checksums at first") << europe << QByteArray("$GPGGA,1*00\r\n").repeated(1000) + fix + later
                                              << "+01:00" << QByteArray("2024.01.15-11:0");
}

void ConsoleRun::theClockBeginsAtTheFirstTimeOfARecording()
{
    QFETCH(QByteArray, zone);
    QFETCH(QByteArray, stream);
    QFETCH(QString, offset);
    QFETCH(QByteArray, stamp);
    const TTimeZone timeZone(zone);
    const TConsole console;
    WriteFile(console.Path("stream.nmea"), stream);
    for (int run = 1; run <= 2; ++run) { // the first one leaves a clock that is far from the machine's
        const TConsole::tagResult result = RunOn(console, console.Path("stream.nmea"));
        QCOMPARE(result.errors, QString());
        QCOMPARE(result.status, 0);
        QVERIFY2(result.output.contains(QString::fromLatin1("(GPS, UTC%1)").arg(offset)), qPrintable(result.output));
    }
    const QList<QByteArray> entries = Log(console, "User*.csv").split('\n');
    QVERIFY(entries.size() > 4);
    for (const QByteArray& entry : entries)
        QVERIFY2(entry.isEmpty() || entry.startsWith(stamp), entry.constData());
}

void ConsoleRun::aFileOnStandardInputIsARecording()
{
    const TTimeZone timeZone("IST-5:30");
    const TConsole console;
    WriteFile(console.Path("stream.nmea"), Rmc("100059.90", 'A', "150124"));
    QProcess process;
    process.setStandardInputFile(console.Path("stream.nmea"));
    process.start(QLatin1String(CABSETTINGS_PROGRAM),
                  {QLatin1String("--data"), console.DataFolder(), QLatin1String("run"), QLatin1String("--nmea"),
                   QLatin1String("-")});
    QVERIFY(process.waitForFinished());
    const QByteArray output = process.readAllStandardOutput();
    QVERIFY2(output.contains("(GPS, UTC+05:30)"), output.constData());
    QVERIFY2(output.contains("lines          1 (0 bad"), output.constData());
}

void ConsoleRun::theOperatorsOffsetHoldsForARecording()
{
    const TTimeZone timeZone("IST-5:30");
    const TConsole console;
    console.Run({QLatin1String("set"), QLatin1String("clock.offset-by-operator"), QLatin1String("true")});
    console.Run({QLatin1String("set"), QLatin1String("clock.offset-hours"), QLatin1String("-3")});
    WriteFile(console.Path("stream.nmea"), Rmc("100059.90", 'A', "150124"));
    const TConsole::tagResult result = RunOn(console, console.Path("stream.nmea"));
    QVERIFY2(result.output.contains(QLatin1String("(GPS, UTC-03:00)")), qPrintable(result.output));
    const TConsole::tagResult chosen = console.Run({QLatin1String("get"), QLatin1String("clock.offset-by-operator")});
    QCOMPARE(chosen.output, QString::fromLatin1("true\n"));
}

void ConsoleRun::aRecordingWithoutATimeLeavesTheClock()
{
    const TTimeZone timeZone("IST-5:30");
    const TConsole console;
    WriteFile(console.Path("stream.nmea"), Rmc("100059.90", 'V', "150124"));
    const TConsole::tagResult result = RunOn(console, console.Path("stream.nmea"));
    QCOMPARE(result.status, 0);
    QVERIFY2(result.output.contains(QLatin1String("(not set by GPS)")), qPrintable(result.output));
    const TConsole::tagResult offset = console.Run({QLatin1String("get"), QLatin1String("clock.offset")});
    QCOMPARE(offset.output, QString::fromLatin1("19800\n"));
}

void ConsoleRun::nowTakesTheMachinesTime_data()
{
    QTest::addColumn<bool>("isFile");
    QTest::newRow("a file") << true;
    QTest::newRow("a pipe, which is live") << false;
}

void ConsoleRun::nowTakesTheMachinesTime()
{
    QFETCH(bool, isFile);
    const TConsole console;
    // Three hours behind the machine: the machine's clock, in UTC, is taken for a local time three hours ahead.
    const QDateTime recorded = QDateTime::currentDateTimeUtc().addSecs(-3 * 3600);
    const QByteArray time = QLocale::c().toString(recorded, QLatin1String("HHmmss")).toLatin1();
    const QByteArray stream =
        Rmc(time.constData(), 'A', QLocale::c().toString(recorded, QLatin1String("ddMMyy")).toLatin1());
    WriteFile(console.Path("stream.nmea"), stream);
    const QStringList arguments = {QLatin1String("run"), QLatin1String("--nmea")};
    const TConsole::tagResult result =
        isFile ? console.Run(arguments + QStringList{console.Path("stream.nmea"), QLatin1String("--now")})
               : console.Run(arguments + QStringList{QLatin1String("-")}, stream);
    QCOMPARE(result.errors, QString());
    const QString offset = result.output.section(QLatin1String("(GPS, UTC"), 1).left(5);
    QVERIFY2(offset == QLatin1String("+03:0"), qPrintable(result.output));
}

void ConsoleRun::timesOfALiveSourceAreChecked_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("date");
    QTest::addColumn<QString>("newest"); ///< afterwards
    QTest::addColumn<QByteArray>("entry");
    const QStringList pipe = {QLatin1String("-")};
    const QStringList file = {QLatin1String("FILE")};
    const QStringList fileNow = {QLatin1String("FILE"), QLatin1String("--now")};
    const QByteArray refused = "Time refused,2024-05-01T12:00:00Z,before the software was built";
    const QByteArray set = "Time set,2024-05-01T12:00:00Z";
    const QString none;
    QTest::newRow("a pipe") << pipe << QByteArray("010544") << "2044-05-01T12:00:00Z"
                            << QByteArray("Time set,2044-05-01T12:00:00Z");
    QTest::newRow("a pipe with an old time") << pipe << QByteArray("010524") << none << refused;
    QTest::newRow("a recording") << file << QByteArray("010524") << none << set;
    QTest::newRow("a recording, now") << fileNow << QByteArray("010524") << none << set;
}

void ConsoleRun::timesOfALiveSourceAreChecked()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, date);
    QFETCH(QString, newest);
    QFETCH(QByteArray, entry);
    const TConsole console;
    const QByteArray stream = Rmc("120000.00", 'A', date);
    WriteFile(console.Path("stream.nmea"), stream);
    arguments.replaceInStrings(QLatin1String("FILE"), console.Path("stream.nmea"));
    const TConsole::tagResult result =
        console.Run(QStringList{QLatin1String("run"), QLatin1String("--nmea")} + arguments, stream);
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    const QByteArray log = Log(console, "User*.csv");
    QVERIFY2(log.contains(entry), log.constData());
    QCOMPARE(console.Run({QLatin1String("get"), QLatin1String("clock.newest-time")}).output.trimmed(), newest);
    const bool isSet = !entry.startsWith("Time refused");
    QCOMPARE(console.Run({QLatin1String("get"), QLatin1String("clock.source")}).output,
             QString::fromLatin1(isSet ? "receiver\n" : "none\n"));
}

void ConsoleRun::selectionsAreBackAfterARestart()
{
    const QList<QPair<QString, QString>> selections = {
        {QLatin1String("8919"), QLatin1String("J_1")},     {QLatin1String("8920"), QLatin1String("B_1")},
        {QLatin1String("8921"), QLatin1String("L_1")},     {QLatin1String("8922"), QLatin1String("P_1")},
        {QLatin1String("8923"), QLatin1String("C_1")},     {QLatin1String("8924"), QLatin1String("O_1")},
        {QLatin1String("8925"), QLatin1String("PL_1")},    {QLatin1String("8926"), QLatin1String("Zone")},
        {QLatin1String("8927"), QLatin1String("Soft")},    {QLatin1String("8928"), QLatin1String("Spreader")},
        {QLatin1String("8929"), QLatin1String("Tractor")}, {QLatin1String("8930"), QLatin1String("Boom 24")},
        {QLatin1String("8931"), QLatin1String("Level")},   {QLatin1String("8932"), QLatin1String("Smith")},
        {QLatin1String("8933"), QLatin1String("North")},   {QLatin1String("8934"), QLatin1String("F1")},
    };
    const TConsole console;
    for (const auto& selection : selections) {
        const TConsole::tagResult set = console.Run({QLatin1String("set"), QLatin1String("--type"),
                                                     QLatin1String("string"), selection.first, selection.second});
        QCOMPARE(set.status, 0);
    }
    for (int start = 0; start < 2; ++start) {
        const TConsole::tagResult run =
            console.Run({QLatin1String("run"), QLatin1String("--nmea"), QLatin1String("-")});
        QCOMPARE(run.status, 0);
        QVERIFY(run.output.contains(QLatin1String("Clients/Smith/North/F1/Jobs/J_1/J_1.cov")));
        for (const auto& selection : selections) {
            const TConsole::tagResult got = console.Run({QLatin1String("get"), selection.first});
            QCOMPARE(got.output, selection.second + QLatin1Char('\n'));
        }
    }
}

void ConsoleRun::damagedLinesAreLoggedAsReceived()
{
    const TConsole console;
    const QByteArray stream = "garbage\r\n$GPRMC,1*00\n\n" + QByteArray("\0\xff\x80 binary\n", 11) + "no end";
    WriteFile(console.Path("damaged.nmea"), stream);
    const TConsole::tagResult result = RunOn(console, console.Path("damaged.nmea"));
    QCOMPARE(result.status, 0);
    QCOMPARE(Log(console, "NMEA*.csv"), stream);
    QVERIFY2(result.output.contains(QLatin1String("5 (1 bad checksums, 4 damaged, 0 not logged)")),
             qPrintable(result.output));
}

void ConsoleRun::linesThatCannotBeLoggedAreSaid()
{
    const TConsole console;
    const QString log = console.DataFolder() + QLatin1String("/internal/Diagnostics/NMEA00001.csv");
    QVERIFY(QDir().mkpath(log)); // a folder in the place of the log's file
    WriteFile(console.Path("stream.nmea"), QByteArray("$GPTXT,hello*41\r\n").repeated(3));
    const TConsole::tagResult result = RunOn(console, console.Path("stream.nmea"));
    QCOMPARE(result.status, 1);
    QVERIFY2(result.output.contains(QLatin1String(", 3 not logged)")), qPrintable(result.output));
    QVERIFY2(result.errors.contains(QLatin1String("the NMEA log has lost 3 lines, 20")), qPrintable(result.errors));
    QVERIFY2(result.errors.contains(QLatin1String("cabsettings: cannot log 3 lines")), qPrintable(result.errors));
}

void ConsoleRun::theSummaryCanBeHadAsJson()
{
    const TConsole console;
    const QString stream = console.Path("stream.nmea");
    WriteFile(stream, "$GPGLL,4916.45,N,12311.12,W,225444,A*31\r\nno sentence\r\n");
    const TConsole::tagResult run =
        console.Run({QLatin1String("run"), QLatin1String("--nmea"), stream, QLatin1String("--json")});
    QCOMPARE(run.status, 0);
    const QJsonObject summary = QJsonDocument::fromJson(run.output.toUtf8()).object();
    const QJsonObject received = summary.value(QLatin1String("stream")).toObject();
    QCOMPARE(received.value(QLatin1String("lines")).toInt(), 2);
    QCOMPARE(received.value(QLatin1String("damaged")).toInt(), 1);
    QCOMPARE(received.value(QLatin1String("notLogged")).toInt(-1), 0);
    for (const char* part : {"clock", "active", "paths", "logs", "drives"})
        QVERIFY2(summary.value(QLatin1String(part)).isObject(), part);
    QCOMPARE(summary.value(QLatin1String("scheme")).toString(), QLatin1String("day"));
}

void ConsoleRun::standardInputIsReadToItsEnd()
{
    const TConsole console;
    const QByteArray stream = QByteArray("$GPTXT,hello*41\r\n").repeated(5000);
    const TConsole::tagResult result =
        console.Run({QLatin1String("run"), QLatin1String("--nmea"), QLatin1String("-")}, stream);
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    QCOMPARE(Log(console, "NMEA*.csv"), stream);
}

void ConsoleRun::aSecondRunGoesOnInTheSameFiles()
{
    const TConsole console;
    WriteFile(console.Path("first"), "first\r\n");
    WriteFile(console.Path("second"), "second\r\n");
    RunOn(console, console.Path("first"));
    RunOn(console, console.Path("second"));
    QCOMPARE(Log(console, "NMEA*.csv"), QByteArray("first\r\nsecond\r\n"));
    QCOMPARE(LogNames(console, "NMEA*.csv"), QStringList{QLatin1String("NMEA00001.csv")});
}

void ConsoleRun::anInterruptEndsInGoodOrder()
{
    const TConsole console;
    QProcess process;
    process.start(QLatin1String(CABSETTINGS_PROGRAM),
                  {QLatin1String("--data"), console.DataFolder(), QLatin1String("run"), QLatin1String("--nmea"),
                   QLatin1String("-")});
    process.write("received before\r\n");
    // The log's file is there once the terminal has started; from then on a signal is a request.
    QTRY_VERIFY(!LogNames(console, "NMEA*.csv").isEmpty());
    kill(static_cast<pid_t>(process.processId()), SIGINT);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QVERIFY(process.readAllStandardOutput().contains("Clock"));
}

void ConsoleRun::furtherSignalsLoseNothing_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("further");
    QTest::newRow("as timeout sends") << SIGINT << SIGINT;
    QTest::newRow("as a terminal that closes sends") << SIGINT << SIGHUP;
    QTest::newRow("as a shut-down sends") << SIGHUP << SIGTERM;
}

void ConsoleRun::furtherSignalsLoseNothing()
{
    QFETCH(int, first);
    QFETCH(int, further);
    signal(SIGHUP, SIG_DFL); // what runs under nohup ignores it
    for (int round = 0; round < 5; ++round) {
        const TConsole console;
        QProcess process;
        process.start(QLatin1String(CABSETTINGS_PROGRAM),
                      {QLatin1String("--data"), console.DataFolder(), QLatin1String("run"), QLatin1String("--nmea"),
                       QLatin1String("-")});
        process.write("received before\r\n");
        QTRY_VERIFY(!LogNames(console, "NMEA*.csv").isEmpty());
        const auto pid = static_cast<pid_t>(process.processId());
        kill(pid, first);
        // From here to the end, but not until the program takes it for one that hangs. A process that has ended keeps
        // its number until it is waited for.
        const QDeadlineTimer patience(2000);
        while (!process.waitForFinished(1) && !patience.hasExpired())
            kill(pid, further);
        QVERIFY(process.state() == QProcess::NotRunning || process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);
        QVERIFY(process.readAllStandardOutput().contains("removable")); // the summary's last line
    }
}

void ConsoleRun::aStreamThatCannotBeReadIsAFailure_data()
{
    QTest::addColumn<QString>("stream");
    QTest::newRow("no such file") << "/no/such/stream.nmea";
    QTest::newRow("a folder") << "/tmp";
}

void ConsoleRun::aStreamThatCannotBeReadIsAFailure()
{
    QFETCH(QString, stream);
    const TConsole console;
    const TConsole::tagResult result = RunOn(console, stream);
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(stream), qPrintable(result.errors));
    QCOMPARE(result.errors.count(QLatin1Char('\n')), 1);
}

QTEST_GUILESS_MAIN(ConsoleRun)
#include "ConsoleRun.moc"
