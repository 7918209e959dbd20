#include "nmea/FixQuality.h"
#include "nmea/NmeaChecksum.h"
#include "nmea/TFieldSimulator.h"

#include <QtTest>

#include <cmath>

class FixQualities : public QObject
{
    Q_OBJECT

private slots:
    void aPositionTellsItsQuality_data();
    void aPositionTellsItsQuality();
    void otherLinesTellNone_data();
    void otherLinesTellNone();
    void theSimulatorHasRtk();

private:
    static QByteArray Line(const QByteArray& body) { return '$' + body + NmeaChecksum(body) + "\r\n"; }
};

void FixQualities::aPositionTellsItsQuality_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("satellites");
    QTest::addColumn<double>("hdop");

    const double unknown = std::nan("");
    QTest::newRow("GPS") << QByteArray("GPGGA,120000,5200.0,N,01000.0,E,1,08,1.2,80.0,M,0.0,M,,") << 1 << 8 << 1.2;
    QTest::newRow("RTK") << QByteArray("GNGGA,120000.10,5200.0,N,01000.0,E,4,12,0.7,80.0,M,0.0,M,1,1") << 4 << 12
                         << 0.7;
    QTest::newRow("float") << QByteArray("GNGGA,120000,5200.0,N,01000.0,E,5,17,0.9,80.0,M,0.0,M,1,1") << 5 << 17 << 0.9;
    QTest::newRow("no fix") << QByteArray("GPGGA,120000,,,,,0,00,,,M,,M,,") << 0 << 0 << unknown;
    QTest::newRow("all empty") << QByteArray("GPGGA,,,,,,,,,,,,,,") << 0 << 0 << unknown;
    QTest::newRow("no fields") << QByteArray("GPGGA,") << 0 << 0 << unknown;
    QTest::newRow("no number") << QByteArray("GPGGA,,,,,,x,y,nan,,,,,,") << 0 << 0 << unknown;
}

void FixQualities::aPositionTellsItsQuality()
{
    QFETCH(QByteArray, body);
    QFETCH(double, hdop);
    const auto quality = ReadFixQuality(Line(body));
    QVERIFY(quality);
    QTEST(quality->kind, "kind");
    QTEST(quality->satellites, "satellites");
    if (std::isnan(hdop))
        QVERIFY(std::isnan(quality->hdop));
    else
        QCOMPARE(quality->hdop, hdop);
}

void FixQualities::otherLinesTellNone_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no sentence") << QByteArray("hello\r\n");
    QTest::newRow("another sentence") << Line("GPRMC,120000,A,5200.0,N,01000.0,E,5,0,010524,,,A");
    QTest::newRow("another sentence with the same letters") << Line("GPXGGA,120000,5200.0,N,01000.0,E,1,08,1.2");
    QTest::newRow("wrong checksum") << QByteArray("$GPGGA,120000,5200.0,N,01000.0,E,1,08,1.2,80.0,M,0.0,M,,*00\r\n");
    QTest::newRow("cut short") << QByteArray("$GPGGA,120000,5200.0,N,01000.0,E,1,08\r\n");
}

void FixQualities::otherLinesTellNone()
{
    QFETCH(QByteArray, line);
    QVERIFY(!ReadFixQuality(line));
}

void FixQualities::theSimulatorHasRtk()
{
    TFieldSimulator simulator(tagFieldPlan{});
    const QList<QByteArray> lines = simulator.NextEpoch().split('\n');
    int told = 0;
    for (const QByteArray& line : lines) {
        if (const auto quality = ReadFixQuality(line)) {
            ++told;
            QCOMPARE(quality->kind, 4);
            QVERIFY(quality->satellites > 4);
        }
    }
    QCOMPARE(told, 1);
}

QTEST_APPLESS_MAIN(FixQualities)
#include "FixQualities.moc"
