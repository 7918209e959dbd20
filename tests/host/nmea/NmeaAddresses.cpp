#include "nmea/NmeaAddress.h"

#include <QtTest>

namespace {

/// An address as it was understood.
QString Text(const NmeaAddress& address)
{
    if (const auto* file = std::get_if<tagFileAddress>(&address))
        return QLatin1String("file ") + file->path;
    if (const auto* server = std::get_if<tagTcpAddress>(&address))
        return QString::fromLatin1("server %1 port %2").arg(server->host).arg(server->port);
    const auto& line = std::get<tagSerialAddress>(address);
    return QString::fromLatin1("device %1 at %2").arg(line.device).arg(line.baud);
}

} // namespace

class NmeaAddresses : public QObject
{
    Q_OBJECT

private slots:
    void addressesAreUnderstood_data();
    void addressesAreUnderstood();
    void whatWasExpectedIsSaid_data();
    void whatWasExpectedIsSaid();
};

void NmeaAddresses::addressesAreUnderstood_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("understood");
    const auto row = [](const char* text, const char* understood) {
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(understood);
    };
    row("field.nmea", "file field.nmea");
    row("-", "file -");
    row("/dev/ttyUSB0", "file /dev/ttyUSB0");
    row("/dev/serial/by-id/usb-A_B:1.0-port0", "file /dev/serial/by-id/usb-A_B:1.0-port0");
    row("tcp", "file tcp");
    row("serial", "file serial");
    row("./tcp://localhost:1", "file ./tcp://localhost:1");
    row("./udp://localhost:1", "file ./udp://localhost:1");
    row("notes:tcp://x", "file notes:tcp://x");
    row("C:/field.nmea", "file C:/field.nmea");
    row("tcp://localhost:2947", "server localhost port 2947");
    row("tcp://localhost:2947/", "server localhost port 2947");
    row("TCP://localhost:2947", "server localhost port 2947");
    row("tcp://192.168.1.20:1", "server 192.168.1.20 port 1");
    row("tcp://gateway_2.cab.local:65535", "server gateway_2.cab.local port 65535");
    row("tcp://höhe:10110", "server höhe port 10110");
    row("tcp://[::1]:2947", "server ::1 port 2947");
    row("tcp://[fe80::1%eth0]:2947", "server fe80::1%eth0 port 2947");
    row("serial:///dev/ttyS0", "device /dev/ttyS0 at 4800");
    row("Serial:///dev/ttyS0", "device /dev/ttyS0 at 4800");
    row("serial:///dev/serial/by-id/usb-A_B:1.0-port0#2", "device /dev/serial/by-id/usb-A_B:1.0-port0#2 at 4800");
    for (const char* baud : {"4800", "9600", "19200", "38400", "57600", "115200", "230400", "460800", "921600"}) {
        row(qPrintable(QString::fromLatin1("serial:///dev/ttyS0?baud=%1").arg(QLatin1String(baud))),
            qPrintable(QString::fromLatin1("device /dev/ttyS0 at %1").arg(QLatin1String(baud))));
    }
}

void NmeaAddresses::addressesAreUnderstood()
{
    QFETCH(QString, text);
    QString error;
    const auto address = ReadNmeaAddress(text, &error);
    QVERIFY2(address, qPrintable(error));
    QTEST(Text(*address), "understood");
    QCOMPARE(error, QString());
}

void NmeaAddresses::whatWasExpectedIsSaid_data()
{
    const char* const server = "tcp://HOST:PORT with a port from 1 to 65535 and an IPv6 address in brackets";
    const char* const device = "serial:///dev/NAME or serial:///dev/NAME?baud=N with N one of 4800, 9600, 19200, "
                               "38400, 57600, 115200, 230400, 460800, 921600";
    const char* const any = "a file, - for standard input, tcp://HOST:PORT or serial:///dev/NAME?baud=N";

    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* text, const char* expected) {
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(expected);
    };
    row("tcp:", server);
    row("tcp://", server);
    row("tcp:localhost:2947", server);
    row("tcp:/localhost:2947", server);
    row("tcp:///localhost:2947", server);
    row("tcp://localhost", server);
    row("tcp://localhost:", server);
    row("tcp://:2947", server);
    row("tcp://localhost:0", server);
    row("tcp://localhost:65536", server);
    row("tcp://localhost:999999", server);
    row("tcp://localhost:-1", server);
    row("tcp://localhost:+1", server);
    row("tcp://localhost:2947x", server);
    row("tcp://localhost:1:2", server);
    row("tcp://local host:2947", server);
    row("tcp://localhost:2947 ", server);
    row("tcp://localhost:2947\n", server);
    row("tcp://localhost:2947/nmea", server);
    row("tcp://localhost:2947?baud=4800", server);
    row("tcp://localhost:2947#1", server);
    row("tcp://me@localhost:2947", server);
    row("tcp://::1:2947", server);
    row("tcp://[::1]", server);
    row("tcp://[::1:2947", server);
    row("tcp://[]:2947", server);
    row("tcp://[localhost]:2947", server);
    row("tcp://[127.0.0.1]:2947", server);
    row("tcp://[::1]x:2947", server);
    row("serial:", device);
    row("serial://", device);
    row("serial:///", device);
    row("serial:/dev/ttyS0", device);
    row("serial://dev/ttyS0", device);
    row("serial://ttyS0", device);
    row("serial:///dev/", device);
    row("serial:///dev/ttyS0?", device);
    row("serial:///dev/ttyS0?baud", device);
    row("serial:///dev/ttyS0?baud=", device);
    row("serial:///dev/ttyS0?baud=0", device);
    row("serial:///dev/ttyS0?baud=4801", device);
    row("serial:///dev/ttyS0?baud=-4800", device);
    row("serial:///dev/ttyS0?baud=4800.0", device);
    row("serial:///dev/ttyS0?baud=fast", device);
    row("serial:///dev/ttyS0?baud=99999999999999999999", device);
    row("serial:///dev/ttyS0?baud=4800\n", device);
    row("serial:///dev/ttyS0?baud=4800&baud=9600", device);
    row("serial:///dev/ttyS0?baud=4800&parity=even", device);
    row("serial:///dev/ttyS0?parity=even", device);
    row("serial:///dev/ttyS0?Baud=4800", device);
    row("udp://localhost:2947", any);
    row("file:///field.nmea", any);
    row("HTTP://localhost/field.nmea", any);
}

void NmeaAddresses::whatWasExpectedIsSaid()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QString error;
    QVERIFY(!ReadNmeaAddress(text, &error));
    QCOMPARE(error, QString::fromLatin1("invalid source \"%1\"; expected %2").arg(text, expected));
}

QTEST_APPLESS_MAIN(NmeaAddresses)
#include "NmeaAddresses.moc"
