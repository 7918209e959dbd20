#include "Memory.h"
#include "Obstacles.h"
#include "TestLength.h"
#include "TestResults.h"
#include "VirtualTime.h"

#include "nmea/NmeaChecksum.h"
#include "nmea/TNmeaInput.h"
#include "nmea/TNmeaReceiver.h"
#include "nmea/TTimeGuard.h"
#include "parameters/HostParameters.h"
#include "platform/TLocalTime.h"
#include "stores/TMemoryStore.h"
#include "terminal/TTerminal.h"

#include <QDir>
#include <QEventLoop>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>

#include <cmath>
#include <memory>

#include <sys/socket.h>

namespace {

constexpr int Connections = 10000;
constexpr int Settled = 1000; // after so many, memory and descriptors are what they stay
constexpr qint64 MostKilobytes = 4096;
constexpr int LongestPause = 8000; // milliseconds
constexpr int ShortestPause = 250;

/// A server that sends something and hangs up, as often as a client comes back.
class TFleetingServer : public QTcpServer
{
public:
    TFleetingServer(const QByteArray& greeting, const std::function<void(int)>& closed)
        : m_Greeting(greeting), m_Closed(closed)
    {
        if (!listen(QHostAddress::LocalHost))
            qFatal("cannot listen");
        connect(this, &QTcpServer::newConnection, this, &TFleetingServer::HangUp);
    }

    int Count() const { return m_Count; }

private:
    void HangUp()
    {
        while (hasPendingConnections()) {
            const std::unique_ptr<QTcpSocket> client(nextPendingConnection());
            if (m_Greeting.isEmpty()) { // the connection is reset, perhaps before the client knows of it
                const linger none = {1, 0};
                setsockopt(static_cast<int>(client->socketDescriptor()), SOL_SOCKET, SO_LINGER, &none, sizeof none);
            }
            client->write(m_Greeting);
            client->flush();
            client->close();
            m_Closed(++m_Count);
        }
    }

    const QByteArray m_Greeting;
    const std::function<void(int)> m_Closed;
    int m_Count = 0;
};

int Descriptors()
{
    const QDir open(QLatin1String("/proc/self/fd"));
    return static_cast<int>(open.entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size());
}

tagTcpAddress AddressOf(const QTcpServer& server) { return {QLatin1String("127.0.0.1"), server.serverPort()}; }

QByteArray Sentence(const QByteArray& body) { return '$' + body + NmeaChecksum(body) + "\r\n"; }

const QDateTime Newest(QDate(2027, 5, 1), QTime(12, 0), Qt::UTC);

QByteArray Rmc(const QByteArray& time, const QByteArray& date, const QByteArray& position = "5212.0,N,01030.0,E",
               const QByteArray& motion = "5.0,90.0")
{
    return "GPRMC," + time + ",A," + position + ',' + motion + ',' + date + ",,,A";
}

/// Bodies of sentences that no receiver sends, and of some that one does.
QList<QByteArray> Lies()
{
    QList<QByteArray> lies;
    for (const char* position :
         {"9530.0,N,01030.0,E", "5212.0,N,20030.0,E", "5299.0,N,01099.0,E", "nan,N,inf,E", "-5212.0,N,-01030.0,E",
          "1e308,N,1e308,E", "5212.0,E,01030.0,N", "5212.0,,01030.0,", "0x10,N,0x10,E", ",,,"})
        lies.append(Rmc("120001.00", "010527", position));
    for (const char* time : {"256161.00", "246060", "-10000", "120000.99999999999999999", "1e5", "999999999999", "nan"})
        lies.append(Rmc(time, "010527"));
    for (const char* date : {"310227", "000027", "999999", "010580", "010500", "-10527", "010599", "010533", "1e5"})
        lies.append(Rmc("120002.00", date));
    for (const char* motion : {"1e400,90.0", "-5.0,-90.0", "nan,nan", "inf,inf", "5.0,1e9", "5.0,360.001", ","})
        lies.append(Rmc("120003.00", "010527", "5212.0,N,01030.0,E", motion));
    for (const char* body :
         {"GPGGA,120004.00,5212.0,N,01030.0,E,99,99999999999,-1,1e400,M,nan,M,,", "GPGGA,,,,,,,,,,,,,,", "GPGGA",
          "GPZDA,120005.00,01,05,9999,99,99", "GPZDA,120005.00,01,05,0000,,", "GPZDA,120005.00,-1,-1,-1,,", "GPZDA",
          "GPRMC", "GPRMC,,,,,,,,,,,,", "GPGSV,99,99,99,99,99,99,99", "GPGSA,A,9,,,,,,,,,,,,,-1,-1,-1",
          "GPVTG,,,,,nan"})
        lies.append(body);
    lies.append("GPRMC," + QByteArray(3000, '9'));
    lies.append("GPRMC" + QByteArray(3000, ','));
    return lies;
}

bool IsKnownRange(double value, double least, double greatest)
{
    return std::isnan(value) || (value >= least && value <= greatest);
}

} // namespace

/// Servers that hang up, never end a line, or lie.
class HostileServers : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { alarm(3 * SecondsToStop * static_cast<unsigned>(TestLength())); }

    void aServerThatHangsUpCostsNothing_data();
    void aServerThatHangsUpCostsNothing();
    void lineThatNeverEndsFillsNoMemory();
    void liesAreNotShown();
};

void HostileServers::aServerThatHangsUpCostsNothing_data()
{
    QTest::addColumn<QByteArray>("greeting");
    QTest::addColumn<int>("leastPause"); ///< milliseconds, between two connections
    QTest::newRow("at once") << QByteArray() << LongestPause;
    QTest::newRow("after a byte") << QByteArray("$") << ShortestPause;
}

void HostileServers::aServerThatHangsUpCostsNothing()
{
    QFETCH(QByteArray, greeting);
    QFETCH(int, leastPause);
    QEventLoop loop;
    int descriptors = 0;
    qint64 kilobytes = 0;
    std::int64_t begin = 0;
    TFleetingServer server(greeting, [&](int count) {
        if (count == Settled) {
            descriptors = Descriptors();
            kilobytes = KilobytesOf("VmRSS:");
            begin = VirtualTime::Skipped();
        }
        if (count >= Connections)
            loop.quit();
    });
    TNmeaInput input(AddressOf(server));
    int losses = 0;
    QByteArray received;
    connect(&input, &TNmeaInput::SourceLost, &input, [&losses] { ++losses; });
    connect(&input, &TNmeaInput::LineReceived, &input, [&received](const QByteArray& line) { received = line; });
    input.Start();
    loop.exec();
    const std::int64_t passed = VirtualTime::Skipped() - begin;
    const qint64 grown = KilobytesOf("VmRSS:") - kilobytes;
    const int more = Descriptors() - descriptors;
    input.Stop();
    QCOMPARE(server.Count(), Connections);
    QVERIFY2(std::abs(more) <= 2, qPrintable(QString::number(more))); // one connection may be there, or not
    QVERIFY2(grown <= MostKilobytes * MemoryFactor, qPrintable(QString::number(grown)));
    const std::int64_t least = std::int64_t{leastPause} * (Connections - Settled);
    QVERIFY2(passed >= least - least / 100,
             qPrintable(QString::number(static_cast<qint64>(passed)))); // a timer may be early
    QVERIFY(losses <= Connections);
    QCOMPARE(received.isEmpty(), greeting.isEmpty());
    AppendTestResult("reconnects", {QTest::currentDataTag(), QByteArray::number(server.Count()),
                                    QByteArray::number(more), QByteArray::number(grown),
                                    QByteArray::number(static_cast<qint64>(passed) / (Connections - Settled))});
}

void HostileServers::lineThatNeverEndsFillsNoMemory()
{
    const qint64 bytes = (qint64{128} << 20) * (TestLength() > 1 ? 16 : 1); // 2 GB
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    QEventLoop loop;
    qint64 left = bytes;
    std::unique_ptr<QTcpSocket> client;
    const QByteArray piece(0x10000, 'x');
    const auto send = [&] {
        while (left > 0 && client->bytesToWrite() < piece.size())
            left -= client->write(piece);
    };
    connect(&server, &QTcpServer::newConnection, &server, [&] {
        client.reset(server.nextPendingConnection());
        client->setParent(nullptr);
        connect(client.get(), &QTcpSocket::bytesWritten, client.get(), send);
        send();
    });
    TNmeaInput input(AddressOf(server));
    qint64 received = 0;
    int longest = 0;
    connect(&input, &TNmeaInput::LineReceived, &input, [&](const QByteArray& line) {
        received += line.size();
        longest = std::max(longest, static_cast<int>(line.size()));
        if (received == bytes)
            loop.quit();
    });
    const qint64 before = KilobytesOf("VmHWM:");
    input.Start();
    loop.exec();
    const qint64 grown = KilobytesOf("VmHWM:") - before;
    input.Stop();
    QCOMPARE(received, bytes);
    QCOMPARE(longest, 4096);
    QVERIFY2(grown <= MostKilobytes * MemoryFactor, qPrintable(QString::number(grown)));
    AppendTestResult("endless-lines", {"TCP server", QByteArray::number(bytes), QByteArray::number(grown)});
}

void HostileServers::liesAreNotShown()
{
    const TTemporaryFolder folder;
    TMemoryStore store;
    store.SetParameter(PARAM_NEWEST_TIME, Newest.toString(Qt::ISODate), true);
    TTerminal terminal(store);
    QString error;
    QVERIFY2(terminal.Start(folder.Path(), &error), qPrintable(error));
    TNmeaReceiver receiver;

    QByteArray stream = Sentence(Rmc("120000.00", "010527"));
    for (const QByteArray& lie : Lies())
        stream += Sentence(lie) + Sentence(Rmc("120006.00", "010527"));
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    QTcpSocket* client = nullptr;
    connect(&server, &QTcpServer::newConnection, &server, [&] {
        client = server.nextPendingConnection();
        client->write(stream);
    });
    TNmeaInput input(AddressOf(server));
    QEventLoop loop;
    qint64 received = 0;
    const TNmeaReceiver::tagStatus& status = receiver.GetStatus();
    connect(&input, &TNmeaInput::LineReceived, &input, [&](const QByteArray& line) {
        receiver.Receive(line);
        received += line.size();
        const bool isShown = IsKnownRange(status.latitude, -90, 90) && IsKnownRange(status.longitude, -180, 180) &&
                             IsKnownRange(status.speed, 0, std::numeric_limits<double>::max()) &&
                             IsKnownRange(status.course, 0, 360) && !std::isinf(status.altitude);
        const qint64 off = std::abs(Newest.secsTo(status.utc.isValid() ? status.utc : Newest));
        if (!isShown || off > TTimeGuard::MostSeconds)
            QTest::qFail(line.left(200).constData(), __FILE__, __LINE__);
        if (received == stream.size())
            loop.quit();
    });
    input.Start();
    loop.exec();
    input.Stop();
    receiver.Finish();
    QCOMPARE(status.badChecksums + status.damagedLines, qint64(0));
    QCOMPARE(status.latitude, 52.2); // of the honest sentences
    QCOMPARE(status.longitude, 10.5);
    const QDateTime clock = TLocalTime::currentDateTime();
    QVERIFY2(std::abs(Newest.secsTo(QDateTime(clock.date(), clock.time(), Qt::UTC))) <= 2 * TTimeGuard::MostSeconds,
             qPrintable(clock.toString(Qt::ISODate)));
}

int main(int argc, char** argv)
{
    VirtualTime::Begin();
    const QCoreApplication application(argc, argv);
    HostileServers test;
    return QTest::qExec(&test, argc, argv);
}
#include "HostileServers.moc"
