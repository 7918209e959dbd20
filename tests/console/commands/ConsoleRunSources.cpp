#include "TConsole.h"

#include "../../host/nmea/Deadline.h"
#include "../../host/nmea/TPseudoTerminal.h"
#include "../../host/nmea/TReceiverServer.h"

#include "nmea/NmeaChecksum.h"

#include <QDir>

#include <csignal>

namespace {

QByteArray Sentence(const char* body) { return '$' + QByteArray(body) + NmeaChecksum(body) + "\r\n"; }

/// They stand in the user log at once, as "First fix" and "Fix lost".
const QByteArray Fix = Sentence("GPRMC,120000.00,A,5212.0,N,01030.0,E,0.0,0.0,010544,,,A");
const QByteArray NoFix = Sentence("GPRMC,120001.00,V,,,,,,,010544,,,N");

QString AddressOf(const TReceiverServer& server)
{
    return QString::fromLatin1("tcp://127.0.0.1:%1").arg(server.Port());
}

QByteArray Log(const TConsole& console, const char* pattern)
{
    const QDir folder(console.DataFolder() + QLatin1String("/internal/Diagnostics"));
    QByteArray all;
    const QStringList names = folder.entryList({QLatin1String(pattern)}, QDir::Files, QDir::Name);
    for (const QString& name : names) {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::ReadOnly))
            all += file.readAll();
    }
    return all;
}

bool WaitForEvent(const TConsole& console, const char* event)
{
    return QTest::qWaitFor([&] { return Log(console, "User*.csv").contains(event); }, Deadline);
}

/// A run on a source that has no end of its own.
class TLiveRun
{
public:
    TLiveRun(const TConsole& console, const QString& source)
    {
        m_Process.start(QLatin1String(CABSETTINGS_PROGRAM), {QLatin1String("--data"), console.DataFolder(),
                                                             QLatin1String("run"), QLatin1String("--nmea"), source});
    }

    /// Whether so many lines are said on standard error.
    bool WaitForErrors(int lines)
    {
        return QTest::qWaitFor([&] { return Errors().count('\n') >= lines; }, Deadline);
    }

    /// Everything that is said there.
    QByteArray Errors()
    {
        m_Errors += m_Process.readAllStandardError();
        return m_Errors;
    }

    /// The exit status; -1 when it does not end in good order.
    int Interrupt()
    {
        kill(static_cast<pid_t>(m_Process.processId()), SIGINT);
        return m_Process.waitForFinished(Deadline) && m_Process.exitStatus() == QProcess::NormalExit
                   ? m_Process.exitCode()
                   : -1;
    }

    QByteArray Output() { return m_Process.readAllStandardOutput(); }

private:
    QProcess m_Process; // killed with a warning when it is still running at the end
    QByteArray m_Errors;
};

} // namespace

class ConsoleRunSources : public QObject
{
    Q_OBJECT

private slots:
    void aServerIsReadAcrossALoss();
    void aServerThatRefusesIsWaitedFor();
    void aServerThatEndsIsWaitedForUntilTheInterrupt();
    void aLostServerIsToldOfOnceHoweverOftenItIsTried();
    void gpsdIsReadAsItStands();
    void aSerialDeviceIsReadAcrossALoss();
    void theLineSpeedIsTheAddresss();
    void aHostThatCannotBeFoundIsWaitedFor();
    void aMalformedAddressIsMisuse_data();
    void aMalformedAddressIsMisuse();
    void aLiveSourceTakesNoSpeed_data();
    void aLiveSourceTakesNoSpeed();
    void aPipeTakesASpeedAndPaysNoHeed();
    void theHelpShowsEveryKindOfSource();
};

void ConsoleRunSources::aServerIsReadAcrossALoss()
{
    const TConsole console;
    TReceiverServer server;
    QVERIFY(server.Listen());
    TLiveRun run(console, AddressOf(server));
    auto client = server.Accept();
    QVERIFY(client);
    QVERIFY(TReceiverServer::Send(*client, Fix + "$GPRMC,1200"));
    client.reset();
    QVERIFY(run.WaitForErrors(1));

    client = server.Accept();
    QVERIFY(client);
    QVERIFY(TReceiverServer::Send(*client, "00.00,A*00\r\n" + NoFix));
    QVERIFY(run.WaitForErrors(2));
    QVERIFY(WaitForEvent(console, "Fix lost"));

    QCOMPARE(run.Interrupt(), 0);
    const QByteArray source = "cabsettings: " + AddressOf(server).toLatin1();
    QCOMPARE(run.Errors(),
             source + ": The remote host closed the connection; trying again\n" + source + ": connected\n");
    QCOMPARE(Log(console, "NMEA*.csv"), Fix + "$GPRMC,1200\r\n00.00,A*00\r\n" + NoFix);
    const QByteArray output = run.Output();
    QVERIFY2(output.contains("4 (0 bad checksums, 2 damaged, 0 not logged)"), output.constData());
    QVERIFY2(output.contains("no fix, 52.2000000, 10.5000000"), output.constData());
}

void ConsoleRunSources::aServerThatRefusesIsWaitedFor()
{
    const TConsole console;
    TReceiverServer server;
    TLiveRun run(console, AddressOf(server));
    QVERIFY(run.WaitForErrors(1));
    QVERIFY(server.Listen());
    const auto client = server.Accept();
    QVERIFY(client);
    QVERIFY(TReceiverServer::Send(*client, Fix));
    QVERIFY(run.WaitForErrors(2));
    QVERIFY(WaitForEvent(console, "Time set"));

    QCOMPARE(run.Interrupt(), 0);
    const QByteArray source = "cabsettings: " + AddressOf(server).toLatin1();
    QCOMPARE(run.Errors(), source + ": Connection refused; trying again\n" + source + ": connected\n");
    QCOMPARE(Log(console, "NMEA*.csv"), Fix);
    const QByteArray output = run.Output();
    QVERIFY2(output.contains("1 (0 bad checksums, 0 damaged, 0 not logged)"), output.constData());
    QVERIFY2(output.contains("2044-05-01T12:00:00Z"), output.constData());
}

void ConsoleRunSources::aServerThatEndsIsWaitedForUntilTheInterrupt()
{
    const TConsole console;
    QString source;
    std::unique_ptr<TLiveRun> run;
    {
        TReceiverServer server;
        QVERIFY(server.Listen());
        source = AddressOf(server);
        run = std::make_unique<TLiveRun>(console, source);
        const auto client = server.Accept();
        QVERIFY(client);
        QVERIFY(TReceiverServer::Send(*client, Fix));
    }
    QVERIFY(run->WaitForErrors(1));
    QCOMPARE(run->Interrupt(), 0);
    QCOMPARE(run->Errors(),
             "cabsettings: " + source.toLatin1() + ": The remote host closed the connection; trying again\n");
    QCOMPARE(Log(console, "NMEA*.csv"), Fix);
    const QByteArray output = run->Output();
    QVERIFY2(output.contains("fix, 52.2000000, 10.5000000"), output.constData());
}

void ConsoleRunSources::aLostServerIsToldOfOnceHoweverOftenItIsTried()
{
    const TConsole console;
    TReceiverServer server;
    QElapsedTimer elapsed;
    elapsed.start();
    TLiveRun run(console, AddressOf(server));
    QVERIFY(run.WaitForErrors(1));
    QVERIFY(server.Listen());
    const QByteArray source = "cabsettings: " + AddressOf(server).toLatin1();
    QByteArray expected = source + ": Connection refused; trying again\n";
    for (int loss = 1; loss <= 3; ++loss) {
        auto client = server.Accept();
        QVERIFY(client);
        client.reset();
        QVERIFY(run.WaitForErrors(2 * loss + 1));
        expected += source + ": connected\n" + source + ": The remote host closed the connection; trying again\n";
    }
    QVERIFY(elapsed.elapsed() >= 1500); // 250, 500 and 1000 milliseconds, but timers may be early
    QCOMPARE(run.Interrupt(), 0);
    QCOMPARE(run.Errors(), expected);
}

void ConsoleRunSources::gpsdIsReadAsItStands()
{
    const QByteArray greeting = R"({"class":"VERSION","release":"3.22","proto_major":3,"proto_minor":14})"
                                "\r\n";
    const QByteArray answers = R"({"class":"DEVICES","devices":[]})"
                               "\r\n"
                               R"({"class":"WATCH","enable":true,"json":false,"nmea":true})"
                               "\r\n";
    const TConsole console;
    TReceiverServer server;
    QVERIFY(server.Listen());
    TLiveRun run(console, AddressOf(server));
    const auto client = server.Accept();
    QVERIFY(client);
    QVERIFY(TReceiverServer::Send(*client, greeting));
    QVERIFY(QTest::qWaitFor([&] { return client->canReadLine(); }, Deadline));
    QCOMPARE(client->readLine(), QByteArray("?WATCH={\"enable\":true,\"nmea\":true};\n"));
    QVERIFY(TReceiverServer::Send(*client, answers + Fix));
    QVERIFY(WaitForEvent(console, "Time set"));

    QCOMPARE(run.Interrupt(), 0);
    QCOMPARE(run.Errors(), QByteArray());
    QCOMPARE(Log(console, "NMEA*.csv"), greeting + answers + Fix);
    const QByteArray output = run.Output();
    QVERIFY2(output.contains("4 (0 bad checksums, 3 damaged, 0 not logged)"), output.constData());
    QVERIFY2(output.contains("fix, 52.2000000, 10.5000000"), output.constData());
}

void ConsoleRunSources::aSerialDeviceIsReadAcrossALoss()
{
    const TConsole console;
    const QString device = console.Path("receiver");
    TLiveRun run(console, QLatin1String("serial://") + device);
    QVERIFY(run.WaitForErrors(1));
    {
        TPseudoTerminal receiver;
        QVERIFY(receiver.IsThere() && receiver.PlugIn(device));
        for (const char byte : Fix)
            QVERIFY(receiver.Write(QByteArray(1, byte)));
        QVERIFY(WaitForEvent(console, "First fix"));
    }
    QVERIFY(run.WaitForErrors(3));
    const TPseudoTerminal receiver;
    QVERIFY(receiver.IsThere() && receiver.PlugIn(device));
    QVERIFY(run.WaitForErrors(4));
    QVERIFY(receiver.Write(NoFix.left(20)));
    QVERIFY(receiver.Write(NoFix.mid(20)));
    QVERIFY(WaitForEvent(console, "Fix lost"));

    QCOMPARE(run.Interrupt(), 0);
    const QList<QByteArray> errors = run.Errors().split('\n');
    const QByteArray source = "cabsettings: serial://" + QFile::encodeName(device);
    QCOMPARE(errors.size(), 5);
    QCOMPARE(errors.at(0), source + ": no such device; trying again");
    QCOMPARE(errors.at(1), source + ": connected");
    QVERIFY2(errors.at(2).startsWith(source + ": ") && errors.at(2).endsWith("; trying again"), errors.at(2));
    QCOMPARE(errors.at(3), source + ": connected");
    QCOMPARE(errors.at(4), QByteArray());
    QCOMPARE(Log(console, "NMEA*.csv"), Fix + NoFix);
    const QByteArray output = run.Output();
    QVERIFY2(output.contains("2 (0 bad checksums, 0 damaged, 0 not logged)"), output.constData());
}

void ConsoleRunSources::theLineSpeedIsTheAddresss()
{
    const TConsole console;
    const QString device = console.Path("receiver");
    const TPseudoTerminal receiver;
    QVERIFY(receiver.IsThere() && receiver.PlugIn(device));
    TLiveRun run(console, QString::fromLatin1("serial://%1?baud=115200").arg(device));
    QVERIFY(receiver.Write(Fix));
    QVERIFY(WaitForEvent(console, "Time set"));
    const termios line = receiver.Line();
    QCOMPARE(cfgetispeed(&line), static_cast<speed_t>(B115200));
    QCOMPARE(run.Interrupt(), 0);
    QCOMPARE(run.Errors(), QByteArray());
}

void ConsoleRunSources::aHostThatCannotBeFoundIsWaitedFor()
{
    const TConsole console;
    TLiveRun run(console, QLatin1String("tcp://no-such-host.invalid:2947"));
    QVERIFY(run.WaitForErrors(1));
    QCOMPARE(run.Interrupt(), 0);
    QCOMPARE(run.Errors(), QByteArray("cabsettings: tcp://no-such-host.invalid:2947: Host not found; trying again\n"));
    QVERIFY(run.Output().contains("0 (0 bad checksums, 0 damaged, 0 not logged)"));
}

void ConsoleRunSources::aMalformedAddressIsMisuse_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("accepted");
    const auto row = [](const char* source, const char* accepted) {
        QTest::newRow(source) << QString::fromUtf8(source) << QString::fromUtf8(accepted);
    };
    row("tcp:localhost:2947", "tcp://HOST:PORT");
    row("tcp://localhost", "tcp://HOST:PORT");
    row("tcp://localhost:0", "from 1 to 65535");
    row("tcp://localhost:65536", "from 1 to 65535");
    row("tcp://:2947", "tcp://HOST:PORT");
    row("tcp://::1:2947", "IPv6 address in brackets");
    row("tcp://localhost:2947?nmea=true", "tcp://HOST:PORT");
    row("serial://ttyUSB0", "serial:///dev/NAME");
    row("serial:///", "serial:///dev/NAME");
    row("serial:///dev/ttyUSB0?baud=1200", "4800, 9600, 19200, 38400, 57600, 115200, 230400, 460800, 921600");
    row("serial:///dev/ttyUSB0?baud=", "4800, 9600, 19200, 38400, 57600, 115200, 230400, 460800, 921600");
    row("serial:///dev/ttyUSB0?parity=even", "serial:///dev/NAME?baud=N");
    row("udp://localhost:10110", "a file, - for standard input, tcp://HOST:PORT or serial:///dev/NAME?baud=N");
}

void ConsoleRunSources::aMalformedAddressIsMisuse()
{
    QFETCH(QString, source);
    QFETCH(QString, accepted);
    const TConsole console;
    const TConsole::tagResult result = console.Run({QLatin1String("run"), QLatin1String("--nmea"), source});
    QCOMPARE(result.status, 2);
    QVERIFY2(result.errors.startsWith(QString::fromLatin1("cabsettings: run: invalid source \"%1\"").arg(source)),
             qPrintable(result.errors));
    QVERIFY2(result.errors.contains(accepted), qPrintable(result.errors));
    QCOMPARE(result.errors.count(QLatin1Char('\n')), 1);
    QCOMPARE(result.output, QString());
    QVERIFY(!QFile::exists(console.DataFolder())); // no terminal has been started
}

void ConsoleRunSources::aLiveSourceTakesNoSpeed_data()
{
    QTest::addColumn<QString>("source");
    QTest::newRow("a server") << "tcp://localhost:2947";
    QTest::newRow("a serial device") << "serial:///dev/ttyUSB0";
}

void ConsoleRunSources::aLiveSourceTakesNoSpeed()
{
    QFETCH(QString, source);
    const TConsole console;
    const TConsole::tagResult result = console.Run(
        {QLatin1String("run"), QLatin1String("--nmea"), source, QLatin1String("--speed"), QLatin1String("1")});
    QCOMPARE(result.status, 2);
    QCOMPARE(result.errors,
             QString::fromLatin1(
                 "cabsettings: run: unexpected option --speed; %1 is not a file (see cabsettings run --help)\n")
                 .arg(source));
    QCOMPARE(result.output, QString());
}

void ConsoleRunSources::aPipeTakesASpeedAndPaysNoHeed()
{
    const TConsole console;
    const TConsole::tagResult result = console.Run({QLatin1String("run"), QLatin1String("--nmea"), QLatin1String("-"),
                                                    QLatin1String("--speed"), QLatin1String("0.000001")},
                                                   Fix + NoFix);
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    QCOMPARE(Log(console, "NMEA*.csv"), Fix + NoFix);
}

void ConsoleRunSources::theHelpShowsEveryKindOfSource()
{
    const TConsole console;
    const TConsole::tagResult result = console.Run({QLatin1String("run"), QLatin1String("--help")});
    QCOMPARE(result.status, 0);
    for (const char* example : {"cabsettings run --nmea field.nmea\n", "cabsettings run --nmea - <field.nmea\n",
                                "cabsettings run --nmea tcp://localhost:2947\n",
                                "cabsettings run --nmea 'serial:///dev/ttyUSB0?baud=9600'\n"})
        QVERIFY2(result.output.contains(QLatin1String(example)), qPrintable(result.output));
}

QTEST_GUILESS_MAIN(ConsoleRunSources)
#include "ConsoleRunSources.moc"
