#include "NmeaCatch.h"
#include "TReceiverServer.h"

#include <QNetworkProxy>

namespace {

const QByteArray Sentence = "$GPZDA,120000.00,01,05,2024,,*60\r\n";
const QByteArray GpsdGreeting = R"({"class":"VERSION","release":"3.22","proto_major":3,"proto_minor":14})"
                                "\r\n";
const int GreetingLength = 18; // of the part by which gpsd is known
const QByteArray GpsdRequest = "?WATCH={\"enable\":true,\"nmea\":true};\n";

tagTcpAddress AddressOf(const TReceiverServer& server) { return {QLatin1String("127.0.0.1"), server.Port()}; }

/// The kernel's row for the client's end of a connection, in fields; empty when there is none.
QList<QByteArray> KernelRow(const QTcpSocket& connection)
{
    const auto field = [](quint16 port) {
        return QByteArray("0100007F:") + QByteArray::number(port, 16).toUpper().rightJustified(4, '0');
    };
    QFile table(QLatin1String("/proc/net/tcp"));
    if (!table.open(QIODevice::ReadOnly))
        return {};
    const QList<QByteArray> rows = table.readAll().split('\n');
    for (const QByteArray& row : rows) {
        const QList<QByteArray> fields = row.simplified().split(' ');
        if (fields.value(1) == field(connection.peerPort()) && fields.value(2) == field(connection.localPort()))
            return fields;
    }
    return {};
}

} // namespace

class NmeaServers : public QObject
{
    Q_OBJECT

private slots:
    void linesComeAsTheyAreSent();
    void linesMayBeCutAnywhere();
    void aLongStreamComesWhole();
    void aServerIsFoundUnderEveryAddress_data();
    void aServerIsFoundUnderEveryAddress();
    void aServerThatRefusesIsWaitedFor();
    void aLostServerIsWaitedFor();
    void aLossEndsTheLine_data();
    void aLossEndsTheLine();
    void stoppingOnTheCutLineIsTheEnd();
    void aPeerGoneWithoutAWordIsNoticed();
    void noProxyIsAsked();
    void gpsdIsAskedForNmea_data();
    void gpsdIsAskedForNmea();
    void otherServersAreAskedForNothing_data();
    void otherServersAreAskedForNothing();
    void itCanBeStoppedAtAnyMoment_data();
    void itCanBeStoppedAtAnyMoment();
    void itMayBeDestroyedWhileItRuns();
};

void NmeaServers::linesComeAsTheyAreSent()
{
    TReceiverServer server;
    QVERIFY(server.Listen());
    TNmeaInput input(AddressOf(server), 1e-6); // which holds for files alone
    tagCatch caught(input);
    input.Start();
    const auto client = server.Accept();
    QVERIFY(client);
    for (int line = 1; line <= 10; ++line) {
        QVERIFY(TReceiverServer::Send(*client, Sentence));
        QVERIFY(caught.WaitForLines(line));
        QCOMPARE(caught.Line(line - 1), Sentence);
    }
    QVERIFY(caught.end.isEmpty());
    QVERIFY(caught.losses.isEmpty());
    QVERIFY(caught.returns.isEmpty());
}

void NmeaServers::linesMayBeCutAnywhere()
{
    TReceiverServer server;
    QVERIFY(server.Listen());
    TNmeaInput input(AddressOf(server));
    tagCatch caught(input);
    input.Start();
    const auto client = server.Accept();
    QVERIFY(client);
    QByteArray sent;
    for (int cut = 0; cut <= Sentence.size(); ++cut) {
        // The first line shows that what came with it has been received.
        QVERIFY(TReceiverServer::Send(*client, "$A*41\r\n" + Sentence.left(cut)));
        QVERIFY(caught.WaitForLines(2 * cut + 1));
        QVERIFY(TReceiverServer::Send(*client, Sentence.mid(cut)));
        QVERIFY(caught.WaitForLines(2 * cut + 2));
        QCOMPARE(caught.Line(2 * cut + 1), Sentence);
        sent += "$A*41\r\n" + Sentence;
    }
    QCOMPARE(caught.Stream(), sent);
}

void NmeaServers::aLongStreamComesWhole()
{
    const int count = 100000; // several MiB, far more than any buffer on the way
    TReceiverServer server;
    QVERIFY(server.Listen());
    TNmeaInput input(AddressOf(server));
    tagCatch caught(input);
    int linesAtOnce = 0;
    int most = 0;
    connect(&input, &TNmeaInput::LineReceived, this, [&] { most = std::max(most, ++linesAtOnce); });
    QTimer other;
    connect(&other, &QTimer::timeout, this, [&] { linesAtOnce = 0; });
    other.start(0);
    input.Start();
    auto client = server.Accept();
    QVERIFY(client);
    QVERIFY(TReceiverServer::Send(*client, Sentence.repeated(count)));
    client.reset();
    QVERIFY(caught.WaitForLosses(1));
    QCOMPARE(caught.lines.size(), count);
    QCOMPARE(caught.Stream(), Sentence.repeated(count));
    QVERIFY2(most < count / 10, qPrintable(QString::number(most))); // the event loop runs in between
}

void NmeaServers::aServerIsFoundUnderEveryAddress_data()
{
    QTest::addColumn<QString>("at");
    QTest::addColumn<QString>("host");
    QTest::newRow("IPv4") << "127.0.0.1"
                          << "127.0.0.1";
    QTest::newRow("IPv6") << "::1"
                          << "::1";
    QTest::newRow("a name") << "127.0.0.1"
                            << "localhost";
}

void NmeaServers::aServerIsFoundUnderEveryAddress()
{
    QFETCH(QString, at);
    QFETCH(QString, host);
    QTcpServer server;
    QVERIFY2(server.listen(QHostAddress(at)), qPrintable(server.errorString()));
    connect(&server, &QTcpServer::newConnection, this, [&] { server.nextPendingConnection()->write(Sentence); });
    TNmeaInput input(tagTcpAddress{host, server.serverPort()});
    tagCatch caught(input);
    input.Start();
    QVERIFY(caught.WaitForLines(1));
    QCOMPARE(caught.Stream(), Sentence);
}

void NmeaServers::aServerThatRefusesIsWaitedFor()
{
    TReceiverServer server;
    TNmeaInput input(AddressOf(server));
    tagCatch caught(input);
    input.Start();
    QVERIFY(caught.losses.isEmpty()); // told by the event loop, like everything else
    QVERIFY(caught.WaitForLosses(1));
    QCOMPARE(caught.losses.at(0).at(0).toString(), QString::fromLatin1("Connection refused"));

    QVERIFY(server.Listen());
    const auto client = server.Accept();
    QVERIFY(client);
    QVERIFY(caught.WaitForReturns(1));
    QVERIFY(TReceiverServer::Send(*client, Sentence));
    QVERIFY(caught.WaitForLines(1));
    QCOMPARE(caught.losses.size(), 1);
    QCOMPARE(caught.returns.size(), 1);
    QVERIFY(caught.end.isEmpty());
}

void NmeaServers::aLostServerIsWaitedFor()
{
    TReceiverServer server;
    QVERIFY(server.Listen());
    TNmeaInput input(AddressOf(server));
    tagCatch caught(input);
    input.Start();
    for (int round = 1; round <= 3; ++round) {
        auto client = server.Accept();
        QVERIFY(client);
        QVERIFY(TReceiverServer::Send(*client, Sentence));
        client.reset();
        QVERIFY(caught.WaitForLosses(round));
        QCOMPARE(caught.lines.size(), round);
        QCOMPARE(caught.returns.size(), round - 1);
    }
    QVERIFY(caught.end.isEmpty());
}

void NmeaServers::aLossEndsTheLine_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("received");
    QTest::newRow("nothing sent") << QByteArray() << QByteArray();
    QTest::newRow("after a line") << Sentence << Sentence;
    QTest::newRow("within a line") << QByteArray("$GPZDA,12") << QByteArray("$GPZDA,12\r\n");
    QTest::newRow("within the second line") << Sentence + "$" << Sentence + "$\r\n";
    QTest::newRow("within a line end") << QByteArray("$A*41\r") << QByteArray("$A*41\r\n");
}

void NmeaServers::aLossEndsTheLine()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, received);
    TReceiverServer server;
    QVERIFY(server.Listen());
    TNmeaInput input(AddressOf(server));
    tagCatch caught(input);
    input.Start();
    auto client = server.Accept();
    QVERIFY(client);
    QVERIFY(TReceiverServer::Send(*client, before));
    client.reset();
    QVERIFY(caught.WaitForLosses(1));
    QCOMPARE(caught.Stream(), received);

    client = server.Accept();
    QVERIFY(client);
    QVERIFY(TReceiverServer::Send(*client, "0000.00,01,05,2024,,*60\r\n"));
    QVERIFY(caught.WaitForLines(received.count('\n') + 1));
    QCOMPARE(caught.lines.last().at(0).toByteArray(), QByteArray("0000.00,01,05,2024,,*60\r\n"));
    for (const QList<QVariant>& line : caught.lines)
        QCOMPARE(line.at(0).toByteArray().count('\n'), 1);
}

void NmeaServers::stoppingOnTheCutLineIsTheEnd()
{
    TReceiverServer server;
    QVERIFY(server.Listen());
    TNmeaInput input(AddressOf(server));
    tagCatch caught(input);
    connect(&input, &TNmeaInput::LineReceived, this, [&] { input.Stop(); });
    input.Start();
    auto client = server.Accept();
    QVERIFY(client);
    QVERIFY(TReceiverServer::Send(*client, "$GPZDA,12"));
    client.reset();
    QVERIFY(caught.WaitForEnd());
    QVERIFY(caught.Ok());
    QCOMPARE(caught.Stream(), QByteArray("$GPZDA,12\r\n"));
    QVERIFY(caught.losses.isEmpty());
}

void NmeaServers::aPeerGoneWithoutAWordIsNoticed()
{
    const QByteArray keepalive = "02:"; // the timer that runs, and when it is due, in hundredths of a second
    TReceiverServer server;
    QVERIFY(server.Listen());
    TNmeaInput input(AddressOf(server));
    tagCatch caught(input);
    input.Start();
    const auto client = server.Accept();
    QVERIFY(client);
    QVERIFY(TReceiverServer::Send(*client, Sentence));
    QVERIFY(caught.WaitForLines(1));
    const QByteArray timer = KernelRow(*client).value(5);
    QVERIFY2(timer.startsWith(keepalive), timer.constData());
    bool isNumber = false;
    const int due = timer.mid(keepalive.size()).toInt(&isNumber, 16);
    QVERIFY2(isNumber && due > 0 && due <= 1000, timer.constData());
}

void NmeaServers::noProxyIsAsked()
{
    const TReceiverServer proxy; // refuses
    QNetworkProxy::setApplicationProxy(
        QNetworkProxy(QNetworkProxy::HttpProxy, QLatin1String("127.0.0.1"), proxy.Port()));
    const auto noProxy = qScopeGuard([] { QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy); });
    TReceiverServer server;
    QVERIFY(server.Listen());
    // This machine, too, but no address that Qt exempts from proxies of its own accord.
    TNmeaInput input(tagTcpAddress{QLatin1String("0.0.0.0"), server.Port()});
    tagCatch caught(input);
    input.Start();
    const auto client = server.Accept();
    QVERIFY(client);
    QVERIFY(TReceiverServer::Send(*client, Sentence));
    QVERIFY(caught.WaitForLines(1));
    QVERIFY(caught.losses.isEmpty());
}

void NmeaServers::gpsdIsAskedForNmea_data()
{
    QTest::addColumn<int>("cut"); ///< where the greeting is cut in two
    QTest::newRow("at once") << 0;
    QTest::newRow("after its first byte") << 1;
    QTest::newRow("within its class") << GreetingLength - 1;
    QTest::newRow("after its class") << GreetingLength;
    QTest::newRow("before its end") << static_cast<int>(GpsdGreeting.size()) - 1;
}

void NmeaServers::gpsdIsAskedForNmea()
{
    QFETCH(int, cut);
    TReceiverServer server;
    QVERIFY(server.Listen());
    TNmeaInput input(AddressOf(server));
    tagCatch caught(input);
    input.Start();
    for (int connection = 1; connection <= 2; ++connection) {
        auto client = server.Accept();
        QVERIFY(client);
        client->setSocketOption(QTcpSocket::LowDelayOption, 1);
        QVERIFY(TReceiverServer::Send(*client, GpsdGreeting.left(cut)));
        for (int round = 0; round < 100; ++round)
            QCoreApplication::processEvents();
        if (cut < GreetingLength)
            QCOMPARE(client->bytesAvailable(), qint64(0)); // not before it is sure
        QVERIFY(TReceiverServer::Send(*client, GpsdGreeting.mid(cut)));
        QVERIFY(QTest::qWaitFor([&] { return client->bytesAvailable() >= GpsdRequest.size(); }, Deadline));
        QVERIFY(TReceiverServer::Send(*client, GpsdGreeting + Sentence)); // once is enough
        QVERIFY(caught.WaitForLines(3 * connection));
        client->disconnectFromHost();
        QVERIFY(caught.WaitForLosses(connection));
        QVERIFY(QTest::qWaitFor([&] { return client->state() == QTcpSocket::UnconnectedState; }, Deadline));
        QCOMPARE(client->readAll(), GpsdRequest);
    }
    QCOMPARE(caught.Stream(), (GpsdGreeting + GpsdGreeting + Sentence).repeated(2));
}

void NmeaServers::otherServersAreAskedForNothing_data()
{
    QTest::addColumn<QByteArray>("sent");
    QTest::newRow("NMEA") << Sentence;
    QTest::newRow("a greeting of another kind") << QByteArray("{\"class\":\"DEVICES\"}\r\n");
    QTest::newRow("a greeting that comes late") << Sentence + GpsdGreeting;
    QTest::newRow("no text") << QByteArray(100, '\0') + "\n";
}

void NmeaServers::otherServersAreAskedForNothing()
{
    QFETCH(QByteArray, sent);
    TReceiverServer server;
    QVERIFY(server.Listen());
    TNmeaInput input(AddressOf(server));
    tagCatch caught(input);
    input.Start();
    const auto client = server.Accept();
    QVERIFY(client);
    QVERIFY(TReceiverServer::Send(*client, sent));
    QVERIFY(caught.WaitForLines(sent.count('\n')));
    input.Stop();
    QVERIFY(QTest::qWaitFor([&] { return client->state() == QTcpSocket::UnconnectedState; }, Deadline));
    QCOMPARE(client->readAll(), QByteArray());
    QCOMPARE(caught.Stream(), sent);
}

void NmeaServers::itCanBeStoppedAtAnyMoment_data()
{
    QTest::addColumn<QString>("moment");
    for (const char* moment : {"at once", "when told of the loss", "while it waits", "when told of the return",
                               "while it receives", "within a line"})
        QTest::newRow(moment) << QString::fromLatin1(moment);
}

void NmeaServers::itCanBeStoppedAtAnyMoment()
{
    QFETCH(QString, moment);
    const auto is = [&](const char* text) { return moment == QLatin1String(text); };
    TReceiverServer server;
    TNmeaInput input(AddressOf(server));
    tagCatch caught(input);
    const auto stop = [&] { input.Stop(); };
    if (is("when told of the loss"))
        connect(&input, &TNmeaInput::SourceLost, this, stop);
    else if (is("when told of the return"))
        connect(&input, &TNmeaInput::SourceRegained, this, stop);
    else if (is("while it receives"))
        connect(&input, &TNmeaInput::LineReceived, this, stop);

    input.Start();
    std::unique_ptr<QTcpSocket> client;
    if (!is("at once"))
        QVERIFY(caught.WaitForLosses(1));
    if (caught.end.isEmpty() && !is("at once") && !is("while it waits")) {
        QVERIFY(server.Listen());
        client = server.Accept();
        QVERIFY(client);
        QVERIFY(TReceiverServer::Send(*client, Sentence + "$B"));
        QVERIFY(QTest::qWaitFor([&] { return !caught.end.isEmpty() || !caught.lines.isEmpty(); }, Deadline));
    }
    if (caught.end.isEmpty())
        input.Stop();

    QCOMPARE(caught.end.size(), 1);
    QVERIFY(caught.Ok());
    if (is("while it receives") || is("within a line"))
        QCOMPARE(caught.Stream(), Sentence + "$B"); // the part that came of a line, too
    if (client)
        QVERIFY(QTest::qWaitFor([&] { return client->state() == QTcpSocket::UnconnectedState; }, Deadline));
    for (int round = 0; round < 100; ++round)
        QCoreApplication::processEvents();
    QCOMPARE(caught.end.size(), 1);
    QVERIFY(caught.losses.size() <= 1); // the end is no loss
}

void NmeaServers::itMayBeDestroyedWhileItRuns()
{
    TReceiverServer server;
    QVERIFY(server.Listen());
    for (const int rounds : {0, 1, 2, 3, 10}) {
        TNmeaInput input(AddressOf(server));
        input.Start();
        for (int round = 0; round < rounds; ++round)
            QCoreApplication::processEvents();
    }
    TReceiverServer refusing;
    auto waiting = std::make_unique<TNmeaInput>(AddressOf(refusing));
    tagCatch caught(*waiting);
    waiting->Start();
    QVERIFY(caught.WaitForLosses(1));
    waiting.reset();
    for (int round = 0; round < 100; ++round)
        QCoreApplication::processEvents();
}

QTEST_GUILESS_MAIN(NmeaServers)
#include "NmeaServers.moc"
